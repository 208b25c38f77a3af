// Board types and software versions of access points, passed between the controllers of a
// redundant pair as an IPC JSON array.
#include <wlccw/ipc/IpcMsgVrrpUpdateBoardTypes.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/containers.hpp>

#include <functional>
#include <optional>

std::string IpcMsgVrrpUpdateBoardTypes::to_str() const {
  return cfg_serialize_container_to_array_compact<Map>(
      aps, [](lcw_data_t& object, Map::value_type const& entry) { _to_json(entry, object); });
}

void IpcMsgVrrpUpdateBoardTypes::to_json(lcw_data_t& parent) const {
  cfg_fill_array_with_container<Map>(
      cfg_insert_empty_array(&parent, "aps"), aps,
      [](lcw_data_t& object, Map::value_type const& entry) { _to_json(entry, object); });
}

std::shared_ptr<IpcMsgVrrpUpdateBoardTypes>
IpcMsgVrrpUpdateBoardTypes::from_str(std::string const& text) {
  std::optional<Map> read = cfg_deserialize_container<Map>(
      text,
      [](lcw_data_t& element) -> std::optional<Map::value_type> { return _from_json(element); });
  if (!read) {
    return nullptr;
  }
  auto message = std::make_shared<IpcMsgVrrpUpdateBoardTypes>();
  message->aps = std::move(*read);
  return message;
}

std::shared_ptr<IpcMsgVrrpUpdateBoardTypes>
IpcMsgVrrpUpdateBoardTypes::from_json(lcw_data_t& parent) {
  std::optional<Map> read = cfg_deserialize_container<Map>(
      cfg_get_subtree(&parent, "aps"),
      [](lcw_data_t& element) -> std::optional<Map::value_type> { return _from_json(element); });
  if (!read) {
    return nullptr;
  }
  auto message = std::make_shared<IpcMsgVrrpUpdateBoardTypes>();
  message->aps = std::move(*read);
  return message;
}

void IpcMsgVrrpUpdateBoardTypes::_to_json(Map::value_type const& entry, lcw_data_t& object) {
  char mac[18];
  entry.first.format(mac);
  cfg_set_param(&object, "mac", mac);
  cfg_set_param(&object, "board-type", entry.second.board_type.c_str());
  cfg_set_param(&object, "sw-version", entry.second.sw_version.c_str());
}

std::pair<MacAddr, IpcMsgVrrpUpdateBoardTypes::BoardTypeDesc>
IpcMsgVrrpUpdateBoardTypes::_from_json(lcw_data_t const& element) {
  // A missing or malformed "mac" reads as "" or fails to parse: the all-zero address.
  return {
      MacAddr::from_str(cfg_get_param(&element, "mac")),
      BoardTypeDesc{cfg_get_param(&element, "board-type"), cfg_get_param(&element, "sw-version")}};
}
