// Every combination of a client record's four authentication facts, each absent or any of its
// values, for the tests of the authentication predicates and counters.
#pragma once

#include <wlccw/client/APClientData.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/enums/ClientMacAuthStatus.hpp>
#include <wlccw/enums/ClientPortalAuthStatus.hpp>
#include <wlccw/enums/ClientWlanAuthMethod.hpp>
#include <wlccw/enums/ClientWlanAuthStatus.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace wlccw::test {

/// The four authentication facts of one client record.
struct AuthFacts {
  std::optional<ClientMacAuthStatus> mac;
  std::optional<ClientPortalAuthStatus> portal;
  std::optional<ClientWlanAuthStatus> wlan;
  std::optional<ClientWlanAuthMethod> method;
};

inline std::vector<std::optional<ClientMacAuthStatus>> const& all_mac_states() {
  using E = ClientMacAuthStatus;
  static std::vector<std::optional<E>> const states{
      std::nullopt, E::AUTHENTICATED, E::UNAUTHENTICATED, E::PENDING, E::NOT_REQUIRED};
  return states;
}

inline std::vector<std::optional<ClientPortalAuthStatus>> const& all_portal_states() {
  using E = ClientPortalAuthStatus;
  static std::vector<std::optional<E>> const states{
      std::nullopt, E::AUTHENTICATED, E::REAUTHENTICATE, E::UNAUTHENTICATED,
      E::PENDING,   E::EXPIRED,       E::NOT_REQUIRED};
  return states;
}

inline std::vector<std::optional<ClientWlanAuthStatus>> const& all_wlan_states() {
  using E = ClientWlanAuthStatus;
  static std::vector<std::optional<E>> const states{std::nullopt, E::AUTHENTICATED,
                                                    E::UNAUTHENTICATED, E::PENDING};
  return states;
}

inline std::vector<std::optional<ClientWlanAuthMethod>> const& all_wlan_methods() {
  using E = ClientWlanAuthMethod;
  static std::vector<std::optional<E>> const methods{
      std::nullopt,       E::OPEN, E::WPA, E::WPA2, E::WPA3, E::WPA_ENTERPRISE, E::WPA2_ENTERPRISE,
      E::WPA3_ENTERPRISE, E::OWE};
  return methods;
}

/// All 5 x 7 x 4 x 9 = 1260 combinations.
inline std::vector<AuthFacts> all_auth_facts() {
  std::vector<AuthFacts> all;
  for (auto const& mac : all_mac_states()) {
    for (auto const& portal : all_portal_states()) {
      for (auto const& wlan : all_wlan_states()) {
        for (auto const& method : all_wlan_methods()) {
          all.push_back(AuthFacts{mac, portal, wlan, method});
        }
      }
    }
  }
  return all;
}

/// A readable form of the facts for failure messages ("-" for an absent fact).
inline std::string describe(AuthFacts const& facts) {
  auto text = [](auto const& value) { return convert_to_ipc_str(value).value_or("-"); };
  return "mac=" + text(facts.mac) + " portal=" + text(facts.portal) + " wlan=" + text(facts.wlan) +
         " method=" + text(facts.method);
}

/// The MAC address 02:00:00:00:hi:lo of a number below 65536.
inline MacAddr numbered_mac(std::size_t n) {
  MacAddr mac = MacAddr::from_str("02:00:00:00:00:00");
  mac.bytes[4] = static_cast<unsigned char>((n >> 8U) & 0xffU);
  mac.bytes[5] = static_cast<unsigned char>(n & 0xffU);
  return mac;
}

/// A client record with these facts; its MAC address is numbered by n.
inline APClientData make_auth_client(AuthFacts const& facts, std::size_t n = 1) {
  APClientData client(numbered_mac(n), "wlan0", "Office");
  client.mac_auth_status = facts.mac;
  client.portal_auth_status = facts.portal;
  client.wlan_auth_status = facts.wlan;
  client.wlan_auth_method = facts.method;
  return client;
}

} // namespace wlccw::test
