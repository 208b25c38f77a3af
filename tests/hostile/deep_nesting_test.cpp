// Nesting 10 000 levels deep, handed to every kind of reader. As text, the tree parser refuses it
// (its depth is bounded so that hostile input cannot exhaust the stack), and each reader gives the
// fallback it has for text that does not parse. Built by program, a tree of any depth is
// accepted; the readers that take a node meet it where they expect a scalar or a flat object and
// read it as a missing or empty member.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/ApWithClients.hpp>
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>
#include <wlccw/client/NcIpcClientList.hpp>
#include <wlccw/common/errors.hpp>
#include <wlccw/ipc/FullVapData.hpp>
#include <wlccw/ipc/Vap.hpp>
#include <wlccw/ipc/WidsAttackedAps.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include <support/samples.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

using wlccw::cfg::Tree;

constexpr std::size_t kDepth = 10'000;

/// kDepth arrays, each the only element of the one around it: [[[ ... ]]].
std::string nested_arrays(std::size_t depth = kDepth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

/// kDepth objects, each the member "a" of the one around it, the innermost holding 1.
std::string nested_objects(std::size_t depth = kDepth) {
  std::string text;
  text.reserve(depth * 6 + 1);
  for (std::size_t i = 0; i < depth; ++i) {
    text += "{\"a\":";
  }
  text += '1';
  text.append(depth, '}');
  return text;
}

/// Both kinds of nesting, alone and inside an otherwise well-formed message.
std::string const& deep_texts(std::size_t which) {
  static std::string const texts[] = {
      nested_arrays(),
      nested_objects(),
      R"({"mac":"aa:bb:cc:dd:ee:01","interface":"wlan0","ssid":"Net","hostname":)" +
          nested_objects() + "}",
      R"({"error":false,"rpc-reply":{"data":{"monitoring":{"neighbor-ap":)" + nested_arrays() +
          "}}}}",
  };
  return texts[which];
}
constexpr std::size_t kDeepTextCount = 4;

/// A root object with kDepth objects below it, each the member "a" of the one before, and a root
/// array with kDepth - 1 arrays below it, each the only element of the one before. Each is built
/// once: making a node costs as much as the depth it is made at, so a chain costs quadratic time
/// in its depth, while copying a whole chain into another tree (cfg_insert_child) is linear.
lcw_data_t* object_chain() {
  static Tree const chain = [] {
    Tree root = wlccw::cfg::make_object();
    lcw_data_t* node = root.get();
    for (std::size_t i = 0; i < kDepth && node != nullptr; ++i) {
      node = cfg_insert_empty_subtree(node, "a");
    }
    return root;
  }();
  return chain.get();
}
lcw_data_t* array_chain() {
  static Tree const chain = [] {
    Tree root = wlccw::cfg::make_array();
    lcw_data_t* node = root.get();
    for (std::size_t i = 1; i < kDepth && node != nullptr; ++i) {
      node = cfg_insert_empty_array(node, nullptr);
    }
    return root;
  }();
  return chain.get();
}

/// Adds member `key` to object: a copy of the chain of objects.
void chain_objects(lcw_data_t* object, char const* key) {
  ASSERT_NE(cfg_insert_child(object, key, object_chain()), nullptr);
}

/// Adds member `key` to object: a copy of the chain of arrays.
void chain_arrays(lcw_data_t* object, char const* key) {
  ASSERT_NE(cfg_insert_child(object, key, array_chain()), nullptr);
}

// ---- The tree parser ------------------------------------------------------------------------

TEST(HostileNesting, ParserRefusesTenThousandLevelsOfEveryKind) {
  for (std::size_t i = 0; i < kDeepTextCount; ++i) {
    EXPECT_EQ(cfg_parse_buffer(deep_texts(i).c_str()), nullptr) << "text " << i;
  }
}

TEST(HostileNesting, ParserRefusesAHundredThousandLevelsAndUnclosedNesting) {
  EXPECT_EQ(wlccw::cfg::parse(nested_arrays(100'000)), nullptr);
  EXPECT_EQ(wlccw::cfg::parse(nested_objects(100'000)), nullptr);
  EXPECT_EQ(wlccw::cfg::parse(std::string(100'000, '[')), nullptr);
  EXPECT_EQ(wlccw::cfg::parse(std::string(100'000, '{')), nullptr);
}

TEST(HostileNesting, ParserAcceptsOrdinaryNesting) {
  Tree const arrays = wlccw::cfg::parse(nested_arrays(100));
  ASSERT_NE(arrays, nullptr);
  EXPECT_EQ(wlccw::cfg::compact(arrays.get()), nested_arrays(100));
  Tree const objects = wlccw::cfg::parse(nested_objects(100));
  ASSERT_NE(objects, nullptr);
  EXPECT_EQ(wlccw::cfg::compact(objects.get()), nested_objects(100));
}

TEST(HostileNesting, TreesBuiltByProgramAreWrittenAtAnyDepthAndTheirTextIsRefused) {
  EXPECT_EQ(wlccw::cfg::compact(array_chain()), nested_arrays());
  std::string const text = wlccw::cfg::compact(object_chain());
  std::string expected = "{";
  for (std::size_t i = 0; i < kDepth; ++i) {
    expected += "\"a\":{";
  }
  expected.append(kDepth + 1, '}');
  EXPECT_EQ(text, expected);
  EXPECT_EQ(wlccw::cfg::parse(text), nullptr);
  // A deep copy of the whole chain into another tree is as deep as the chain.
  Tree const copy = wlccw::cfg::make_object();
  ASSERT_NE(cfg_insert_child(copy.get(), "copy", object_chain()), nullptr);
  EXPECT_EQ(wlccw::cfg::compact(copy.get()), "{\"copy\":" + text + "}");
}

// ---- Client readers ---------------------------------------------------------------------------

TEST(HostileNesting, ClientReadersOfRefusedTextSeeNoData) {
  for (std::size_t i = 0; i < kDeepTextCount; ++i) {
    std::string const& text = deep_texts(i);
    try {
      (void)APClientData::from_json_str(text);
      ADD_FAILURE() << "from_json_str accepted text " << i;
    } catch (wlccw::InvalidJsonPointer const& e) {
      EXPECT_STREQ(e.what(), "JSON pointer is null");
    }
    Tree const root = wlccw::cfg::parse(text);
    EXPECT_THROW((void)APClientData::from_netconf_json(root.get()), wlccw::InvalidJsonPointer);

    NcIpcClientList const list = NcIpcClientList::from_ipc_json(root.get());
    EXPECT_TRUE(list.interfaces.empty());
    EXPECT_EQ(list.clients_count, 0U);

    EXPECT_TRUE(AuthenticatedClients::from_json(text).clients.empty());
    std::shared_ptr<ClientsByAuthTypeCount> const counts = ClientsByAuthTypeCount::from_json(text);
    ASSERT_NE(counts, nullptr);
    EXPECT_EQ(*counts, ClientsByAuthTypeCount());
    EXPECT_TRUE(ApWithClients::deserialize(text).empty());
  }
}

TEST(HostileNesting, NetconfClientWithADeepSsidHasAnEmptySsid) {
  Tree const client = wlccw::cfg::make_object();
  cfg_set_param(client.get(), "hw-addr", "aa:bb:cc:dd:ee:01");
  cfg_set_param(client.get(), "interface", "wlan0");
  chain_objects(client.get(), "ssid");
  try {
    (void)APClientData::from_netconf_json(client.get());
    ADD_FAILURE() << "a client without SSID text was accepted";
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "parameter 'ssid' is empty");
  }
}

TEST(HostileNesting, NetconfClientReadsDeepMembersAsMissingOrEmpty) {
  Tree const client = wlccw::cfg::make_object();
  cfg_set_param(client.get(), "hw-addr", "AA:BB:CC:DD:EE:01");
  cfg_set_param(client.get(), "interface", "wlan0");
  cfg_set_param(client.get(), "ssid", "Net");
  chain_objects(client.get(), "hostname");
  chain_arrays(client.get(), "uptime");
  chain_objects(client.get(), "tx-rate");
  lcw_data_t* const statistics = cfg_insert_empty_subtree(client.get(), "statistics");
  chain_objects(statistics, "tx");
  chain_arrays(statistics, "rx");

  APClientData const record = APClientData::from_netconf_json(client.get());
  EXPECT_EQ(record.mac.str(), "aa:bb:cc:dd:ee:01");
  EXPECT_EQ(record.interface, "wlan0");
  EXPECT_EQ(record.ssid, "Net");
  EXPECT_FALSE(record.hostname.has_value());
  EXPECT_FALSE(record.uptime.has_value());
  // Both "/statistics/tx" and "/statistics/rx" exist, so each direction is a default statistic
  // whose counters read as missing; a deep "tx-rate" is no rate text.
  ASSERT_TRUE(record.statistics.has_value());
  EXPECT_EQ(record.statistics->tx, APClientData::Statistics::Statistic());
  EXPECT_EQ(record.statistics->rx, APClientData::Statistics::Statistic());
}

TEST(HostileNesting, IpcClientReadsDeepMembersAsMissingAndItsTextIsRefused) {
  Tree const client = wlccw::cfg::make_object();
  cfg_set_param(client.get(), "mac", "aa:bb:cc:dd:ee:02");
  cfg_set_param(client.get(), "interface", "wlan0");
  cfg_set_param(client.get(), "ssid", "Net");
  chain_objects(client.get(), "username");
  chain_arrays(client.get(), "rssi-list");
  chain_objects(client.get(), "wlan-auth-uptime");

  APClientData const record = APClientData::from_json(client.get());
  EXPECT_EQ(record.mac.str(), "aa:bb:cc:dd:ee:02");
  EXPECT_FALSE(record.username.has_value());
  EXPECT_TRUE(record.rssi.values.empty()); // the only element is an array, not an integer
  EXPECT_FALSE(record.rssi.reported.has_value());
  EXPECT_FALSE(record.wlan_auth_uptime.has_value());

  // The same object as text is refused by the parser: no pointer to read.
  EXPECT_THROW((void)APClientData::from_json_str(wlccw::cfg::compact(client.get())),
               wlccw::InvalidJsonPointer);
}

TEST(HostileNesting, ClientListDropsADeepClientAndKeepsItsNeighbours) {
  Tree const root = wlccw::cfg::make_object();
  lcw_data_t* const interface = cfg_insert_empty_subtree(root.get(), "wlan0");
  cfg_set_param(interface, "ssid", "Net");
  lcw_data_t* const clients = cfg_insert_empty_subtree(interface, "client");
  chain_objects(clients, "aa:bb:cc:dd:ee:01"); // no "mac", "interface" or "ssid": refused
  lcw_data_t* const good = cfg_insert_empty_subtree(clients, "aa:bb:cc:dd:ee:02");
  cfg_set_param(good, "mac", "aa:bb:cc:dd:ee:02");
  cfg_set_param(good, "interface", "wlan0");
  cfg_set_param(good, "ssid", "Net");
  chain_arrays(good, "snr-list");
  // An interface whose "client" is a deep chain of arrays holds no client object.
  lcw_data_t* const other = cfg_insert_empty_subtree(root.get(), "wlan1");
  cfg_set_param(other, "ssid", "Other");
  chain_arrays(other, "client");

  NcIpcClientList const list = NcIpcClientList::from_ipc_json(root.get());
  EXPECT_EQ(list.clients_count, 1U);
  ASSERT_EQ(list.interfaces.size(), 2U);
  NcIpcClientList::InterfaceDesc const& wlan0 = list.interfaces.at("wlan0");
  EXPECT_EQ(wlan0.ssid, "Net");
  ASSERT_EQ(wlan0.clients.size(), 1U);
  APClientData const& client = wlan0.clients.begin()->second;
  EXPECT_EQ(client.mac.str(), "aa:bb:cc:dd:ee:02");
  EXPECT_TRUE(client.snr.values.empty());
  EXPECT_EQ(list.interfaces.at("wlan1").ssid, "Other");
  EXPECT_TRUE(list.interfaces.at("wlan1").clients.empty());
}

// ---- Monitoring readers -----------------------------------------------------------------------

TEST(HostileNesting, MonitoringReadersOfRefusedTextGiveTheirFallbacks) {
  for (std::size_t i = 0; i < kDeepTextCount; ++i) {
    std::string const& text = deep_texts(i);
    NcIpcApMonitoringInformation const from_reply =
        NcIpcApMonitoringInformation::from_netconf(text);
    EXPECT_TRUE(from_reply.error);
    EXPECT_EQ(from_reply.to_str(), R"({"error":true})");
    EXPECT_EQ(NcIpcApMonitoringInformation(text), NcIpcApMonitoringInformation());

    EXPECT_TRUE(NcIpcApMonitoringRadioInterface::from_netconf(text).radios.empty());
    EXPECT_TRUE(NcIpcApMonitoringRadioInterface(text).radios.empty());
    EXPECT_EQ(NcIpcApMonitoringApNeighbours::from_ipc(text), nullptr);
  }
}

TEST(HostileNesting, InformationReadsDeepMembersAsEmptyTexts) {
  Tree const tree = wlccw::cfg::make_object();
  cfg_set_boolean_param(tree.get(), "error", false);
  chain_objects(tree.get(), "uptime");
  chain_arrays(tree.get(), "hostname");
  chain_objects(tree.get(), "power-supply");
  chain_objects(tree.get(), "is-default-config");
  NcIpcApMonitoringInformation const info = NcIpcApMonitoringInformation::from_json(tree.get());
  EXPECT_FALSE(info.error);
  EXPECT_EQ(info.uptime, "");
  EXPECT_EQ(info.hostname, "");
  EXPECT_EQ(info.power_supply, PowerSupply::UNKNOWN);
  EXPECT_FALSE(info.is_default_config);

  // A deep "error" is no boolean true: the record is read.
  Tree const deep_error = wlccw::cfg::make_object();
  chain_objects(deep_error.get(), "error");
  cfg_set_param(deep_error.get(), "hostname", "ap1");
  NcIpcApMonitoringInformation const read =
      NcIpcApMonitoringInformation::from_json(deep_error.get());
  EXPECT_FALSE(read.error);
  EXPECT_EQ(read.hostname, "ap1");
}

TEST(HostileNesting, RadioReaderTakesADeepElementAsARadioWithoutMembers) {
  NcIpcApMonitoringRadioInterface const record =
      NcIpcApMonitoringRadioInterface::from_json(array_chain());
  ASSERT_EQ(record.radios.size(), 1U);
  NcIpcApMonitoringRadioInterface::RadioParams const& radio = record.radios.front();
  EXPECT_EQ(radio.name, "");
  EXPECT_FALSE(radio.channel.has_value());
  EXPECT_FALSE(radio.noise_level.has_value());
  EXPECT_EQ(radio.utilization, std::optional<std::int8_t>(-1));
  EXPECT_EQ(radio.packet_error_rate, std::optional<std::int8_t>(-1));

  // A chain of objects is not an array: no radios.
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface::from_json(object_chain()).radios.empty());
}

TEST(HostileNesting, ListReadersTakeADeepElementAsAnEntryWithoutMembers) {
  Tree const node = wlccw::cfg::make_object();
  chain_arrays(node.get(), "interface");
  chain_arrays(node.get(), "ethernet-ports");
  chain_arrays(node.get(), "neighbor-ap");
  chain_arrays(node.get(), "ap-neighbours");

  std::shared_ptr<NcIpcApMonitoringInterfaces> const interfaces =
      NcIpcApMonitoringInterfaces::from_netconf(*node);
  ASSERT_NE(interfaces, nullptr);
  ASSERT_EQ(interfaces->interfaces.size(), 1U);
  EXPECT_EQ(interfaces->interfaces[0].name, "");
  EXPECT_FALSE(interfaces->interfaces[0].hwaddr.valid);
  EXPECT_EQ(static_cast<int>(interfaces->interfaces[0].operstate), 7);
  EXPECT_EQ(static_cast<int>(interfaces->interfaces[0].duplex), 3);
  EXPECT_EQ(interfaces->interfaces[0].rx_bytes, 0U);

  std::shared_ptr<NcIpcApMonitoringEthernetPorts> const ports =
      NcIpcApMonitoringEthernetPorts::from_ipc(*node);
  ASSERT_NE(ports, nullptr);
  ASSERT_EQ(ports->ethernet_ports.size(), 1U);
  EXPECT_EQ(ports->ethernet_ports[0].name, "");
  EXPECT_EQ(static_cast<int>(ports->ethernet_ports[0].link), 7);
  EXPECT_EQ(static_cast<int>(ports->ethernet_ports[0].duplex), 3);

  for (std::shared_ptr<NcIpcApMonitoringApNeighbours> const& neighbours :
       {NcIpcApMonitoringApNeighbours::from_netconf(*node),
        NcIpcApMonitoringApNeighbours::from_ipc(*node)}) {
    ASSERT_NE(neighbours, nullptr);
    ASSERT_EQ(neighbours->neighbours.size(), 1U);
    EXPECT_EQ(neighbours->neighbours[0], NcIpcApMonitoringApNeighbours::ApNeighbourInfo());
  }
}

TEST(HostileNesting, ListReadersReadDeepMembersOfAnEntryAsMissing) {
  Tree const node = wlccw::cfg::make_object();
  lcw_data_t* const neighbour =
      cfg_insert_empty_subtree(cfg_insert_empty_array(node.get(), "neighbor-ap"), nullptr);
  chain_objects(neighbour, "ssid");
  chain_arrays(neighbour, "bssid");
  chain_objects(neighbour, "controlled-by-wlc");
  cfg_set_uint32_param(neighbour, "channel", 36);
  std::shared_ptr<NcIpcApMonitoringApNeighbours> const neighbours =
      NcIpcApMonitoringApNeighbours::from_netconf(*node);
  ASSERT_NE(neighbours, nullptr);
  ASSERT_EQ(neighbours->neighbours.size(), 1U);
  EXPECT_EQ(neighbours->neighbours[0].ssid, "");
  EXPECT_FALSE(neighbours->neighbours[0].bssid.valid);
  EXPECT_FALSE(neighbours->neighbours[0].controlled_by_wlc.has_value());
  EXPECT_EQ(neighbours->neighbours[0].channel, 36U);

  // A list key holding a chain of objects instead of an array gives no list.
  Tree const objects = wlccw::cfg::make_object();
  chain_objects(objects.get(), "interface");
  chain_objects(objects.get(), "ethernet-ports");
  EXPECT_EQ(NcIpcApMonitoringInterfaces::from_ipc(*objects), nullptr);
  EXPECT_EQ(NcIpcApMonitoringEthernetPorts::from_netconf(*objects), nullptr);
}

// ---- Service messages -------------------------------------------------------------------------

TEST(HostileNesting, AttackedApsReadersOfDeepTextFindNothing) {
  for (std::size_t i = 0; i < kDeepTextCount; ++i) {
    EXPECT_TRUE(WidsAttackedAps::ipc_deserialize(deep_texts(i)).attacked_aps.empty());
    EXPECT_TRUE(WidsAttackedAps::netconf_deserialize(deep_texts(i)).attacked_aps.empty());
  }
}

TEST(HostileNesting, VapReadersOfADeepObject) {
  lcw_data_t* const object = object_chain();
  // NETCONF needs "rfid", "wid" and "enabled".
  EXPECT_FALSE(Vap::from_netconf_json(*object).has_value());
  // IPC reads what is there: nothing, so a disabled VAP with default numbers and empty texts.
  std::optional<Vap> const vap = Vap::from_json(*object);
  ASSERT_TRUE(vap.has_value());
  EXPECT_FALSE(vap->enabled);
  EXPECT_EQ(vap->interface, "");
  EXPECT_EQ(static_cast<int>(vap->band), 3);
  EXPECT_FALSE(vap->ssid.has_value());
  std::optional<FullVapData> const full = FullVapData::from_full_json(*object);
  ASSERT_TRUE(full.has_value());
  EXPECT_FALSE(full->ap_mac.valid);
  EXPECT_EQ(full->ap_hostname, "");
}

TEST(HostileNesting, EnabledNetconfVapWithDeepMembers) {
  Tree const object = wlccw::cfg::make_object();
  cfg_set_int_param(object.get(), "rfid", 1);
  cfg_set_int_param(object.get(), "wid", 2);
  cfg_set_boolean_param(object.get(), "enabled", true);
  cfg_set_param(object.get(), "auth-type", "WPA2");
  chain_objects(object.get(), "ssid");
  cfg_set_param(object.get(), "bssid", "a4:5d:36:10:20:30");
  chain_arrays(object.get(), "retry-rate");
  std::optional<Vap> const vap = Vap::from_netconf_json(*object);
  ASSERT_TRUE(vap.has_value());
  EXPECT_FALSE(vap->ssid.has_value());
  EXPECT_FALSE(vap->retry_rate.has_value());
  EXPECT_EQ(vap->bssid->str(), "a4:5d:36:10:20:30");

  // A deep "bssid" is no MAC address: the enabled VAP is refused.
  Tree const deep_bssid = wlccw::cfg::make_object();
  cfg_set_int_param(deep_bssid.get(), "rfid", 1);
  cfg_set_int_param(deep_bssid.get(), "wid", 2);
  cfg_set_boolean_param(deep_bssid.get(), "enabled", true);
  cfg_set_param(deep_bssid.get(), "auth-type", "WPA2");
  chain_objects(deep_bssid.get(), "bssid");
  EXPECT_FALSE(Vap::from_netconf_json(*deep_bssid).has_value());
}

} // namespace
