// One poll of one AP as a controller daemon does it with the library: the NETCONF client reply is
// parsed, every client object imported into the AP's client list, and the list's IPC text and hash
// taken for change detection. The benchmarks time it; the peer's test compares its text with it.
#pragma once

#include "workload.hpp"

#include <wlccw/wlccw.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace wlccw::workload {

/// The client list of one reply. A client object the import refuses (bad address, no interface or
/// SSID) is left out, as a daemon does.
inline NcIpcClientList import_clients(std::string const& reply) {
  NcIpcClientList list;
  wlccw::cfg::Tree const root = wlccw::cfg::parse(reply);
  lcw_data_t* const clients = cfg_get_subtree_from_path(root.get(), client_array_path);
  wlccw::cfg::for_each_element(clients, [&list](lcw_data_t& client) {
    try {
      list.add_or_update(APClientData::from_netconf_json(&client));
    } catch (std::invalid_argument const&) {
    }
  });
  return list;
}

/// The whole poll: reply text to the list's IPC text and hash.
inline PollResult library_poll(std::string const& reply) {
  NcIpcClientList const list = import_clients(reply);
  PollResult out;
  out.ipc_text = list.to_str();
  out.hash = list.get_hash();
  out.clients = list.clients_count;
  return out;
}

} // namespace wlccw::workload
