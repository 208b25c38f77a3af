// A VAP with its AP's identity: the VAP's IPC keys followed by the AP's.
#include <wlccw/ipc/FullVapData.hpp>

#include <utility>

std::optional<FullVapData> FullVapData::from_full_json(lcw_data_t& object) {
  std::optional<Vap> vap = Vap::from_json(object);
  if (!vap) {
    return std::nullopt;
  }
  lcw_data_t const* const node = &object;
  FullVapData full;
  static_cast<Vap&>(full) = std::move(*vap);
  full.ap_mac = MacAddr::from_str(cfg_get_param(node, "ap-mac"));
  full.ap_hostname = cfg_get_param(node, "ap-hostname");
  full.ap_location = cfg_get_param(node, "ap-location");
  return full;
}

void FullVapData::to_json(lcw_data_t& object) const {
  Vap::to_json(object);
  lcw_data_t* const node = &object;
  char mac[18];
  ap_mac.format(mac);
  cfg_set_param(node, "ap-mac", mac);
  cfg_set_param(node, "ap-hostname", ap_hostname.c_str());
  cfg_set_param(node, "ap-location", ap_location.c_str());
}
