// The client families: one client record, the client list of an AP by interface, the
// authentication aggregates and the client lists of several APs.

#include "cli/family.hpp"
#include "cli/io.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/ApWithClients.hpp>
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>
#include <wlccw/client/NcIpcClientList.hpp>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace wlccw::tool {

namespace {

// ---- Finding the client objects of a NETCONF input ---------------------------------------------

/// Whether the node is an array holding at least one object that carries "hw-addr".
bool holds_clients(lcw_data_t const* node) {
  if (!is_array(node)) {
    return false;
  }
  bool found = false;
  cfg::for_each_element(node, [&found](lcw_data_t& element) {
    found = found || (is_object(&element) && cfg_contain_param(&element, "hw-addr") != 0);
  });
  return found;
}

/// The first array below node (node included) that holds client objects, depth first; null when
/// there is none.
lcw_data_t const* find_client_array(lcw_data_t const* node) {
  if (holds_clients(node)) {
    return node;
  }
  lcw_data_t const* found = nullptr;
  auto const visit = [&found](lcw_data_t const& child) {
    if (found == nullptr) {
      found = find_client_array(&child);
    }
  };
  if (is_array(node)) {
    cfg::for_each_element(node, [&visit](lcw_data_t& element) { visit(element); });
  } else {
    cfg::for_each_member(node, [&visit](char const*, lcw_data_t& member) { visit(member); });
  }
  return found;
}

/// The elements of an array of client objects; Rejected for an element that is no object.
std::vector<lcw_data_t*> client_elements(lcw_data_t const* array, std::string const& where) {
  std::vector<lcw_data_t*> out;
  cfg::for_each_element(array, [&out, &where](lcw_data_t& element) {
    if (!is_object(&element)) {
      throw Rejected("an element of the client array" + where + " is not an object");
    }
    out.push_back(&element);
  });
  if (out.empty()) {
    throw Rejected("no client objects found" + where);
  }
  return out;
}

/// The client objects of a NETCONF input: the node at --path (an object or an array of them), the
/// root when it is one client object, else the first array of client objects, depth first.
std::vector<lcw_data_t*> find_clients(lcw_data_t* root, NetconfOptions const& options) {
  if (!options.path.empty()) {
    std::string const where = " at " + printable(options.path);
    lcw_data_t* const node = cfg_get_subtree_from_path(root, options.path.c_str());
    if (node == nullptr) {
      throw Rejected("nothing" + where);
    }
    if (is_object(node)) {
      return {node};
    }
    if (!is_array(node)) {
      throw Rejected("no client object or array" + where);
    }
    return client_elements(node, where);
  }
  if (is_object(root) && cfg_contain_param(root, "hw-addr") != 0) {
    return {root};
  }
  lcw_data_t const* const array = find_client_array(root);
  if (array == nullptr) {
    throw Rejected("no client objects found");
  }
  return client_elements(array, "");
}

/// The client records of a NETCONF input, in input order. A client the record reader refuses
/// rejects the input with the reader's own text.
std::vector<APClientData> read_netconf_clients(std::string const& text,
                                               NetconfOptions const& options) {
  cfg::Tree const root = cfg::parse(text);
  std::vector<APClientData> records;
  for (lcw_data_t* object : find_clients(root.get(), options)) {
    records.push_back(APClientData::from_netconf_json(object));
  }
  return records;
}

// ---- Summaries --------------------------------------------------------------------------------

Table client_table() {
  return {{"MAC", "INTERFACE", "SSID", "BAND", "CHANNEL", "SIGNAL", "AUTH"}, {}};
}

void add_client_row(Table& table, APClientData const& client) {
  bool const measured = client.rssi.reported || !client.rssi.values.empty();
  table.rows.push_back({client.mac.str(), printable(client.interface), printable(client.ssid),
                        or_dash(client.get_band_str()),
                        client.channel ? std::to_string(*client.channel) : std::string("-"),
                        measured ? std::to_string(client.rssi.get_signal()) + " dBm" : "-",
                        or_dash(client.get_auth_description())});
}

// ---- client -----------------------------------------------------------------------------------

Converted convert_client(APClientData const& client) {
  Converted out{client.to_json_str(), std::nullopt, client_table()};
  add_client_row(out.summary, client);
  return out;
}

std::vector<Converted> client_from_netconf(std::string const& text, NetconfOptions const& options) {
  std::vector<Converted> out;
  for (APClientData const& client : read_netconf_clients(text, options)) {
    out.push_back(convert_client(client));
  }
  return out;
}

Converted client_from_ipc(std::string const& text) {
  cfg::Tree const root = object_input(text, "a client object");
  return convert_client(APClientData::from_json(root.get()));
}

// ---- clients ----------------------------------------------------------------------------------

Converted convert_client_list(NcIpcClientList const& list) {
  Converted out{list.to_str(), list.get_hash(), client_table()};
  for (auto const& [name, interface] : list.interfaces) {
    for (auto const& [mac, client] : interface.clients) {
      add_client_row(out.summary, client);
    }
  }
  return out;
}

std::vector<Converted> clients_from_netconf(std::string const& text,
                                            NetconfOptions const& options) {
  NcIpcClientList list;
  for (APClientData& client : read_netconf_clients(text, options)) {
    list.add_or_update(std::move(client));
  }
  list.recount();
  std::vector<Converted> out;
  out.push_back(convert_client_list(list));
  return out;
}

Converted clients_from_ipc(std::string const& text) {
  cfg::Tree const root = object_input(text, "a client list by interface");
  cfg::for_each_member(root.get(), [](char const* name, lcw_data_t& member) {
    if (!is_object(&member)) {
      throw Rejected("member '" + printable(name != nullptr ? name : "") +
                     "' is no interface object");
    }
  });
  return convert_client_list(NcIpcClientList::from_ipc_json(root.get()));
}

// ---- authenticated-clients --------------------------------------------------------------------

Converted convert_authenticated(AuthenticatedClients const& list) {
  Converted out{list.to_json(), std::nullopt, {{"MAC", "SSID", "USERNAME"}, {}}};
  for (AuthenticatedClients::Client const& client : list.clients) {
    out.summary.rows.push_back(
        {client.mac.str(), printable(client.ssid), or_dash(client.username)});
  }
  return out;
}

std::vector<Converted> authenticated_from_netconf(std::string const& text,
                                                  NetconfOptions const& options) {
  std::vector<Converted> out;
  out.push_back(convert_authenticated(AuthenticatedClients(read_netconf_clients(text, options))));
  return out;
}

Converted authenticated_from_ipc(std::string const& text) {
  cfg::Tree const root = object_input(text, "an authenticated-clients message");
  if (!is_array(cfg_get_subtree(root.get(), "authenticated-clients"))) {
    throw Rejected("no \"authenticated-clients\" array");
  }
  return convert_authenticated(AuthenticatedClients::from_json(text));
}

// ---- clients-by-auth-type ---------------------------------------------------------------------

Converted convert_counts(ClientsByAuthTypeCount const& counts) {
  Converted out{counts.to_json(), std::nullopt, {{"GROUP", "COUNTER", "CLIENTS"}, {}}};
  auto const row = [&out](char const* group, char const* counter, std::uint32_t value) {
    out.summary.rows.push_back({group, counter, std::to_string(value)});
  };
  row("wlan", "open-owe", counts.wlan_open_owe);
  row("wlan", "psk", counts.wlan_psk);
  row("wlan", "enterprise", counts.wlan_enterprise);
  row("wlan", "unauthenticated", counts.wlan_unauthenticated);
  row("wlan", "total", counts.wlan_total);
  row("mab", "authenticated", counts.mab_authenticated);
  row("mab", "pending", counts.mab_pending);
  row("portal-mab", "authenticated-mab", counts.portal_mab_authenticated_mab);
  row("portal-mab", "authenticated-portal", counts.portal_mab_authenticated_portal);
  row("portal-mab", "pending-mab", counts.portal_mab_pending_mab);
  row("portal-mab", "pending-portal", counts.portal_mab_pending_portal);
  return out;
}

std::vector<Converted> counts_from_netconf(std::string const& text, NetconfOptions const& options) {
  std::vector<Converted> out;
  out.push_back(convert_counts(ClientsByAuthTypeCount(read_netconf_clients(text, options))));
  return out;
}

Converted counts_from_ipc(std::string const& text) {
  cfg::Tree const root = object_input(text, "a clients-by-auth-type message");
  if (cfg_contain_param(root.get(), "clients-by-auth-type") == 0) {
    throw Rejected("no \"clients-by-auth-type\" member");
  }
  return convert_counts(*ClientsByAuthTypeCount::from_json(text));
}

// ---- ap-with-clients --------------------------------------------------------------------------

Converted ap_with_clients_from_ipc(std::string const& text) {
  cfg::Tree const root = cfg::parse(text);
  if (!is_array(root.get())) {
    throw Rejected("not a JSON array; expected AP entries");
  }
  cfg::for_each_element(root.get(), [](lcw_data_t& element) {
    if (!is_object(&element)) {
      throw Rejected("an AP entry is not an object");
    }
  });
  std::vector<ApWithClients> const list = ApWithClients::deserialize(text);
  Converted out{
      ApWithClients::serialize(list), std::nullopt, {{"AP", "CLIENTS", "INTERFACES"}, {}}};
  for (ApWithClients const& ap : list) {
    std::string interfaces;
    for (auto const& [name, interface] : ap.clients.interfaces) {
      interfaces += (interfaces.empty() ? "" : ",") + printable(name);
    }
    out.summary.rows.push_back({ap.ap_mac.str(), std::to_string(ap.clients.clients_count),
                                interfaces.empty() ? std::string("-") : interfaces});
  }
  return out;
}

} // namespace

void add_client_families(std::vector<Family>& out) {
  out.push_back({"client", "One client record (NETCONF: a client object, an array or a reply)",
                 client_from_netconf, client_from_ipc});
  out.push_back({"clients", "The clients of an AP gathered by interface (NcIpcClientList)",
                 clients_from_netconf, clients_from_ipc});
  out.push_back({"authenticated-clients", "The authenticated clients of a set of clients",
                 authenticated_from_netconf, authenticated_from_ipc});
  out.push_back({"clients-by-auth-type", "Client counters by authentication type",
                 counts_from_netconf, counts_from_ipc});
  out.push_back(
      {"ap-with-clients", "The client lists of several APs", nullptr, ap_with_clients_from_ipc});
}

} // namespace wlccw::tool
