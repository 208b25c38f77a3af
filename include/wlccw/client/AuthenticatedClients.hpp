/// \file
/// Which clients count as authenticated: the predicates that decide it from a client record's four
/// authentication states, and the list of such clients as it travels over IPC.
#pragma once

#include <wlccw/client/APClientData.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <optional>
#include <string>
#include <vector>

/// The authenticated clients of a set of client records, in the order of the records.
class WLCCW_EXPORT AuthenticatedClients {
public:
  /// One authenticated client: its address, its network and the user name it registered with.
  struct Client {
    /// The client's MAC address.
    MacAddr mac;
    /// The SSID of the client's network.
    std::string ssid;
    /// The user name the client registered with; empty when none is known.
    std::optional<std::string> username;

    /// Member by member; MAC addresses compare by their six octets.
    friend bool operator==(Client const&, Client const&) = default;
  };

  /// The clients in the order they were added or read.
  std::vector<Client> clients;

  /// No client.
  AuthenticatedClients() = default;
  /// The records for which is_auth holds, in vector order, each reduced to mac, ssid and username.
  explicit AuthenticatedClients(std::vector<APClientData> const& records);

  /// Whether the client goes through portal or MAC (MAB) authentication: both the MAC and the
  /// portal states are set, and either the portal state is authenticated, reauthenticate,
  /// unauthenticated, pending or expired, or it is not-required while the MAC state is
  /// authenticated, unauthenticated or pending. The predicates never throw; a state forced in by a
  /// cast counts by its number.
  static bool is_use_portal_or_mab(APClientData const& client);
  /// A WLAN method is set and the WLAN state is authenticated.
  static bool is_auth_by_wlan(APClientData const& client);
  /// Portal not required and MAC authenticated.
  static bool is_auth_by_mab(APClientData const& client);
  /// Portal authenticated or reauthenticate, MAC authenticated or unauthenticated.
  static bool is_auth_by_portal_mab(APClientData const& client);
  /// For a portal or MAB client: (is_auth_by_mab or is_auth_by_portal_mab) and is_auth_by_wlan;
  /// for any other client: is_auth_by_wlan.
  static bool is_auth(APClientData const& client);

  /// `{"authenticated-clients":[{"mac":..,"ssid":..,"username":..},..]}`, compact; "username" is
  /// left out for a client without one, "mac" is written whatever its validity flag. "" when the
  /// root or the array cannot be made; a client whose object cannot be appended is left out.
  std::string to_json() const;
  /// The list of an IPC text: empty for text that is not JSON or has no "authenticated-clients"
  /// array. Every element is kept: a missing or malformed "mac" gives the invalid default
  /// address, a missing "ssid" "", a missing "username" no name. Never throws on bad text.
  static AuthenticatedClients from_json(std::string const& text);

  /// Equal when the client lists are equal, in order.
  friend bool operator==(AuthenticatedClients const&, AuthenticatedClients const&) = default;
};
