/// \file
/// The AP locations known to the controller, each a location id with its time zone.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// The AP locations, in insertion order.
///
/// IPC form, a compact JSON object with one member per location id:
/// {"hq":{"id":"hq","timezone":"Europe/Berlin"},...}.
class WLCCW_EXPORT ApLocationsData {
public:
  /// One location.
  struct ApLocation {
    /// A location with the given id and time zone.
    ApLocation(std::string id_, std::string time_zone_);

    /// The location id.
    std::string id;
    /// Its time zone ("timezone" in the IPC form).
    std::string time_zone;

    /// Same id and same time zone.
    friend bool operator==(ApLocation const&, ApLocation const&) = default;
  };

  /// No locations.
  ApLocationsData() = default;
  /// The locations of a compact IPC text, in the order of the root's members. Never throws on bad
  /// text: text that is not JSON, or whose root is not an object, gives no locations. Each member
  /// gives one location read from the "id" and "timezone" inside it (the member's own name is not
  /// used); a missing text, or a member that is not an object, gives "".
  explicit ApLocationsData(std::string const& text);

  /// Sets the time zone of location id and moves the location to the end of the list: every
  /// location with that id is removed (the others keep their order), then the new one appended.
  void add(std::string const& id, std::string const& time_zone);
  /// Calls fn(id, time zone) for each location in list order, stopping after the first call that
  /// returns true. Does nothing when fn is empty.
  void for_each(std::function<bool(std::string const&, std::string const&)> const& fn) const;
  /// The locations in list order.
  std::vector<ApLocation> const& locations() const noexcept { return locations_; }

  /// A new tree of the IPC form, owned by the caller (release it with cfg_release); null when no
  /// tree can be made. Locations of the same id share one member, which the last of them fills.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made.
  std::string to_str() const;
  /// std::hash<std::string> of to_str().
  std::size_t get_hash() const;

  /// Equal when both hold equal locations in the same order.
  friend bool operator==(ApLocationsData const&, ApLocationsData const&) = default;

private:
  std::vector<ApLocation> locations_;
};
