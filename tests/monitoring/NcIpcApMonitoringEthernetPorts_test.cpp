#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>

#include <wlccw/cfg/owned.hpp>

#include "support/samples.hpp"

#include "list_support.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Info = NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo;
using Record = NcIpcApMonitoringEthernetPorts;

// The shared list helpers, bound to this record.
auto* const parsed = &wlccw::test::parse_json;
auto* const read_netconf = &wlccw::test::read_netconf<Record>;
auto* const read_one = &wlccw::test::read_one<Record>;
auto* const written = &wlccw::test::written<Record, Info>;
auto* const written_under_key = &wlccw::test::written_under_key<Record>;

// The text of member key of one port written by to_json.
std::string written_member(Info const& info, char const* key) {
  wlccw::cfg::Tree const back = parsed(written(info));
  return cfg_get_param(back.get(), key);
}

// The members after "name" of one port object whose other members were absent on reading.
std::string const defaults_after_name =
    R"(,"logical-interface":"","mac-address":"00:00:00:00:00:00","link":"","speed":0,)"
    R"("duplex":"","media-type":"","uptime":0,"rx-bytes":0,"rx-packets":0,"tx-bytes":0,)"
    R"("tx-packets":0})";

// The compact text of one port object whose every member was absent on reading.
std::string const all_defaults_text = R"({"name":"")" + defaults_after_name;

// The ports of the sample reply as their IPC text: names folded to lower case, "enabled" written
// as "full" and "disabled" as "half", addresses in lower-case colon form, counter strings as
// numbers.
std::string const sample_ports_ipc =
    R"([{"name":"lan1","logical-interface":"br-lan","mac-address":"a4:5d:36:10:20:01",)"
    R"("link":"up","speed":1000,"duplex":"full","media-type":"copper","uptime":1050077,)"
    R"("rx-bytes":8595484593,"rx-packets":48211934,"tx-bytes":4294967373,)"
    R"("tx-packets":39100221},)"
    R"({"name":"lan2","logical-interface":"br-lan","mac-address":"a4:5d:36:10:20:02",)"
    R"("link":"lowerlayerdown","speed":0,"duplex":"half","media-type":"copper","uptime":0,)"
    R"("rx-bytes":0,"rx-packets":0,"tx-bytes":0,"tx-packets":0},)"
    R"({"name":"sfp1","logical-interface":"uplink","mac-address":"a4:5d:36:10:20:03",)"
    R"("link":"down","speed":10000,"duplex":"full","media-type":"fiber","uptime":12,)"
    R"("rx-bytes":1200,"rx-packets":10,"tx-bytes":800,"tx-packets":7}])";

} // namespace

// ---- Names and free texts -----------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, NameIsFoldedToLowerCaseOnReading) {
  Info const info = read_one(R"({"name":"LAN1"})");
  EXPECT_EQ(info.name, "lan1");
  EXPECT_EQ(written_member(info, "name"), "lan1");
  EXPECT_EQ(read_one(R"({"name":"Port-A_9 XYZ"})").name, "port-a_9 xyz");
  EXPECT_EQ(read_one(R"({"name":"lan2"})").name, "lan2");
  // Only the letters A to Z change: other bytes, multi-byte UTF-8 included, stay.
  EXPECT_EQ(read_one("{\"name\":\"\xC3\x84LAN\xC3\x9C@[`{\"}").name, "\xC3\x84lan\xC3\x9C@[`{");
}

TEST(NcIpcApMonitoringEthernetPorts, NameThatIsNotTextFollowsTheMemberText) {
  EXPECT_EQ(read_one(R"({})").name, "");
  EXPECT_EQ(read_one(R"({"name":""})").name, "");
  EXPECT_EQ(read_one(R"({"name":12})").name, "12");
  EXPECT_EQ(read_one(R"({"name":true})").name, "true");
  EXPECT_EQ(read_one(R"({"name":null})").name, "");
  EXPECT_EQ(read_one(R"({"name":["LAN1"]})").name, "");
  EXPECT_EQ(read_one(R"({"name":{"n":"LAN1"}})").name, "");
}

TEST(NcIpcApMonitoringEthernetPorts, LogicalInterfaceAndMediaTypeAreKeptAsSent) {
  Info const info = read_one(R"({"logical-interface":"BR-Lan","media-type":"Copper &#x41;"})");
  EXPECT_EQ(info.logical_interface, "BR-Lan");
  EXPECT_EQ(info.media_type, "Copper &#x41;");
  EXPECT_EQ(written_member(info, "logical-interface"), "BR-Lan");
  EXPECT_EQ(written_member(info, "media-type"), "Copper &#x41;");
  Info const absent = read_one(R"({"logical-interface":{},"media-type":[]})");
  EXPECT_EQ(absent.logical_interface, "");
  EXPECT_EQ(absent.media_type, "");
}

// ---- Duplex -------------------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, EnabledIsReadAsFullAndWrittenAsFull) {
  Info const info = read_one(R"({"duplex":"enabled"})");
  EXPECT_EQ(info.duplex, WLCBT_DUPLEX_MODE::FULL);
  EXPECT_EQ(written_member(info, "duplex"), "full");
}

TEST(NcIpcApMonitoringEthernetPorts, DisabledIsReadAsHalfAndWrittenAsHalf) {
  Info const info = read_one(R"({"duplex":"disabled"})");
  EXPECT_EQ(info.duplex, WLCBT_DUPLEX_MODE::HALF);
  EXPECT_EQ(written_member(info, "duplex"), "half");
}

TEST(NcIpcApMonitoringEthernetPorts, TableDuplexTextsAreReadAndWrittenBack) {
  std::vector<std::pair<char const*, WLCBT_DUPLEX_MODE>> const rows{
      {"half", WLCBT_DUPLEX_MODE::HALF},
      {"full", WLCBT_DUPLEX_MODE::FULL},
      {"unavailable", WLCBT_DUPLEX_MODE::UNAVAILABLE},
  };
  for (auto const& [text, value] : rows) {
    SCOPED_TRACE(text);
    Info const info = read_one(std::string(R"({"duplex":")") + text + R"("})");
    EXPECT_EQ(info.duplex, value);
    EXPECT_EQ(written_member(info, "duplex"), text);
  }
}

TEST(NcIpcApMonitoringEthernetPorts, OtherDuplexTextsAreUnnamedAndWrittenEmpty) {
  // The two port words match exactly, like the table's texts.
  for (char const* object :
       {R"({"duplex":"Enabled"})", R"({"duplex":"DISABLED"})", R"({"duplex":"enabled "})",
        R"({"duplex":" disabled"})", R"({"duplex":"enable"})", R"({"duplex":"Full"})",
        R"({"duplex":"auto"})", R"({"duplex":""})", R"({"duplex":true})", R"({"duplex":1})",
        R"({"duplex":null})", R"({"duplex":["full"]})", R"({})"}) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_EQ(info.duplex, WLCBT_DUPLEX_MODE::UNNAMED);
    EXPECT_EQ(written_member(info, "duplex"), "");
  }
}

// ---- Link state ---------------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, EveryLinkTextIsReadAndWrittenBack) {
  for (auto const& [text, value] : wlccw::test::link_state_texts()) {
    SCOPED_TRACE(text);
    Info const info = read_one(std::string(R"({"link":")") + text + R"("})");
    EXPECT_EQ(info.link, value);
    EXPECT_EQ(written_member(info, "link"), text);
  }
}

TEST(NcIpcApMonitoringEthernetPorts, LowerLayerDownSurvivesReadingAndWriting) {
  Info const info = read_one(R"({"link":"lowerlayerdown"})");
  EXPECT_EQ(info.link, WLCBT_OPERSTATE::LOWERLAYERDOWN);
  EXPECT_EQ(written(info),
            R"({"name":"","logical-interface":"","mac-address":"00:00:00:00:00:00",)"
            R"("link":"lowerlayerdown","speed":0,"duplex":"","media-type":"","uptime":0,)"
            R"("rx-bytes":0,"rx-packets":0,"tx-bytes":0,"tx-packets":0})");
}

TEST(NcIpcApMonitoringEthernetPorts, OtherLinkTextsAreUnnamedAndWrittenEmpty) {
  for (char const* object :
       {R"({"link":"UP"})", R"({"link":"Down"})", R"({"link":"up "})", R"({"link":"enabled"})",
        R"({"link":""})", R"({"link":0})", R"({"link":false})", R"({"link":{}})", R"({})"}) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_EQ(info.link, WLCBT_OPERSTATE::UNNAMED);
    EXPECT_EQ(written_member(info, "link"), "");
  }
}

TEST(NcIpcApMonitoringEthernetPorts, ValuesOutsideTheTablesAreWrittenAsEmptyTexts) {
  // Pairs of (state, duplex) raw values, each outside its table.
  std::vector<std::pair<std::int32_t, std::int32_t>> const outside{
      {7, 3}, {8, 4}, {99, 99}, {-1, -1}, {std::numeric_limits<std::int32_t>::max(), -7}};
  for (auto const& [state, duplex] : outside) {
    SCOPED_TRACE(state);
    Info info;
    info.link = static_cast<WLCBT_OPERSTATE>(state);
    info.duplex = static_cast<WLCBT_DUPLEX_MODE>(duplex);
    EXPECT_EQ(written(info), all_defaults_text);
  }
}

// ---- Addresses ----------------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, AddressesInEitherFormAndCaseAreReadAndWrittenLowerCase) {
  for (char const* object :
       {R"({"mac-address":"A4:5D:36:10:20:01"})", R"({"mac-address":"a45d36102001"})",
        R"({"mac-address":"A45D36102001"})"}) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_TRUE(info.mac_address.valid);
    EXPECT_EQ(written_member(info, "mac-address"), "a4:5d:36:10:20:01");
  }
}

TEST(NcIpcApMonitoringEthernetPorts, MalformedOrMissingAddressesGiveTheDefaultAddress) {
  for (char const* object :
       {R"({"mac-address":"a4-5d-36-10-20-01"})", R"({"mac-address":"a4:5d:36:10:20:0"})",
        R"({"mac-address":"a4:5d:36:10:20:0z"})", R"({"mac-address":"a45d3610200"})",
        R"({"mac-address":"a4:5d:36:10:20:01 "})", R"({"mac-address":""})", R"({"mac-address":42})",
        R"({"mac-address":true})", R"({"mac-address":null})",
        R"({"mac-address":["a4:5d:36:10:20:01"]})", R"({"mac-address":{}})", R"({})"}) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_FALSE(info.mac_address.valid);
    EXPECT_EQ(info.mac_address.bytes, (std::array<unsigned char, 6>{}));
    EXPECT_EQ(written_member(info, "mac-address"), "00:00:00:00:00:00");
  }
}

TEST(NcIpcApMonitoringEthernetPorts, TwelveDigitNumberReadsAsTheAddressOfItsText) {
  // A number's member text is its decimal text, which here is twelve hexadecimal digits.
  Info const info = read_one(R"({"mac-address":123456789012})");
  EXPECT_TRUE(info.mac_address.valid);
  EXPECT_EQ(written_member(info, "mac-address"), "12:34:56:78:90:12");
}

TEST(NcIpcApMonitoringEthernetPorts, AddressBytesAreWrittenWhateverTheValidity) {
  Info info;
  info.mac_address.bytes = {0x0A, 0xB0, 0x00, 0xFF, 0x10, 0x01};
  EXPECT_EQ(written_member(info, "mac-address"), "0a:b0:00:ff:10:01");
}

// ---- Numbers ------------------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, SpeedAndUptimeAreRead32Bits) {
  for (auto member : {&Info::speed, &Info::uptime}) {
    char const* const key = member == &Info::speed ? "speed" : "uptime";
    SCOPED_TRACE(key);
    std::string const k = key;
    EXPECT_EQ(read_one(R"({")" + k + R"(":1000})").*member, 1000U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":"1000"})").*member, 1000U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":4294967295})").*member, 4294967295U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":"4294967295"})").*member, 4294967295U);
    // Beyond 32 bits the reader reports the member as missing, which reads as 0: the record
    // keeps no truncated value.
    EXPECT_EQ(read_one(R"({")" + k + R"(":4294967296})").*member, 0U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":"8589934592"})").*member, 0U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":18446744073709551615})").*member, 0U);
    for (char const* bad : {"-1", R"("-1")", "1.5", R"("10G")", "true", "null", "[]", "{}"}) {
      SCOPED_TRACE(bad);
      EXPECT_EQ(read_one(R"({")" + k + R"(":)" + bad + "}").*member, 0U);
    }
    EXPECT_EQ(read_one("{}").*member, 0U);
  }
}

TEST(NcIpcApMonitoringEthernetPorts, CountersAreRead64Bits) {
  std::vector<std::pair<char const*, std::uint64_t Info::*>> const counters{
      {"rx-bytes", &Info::rx_bytes},
      {"rx-packets", &Info::rx_packets},
      {"tx-bytes", &Info::tx_bytes},
      {"tx-packets", &Info::tx_packets},
  };
  for (auto const& [key, member] : counters) {
    SCOPED_TRACE(key);
    std::string const k = key;
    EXPECT_EQ(read_one(R"({")" + k + R"(":"8589934592"})").*member, 8589934592U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":4294967373})").*member, 4294967373U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":"18446744073709551615"})").*member,
              std::numeric_limits<std::uint64_t>::max());
    for (char const* bad : {"-1", R"("-8589934592")", "18446744073709551616", "2.5", R"("1 ")",
                            "false", "null", R"(["1"])", R"({"v":1})"}) {
      SCOPED_TRACE(bad);
      EXPECT_EQ(read_one(R"({")" + k + R"(":)" + bad + "}").*member, 0U);
    }
    EXPECT_EQ(read_one("{}").*member, 0U);
  }
}

TEST(NcIpcApMonitoringEthernetPorts, WrongTypesForEveryKeyGiveTheFallbacks) {
  std::string const object =
      R"({"name":[],"logical-interface":{"a":"b"},"mac-address":42,"link":true,)"
      R"("speed":"fast","duplex":1,"media-type":null,"uptime":-3,"rx-bytes":1.25,)"
      R"("rx-packets":"x","tx-bytes":[1],"tx-packets":{"n":1}})";
  Info info;
  EXPECT_NO_THROW(info = read_one(object));
  EXPECT_EQ(info, Info{});
  EXPECT_EQ(written(info), all_defaults_text);
}

// ---- One port written ---------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, ReadsEveryMemberOfOnePort) {
  Info const info =
      read_one(R"({"tx-packets":12,"tx-bytes":11,"rx-packets":10,"rx-bytes":"9","uptime":8,)"
               R"("media-type":"fiber","duplex":"unavailable","speed":7,"link":"testing",)"
               R"("mac-address":"02:00:00:00:00:0A","logical-interface":"uplink","name":"SFP2"})");
  EXPECT_EQ(info.name, "sfp2");
  EXPECT_TRUE(info.mac_address.valid);
  EXPECT_EQ(info.mac_address.str(), "02:00:00:00:00:0a");
  EXPECT_EQ(info.logical_interface, "uplink");
  EXPECT_EQ(info.link, WLCBT_OPERSTATE::TESTING);
  EXPECT_EQ(info.speed, 7U);
  EXPECT_EQ(info.duplex, WLCBT_DUPLEX_MODE::UNAVAILABLE);
  EXPECT_EQ(info.media_type, "fiber");
  EXPECT_EQ(info.uptime, 8U);
  EXPECT_EQ(info.rx_bytes, 9U);
  EXPECT_EQ(info.rx_packets, 10U);
  EXPECT_EQ(info.tx_bytes, 11U);
  EXPECT_EQ(info.tx_packets, 12U);
}

TEST(NcIpcApMonitoringEthernetPorts, WritesLogicalInterfaceBeforeMacAddress) {
  Info info;
  info.name = "lan3";
  info.mac_address = MacAddr::from_str("A4:5D:36:10:20:09");
  info.logical_interface = "br-guest";
  info.link = WLCBT_OPERSTATE::DORMANT;
  info.speed = std::numeric_limits<std::uint32_t>::max();
  info.duplex = WLCBT_DUPLEX_MODE::HALF;
  info.media_type = "copper";
  info.uptime = 86400;
  info.rx_bytes = 1;
  info.rx_packets = 2;
  info.tx_bytes = 3;
  info.tx_packets = std::numeric_limits<std::uint64_t>::max();
  EXPECT_EQ(written(info),
            R"({"name":"lan3","logical-interface":"br-guest","mac-address":"a4:5d:36:10:20:09",)"
            R"("link":"dormant","speed":4294967295,"duplex":"half","media-type":"copper",)"
            R"("uptime":86400,"rx-bytes":1,"rx-packets":2,"tx-bytes":3,)"
            R"("tx-packets":18446744073709551615})");
}

TEST(NcIpcApMonitoringEthernetPorts, APortWrittenAndReadBackIsEqual) {
  Info info;
  info.name = "lan1";
  info.mac_address = MacAddr::from_str("a45d36102001");
  info.logical_interface = "Br-Lan";
  info.link = WLCBT_OPERSTATE::NOTPRESENT;
  info.speed = 2500;
  info.duplex = WLCBT_DUPLEX_MODE::FULL;
  info.media_type = "Copper";
  info.uptime = 3;
  info.rx_bytes = 1ULL << 50U;
  EXPECT_EQ(read_one(written(info)), info);
}

// ---- The list -----------------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, NodeWithoutTheArrayGivesNull) {
  EXPECT_EQ(read_netconf("{}"), nullptr);
  EXPECT_EQ(read_netconf(R"({"ethernet-port":[{"name":"LAN1"}]})"), nullptr);
  EXPECT_EQ(read_netconf(R"({"ethernet_ports":[{"name":"LAN1"}]})"), nullptr);
  EXPECT_EQ(read_netconf(R"({"interface":[{"name":"LAN1"}]})"), nullptr);
  EXPECT_EQ(read_netconf(R"([{"ethernet-ports":[]}])"), nullptr);
  EXPECT_EQ(read_netconf("7"), nullptr);
}

TEST(NcIpcApMonitoringEthernetPorts, EmptyArrayGivesAnEmptyRecordWrittenAsAnEmptyArray) {
  std::shared_ptr<Record> const record = read_netconf(R"({"ethernet-ports":[]})");
  ASSERT_NE(record, nullptr);
  EXPECT_TRUE(record->ethernet_ports.empty());
  EXPECT_EQ(record->to_ipc(), "[]");
  EXPECT_EQ(written_under_key(*record), R"({"ethernet-ports":[]})");
}

TEST(NcIpcApMonitoringEthernetPorts, ListMemberThatIsNotAnArrayGivesNull) {
  for (char const* object : {R"({"ethernet-ports":{}})", R"({"ethernet-ports":{"name":"LAN1"}})",
                             R"({"ethernet-ports":"LAN1"})", R"({"ethernet-ports":0})",
                             R"({"ethernet-ports":false})", R"({"ethernet-ports":null})"}) {
    SCOPED_TRACE(object);
    std::shared_ptr<Record> record;
    EXPECT_NO_THROW(record = read_netconf(object));
    EXPECT_EQ(record, nullptr);
  }
}

TEST(NcIpcApMonitoringEthernetPorts, ElementsThatAreNotObjectsGiveDefaultEntries) {
  std::shared_ptr<Record> record;
  EXPECT_NO_THROW(
      record = read_netconf(R"({"ethernet-ports":["LAN1",2,false,null,[],{"name":"LAN9"}]})"));
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->ethernet_ports.size(), 6U);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(record->ethernet_ports[i], Info{}) << i;
  }
  EXPECT_EQ(record->ethernet_ports[5].name, "lan9");
  EXPECT_EQ(record->to_ipc(), "[" + all_defaults_text + "," + all_defaults_text + "," +
                                  all_defaults_text + "," + all_defaults_text + "," +
                                  all_defaults_text + R"(,{"name":"lan9")" + defaults_after_name +
                                  "]");
}

TEST(NcIpcApMonitoringEthernetPorts, PortsAreReadAndWrittenUnderTheirKeyInOrder) {
  std::shared_ptr<Record> const record = read_netconf(
      R"({"ethernet-ports":[{"name":"LAN2","duplex":"enabled"},{"name":"LAN1","link":"up"}]})");
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->ethernet_ports.size(), 2U);
  EXPECT_EQ(written_under_key(*record),
            R"({"ethernet-ports":[)"
            R"({"name":"lan2","logical-interface":"","mac-address":"00:00:00:00:00:00",)"
            R"("link":"","speed":0,"duplex":"full","media-type":"","uptime":0,"rx-bytes":0,)"
            R"("rx-packets":0,"tx-bytes":0,"tx-packets":0},)"
            R"({"name":"lan1","logical-interface":"","mac-address":"00:00:00:00:00:00",)"
            R"("link":"up","speed":0,"duplex":"","media-type":"","uptime":0,"rx-bytes":0,)"
            R"("rx-packets":0,"tx-bytes":0,"tx-packets":0}]})");
}

TEST(NcIpcApMonitoringEthernetPorts, FromIpcReadsLikeFromNetconf) {
  wlccw::cfg::Tree const root =
      parsed(R"({"ethernet-ports":[{"name":"LAN1","duplex":"disabled","uptime":"5"}]})");
  std::shared_ptr<Record> const netconf = Record::from_netconf(*root);
  std::shared_ptr<Record> const ipc = Record::from_ipc(*root);
  ASSERT_NE(netconf, nullptr);
  ASSERT_NE(ipc, nullptr);
  EXPECT_EQ(*ipc, *netconf);
  EXPECT_EQ(ipc->ethernet_ports.at(0).duplex, WLCBT_DUPLEX_MODE::HALF);
  EXPECT_EQ(ipc->ethernet_ports.at(0).uptime, 5U);
  EXPECT_EQ(Record::from_ipc(*parsed("{}")), nullptr);
  EXPECT_EQ(Record::from_ipc(*parsed(R"({"ethernet-ports":"x"})")), nullptr);
}

TEST(NcIpcApMonitoringEthernetPorts, ToIpcIntoANodeThatIsNotAnObjectWritesNothing) {
  Record record;
  record.ethernet_ports.resize(2);
  wlccw::cfg::Tree const array = wlccw::cfg::make_array();
  EXPECT_NO_THROW(record.to_ipc(*array));
  EXPECT_EQ(wlccw::cfg::compact(array.get()), "[]");
}

// ---- Round trips --------------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, BothIpcFormsReadBackGiveTheSameText) {
  std::shared_ptr<Record> const record = read_netconf(
      R"({"ethernet-ports":[{"name":"LAN1","logical-interface":"br-lan",)"
      R"("mac-address":"A45D36102001","link":"lowerlayerdown","speed":"100","duplex":"enabled",)"
      R"("media-type":"Copper","uptime":9,"rx-bytes":"8589934592","tx-packets":3},)"
      R"({"name":"X","duplex":"Enabled","link":"UP","mac-address":"bad"}]})");
  ASSERT_NE(record, nullptr);
  std::string const text = record->to_ipc();

  std::shared_ptr<Record> const from_text =
      Record::from_ipc(*parsed(R"({"ethernet-ports":)" + text + "}"));
  ASSERT_NE(from_text, nullptr);
  EXPECT_EQ(*from_text, *record);
  EXPECT_EQ(from_text->to_ipc(), text);

  // The form written into a node.
  wlccw::test::expect_node_form_reads_back(*record);
}

// ---- The sample reply ---------------------------------------------------------------------------

TEST(NcIpcApMonitoringEthernetPorts, SampleReplyGivesItsThreePorts) {
  wlccw::cfg::Tree const reply = parsed(wlccw::test::read_sample("monitoring/reply-full.json"));
  ASSERT_TRUE(reply);
  lcw_data_t* const monitoring =
      cfg_get_subtree_from_path(reply.get(), "/rpc-reply/data/monitoring");
  ASSERT_NE(monitoring, nullptr);
  std::shared_ptr<Record> const record = Record::from_netconf(*monitoring);
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->ethernet_ports.size(), 3U);
  EXPECT_EQ(record->to_ipc(), sample_ports_ipc);
  EXPECT_EQ(record->ethernet_ports[0].duplex, WLCBT_DUPLEX_MODE::FULL);
  EXPECT_EQ(record->ethernet_ports[1].duplex, WLCBT_DUPLEX_MODE::HALF);

  wlccw::cfg::Tree const node = wlccw::cfg::make_object();
  record->to_ipc(*node);
  EXPECT_EQ(wlccw::cfg::compact(node.get()), R"({"ethernet-ports":)" + sample_ports_ipc + "}");
  std::shared_ptr<Record> const back = Record::from_ipc(*node);
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, *record);
  EXPECT_EQ(back->to_ipc(), sample_ports_ipc);
}
