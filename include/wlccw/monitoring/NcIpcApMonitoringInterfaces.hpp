/// \file
/// The network interfaces of an access point as it reports them in its NETCONF monitoring data,
/// with their link state, speed, duplex, rates and traffic counters. One per-interface object
/// serves as both the NETCONF and the IPC form.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The operational state of a network interface or an Ethernet port, with the texts of the
/// operating system's interface states. UNNAMED is what a text outside the table reads as; it and
/// any other value outside the table are written as "".
enum class WLCBT_OPERSTATE : std::int32_t {
  UP = 0,             ///< "up"
  DOWN = 1,           ///< "down"
  UNKNOWN = 2,        ///< "unknown"
  NOTPRESENT = 3,     ///< "notpresent"
  LOWERLAYERDOWN = 4, ///< "lowerlayerdown"
  TESTING = 5,        ///< "testing"
  DORMANT = 6,        ///< "dormant"
  UNNAMED = 7,        ///< no text: what a text outside the table reads as
};

/// The duplex mode of a link. UNNAMED is what a text outside the table reads as; it and any other
/// value outside the table are written as "".
enum class WLCBT_DUPLEX_MODE : std::int32_t {
  HALF = 0,        ///< "half"
  FULL = 1,        ///< "full"
  UNAVAILABLE = 2, ///< "unavailable"
  UNNAMED = 3,     ///< no text: what a text outside the table reads as
};

/// The interface list of one AP, always handled through a shared pointer: a null pointer means that
/// no list was received, an empty list that the AP reported none.
class WLCCW_EXPORT NcIpcApMonitoringInterfaces {
public:
  /// One network interface; the JSON keys are the same in NETCONF and IPC.
  struct ApInterfaceInfo {
    std::string name;                                      ///< "name"
    MacAddr hwaddr;                                        ///< "hwaddr"
    WLCBT_OPERSTATE operstate = WLCBT_OPERSTATE::UNNAMED;  ///< "operstate"
    std::uint64_t speed = 0;                               ///< "speed"
    WLCBT_DUPLEX_MODE duplex = WLCBT_DUPLEX_MODE::UNNAMED; ///< "duplex"
    std::uint64_t tx_actual_rate = 0;                      ///< "tx-actual-rate"
    std::uint64_t rx_actual_rate = 0;                      ///< "rx-actual-rate"
    std::uint64_t tx_bytes = 0;                            ///< "tx-bytes"
    std::uint64_t rx_bytes = 0;                            ///< "rx-bytes"
    std::uint64_t tx_packets = 0;                          ///< "tx-packets"
    std::uint64_t rx_packets = 0;                          ///< "rx-packets"
    std::uint64_t tx_errors = 0;                           ///< "tx-errors"
    std::uint64_t rx_errors = 0;                           ///< "rx-errors"
    std::uint64_t tx_drop = 0;                             ///< "tx-drop"
    std::uint64_t rx_drop = 0;                             ///< "rx-drop"

    /// Equal when every member is equal (addresses by their octets, validity ignored).
    friend bool operator==(ApInterfaceInfo const&, ApInterfaceInfo const&) = default;
  };

  /// The interfaces in the order of the JSON array.
  std::vector<ApInterfaceInfo> interfaces;

  /// Reads the "interface" array of node, one entry per element as from_json reads it: null when
  /// the member is missing or not an array, an empty record for an empty array. Never throws on bad
  /// input.
  static std::shared_ptr<NcIpcApMonitoringInterfaces> from_netconf(lcw_data_t& node);
  /// The same reading as from_netconf: both forms are alike.
  static std::shared_ptr<NcIpcApMonitoringInterfaces> from_ipc(lcw_data_t& node);

  /// Adds the array "interface" to node, one object per interface in list order; writes nothing
  /// when node is not an object.
  void to_ipc(lcw_data_t& node) const;
  /// The compact text of a top-level array of the interface objects (no enclosing key); "[]" for
  /// no interfaces.
  std::string to_ipc() const;

  /// Reads one interface object. Never rejects one: "operstate" and "duplex" texts outside their
  /// tables give UNNAMED, a malformed or missing "hwaddr" the default address, and a number that is
  /// missing or unreadable 0. An element that is not an object gives an entry of defaults.
  static ApInterfaceInfo from_json(lcw_data_t const& object);
  /// Writes one interface into object, keys in wire order. A state or duplex mode outside its table
  /// (UNNAMED included) is written as "".
  static void to_json(ApInterfaceInfo const& info, lcw_data_t& object);

  /// Equal when both lists hold equal entries in the same order.
  friend bool operator==(NcIpcApMonitoringInterfaces const&,
                         NcIpcApMonitoringInterfaces const&) = default;
};
