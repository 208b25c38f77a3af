// What the bundled tree backend offers beyond the tree interface, and how the library learns at
// run time whether that backend is the one in use. libwlccw does not depend on the bundled backend:
// a host may link its own implementation of the tree interface instead, which need not have these.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/export.hpp>

extern "C" {

/// Parses text and calls fn(element, ctx) for every element of the array at path (followed as
/// cfg_get_subtree_from_path follows it), in order, each element a root of its own that is
/// released when fn returns; nothing else of the text is built. True when the text is one whole
/// valid JSON text; when it is not, fn has been called for the elements before the fault. An
/// exception from fn stops the parse and propagates. False for a null text, path or fn.
/// Exported by the bundled backend only; C linkage, so the library can look for it by name.
WLCCW_EXPORT bool cfg_parse_array_elements(char const* text, char const* path,
                                           void (*fn)(lcw_data_t* element, void* ctx), void* ctx);
}

namespace wlccw::detail {

/// Whether the tree interface in use is the bundled backend's: the process has it loaded and its
/// serialiser is the one the library's cfg_* calls reach (a host's own backend linked ahead of it
/// would take those calls). Only then may the library write texts the way that backend serialises
/// them and call cfg_parse_array_elements. Decided once per process.
bool bundled_tree() noexcept;

/// cfg_parse_array_elements of the bundled backend; call it only when bundled_tree() is true. The
/// library reaches the extension through this function alone, so that the one reference to it,
/// in bundled_tree.cpp, is weak and a program without the bundled backend still links and loads.
bool parse_array_elements(char const* text, char const* path,
                          void (*fn)(lcw_data_t* element, void* ctx), void* ctx);

} // namespace wlccw::detail
