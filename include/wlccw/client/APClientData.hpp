/// \file
/// The record of one wireless client as one access point reports it: identity, band and channel,
/// per-antenna signal, authentication state, traffic counters and multi-link data.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/client/AntennaSignalMetrics.hpp>
#include <wlccw/client/Mlo.hpp>
#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/enums/ApProfileRadioBand.hpp>
#include <wlccw/enums/ClientAuthAlgorithm.hpp>
#include <wlccw/enums/ClientEapMethod.hpp>
#include <wlccw/enums/ClientMacAuthStatus.hpp>
#include <wlccw/enums/ClientPortalAuthStatus.hpp>
#include <wlccw/enums/ClientWirelessMode.hpp>
#include <wlccw/enums/ClientWlanAuthMethod.hpp>
#include <wlccw/enums/ClientWlanAuthStatus.hpp>
#include <wlccw/enums/radio_Band.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// One wireless client (station) as one AP reports it. A plain value: copyable, assignable and
/// comparable; it owns every member by value and holds no pointer into a tree.
///
/// A record is born valid: its MAC address is valid and its interface and SSID are not empty
/// (the constructor refuses anything else). Every other fact is public state, empty until an
/// import, a merge or the owner fills it.
class WLCCW_EXPORT APClientData {
public:
  /// Traffic counters of both directions.
  struct Statistics {
    /// Traffic counters of one direction as the AP reports them.
    struct Statistic {
      /// Zero counters and rate, no texts. Written out rather than left to default member
      /// initialisers: those of a nested class are only known once the enclosing class is complete,
      /// which some compilers take as "not default-constructible" when std::optional<Statistics>
      /// below is instantiated (statistics.emplace() would then not compile).
      Statistic() noexcept : actual_rate(0), bytes(0), packets(0) {}

      /// Current data rate as a number.
      std::int32_t actual_rate;
      /// Rate text as reported.
      std::optional<std::string> rate;
      /// Modulation text as reported.
      std::optional<std::string> modulation;
      /// Numeric rate text as reported.
      std::optional<std::string> rate_numeric;
      /// Channel bandwidth text as reported.
      std::optional<std::string> bandwidth;
      /// Byte counter.
      std::int32_t bytes;
      /// Packet counter.
      std::int32_t packets;

      /// Member by member in declaration order; an empty optional equals only an empty one.
      friend bool operator==(Statistic const&, Statistic const&) = default;
      /// The negation of ==.
      friend bool operator!=(Statistic const& a, Statistic const& b) { return !(a == b); }
    };

    /// Transmit direction.
    Statistic tx;
    /// Receive direction.
    Statistic rx;

    /// tx equal and rx equal.
    friend bool operator==(Statistics const&, Statistics const&) = default;
    /// The negation of ==.
    friend bool operator!=(Statistics const& a, Statistics const& b) { return !(a == b); }
  };

  /// Client MAC address; valid in every record the constructor made.
  MacAddr mac;
  /// AP interface the client is associated on; never empty.
  std::string interface;
  /// SSID of the client's network; never empty.
  std::string ssid;
  /// Client IPv4 address; not valid (not set) after construction.
  IpAddr ip;
  /// Band the client uses (2G, 5G, 6G).
  std::optional<radio::Band> band;
  /// VLAN of the client.
  std::optional<std::uint32_t> vlan_id;
  /// Client host name.
  std::optional<std::string> hostname;
  /// Authenticated user name.
  std::optional<std::string> username;
  /// The user's domain.
  std::optional<std::string> domain;
  /// Host name of the reporting AP.
  std::optional<std::string> ap_hostname;
  /// Location text of the reporting AP.
  std::optional<std::string> ap_location;
  /// Seconds since the client associated.
  std::optional<std::uint32_t> uptime;
  /// Channel centre frequency as the AP reports it.
  std::optional<std::uint32_t> frequency;
  /// Channel number.
  std::optional<std::uint32_t> channel;
  /// Per-antenna RSSI in dBm; floor -127. A reading below the floor is stored as the floor; an
  /// overall value the AP reports represents the client, else the weakest antenna's reading.
  AntennaSignalMetrics<std::greater<int>, std::less<int>> rssi{{}, std::nullopt, -127};
  /// Per-antenna SNR in dB; floor 0, stored and selected as for rssi.
  AntennaSignalMetrics<std::greater<int>, std::less<int>> snr{{}, std::nullopt, 0};
  /// Whether the client is authorized on the AP.
  std::optional<bool> authorized;
  /// 802.11 mode of the client.
  std::optional<ClientWirelessMode> wireless_mode;
  /// Link quality text, kept verbatim.
  std::optional<std::string> link_quality;
  /// Common link quality text, kept verbatim.
  std::optional<std::string> link_quality_common;
  /// Traffic counters per direction.
  std::optional<Statistics> statistics;
  /// Multi-link data.
  std::optional<Mlo> mlo;
  /// Seconds since WLAN authentication.
  std::optional<std::uint32_t> wlan_auth_uptime;
  /// Seconds since RADIUS MAC authentication.
  std::optional<std::uint32_t> mac_auth_uptime;
  /// Seconds since portal authentication.
  std::optional<std::uint32_t> portal_auth_uptime;
  /// EAP method the client authenticated with.
  std::optional<ClientEapMethod> eap_method;
  /// RADIUS MAC authentication state.
  std::optional<ClientMacAuthStatus> mac_auth_status;
  /// Portal authentication state.
  std::optional<ClientPortalAuthStatus> portal_auth_status;
  /// WLAN (802.1X/PSK) authentication state.
  std::optional<ClientWlanAuthStatus> wlan_auth_status;
  /// WLAN authentication method.
  std::optional<ClientWlanAuthMethod> wlan_auth_method;
  /// 802.11 authentication algorithm.
  std::optional<ClientAuthAlgorithm> auth_algorithm;
  /// Pairwise cipher name.
  std::optional<std::string> encryption_cipher;
  /// Group cipher name.
  std::optional<std::string> encryption_group_cipher;

  /// A record of the client with this MAC address on this AP interface and SSID. Every other
  /// member starts empty: optionals empty, `ip` not valid, no signal readings (floors -127 for
  /// RSSI and 0 for SNR). The arguments are checked in this order and only the first failure is
  /// reported, by std::invalid_argument: "parameter 'mac' is not valid" when mac's validity flag
  /// is false, "parameter 'interface' is empty", "parameter 'ssid' is empty".
  APClientData(MacAddr const& mac, std::string const& interface, std::string const& ssid);

  // Copies are member-wise. The copy operations are declared so that the compiler generates no
  // move operations: a moved-from record would be left with an empty interface and SSID, a record
  // the constructor refuses, so an rvalue record is copied and its source stays valid.
  /// Member-wise copy.
  APClientData(APClientData const&) = default;
  /// Member-wise copy assignment.
  APClientData& operator=(APClientData const&) = default;
  /// Member-wise destruction.
  ~APClientData() = default;

  /// Sets `band` from the band of an AP profile: 2.4 GHz gives 2G, 5 GHz 5G, 6 GHz 6G and UNKNOWN
  /// empties `band`. Any other value (one cast from a number outside the enumeration) leaves
  /// `band` unchanged. Never throws.
  void set_band(ApProfileRadioBand profile_band);

  /// The text of `band` ("2G", "5G" or "6G"); empty when `band` is empty. Throws
  /// std::invalid_argument "APClientData: band_to_str unknown band" when `band` holds a value
  /// outside the three, which only a value forced in by a cast can be.
  std::optional<std::string> get_band_str() const;

  /// Whether the client's facts are the same, compared in this order: mac (the six octets),
  /// interface, ssid, ip (the four octets only, not the validity flag), band, vlan_id, hostname,
  /// username, domain, ap_hostname, ap_location, uptime, rssi, snr, authorized, wireless_mode,
  /// link_quality, link_quality_common, statistics, mlo, eap_method, mac_auth_status,
  /// portal_auth_status, wlan_auth_method, wlan_auth_status, wlan_auth_uptime, auth_algorithm,
  /// mac_auth_uptime, portal_auth_uptime. frequency, channel, encryption_cipher and
  /// encryption_group_cipher are left out on purpose, so a change of channel or cipher alone does
  /// not count as a change of the client. Optionals are equal when both are empty or both hold
  /// equal values. Never throws.
  bool operator==(APClientData const& other) const;
  /// The negation of ==.
  bool operator!=(APClientData const& other) const;

  // ---- NETCONF import ----

  /// The record of one client object of an AP's NETCONF monitoring reply. Texts the AP writes
  /// freely (ssid, hostname, username, domain) are cleaned with
  /// external_data::ap::decode_html_safe. band, ap_hostname and ap_location stay empty: they are
  /// the controller's to fill. Throws wlccw::InvalidJsonPointer for a null client, wlccw::EmptyJson
  /// for an empty one (or a node that is no object or array), and the constructor's
  /// std::invalid_argument for a bad "hw-addr", a missing or empty "interface" or an empty decoded
  /// "ssid"; every other missing or malformed member leaves its field empty.
  static APClientData from_netconf_json(lcw_data_t* client);

  // ---- IPC form ----

  /// Writes the IPC form into an object; nothing for a null object. "ip" is written only when
  /// valid, "band" only for one of the three bands, the signal lists only when there are readings;
  /// a record without statistics writes no authentication, multi-link or cipher keys. Throws
  /// std::invalid_argument "APClientData: band_to_str unknown band" when a multi-link link holds a
  /// band outside the three, which only a value forced in by a cast can be.
  void to_json(lcw_data_t* object) const;
  /// The compact text of the IPC form that to_json writes into an empty object; throws like it.
  std::string to_json_str() const;
  /// The record of an IPC object. Throws wlccw::InvalidJsonPointer for a null object,
  /// wlccw::EmptyJson for an empty one (or a node that is no object or array) and the
  /// constructor's std::invalid_argument for a bad identity ("mac", "interface", "ssid"); every
  /// other missing or malformed key leaves its field empty, and multi-link data with any bad link
  /// is left out whole.
  static APClientData from_json(lcw_data_t* object);
  /// from_json of a parsed IPC text; a text that is not JSON (the empty text included) throws
  /// wlccw::InvalidJsonPointer, "{}" wlccw::EmptyJson.
  static APClientData from_json_str(std::string const& text);
  /// Takes the changeable facts of a newer record of the same client, empty ones included (every
  /// member but the ones kept is assigned from other); keeps this record's identity (mac,
  /// interface, ssid), frequency, channel and ciphers.
  void fill_optional_data(APClientData const& other);
  /// A one-line summary of how the client authenticated: the WLAN method's NETCONF name (empty
  /// without a method) followed by "/Pending" while the WLAN authentication is pending, or, once it
  /// is authenticated, by what the MAC and portal states show ("/Authenticated" when neither is
  /// required, "+MAB/Authenticated-by-MAB", "+MAB+Portal/Pending-portal", ...). Empty when the WLAN
  /// state is missing or unauthenticated, when an authenticated client lacks its MAC or portal
  /// state, and for the combinations that show nothing. Never throws on content.
  std::optional<std::string> get_auth_description() const;
};

/// Reads both directions of a client's statistics with reader, called for "tx" then "rx": empty
/// when both are empty; otherwise a direction the reader did not give is a default (zeroed)
/// Statistic. Throws std::bad_function_call for an empty reader; an exception from reader
/// propagates.
WLCCW_EXPORT std::optional<APClientData::Statistics>
get_tx_rx_statistics(lcw_data_t& node,
                     std::function<std::optional<APClientData::Statistics::Statistic>(
                         lcw_data_t&, std::string const&)> const& reader);

/// One direction ("tx" or "rx") of a NETCONF client object's statistics, shown here for "tx": the
/// rate text ("tx-rate") with the modulation read from it and the numeric rate ("tx-rate-numeric",
/// else read from the rate text), the bandwidth ("tx-bw") and the actual rate ("actual-tx-rate")
/// of the client object, and the byte and packet counters of the object at "/statistics/tx";
/// empty when none of the rate text, bandwidth, actual rate and counter object is there. Missing
/// or malformed counters read as 0.
WLCCW_EXPORT std::optional<APClientData::Statistics::Statistic>
get_statistic_from_netconf(lcw_data_t& node, std::string const& direction);
