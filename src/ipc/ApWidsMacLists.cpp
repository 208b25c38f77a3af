#include <wlccw/ipc/ApWidsMacLists.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/containers.hpp>

#include <functional>
#include <optional>
#include <utility>

namespace {

using MacSet = std::unordered_set<MacAddr>;

/// An element of an address array: its text parsed as a MAC address. Never rejects, so an element
/// that is no address is kept as the default value.
std::optional<MacAddr> mac_from_element(lcw_data_t& element) {
  return MacAddr::from_str(cfg_object_to_string(&element));
}

/// The address list under key of an IPC object; empty when the key is missing or not an array.
MacSet read_list(lcw_data_t const* root, char const* key) {
  std::optional<MacSet> list =
      cfg_deserialize_container<MacSet>(cfg_get_subtree(root, key), mac_from_element);
  return list ? std::move(*list) : MacSet{};
}

/// The compact text of one list's array; "" when the array cannot be made.
std::string netconf_serialize(MacSet const& list) {
  wlccw::cfg::Tree const array(get_mac_list_json(list));
  if (!array) {
    return {};
  }
  return wlccw::cfg::compact(array.get());
}

} // namespace

lcw_data_t* get_mac_list_json(std::unordered_set<MacAddr> const& list) {
  wlccw::cfg::Tree array = wlccw::cfg::make_array();
  if (!array) {
    return nullptr;
  }
  char text[18];
  for (MacAddr const& mac : list) {
    mac.format(text);
    cfg_insert_child_string(array.get(), nullptr, text);
  }
  return array.release();
}

void ApWidsMacLists::set_white_list(std::unordered_set<MacAddr> const& list) {
  white_list = list;
}

void ApWidsMacLists::set_black_list(std::unordered_set<MacAddr> const& list) {
  black_list = list;
}

std::string ApWidsMacLists::ipc_serialize() const {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  if (!root) {
    return {};
  }
  // The arrays are copied into the root; their owners release them before the root.
  wlccw::cfg::Tree const white(get_mac_list_json(white_list));
  if (white) {
    cfg_insert_child(root.get(), "white-list", white.get());
  }
  wlccw::cfg::Tree const black(get_mac_list_json(black_list));
  if (black) {
    cfg_insert_child(root.get(), "black-list", black.get());
  }
  return wlccw::cfg::compact(root.get());
}

ApWidsMacLists ApWidsMacLists::ipc_deserialize(std::string const& text) {
  ApWidsMacLists lists;
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return lists;
  }
  lists.white_list = read_list(root.get(), "white-list");
  lists.black_list = read_list(root.get(), "black-list");
  return lists;
}

std::size_t ApWidsMacLists::get_hash() const {
  return std::hash<std::string>{}(ipc_serialize());
}

std::string ApWidsMacLists::netconf_serialize_white_list() const {
  return netconf_serialize(white_list);
}

std::string ApWidsMacLists::netconf_serialize_black_list() const {
  return netconf_serialize(black_list);
}
