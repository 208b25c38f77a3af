/// \file
/// The configuration-tree interface: the host process's JSON tree library as the records use it.
///
/// Nodes are opaque. A root made by cfg_parse_buffer(), cfg_get_empty() or cfg_get_empty_array()
/// belongs to its caller and is freed with cfg_release(); every other node (from a lookup, an
/// insert or an iterator) is borrowed from its root and stays valid until that root is released.
/// Texts returned as `char const*` stay valid at least until the next operation on the same tree.
/// A tree is used by one thread at a time; distinct trees may be used from distinct threads.
///
/// libwlccw only calls these functions. libwlccw_cfgtree implements them on Boost.JSON; a host with
/// a tree library of its own links that instead. What this reference states for bad input is what
/// the bundled implementation does. None of the functions throws, except where a comment says so
/// and when memory runs out.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// An opaque tree node: an object, an array or a scalar (string, number, boolean, null).
struct lcw_data_t;
/// An opaque cursor over the elements of an array.
struct lcw_array_iterator_t;
/// An opaque cursor over the members of an object.
struct lcw_object_iterator_t;

/// \name Creating, parsing, serialising and releasing trees
/// @{

/// A new empty object owned by the caller; null when it cannot be made (out of memory).
WLCCW_EXPORT lcw_data_t* cfg_get_empty();
/// A new empty array owned by the caller; null when it cannot be made (out of memory).
WLCCW_EXPORT lcw_data_t* cfg_get_empty_array();
/// The root of the parsed text, owned by the caller; null unless the text is one whole valid JSON
/// text (a null pointer, an empty text, trailing garbage, a second text, comments or trailing
/// commas all give null). Strings may hold any bytes, invalid UTF-8 included; nesting deeper than
/// 512 levels gives null.
WLCCW_EXPORT lcw_data_t* cfg_parse_buffer(char const* text);
/// The node's JSON text without whitespace between tokens, members in document or insertion
/// order; "" for a null node. The text stays valid until the next serialisation of the same tree
/// or the release of its root.
WLCCW_EXPORT char const* cfg_serialize_compact(lcw_data_t const* node);
/// Calls make_root once, fill on the new root, and returns the root's compact text after releasing
/// it; "" when make_root yields null (fill is then not called). Throws std::bad_function_call for
/// an empty make_root, and for an empty fill once a root was made; an exception from fill
/// propagates after the root is released.
WLCCW_EXPORT std::string cfg_create_string_compact(std::function<lcw_data_t*()> const& make_root,
                                                   std::function<void(lcw_data_t&)> const& fill);
/// Frees a root owned by the caller, with every node borrowed from it. Null is accepted and
/// ignored, and so is a node that is not a root (it lives as long as its root).
WLCCW_EXPORT void cfg_release(lcw_data_t* root);
/// Nonzero when the node holds no member or element: an empty object or array, a scalar, a JSON
/// null or a null pointer; 0 for an object or array with something in it.
WLCCW_EXPORT int cfg_is_empty(lcw_data_t const* node);

/// @}

/// \name Reading members of an object
/// A member that is missing, or of a node that is not an object (a null node or key included),
/// reads as missing: "" for cfg_get_param(), 0 for the numeric and boolean readers, an empty
/// optional for the _opt readers. Integer readers take a JSON integer or a string that is one
/// whole decimal integer with an optional leading "-" ("rx-bytes":"123" reads as 123); anything
/// else (a fraction, "12abc", " 12", a boolean, an object) and a value that does not fit the
/// reader's type (negative for an unsigned reader, too large) reads as missing. Member names are
/// compared byte for byte; only the node's own members are searched.
/// @{

/// Nonzero when the object has a member of that name, whatever its value (JSON null included).
WLCCW_EXPORT int cfg_contain_param(lcw_data_t const* node, char const* key);
/// The text of a scalar member: a string's bytes, a number's text as it was read or written,
/// "true"/"false" for a boolean; "" for an object, array or JSON null member and when missing.
/// Never null.
WLCCW_EXPORT char const* cfg_get_param(lcw_data_t const* node, char const* key);
/// 1 when the member is JSON true; 0 for false, for any other value and when missing.
WLCCW_EXPORT int cfg_get_boolean_param(lcw_data_t const* node, char const* key);
/// The member as an int; 0 when missing or not an int.
WLCCW_EXPORT int cfg_get_int_param(lcw_data_t const* node, char const* key);
/// The member as an unsigned int; 0 when missing or not an unsigned int.
WLCCW_EXPORT unsigned int cfg_get_uint_param(lcw_data_t const* node, char const* key);
/// The member as an 8-bit unsigned integer (0 to 255); 0 when missing or outside.
WLCCW_EXPORT std::uint8_t cfg_get_uint8_param(lcw_data_t const* node, char const* key);
/// The member as a 16-bit unsigned integer (0 to 65535); 0 when missing or outside.
WLCCW_EXPORT std::uint16_t cfg_get_uint16_param(lcw_data_t const* node, char const* key);
/// The member as a 32-bit unsigned integer; 0 when missing or outside.
WLCCW_EXPORT std::uint32_t cfg_get_uint32_param(lcw_data_t const* node, char const* key);
/// The member as a 64-bit unsigned integer (RFC 7951 texts such as "18446744073709551615"
/// included); 0 when missing or outside.
WLCCW_EXPORT std::uint64_t cfg_get_uint64_param(lcw_data_t const* node, char const* key);
/// The member as a signed char (-128 to 127); def when missing or outside.
WLCCW_EXPORT signed char cfg_get_int8_param_with_custom_default(lcw_data_t const* node,
                                                                char const* key, signed char def);
/// The text of a scalar member, as cfg_get_param() gives it; empty for an object, array or JSON
/// null member and when missing. A string member "" gives "", not an empty optional.
WLCCW_EXPORT std::optional<std::string> cfg_get_param_opt(lcw_data_t const* node, char const* key);
/// The member's JSON true or false; empty for any other value and when missing.
WLCCW_EXPORT std::optional<bool> cfg_get_boolean_param_opt(lcw_data_t const* node, char const* key);
/// The member as an 8-bit unsigned integer; empty when missing or outside 0 to 255.
WLCCW_EXPORT std::optional<unsigned char> cfg_get_uint8_param_opt(lcw_data_t const* node,
                                                                  char const* key);
/// The member as a 32-bit unsigned integer; empty when missing or outside.
WLCCW_EXPORT std::optional<unsigned int> cfg_get_uint32_param_opt(lcw_data_t const* node,
                                                                  char const* key);
/// The member as a 16-bit signed integer; empty when missing or outside -32768 to 32767.
WLCCW_EXPORT std::optional<short> cfg_get_int16_param_opt(lcw_data_t const* node, char const* key);
/// The member as a 32-bit signed integer; empty when missing or outside.
WLCCW_EXPORT std::optional<int> cfg_get_int32_param_opt(lcw_data_t const* node, char const* key);
/// The member node (borrowed), of any kind; null when missing.
WLCCW_EXPORT lcw_data_t* cfg_get_subtree(lcw_data_t const* node, char const* key);
/// The node (borrowed) at a "/"-separated path of member names below node, such as
/// "/rpc-reply/data/monitoring", each step taking the member of that name; empty names (leading,
/// doubled or trailing slashes) are skipped, so a path without a name gives node itself. Null
/// when node or path is null or any step is missing.
WLCCW_EXPORT lcw_data_t* cfg_get_subtree_from_path(lcw_data_t const* node, char const* path);

/// @}

/// \name Reading a scalar node itself (array elements)
/// @{

/// The text of a scalar node, by the rules of cfg_get_param(); "" for a null node. Never null.
WLCCW_EXPORT char const* cfg_object_to_string(lcw_data_t const* node);
/// The node's integer (a JSON integer or a whole decimal string) if it fits an int; empty for a
/// null node, any other value or a value outside int.
WLCCW_EXPORT std::optional<int> cfg_object_to_int_opt(lcw_data_t const* node);

/// @}

/// \name Writing members of an object
/// A member that exists is replaced in place (it keeps its position); a new one is appended.
/// Writing with a key to a node that is not an object does nothing, and so does a null key given
/// with an object; the bundled backend appends the value as a new element to an array given with
/// a null key. Integers of every width are written as JSON numbers. The _opt writers write nothing
/// for an empty optional.
/// @{

/// Sets the member to the string value; a null value writes "".
WLCCW_EXPORT void cfg_set_param(lcw_data_t* node, char const* key, char const* value);
/// Sets the member to JSON true or false.
WLCCW_EXPORT void cfg_set_boolean_param(lcw_data_t* node, char const* key, bool value);
/// Sets the member to the number value.
WLCCW_EXPORT void cfg_set_int_param(lcw_data_t* node, char const* key, int value);
/// Sets the member to the number value.
WLCCW_EXPORT void cfg_set_int32_param(lcw_data_t* node, char const* key, std::int32_t value);
/// Sets the member to the number value.
WLCCW_EXPORT void cfg_set_uint_param(lcw_data_t* node, char const* key, unsigned int value);
/// Sets the member to the number value.
WLCCW_EXPORT void cfg_set_uint8_param(lcw_data_t* node, char const* key, std::uint8_t value);
/// Sets the member to the number value.
WLCCW_EXPORT void cfg_set_uint16_param(lcw_data_t* node, char const* key, std::uint16_t value);
/// Sets the member to the number value.
WLCCW_EXPORT void cfg_set_uint32_param(lcw_data_t* node, char const* key, std::uint32_t value);
/// Sets the member to the number value (a JSON number, not a string, even beyond 2^53).
WLCCW_EXPORT void cfg_set_uint64_param(lcw_data_t* node, char const* key, std::uint64_t value);
/// Sets the member to the string value when there is one.
WLCCW_EXPORT void cfg_set_param_opt(lcw_data_t* node, char const* key,
                                    std::optional<std::string> const& value);
/// Sets the member to JSON true or false when there is a value.
WLCCW_EXPORT void cfg_set_boolean_param_opt(lcw_data_t* node, char const* key,
                                            std::optional<bool> const& value);
/// Sets the member to the number value when there is one.
WLCCW_EXPORT void cfg_set_int8_param_opt(lcw_data_t* node, char const* key,
                                         std::optional<signed char> const& value);
/// Sets the member to the number value when there is one.
WLCCW_EXPORT void cfg_set_int16_param_opt(lcw_data_t* node, char const* key,
                                          std::optional<short> const& value);
/// Sets the member to the number value when there is one.
WLCCW_EXPORT void cfg_set_uint8_param_opt(lcw_data_t* node, char const* key,
                                          std::optional<unsigned char> const& value);
/// Sets the member to the number value when there is one.
WLCCW_EXPORT void cfg_set_uint32_param_opt(lcw_data_t* node, char const* key,
                                           std::optional<unsigned int> const& value);

/// @}

/// \name Inserting sub-trees and elements
/// Results are borrowed from the parent's root; null on failure. With a key, the operation sets
/// that member of an object (an existing member is replaced in place); with a null key, it appends
/// to an array. Any other combination (a key with an array, a null key with an object, a scalar
/// or null parent) fails and changes nothing.
/// @{

/// Inserts a deep copy of child as member key of an object, or appends it to an array when key is
/// null. The caller keeps and releases child; inserting a tree into itself copies the tree as it
/// was before. Null, changing nothing, for a null child.
WLCCW_EXPORT lcw_data_t* cfg_insert_child(lcw_data_t* parent, char const* key,
                                          lcw_data_t const* child);
/// Appends a string to an array (key null), or sets member key of an object; a null value writes
/// "". Returns the node that now holds the string.
WLCCW_EXPORT lcw_data_t* cfg_insert_child_string(lcw_data_t* parent, char const* key,
                                                 char const* value);
/// Appends a number to an array (key null), or sets member key of an object. Returns the node
/// that now holds the number.
WLCCW_EXPORT lcw_data_t* cfg_insert_child_int(lcw_data_t* parent, char const* key, int value);
/// A new empty object as member key (an existing member of that name becomes the empty object);
/// appended as the next array element when key is null.
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_subtree(lcw_data_t* parent, char const* key);
/// A new empty array as member key (an existing member of that name becomes the empty array);
/// appended as the next array element when key is null.
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_array(lcw_data_t* parent, char const* key);
/// The existing member key, untouched and of whatever kind, if there is one; otherwise
/// cfg_insert_empty_subtree().
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_subtree_or_exists(lcw_data_t* parent, char const* key);
/// The existing member key, untouched and of whatever kind, if there is one; otherwise
/// cfg_insert_empty_array().
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_array_or_exists(lcw_data_t* parent, char const* key);

/// @}

/// \name Iterating
/// Iterators are owned by the caller and released with their own release function; the nodes
/// they yield are borrowed from the tree. wlccw::cfg::for_each_element() and
/// wlccw::cfg::for_each_member() do all of this safely.
/// @{

/// A new cursor over the elements of an array; null when the node is null or not an array (or
/// memory runs out).
WLCCW_EXPORT lcw_array_iterator_t* cfg_alloc_array_iterator(lcw_data_t const* array);
/// The next element (borrowed) in array order; null after the last and for a null cursor.
WLCCW_EXPORT lcw_data_t* cfg_next_array_iterator(lcw_array_iterator_t* it);
/// Frees an array cursor; null is accepted and ignored.
WLCCW_EXPORT void cfg_release_array_iterator(lcw_array_iterator_t* it);
/// A new cursor over the members of an object; null when the node is null or not an object (or
/// memory runs out).
WLCCW_EXPORT lcw_object_iterator_t* cfg_alloc_iterator(lcw_data_t const* object);
/// The next member (borrowed) in document order, its name written through key unless key is
/// null; null after the last and for a null cursor. The name lives as long as the tree.
WLCCW_EXPORT lcw_data_t* cfg_next_object_iterator(lcw_object_iterator_t* it, char const** key);
/// Frees an object cursor; null is accepted and ignored.
WLCCW_EXPORT void cfg_release_iterator(lcw_object_iterator_t* it);
/// Calls fn(element, ctx) for every element of an array in order; nothing for a null fn or for any
/// node that is not an array.
WLCCW_EXPORT void cfg_iterate_array(lcw_data_t const* array, void (*fn)(lcw_data_t const*, void*),
                                    void* ctx);

/// @}
