// The readers of client lists on arbitrary text: NcIpcClientList::from_ipc_json of the parsed
// input, AuthenticatedClients::from_json, ClientsByAuthTypeCount::from_json and
// ApWithClients::deserialize. None of them throws on bad text, and for each, the text written from
// what it read, read and written again, is the same text.
#include "fuzz_support.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/ApWithClients.hpp>
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>
#include <wlccw/client/NcIpcClientList.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace {

std::string client_list_text(std::string const& text) {
  wlccw::cfg::Tree const tree = wlccw::cfg::parse(text);
  NcIpcClientList const list = NcIpcClientList::from_ipc_json(tree.get());
  std::uint32_t clients = 0;
  for (auto const& entry : list.interfaces) {
    clients += static_cast<std::uint32_t>(entry.second.clients.size());
  }
  wlccw::fuzz::check(list.clients_count == clients);
  return list.to_str();
}

std::string authenticated_text(std::string const& text) {
  return AuthenticatedClients::from_json(text).to_json();
}

std::string by_auth_type_text(std::string const& text) {
  std::shared_ptr<ClientsByAuthTypeCount> const counts = ClientsByAuthTypeCount::from_json(text);
  wlccw::fuzz::check(counts != nullptr);
  return counts->to_json();
}

std::string ap_with_clients_text(std::string const& text) {
  return ApWithClients::serialize(ApWithClients::deserialize(text));
}

/// read(write(read(text))) writes what write(read(text)) wrote.
template <typename Trip> void check_round_trip(std::string const& text, Trip trip) {
  std::string const first = trip(text);
  std::string const second = trip(first);
  wlccw::fuzz::check_same(first, second);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);
  check_round_trip(text, client_list_text);
  check_round_trip(text, authenticated_text);
  check_round_trip(text, by_auth_type_text);
  check_round_trip(text, ap_with_clients_text);
  return 0;
}
