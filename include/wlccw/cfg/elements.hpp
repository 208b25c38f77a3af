/// \file
/// Reading the elements of one array of a large JSON text, such as the clients of an AP's reply,
/// without holding the whole text's tree.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/export.hpp>

#include <functional>

namespace wlccw::cfg {

/// Calls fn(element) for every element of the array at path in text, in array order. The path is
/// followed as cfg_get_subtree_from_path follows it in the parsed text ("/rpc-reply/data/clients";
/// member names in order, the first member of each name; no name at all means the text's root);
/// nothing is called when the path leads nowhere or not to an array.
///
/// Returns true when text is one whole valid JSON text, false otherwise (also for a null text or
/// path). An element is valid only during its call.
///
/// With the bundled tree backend each element is parsed into a tree of its own and released after
/// its call, and nothing else of the text is built: memory stays at one element's tree however
/// long the array. Because the text is read once, front to back, fn has been called for the
/// elements before a fault when the result is false: a caller that wants all or nothing keeps
/// what it made and drops it on false. With another backend the text is parsed whole first, and
/// fn is not called for an invalid text.
///
/// An exception from fn stops the reading and propagates; nothing leaks. Throws
/// std::bad_function_call for an empty fn, before anything else is looked at.
WLCCW_EXPORT bool for_each_array_element(char const* text, char const* path,
                                         std::function<void(lcw_data_t&)> const& fn);

} // namespace wlccw::cfg
