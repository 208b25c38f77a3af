/// \file
/// The white and black MAC address lists of an access point's intrusion detection: passed between
/// the controller's daemons as IPC JSON text and handed to the access point as NETCONF arrays.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <string>
#include <unordered_set>

/// The two address lists. No order is kept: every text form lists the addresses in the set's
/// iteration order.
///
/// IPC form: {"white-list":[...],"black-list":[...]}, each address in lower-case colon form.
class WLCCW_EXPORT ApWidsMacLists {
public:
  /// Trusted addresses.
  std::unordered_set<MacAddr> white_list;
  /// Banned addresses.
  std::unordered_set<MacAddr> black_list;

  /// Replaces the white list by a copy of list; the black list is left as it is.
  void set_white_list(std::unordered_set<MacAddr> const& list);
  /// Replaces the black list by a copy of list; the white list is left as it is.
  void set_black_list(std::unordered_set<MacAddr> const& list);

  /// The compact IPC text; "" when no root can be made. A list whose array cannot be made is left
  /// out, key and all.
  std::string ipc_serialize() const;
  /// A new object read from IPC text. Never throws on bad text: text that is not JSON gives two
  /// empty lists, a key that is missing or not an array an empty list, and an element that is no
  /// address text the default MacAddr (kept, not dropped; written back as 00:00:00:00:00:00).
  static ApWidsMacLists ipc_deserialize(std::string const& text);
  /// std::hash<std::string> of ipc_serialize().
  std::size_t get_hash() const;

  /// The white list as a compact JSON array of address strings ("[]" when empty); "" when no
  /// array can be made.
  std::string netconf_serialize_white_list() const;
  /// The black list, as netconf_serialize_white_list writes the white list.
  std::string netconf_serialize_black_list() const;
};

/// A new JSON array of the addresses' text forms, in the set's iteration order, owned by the
/// caller (release it with cfg_release); null when no array can be made.
WLCCW_EXPORT lcw_data_t* get_mac_list_json(std::unordered_set<MacAddr> const& list);
