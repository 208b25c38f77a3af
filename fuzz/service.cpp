// Fuzzes the readers of the service messages that the controller's daemons pass to each other.
// The first input byte picks the message, the rest is its text. Every message that defines a
// written form is written, read back and written again, which must give the same text (or, for
// the messages whose text order follows a hash set or map, an equal record).
#include "fuzz_support.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/ipc/ApLocationsData.hpp>
#include <wlccw/ipc/ApWidsMacLists.hpp>
#include <wlccw/ipc/ClientCoaProxyInfo.hpp>
#include <wlccw/ipc/FullVapData.hpp>
#include <wlccw/ipc/IpcDasProxyConfig.hpp>
#include <wlccw/ipc/IpcMsgGreData.hpp>
#include <wlccw/ipc/IpcMsgRrmApInfo.hpp>
#include <wlccw/ipc/IpcMsgVelmoraRequest.hpp>
#include <wlccw/ipc/IpcMsgVelmoraResponse.hpp>
#include <wlccw/ipc/IpcMsgVrrpUpdateBoardTypes.hpp>
#include <wlccw/ipc/SaApsInfo.hpp>
#include <wlccw/ipc/Ssid2VapInfo.hpp>
#include <wlccw/ipc/Vap.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace {

using wlccw::fuzz::check;
using wlccw::fuzz::check_same;

/// A message read by its text constructor, written with to_str, read and written again.
template <typename Message> void text_fixed_point(std::string const& text) {
  Message const first(text);
  std::string const written = first.to_str();
  Message const second(written);
  check_same(second.to_str(), written);
  check(Message(second.to_str()) == second);
}

void rrm_ap_info(std::string const& text) {
  text_fixed_point<IpcMsgRrmApInfo>(text);
  IpcMsgRrmApInfo const record(text);
  check(record.get_hash() == std::hash<std::string>{}(record.to_str()));
}

void ssid2vap(std::string const& text) {
  text_fixed_point<Ssid2VapInfo>(text);
}

/// Calls fn on the root when it is an object and on every element when it is an array.
template <typename Fn> void each_object(std::string const& text, Fn&& fn) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return;
  }
  fn(*root);
  wlccw::cfg::for_each_element(root.get(), [&fn](lcw_data_t& element) { fn(element); });
}

/// The IPC object of a VAP (or a VAP with its AP).
template <typename Record> std::string ipc_text(Record const& record) {
  wlccw::cfg::Tree const object = wlccw::cfg::make_object();
  check(object != nullptr);
  record.to_json(*object);
  return wlccw::cfg::compact(object.get());
}

/// A VAP's IPC object read back gives a VAP that writes the same object.
void vap_round_trip(Vap const& vap) {
  std::string const written = ipc_text(vap);
  wlccw::cfg::Tree const object = wlccw::cfg::parse(written);
  check(object != nullptr);
  std::optional<Vap> const again = Vap::from_json(*object);
  check(again.has_value());
  check_same(ipc_text(*again), written);
}

void vap(std::string const& text) {
  each_object(text, [](lcw_data_t& object) {
    if (std::optional<Vap> const from_netconf = Vap::from_netconf_json(object)) {
      // The AP's data holds neither VLAN nor band; a disabled VAP keeps none of the enabled
      // VAP's fields, an enabled one has a valid BSSID, a mode and no negative client count.
      check(from_netconf->vlanid == 0);
      check(from_netconf->band == ApProfileRadioBand::BAND_2_4_GHZ);
      if (from_netconf->enabled) {
        check(from_netconf->bssid.has_value() && from_netconf->bssid->valid);
        check(from_netconf->auth_type.has_value() &&
              *from_netconf->auth_type != SecurityMode::UNKNOWN);
        check(from_netconf->client_count >= 0);
      } else {
        check(!from_netconf->ssid && !from_netconf->bssid && !from_netconf->auth_type &&
              !from_netconf->retry_rate && from_netconf->client_count == 0);
      }
      vap_round_trip(*from_netconf);
    }
    if (std::optional<Vap> const from_ipc = Vap::from_json(object)) {
      vap_round_trip(*from_ipc);
    }
  });
}

void full_vap(std::string const& text) {
  each_object(text, [](lcw_data_t& object) {
    std::optional<FullVapData> const record = FullVapData::from_full_json(object);
    if (!record) {
      return;
    }
    std::string const written = ipc_text(*record);
    wlccw::cfg::Tree const again_object = wlccw::cfg::parse(written);
    check(again_object != nullptr);
    std::optional<FullVapData> const again = FullVapData::from_full_json(*again_object);
    check(again.has_value());
    check_same(ipc_text(*again), written);
  });
}

void velmora_request(std::string const& text) {
  text_fixed_point<IpcMsgVelmoraRequest>(text);
  IpcMsgVelmoraRequest const request(text);
  bool valid = false;
  std::optional<MacAddr> const mac = request.get_mac(valid);
  check(!mac || valid);
  valid = false;
  std::optional<std::string> const band = request.get_band(valid);
  check(!band || (valid && (*band == "2g" || *band == "5g" || *band == "6g")));
  static_cast<void>(request.get_days());
  std::optional<std::string> const location = request.get_location();
  check(!location || !location->empty());
}

void velmora_response(std::string const& text) {
  text_fixed_point<IpcMsgVelmoraResponse>(text);
}

void gre(std::string const& text) {
  text_fixed_point<IpcMsgGreData>(text);
  IpcMsgGreData const record(text);
  check(record.get_hash() == std::hash<std::string>{}(record.to_str()));
}

/// The board types' text follows the map's order, so the round trip compares records.
void vrrp_round_trip(IpcMsgVrrpUpdateBoardTypes const& record) {
  std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> const from_text =
      IpcMsgVrrpUpdateBoardTypes::from_str(record.to_str());
  check(from_text != nullptr);
  check(*from_text == record);
  wlccw::cfg::Tree const parent = wlccw::cfg::make_object();
  check(parent != nullptr);
  record.to_json(*parent);
  std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> const from_node =
      IpcMsgVrrpUpdateBoardTypes::from_json(*parent);
  check(from_node != nullptr);
  check(*from_node == record);
}

void vrrp(std::string const& text) {
  if (std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> const record =
          IpcMsgVrrpUpdateBoardTypes::from_str(text)) {
    vrrp_round_trip(*record);
  }
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (root) {
    if (std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> const record =
            IpcMsgVrrpUpdateBoardTypes::from_json(*root)) {
      vrrp_round_trip(*record);
    }
  }
}

void das_proxy(std::string const& text) {
  IpcDasProxyConfig const first = IpcDasProxyConfig::ipc_deserialize(text);
  std::string const written = first.ipc_serialize();
  IpcDasProxyConfig const second = IpcDasProxyConfig::ipc_deserialize(written);
  check_same(second.ipc_serialize(), written);
  check(second.configs.size() == first.configs.size());
  check(second.get_hash() == first.get_hash());
}

void coa_proxy(std::string const& text) {
  ClientCoaProxyInfo const first = ClientCoaProxyInfo::from_ipc(text);
  std::string const written = ClientCoaProxyInfo::to_ipc(first);
  ClientCoaProxyInfo const second = ClientCoaProxyInfo::from_ipc(written);
  check_same(ClientCoaProxyInfo::to_ipc(second), written);
  check(second.get_state() == first.get_state());
  check(second.get_client_mac().has_value());
}

void sa_aps(std::string const& text) {
  SaApsInfo const first = SaApsInfo::ipc_deserialize(text);
  std::string const written = SaApsInfo::ipc_serialize(first);
  SaApsInfo const second = SaApsInfo::ipc_deserialize(written);
  check_same(SaApsInfo::ipc_serialize(second), written);
  check(second.sa_aps.size() == first.sa_aps.size());
}

void ap_locations(std::string const& text) {
  text_fixed_point<ApLocationsData>(text);
}

/// The lists' text follows the sets' order, so the round trip compares the sets.
void wids_lists(std::string const& text) {
  ApWidsMacLists const first = ApWidsMacLists::ipc_deserialize(text);
  std::string const written = first.ipc_serialize();
  ApWidsMacLists const second = ApWidsMacLists::ipc_deserialize(written);
  check(second.white_list == first.white_list);
  check(second.black_list == first.black_list);
  check(second.get_hash() == std::hash<std::string>{}(second.ipc_serialize()));
  check(ApWidsMacLists::ipc_deserialize(first.netconf_serialize_white_list()).white_list.empty());
}

using Reader = void (*)(std::string const&);

/// The readers, in the order of the selector byte (taken modulo their count).
constexpr Reader readers[] = {
    rrm_ap_info, ssid2vap,  vap,       full_vap, velmora_request, velmora_response, gre,
    vrrp,        das_proxy, coa_proxy, sa_aps,   ap_locations,    wids_lists,
};
constexpr std::size_t reader_count = sizeof readers / sizeof readers[0];

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  std::string const text = wlccw::fuzz::to_string(data + 1, size - 1);
  readers[data[0] % reader_count](text);
  return 0;
}
