// Fuzzes the readers of an AP's monitoring data: the NETCONF reply readers of the device
// information and the radios, their IPC text constructors, and the three list records (interfaces,
// Ethernet ports, neighbouring APs) on the parsed input. Every IPC text written and read back gives
// the same text again.
#include "fuzz_support.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/html.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace {

using wlccw::fuzz::check;
using wlccw::fuzz::check_same;

/// The information record's IPC text, read back and written again, is unchanged.
void information_round_trip(NcIpcApMonitoringInformation const& record) {
  std::string const text = record.to_str();
  NcIpcApMonitoringInformation const again(text);
  check_same(again.to_str(), text);
  check(again.get_hash() == record.get_hash());
  wlccw::cfg::Tree const tree(record.get_json());
  check_same(NcIpcApMonitoringInformation::from_json(tree.get()).to_str(), text);
}

/// The radio record's IPC text is an object holding the array under "radio-interface" (no key at
/// all for no radios) while the text constructor reads the bare array: the array taken out of the
/// text and read back gives the same text again.
void radio_round_trip(NcIpcApMonitoringRadioInterface const& record) {
  std::string const text = record.to_str();
  wlccw::cfg::Tree const tree = wlccw::cfg::parse(text);
  check(tree != nullptr);
  lcw_data_t const* const array = cfg_get_subtree(tree.get(), "radio-interface");
  check((array == nullptr) == record.radios.empty());
  std::string const array_text = array == nullptr ? std::string("[]") : wlccw::cfg::compact(array);
  NcIpcApMonitoringRadioInterface const again(array_text);
  check_same(again.to_str(), text);
  check(NcIpcApMonitoringRadioInterface::from_json(array).to_str() == text);
}

/// A list record written under its IPC key and read back, and its top-level array text, give the
/// same array text again.
template <typename Record> void list_round_trip(Record const& record, char const* key) {
  std::string const text = record.to_ipc();
  wlccw::cfg::Tree const node = wlccw::cfg::make_object();
  check(node != nullptr);
  record.to_ipc(*node);
  check_same(wlccw::cfg::compact(node.get()), "{\"" + std::string(key) + "\":" + text + "}");
  std::shared_ptr<Record> const again = Record::from_ipc(*node);
  check(again != nullptr);
  check_same(again->to_ipc(), text);
}

/// The neighbours' SSIDs are HTML-decoded on every read, also on an IPC read, so an escape that
/// survived one decoding (such as "&#x26;#x41;") is decoded once more by each round trip: the
/// record read back from its IPC text is the record with every SSID decoded once more, and the
/// same holds through an IPC node.
void neighbours_round_trip(NcIpcApMonitoringApNeighbours const& record) {
  NcIpcApMonitoringApNeighbours expected = record;
  for (NcIpcApMonitoringApNeighbours::ApNeighbourInfo& info : expected.neighbours) {
    info.ssid = external_data::ap::decode_html_safe(info.ssid);
  }
  std::string const expected_text = expected.to_ipc();

  std::shared_ptr<NcIpcApMonitoringApNeighbours> const from_text =
      NcIpcApMonitoringApNeighbours::from_ipc(record.to_ipc());
  check(from_text != nullptr);
  check_same(from_text->to_ipc(), expected_text);

  wlccw::cfg::Tree const node = wlccw::cfg::make_object();
  check(node != nullptr);
  record.to_ipc(*node);
  check_same(wlccw::cfg::compact(node.get()), "{\"ap-neighbours\":" + record.to_ipc() + "}");
  std::shared_ptr<NcIpcApMonitoringApNeighbours> const from_node =
      NcIpcApMonitoringApNeighbours::from_ipc(*node);
  check(from_node != nullptr);
  check_same(from_node->to_ipc(), expected_text);
}

/// Runs the list readers on node (both forms) and checks the round trips of what they read.
void lists(lcw_data_t& node) {
  if (auto const interfaces = NcIpcApMonitoringInterfaces::from_netconf(node)) {
    list_round_trip(*interfaces, "interface");
  }
  if (auto const interfaces = NcIpcApMonitoringInterfaces::from_ipc(node)) {
    list_round_trip(*interfaces, "interface");
  }
  if (auto const ports = NcIpcApMonitoringEthernetPorts::from_netconf(node)) {
    // Port names are folded to lower case.
    for (NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo const& port : ports->ethernet_ports) {
      for (char const c : port.name) {
        check(c < 'A' || c > 'Z');
      }
    }
    list_round_trip(*ports, "ethernet-ports");
  }
  if (auto const ports = NcIpcApMonitoringEthernetPorts::from_ipc(node)) {
    list_round_trip(*ports, "ethernet-ports");
  }
  if (auto const neighbours = NcIpcApMonitoringApNeighbours::from_netconf(node)) {
    neighbours_round_trip(*neighbours);
  }
  if (auto const neighbours = NcIpcApMonitoringApNeighbours::from_ipc(node)) {
    neighbours_round_trip(*neighbours);
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);

  information_round_trip(NcIpcApMonitoringInformation::from_netconf(text));
  information_round_trip(NcIpcApMonitoringInformation(text));
  radio_round_trip(NcIpcApMonitoringRadioInterface::from_netconf(text));
  radio_round_trip(NcIpcApMonitoringRadioInterface(text));

  if (std::shared_ptr<NcIpcApMonitoringApNeighbours> const neighbours =
          NcIpcApMonitoringApNeighbours::from_ipc(text)) {
    neighbours_round_trip(*neighbours);
  }

  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (root && cfg_get_boolean_param(root.get(), "error") != 0) {
    // A reply the AP marked as failed gives nothing, whatever else it holds.
    check(NcIpcApMonitoringInformation::from_netconf(text) == NcIpcApMonitoringInformation());
    check(NcIpcApMonitoringRadioInterface::from_netconf(text).radios.empty());
  }
  if (root) {
    lists(*root);
    // The lists of a NETCONF reply sit beside the radios.
    if (lcw_data_t* const monitoring =
            cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring")) {
      lists(*monitoring);
    }
  }
  return 0;
}
