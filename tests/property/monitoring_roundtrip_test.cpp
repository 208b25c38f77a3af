// Round trips of generated AP monitoring records through their IPC forms: device information,
// radio interfaces, network interfaces, Ethernet ports and neighbouring APs. Each generated record,
// written and read back, equals the record the IPC form can carry (expected_after_trip), and the
// record read back writes the same text.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/html.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include <monitoring/list_support.hpp>

#include "property/property_support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using wlccw::test::for_each_seed;
using wlccw::test::list_length;
using wlccw::test::Random;
using wlccw::test::up_to_nul;

// ---- Generators -----------------------------------------------------------------------------

/// Any text a record can hold: besides Random::text's pieces, bytes that are not UTF-8, the DEL
/// byte, upper-case letters and the AP's byte escapes, well-formed or not (an escaped "&" can make
/// a new escape when decoded), and now and then a NUL byte, which a writer taking a C string cuts
/// the text at.
std::string any_text(Random& random, std::size_t max_length = 24) {
  if (random.chance(0.05)) {
    std::string text = random.text(max_length);
    text.insert(random.integer<std::size_t>(0, text.size()), 1, '\0');
    return text;
  }
  if (random.coin()) {
    return random.text(max_length);
  }
  static constexpr std::string_view pieces[] = {
      "\xff",   "\x80",   "\x7f",   "A",     "LAN",  "x",     " ",       "&#x41;",
      "&#xff;", "&#x0a;", "&#x26;", "#x41;", "&#x4", "&#x41", "&#x041;", "&amp;",
      "&#65;",  "&#x7F;", "&#x00;", "\t",    "\"",   "\\",    "\xc3\xa9"};
  std::string out;
  std::size_t const count = random.integer<std::size_t>(0, max_length);
  for (std::size_t i = 0; i < count; ++i) {
    out += pieces[random.integer<std::size_t>(0, std::size(pieces) - 1)];
  }
  return out;
}

std::optional<std::string> maybe_text(Random& random) {
  return random.maybe([&random] { return any_text(random); });
}

/// Every named value of a table and its "no name" value, and now and then a value outside both
/// (one cast from a number), which the writers write as "".
template <typename E> E table_value(Random& random, int unnamed) {
  if (random.chance(0.1)) {
    return static_cast<E>(random.coin() ? random.integer(unnamed + 1, 1000) : random.any<int>());
  }
  return random.enumerator<E>(unnamed + 1);
}

constexpr int operstate_unnamed = static_cast<int>(WLCBT_OPERSTATE::UNNAMED);
constexpr int duplex_unnamed = static_cast<int>(WLCBT_DUPLEX_MODE::UNNAMED);
constexpr int power_supply_unknown = static_cast<int>(PowerSupply::UNKNOWN);

NcIpcApMonitoringInformation make_information(Random& random) {
  NcIpcApMonitoringInformation information;
  information.error = random.chance(0.25);
  information.uptime = any_text(random);
  information.hostname = any_text(random);
  information.secondary_software_version = any_text(random);
  information.boot_version = any_text(random);
  information.hw_platform = any_text(random);
  information.factory_serial_number = any_text(random);
  information.hw_revision = any_text(random);
  information.power_supply = table_value<PowerSupply>(random, power_supply_unknown);
  information.last_reboot_reason = any_text(random);
  information.is_default_config = random.coin();
  return information;
}

std::optional<std::int8_t> measurement(Random& random) {
  return random.maybe([&random] { return random.any<std::int8_t>(); });
}

NcIpcApMonitoringRadioInterface make_radios(Random& random) {
  NcIpcApMonitoringRadioInterface record;
  record.radios.resize(list_length(random, 8));
  for (NcIpcApMonitoringRadioInterface::RadioParams& radio : record.radios) {
    radio.name = any_text(random);
    radio.band = any_text(random);
    radio.status = any_text(random);
    radio.hwaddr = any_text(random);
    radio.tx_power = maybe_text(random);
    radio.eirp = maybe_text(random);
    radio.channel = maybe_text(random);
    radio.bandwidth = maybe_text(random);
    radio.frequency = maybe_text(random);
    radio.noise_level = random.maybe([&random] { return random.any<std::int16_t>(); });
    radio.utilization = measurement(random);
    radio.rx_utilization = measurement(random);
    radio.tx_utilization = measurement(random);
    radio.non_wifi_interference = measurement(random);
    radio.ap_interference_ratio = measurement(random);
    radio.co_channel_interference = measurement(random);
    radio.packet_error_rate = measurement(random);
  }
  return record;
}

NcIpcApMonitoringInterfaces make_interfaces(Random& random) {
  NcIpcApMonitoringInterfaces record;
  record.interfaces.resize(list_length(random, 12));
  for (NcIpcApMonitoringInterfaces::ApInterfaceInfo& info : record.interfaces) {
    info.name = any_text(random);
    info.hwaddr = random.any_mac();
    info.operstate = table_value<WLCBT_OPERSTATE>(random, operstate_unnamed);
    info.speed = random.any<std::uint64_t>();
    info.duplex = table_value<WLCBT_DUPLEX_MODE>(random, duplex_unnamed);
    for (std::uint64_t* counter :
         {&info.tx_actual_rate, &info.rx_actual_rate, &info.tx_bytes, &info.rx_bytes,
          &info.tx_packets, &info.rx_packets, &info.tx_errors, &info.rx_errors, &info.tx_drop,
          &info.rx_drop}) {
      *counter = random.any<std::uint64_t>();
    }
  }
  return record;
}

NcIpcApMonitoringEthernetPorts make_ports(Random& random) {
  NcIpcApMonitoringEthernetPorts record;
  record.ethernet_ports.resize(list_length(random, 12));
  for (NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo& port : record.ethernet_ports) {
    port.name = any_text(random);
    port.mac_address = random.any_mac();
    port.logical_interface = any_text(random);
    port.link = table_value<WLCBT_OPERSTATE>(random, operstate_unnamed);
    port.speed = random.any<std::uint32_t>();
    port.duplex = table_value<WLCBT_DUPLEX_MODE>(random, duplex_unnamed);
    port.media_type = any_text(random);
    port.uptime = random.any<std::uint32_t>();
    port.rx_bytes = random.any<std::uint64_t>();
    port.rx_packets = random.any<std::uint64_t>();
    port.tx_bytes = random.any<std::uint64_t>();
    port.tx_packets = random.any<std::uint64_t>();
  }
  return record;
}

NcIpcApMonitoringApNeighbours make_neighbours(Random& random) {
  NcIpcApMonitoringApNeighbours record;
  record.neighbours.resize(list_length(random, 12));
  for (NcIpcApMonitoringApNeighbours::ApNeighbourInfo& neighbour : record.neighbours) {
    neighbour.bssid = random.any_mac();
    neighbour.ssid = any_text(random);
    neighbour.channel = random.any<std::uint32_t>();
    neighbour.signal_level = random.any<std::int32_t>();
    neighbour.privacy = random.coin();
    neighbour.bandwidth = random.any<std::uint32_t>();
    neighbour.last_seen = random.any<std::uint32_t>();
    neighbour.controlled_by_wlc = random.maybe([&random] { return random.coin(); });
  }
  return record;
}

// ---- What the IPC forms carry ---------------------------------------------------------------

/// The device information after its trip: a record marked as failed carries nothing but the flag,
/// so every other field comes back at its default; the texts are written as C strings; a power
/// supply outside the table is written as "" and reads back as the unknown value.
NcIpcApMonitoringInformation expected_after_trip(NcIpcApMonitoringInformation expected) {
  if (expected.error) {
    return NcIpcApMonitoringInformation{};
  }
  for (std::string* text :
       {&expected.uptime, &expected.hostname, &expected.secondary_software_version,
        &expected.boot_version, &expected.hw_platform, &expected.factory_serial_number,
        &expected.hw_revision, &expected.last_reboot_reason}) {
    *text = up_to_nul(std::move(*text));
  }
  if (static_cast<int>(expected.power_supply) < 0 ||
      static_cast<int>(expected.power_supply) > power_supply_unknown) {
    expected.power_supply = PowerSupply::UNKNOWN;
  }
  return expected;
}

/// The radios after their trip: the four plain texts are written as C strings (the optional texts
/// carry every byte); a measurement the record does not hold is not written, and a missing
/// measurement reads back as -1, the value that stands for "not reported".
NcIpcApMonitoringRadioInterface expected_after_trip(NcIpcApMonitoringRadioInterface expected) {
  for (NcIpcApMonitoringRadioInterface::RadioParams& radio : expected.radios) {
    for (std::string* text : {&radio.name, &radio.band, &radio.status, &radio.hwaddr}) {
      *text = up_to_nul(std::move(*text));
    }
    for (std::optional<std::int8_t>* measured :
         {&radio.utilization, &radio.rx_utilization, &radio.tx_utilization,
          &radio.non_wifi_interference, &radio.ap_interference_ratio,
          &radio.co_channel_interference, &radio.packet_error_rate}) {
      if (!*measured) {
        *measured = std::int8_t{-1};
      }
    }
  }
  return expected;
}

/// A state or duplex value after its trip: a value outside the table is written as "" and reads
/// back as the "no name" value.
template <typename E> E table_value_after_trip(E value, int unnamed) {
  int const number = static_cast<int>(value);
  return number < 0 || number > unnamed ? static_cast<E>(unnamed) : value;
}

/// An address after its trip: its octets are written whatever its validity and parsed back, so it
/// comes back valid.
MacAddr mac_after_trip(MacAddr mac) {
  mac.valid = true;
  return mac;
}

NcIpcApMonitoringInterfaces expected_after_trip(NcIpcApMonitoringInterfaces expected) {
  for (NcIpcApMonitoringInterfaces::ApInterfaceInfo& info : expected.interfaces) {
    info.name = up_to_nul(std::move(info.name));
    info.hwaddr = mac_after_trip(info.hwaddr);
    info.operstate = table_value_after_trip(info.operstate, operstate_unnamed);
    info.duplex = table_value_after_trip(info.duplex, duplex_unnamed);
  }
  return expected;
}

/// The Ethernet ports after their trip: as the interfaces, and the name is folded to lower case on
/// reading (the letters A to Z only).
NcIpcApMonitoringEthernetPorts expected_after_trip(NcIpcApMonitoringEthernetPorts expected) {
  for (NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo& port : expected.ethernet_ports) {
    for (std::string* text : {&port.name, &port.logical_interface, &port.media_type}) {
      *text = up_to_nul(std::move(*text));
    }
    for (char& c : port.name) {
      if (c >= 'A' && c <= 'Z') {
        c = static_cast<char>(c - 'A' + 'a');
      }
    }
    port.mac_address = mac_after_trip(port.mac_address);
    port.link = table_value_after_trip(port.link, operstate_unnamed);
    port.duplex = table_value_after_trip(port.duplex, duplex_unnamed);
  }
  return expected;
}

/// The neighbours after their trip: the BSSID comes back valid, and the SSID, written as stored (a
/// C string), is HTML-decoded again on reading.
NcIpcApMonitoringApNeighbours expected_after_trip(NcIpcApMonitoringApNeighbours expected) {
  for (NcIpcApMonitoringApNeighbours::ApNeighbourInfo& neighbour : expected.neighbours) {
    neighbour.bssid = mac_after_trip(neighbour.bssid);
    neighbour.ssid =
        external_data::ap::decode_html_safe(std::string_view(up_to_nul(neighbour.ssid)));
  }
  return expected;
}

// ---- Checks ---------------------------------------------------------------------------------

/// The validity flags of the addresses of two lists, which equality leaves out.
template <typename Entry>
void expect_same_validity(std::vector<Entry> const& expected, std::vector<Entry> const& actual,
                          MacAddr Entry::*address) {
  for (std::size_t i = 0; i < expected.size() && i < actual.size(); ++i) {
    EXPECT_EQ((actual[i].*address).valid, (expected[i].*address).valid) << "entry " << i;
  }
}

/// A list record read back equals expected, and writes the same top-level text.
template <typename Record, typename Entry>
void expect_list_read_back(std::shared_ptr<Record> const& back, Record const& expected,
                           std::vector<Entry> Record::*list, MacAddr Entry::*address,
                           char const* how) {
  ASSERT_NE(back, nullptr) << how;
  EXPECT_EQ(*back, expected) << how;
  expect_same_validity(expected.*list, (*back).*list, address);
  EXPECT_EQ(back->to_ipc(), expected.to_ipc()) << how;
}

/// The list read back from a node the record wrote under its key (the tree itself, and its text
/// parsed again) and from its top-level array text embedded under that key.
template <typename Record, typename Entry>
void expect_list_round_trip(Record const& original, Record const& expected,
                            std::vector<Entry> Record::*list, MacAddr Entry::*address,
                            std::string const& key) {
  std::string const array_text = original.to_ipc();
  SCOPED_TRACE(key + " " + array_text);

  wlccw::cfg::Tree const node = wlccw::cfg::make_object();
  ASSERT_TRUE(node);
  original.to_ipc(*node);
  expect_list_read_back(Record::from_ipc(*node), expected, list, address, "from the node");

  std::string const node_text = wlccw::test::written_under_key(original);
  EXPECT_EQ(node_text, wlccw::cfg::compact(node.get()));
  expect_list_read_back(wlccw::test::read_ipc_node<Record>(node_text), expected, list, address,
                        "from the node's text");

  std::string const embedded = "{\"" + key + "\":" + array_text + "}";
  expect_list_read_back(wlccw::test::read_ipc_node<Record>(embedded), expected, list, address,
                        "from the array text");

  // Every entry alone, through the writer and reader of one object.
  std::vector<Entry> const& entries = original.*list;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    Entry const one = wlccw::test::read_one<Record>(wlccw::test::written<Record>(entries[i]));
    EXPECT_EQ(one, (expected.*list)[i]) << "entry " << i << " alone";
  }
}

// ---- Tests ----------------------------------------------------------------------------------

TEST(MonitoringRoundTrip, DeviceInformation) {
  for_each_seed([](Random& random) {
    NcIpcApMonitoringInformation const original = make_information(random);
    std::string const text = original.to_str();
    SCOPED_TRACE("information " + text);
    NcIpcApMonitoringInformation const expected = expected_after_trip(original);

    NcIpcApMonitoringInformation const from_text(text);
    EXPECT_EQ(from_text, expected);
    // Nothing the record loses changes its text, so the text and the hash are the first ones.
    EXPECT_EQ(from_text.to_str(), text);
    EXPECT_EQ(from_text.get_hash(), original.get_hash());

    wlccw::cfg::Tree const tree(original.get_json());
    ASSERT_TRUE(tree);
    NcIpcApMonitoringInformation const from_tree =
        NcIpcApMonitoringInformation::from_json(tree.get());
    EXPECT_EQ(from_tree, expected);
    EXPECT_EQ(from_tree.get_hash(), original.get_hash());
  });
}

TEST(MonitoringRoundTrip, RadioInterfaces) {
  for_each_seed([](Random& random) {
    NcIpcApMonitoringRadioInterface const original = make_radios(random);
    std::string const text = original.to_str();
    SCOPED_TRACE("radios " + text);
    NcIpcApMonitoringRadioInterface const expected = expected_after_trip(original);
    std::string const expected_text = expected.to_str();

    // The receiver hands the "radio-interface" member to from_json, or its text to the text
    // constructor.
    wlccw::cfg::Tree const parsed = wlccw::test::parse_json(text);
    ASSERT_TRUE(parsed);
    lcw_data_t const* const array = cfg_get_subtree(parsed.get(), "radio-interface");
    EXPECT_EQ(array == nullptr, original.radios.empty());
    NcIpcApMonitoringRadioInterface const from_member =
        NcIpcApMonitoringRadioInterface::from_json(array);
    EXPECT_EQ(from_member, expected);
    EXPECT_EQ(from_member.to_str(), expected_text);

    NcIpcApMonitoringRadioInterface const from_array_text(
        array != nullptr ? wlccw::cfg::compact(array) : std::string("[]"));
    EXPECT_EQ(from_array_text, expected);

    wlccw::cfg::Tree const tree(original.get_json());
    ASSERT_TRUE(tree);
    NcIpcApMonitoringRadioInterface const from_tree =
        NcIpcApMonitoringRadioInterface::from_json(cfg_get_subtree(tree.get(), "radio-interface"));
    EXPECT_EQ(from_tree, expected);
  });
}

TEST(MonitoringRoundTrip, NetworkInterfaces) {
  for_each_seed([](Random& random) {
    NcIpcApMonitoringInterfaces const original = make_interfaces(random);
    NcIpcApMonitoringInterfaces const expected = expected_after_trip(original);
    expect_list_round_trip(original, expected, &NcIpcApMonitoringInterfaces::interfaces,
                           &NcIpcApMonitoringInterfaces::ApInterfaceInfo::hwaddr, "interface");
    // What the trip gives is carried unchanged from then on.
    wlccw::test::expect_node_form_reads_back(expected);
  });
}

TEST(MonitoringRoundTrip, EthernetPorts) {
  for_each_seed([](Random& random) {
    NcIpcApMonitoringEthernetPorts const original = make_ports(random);
    NcIpcApMonitoringEthernetPorts const expected = expected_after_trip(original);
    expect_list_round_trip(original, expected, &NcIpcApMonitoringEthernetPorts::ethernet_ports,
                           &NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo::mac_address,
                           "ethernet-ports");
    wlccw::test::expect_node_form_reads_back(expected);
  });
}

TEST(MonitoringRoundTrip, NeighbouringAps) {
  for_each_seed([](Random& random) {
    NcIpcApMonitoringApNeighbours const original = make_neighbours(random);
    NcIpcApMonitoringApNeighbours const expected = expected_after_trip(original);
    expect_list_round_trip(original, expected, &NcIpcApMonitoringApNeighbours::neighbours,
                           &NcIpcApMonitoringApNeighbours::ApNeighbourInfo::bssid, "ap-neighbours");

    // The text form has a reader of its own.
    std::string const text = original.to_ipc();
    SCOPED_TRACE("neighbours " + text);
    expect_list_read_back(NcIpcApMonitoringApNeighbours::from_ipc(text), expected,
                          &NcIpcApMonitoringApNeighbours::neighbours,
                          &NcIpcApMonitoringApNeighbours::ApNeighbourInfo::bssid, "from text");
  });
}

} // namespace
