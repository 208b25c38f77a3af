/// \file
/// Generic reading and writing of containers as JSON arrays over the tree interface.
#pragma once

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace wlccw::detail {

template <typename C, typename V> void container_add(C& container, V&& value) {
  if constexpr (requires { container.push_back(std::forward<V>(value)); }) {
    container.push_back(std::forward<V>(value)); // sequences keep array order
  } else {
    container.insert(std::forward<V>(value)); // sets and maps keep the first of equal keys
  }
}

} // namespace wlccw::detail

/// Reads an array node into a container: an empty optional for a null node or a node that cannot
/// be iterated (not an array); otherwise a container of every element that convert accepts, in
/// array order (elements it rejects are skipped, so an engaged empty container is possible). A
/// sequence appends; a set or map inserts, keeping the first of equal keys. Throws
/// std::bad_function_call for an empty convert when there is an element; an exception from
/// convert propagates.
template <typename C>
std::optional<C> cfg_deserialize_container(
    lcw_data_t* node,
    std::function<std::optional<typename C::value_type>(lcw_data_t&)> const& convert) {
  std::optional<C> result;
  if (node == nullptr) {
    return result;
  }
  wlccw::cfg::ArrayIterator it(cfg_alloc_array_iterator(node));
  if (!it) {
    return result;
  }
  result.emplace();
  while (lcw_data_t* element = cfg_next_array_iterator(it.get())) {
    if (!convert) {
      throw std::bad_function_call();
    }
    std::optional<typename C::value_type> value = convert(*element);
    if (value) {
      wlccw::detail::container_add(*result, std::move(*value));
    }
  }
  return result;
}

/// Parses text and reads its root array as the node form of cfg_deserialize_container does; an
/// empty optional for text that is not JSON (the empty text included) or whose root is not an
/// array. Throws like the node form.
template <typename C>
std::optional<C> cfg_deserialize_container(
    std::string const& text,
    std::function<std::optional<typename C::value_type>(lcw_data_t&)> const& convert) {
  wlccw::cfg::Tree root = wlccw::cfg::parse(text);
  if (!root) {
    return std::nullopt;
  }
  return cfg_deserialize_container<C>(root.get(), convert);
}

/// Appends one object per element of the container to an array node, in the container's
/// iteration order, and lets fill write it. Nothing for a null array (nothing thrown either, even
/// for an empty fill); an element whose object cannot be appended (the node is not an array) is
/// skipped. Throws std::bad_function_call for an empty fill when an element's object was
/// appended; an exception from fill propagates.
template <typename C>
void cfg_fill_array_with_container(
    lcw_data_t* array, C const& container,
    std::function<void(lcw_data_t&, typename C::value_type const&)> const& fill) {
  if (array == nullptr) {
    return;
  }
  for (auto const& element : container) {
    lcw_data_t* object = cfg_insert_empty_subtree(array, nullptr);
    if (object == nullptr) {
      continue;
    }
    if (!fill) {
      throw std::bad_function_call();
    }
    fill(*object, element);
  }
}

/// The compact text of an array holding one object per element, as cfg_fill_array_with_container
/// writes it: "[]" for an empty container, "" when no array can be made. Throws like
/// cfg_fill_array_with_container; the array is released in any case.
template <typename C>
std::string cfg_serialize_container_to_array_compact(
    C const& container,
    std::function<void(lcw_data_t&, typename C::value_type const&)> const& fill) {
  return cfg_create_string_compact(cfg_get_empty_array, [&](lcw_data_t& array) {
    cfg_fill_array_with_container<C>(&array, container, fill);
  });
}
