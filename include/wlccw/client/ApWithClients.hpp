/// \file
/// The client lists of several APs in one IPC message.
#pragma once

#include <wlccw/client/NcIpcClientList.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <string>
#include <vector>

/// One AP, by its MAC address, and its clients.
class WLCCW_EXPORT ApWithClients {
public:
  /// The AP's MAC address.
  MacAddr ap_mac;
  /// The AP's clients by interface.
  NcIpcClientList clients;

  /// `[{"ap_mac":..,"client_list":{..}},..]`, compact, in vector order, each client list in its
  /// NcIpcClientList IPC form; "" when the array cannot be made. Writing stops at an entry whose
  /// object cannot be appended, and after the "ap_mac" of an entry whose client list yields no
  /// tree. Throws what NcIpcClientList::to_ipc_json throws.
  static std::string serialize(std::vector<ApWithClients> const& list);
  /// The entries of an IPC text in array order; empty for text that is not JSON or whose root is
  /// not an array. A missing or malformed "ap_mac" gives the invalid default address and the
  /// entry is kept; a missing "client_list" gives an empty list, and its client objects are read
  /// as NcIpcClientList::from_ipc_json reads them. Never throws on bad text.
  static std::vector<ApWithClients> deserialize(std::string const& text);
};
