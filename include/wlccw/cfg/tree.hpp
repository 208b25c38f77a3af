// The configuration-tree interface: the host process's JSON tree library as the records use it.
//
// Nodes are opaque. A root made by cfg_parse_buffer, cfg_get_empty or cfg_get_empty_array belongs
// to its caller and is freed with cfg_release; every other node (from a lookup, an insert or an
// iterator) is borrowed from its root and stays valid until that root is released. Texts returned
// as `char const*` stay valid at least until the next operation on the same tree.
//
// libwlccw only calls these functions. libwlccw_cfgtree implements them on Boost.JSON; a host with
// a tree library of its own links that instead.
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

// ---- Creating, parsing, serialising and releasing trees ----------------------------------------

/// A new empty object owned by the caller; null when it cannot be made.
WLCCW_EXPORT lcw_data_t* cfg_get_empty();
/// A new empty array owned by the caller; null when it cannot be made.
WLCCW_EXPORT lcw_data_t* cfg_get_empty_array();
/// The root of the parsed text, owned by the caller; null unless the text is one whole valid JSON
/// text (a null pointer is no text).
WLCCW_EXPORT lcw_data_t* cfg_parse_buffer(char const* text);
/// The node's JSON text without whitespace between tokens; "" for a null node.
WLCCW_EXPORT char const* cfg_serialize_compact(lcw_data_t const* node);
/// Calls make_root once, fill on the new root, and returns the root's compact text after releasing
/// it; "" when make_root yields null. Throws std::bad_function_call for an empty fill.
WLCCW_EXPORT std::string cfg_create_string_compact(std::function<lcw_data_t*()> const& make_root,
                                                   std::function<void(lcw_data_t&)> const& fill);
/// Frees a root owned by the caller; null is accepted and ignored.
WLCCW_EXPORT void cfg_release(lcw_data_t* root);
/// Nonzero when the node holds no member or element (a scalar or null node holds none).
WLCCW_EXPORT int cfg_is_empty(lcw_data_t const* node);

// ---- Reading members of an object --------------------------------------------------------------
// A member that is missing, or of a node that is not an object, reads as missing: "" for
// cfg_get_param, 0 for the numeric and boolean readers, an empty optional for the _opt readers.
// Integer readers take a JSON integer or a string that is one whole decimal integer; a value that
// does not fit the reader's type reads as missing.

WLCCW_EXPORT int cfg_contain_param(lcw_data_t const* node, char const* key);
/// The text of a scalar member (a number's decimal text, "true"/"false"); never null.
WLCCW_EXPORT char const* cfg_get_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT int cfg_get_boolean_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT int cfg_get_int_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT unsigned int cfg_get_uint_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT std::uint8_t cfg_get_uint8_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT std::uint16_t cfg_get_uint16_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT std::uint32_t cfg_get_uint32_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT std::uint64_t cfg_get_uint64_param(lcw_data_t const* node, char const* key);
WLCCW_EXPORT signed char cfg_get_int8_param_with_custom_default(lcw_data_t const* node,
                                                                char const* key, signed char def);
WLCCW_EXPORT std::optional<std::string> cfg_get_param_opt(lcw_data_t const* node, char const* key);
WLCCW_EXPORT std::optional<bool> cfg_get_boolean_param_opt(lcw_data_t const* node, char const* key);
WLCCW_EXPORT std::optional<unsigned char> cfg_get_uint8_param_opt(lcw_data_t const* node,
                                                                  char const* key);
WLCCW_EXPORT std::optional<unsigned int> cfg_get_uint32_param_opt(lcw_data_t const* node,
                                                                  char const* key);
WLCCW_EXPORT std::optional<short> cfg_get_int16_param_opt(lcw_data_t const* node, char const* key);
WLCCW_EXPORT std::optional<int> cfg_get_int32_param_opt(lcw_data_t const* node, char const* key);
/// The member node (borrowed); null when missing.
WLCCW_EXPORT lcw_data_t* cfg_get_subtree(lcw_data_t const* node, char const* key);
/// The node at a "/"-separated path of member names below node, such as
/// "/rpc-reply/data/monitoring"; null when any step is missing.
WLCCW_EXPORT lcw_data_t* cfg_get_subtree_from_path(lcw_data_t const* node, char const* path);

// ---- Reading a scalar node itself (array elements) ----------------------------------------------

/// The text of a scalar node, by the rules of cfg_get_param; never null.
WLCCW_EXPORT char const* cfg_object_to_string(lcw_data_t const* node);
/// The node's integer (a JSON integer or a decimal string) if it fits an int; empty otherwise.
WLCCW_EXPORT std::optional<int> cfg_object_to_int_opt(lcw_data_t const* node);

// ---- Writing members of an object ---------------------------------------------------------------
// A member that exists is replaced in place (it keeps its position); a new one is appended. Writing
// to a node that is not an object does nothing. The _opt writers write nothing for an empty
// optional.

WLCCW_EXPORT void cfg_set_param(lcw_data_t* node, char const* key, char const* value);
WLCCW_EXPORT void cfg_set_boolean_param(lcw_data_t* node, char const* key, bool value);
WLCCW_EXPORT void cfg_set_int_param(lcw_data_t* node, char const* key, int value);
WLCCW_EXPORT void cfg_set_int32_param(lcw_data_t* node, char const* key, std::int32_t value);
WLCCW_EXPORT void cfg_set_uint_param(lcw_data_t* node, char const* key, unsigned int value);
WLCCW_EXPORT void cfg_set_uint8_param(lcw_data_t* node, char const* key, std::uint8_t value);
WLCCW_EXPORT void cfg_set_uint16_param(lcw_data_t* node, char const* key, std::uint16_t value);
WLCCW_EXPORT void cfg_set_uint32_param(lcw_data_t* node, char const* key, std::uint32_t value);
WLCCW_EXPORT void cfg_set_uint64_param(lcw_data_t* node, char const* key, std::uint64_t value);
WLCCW_EXPORT void cfg_set_param_opt(lcw_data_t* node, char const* key,
                                    std::optional<std::string> const& value);
WLCCW_EXPORT void cfg_set_boolean_param_opt(lcw_data_t* node, char const* key,
                                            std::optional<bool> const& value);
WLCCW_EXPORT void cfg_set_int8_param_opt(lcw_data_t* node, char const* key,
                                         std::optional<signed char> const& value);
WLCCW_EXPORT void cfg_set_int16_param_opt(lcw_data_t* node, char const* key,
                                          std::optional<short> const& value);
WLCCW_EXPORT void cfg_set_uint8_param_opt(lcw_data_t* node, char const* key,
                                          std::optional<unsigned char> const& value);
WLCCW_EXPORT void cfg_set_uint32_param_opt(lcw_data_t* node, char const* key,
                                           std::optional<unsigned int> const& value);

// ---- Inserting sub-trees and elements (results are borrowed; null on failure) -------------------
// With a key, the operation sets that member of an object (an existing member is replaced in
// place); with a null key, it appends to an array. Any other combination fails and changes nothing.

/// Inserts a deep copy of child as member key of an object, or appends it to an array when key is
/// null. The caller keeps and releases child.
WLCCW_EXPORT lcw_data_t* cfg_insert_child(lcw_data_t* parent, char const* key,
                                          lcw_data_t const* child);
/// Appends a string to an array (key null), or sets member key of an object.
WLCCW_EXPORT lcw_data_t* cfg_insert_child_string(lcw_data_t* parent, char const* key,
                                                 char const* value);
/// Appends an integer to an array (key null), or sets member key of an object.
WLCCW_EXPORT lcw_data_t* cfg_insert_child_int(lcw_data_t* parent, char const* key, int value);
/// A new empty object as member key; appended as the next array element when key is null.
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_subtree(lcw_data_t* parent, char const* key);
/// A new empty array as member key; appended as the next array element when key is null.
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_array(lcw_data_t* parent, char const* key);
/// The existing member key if there is one, otherwise a new empty object.
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_subtree_or_exists(lcw_data_t* parent, char const* key);
/// The existing member key if there is one, otherwise a new empty array.
WLCCW_EXPORT lcw_data_t* cfg_insert_empty_array_or_exists(lcw_data_t* parent, char const* key);

// ---- Iterating ----------------------------------------------------------------------------------

/// A cursor over the elements of an array; null when the node is not an array.
WLCCW_EXPORT lcw_array_iterator_t* cfg_alloc_array_iterator(lcw_data_t const* array);
/// The next element (borrowed) in array order; null after the last.
WLCCW_EXPORT lcw_data_t* cfg_next_array_iterator(lcw_array_iterator_t* it);
WLCCW_EXPORT void cfg_release_array_iterator(lcw_array_iterator_t* it);
/// A cursor over the members of an object; null when the node is not an object.
WLCCW_EXPORT lcw_object_iterator_t* cfg_alloc_iterator(lcw_data_t const* object);
/// The next member (borrowed) in document order, its key written through key; null after the
/// last.
WLCCW_EXPORT lcw_data_t* cfg_next_object_iterator(lcw_object_iterator_t* it, char const** key);
WLCCW_EXPORT void cfg_release_iterator(lcw_object_iterator_t* it);
/// Calls fn(element, ctx) for every element of an array in order; nothing for any other node.
WLCCW_EXPORT void cfg_iterate_array(lcw_data_t const* array, void (*fn)(lcw_data_t const*, void*),
                                    void* ctx);
