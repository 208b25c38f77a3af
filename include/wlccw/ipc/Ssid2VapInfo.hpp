/// \file
/// The RRM descriptions of several access points in one message, keyed by AP MAC address: which
/// VAPs each AP runs. Sent as compact IPC text; each AP's description travels inside it as a JSON
/// string holding that AP's own compact IPC text.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>
#include <wlccw/ipc/IpcMsgRrmApInfo.hpp>

#include <map>
#include <string>

/// AP descriptions by AP MAC address, in ascending address order.
///
/// IPC form: {"ssid2vap-info":[{"ap-mac-addr":"aa:bb:cc:dd:ee:ff","rrm-info":"<compact text of
/// the AP's IpcMsgRrmApInfo>"},...]}, the entries in ascending address order; an empty map is
/// written as an object with no keys.
class WLCCW_EXPORT Ssid2VapInfo {
public:
  /// No entries.
  Ssid2VapInfo() = default;
  /// Reads the compact IPC text that to_str writes. Never throws on bad text: text that is not
  /// JSON or lacks the "ssid2vap-info" array gives an empty map; an entry whose "ap-mac-addr" is
  /// missing or no MAC address is kept under the default address 00:00:00:00:00:00; an entry whose
  /// "rrm-info" is missing, not a string or not JSON gets the default IpcMsgRrmApInfo; of entries
  /// with the same address the first one is kept.
  explicit Ssid2VapInfo(std::string const& text);

  /// Adds the AP's description unless the map already holds that address; an existing entry is
  /// kept unchanged. The description is added even when it is_empty().
  void insert(MacAddr mac, IpcMsgRrmApInfo info);
  /// True when there is no entry.
  bool empty() const;
  /// The descriptions by AP address.
  std::map<MacAddr, IpcMsgRrmApInfo> const& get_ssid2vap_info_pack() const;

  /// The IPC tree, owned by the caller (release it with cfg_release); null when no tree can be
  /// made. An object with no keys when the map is empty; an entry whose object cannot be appended
  /// is left out.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made, "{}" when the map is empty.
  std::string to_str() const;

  /// Equal when both maps hold equal descriptions under the same addresses.
  friend bool operator==(Ssid2VapInfo const&, Ssid2VapInfo const&) = default;

private:
  std::map<MacAddr, IpcMsgRrmApInfo> ssid2vap_info_pack_;
};
