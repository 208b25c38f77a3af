// One VAP: read strictly from the AP's NETCONF data, written and read as IPC JSON.
#include <wlccw/ipc/Vap.hpp>

#include <wlccw/common/html.hpp>

#include "detail/Dictionary.hpp"

#include <array>

namespace {

/// The IPC band texts, in value order; UNKNOWN has none.
constexpr std::array<wlccw::detail::Row<ApProfileRadioBand>, 3> band_rows{{
    {"2.4", ApProfileRadioBand::BAND_2_4_GHZ},
    {"5", ApProfileRadioBand::BAND_5_GHZ},
    {"6", ApProfileRadioBand::BAND_6_GHZ},
}};
static_assert(wlccw::detail::rows_in_value_order(band_rows));
constexpr auto band_dictionary = wlccw::detail::make_dictionary(band_rows);

} // namespace

std::optional<Vap> Vap::from_netconf_json(lcw_data_t& object) {
  lcw_data_t const* const node = &object;
  if (cfg_contain_param(node, "rfid") == 0 || cfg_contain_param(node, "wid") == 0 ||
      cfg_contain_param(node, "enabled") == 0) {
    return std::nullopt;
  }
  Vap vap;
  vap.rfid = cfg_get_int_param(node, "rfid");
  vap.wid = cfg_get_int_param(node, "wid");
  vap.interface = cfg_get_param(node, "name");
  vap.radio = cfg_get_param(node, "radio");
  vap.enabled = cfg_get_boolean_param(node, "enabled") != 0;
  if (!vap.enabled) {
    return vap;
  }

  vap.ssid = external_data::ap::decode_html_safe_opt(cfg_get_param_opt(node, "ssid"));
  MacAddr const bssid = MacAddr::from_str(cfg_get_param(node, "bssid"));
  if (!bssid.valid) {
    return std::nullopt;
  }
  vap.bssid = bssid;
  SecurityMode const auth_type = SecurityModeFromStrX(cfg_get_param(node, "auth-type"));
  if (auth_type == SecurityMode::UNKNOWN) {
    return std::nullopt;
  }
  vap.auth_type = auth_type;
  vap.client_count = cfg_get_int_param(node, "client-count");
  if (vap.client_count < 0) {
    return std::nullopt;
  }
  vap.retry_rate = cfg_get_uint8_param_opt(node, "retry-rate");
  return vap;
}

std::optional<Vap> Vap::from_json(lcw_data_t& object) {
  lcw_data_t const* const node = &object;
  Vap vap;
  vap.rfid = cfg_get_int_param(node, "rfid");
  vap.wid = cfg_get_int_param(node, "wid");
  vap.vlanid = cfg_get_uint_param(node, "vlanid");
  vap.interface = cfg_get_param(node, "interface");
  vap.radio = cfg_get_param(node, "radio");
  vap.band =
      band_dictionary.find(cfg_get_param(node, "band")).value_or(ApProfileRadioBand::UNKNOWN);
  vap.client_count = cfg_get_int_param(node, "client-count");
  vap.enabled = cfg_get_boolean_param(node, "enabled") != 0;
  if (!vap.enabled) {
    return vap;
  }

  // IPC text is already plain: the SSID is not decoded again.
  vap.ssid = cfg_get_param_opt(node, "ssid");
  vap.bssid = MacAddr::from_str(cfg_get_param(node, "bssid"));
  SecurityMode const auth_type = SecurityModeFromStrX(cfg_get_param(node, "auth-type"));
  if (auth_type == SecurityMode::UNKNOWN) {
    return std::nullopt;
  }
  vap.auth_type = auth_type;
  vap.retry_rate = cfg_get_uint8_param_opt(node, "retry-rate");
  return vap;
}

void Vap::to_json(lcw_data_t& object) const {
  lcw_data_t* const node = &object;
  cfg_set_int_param(node, "rfid", rfid);
  cfg_set_int_param(node, "wid", wid);
  cfg_set_uint_param(node, "vlanid", vlanid);
  cfg_set_param(node, "interface", interface.c_str());
  cfg_set_param(node, "radio", radio.c_str());
  // Every text of the table, and the fallback, is a literal: its view ends at a NUL.
  cfg_set_param(node, "band", wlccw::detail::text_of(band_rows, band).value_or("").data());
  cfg_set_int_param(node, "client-count", client_count);
  cfg_set_boolean_param(node, "enabled", enabled);
  if (!enabled) {
    return;
  }
  cfg_set_param_opt(node, "ssid", ssid);
  char text[18];
  bssid.value_or(MacAddr{}).format(text);
  cfg_set_param(node, "bssid", text);
  cfg_set_param(node, "auth-type", SecurityModeToStrX(auth_type.value_or(SecurityMode{})));
  cfg_set_uint8_param_opt(node, "retry-rate", retry_rate);
}

std::string Vap::band_bridge_serialize() const {
  return wlccw::detail::text_or_empty(band_rows, band);
}
