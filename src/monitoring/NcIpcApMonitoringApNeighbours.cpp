// The neighbour list of an AP: one object per neighbouring AP, the same in the AP's NETCONF data
// and in IPC messages, under "neighbor-ap" in the one and "ap-neighbours" in the other.
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>

#include "detail/monitoring_list.hpp"

#include <wlccw/common/html.hpp>

namespace {

using Info = NcIpcApMonitoringApNeighbours::ApNeighbourInfo;

constexpr char const* netconf_list_key = "neighbor-ap";
constexpr char const* ipc_list_key = "ap-neighbours";

} // namespace

std::shared_ptr<NcIpcApMonitoringApNeighbours>
NcIpcApMonitoringApNeighbours::from_netconf(lcw_data_t& node) {
  return wlccw::detail::read_list(node, netconf_list_key,
                                  &NcIpcApMonitoringApNeighbours::neighbours);
}

std::shared_ptr<NcIpcApMonitoringApNeighbours>
NcIpcApMonitoringApNeighbours::from_ipc(lcw_data_t& node) {
  return wlccw::detail::read_list(node, ipc_list_key, &NcIpcApMonitoringApNeighbours::neighbours);
}

std::shared_ptr<NcIpcApMonitoringApNeighbours>
NcIpcApMonitoringApNeighbours::from_ipc(std::string const& text) {
  return wlccw::detail::read_list(text, &NcIpcApMonitoringApNeighbours::neighbours);
}

void NcIpcApMonitoringApNeighbours::to_ipc(lcw_data_t& node) const {
  wlccw::detail::write_list(*this, &NcIpcApMonitoringApNeighbours::neighbours, node, ipc_list_key);
}

std::string NcIpcApMonitoringApNeighbours::to_ipc() const {
  return wlccw::detail::list_text(*this, &NcIpcApMonitoringApNeighbours::neighbours);
}

Info NcIpcApMonitoringApNeighbours::from_json(lcw_data_t& object) {
  Info info;
  info.bssid = wlccw::detail::mac_param(object, "bssid");
  // The AP escapes bytes of the SSID; the record keeps the plain network name.
  info.ssid = external_data::ap::decode_html_safe(cfg_get_param(&object, "ssid"));
  info.channel = cfg_get_uint32_param(&object, "channel");
  info.signal_level = cfg_get_int_param(&object, "signal-level");
  info.privacy = cfg_get_boolean_param(&object, "privacy") != 0;
  info.bandwidth = cfg_get_uint32_param(&object, "bandwidth");
  info.last_seen = cfg_get_uint32_param(&object, "last-seen");
  info.controlled_by_wlc = cfg_get_boolean_param_opt(&object, "controlled-by-wlc");
  return info;
}

void NcIpcApMonitoringApNeighbours::to_json(ApNeighbourInfo const& info, lcw_data_t& object) {
  wlccw::detail::set_mac_param(object, "bssid", info.bssid);
  cfg_set_param(&object, "ssid", info.ssid.c_str());
  cfg_set_uint32_param(&object, "channel", info.channel);
  cfg_set_int_param(&object, "signal-level", info.signal_level);
  cfg_set_boolean_param(&object, "privacy", info.privacy);
  cfg_set_uint32_param(&object, "bandwidth", info.bandwidth);
  cfg_set_uint32_param(&object, "last-seen", info.last_seen);
  cfg_set_boolean_param_opt(&object, "controlled-by-wlc", info.controlled_by_wlc);
}
