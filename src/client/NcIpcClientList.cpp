// The clients of one AP by interface: updates, registration events and the IPC form of the whole
// list.
#include <wlccw/client/NcIpcClientList.hpp>

#include "detail/client_ipc.hpp"
#include "detail/tree_extensions.hpp"

#include <wlccw/cfg/owned.hpp>

#include <algorithm>

#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

// The record has no move operations (a moved-from record would lose its identity), yet the list
// takes records that are thrown away right after: an import's result. Their facts are moved over
// one by one and the identity (mac, interface, ssid) is copied, so the source stays a valid
// record. The member list below must name every member of the record; the size check stops a
// build on the platform the library ships for when a member is added and not named here.
void take_facts(APClientData& to, APClientData& from) {
#if defined(__x86_64__) && defined(__GLIBCXX__)
  static_assert(sizeof(APClientData) == 1048, "APClientData changed: update take_facts");
#endif
  to.mac = from.mac;
  to.interface = from.interface;
  to.ssid = from.ssid;
  to.ip = from.ip;
  to.band = from.band;
  to.vlan_id = from.vlan_id;
  to.hostname = std::move(from.hostname);
  to.username = std::move(from.username);
  to.domain = std::move(from.domain);
  to.ap_hostname = std::move(from.ap_hostname);
  to.ap_location = std::move(from.ap_location);
  to.uptime = from.uptime;
  to.frequency = from.frequency;
  to.channel = from.channel;
  to.rssi = std::move(from.rssi);
  to.snr = std::move(from.snr);
  to.authorized = from.authorized;
  to.wireless_mode = from.wireless_mode;
  to.link_quality = std::move(from.link_quality);
  to.link_quality_common = std::move(from.link_quality_common);
  to.statistics = std::move(from.statistics);
  to.mlo = std::move(from.mlo);
  to.wlan_auth_uptime = from.wlan_auth_uptime;
  to.mac_auth_uptime = from.mac_auth_uptime;
  to.portal_auth_uptime = from.portal_auth_uptime;
  to.eap_method = from.eap_method;
  to.mac_auth_status = from.mac_auth_status;
  to.portal_auth_status = from.portal_auth_status;
  to.wlan_auth_status = from.wlan_auth_status;
  to.wlan_auth_method = from.wlan_auth_method;
  to.auth_algorithm = from.auth_algorithm;
  to.encryption_cipher = std::move(from.encryption_cipher);
  to.encryption_group_cipher = std::move(from.encryption_group_cipher);
}

} // namespace

int NcIpcClientList::add_or_update(APClientData&& client) {
  auto entry = interfaces.find(client.interface);
  if (entry == interfaces.end()) {
    // A new interface takes the SSID of its first client; later clients do not change it.
    InterfaceDesc desc;
    desc.ssid = client.ssid;
    entry = interfaces.emplace(client.interface, std::move(desc)).first;
  }
  std::map<MacAddr, APClientData>& clients = entry->second.clients;
  int result = 0;
  // One descent finds the record or the place of a new one.
  auto const place = clients.lower_bound(client.mac);
  if (place != clients.end() && place->first == client.mac) {
    take_facts(place->second, client); // replaced whole: callers merge beforehand if they want to
    result = 2;
  } else {
    // The new entry starts as a copy of an empty record (short texts, nothing on the heap) and
    // takes everything from the given one, its identity as it is.
    static APClientData const blank(MacAddr::from_str("02:00:00:00:00:00"), "-", "-");
    APClientData& stored = clients.emplace_hint(place, client.mac, blank)->second;
    take_facts(stored, client);
    result = 1;
  }
  recount();
  return result;
}

void NcIpcClientList::del(MacAddr const& mac, std::string const& interface) {
  auto const entry = interfaces.find(interface);
  if (entry != interfaces.end()) {
    entry->second.clients.erase(mac);
    if (entry->second.clients.empty()) {
      interfaces.erase(entry);
    }
  }
  recount();
}

void NcIpcClientList::del_from_all_interfaces(MacAddr const& mac) {
  // The names are collected first because del removes entries that become empty.
  std::vector<std::string> holding;
  for (auto const& [name, desc] : interfaces) {
    if (desc.clients.find(mac) != desc.clients.end()) {
      holding.push_back(name);
    }
  }
  for (std::string const& name : holding) {
    del(mac, name);
  }
}

bool NcIpcClientList::find(MacAddr const& mac) const {
  for (auto const& entry : interfaces) {
    if (entry.second.clients.find(mac) != entry.second.clients.end()) {
      return true;
    }
  }
  return false;
}

void NcIpcClientList::recount() {
  std::size_t total = 0;
  for (auto const& entry : interfaces) {
    total += entry.second.clients.size();
  }
  clients_count = static_cast<std::uint32_t>(total);
}

void NcIpcClientList::clear() {
  interfaces.clear();
  recount();
}

void NcIpcClientList::set_username_for_client_and_update_status(std::string const& interface,
                                                                MacAddr const& mac,
                                                                std::string const& username) {
  auto const entry = interfaces.find(interface);
  if (entry == interfaces.end()) {
    return;
  }
  auto const client = entry->second.clients.find(mac);
  if (client == entry->second.clients.end()) {
    return;
  }
  client->second.username = username;
  client->second.portal_auth_status = username.empty() ? ClientPortalAuthStatus::UNAUTHENTICATED
                                                       : ClientPortalAuthStatus::AUTHENTICATED;
  recount();
}

void NcIpcClientList::update_client_as_registered(std::string const& interface, MacAddr const& mac,
                                                  std::string const& username) {
  set_username_for_client_and_update_status(interface, mac, username);
}

void NcIpcClientList::update_client_as_unregistered(std::string const& interface,
                                                    MacAddr const& mac) {
  set_username_for_client_and_update_status(interface, mac, std::string());
}

namespace {

/// Writes the list into root: an object per interface, in name order, with its SSID and its
/// clients in address order, each under its address text.
template <typename Sink> void write_list(Sink& root, NcIpcClientList const& list) {
  for (auto const& [name, desc] : list.interfaces) {
    Sink object = root.object_or_existing(wlccw::detail::Key::text(name.c_str()));
    if (!object) {
      continue;
    }
    object.set_param("ssid", desc.ssid.c_str());
    Sink clients = object.object_or_existing("client");
    if (!clients) {
      continue;
    }
    for (auto const& [mac, client] : desc.clients) {
      char key[18];
      mac.format(key);
      Sink client_object = clients.object_or_existing(wlccw::detail::Key::text(key));
      if (!client_object) {
        continue;
      }
      wlccw::detail::write_client_ipc(client_object, client);
    }
  }
}

/// Whether every interface writes under a name of its own. A name holding a NUL is cut there by
/// the tree interface, and two names cut alike share one object; only the tree can merge them.
bool interface_names_are_distinct(NcIpcClientList const& list) {
  return std::none_of(list.interfaces.begin(), list.interfaces.end(), [](auto const& entry) {
    return entry.first.find('\0') != std::string::npos;
  });
}

} // namespace

lcw_data_t* NcIpcClientList::to_ipc_json() const {
  // Owned until it is handed out, so a record writer that throws cannot leak the tree.
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root) {
    return nullptr;
  }
  wlccw::detail::TreeSink sink(root.get());
  write_list(sink, *this);
  return root.release();
}

NcIpcClientList NcIpcClientList::from_ipc_json(lcw_data_t* root) {
  NcIpcClientList list;
  if (root == nullptr || cfg_is_empty(root) != 0) {
    return list;
  }
  // Members of a node that is not an object are not visited, so such a root gives an empty list.
  wlccw::cfg::for_each_member(root, [&list](char const* name, lcw_data_t& member) {
    InterfaceDesc& desc = list.interfaces[name != nullptr ? name : ""];
    desc.ssid = cfg_get_param(&member, "ssid");
    lcw_data_t* const clients = cfg_get_subtree(&member, "client");
    if (clients == nullptr) {
      return; // the interface stays, with no clients
    }
    wlccw::cfg::for_each_member(clients, [&list, &desc](char const* key, lcw_data_t& object) {
      std::optional<APClientData> client;
      try {
        client.emplace(APClientData::from_json(&object));
      } catch (std::exception const&) {
        return; // a client the record reader refuses is dropped alone
      } catch (...) {
        list.clear();
        throw;
      }
      // The member's name is the key, whatever the record's own "mac" says.
      desc.clients.insert_or_assign(MacAddr::from_str(key), *client);
    });
  });
  list.recount();
  return list;
}

namespace {

/// Writes into text what the bundled backend would serialise from to_ipc_json, without the tree;
/// false, writing nothing, for a list whose interface names only the tree can merge and when the
/// tree interface in use is another backend's.
bool write_text(wlccw::detail::JsonTextWriter& text, NcIpcClientList const& list) {
  if (!wlccw::detail::bundled_tree() || !interface_names_are_distinct(list)) {
    return false;
  }
  wlccw::detail::TextSink root(text);
  write_list(root, list);
  return true;
}

/// Room for the text of a list: a client's IPC object takes about a kilobyte.
std::size_t expected_text_size(NcIpcClientList const& list) {
  return 1024 + std::size_t{list.clients_count} * 1152;
}

} // namespace

std::string NcIpcClientList::to_str() const {
  if (wlccw::detail::JsonTextWriter text(expected_text_size(*this)); write_text(text, *this)) {
    return text.take();
  }
  wlccw::cfg::Tree const root(to_ipc_json());
  if (!root) {
    return {};
  }
  return wlccw::cfg::compact(root.get());
}

std::size_t NcIpcClientList::get_hash() const {
  // The hash of a string is the hash of its characters: the text need not become a string.
  if (wlccw::detail::JsonTextWriter text(expected_text_size(*this)); write_text(text, *this)) {
    return std::hash<std::string_view>{}(text.view());
  }
  return std::hash<std::string>{}(to_str());
}
