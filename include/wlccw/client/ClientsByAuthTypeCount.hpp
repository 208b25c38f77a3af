/// \file
/// How many clients there are per authentication type: WLAN, MAC (MAB) and portal with MAB, as the
/// controller shows and exchanges them over IPC.
#pragma once

#include <wlccw/client/APClientData.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// Client counters by authentication type, all zero until clients are added.
class WLCCW_EXPORT ClientsByAuthTypeCount {
public:
  /// WLAN authenticated with an open or OWE network.
  std::uint32_t wlan_open_owe = 0;
  /// WLAN authenticated with WPA, WPA2 or WPA3 personal.
  std::uint32_t wlan_psk = 0;
  /// WLAN authenticated with WPA, WPA2 or WPA3 enterprise.
  std::uint32_t wlan_enterprise = 0;
  /// WLAN authentication pending on a secured (non-open, non-OWE) network.
  std::uint32_t wlan_unauthenticated = 0;
  /// Every client with both a WLAN method and a WLAN state, authenticated or not.
  std::uint32_t wlan_total = 0;
  /// Portal not required, MAC authenticated.
  std::uint32_t mab_authenticated = 0;
  /// Portal not required, MAC authentication pending.
  std::uint32_t mab_pending = 0;
  /// Portal authenticated with MAC authenticated.
  std::uint32_t portal_mab_authenticated_mab = 0;
  /// Portal authenticated with MAC unauthenticated, or portal reauthenticate with MAC
  /// authenticated or unauthenticated.
  std::uint32_t portal_mab_authenticated_portal = 0;
  /// Portal pending while MAC authentication is pending.
  std::uint32_t portal_mab_pending_mab = 0;
  /// Portal pending or expired with MAC authenticated or unauthenticated.
  std::uint32_t portal_mab_pending_portal = 0;

  /// Every counter zero.
  ClientsByAuthTypeCount() = default;
  /// Every record added by fill_clients_count_by_wlan, _by_mab and _by_portal_mab, in that order.
  explicit ClientsByAuthTypeCount(std::vector<APClientData> const& records);

  /// Adds the client to the WLAN counters; nothing unless its WLAN method and state are both set.
  void fill_clients_count_by_wlan(APClientData const& client);
  /// Adds the client to the MAB counters; nothing unless its MAC and portal states are both set
  /// and the portal is not required.
  void fill_clients_count_by_mab(APClientData const& client);
  /// Adds the client to the portal/MAB counters; nothing unless its MAC and portal states are both
  /// set.
  void fill_clients_count_by_portal_mab(APClientData const& client);

  /// `{"clients-by-auth-type":{},"wlan":{..},"mab":{..},"portal-mab":{..}}`, compact, every
  /// counter written as a number; "" when the root or one of its four objects cannot be made.
  std::string to_json() const;
  /// The counters of an IPC text; never null. Zero counters for text that is not JSON or has no
  /// "clients-by-auth-type"; otherwise the groups "wlan", "mab" and "portal-mab" are read in this
  /// order up to the first one missing, which stays zero with every group after it. A counter
  /// missing from its group, or not a 32-bit unsigned integer, reads as 0. Never throws on bad
  /// text.
  static std::shared_ptr<ClientsByAuthTypeCount> from_json(std::string const& text);

  /// Equal when every counter is equal.
  friend bool operator==(ClientsByAuthTypeCount const&, ClientsByAuthTypeCount const&) = default;
};
