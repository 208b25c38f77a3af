// The interface list of an AP: one object per interface, the same in the AP's NETCONF data and in
// IPC messages.
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>

#include "detail/Dictionary.hpp"
#include "detail/link_tables.hpp"
#include "detail/monitoring_list.hpp"

namespace {

using Info = NcIpcApMonitoringInterfaces::ApInterfaceInfo;

constexpr char const* list_key = "interface";

// This record's own text-to-value lookups, built at compile time from the shared rows.
constexpr auto operstate_dictionary = wlccw::detail::make_dictionary(wlccw::detail::operstate_rows);
constexpr auto duplex_dictionary = wlccw::detail::make_dictionary(wlccw::detail::duplex_rows);

} // namespace

std::shared_ptr<NcIpcApMonitoringInterfaces>
NcIpcApMonitoringInterfaces::from_netconf(lcw_data_t& node) {
  return wlccw::detail::read_list(node, list_key, &NcIpcApMonitoringInterfaces::interfaces);
}

std::shared_ptr<NcIpcApMonitoringInterfaces>
NcIpcApMonitoringInterfaces::from_ipc(lcw_data_t& node) {
  return from_netconf(node);
}

void NcIpcApMonitoringInterfaces::to_ipc(lcw_data_t& node) const {
  wlccw::detail::write_list(*this, &NcIpcApMonitoringInterfaces::interfaces, node, list_key);
}

std::string NcIpcApMonitoringInterfaces::to_ipc() const {
  return wlccw::detail::list_text(*this, &NcIpcApMonitoringInterfaces::interfaces);
}

Info NcIpcApMonitoringInterfaces::from_json(lcw_data_t const& object) {
  Info info;
  info.name = cfg_get_param(&object, "name");
  info.hwaddr = wlccw::detail::mac_param(object, "hwaddr");
  info.operstate = operstate_dictionary.find(cfg_get_param(&object, "operstate"))
                       .value_or(WLCBT_OPERSTATE::UNNAMED);
  info.speed = cfg_get_uint64_param(&object, "speed");
  info.duplex =
      duplex_dictionary.find(cfg_get_param(&object, "duplex")).value_or(WLCBT_DUPLEX_MODE::UNNAMED);
  info.tx_actual_rate = cfg_get_uint64_param(&object, "tx-actual-rate");
  info.rx_actual_rate = cfg_get_uint64_param(&object, "rx-actual-rate");
  info.tx_bytes = cfg_get_uint64_param(&object, "tx-bytes");
  info.rx_bytes = cfg_get_uint64_param(&object, "rx-bytes");
  info.tx_packets = cfg_get_uint64_param(&object, "tx-packets");
  info.rx_packets = cfg_get_uint64_param(&object, "rx-packets");
  info.tx_errors = cfg_get_uint64_param(&object, "tx-errors");
  info.rx_errors = cfg_get_uint64_param(&object, "rx-errors");
  info.tx_drop = cfg_get_uint64_param(&object, "tx-drop");
  info.rx_drop = cfg_get_uint64_param(&object, "rx-drop");
  return info;
}

void NcIpcApMonitoringInterfaces::to_json(ApInterfaceInfo const& info, lcw_data_t& object) {
  cfg_set_param(&object, "name", info.name.c_str());
  wlccw::detail::set_mac_param(object, "hwaddr", info.hwaddr);
  wlccw::detail::set_table_text(object, "operstate", wlccw::detail::operstate_rows, info.operstate);
  cfg_set_uint64_param(&object, "speed", info.speed);
  wlccw::detail::set_table_text(object, "duplex", wlccw::detail::duplex_rows, info.duplex);
  cfg_set_uint64_param(&object, "tx-actual-rate", info.tx_actual_rate);
  cfg_set_uint64_param(&object, "rx-actual-rate", info.rx_actual_rate);
  cfg_set_uint64_param(&object, "tx-bytes", info.tx_bytes);
  cfg_set_uint64_param(&object, "rx-bytes", info.rx_bytes);
  cfg_set_uint64_param(&object, "tx-packets", info.tx_packets);
  cfg_set_uint64_param(&object, "rx-packets", info.rx_packets);
  cfg_set_uint64_param(&object, "tx-errors", info.tx_errors);
  cfg_set_uint64_param(&object, "rx-errors", info.rx_errors);
  cfg_set_uint64_param(&object, "tx-drop", info.tx_drop);
  cfg_set_uint64_param(&object, "rx-drop", info.rx_drop);
}
