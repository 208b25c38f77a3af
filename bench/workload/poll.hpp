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
/// The reply is read one client object at a time; a reply that turns out not to be valid JSON
/// gives no clients at all.
inline NcIpcClientList import_clients(std::string const& reply) {
  NcIpcClientList list;
  bool const whole = wlccw::cfg::for_each_array_element(
      reply.c_str(), client_array_path, [&list](lcw_data_t& client) {
        try {
          list.add_or_update(APClientData::from_netconf_json(&client));
        } catch (std::invalid_argument const&) {
        }
      });
  if (!whole) {
    list.clear();
  }
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
