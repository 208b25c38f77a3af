// The pieces shared by the AP monitoring list records (interfaces, Ethernet ports, neighbouring
// APs): each keeps a vector of per-entry objects that read and write themselves with the record's
// static from_json / to_json, travels in a shared pointer that is null when no list was received,
// and writes its entries as an array under a key or as a top-level compact array.
#pragma once

#include "detail/Dictionary.hpp"

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/common/containers.hpp>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace wlccw::detail {

/// The element reader of a list: the record's own reader of one entry, which never rejects one.
template <typename Record, typename Entry>
std::optional<Entry> list_entry_from_json(lcw_data_t& element) {
  return Record::from_json(element);
}

/// The element writer of a list: the record's own writer of one entry.
template <typename Record, typename Entry>
void list_entry_to_json(lcw_data_t& object, Entry const& entry) {
  Record::to_json(entry, object);
}

/// A new record holding the entries read, or null when no list was read.
template <typename Record, typename Entry>
std::shared_ptr<Record> list_record(std::optional<std::vector<Entry>>&& entries,
                                    std::vector<Entry> Record::*list) {
  if (!entries) {
    return nullptr;
  }
  std::shared_ptr<Record> record = std::make_shared<Record>();
  (*record).*list = std::move(*entries);
  return record;
}

/// Reads the array under key of node into the record's list, one entry per element in array
/// order: null when node has no such member or it cannot be iterated; an empty record for an
/// empty array.
template <typename Record, typename Entry>
std::shared_ptr<Record> read_list(lcw_data_t const& node, char const* key,
                                  std::vector<Entry> Record::*list) {
  return list_record(cfg_deserialize_container<std::vector<Entry>>(
                         cfg_get_subtree(&node, key), list_entry_from_json<Record, Entry>),
                     list);
}

/// Reads the compact text of a top-level array of entry objects: null for text that is not JSON
/// or whose root cannot be iterated.
template <typename Record, typename Entry>
std::shared_ptr<Record> read_list(std::string const& text, std::vector<Entry> Record::*list) {
  return list_record(
      cfg_deserialize_container<std::vector<Entry>>(text, list_entry_from_json<Record, Entry>),
      list);
}

/// Adds a new array under key to node and writes one object per entry into it, in list order.
/// Nothing is written when the array cannot be added (node is not an object).
template <typename Record, typename Entry>
void write_list(Record const& record, std::vector<Entry> Record::*list, lcw_data_t& node,
                char const* key) {
  cfg_fill_array_with_container<std::vector<Entry>>(
      cfg_insert_empty_array(&node, key), record.*list, list_entry_to_json<Record, Entry>);
}

/// The compact text of a top-level array of one object per entry, in list order; "[]" for an
/// empty list.
template <typename Record, typename Entry>
std::string list_text(Record const& record, std::vector<Entry> Record::*list) {
  return cfg_serialize_container_to_array_compact<std::vector<Entry>>(
      record.*list, list_entry_to_json<Record, Entry>);
}

/// The address under key: the default, invalid address when the member is missing, not a text or
/// not an address.
inline MacAddr mac_param(lcw_data_t const& object, char const* key) {
  return MacAddr::from_str(cfg_get_param(&object, key));
}

/// Writes the address under key in lower-case colon form, whatever its validity.
inline void set_mac_param(lcw_data_t& object, char const* key, MacAddr const& mac) {
  char text[18];
  mac.format(text);
  cfg_set_param(&object, key, text);
}

/// Writes the text of value under key; "" for a value outside the rows. The rows' texts are
/// literals, so their views are NUL-terminated and need no copy.
template <typename V, std::size_t N>
void set_table_text(lcw_data_t& object, char const* key, std::array<Row<V>, N> const& rows,
                    V value) {
  cfg_set_param(&object, key, text_of(rows, value).value_or("").data());
}

} // namespace wlccw::detail
