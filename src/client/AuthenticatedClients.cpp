#include <wlccw/client/AuthenticatedClients.hpp>

#include <wlccw/cfg/owned.hpp>

#include <cstdint>
#include <optional>
#include <utility>

namespace {

/// The numeric value of an authentication state or method; the rules below are stated on these
/// numbers, so a value outside an enumeration's names (one forced in by a cast) falls under
/// whichever rule its number meets.
template <typename E> constexpr std::int32_t value(E e) noexcept {
  return static_cast<std::int32_t>(e);
}

// MAC states: 0 authenticated, 1 unauthenticated, 2 pending, 3 not required.
// Portal states: 0 authenticated, 1 reauthenticate, 2 unauthenticated, 3 pending, 4 expired,
// 5 not required. WLAN states: 0 authenticated, 1 unauthenticated, 2 pending.

} // namespace

AuthenticatedClients::AuthenticatedClients(std::vector<APClientData> const& records) {
  for (APClientData const& record : records) {
    if (is_auth(record)) {
      clients.push_back(Client{record.mac, record.ssid, record.username});
    }
  }
}

bool AuthenticatedClients::is_use_portal_or_mab(APClientData const& client) {
  if (!client.mac_auth_status || !client.portal_auth_status) {
    return false;
  }
  std::int32_t const mac = value(*client.mac_auth_status);
  std::int32_t const portal = value(*client.portal_auth_status);
  if (portal >= 0 && portal <= 4) {
    return true;
  }
  if (portal == 5) {
    return mac >= 0 && mac <= 2;
  }
  return false;
}

bool AuthenticatedClients::is_auth_by_wlan(APClientData const& client) {
  return client.wlan_auth_method && client.wlan_auth_status && value(*client.wlan_auth_status) == 0;
}

bool AuthenticatedClients::is_auth_by_mab(APClientData const& client) {
  return client.mac_auth_status && client.portal_auth_status &&
         value(*client.portal_auth_status) == 5 && value(*client.mac_auth_status) == 0;
}

bool AuthenticatedClients::is_auth_by_portal_mab(APClientData const& client) {
  if (!client.mac_auth_status || !client.portal_auth_status) {
    return false;
  }
  std::int32_t const mac = value(*client.mac_auth_status);
  std::int32_t const portal = value(*client.portal_auth_status);
  return (portal == 0 || portal == 1) && (mac == 0 || mac == 1);
}

bool AuthenticatedClients::is_auth(APClientData const& client) {
  if (is_use_portal_or_mab(client)) {
    return (is_auth_by_mab(client) || is_auth_by_portal_mab(client)) && is_auth_by_wlan(client);
  }
  return is_auth_by_wlan(client);
}

std::string AuthenticatedClients::to_json() const {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  if (!root) {
    return {};
  }
  lcw_data_t* const array = cfg_insert_empty_array(root.get(), "authenticated-clients");
  if (array == nullptr) {
    return {};
  }
  char mac[18];
  for (Client const& client : clients) {
    lcw_data_t* const object = cfg_insert_empty_subtree(array, nullptr);
    if (object == nullptr) {
      continue; // a client that cannot be written is left out; the others still are
    }
    client.mac.format(mac);
    cfg_set_param(object, "mac", mac);
    cfg_set_param(object, "ssid", client.ssid.c_str());
    cfg_set_param_opt(object, "username", client.username);
  }
  return wlccw::cfg::compact(root.get());
}

AuthenticatedClients AuthenticatedClients::from_json(std::string const& text) {
  AuthenticatedClients result;
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return result;
  }
  wlccw::cfg::for_each_element(cfg_get_subtree(root.get(), "authenticated-clients"),
                               [&result](lcw_data_t& element) {
                                 // Each text is taken before the next read of the tree, which may
                                 // reuse its buffer.
                                 Client client;
                                 client.mac = MacAddr::from_str(cfg_get_param(&element, "mac"));
                                 client.ssid = cfg_get_param(&element, "ssid");
                                 client.username = cfg_get_param_opt(&element, "username");
                                 result.clients.push_back(std::move(client));
                               });
  return result;
}
