// A host process with a tree library of its own. The cfg_* functions this program defines in
// host_tree.cpp come first when libwlccw's tree calls are bound, ahead of the bundled backend that
// an installed libwlccw loads as its dependency, so they take every call; libwlccw notices that
// the bundled backend is not the one in use. Every JSON text the library writes is therefore this
// tree library's serialisation of the tree the library built.
//
// The program imports one client from an AP's NETCONF client object (the file given as the
// argument), writes the client's IPC text, checks that text and reads it back.
//
//   own-backend client.json
#include "host_tree.hpp"

#include <wlccw/wlccw.hpp>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

/// The IPC text of the client in client.json: identity, the decoded SSID (its byte 0xe9 kept as
/// it is), RFC 7951 integer strings read as numbers, the weaker antenna raised to the -127 dBm
/// floor, verbatim link-quality texts escaped, the statistics, the authentication state and the
/// pairwise cipher ("no-cipher" as the group cipher means none).
constexpr char const* expected_ipc =
    R"({"mac":"f0:9f:c2:11:22:33","interface":"wlan0-vap1","ssid":"Caf)"
    "\xe9"
    R"( Libre","ip":"10.1.2.3","vlan-id":4094,"hostname":"Gal)"
    "\xc3\xa1"
    R"(xia-7","uptime":86405,"channel":6,"rssi-list":[-45,-127],"rssi":-127,)"
    R"("authorized":true,"wireless-mode":"n","link-quality":"72% \"fair\" \\ 2/3\n",)"
    R"("link-quality-common":"fair\u0001",)"
    R"("statistics":{"tx":{"rate":"HT-MCS 7 NSS 1 72.2","modulation":"HT-MCS 7 NSS 1",)"
    R"("rate-numeric":"72.2","actual-rate":65,"bytes":2147483647,"packets":1048576},)"
    R"("rx":{"actual-rate":0,"bytes":987654,"packets":4321}},)"
    R"("mac-auth-status":"not_required","portal-auth-status":"authenticated",)"
    R"("wlan-auth-status":"authenticated","wlan-auth-method":"wpa2","wlan-auth-uptime":7200,)"
    R"("encryption-cipher":"CCMP"})";

std::string read_file(std::string const& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    throw std::runtime_error("cannot read " + path);
  }
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s NETCONF-CLIENT-OBJECT\n", argv[0]);
    return 2;
  }
  try {
    wlccw::cfg::Tree const object = wlccw::cfg::parse(read_file(argv[1]));
    APClientData const client = APClientData::from_netconf_json(object.get());

    std::size_t const serialised_before = host_tree::serialisations;
    std::string const ipc = client.to_json_str();
    std::printf("ipc: %s\n", ipc.c_str());
    std::printf("authentication: %s\n", client.get_auth_description().value_or("-").c_str());

    int failures = 0;
    if (ipc != expected_ipc) {
      std::fprintf(stderr, "unexpected IPC text, expected\n     %s\n", expected_ipc);
      ++failures;
    }
    if (host_tree::serialisations == serialised_before) {
      std::fprintf(stderr, "the IPC text was not serialised by the host's tree library\n");
      ++failures;
    }
    // The receiving daemon reads the record back through the same tree library and, writing it
    // again, gives the same text. (The record itself is not equal to the imported one: the IPC form
    // carries the selected signal as "rssi", which the reader takes as the reported value.)
    if (APClientData::from_json_str(ipc).to_json_str() != ipc) {
      std::fprintf(stderr, "the IPC text does not read back as the same client\n");
      ++failures;
    }
    return failures == 0 ? 0 : 1;
  } catch (std::exception const& e) {
    // A file that is not JSON, or a client object the import refuses.
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
}
