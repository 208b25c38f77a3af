/// \file
/// The wireless clients of one AP as the controller keeps them: by AP interface, each interface
/// with its SSID and its clients keyed by MAC address.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

/// The wireless clients of one AP by interface, with the IPC form and change hash of the whole
/// list. Every operation that changes the list ends by recounting clients_count.
class WLCCW_EXPORT NcIpcClientList {
public:
  /// One AP interface: the SSID served on it and its clients by MAC address.
  struct InterfaceDesc {
    /// The SSID of the interface, taken from its first client.
    std::string ssid;
    /// The interface's clients, in ascending order of their MAC addresses.
    std::map<MacAddr, APClientData> clients;
  };

  /// The interfaces by name, in ascending byte order.
  std::map<std::string, InterfaceDesc> interfaces;
  /// The number of clients over all interfaces, kept by recount.
  std::uint32_t clients_count = 0;

  /// Stores the record under its interface (created with the record's SSID when new; an existing
  /// interface keeps its SSID) and MAC, replacing a record of the same MAC whole (no merge: merge
  /// with APClientData::fill_optional_data first to keep facts). Returns 1 for a new client, 2 for
  /// a replaced one. The caller's record keeps its identity; its other facts are moved out. 0, the
  /// result for an interface entry that cannot be created, is not returned by this list: running
  /// out of memory throws std::bad_alloc instead.
  int add_or_update(APClientData&& client);
  /// Removes the client from the interface, and the interface when it has no client left; nothing
  /// for an unknown interface or MAC.
  void del(MacAddr const& mac, std::string const& interface);
  /// Removes the client from every interface that holds it, and each interface left without a
  /// client; nothing when no interface holds it.
  void del_from_all_interfaces(MacAddr const& mac);
  /// Whether any interface holds a client with this MAC address.
  bool find(MacAddr const& mac) const;
  /// Sets clients_count to the number of clients over all interfaces.
  void recount();
  /// Removes every interface and client.
  void clear();
  /// Sets the client's user name (set, also when empty) and its portal state: authenticated for a
  /// name, unauthenticated for an empty one. Nothing for an unknown interface or client (the MAC
  /// is looked for on that interface only).
  void set_username_for_client_and_update_status(std::string const& interface, MacAddr const& mac,
                                                 std::string const& username);
  /// The client registered under a user name: set_username_for_client_and_update_status() with
  /// that name.
  void update_client_as_registered(std::string const& interface, MacAddr const& mac,
                                   std::string const& username);
  /// The client's registration ended: its user name becomes "" and its portal state
  /// unauthenticated. Nothing for an unknown interface or client.
  void update_client_as_unregistered(std::string const& interface, MacAddr const& mac);

  /// A new tree of the IPC form, owned by the caller (release it with cfg_release()): one member
  /// per interface, in name order, holding "ssid" and the object "client" with each client's IPC
  /// object (APClientData::to_json) under its MAC text, in address order. "{}" for an empty list;
  /// null when no root can be made. Throws like APClientData::to_json, releasing the tree.
  lcw_data_t* to_ipc_json() const;
  /// The list of an IPC tree: an empty list for a null or empty root or one that is no object. An
  /// interface without "ssid" gets "", one without "client" is kept with no client. Client objects
  /// that APClientData::from_json refuses are dropped one by one; the others are stored under the
  /// MAC address of their member name, not their own "mac". Never throws on content.
  static NcIpcClientList from_ipc_json(lcw_data_t* root);
  /// The compact text of to_ipc_json(); "" when no root can be made. Throws like to_ipc_json().
  std::string to_str() const;
  /// The standard string hash (std::hash) of to_str(): equal lists give equal hashes, whatever
  /// order they were built in. Throws like to_str().
  std::size_t get_hash() const;
};
