// What the bundled tree backend offers beyond the tree interface. The library calls it only when
// it is built with that backend (WLCCW_BUNDLED_TREE); a host's own backend need not have it.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/export.hpp>

/// Parses text and calls fn(element, ctx) for every element of the array at path (followed as
/// cfg_get_subtree_from_path follows it), in order, each element a root of its own that is
/// released when fn returns; nothing else of the text is built. True when the text is one whole
/// valid JSON text; when it is not, fn has been called for the elements before the fault. An
/// exception from fn stops the parse and propagates. False for a null text, path or fn.
WLCCW_EXPORT bool cfg_parse_array_elements(char const* text, char const* path,
                                           void (*fn)(lcw_data_t* element, void* ctx), void* ctx);
