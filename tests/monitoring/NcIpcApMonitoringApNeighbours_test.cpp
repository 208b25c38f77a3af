#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>

#include <wlccw/cfg/owned.hpp>

#include "support/samples.hpp"

#include "list_support.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using Info = NcIpcApMonitoringApNeighbours::ApNeighbourInfo;
using Record = NcIpcApMonitoringApNeighbours;

// The shared list helpers, bound to this record.
auto* const parsed = &wlccw::test::parse_json;
auto* const read_netconf = &wlccw::test::read_netconf<Record>;
auto* const read_one = &wlccw::test::read_one<Record>;
auto* const written = &wlccw::test::written<Record, Info>;
auto* const written_under_key = &wlccw::test::written_under_key<Record>;
auto* const read_ipc_node = &wlccw::test::read_ipc_node<Record>;

// The compact text of one neighbour object whose every member was absent on reading.
constexpr char const* all_defaults_text =
    R"({"bssid":"00:00:00:00:00:00","ssid":"","channel":0,"signal-level":0,"privacy":false,)"
    R"("bandwidth":0,"last-seen":0})";

// The first five neighbours of the sample reply, as their IPC objects: SSIDs decoded ("&#x27;" is
// an apostrophe, "&#xe9;" the single byte 0xE9), the bare upper-case BSSID in colon form, the
// channel string "69" as a number, "controlled-by-wlc" only where the AP sent it.
std::array<std::string, 5> const sample_first_neighbours{
    R"({"bssid":"10:eb:dd:87:0a:00","ssid":"printer's net","channel":100,"signal-level":-78,)"
    R"("privacy":true,"bandwidth":20,"last-seen":479,"controlled-by-wlc":true})",
    R"({"bssid":"11:f1:ca:f6:ec:01","ssid":"guest","channel":69,"signal-level":-82,)"
    R"("privacy":true,"bandwidth":160,"last-seen":77})",
    "{\"bssid\":\"12:ec:af:9f:31:02\",\"ssid\":\"Caf\xE9 Libre\",\"channel\":36,"
    "\"signal-level\":-59,\"privacy\":false,\"bandwidth\":40,\"last-seen\":7}",
    R"({"bssid":"13:bf:f4:9d:a0:03","ssid":"corp-wifi","channel":37,"signal-level":-70,)"
    R"("privacy":false,"bandwidth":80,"last-seen":423,"controlled-by-wlc":false})",
    R"({"bssid":"14:41:f3:71:fb:04","ssid":"guest","channel":69,"signal-level":-92,)"
    R"("privacy":true,"bandwidth":80,"last-seen":389})",
};

// The monitoring node of the sample reply, owned by reply.
lcw_data_t* sample_monitoring(wlccw::cfg::Tree const& reply) {
  return reply ? cfg_get_subtree_from_path(reply.get(), "/rpc-reply/data/monitoring") : nullptr;
}

} // namespace

// ---- The two list keys --------------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, NetconfReadsOnlyNeighborApAndIpcOnlyApNeighbours) {
  std::string const ipc_only = R"({"ap-neighbours":[{"ssid":"a"}]})";
  std::string const netconf_only = R"({"neighbor-ap":[{"ssid":"b"}]})";
  EXPECT_EQ(read_netconf(ipc_only), nullptr);
  EXPECT_EQ(read_ipc_node(netconf_only), nullptr);

  std::shared_ptr<Record> const netconf = read_netconf(netconf_only);
  ASSERT_NE(netconf, nullptr);
  ASSERT_EQ(netconf->neighbours.size(), 1U);
  EXPECT_EQ(netconf->neighbours[0].ssid, "b");
  std::shared_ptr<Record> const ipc = read_ipc_node(ipc_only);
  ASSERT_NE(ipc, nullptr);
  ASSERT_EQ(ipc->neighbours.size(), 1U);
  EXPECT_EQ(ipc->neighbours[0].ssid, "a");
}

TEST(NcIpcApMonitoringApNeighbours, ANodeWithBothKeysIsReadByEachFormUnderItsOwnKey) {
  std::string const both = R"({"neighbor-ap":[{"ssid":"air"},{"ssid":"air2"}],)"
                           R"("ap-neighbours":[{"ssid":"ipc"}]})";
  std::shared_ptr<Record> const netconf = read_netconf(both);
  std::shared_ptr<Record> const ipc = read_ipc_node(both);
  ASSERT_NE(netconf, nullptr);
  ASSERT_NE(ipc, nullptr);
  ASSERT_EQ(netconf->neighbours.size(), 2U);
  EXPECT_EQ(netconf->neighbours[0].ssid, "air");
  EXPECT_EQ(netconf->neighbours[1].ssid, "air2");
  ASSERT_EQ(ipc->neighbours.size(), 1U);
  EXPECT_EQ(ipc->neighbours[0].ssid, "ipc");
}

TEST(NcIpcApMonitoringApNeighbours, ListKeysMatchExactly) {
  for (char const* object :
       {R"({"neighbour-ap":[{}]})", R"({"neighbor_ap":[{}]})", R"({"Neighbor-ap":[{}]})",
        R"({"ap-neighbors":[{}]})", R"({"ap_neighbours":[{}]})", R"({})"}) {
    SCOPED_TRACE(object);
    EXPECT_EQ(read_netconf(object), nullptr);
    EXPECT_EQ(read_ipc_node(object), nullptr);
  }
}

TEST(NcIpcApMonitoringApNeighbours, ToIpcIntoANodeWritesApNeighbours) {
  Record record;
  record.neighbours.resize(1);
  record.neighbours[0].ssid = "x";
  EXPECT_EQ(written_under_key(record),
            R"({"ap-neighbours":[{"bssid":"00:00:00:00:00:00","ssid":"x","channel":0,)"
            R"("signal-level":0,"privacy":false,"bandwidth":0,"last-seen":0}]})");
  // What to_ipc writes into a node is what from_ipc reads from it, not what from_netconf reads.
  wlccw::cfg::Tree const node = wlccw::cfg::make_object();
  record.to_ipc(*node);
  EXPECT_EQ(Record::from_netconf(*node), nullptr);
  std::shared_ptr<Record> const back = Record::from_ipc(*node);
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, record);
}

// ---- The list -----------------------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, EmptyArrayGivesAnEmptyRecordWrittenAsAnEmptyArray) {
  for (auto const& record :
       {read_netconf(R"({"neighbor-ap":[]})"), read_ipc_node(R"({"ap-neighbours":[]})"),
        Record::from_ipc(std::string("[]"))}) {
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(record->neighbours.empty());
    EXPECT_EQ(record->to_ipc(), "[]");
    EXPECT_EQ(written_under_key(*record), R"({"ap-neighbours":[]})");
  }
}

TEST(NcIpcApMonitoringApNeighbours, ListMemberThatIsNotAnArrayGivesNull) {
  for (char const* value : {"{}", R"({"ssid":"x"})", R"("x")", "3", "true", "null"}) {
    SCOPED_TRACE(value);
    std::shared_ptr<Record> netconf;
    std::shared_ptr<Record> ipc;
    EXPECT_NO_THROW(netconf = read_netconf(std::string(R"({"neighbor-ap":)") + value + "}"));
    EXPECT_NO_THROW(ipc = read_ipc_node(std::string(R"({"ap-neighbours":)") + value + "}"));
    EXPECT_EQ(netconf, nullptr);
    EXPECT_EQ(ipc, nullptr);
  }
  // A node that is not an object holds no members.
  EXPECT_EQ(read_netconf(R"([{"neighbor-ap":[]}])"), nullptr);
  EXPECT_EQ(read_ipc_node(R"([{"ap-neighbours":[]}])"), nullptr);
}

TEST(NcIpcApMonitoringApNeighbours, ElementsThatAreNotObjectsGiveDefaultEntries) {
  std::shared_ptr<Record> record;
  EXPECT_NO_THROW(record = read_netconf(
                      R"({"neighbor-ap":["ssid",7,null,false,[{"ssid":"x"}],{"ssid":"y"}]})"));
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->neighbours.size(), 6U);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(record->neighbours[i], Info{}) << i;
  }
  EXPECT_EQ(record->neighbours[5].ssid, "y");
  EXPECT_EQ(record->to_ipc(),
            std::string("[") + all_defaults_text + "," + all_defaults_text + "," +
                all_defaults_text + "," + all_defaults_text + "," + all_defaults_text +
                R"(,{"bssid":"00:00:00:00:00:00","ssid":"y","channel":0,"signal-level":0,)"
                R"("privacy":false,"bandwidth":0,"last-seen":0}])");
}

TEST(NcIpcApMonitoringApNeighbours, ToIpcIntoANodeThatIsNotAnObjectWritesNothing) {
  Record record;
  record.neighbours.resize(3);
  wlccw::cfg::Tree const array = wlccw::cfg::make_array();
  EXPECT_NO_THROW(record.to_ipc(*array));
  EXPECT_EQ(wlccw::cfg::compact(array.get()), "[]");
}

// ---- The text form ------------------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, TextThatIsNoArrayOfNeighboursGivesNull) {
  for (char const* text : {"", " ", "[", "garbage", "[]x", "[1,]", "{}", R"({"ap-neighbours":[]})",
                           R"("[]")", "5", "null", "true"}) {
    SCOPED_TRACE(text);
    std::shared_ptr<Record> record;
    EXPECT_NO_THROW(record = Record::from_ipc(std::string(text)));
    EXPECT_EQ(record, nullptr);
  }
}

TEST(NcIpcApMonitoringApNeighbours, TextWithElementsThatAreNotObjectsGivesDefaultEntries) {
  std::shared_ptr<Record> const record = Record::from_ipc(std::string(R"([1,"x",[],null])"));
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->neighbours.size(), 4U);
  for (Info const& info : record->neighbours) {
    EXPECT_EQ(info, Info{});
  }
}

TEST(NcIpcApMonitoringApNeighbours, FromIpcOfToIpcTextGivesAnEqualList) {
  Record record;
  Info a;
  a.bssid = MacAddr::from_str("02:00:00:00:00:01");
  a.ssid = "Lab & Test <5g>";
  a.channel = 149;
  a.signal_level = -67;
  a.privacy = true;
  a.bandwidth = 80;
  a.last_seen = 12;
  a.controlled_by_wlc = false;
  Info b;
  b.bssid = MacAddr::from_str("0200000000FF");
  b.ssid = "Caf\xE9";
  b.channel = std::numeric_limits<std::uint32_t>::max();
  b.signal_level = std::numeric_limits<std::int32_t>::min();
  b.last_seen = std::numeric_limits<std::uint32_t>::max();
  b.controlled_by_wlc = true;
  Info c; // every member at its default, no "controlled-by-wlc"
  record.neighbours = {a, b, c};

  std::string const text = record.to_ipc();
  std::shared_ptr<Record> const back = Record::from_ipc(text);
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, record);
  EXPECT_EQ(back->to_ipc(), text);

  // The form written into a node.
  wlccw::test::expect_node_form_reads_back(record);
}

// ---- SSIDs --------------------------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, EscapedSsidIsStoredAndWrittenDecoded) {
  Info const info = read_one(R"({"ssid":"Lab &#x26; Test &#x3c;5g&#x3e; Caf&#xE9;"})");
  EXPECT_EQ(info.ssid, "Lab & Test <5g> Caf\xE9");
  EXPECT_EQ(written(info), "{\"bssid\":\"00:00:00:00:00:00\",\"ssid\":\"Lab & Test <5g> Caf\xE9\","
                           "\"channel\":0,\"signal-level\":0,\"privacy\":false,\"bandwidth\":0,"
                           "\"last-seen\":0}");
}

TEST(NcIpcApMonitoringApNeighbours, SsidIsCleanedOfControlBytesAndKeepsOtherText) {
  std::vector<std::pair<std::string, std::string>> const cases{
      {R"({"ssid":"a&#x41;b"})", "aAb"},
      {R"({"ssid":"&#x4"})", "&#x4"},
      {R"({"ssid":"&#x41"})", "&#x41"},
      {R"({"ssid":"&#x041;"})", "&#x041;"},
      {R"({"ssid":"&amp; &#65;"})", "&amp; &#65;"},
      {R"({"ssid":"line&#x0a;break"})", "line.break"},
      {R"({"ssid":"tab\there"})", "tab.here"},
      {R"({"ssid":"del\u007f"})", "del."},
      {"{\"ssid\":\"\xC3\xA9t\xC3\xA9\"}", "\xC3\xA9t\xC3\xA9"},
      {R"({"ssid":""})", ""},
      {R"({})", ""},
      {R"({"ssid":42})", "42"},
      {R"({"ssid":false})", "false"},
      {R"({"ssid":null})", ""},
      {R"({"ssid":["x"]})", ""},
      {R"({"ssid":{"x":"y"}})", ""},
  };
  for (auto const& [object, ssid] : cases) {
    SCOPED_TRACE(object);
    EXPECT_EQ(read_one(object).ssid, ssid);
  }
}

TEST(NcIpcApMonitoringApNeighbours, SsidWrittenToIpcIsNotEscapedAgain) {
  Info info;
  info.ssid = "a&b<c>'d\"";
  wlccw::cfg::Tree const back = parsed(written(info));
  EXPECT_STREQ(cfg_get_param(back.get(), "ssid"), "a&b<c>'d\"");
}

TEST(NcIpcApMonitoringApNeighbours, IpcReaderDecodesSsidsLikeTheNetconfReader) {
  // Both forms share one entry reader, so an SSID whose decoded text still looks like an escape is
  // decoded once more when an IPC peer reads it.
  Info const from_ap = read_one(R"({"ssid":"&#x26;#x41;"})");
  EXPECT_EQ(from_ap.ssid, "&#x41;");
  Record record;
  record.neighbours = {from_ap};
  std::shared_ptr<Record> const back = Record::from_ipc(record.to_ipc());
  ASSERT_NE(back, nullptr);
  ASSERT_EQ(back->neighbours.size(), 1U);
  EXPECT_EQ(back->neighbours[0].ssid, "A");
}

// ---- Addresses ----------------------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, BareUpperCaseBssidIsWrittenLowerCaseWithColons) {
  Info const info = read_one(R"({"bssid":"13BFF49DA003"})");
  EXPECT_TRUE(info.bssid.valid);
  EXPECT_EQ(info.bssid.bytes, (std::array<unsigned char, 6>{0x13, 0xBF, 0xF4, 0x9D, 0xA0, 0x03}));
  wlccw::cfg::Tree const back = parsed(written(info));
  EXPECT_STREQ(cfg_get_param(back.get(), "bssid"), "13:bf:f4:9d:a0:03");
  EXPECT_EQ(read_one(R"({"bssid":"13:BF:F4:9D:A0:03"})").bssid, info.bssid);
}

TEST(NcIpcApMonitoringApNeighbours, MalformedOrMissingBssidGivesTheDefaultAddress) {
  for (char const* object : {R"({"bssid":"13-BF-F4-9D-A0-03"})", R"({"bssid":"13:BF:F4:9D:A0:0"})",
                             R"({"bssid":"13BFF49DA00"})", R"({"bssid":"13BFF49DA0033"})",
                             R"({"bssid":"13:BF:F4:9D:A0:0G"})", R"({"bssid":""})",
                             R"({"bssid":13})", R"({"bssid":true})", R"({"bssid":null})",
                             R"({"bssid":["13BFF49DA003"]})", R"({"bssid":{}})", R"({})"}) {
    SCOPED_TRACE(object);
    Info const info = read_one(object);
    EXPECT_FALSE(info.bssid.valid);
    EXPECT_EQ(info.bssid.bytes, (std::array<unsigned char, 6>{}));
    wlccw::cfg::Tree const back = parsed(written(info));
    EXPECT_STREQ(cfg_get_param(back.get(), "bssid"), "00:00:00:00:00:00");
  }
}

TEST(NcIpcApMonitoringApNeighbours, BssidBytesAreWrittenWhateverTheValidity) {
  Info info;
  info.bssid.bytes = {0xDE, 0xAD, 0xBE, 0xEF, 0x00, 0x01};
  wlccw::cfg::Tree const back = parsed(written(info));
  EXPECT_STREQ(cfg_get_param(back.get(), "bssid"), "de:ad:be:ef:00:01");
}

// ---- Numbers and flags --------------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, Unsigned32BitMembersReadNumbersAndIntegerStrings) {
  std::vector<std::pair<char const*, std::uint32_t Info::*>> const members{
      {"channel", &Info::channel},
      {"bandwidth", &Info::bandwidth},
      {"last-seen", &Info::last_seen}};
  for (auto const& [key, member] : members) {
    SCOPED_TRACE(key);
    std::string const k = key;
    EXPECT_EQ(read_one(R"({")" + k + R"(":36})").*member, 36U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":"69"})").*member, 69U);
    EXPECT_EQ(read_one(R"({")" + k + R"(":4294967295})").*member, 4294967295U);
    for (char const* bad : {"4294967296", R"("4294967296")", "-1", R"("-36")", "36.0", "1e2",
                            R"("36 ")", R"("")", "true", "null", "[36]", R"({"c":36})"}) {
      SCOPED_TRACE(bad);
      EXPECT_EQ(read_one(R"({")" + k + R"(":)" + bad + "}").*member, 0U);
    }
    EXPECT_EQ(read_one("{}").*member, 0U);
  }
}

TEST(NcIpcApMonitoringApNeighbours, SignalLevelIsASigned32BitInteger) {
  EXPECT_EQ(read_one(R"({"signal-level":-78})").signal_level, -78);
  EXPECT_EQ(read_one(R"({"signal-level":"-78"})").signal_level, -78);
  EXPECT_EQ(read_one(R"({"signal-level":12})").signal_level, 12);
  EXPECT_EQ(read_one(R"({"signal-level":-2147483648})").signal_level,
            std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(read_one(R"({"signal-level":2147483647})").signal_level,
            std::numeric_limits<std::int32_t>::max());
  for (char const* bad :
       {"2147483648", R"("-2147483649")", "-78.5", R"("-78dBm")", "false", "null", "[-78]", "{}"}) {
    SCOPED_TRACE(bad);
    EXPECT_EQ(read_one(std::string(R"({"signal-level":)") + bad + "}").signal_level, 0);
  }
  EXPECT_EQ(read_one("{}").signal_level, 0);
}

TEST(NcIpcApMonitoringApNeighbours, PrivacyIsTrueOnlyForJsonTrue) {
  EXPECT_TRUE(read_one(R"({"privacy":true})").privacy);
  for (char const* object : {R"({"privacy":false})", R"({"privacy":"true"})", R"({"privacy":1})",
                             R"({"privacy":null})", R"({"privacy":[true]})", R"({})"}) {
    SCOPED_TRACE(object);
    EXPECT_FALSE(read_one(object).privacy);
  }
}

TEST(NcIpcApMonitoringApNeighbours, ControlledByWlcIsWrittenOnlyWhenKnown) {
  Info const absent = read_one(R"({"ssid":"a"})");
  EXPECT_EQ(absent.controlled_by_wlc, std::nullopt);
  EXPECT_EQ(written(absent),
            R"({"bssid":"00:00:00:00:00:00","ssid":"a","channel":0,"signal-level":0,)"
            R"("privacy":false,"bandwidth":0,"last-seen":0})");

  Info const no = read_one(R"({"ssid":"a","controlled-by-wlc":false})");
  EXPECT_EQ(no.controlled_by_wlc, std::optional<bool>(false));
  EXPECT_EQ(written(no),
            R"({"bssid":"00:00:00:00:00:00","ssid":"a","channel":0,"signal-level":0,)"
            R"("privacy":false,"bandwidth":0,"last-seen":0,"controlled-by-wlc":false})");

  Info const yes = read_one(R"({"ssid":"a","controlled-by-wlc":true})");
  EXPECT_EQ(yes.controlled_by_wlc, std::optional<bool>(true));
  EXPECT_EQ(written(yes),
            R"({"bssid":"00:00:00:00:00:00","ssid":"a","channel":0,"signal-level":0,)"
            R"("privacy":false,"bandwidth":0,"last-seen":0,"controlled-by-wlc":true})");
}

TEST(NcIpcApMonitoringApNeighbours, ControlledByWlcThatIsNotABooleanIsUnknown) {
  for (char const* value : {R"("true")", R"("false")", "1", "0", "null", "[true]", "{}"}) {
    SCOPED_TRACE(value);
    Info const info = read_one(std::string(R"({"controlled-by-wlc":)") + value + "}");
    EXPECT_EQ(info.controlled_by_wlc, std::nullopt);
    EXPECT_EQ(written(info), all_defaults_text);
  }
}

TEST(NcIpcApMonitoringApNeighbours, WrongTypesForEveryKeyGiveTheFallbacks) {
  std::string const object =
      R"({"bssid":[],"ssid":{},"channel":"ch36","signal-level":"weak","privacy":"yes",)"
      R"("bandwidth":-20,"last-seen":1.5,"controlled-by-wlc":"no"})";
  Info info;
  EXPECT_NO_THROW(info = read_one(object));
  EXPECT_EQ(info, Info{});
  EXPECT_EQ(written(info), all_defaults_text);
}

// ---- One neighbour written ----------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, ReadsAndWritesEveryMemberWithKeysInWireOrder) {
  Info const info = read_one(
      R"({"controlled-by-wlc":true,"last-seen":"600","bandwidth":160,"privacy":true,)"
      R"("signal-level":-43,"channel":"149","ssid":"home&#x3c;5g&#x3e;","bssid":"1A76075A7D0A"})");
  EXPECT_EQ(info.bssid.str(), "1a:76:07:5a:7d:0a");
  EXPECT_TRUE(info.bssid.valid);
  EXPECT_EQ(info.ssid, "home<5g>");
  EXPECT_EQ(info.channel, 149U);
  EXPECT_EQ(info.signal_level, -43);
  EXPECT_TRUE(info.privacy);
  EXPECT_EQ(info.bandwidth, 160U);
  EXPECT_EQ(info.last_seen, 600U);
  EXPECT_EQ(info.controlled_by_wlc, std::optional<bool>(true));
  EXPECT_EQ(written(info),
            R"({"bssid":"1a:76:07:5a:7d:0a","ssid":"home<5g>","channel":149,"signal-level":-43,)"
            R"("privacy":true,"bandwidth":160,"last-seen":600,"controlled-by-wlc":true})");
}

// ---- The sample reply ---------------------------------------------------------------------------

TEST(NcIpcApMonitoringApNeighbours, SampleReplyGivesItsNeighboursDecoded) {
  wlccw::cfg::Tree const reply = parsed(wlccw::test::read_sample("monitoring/reply-full.json"));
  lcw_data_t* const monitoring = sample_monitoring(reply);
  ASSERT_NE(monitoring, nullptr);
  EXPECT_EQ(Record::from_ipc(*monitoring), nullptr); // the AP's key is not the IPC key
  std::shared_ptr<Record> const record = Record::from_netconf(*monitoring);
  ASSERT_NE(record, nullptr);
  ASSERT_EQ(record->neighbours.size(), 36U);

  for (std::size_t i = 0; i < sample_first_neighbours.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(written(record->neighbours[i]), sample_first_neighbours[i]);
  }
  std::string expected_start = "[";
  for (std::string const& object : sample_first_neighbours) {
    expected_start += object + ",";
  }
  std::string const text = record->to_ipc();
  EXPECT_EQ(text.substr(0, expected_start.size()), expected_start);
  EXPECT_EQ(text.back(), ']');

  // Further entries: decoded SSIDs, a bare BSSID, an empty SSID; the BSSID's last byte is the
  // entry's index in the sample.
  EXPECT_EQ(record->neighbours[6].ssid, "Lab & Test");
  EXPECT_EQ(record->neighbours[9].ssid, "home<5g>");
  EXPECT_EQ(record->neighbours[9].channel, 69U);
  EXPECT_EQ(record->neighbours[10].bssid.str(), "1a:76:07:5a:7d:0a");
  EXPECT_EQ(record->neighbours[23].ssid, "");
  std::size_t known = 0;
  for (std::size_t i = 0; i < record->neighbours.size(); ++i) {
    EXPECT_TRUE(record->neighbours[i].bssid.valid) << i;
    EXPECT_EQ(static_cast<std::size_t>(record->neighbours[i].bssid.bytes[5]), i) << i;
    known += record->neighbours[i].controlled_by_wlc.has_value() ? 1U : 0U;
  }
  EXPECT_EQ(known, 12U);
}

TEST(NcIpcApMonitoringApNeighbours, SampleNeighboursSurviveBothIpcForms) {
  wlccw::cfg::Tree const reply = parsed(wlccw::test::read_sample("monitoring/reply-full.json"));
  lcw_data_t* const monitoring = sample_monitoring(reply);
  ASSERT_NE(monitoring, nullptr);
  std::shared_ptr<Record> const record = Record::from_netconf(*monitoring);
  ASSERT_NE(record, nullptr);
  std::string const text = record->to_ipc();

  std::shared_ptr<Record> const from_text = Record::from_ipc(text);
  ASSERT_NE(from_text, nullptr);
  EXPECT_EQ(*from_text, *record);
  EXPECT_EQ(from_text->to_ipc(), text);

  EXPECT_EQ(wlccw::test::expect_node_form_reads_back(*record), R"({"ap-neighbours":)" + text + "}");
}
