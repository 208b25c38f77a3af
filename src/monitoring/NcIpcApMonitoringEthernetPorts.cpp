// The Ethernet port list of an AP: one object per port, the same in the AP's NETCONF data and in
// IPC messages.
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>

#include "detail/Dictionary.hpp"
#include "detail/link_tables.hpp"
#include "detail/monitoring_list.hpp"

#include <cctype>
#include <string_view>

namespace {

using Info = NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo;

constexpr char const* list_key = "ethernet-ports";

// This record's own text-to-value lookups, built at compile time from the shared rows.
constexpr auto operstate_dictionary = wlccw::detail::make_dictionary(wlccw::detail::operstate_rows);
constexpr auto duplex_dictionary = wlccw::detail::make_dictionary(wlccw::detail::duplex_rows);

/// The duplex of a port: the AP reports a full-duplex link as "enabled" and a half-duplex one as
/// "disabled"; the table's own texts are read too. These two words are never written back.
WLCBT_DUPLEX_MODE duplex_from_text(std::string_view text) noexcept {
  if (text == "enabled") {
    return WLCBT_DUPLEX_MODE::FULL;
  }
  if (text == "disabled") {
    return WLCBT_DUPLEX_MODE::HALF;
  }
  return duplex_dictionary.find(text).value_or(WLCBT_DUPLEX_MODE::UNNAMED);
}

/// The text with every byte folded by std::tolower (the letters A to Z in the default locale).
std::string lower_case(char const* text) {
  std::string folded(text);
  for (char& c : folded) {
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return folded;
}

} // namespace

std::shared_ptr<NcIpcApMonitoringEthernetPorts>
NcIpcApMonitoringEthernetPorts::from_netconf(lcw_data_t& node) {
  return wlccw::detail::read_list(node, list_key, &NcIpcApMonitoringEthernetPorts::ethernet_ports);
}

std::shared_ptr<NcIpcApMonitoringEthernetPorts>
NcIpcApMonitoringEthernetPorts::from_ipc(lcw_data_t& node) {
  return from_netconf(node);
}

void NcIpcApMonitoringEthernetPorts::to_ipc(lcw_data_t& node) const {
  wlccw::detail::write_list(*this, &NcIpcApMonitoringEthernetPorts::ethernet_ports, node, list_key);
}

std::string NcIpcApMonitoringEthernetPorts::to_ipc() const {
  return wlccw::detail::list_text(*this, &NcIpcApMonitoringEthernetPorts::ethernet_ports);
}

Info NcIpcApMonitoringEthernetPorts::from_json(lcw_data_t& object) {
  Info info;
  info.name = lower_case(cfg_get_param(&object, "name"));
  info.logical_interface = cfg_get_param(&object, "logical-interface");
  info.mac_address = wlccw::detail::mac_param(object, "mac-address");
  info.link =
      operstate_dictionary.find(cfg_get_param(&object, "link")).value_or(WLCBT_OPERSTATE::UNNAMED);
  info.speed = cfg_get_uint32_param(&object, "speed");
  info.duplex = duplex_from_text(cfg_get_param(&object, "duplex"));
  info.media_type = cfg_get_param(&object, "media-type");
  info.uptime = cfg_get_uint32_param(&object, "uptime");
  info.rx_bytes = cfg_get_uint64_param(&object, "rx-bytes");
  info.rx_packets = cfg_get_uint64_param(&object, "rx-packets");
  info.tx_bytes = cfg_get_uint64_param(&object, "tx-bytes");
  info.tx_packets = cfg_get_uint64_param(&object, "tx-packets");
  return info;
}

void NcIpcApMonitoringEthernetPorts::to_json(ApEthernetPortInfo const& info, lcw_data_t& object) {
  // "logical-interface" goes before "mac-address" on the wire.
  cfg_set_param(&object, "name", info.name.c_str());
  cfg_set_param(&object, "logical-interface", info.logical_interface.c_str());
  wlccw::detail::set_mac_param(object, "mac-address", info.mac_address);
  wlccw::detail::set_table_text(object, "link", wlccw::detail::operstate_rows, info.link);
  cfg_set_uint32_param(&object, "speed", info.speed);
  wlccw::detail::set_table_text(object, "duplex", wlccw::detail::duplex_rows, info.duplex);
  cfg_set_param(&object, "media-type", info.media_type.c_str());
  cfg_set_uint32_param(&object, "uptime", info.uptime);
  cfg_set_uint64_param(&object, "rx-bytes", info.rx_bytes);
  cfg_set_uint64_param(&object, "rx-packets", info.rx_packets);
  cfg_set_uint64_param(&object, "tx-bytes", info.tx_bytes);
  cfg_set_uint64_param(&object, "tx-packets", info.tx_packets);
}
