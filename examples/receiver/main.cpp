// A daemon on the receiving end of the controller's IPC messages: an AP's client list as the
// client daemon sends it after a poll, one client record, and an AP's device information. Each
// text is read back into its record and summarised the way the command line shows it; then each
// reader is given a damaged text (the message cut short in transit), to show what it gives back.
//
// The messages are the files in the directory given as the argument:
//   client-list.json   an AP's client list; one client object in it has lost its "ssid"
//   client.json        one client record
//   information.json   an AP's device information
//
//   receiver messages/
#include <wlccw/wlccw.hpp>

#include <cstdio>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

/// The message as it arrived: the file's text without its final newline.
std::string read_message(std::string const& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    throw std::runtime_error("cannot read " + path);
  }
  std::ostringstream text;
  text << in.rdbuf();
  std::string message = text.str();
  while (!message.empty() && (message.back() == '\n' || message.back() == '\r')) {
    message.pop_back();
  }
  return message;
}

/// The first half of a message: what a reader gets when the sender's text is cut short.
std::string cut_short(std::string const& message) {
  return message.substr(0, message.size() / 2);
}

int failures = 0;

void check(bool ok, char const* what) {
  if (!ok) {
    std::fprintf(stderr, "check failed: %s\n", what);
    ++failures;
  }
}

/// How the command line shows a client's authentication: "-" when there is nothing to show.
std::string auth_of(APClientData const& client) {
  return client.get_auth_description().value_or("-");
}

/// Reads an AP's client list. A text that is not JSON parses to no tree, and the list read from
/// no tree is empty; a client object the record reader refuses is dropped, the others are kept.
NcIpcClientList read_client_list(std::string const& message) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(message);
  return NcIpcClientList::from_ipc_json(root.get());
}

/// The list's record of the client with this MAC address on this interface; null when none.
APClientData const* find_client(NcIpcClientList const& list, std::string const& interface,
                                MacAddr const& mac) {
  auto const entry = list.interfaces.find(interface);
  if (entry == list.interfaces.end()) {
    return nullptr;
  }
  auto const client = entry->second.clients.find(mac);
  return client == entry->second.clients.end() ? nullptr : &client->second;
}

void print_client_list(NcIpcClientList const& list) {
  std::printf("  clients: %u\n", list.clients_count);
  for (auto const& [name, interface] : list.interfaces) {
    std::printf("  %s (SSID %s), clients: %zu\n", name.c_str(), interface.ssid.c_str(),
                interface.clients.size());
    for (auto const& [mac, client] : interface.clients) {
      std::printf("    %s  signal %d dBm  %s\n", mac.str().c_str(), client.rssi.get_signal(),
                  auth_of(client).c_str());
    }
  }
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s MESSAGE-DIRECTORY\n", argv[0]);
    return 2;
  }
  std::string const directory = argv[1];
  std::string list_text;
  std::string client_text;
  std::string information_text;
  try {
    list_text = read_message(directory + "/client-list.json");
    client_text = read_message(directory + "/client.json");
    information_text = read_message(directory + "/information.json");
  } catch (std::exception const& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }

  // ---- An AP's client list ----
  std::printf("client list\n");
  NcIpcClientList const list = read_client_list(list_text);
  print_client_list(list);
  // The client without an SSID is dropped; its interface stays, with no client.
  check(list.clients_count == 2, "two of the three clients kept");
  auto const guest = list.interfaces.find("wlan0-vap0");
  check(list.interfaces.size() == 3 && guest != list.interfaces.end() &&
            guest->second.clients.empty(),
        "the interface of the dropped client is listed without clients");

  // ---- One client record ----
  std::printf("client\n");
  try {
    APClientData const client = APClientData::from_json_str(client_text);
    std::printf("  %s on %s (SSID %s): %s\n", client.mac.str().c_str(), client.interface.c_str(),
                client.ssid.c_str(), auth_of(client).c_str());
    check(auth_of(client) == "WPA2-Enterprise/Authenticated", "the laptop's authentication");
    // The same client read from the list and from its own message is the same record.
    APClientData const* const listed = find_client(list, client.interface, client.mac);
    check(listed != nullptr && *listed == client, "the client record equals the list's");
  } catch (std::invalid_argument const& e) {
    std::printf("  refused: %s\n", e.what());
    check(false, "the client message is read");
  }

  // ---- An AP's device information ----
  std::printf("device information\n");
  NcIpcApMonitoringInformation const information(information_text);
  if (information.error) {
    std::printf("  no information for this AP\n");
  } else {
    std::printf("  %s: %s, %s rev. %s, up %s, powered by %s\n", information.hostname.c_str(),
                information.secondary_software_version.c_str(), information.hw_platform.c_str(),
                information.hw_revision.c_str(), information.uptime.c_str(),
                power_supply_to_str(information.power_supply).c_str());
  }
  check(!information.error && information.hostname == "ap-lobby-3F-east" &&
            information.power_supply == PowerSupply::POE_PLUS,
        "the device information");
  // Written back, the record gives the text it came from, so its hash is the sender's.
  check(information.get_hash() == std::hash<std::string>{}(information_text),
        "the information's hash is the hash of the received text");

  // ---- Damaged messages: what each reader gives back ----
  std::printf("damaged messages\n");
  NcIpcClientList const no_list = read_client_list(cut_short(list_text));
  std::printf("  client list: clients %u, interfaces %zu\n", no_list.clients_count,
              no_list.interfaces.size());
  check(no_list.clients_count == 0 && no_list.interfaces.empty(), "a damaged list is empty");

  try {
    APClientData const client = APClientData::from_json_str(cut_short(client_text));
    std::printf("  client: read %s\n", client.mac.str().c_str());
    check(false, "a damaged client message is refused");
  } catch (wlccw::InvalidJsonPointer const& e) {
    // Not JSON: there is no tree to read a client from.
    std::printf("  client: refused (%s)\n", e.what());
  }

  NcIpcApMonitoringInformation const no_information(cut_short(information_text));
  std::printf("  device information: error %s, forwarded as %s\n",
              no_information.error ? "true" : "false", no_information.to_str().c_str());
  check(no_information.error && no_information.to_str() == R"({"error":true})",
        "damaged information reads as an error");

  return failures == 0 ? 0 : 1;
}
