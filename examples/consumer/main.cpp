// Reads a WIDS MAC-lists message as a daemon receives it, prints its normalised forms, and parses
// one address: the smallest program that links wlccw.
#include <wlccw/wlccw.hpp>

#include <cstdio>
#include <string>

int main() {
  std::string const received = R"({"white-list":["AA:BB:CC:DD:EE:FF"],"black-list":[]})";
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(received);

  std::string const ipc = lists.ipc_serialize();
  std::printf("wlccw %s\n", wlccw::version_string);
  std::printf("ipc: %s\n", ipc.c_str());
  std::printf("netconf white-list: %s\n", lists.netconf_serialize_white_list().c_str());

  MacAddr const mac = MacAddr::from_str("00:11:22:33:44:55");
  std::printf("mac: %s valid=%d\n", mac.str().c_str(), mac.valid ? 1 : 0);

  bool const ok = ipc == R"({"white-list":["aa:bb:cc:dd:ee:ff"],"black-list":[]})" && mac.valid;
  return ok ? 0 : 1;
}
