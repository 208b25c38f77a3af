/// \file
/// The standalone access points: APs that the controller has found but does not (yet) manage, with
/// their identity, versions and their stage on the way to being joined.
#pragma once

#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The stage of a standalone AP on its way to being joined. Its IPC texts are "" (NONE),
/// "Registering", "Awaited", "Join-by-admin", "Join-auto", "Joined" and "Upgrading FW", compared
/// exactly; an unknown text reads as NONE, and NONE or a value past UPGRADING_FW is written as "".
enum class WLCBT_SA_STATUS : std::int32_t {
  NONE = 0, ///< no stage known
  REGISTERING,
  AWAITED,
  JOIN_BY_ADMIN,
  JOIN_AUTO,
  JOINED,
  UPGRADING_FW,
};

/// The list of standalone APs.
///
/// IPC form, a compact JSON object: {"sa-aps":[{"ap-mac":..,"ip":..,"board-type":..,
/// "sw-version":..,"hw-version":..,"serial":..,"status":..},...]}.
class WLCCW_EXPORT SaApsInfo {
public:
  /// One standalone AP.
  struct ApInfo {
    MacAddr ap_mac;                                 ///< "ap-mac"
    IpAddr ip;                                      ///< "ip"
    std::string board_type;                         ///< "board-type"
    std::string sw_version;                         ///< "sw-version"
    std::string hw_version;                         ///< "hw-version"
    std::string serial;                             ///< "serial"
    WLCBT_SA_STATUS status = WLCBT_SA_STATUS::NONE; ///< "status"

    /// Equal when every member is equal (the MAC address by its octets, the IP address with its
    /// validity).
    friend bool operator==(ApInfo const&, ApInfo const&) = default;
  };

  /// The APs in list order.
  std::vector<ApInfo> sa_aps;

  /// The compact IPC text of info: {"sa-aps":[]} for no APs; "" when no root can be made. Each
  /// AP's keys are written in the order "ap-mac", "ip", "board-type", "sw-version", "hw-version",
  /// "serial", "status"; the addresses are written by their octets whatever their validity.
  static std::string ipc_serialize(SaApsInfo const& info);
  /// The list of an IPC text. Never throws on bad text: text that is not JSON, or without an
  /// "sa-aps" array, gives an empty list. Every element gives an AP: a malformed or missing address
  /// gives the default (invalid) address, a missing text "", an unknown or missing status NONE.
  static SaApsInfo ipc_deserialize(std::string_view text);

  /// Equal when both hold equal APs in the same order.
  friend bool operator==(SaApsInfo const&, SaApsInfo const&) = default;
};
