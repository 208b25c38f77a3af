/// \file
/// The neighbouring access points that an AP hears over the air, as it reports them in its NETCONF
/// monitoring data. The AP keeps the list under "neighbor-ap"; the IPC form keeps it under
/// "ap-neighbours".
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The neighbour list of one AP, always handled through a shared pointer: a null pointer means that
/// no list was received, an empty list that the AP reported none.
class WLCCW_EXPORT NcIpcApMonitoringApNeighbours {
public:
  /// One neighbouring AP; the per-entry keys are the same in NETCONF and IPC.
  struct ApNeighbourInfo {
    MacAddr bssid;                         ///< "bssid"
    std::string ssid;                      ///< "ssid", cleaned by decode_html_safe
    std::uint32_t channel = 0;             ///< "channel"
    std::int32_t signal_level = 0;         ///< "signal-level"
    bool privacy = false;                  ///< "privacy", true only for JSON true
    std::uint32_t bandwidth = 0;           ///< "bandwidth"
    std::uint32_t last_seen = 0;           ///< "last-seen"
    std::optional<bool> controlled_by_wlc; ///< "controlled-by-wlc"; empty unless a boolean

    /// Equal when every member is equal (addresses by their octets, validity ignored).
    friend bool operator==(ApNeighbourInfo const&, ApNeighbourInfo const&) = default;
  };

  /// The neighbours in the order of the JSON array.
  std::vector<ApNeighbourInfo> neighbours;

  /// Reads the "neighbor-ap" array of an AP's node, one entry per element as from_json reads it:
  /// null when the member is missing or not an array, an empty record for an empty array. Never
  /// throws on bad input.
  static std::shared_ptr<NcIpcApMonitoringApNeighbours> from_netconf(lcw_data_t& node);
  /// Reads the "ap-neighbours" array of an IPC node by the same rules as from_netconf.
  static std::shared_ptr<NcIpcApMonitoringApNeighbours> from_ipc(lcw_data_t& node);
  /// Reads the compact text of a top-level array of neighbour objects, as to_ipc() writes it: null
  /// for text that is not JSON or not an array.
  static std::shared_ptr<NcIpcApMonitoringApNeighbours> from_ipc(std::string const& text);

  /// Adds the array "ap-neighbours" to node, one object per neighbour in list order; writes nothing
  /// when node is not an object.
  void to_ipc(lcw_data_t& node) const;
  /// The compact text of a top-level array of the neighbour objects (no enclosing key); "[]" for
  /// no neighbours.
  std::string to_ipc() const;

  /// Reads one neighbour object. Never rejects one: a malformed or missing "bssid" gives the
  /// default address, the SSID is cleaned by external_data::ap::decode_html_safe, an absent or
  /// non-boolean "controlled-by-wlc" leaves it empty, and a number or boolean that is missing or
  /// unreadable reads as 0 or false. An element that is not an object gives an entry of defaults.
  static ApNeighbourInfo from_json(lcw_data_t& object);
  /// Writes one neighbour into object, keys in wire order; "controlled-by-wlc" only when it is
  /// known. The BSSID is written by its octets whatever its validity.
  static void to_json(ApNeighbourInfo const& info, lcw_data_t& object);

  /// Equal when both lists hold equal entries in the same order.
  friend bool operator==(NcIpcApMonitoringApNeighbours const&,
                         NcIpcApMonitoringApNeighbours const&) = default;
};
