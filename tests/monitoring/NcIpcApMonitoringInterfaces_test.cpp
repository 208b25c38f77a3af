#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>

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
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Info = NcIpcApMonitoringInterfaces::ApInterfaceInfo;
using Record = NcIpcApMonitoringInterfaces;

// The shared list helpers, bound to this record.
auto* const parsed = &wlccw::test::parse_json;
auto* const read_netconf = &wlccw::test::read_netconf<Record>;
auto* const read_one = &wlccw::test::read_one<Record>;
auto* const written = &wlccw::test::written<Record, Info>;
auto* const written_under_key = &wlccw::test::written_under_key<Record>;

// The path of the monitoring data in an AP's reply.
constexpr char const* monitoring_path = "/rpc-reply/data/monitoring";

// The members after "name" of one interface object whose other members were absent on reading.
std::string const defaults_after_name =
    R"(,"hwaddr":"00:00:00:00:00:00","operstate":"","speed":0,"duplex":"",)"
    R"("tx-actual-rate":0,"rx-actual-rate":0,"tx-bytes":0,"rx-bytes":0,"tx-packets":0,)"
    R"("rx-packets":0,"tx-errors":0,"rx-errors":0,"tx-drop":0,"rx-drop":0})";

// The compact text of one interface object whose every member was absent on reading.
std::string const all_defaults_text = R"({"name":"")" + defaults_after_name;

// The ten counter keys in wire order, with the member each is kept in.
std::vector<std::pair<char const*, std::uint64_t Info::*>> const counters{
    {"tx-actual-rate", &Info::tx_actual_rate},
    {"rx-actual-rate", &Info::rx_actual_rate},
    {"tx-bytes", &Info::tx_bytes},
    {"rx-bytes", &Info::rx_bytes},
    {"tx-packets", &Info::tx_packets},
    {"rx-packets", &Info::rx_packets},
    {"tx-errors", &Info::tx_errors},
    {"rx-errors", &Info::rx_errors},
    {"tx-drop", &Info::tx_drop},
    {"rx-drop", &Info::rx_drop},
};

// The interfaces of the sample reply, as their IPC text: the 12-digit upper-case address of eth0
// in colon form, RFC 7951 counter strings as numbers.
std::string const sample_interfaces_ipc =
    R"([{"name":"eth0","hwaddr":"a4:5d:36:10:20:01","operstate":"up","speed":1000,)"
    R"("duplex":"full","tx-actual-rate":552386,"rx-actual-rate":183145,)"
    R"("tx-bytes":5282621617,"rx-bytes":8713391381,"tx-packets":316783735,)"
    R"("rx-packets":4125905646,"tx-errors":165,"rx-errors":371,"tx-drop":359,"rx-drop":175},)"
    R"({"name":"br-lan","hwaddr":"a4:5d:36:10:20:01","operstate":"up","speed":1000,)"
    R"("duplex":"full","tx-actual-rate":172181,"rx-actual-rate":624123,)"
    R"("tx-bytes":431060352610,"rx-bytes":17179873426,"tx-packets":646418478,)"
    R"("rx-packets":967109516,"tx-errors":119,"rx-errors":251,"tx-drop":419,"rx-drop":941},)"
    R"({"name":"wlan0","hwaddr":"a4:5d:36:10:20:30","operstate":"up","speed":0,)"
    R"("duplex":"unavailable","tx-actual-rate":81528,"rx-actual-rate":491624,)"
    R"("tx-bytes":43288134501,"rx-bytes":9228382805,"tx-packets":30941363,)"
    R"("rx-packets":91147861,"tx-errors":216,"rx-errors":380,"tx-drop":3,"rx-drop":932},)"
    R"({"name":"wlan1","hwaddr":"a4:5d:36:10:20:40","operstate":"lowerlayerdown","speed":0,)"
    R"("duplex":"unavailable","tx-actual-rate":368328,"rx-actual-rate":546267,)"
    R"("tx-bytes":97,"rx-bytes":83,"tx-packets":7,"rx-packets":1,"tx-errors":223,)"
    R"("rx-errors":201,"tx-drop":889,"rx-drop":632},)"
    R"({"name":"gre1","hwaddr":"00:00:00:00:00:00","operstate":"unknown","speed":0,)"
    R"("duplex":"half","tx-actual-rate":183637,"rx-actual-rate":138834,)"
    R"("tx-bytes":275725,"rx-bytes":650245,"tx-packets":729,"rx-packets":859,)"
    R"("tx-errors":636,"rx-errors":380,"tx-drop":910,"rx-drop":383}])";

} // namespace

// ---- The enumerations ---------------------------------------------------------------------------

TEST(NcIpcApMonitoringInterfaces, EnumerationsHoldTheirValuesIn32Bits) {
  static_assert(std::is_same_v<std::underlying_type_t<WLCBT_OPERSTATE>, std::int32_t>);
  static_assert(std::is_same_v<std::underlying_type_t<WLCBT_DUPLEX_MODE>, std::int32_t>);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::UP), 0);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::DOWN), 1);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::UNKNOWN), 2);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::NOTPRESENT), 3);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::LOWERLAYERDOWN), 4);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::TESTING), 5);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::DORMANT), 6);
  EXPECT_EQ(static_cast<int>(WLCBT_OPERSTATE::UNNAMED), 7);
  EXPECT_EQ(static_cast<int>(WLCBT_DUPLEX_MODE::HALF), 0);
  EXPECT_EQ(static_cast<int>(WLCBT_DUPLEX_MODE::FULL), 1);
  EXPECT_EQ(static_cast<int>(WLCBT_DUPLEX_MODE::UNAVAILABLE), 2);
  EXPECT_EQ(static_cast<int>(WLCBT_DUPLEX_MODE::UNNAMED), 3);
}

TEST(NcIpcApMonitoringInterfaces, EveryOperstateTextReadsAsItsValueAndIsWrittenBack) {
  for (auto const& [text, value] : wlccw::test::link_state_texts()) {
    SCOPED_TRACE(text);
    Info const info = read_one(std::string(R"({"operstate":")") + text + R"("})");
    EXPECT_EQ(info.operstate, value);
    wlccw::cfg::Tree const back = parsed(written(info));
    EXPECT_STREQ(cfg_get_param(back.get(), "operstate"), text);
  }
}

TEST(NcIpcApMonitoringInterfaces, OperstateTextsOutsideTheTableReadAsUnnamedAndAreWrittenEmpty) {
  // Matching is exact: no case folding, no trimming, no number for a text.
  for (char const* object :
       {R"({"operstate":"UP"})", R"({"operstate":"Up"})", R"({"operstate":" up"})",
        R"({"operstate":"up "})", R"({"operstate":"upx"})", R"({"operstate":""})",
        R"({"operstate":"0"})", R"({"operstate":0})", R"({})"}) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_EQ(info.operstate, WLCBT_OPERSTATE::UNNAMED);
    wlccw::cfg::Tree const back = parsed(written(info));
    EXPECT_STREQ(cfg_get_param(back.get(), "operstate"), "");
    EXPECT_TRUE(cfg_contain_param(back.get(), "operstate"));
  }
}

TEST(NcIpcApMonitoringInterfaces, EveryDuplexTextReadsAsItsValueAndIsWrittenBack) {
  std::vector<std::pair<char const*, WLCBT_DUPLEX_MODE>> const rows{
      {"half", WLCBT_DUPLEX_MODE::HALF},
      {"full", WLCBT_DUPLEX_MODE::FULL},
      {"unavailable", WLCBT_DUPLEX_MODE::UNAVAILABLE},
  };
  for (auto const& [text, value] : rows) {
    SCOPED_TRACE(text);
    Info const info = read_one(std::string(R"({"duplex":")") + text + R"("})");
    EXPECT_EQ(info.duplex, value);
    wlccw::cfg::Tree const back = parsed(written(info));
    EXPECT_STREQ(cfg_get_param(back.get(), "duplex"), text);
  }
}

TEST(NcIpcApMonitoringInterfaces, DuplexTextsOutsideTheTableReadAsUnnamedAndAreWrittenEmpty) {
  // The port words "enabled" and "disabled" are not interface duplex texts.
  for (char const* object :
       {R"({"duplex":"auto"})", R"({"duplex":"FULL"})", R"({"duplex":"enabled"})",
        R"({"duplex":"disabled"})", R"({"duplex":""})", R"({"duplex":1})", R"({})"}) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_EQ(info.duplex, WLCBT_DUPLEX_MODE::UNNAMED);
    wlccw::cfg::Tree const back = parsed(written(info));
    EXPECT_STREQ(cfg_get_param(back.get(), "duplex"), "");
  }
}

TEST(NcIpcApMonitoringInterfaces, UnavailableDuplexSurvivesAndAutoBecomesEmpty) {
  Info const unavailable = read_one(R"({"duplex":"unavailable"})");
  EXPECT_EQ(unavailable.duplex, WLCBT_DUPLEX_MODE::UNAVAILABLE);
  Info const automatic = read_one(R"({"duplex":"auto"})");
  EXPECT_EQ(automatic.duplex, WLCBT_DUPLEX_MODE::UNNAMED);
  EXPECT_EQ(written(unavailable),
            R"({"name":"","hwaddr":"00:00:00:00:00:00","operstate":"","speed":0,)"
            R"("duplex":"unavailable","tx-actual-rate":0,"rx-actual-rate":0,"tx-bytes":0,)"
            R"("rx-bytes":0,"tx-packets":0,"rx-packets":0,"tx-errors":0,"rx-errors":0,)"
            R"("tx-drop":0,"rx-drop":0})");
  EXPECT_EQ(written(automatic), all_defaults_text);
}

TEST(NcIpcApMonitoringInterfaces, ValuesOutsideTheTablesAreWrittenAsEmptyTexts) {
  for (std::int32_t const raw : {7, 8, 100, -1, std::numeric_limits<std::int32_t>::min()}) {
    SCOPED_TRACE(raw);
    Info info;
    info.operstate = static_cast<WLCBT_OPERSTATE>(raw);
    info.duplex = static_cast<WLCBT_DUPLEX_MODE>(raw);
    EXPECT_EQ(written(info), all_defaults_text);
  }
}

// ---- Addresses ----------------------------------------------------------------------------------

TEST(NcIpcApMonitoringInterfaces, DashSeparatedAddressIsInvalidAndWrittenAsZeros) {
  Info const info = read_one(R"({"hwaddr":"00-1A-2B-3C-4D-5E"})");
  EXPECT_FALSE(info.hwaddr.valid);
  EXPECT_EQ(info.hwaddr, MacAddr());
  wlccw::cfg::Tree const back = parsed(written(info));
  EXPECT_STREQ(cfg_get_param(back.get(), "hwaddr"), "00:00:00:00:00:00");
}

TEST(NcIpcApMonitoringInterfaces, BareAndColonAddressesGiveTheSameValidAddress) {
  Info const bare = read_one(R"({"hwaddr":"001A2B3C4D5E"})");
  Info const colon = read_one(R"({"hwaddr":"00:1a:2b:3c:4d:5e"})");
  Info const mixed = read_one(R"({"hwaddr":"00:1A:2b:3C:4d:5E"})");
  EXPECT_TRUE(bare.hwaddr.valid);
  EXPECT_TRUE(colon.hwaddr.valid);
  EXPECT_TRUE(mixed.hwaddr.valid);
  std::array<unsigned char, 6> const bytes{0x00, 0x1a, 0x2b, 0x3c, 0x4d, 0x5e};
  EXPECT_EQ(bare.hwaddr.bytes, bytes);
  EXPECT_EQ(colon.hwaddr.bytes, bytes);
  EXPECT_EQ(mixed.hwaddr.bytes, bytes);
  for (Info const* info : {&bare, &colon, &mixed}) {
    wlccw::cfg::Tree const back = parsed(written(*info));
    EXPECT_STREQ(cfg_get_param(back.get(), "hwaddr"), "00:1a:2b:3c:4d:5e");
  }
}

TEST(NcIpcApMonitoringInterfaces, MalformedOrMissingAddressesGiveTheDefaultAddress) {
  for (char const* object : {
           R"({"hwaddr":"00:1a:2b:3c:4d:5"})",        // 16 characters
           R"({"hwaddr":"00:1a:2b:3c:4d:5e:"})",      // 18 characters
           R"({"hwaddr":"00.1a.2b.3c.4d.5e"})",       // wrong separator
           R"({"hwaddr":"00:1a:2b:3c:4d:5g"})",       // not a hexadecimal digit
           R"({"hwaddr":"001a2b3c4d5g"})",            // not a hexadecimal digit, bare form
           R"({"hwaddr":"001a2b3c4d5"})",             // 11 digits
           R"({"hwaddr":"0:01a:2b:3c:4d:5e"})",       // 17 characters, separators misplaced
           R"({"hwaddr":""})",                        // empty
           R"({"hwaddr":1})",                         // a number
           R"({"hwaddr":true})",                      // a boolean
           R"({"hwaddr":null})",                      // null
           R"({"hwaddr":["00:1a:2b:3c:4d:5e"]})",     // an array
           R"({"hwaddr":{"a":"00:1a:2b:3c:4d:5e"}})", // an object
           R"({})",                                   // absent
       }) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_FALSE(info.hwaddr.valid);
    EXPECT_EQ(info.hwaddr.bytes, (std::array<unsigned char, 6>{}));
  }
}

TEST(NcIpcApMonitoringInterfaces, AddressBytesAreWrittenWhateverTheValidity) {
  Info info;
  info.hwaddr.bytes = {0xAB, 0x01, 0x02, 0x03, 0x04, 0xFF};
  info.hwaddr.valid = false;
  wlccw::cfg::Tree const back = parsed(written(info));
  EXPECT_STREQ(cfg_get_param(back.get(), "hwaddr"), "ab:01:02:03:04:ff");
}

// ---- Names and counters -------------------------------------------------------------------------

TEST(NcIpcApMonitoringInterfaces, NameIsTheTextOfTheMemberAsItIs) {
  EXPECT_EQ(read_one(R"({"name":"Eth0 &#x41;"})").name, "Eth0 &#x41;");
  EXPECT_EQ(read_one(R"({"name":""})").name, "");
  EXPECT_EQ(read_one(R"({})").name, "");
  // Scalars give their text, containers and null none.
  EXPECT_EQ(read_one(R"({"name":42})").name, "42");
  EXPECT_EQ(read_one(R"({"name":true})").name, "true");
  EXPECT_EQ(read_one(R"({"name":null})").name, "");
  EXPECT_EQ(read_one(R"({"name":["eth0"]})").name, "");
  EXPECT_EQ(read_one(R"({"name":{"x":"eth0"}})").name, "");
}

TEST(NcIpcApMonitoringInterfaces, EveryCounterReadsNumbersAndIntegerStringsOf64Bits) {
  for (auto const& [key, member] : counters) {
    SCOPED_TRACE(key);
    std::string const k = key;
    EXPECT_EQ(read_one(R"({")" + k + R"(":0})").*member, 0U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":4294967296})").*member, 4294967296U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":"8589934592"})").*member, 8589934592U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":18446744073709551615})").*member,
              std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(read_one(R"({")" + k + R"(":"18446744073709551615"})").*member,
              std::numeric_limits<std::uint64_t>::max());
  }
  // "speed" is read the same way.
  EXPECT_EQ(read_one(R"({"speed":"10000000000"})").speed, 10000000000U);
  EXPECT_EQ(read_one(R"({"speed":18446744073709551615})").speed,
            std::numeric_limits<std::uint64_t>::max());
}

TEST(NcIpcApMonitoringInterfaces, CountersThatAreNotUnsigned64BitIntegersReadAsZero) {
  std::vector<char const*> const bad_values{
      "-1",
      R"("-1")",
      "18446744073709551616",
      R"("18446744073709551616")",
      "1.5",
      "1e3",
      R"("12abc")",
      R"(" 12")",
      R"("")",
      "true",
      "false",
      "null",
      "[1]",
      R"({"v":1})",
  };
  std::vector<std::pair<char const*, std::uint64_t Info::*>> keys = counters;
  keys.emplace_back("speed", &Info::speed);
  for (auto const& [key, member] : keys) {
    for (char const* value : bad_values) {
      std::string const object = std::string(R"({")") + key + R"(":)" + value + "}";
      SCOPED_TRACE(object);
      EXPECT_EQ(read_one(object).*member, 0U);
    }
    // Absent.
    EXPECT_EQ(read_one("{}").*member, 0U);
  }
}

TEST(NcIpcApMonitoringInterfaces, WrongTypesForEveryKeyGiveTheFallbacks) {
  std::string const object =
      R"({"name":{"a":1},"hwaddr":[1,2],"operstate":1,"speed":"fast","duplex":true,)"
      R"("tx-actual-rate":"1x","rx-actual-rate":-5,"tx-bytes":1.5,"rx-bytes":[],"tx-packets":{},)"
      R"("rx-packets":null,"tx-errors":false,"rx-errors":"","tx-drop":"-1",)"
      R"("rx-drop":99999999999999999999999})";
  Info info;
  EXPECT_NO_THROW(info = read_one(object));
  EXPECT_EQ(info, Info{});
  EXPECT_EQ(written(info), all_defaults_text);
}

// ---- One interface written ----------------------------------------------------------------------

TEST(NcIpcApMonitoringInterfaces, ReadsEveryMemberOfOneInterface) {
  Info const info = read_one(
      R"({"rx-drop":15,"tx-drop":14,"rx-errors":13,"tx-errors":12,"rx-packets":11,)"
      R"("tx-packets":10,"rx-bytes":"9","tx-bytes":8,"rx-actual-rate":7,"tx-actual-rate":6,)"
      R"("duplex":"half","speed":5,"operstate":"dormant","hwaddr":"A1B2C3D4E5F6",)"
      R"("name":"eth1"})");
  EXPECT_EQ(info.name, "eth1");
  EXPECT_TRUE(info.hwaddr.valid);
  EXPECT_EQ(info.hwaddr.str(), "a1:b2:c3:d4:e5:f6");
  EXPECT_EQ(info.operstate, WLCBT_OPERSTATE::DORMANT);
  EXPECT_EQ(info.speed, 5U);
  EXPECT_EQ(info.duplex, WLCBT_DUPLEX_MODE::HALF);
  EXPECT_EQ(info.tx_actual_rate, 6U);
  EXPECT_EQ(info.rx_actual_rate, 7U);
  EXPECT_EQ(info.tx_bytes, 8U);
  EXPECT_EQ(info.rx_bytes, 9U);
  EXPECT_EQ(info.tx_packets, 10U);
  EXPECT_EQ(info.rx_packets, 11U);
  EXPECT_EQ(info.tx_errors, 12U);
  EXPECT_EQ(info.rx_errors, 13U);
  EXPECT_EQ(info.tx_drop, 14U);
  EXPECT_EQ(info.rx_drop, 15U);
}

TEST(NcIpcApMonitoringInterfaces, WritesOneInterfaceWithItsKeysInWireOrder) {
  Info info;
  info.name = "wlan0";
  info.hwaddr = MacAddr::from_str("00:1A:2B:3C:4D:5E");
  info.operstate = WLCBT_OPERSTATE::NOTPRESENT;
  info.speed = 10000000000;
  info.duplex = WLCBT_DUPLEX_MODE::FULL;
  info.tx_actual_rate = 1;
  info.rx_actual_rate = 2;
  info.tx_bytes = 3;
  info.rx_bytes = 4;
  info.tx_packets = 5;
  info.rx_packets = 6;
  info.tx_errors = 7;
  info.rx_errors = 8;
  info.tx_drop = 9;
  info.rx_drop = std::numeric_limits<std::uint64_t>::max();
  EXPECT_EQ(written(info),
            R"({"name":"wlan0","hwaddr":"00:1a:2b:3c:4d:5e","operstate":"notpresent",)"
            R"("speed":10000000000,"duplex":"full","tx-actual-rate":1,"rx-actual-rate":2,)"
            R"("tx-bytes":3,"rx-bytes":4,"tx-packets":5,"rx-packets":6,"tx-errors":7,)"
            R"("rx-errors":8,"tx-drop":9,"rx-drop":18446744073709551615})");
}

TEST(NcIpcApMonitoringInterfaces, AnInterfaceWrittenAndReadBackIsEqual) {
  Info info;
  info.name = "br-lan";
  info.hwaddr = MacAddr::from_str("a45d36102001");
  info.operstate = WLCBT_OPERSTATE::TESTING;
  info.speed = 2500;
  info.duplex = WLCBT_DUPLEX_MODE::UNAVAILABLE;
  info.tx_bytes = 1ULL << 40U;
  info.rx_drop = 3;
  EXPECT_EQ(read_one(written(info)), info);
}

// ---- The list -----------------------------------------------------------------------------------

TEST(NcIpcApMonitoringInterfaces, ThreeInterfacesAreReadAndWrittenBackInOrder) {
  std::shared_ptr<Record> const record =
      read_netconf(R"({"interface":[{"name":"c","operstate":"down"},{"name":"a","duplex":"full"},)"
                   R"({"name":"b","hwaddr":"020000000001","tx-bytes":"5000000000"}]})");
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->interfaces.size(), 3U);
  EXPECT_EQ(record->interfaces[0].name, "c");
  EXPECT_EQ(record->interfaces[1].name, "a");
  EXPECT_EQ(record->interfaces[2].name, "b");
  EXPECT_EQ(written_under_key(*record),
            R"({"interface":[)"
            R"({"name":"c","hwaddr":"00:00:00:00:00:00","operstate":"down","speed":0,)"
            R"("duplex":"","tx-actual-rate":0,"rx-actual-rate":0,"tx-bytes":0,"rx-bytes":0,)"
            R"("tx-packets":0,"rx-packets":0,"tx-errors":0,"rx-errors":0,"tx-drop":0,)"
            R"("rx-drop":0},)"
            R"({"name":"a","hwaddr":"00:00:00:00:00:00","operstate":"","speed":0,)"
            R"("duplex":"full","tx-actual-rate":0,"rx-actual-rate":0,"tx-bytes":0,)"
            R"("rx-bytes":0,"tx-packets":0,"rx-packets":0,"tx-errors":0,"rx-errors":0,)"
            R"("tx-drop":0,"rx-drop":0},)"
            R"({"name":"b","hwaddr":"02:00:00:00:00:01","operstate":"","speed":0,"duplex":"",)"
            R"("tx-actual-rate":0,"rx-actual-rate":0,"tx-bytes":5000000000,"rx-bytes":0,)"
            R"("tx-packets":0,"rx-packets":0,"tx-errors":0,"rx-errors":0,"tx-drop":0,)"
            R"("rx-drop":0}]})");
}

TEST(NcIpcApMonitoringInterfaces, ToIpcTextIsATopLevelArrayWithoutTheListKey) {
  Record record;
  record.interfaces.resize(2);
  record.interfaces[0].name = "x";
  record.interfaces[1].name = "y";
  EXPECT_EQ(record.to_ipc(), R"([{"name":"x")" + defaults_after_name + R"(,{"name":"y")" +
                                 defaults_after_name + "]");
}

TEST(NcIpcApMonitoringInterfaces, NodeWithoutTheArrayGivesNull) {
  EXPECT_EQ(read_netconf("{}"), nullptr);
  EXPECT_EQ(read_netconf(R"({"interfaces":[{"name":"eth0"}]})"), nullptr);
  EXPECT_EQ(read_netconf(R"({"Interface":[{"name":"eth0"}]})"), nullptr);
  // A node that is not an object holds no members.
  EXPECT_EQ(read_netconf(R"([{"interface":[]}])"), nullptr);
  EXPECT_EQ(read_netconf(R"("interface")"), nullptr);
}

TEST(NcIpcApMonitoringInterfaces, EmptyArrayGivesAnEmptyRecordWrittenAsAnEmptyArray) {
  std::shared_ptr<Record> const record = read_netconf(R"({"interface":[]})");
  ASSERT_NE(record, nullptr);
  EXPECT_TRUE(record->interfaces.empty());
  EXPECT_EQ(record->to_ipc(), "[]");
  EXPECT_EQ(written_under_key(*record), R"({"interface":[]})");
}

TEST(NcIpcApMonitoringInterfaces, ListMemberThatIsNotAnArrayGivesNull) {
  for (char const* object : {R"({"interface":{}})", R"({"interface":{"name":"eth0"}})",
                             R"({"interface":"eth0"})", R"({"interface":""})", R"({"interface":5})",
                             R"({"interface":true})", R"({"interface":null})"}) {
    SCOPED_TRACE(object);
    std::shared_ptr<Record> record;
    EXPECT_NO_THROW(record = read_netconf(object));
    EXPECT_EQ(record, nullptr);
  }
}

TEST(NcIpcApMonitoringInterfaces, ElementsThatAreNotObjectsGiveDefaultEntries) {
  std::shared_ptr<Record> record;
  EXPECT_NO_THROW(record = read_netconf(R"({"interface":[1,"eth0",null,true,[],[{"name":"x"}],)"
                                        R"({"name":"eth1"}]})"));
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->interfaces.size(), 7U);
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(record->interfaces[i], Info{}) << i;
  }
  EXPECT_EQ(record->interfaces[6].name, "eth1");
}

TEST(NcIpcApMonitoringInterfaces, FromIpcReadsLikeFromNetconf) {
  std::string const object =
      R"({"interface":[{"name":"eth0","hwaddr":"00:11:22:33:44:55","operstate":"up",)"
      R"("speed":100,"duplex":"half","rx-bytes":"8589934592"}]})";
  wlccw::cfg::Tree const root = parsed(object);
  std::shared_ptr<Record> const netconf = Record::from_netconf(*root);
  std::shared_ptr<Record> const ipc = Record::from_ipc(*root);
  ASSERT_NE(netconf, nullptr);
  ASSERT_NE(ipc, nullptr);
  EXPECT_EQ(*ipc, *netconf);
  EXPECT_EQ(ipc->interfaces.at(0).rx_bytes, 8589934592U);
  EXPECT_EQ(Record::from_ipc(*parsed("{}")), nullptr);
  EXPECT_EQ(Record::from_ipc(*parsed(R"({"interface":{}})")), nullptr);
}

TEST(NcIpcApMonitoringInterfaces, ToIpcIntoANodeThatIsNotAnObjectWritesNothing) {
  Record record;
  record.interfaces.resize(1);
  wlccw::cfg::Tree const array = wlccw::cfg::make_array();
  EXPECT_NO_THROW(record.to_ipc(*array));
  EXPECT_EQ(wlccw::cfg::compact(array.get()), "[]");
}

TEST(NcIpcApMonitoringInterfaces, ToIpcReplacesAnExistingListInPlace) {
  Record record;
  record.interfaces.resize(1);
  record.interfaces[0].name = "new";
  wlccw::cfg::Tree const node = parsed(R"({"a":1,"interface":[{"name":"old"}],"b":2})");
  record.to_ipc(*node);
  std::shared_ptr<Record> const back = Record::from_ipc(*node);
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, record);
  EXPECT_EQ(wlccw::cfg::compact(node.get()),
            R"({"a":1,"interface":[{"name":"new")" + defaults_after_name + R"(],"b":2})");
}

TEST(NcIpcApMonitoringInterfaces, ALongListKeepsItsOrder) {
  std::string object = R"({"interface":[)";
  for (int i = 0; i < 500; ++i) {
    object += (i == 0 ? "" : ",") + std::string(R"({"name":"if)") + std::to_string(i) +
              R"(","tx-packets":)" + std::to_string(i) + "}";
  }
  object += "]}";
  std::shared_ptr<Record> const record = read_netconf(object);
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->interfaces.size(), 500U);
  for (std::size_t i = 0; i < 500; ++i) {
    EXPECT_EQ(record->interfaces[i].name, "if" + std::to_string(i));
    EXPECT_EQ(record->interfaces[i].tx_packets, i);
  }
}

// ---- Round trips --------------------------------------------------------------------------------

TEST(NcIpcApMonitoringInterfaces, BothIpcFormsReadBackGiveTheSameText) {
  std::shared_ptr<Record> const record = read_netconf(
      R"({"interface":[{"name":"eth0","hwaddr":"A45D36102001","operstate":"lowerlayerdown",)"
      R"("speed":"1000","duplex":"unavailable","tx-bytes":"8589934592","rx-drop":7},)"
      R"({"name":"weird","hwaddr":"bad","operstate":"UP","duplex":"auto"}]})");
  ASSERT_NE(record, nullptr);
  std::string const text = record->to_ipc();

  // The top-level array, embedded by its receiver under the list key.
  std::shared_ptr<Record> const from_text =
      Record::from_ipc(*parsed(R"({"interface":)" + text + "}"));
  ASSERT_NE(from_text, nullptr);
  EXPECT_EQ(*from_text, *record);
  EXPECT_EQ(from_text->to_ipc(), text);

  // The form written into a node.
  wlccw::test::expect_node_form_reads_back(*record);
}

// ---- The sample reply ---------------------------------------------------------------------------

TEST(NcIpcApMonitoringInterfaces, SampleReplyGivesItsFiveInterfaces) {
  wlccw::cfg::Tree const reply = parsed(wlccw::test::read_sample("monitoring/reply-full.json"));
  ASSERT_TRUE(reply);
  lcw_data_t* const monitoring = cfg_get_subtree_from_path(reply.get(), monitoring_path);
  ASSERT_NE(monitoring, nullptr);
  std::shared_ptr<Record> const record = Record::from_netconf(*monitoring);
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->interfaces.size(), 5U);
  EXPECT_EQ(record->to_ipc(), sample_interfaces_ipc);

  Info const& eth0 = record->interfaces[0];
  EXPECT_TRUE(eth0.hwaddr.valid);
  EXPECT_EQ(eth0.tx_bytes, 5282621617U);
  EXPECT_EQ(eth0.rx_bytes, 8713391381U);
  EXPECT_EQ(record->interfaces[3].operstate, WLCBT_OPERSTATE::LOWERLAYERDOWN);
  // gre1 reports the all-zero address, which parses as a valid one.
  EXPECT_TRUE(record->interfaces[4].hwaddr.valid);

  wlccw::cfg::Tree const node = wlccw::cfg::make_object();
  record->to_ipc(*node);
  EXPECT_EQ(wlccw::cfg::compact(node.get()), R"({"interface":)" + sample_interfaces_ipc + "}");
  std::shared_ptr<Record> const back = Record::from_ipc(*node);
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, *record);
  EXPECT_EQ(back->to_ipc(), sample_interfaces_ipc);
}
