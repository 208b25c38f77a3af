// The host's own tree library: every function of <wlccw/cfg/tree.hpp>, implemented in
// host_tree.cpp. libwlccw's tree calls reach it because this program defines them.
#pragma once

#include <cstddef>

namespace host_tree {

/// How many texts this tree library has serialised so far (cfg_serialize_compact calls).
extern std::size_t serialisations;

} // namespace host_tree
