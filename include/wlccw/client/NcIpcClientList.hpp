// The wireless clients of one AP as the controller keeps them: by AP interface, each interface with
// its SSID and its clients keyed by MAC address.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

class WLCCW_EXPORT NcIpcClientList {
public:
  /// One AP interface: the SSID served on it and its clients by MAC address.
  struct InterfaceDesc {
    std::string ssid;
    std::map<MacAddr, APClientData> clients;
  };

  /// The interfaces by name, in ascending byte order.
  std::map<std::string, InterfaceDesc> interfaces;
  /// The number of clients over all interfaces, kept by recount.
  std::uint32_t clients_count = 0;

  /// Stores the record under its interface (created with the record's SSID when new; an existing
  /// interface keeps its SSID) and MAC, replacing a record of the same MAC whole. Returns 1 for a
  /// new client, 2 for a replaced one, 0 when the interface entry could not be created.
  int add_or_update(APClientData&& client);
  /// Removes the client from the interface, and the interface when it has no client left; nothing
  /// for an unknown interface or MAC.
  void del(MacAddr const& mac, std::string const& interface);
  /// Removes the client from every interface that holds it.
  void del_from_all_interfaces(MacAddr const& mac);
  /// Whether any interface holds a client with this MAC address.
  bool find(MacAddr const& mac) const;
  /// Sets clients_count to the number of clients over all interfaces.
  void recount();
  /// Removes every interface and client.
  void clear();
  /// Sets the client's user name (set, also when empty) and its portal state: authenticated for a
  /// name, unauthenticated for an empty one. Nothing for an unknown interface or client.
  void set_username_for_client_and_update_status(std::string const& interface, MacAddr const& mac,
                                                 std::string const& username);
  /// The client registered under a user name: set_username_for_client_and_update_status.
  void update_client_as_registered(std::string const& interface, MacAddr const& mac,
                                   std::string const& username);
  /// The client's registration ended: its user name becomes "" and its portal state
  /// unauthenticated.
  void update_client_as_unregistered(std::string const& interface, MacAddr const& mac);

  /// A new tree of the IPC form, owned by the caller (release it with cfg_release); null when no
  /// root can be made.
  lcw_data_t* to_ipc_json() const;
  /// The list of an IPC tree: an empty list for a null or empty root; client objects the record
  /// reader refuses are dropped one by one.
  static NcIpcClientList from_ipc_json(lcw_data_t* root);
  /// The compact IPC text; "" when no root can be made.
  std::string to_str() const;
  /// The standard string hash of to_str().
  std::size_t get_hash() const;
};
