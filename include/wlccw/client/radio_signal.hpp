/// \file
/// Per-antenna signal readings of an AP's NETCONF client object.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/export.hpp>

#include <vector>

/// Reading per-antenna signal metrics.
namespace radio::signal {

/// The per-antenna values of a signal metric: the members name-1 to name-8 ("rssi-1", ...) in
/// order, up to the first one missing; when there is none, the member name itself if present;
/// else none. A member that is not an integer fitting int reads as 0. Empty for a null name or a
/// node that is no object.
WLCCW_EXPORT std::vector<int> parse_numbered_parameters_from_netconf(lcw_data_t const* node,
                                                                     char const* name);

} // namespace radio::signal
