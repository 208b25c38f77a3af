/// \file
/// Multi-link data of a client associated to an AP multi-link device over up to three links.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/client/AntennaSignalMetrics.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/enums/radio_Band.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The multi-link data of one client: the AP multi-link device it is associated to and the links
/// it uses. Part of the client's record (APClientData::mlo); a plain, comparable value.
class WLCCW_EXPORT Mlo {
public:
  /// One link of the client: its number, address, band, signal and traffic.
  class Link {
  public:
    /// One direction of a link's traffic; every member is optional.
    struct Statistic {
      /// Byte counter.
      std::optional<int> bytes;
      /// Packet counter.
      std::optional<int> packets;
      /// Rate text as the AP reports it.
      std::optional<std::string> rate;

      /// Member by member; an empty optional equals only an empty one.
      friend bool operator==(Statistic const&, Statistic const&) = default;
    };

    /// Link number, 1 to 3 in the NETCONF form.
    std::uint8_t id = 0;
    /// The client's MAC address on this link; always valid in a stored link.
    MacAddr mac;
    /// The band of the link; always set.
    radio::Band band = radio::Band::BAND_2G;
    /// Channel bandwidth text as reported.
    std::optional<std::string> bandwidth;
    /// Per-antenna RSSI in dBm, floor -127.
    AntennaSignalMetrics<std::greater<int>, std::less<int>> rssi{{}, std::nullopt, -127};
    /// Per-antenna SNR in dB, floor 0.
    AntennaSignalMetrics<std::greater<int>, std::less<int>> snr{{}, std::nullopt, 0};
    /// Transmit direction.
    Statistic tx;
    /// Receive direction.
    Statistic rx;

    /// Member by member in declaration order; MAC addresses compare by their six octets.
    friend bool operator==(Link const&, Link const&) = default;
  };

  /// MAC address of the AP multi-link device.
  MacAddr mld_mac_ap;
  /// The client's links, in link-number order as read.
  std::vector<Link> links;

  /// Equal when the device addresses (six octets) and the links, in order, are equal.
  friend bool operator==(Mlo const&, Mlo const&) = default;

  /// Writes the IPC form as the object "mlo" of a client's IPC object (replacing a member "mlo"
  /// there in place): "mld-mac-ap" when that address is valid, then the array "links" with one
  /// object per link. Throws std::invalid_argument "APClientData: band_to_str unknown band" for
  /// a link whose band is outside the three, which only a value forced in by a cast can be.
  void to_json(lcw_data_t& parent) const;
  /// The multi-link data of a client's IPC object; empty when there is no "mlo" object, no "links"
  /// array or no link, or when any link lacks a valid MAC address or a known band. Never throws on
  /// content.
  static std::optional<Mlo> from_json(lcw_data_t& client);
  /// The multi-link data of an AP's NETCONF client object: empty unless "mlo-enabled" is "yes" and
  /// at least one of links 1 to 3 ("mlo-link-1-mac", "mlo-link-1-band" "2", "5" or "6", ...) has a
  /// valid MAC address and a known band (other links are skipped). Never throws on content.
  static std::optional<Mlo> from_netconf_json(lcw_data_t const& client);
};
