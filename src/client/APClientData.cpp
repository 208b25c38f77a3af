#include <wlccw/client/APClientData.hpp>

#include "detail/client_statistics.hpp"

#include <functional>
#include <stdexcept>
#include <utility>

APClientData::APClientData(MacAddr const& client_mac, std::string const& client_interface,
                           std::string const& client_ssid)
    : mac(client_mac), interface(client_interface), ssid(client_ssid) {
  if (!mac.valid) {
    throw std::invalid_argument("parameter 'mac' is not valid");
  }
  if (interface.empty()) {
    throw std::invalid_argument("parameter 'interface' is empty");
  }
  if (ssid.empty()) {
    throw std::invalid_argument("parameter 'ssid' is empty");
  }
}

void APClientData::set_band(ApProfileRadioBand profile_band) {
  switch (profile_band) {
  case ApProfileRadioBand::BAND_2_4_GHZ:
    band = radio::Band::BAND_2G;
    return;
  case ApProfileRadioBand::BAND_5_GHZ:
    band = radio::Band::BAND_5G;
    return;
  case ApProfileRadioBand::BAND_6_GHZ:
    band = radio::Band::BAND_6G;
    return;
  case ApProfileRadioBand::UNKNOWN:
    band.reset();
    return;
  }
  // A value outside the enumeration keeps the band the record has.
}

std::optional<std::string> APClientData::get_band_str() const {
  if (!band) {
    return std::nullopt;
  }
  return std::string(radio::band::to_str(*band));
}

bool APClientData::operator==(APClientData const& other) const {
  // Written out rather than defaulted: frequency, channel and the two ciphers are not part of
  // the comparison, and ip is compared by its octets alone.
  return mac == other.mac && interface == other.interface && ssid == other.ssid &&
         ip.octets == other.ip.octets && band == other.band && vlan_id == other.vlan_id &&
         hostname == other.hostname && username == other.username && domain == other.domain &&
         ap_hostname == other.ap_hostname && ap_location == other.ap_location &&
         uptime == other.uptime && rssi == other.rssi && snr == other.snr &&
         authorized == other.authorized && wireless_mode == other.wireless_mode &&
         link_quality == other.link_quality && link_quality_common == other.link_quality_common &&
         statistics == other.statistics && mlo == other.mlo && eap_method == other.eap_method &&
         mac_auth_status == other.mac_auth_status &&
         portal_auth_status == other.portal_auth_status &&
         wlan_auth_method == other.wlan_auth_method && wlan_auth_status == other.wlan_auth_status &&
         wlan_auth_uptime == other.wlan_auth_uptime && auth_algorithm == other.auth_algorithm &&
         mac_auth_uptime == other.mac_auth_uptime && portal_auth_uptime == other.portal_auth_uptime;
}

bool APClientData::operator!=(APClientData const& other) const {
  return !(*this == other);
}

std::optional<APClientData::Statistics>
get_tx_rx_statistics(lcw_data_t& node,
                     std::function<std::optional<APClientData::Statistics::Statistic>(
                         lcw_data_t&, std::string const&)> const& reader) {
  if (!reader) {
    throw std::bad_function_call();
  }
  std::optional<APClientData::Statistics::Statistic> tx = reader(node, "tx");
  std::optional<APClientData::Statistics::Statistic> rx = reader(node, "rx");
  return wlccw::detail::combine_statistics(std::move(tx), std::move(rx));
}
