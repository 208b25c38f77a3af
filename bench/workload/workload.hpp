// Workloads for the benchmarks: NETCONF replies as an AP writes them, generated from a seed so
// that every run and every program measures the same bytes.
//
// A client reply holds N client objects with every key an AP sends: identity, address, VLAN, host
// and user names (some HTML-escaped, some non-ASCII), uptime clock texts, per-antenna numbered
// signals, rate texts with modulation, bandwidths, traffic counters, the authentication state and
// ciphers, and for some clients the flattened keys of two or three multi-link links. As an AP
// following RFC 7951 does, some integers come as JSON strings. A few values are the ones the
// readers turn into nothing (a byte counter beyond 31 bits, a rate text without a number, the
// cipher word "no-cipher"), in the proportions a busy AP shows them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace wlccw::workload {

/// What one poll of a client reply gives: the IPC text of the AP's client list, its hash (the
/// standard string hash of the text) and the number of clients in it.
struct PollResult {
  std::string ipc_text;
  std::size_t hash = 0;
  std::size_t clients = 0;
};

/// Where the client array stands in a generated client reply.
inline constexpr char const* client_array_path = "/rpc-reply/data/clients";

/// A NETCONF reply {"error":false,"rpc-reply":{"data":{"clients":[...]}}} with `clients` client
/// objects, compact. The same seed and count give the same text; client MAC addresses are distinct
/// within one reply.
std::string client_reply(std::size_t clients, std::uint64_t seed);

/// How many entries each list of a generated monitoring reply holds.
struct MonitoringShape {
  std::size_t radios = 4;
  std::size_t interfaces = 8;
  std::size_t ports = 4;
  std::size_t neighbours = 64;
};

/// A whole NETCONF monitoring reply: the device information, the radio interfaces, the network
/// interfaces, the Ethernet ports and the neighbouring APs, under /rpc-reply/data/monitoring.
std::string monitoring_reply(MonitoringShape const& shape, std::uint64_t seed);

} // namespace wlccw::workload
