/// \file
/// The physical Ethernet ports of an access point as it reports them in its NETCONF monitoring
/// data: name, logical interface, MAC address, link state, speed, duplex, media type, uptime and
/// traffic counters. One per-port object serves as both the NETCONF and the IPC form.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The Ethernet port list of one AP, always handled through a shared pointer: a null pointer means
/// that no list was received, an empty list that the AP reported none.
class WLCCW_EXPORT NcIpcApMonitoringEthernetPorts {
public:
  /// One Ethernet port; the JSON keys are the same in NETCONF and IPC.
  struct ApEthernetPortInfo {
    std::string name;                                      ///< "name", folded to lower case
    MacAddr mac_address;                                   ///< "mac-address"
    std::string logical_interface;                         ///< "logical-interface"
    WLCBT_OPERSTATE link = WLCBT_OPERSTATE::UNNAMED;       ///< "link"
    std::uint32_t speed = 0;                               ///< "speed"
    WLCBT_DUPLEX_MODE duplex = WLCBT_DUPLEX_MODE::UNNAMED; ///< "duplex"
    std::string media_type;                                ///< "media-type"
    std::uint32_t uptime = 0;                              ///< "uptime"
    std::uint64_t rx_bytes = 0;                            ///< "rx-bytes"
    std::uint64_t rx_packets = 0;                          ///< "rx-packets"
    std::uint64_t tx_bytes = 0;                            ///< "tx-bytes"
    std::uint64_t tx_packets = 0;                          ///< "tx-packets"

    /// Equal when every member is equal (addresses by their octets, validity ignored).
    friend bool operator==(ApEthernetPortInfo const&, ApEthernetPortInfo const&) = default;
  };

  /// The ports in the order of the JSON array.
  std::vector<ApEthernetPortInfo> ethernet_ports;

  /// Reads the "ethernet-ports" array of node, one entry per element as from_json reads it: null
  /// when the member is missing or not an array, an empty record for an empty array. Never throws
  /// on bad input.
  static std::shared_ptr<NcIpcApMonitoringEthernetPorts> from_netconf(lcw_data_t& node);
  /// The same reading as from_netconf: both forms are alike.
  static std::shared_ptr<NcIpcApMonitoringEthernetPorts> from_ipc(lcw_data_t& node);

  /// Adds the array "ethernet-ports" to node, one object per port in list order; writes nothing
  /// when node is not an object.
  void to_ipc(lcw_data_t& node) const;
  /// The compact text of a top-level array of the port objects (no enclosing key); "[]" for no
  /// ports.
  std::string to_ipc() const;

  /// Reads one port object. Never rejects one: the name is folded to lower case; "link" and
  /// "duplex" texts outside their tables give UNNAMED, the duplex words "enabled" (full) and
  /// "disabled" (half) being accepted besides the table's texts; a malformed or missing
  /// "mac-address" gives the default address; a number that is missing or unreadable reads as 0. An
  /// element that is not an object gives an entry of defaults.
  static ApEthernetPortInfo from_json(lcw_data_t& object);
  /// Writes one port into object, keys in wire order ("logical-interface" before "mac-address"). A
  /// link state or duplex mode outside its table (UNNAMED included) is written as ""; "enabled" and
  /// "disabled" are never written.
  static void to_json(ApEthernetPortInfo const& info, lcw_data_t& object);

  /// Equal when both lists hold equal entries in the same order.
  friend bool operator==(NcIpcApMonitoringEthernetPorts const&,
                         NcIpcApMonitoringEthernetPorts const&) = default;
};
