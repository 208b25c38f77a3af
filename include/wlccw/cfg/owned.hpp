/// \file
/// RAII owners over the tree interface: every root the library makes or parses is held by a Tree,
/// so an exception between making and releasing it cannot leak it; iterators likewise.
#pragma once

#include <wlccw/cfg/tree.hpp>

#include <memory>
#include <string>

/// The library's helpers over the tree interface of <wlccw/cfg/tree.hpp>.
namespace wlccw::cfg {

/// The deleter of Tree: releases a root with cfg_release().
struct TreeRelease {
  /// Releases root; null is ignored. Never throws.
  void operator()(lcw_data_t* root) const noexcept { cfg_release(root); }
};

/// Owner of a root node; releases it with cfg_release() when it goes out of scope. Own only roots
/// with it (cfg_release() ignores a borrowed node).
using Tree = std::unique_ptr<lcw_data_t, TreeRelease>;

/// Parses text into an owned root; null for a null text and for anything but one whole valid JSON
/// text.
inline Tree parse(char const* text) {
  return Tree(cfg_parse_buffer(text));
}
/// Parses text into an owned root; null for anything but one whole valid JSON text. The text ends
/// at its first NUL byte, if it holds one.
inline Tree parse(std::string const& text) {
  return Tree(cfg_parse_buffer(text.c_str()));
}
/// A new owned empty object; null when it cannot be made.
inline Tree make_object() {
  return Tree(cfg_get_empty());
}
/// A new owned empty array; null when it cannot be made.
inline Tree make_array() {
  return Tree(cfg_get_empty_array());
}

/// A copy of the node's compact text (cfg_serialize_compact()); "" for a null node.
inline std::string compact(lcw_data_t const* node) {
  if (node == nullptr) {
    return {};
  }
  return std::string(cfg_serialize_compact(node));
}

/// The deleter of ArrayIterator: releases a cursor with cfg_release_array_iterator().
struct ArrayIteratorRelease {
  /// Releases it; null is ignored. Never throws.
  void operator()(lcw_array_iterator_t* it) const noexcept { cfg_release_array_iterator(it); }
};
/// The deleter of ObjectIterator: releases a cursor with cfg_release_iterator().
struct ObjectIteratorRelease {
  /// Releases it; null is ignored. Never throws.
  void operator()(lcw_object_iterator_t* it) const noexcept { cfg_release_iterator(it); }
};
/// Owner of an array cursor from cfg_alloc_array_iterator().
using ArrayIterator = std::unique_ptr<lcw_array_iterator_t, ArrayIteratorRelease>;
/// Owner of an object cursor from cfg_alloc_iterator().
using ObjectIterator = std::unique_ptr<lcw_object_iterator_t, ObjectIteratorRelease>;

/// Calls fn(element) for every element of an array node, in order; nothing for a null node or a
/// node that is not an array. An exception from fn stops the walk and propagates; the cursor is
/// released.
template <typename Fn> void for_each_element(lcw_data_t const* array, Fn&& fn) {
  if (array == nullptr) {
    return;
  }
  ArrayIterator it(cfg_alloc_array_iterator(array));
  if (!it) {
    return;
  }
  while (lcw_data_t* element = cfg_next_array_iterator(it.get())) {
    fn(*element);
  }
}

/// Calls fn(key, member) for every member of an object node, in document order; nothing for a
/// null node or a node that is not an object. The key is the member's name as the tree holds it.
/// An exception from fn stops the walk and propagates; the cursor is released.
template <typename Fn> void for_each_member(lcw_data_t const* object, Fn&& fn) {
  if (object == nullptr) {
    return;
  }
  ObjectIterator it(cfg_alloc_iterator(object));
  if (!it) {
    return;
  }
  char const* key = nullptr;
  while (lcw_data_t* member = cfg_next_object_iterator(it.get(), &key)) {
    fn(key, *member);
  }
}

} // namespace wlccw::cfg
