/// \file
/// One virtual access point (VAP) of an AP radio: radio and WLAN numbers, VLAN, interface and radio
/// names, band, client count, whether it is enabled and, for an enabled VAP, its SSID, BSSID,
/// authentication type and retry rate. Read strictly from the AP's NETCONF data and exchanged
/// between the controller's daemons as IPC JSON.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/enums/ApProfileRadioBand.hpp>
#include <wlccw/enums/SecurityMode.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>

/// The record of one VAP.
///
/// IPC form, keys in this order: "rfid", "wid", "vlanid", "interface", "radio", "band" ("2.4",
/// "5", "6", or "" for any other band), "client-count", "enabled"; then, only for an enabled VAP,
/// "ssid" (when present), "bssid", "auth-type" and "retry-rate" (when present).
class WLCCW_EXPORT Vap {
public:
  /// Radio number ("rfid").
  std::int32_t rfid = 0;
  /// WLAN number ("wid").
  std::int32_t wid = 0;
  /// VLAN id; not part of the NETCONF data.
  std::uint32_t vlanid = 0;
  /// Interface name (NETCONF "name", IPC "interface").
  std::string interface;
  /// Radio name.
  std::string radio;
  /// Band of the radio; not part of the NETCONF data.
  ApProfileRadioBand band = ApProfileRadioBand::BAND_2_4_GHZ;
  /// Number of associated clients; zero for a disabled VAP read from NETCONF.
  std::int32_t client_count = 0;
  /// Whether the VAP is enabled ("enabled", true only for JSON true); SSID, BSSID, authentication
  /// type and retry rate belong to an enabled VAP only.
  bool enabled = false;
  /// SSID; read only for an enabled VAP.
  std::optional<std::string> ssid;
  /// BSSID; read only for an enabled VAP.
  std::optional<MacAddr> bssid;
  /// Authentication type; read only for an enabled VAP.
  std::optional<SecurityMode> auth_type;
  /// Retry rate; read only for an enabled VAP.
  std::optional<std::uint8_t> retry_rate;

  /// A disabled VAP: zero numbers, empty names, band 2.4 GHz, the optional members empty.
  Vap() = default;
  /// Copies every member.
  Vap(Vap const&) = default;
  /// Moves every member.
  Vap(Vap&&) noexcept = default;
  /// Copies every member.
  Vap& operator=(Vap const&) = default;
  /// Moves every member.
  Vap& operator=(Vap&&) noexcept = default;

  /// Reads one VAP object of the AP's NETCONF data ("rfid", "wid", "name", "radio", "enabled"
  /// and, for an enabled VAP, "ssid" HTML-decoded, "bssid", "auth-type", "client-count",
  /// "retry-rate"). Empty when "rfid", "wid" or "enabled" is missing, and for an enabled VAP whose
  /// "bssid" is missing or no MAC address, whose "auth-type" is not a known security mode or
  /// whose "client-count" is negative. VLAN id and band keep their defaults; a disabled VAP keeps
  /// an empty SSID, BSSID, authentication type and retry rate and a zero client count. Never
  /// throws on bad input.
  static std::optional<Vap> from_netconf_json(lcw_data_t& object);
  /// Reads one IPC VAP object as to_json writes it. Empty only for an enabled VAP whose
  /// "auth-type" is missing or not a known security mode. A band text outside the band table
  /// reads as ApProfileRadioBand::UNKNOWN; a negative client count is kept; the SSID is taken as it
  /// stands; an enabled VAP's BSSID is stored as read, even when it is no MAC address (then the
  /// default address). A missing key leaves its field at its default. Never throws on bad input.
  static std::optional<Vap> from_json(lcw_data_t& object);

  /// Writes the IPC form into object. For an enabled VAP, "bssid" and "auth-type" are written even
  /// when empty: as 00:00:00:00:00:00 and as the name of the default mode, "off".
  virtual void to_json(lcw_data_t& object) const;
  /// Virtual, so a FullVapData is destroyed whole through a Vap pointer.
  virtual ~Vap() = default;

  /// The IPC band text: "2.4", "5" or "6"; "" for any other band.
  std::string band_bridge_serialize() const;

  /// Equal when every member is equal (the BSSID by its octets).
  friend bool operator==(Vap const&, Vap const&) = default;
};
