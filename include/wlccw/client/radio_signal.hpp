// Per-antenna signal readings of an AP's NETCONF client object.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/export.hpp>

#include <vector>

namespace radio::signal {

/// The per-antenna values of a signal metric: the members name-1 to name-8 in order, read as int,
/// up to the first one missing; when there is none, the member name itself if present; else none.
WLCCW_EXPORT std::vector<int> parse_numbered_parameters_from_netconf(lcw_data_t const* node,
                                                                     char const* name);

} // namespace radio::signal
