/// \file
/// The message by which one controller of a redundant pair tells its peer the hardware board type
/// and software version of every access point it knows.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

/// Board type and software version per access point, keyed by the access point's MAC address.
/// Instances travel as std::shared_ptr<IpcMsgVrrpUpdateBoardTypes>.
///
/// IPC form: an array with one object per access point,
/// [{"mac":"<mac>","board-type":"...","sw-version":"..."},...], in the map's iteration order (so
/// the order of the objects is not fixed); inside a parent object it is the member "aps".
class WLCCW_EXPORT IpcMsgVrrpUpdateBoardTypes {
public:
  /// What one access point runs on.
  struct BoardTypeDesc {
    /// Hardware board type ("board-type").
    std::string board_type;
    /// Software version ("sw-version").
    std::string sw_version;

    /// Same board type and software version.
    friend bool operator==(BoardTypeDesc const&, BoardTypeDesc const&) = default;
  };

  /// Board type and version by access point address (its octets; validity takes no part).
  using Map = std::unordered_map<MacAddr, BoardTypeDesc>;

  /// Board type and version per access point.
  Map aps;

  /// The compact IPC array text: one object per entry, "mac", "board-type", "sw-version" in that
  /// order, "[]" for an empty map; "" when no array can be made.
  std::string to_str() const;
  /// Inserts the same array into parent as its member "aps" (replacing one that exists). Nothing
  /// when parent is not an object.
  void to_json(lcw_data_t& parent) const;

  /// Reads the array text that to_str writes. Null when the text is not JSON or its root is not an
  /// array; never throws on bad text. An element without a MAC address text under "mac" (missing,
  /// malformed, or an element that is not an object) is kept under the all-zero address, missing
  /// strings read as ""; of elements with the same address octets, the first one stays.
  static std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> from_str(std::string const& text);
  /// Reads the member "aps" of parent by the rules of from_str; null when it is missing or not an
  /// array.
  static std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> from_json(lcw_data_t& parent);

  /// Equal when both maps hold the same entries, in whatever order.
  friend bool operator==(IpcMsgVrrpUpdateBoardTypes const&,
                         IpcMsgVrrpUpdateBoardTypes const&) = default;

private:
  /// Writes one entry's "mac", "board-type" and "sw-version" into an empty object.
  static void _to_json(Map::value_type const& entry, lcw_data_t& object);
  /// One array element as an entry; never rejects (see from_str).
  static std::pair<MacAddr, BoardTypeDesc> _from_json(lcw_data_t const& element);
};
