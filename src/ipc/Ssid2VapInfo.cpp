// AP descriptions by AP MAC address: written as IPC JSON with each description nested as compact
// text, read back by parsing the outer text and then each nested text.
#include <wlccw/ipc/Ssid2VapInfo.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/containers.hpp>

#include <optional>
#include <string_view>
#include <utility>

namespace {

using Pack = std::map<MacAddr, IpcMsgRrmApInfo>;

/// Writes one entry into its array element: the address, then the description's compact text as
/// a JSON string (the receiver parses it a second time).
void fill_entry(lcw_data_t& object, Pack::value_type const& entry) {
  char mac[18];
  entry.first.format(mac);
  cfg_set_param(&object, "ap-mac-addr", mac);
  cfg_set_param(&object, "rrm-info", entry.second.to_str().c_str());
}

/// One element of the "ssid2vap-info" array. Never rejects: a bad address gives the default one,
/// a bad nested text the default description.
std::optional<Pack::value_type> read_entry(lcw_data_t& element) {
  // The nested text is parsed into a tree of its own before the next read of this one.
  IpcMsgRrmApInfo info{std::string_view(cfg_get_param(&element, "rrm-info"))};
  MacAddr const mac = MacAddr::from_str(cfg_get_param(&element, "ap-mac-addr"));
  return Pack::value_type(mac, std::move(info));
}

} // namespace

Ssid2VapInfo::Ssid2VapInfo(std::string const& text) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return;
  }
  std::optional<Pack> pack =
      cfg_deserialize_container<Pack>(cfg_get_subtree(root.get(), "ssid2vap-info"), read_entry);
  if (pack) {
    ssid2vap_info_pack_ = std::move(*pack);
  }
}

void Ssid2VapInfo::insert(MacAddr mac, IpcMsgRrmApInfo info) {
  ssid2vap_info_pack_.try_emplace(mac, std::move(info));
}

bool Ssid2VapInfo::empty() const {
  return ssid2vap_info_pack_.empty();
}

std::map<MacAddr, IpcMsgRrmApInfo> const& Ssid2VapInfo::get_ssid2vap_info_pack() const {
  return ssid2vap_info_pack_;
}

lcw_data_t* Ssid2VapInfo::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root || ssid2vap_info_pack_.empty()) {
    return root.release();
  }
  lcw_data_t* const array = cfg_insert_empty_array(root.get(), "ssid2vap-info");
  cfg_fill_array_with_container<Pack>(array, ssid2vap_info_pack_, fill_entry);
  return root.release();
}

std::string Ssid2VapInfo::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}
