// The controller's poll of one AP's wireless clients, as the client daemon runs it on every poll
// interval: the AP's NETCONF client reply is read one client object at a time, each object is
// imported into a client record, the records are kept in the AP's client list by interface and
// MAC address, and the list's IPC text goes to the other daemons only when its change hash
// differs from that of the last text sent.
//
// Here three polls are simulated from the reply files in the directory given as the argument:
// poll-1.json (three clients and one the import refuses), poll-2.json (the same clients in
// another order: nothing to send) and poll-3.json (one client gone, one with new readings).
//
//   poll-loop replies/
#include <wlccw/wlccw.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

/// Where an AP's client reply holds its array of client objects.
constexpr char const* client_array_path = "/rpc-reply/data/clients";

std::string read_file(std::string const& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    throw std::runtime_error("cannot read " + path);
  }
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

/// What one reply gives: the AP's client list and how many client objects were left out.
struct PollResult {
  /// False when the reply is not one whole JSON text; the poll then counts as failed.
  bool valid = false;
  NcIpcClientList clients;
  unsigned skipped = 0;
};

/// Builds the AP's client list afresh from one reply, so that a client the AP no longer reports
/// leaves the list. The reply is read one client object at a time: only one client's tree is held
/// in memory, however many clients the AP serves.
PollResult read_reply(std::string const& reply) {
  PollResult result;
  result.valid = wlccw::cfg::for_each_array_element(
      reply.c_str(), client_array_path, [&result](lcw_data_t& client) {
        try {
          result.clients.add_or_update(APClientData::from_netconf_json(&client));
        } catch (std::invalid_argument const& refused) {
          // A client object without a valid MAC address, interface or SSID (or an empty one)
          // cannot be kept; the AP's other clients still are.
          ++result.skipped;
          std::printf("  client skipped: %s\n", refused.what());
        }
      });
  return result;
}

/// Sends an AP's client list to the other daemons when it changed since the last send.
class ClientListSender {
public:
  /// Returns whether the list was sent.
  bool update(NcIpcClientList const& clients) {
    std::size_t const hash = clients.get_hash();
    if (last_sent_hash_ == hash) {
      return false;
    }
    // The text is written only when it is going to be sent; an unchanged poll costs one hash.
    send(clients.to_str());
    last_sent_hash_ = hash;
    return true;
  }

private:
  static void send(std::string const& text) { std::printf("  send: %s\n", text.c_str()); }

  /// Empty until the first send, so the first successful poll always sends.
  std::optional<std::size_t> last_sent_hash_;
};

/// What each poll of the sample replies has to give.
struct Expected {
  char const* file;
  std::uint32_t clients;
  unsigned skipped;
  bool sent;
};

constexpr Expected polls[] = {
    {"poll-1.json", 3, 1, true},
    {"poll-2.json", 3, 1, false},
    {"poll-3.json", 2, 0, true},
};

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s REPLY-DIRECTORY\n", argv[0]);
    return 2;
  }
  std::string const directory = argv[1];

  ClientListSender sender;
  int failures = 0;
  for (Expected const& poll : polls) {
    std::printf("poll %s\n", poll.file);
    std::string reply;
    try {
      reply = read_file(directory + "/" + poll.file);
    } catch (std::exception const& e) {
      std::fprintf(stderr, "%s\n", e.what());
      return 1;
    }

    PollResult const result = read_reply(reply);
    bool sent = false;
    if (result.valid) {
      sent = sender.update(result.clients);
    } else {
      // A damaged reply tells nothing about the clients: keep what was sent last.
      std::printf("  reply is not valid JSON, poll failed\n");
    }
    std::printf("  %u clients, %u skipped, %s\n", result.clients.clients_count, result.skipped,
                sent ? "sent" : "unchanged, nothing sent");

    if (!result.valid || result.clients.clients_count != poll.clients ||
        result.skipped != poll.skipped || sent != poll.sent) {
      std::fprintf(stderr, "%s: expected %u clients, %u skipped, %s\n", poll.file, poll.clients,
                   poll.skipped, poll.sent ? "sent" : "not sent");
      ++failures;
    }
  }
  return failures == 0 ? 0 : 1;
}
