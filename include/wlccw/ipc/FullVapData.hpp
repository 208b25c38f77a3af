/// \file
/// A VAP together with the identity of the AP that runs it: the AP's MAC address, host name and
/// location, carried in the same IPC object as the VAP's own keys.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>
#include <wlccw/ipc/Vap.hpp>

#include <optional>
#include <string>

/// A VAP and its AP.
///
/// IPC form: the keys of Vap::to_json (a disabled VAP stops at "enabled"), then "ap-mac"
/// (lower-case colon form), "ap-hostname" and "ap-location".
class WLCCW_EXPORT FullVapData : public Vap {
public:
  /// The AP's MAC address, stored as read whatever its validity.
  MacAddr ap_mac;
  /// The AP's host name.
  std::string ap_hostname;
  /// The AP's location.
  std::string ap_location;

  /// Reads one IPC object as to_json writes it: empty when Vap::from_json rejects its VAP keys (an
  /// enabled VAP with a missing or unknown "auth-type"). A missing or bad "ap-mac" gives the
  /// default address, a missing "ap-hostname" or "ap-location" the empty text. Never throws on bad
  /// input.
  static std::optional<FullVapData> from_full_json(lcw_data_t& object);

  /// Writes Vap::to_json, then "ap-mac", "ap-hostname" and "ap-location".
  void to_json(lcw_data_t& object) const override;

  /// Equal when the VAP members and the AP's identity are equal (the AP address by its octets).
  friend bool operator==(FullVapData const&, FullVapData const&) = default;
};
