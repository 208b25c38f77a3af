// Opaque JSON members carried as compact text inside a record (the parameters of a request, the
// data of a response): taken out of a tree as text and put back as their parse.
#pragma once

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <string>

namespace wlccw::detail {

/// The compact text of member key of node, whatever kind of JSON it holds; "" when it is missing.
inline std::string member_json_text(lcw_data_t const* node, char const* key) {
  lcw_data_t const* const member = cfg_get_subtree(node, key);
  if (member == nullptr) {
    return {};
  }
  return std::string(cfg_serialize_compact(member));
}

/// Sets member key of node to the parse of text: an empty object for "", nothing for text that is
/// not JSON.
inline void insert_json_text(lcw_data_t* node, char const* key, std::string const& text) {
  if (text.empty()) {
    cfg_insert_empty_subtree(node, key);
    return;
  }
  wlccw::cfg::Tree const parsed = wlccw::cfg::parse(text);
  if (parsed) {
    cfg_insert_child(node, key, parsed.get());
  }
}

} // namespace wlccw::detail
