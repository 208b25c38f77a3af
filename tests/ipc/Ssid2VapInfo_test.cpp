#include <wlccw/ipc/Ssid2VapInfo.hpp>

#include <wlccw/cfg/owned.hpp>

#include "support/addresses.hpp"
#include <boost/json.hpp>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using wlccw::test::mac;

using Band = IpcMsgRrmApInfo::Band;
using Pack = std::map<MacAddr, IpcMsgRrmApInfo>;

IpcMsgRrmApInfo hall_ap() {
  IpcMsgRrmApInfo info;
  info.type = "WAP-2";
  info.ip = "10.0.0.2";
  info.location = "Hall";
  info.interfaces.try_emplace("wlan0-vap0", "Corp", Band::BAND_2G, 0U, 0U);
  return info;
}

IpcMsgRrmApInfo roof_ap() {
  IpcMsgRrmApInfo info;
  info.type = "WAP-6E";
  info.ip = "10.0.0.3";
  info.location = "Roof";
  info.interfaces.try_emplace("wlan2-vap1", "Guest", Band::BAND_6G, 2U, 1U);
  info.interfaces.try_emplace("wlan1-vap0", "Corp", Band::BAND_5G, 1U, 0U);
  return info;
}

constexpr char const* hall_text =
    R"({"type":"WAP-2","ip":"10.0.0.2","location":"Hall","interfaces":[)"
    R"({"name":"wlan0-vap0","band":"2g","ssid":"Corp","radio-id":0,"vap-id":0}]})";

/// Two APs, added in descending address order.
Ssid2VapInfo two_aps() {
  Ssid2VapInfo pack;
  pack.insert(mac("A4:5D:36:10:20:00"), roof_ap());
  pack.insert(mac("00:1a:2b:3c:4d:5e"), hall_ap());
  return pack;
}

constexpr char const* two_aps_text =
    R"json({"ssid2vap-info":[{"ap-mac-addr":"00:1a:2b:3c:4d:5e","rrm-info":"{\"type\":\"WAP-2\",)json"
    R"json(\"ip\":\"10.0.0.2\",\"location\":\"Hall\",\"interfaces\":[{\"name\":\"wlan0-vap0\",)json"
    R"json(\"band\":\"2g\",\"ssid\":\"Corp\",\"radio-id\":0,\"vap-id\":0}]}"},)json"
    R"json({"ap-mac-addr":"a4:5d:36:10:20:00","rrm-info":"{\"type\":\"WAP-6E\",\"ip\":\"10.0.0.3\",)json"
    R"json(\"location\":\"Roof\",\"interfaces\":[{\"name\":\"wlan1-vap0\",\"band\":\"5g\",)json"
    R"json(\"ssid\":\"Corp\",\"radio-id\":1,\"vap-id\":0},{\"name\":\"wlan2-vap1\",\"band\":\"6g\",)json"
    R"json(\"ssid\":\"Guest\",\"radio-id\":2,\"vap-id\":1}]}"}]})json";

/// An outer message with the given array elements, written with an independent JSON writer.
std::string message_of(boost::json::array elements) {
  boost::json::object root;
  root["ssid2vap-info"] = std::move(elements);
  return boost::json::serialize(root);
}

} // namespace

// ---- The value type -----------------------------------------------------------------------------

TEST(Ssid2VapInfo, IsAnEmptyValueByDefault) {
  static_assert(std::is_copy_constructible_v<Ssid2VapInfo>);
  static_assert(std::is_nothrow_move_constructible_v<Ssid2VapInfo>);
  static_assert(
      std::is_same_v<decltype(std::declval<Ssid2VapInfo const&>().get_ssid2vap_info_pack()),
                     Pack const&>);
  Ssid2VapInfo const pack;
  EXPECT_TRUE(pack.empty());
  EXPECT_TRUE(pack.get_ssid2vap_info_pack().empty());
}

TEST(Ssid2VapInfo, InsertAddsInAddressOrder) {
  Ssid2VapInfo const pack = two_aps();
  EXPECT_FALSE(pack.empty());
  Pack const& map = pack.get_ssid2vap_info_pack();
  ASSERT_EQ(map.size(), 2U);
  EXPECT_EQ(map.begin()->first.str(), "00:1a:2b:3c:4d:5e");
  EXPECT_EQ(map.begin()->second, hall_ap());
  EXPECT_EQ(map.rbegin()->first.str(), "a4:5d:36:10:20:00");
  EXPECT_EQ(map.rbegin()->second, roof_ap());
}

TEST(Ssid2VapInfo, InsertOfAPresentAddressKeepsTheOlderInfo) {
  Ssid2VapInfo pack = two_aps();
  pack.insert(mac("001a2b3c4d5e"), roof_ap());
  Pack const& map = pack.get_ssid2vap_info_pack();
  ASSERT_EQ(map.size(), 2U);
  EXPECT_EQ(map.at(mac("00:1a:2b:3c:4d:5e")), hall_ap());
  EXPECT_EQ(pack.to_str(), two_aps_text);
}

TEST(Ssid2VapInfo, InsertKeysByOctetsWhateverTheValidity) {
  Ssid2VapInfo pack;
  pack.insert(MacAddr{}, hall_ap());
  pack.insert(mac("00:00:00:00:00:00"), roof_ap());
  ASSERT_EQ(pack.get_ssid2vap_info_pack().size(), 1U);
  EXPECT_EQ(pack.get_ssid2vap_info_pack().begin()->second, hall_ap());
}

TEST(Ssid2VapInfo, InsertKeepsAnEmptyInfoAndWritesItAsAnEmptyObjectText) {
  Ssid2VapInfo pack;
  pack.insert(mac("02:00:00:00:00:01"), IpcMsgRrmApInfo{});
  EXPECT_FALSE(pack.empty());
  EXPECT_EQ(pack.to_str(),
            R"({"ssid2vap-info":[{"ap-mac-addr":"02:00:00:00:00:01","rrm-info":"{}"}]})");
  Ssid2VapInfo const read(pack.to_str());
  EXPECT_EQ(read, pack);
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(Ssid2VapInfo, PopulatedMessageWritesItsExactText) {
  Ssid2VapInfo const pack = two_aps();
  EXPECT_EQ(pack.to_str(), two_aps_text);
  wlccw::cfg::Tree const tree(pack.get_json());
  ASSERT_TRUE(tree);
  EXPECT_EQ(wlccw::cfg::compact(tree.get()), two_aps_text);
}

TEST(Ssid2VapInfo, EmptyMessageWritesAnObjectWithNoKeys) {
  Ssid2VapInfo const pack;
  wlccw::cfg::Tree const tree(pack.get_json());
  ASSERT_TRUE(tree);
  EXPECT_NE(cfg_is_empty(tree.get()), 0);
  EXPECT_EQ(pack.to_str(), "{}");
}

TEST(Ssid2VapInfo, RrmInfoIsAStringHoldingTheNestedCompactText) {
  std::string const text = two_aps().to_str();
  // An independent parser sees a string, not an object.
  boost::json::value const outer = boost::json::parse(text);
  boost::json::value const& first = outer.at("ssid2vap-info").at(0);
  ASSERT_TRUE(first.at("rrm-info").is_string());
  EXPECT_EQ(first.at("rrm-info").as_string(), hall_text);
  // The receiver parses the string a second time.
  IpcMsgRrmApInfo const nested(std::string(first.at("rrm-info").as_string()));
  EXPECT_EQ(nested, hall_ap());
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(Ssid2VapInfo, WrittenTextReadsBackToTheSameMessageAndText) {
  Ssid2VapInfo const pack = two_aps();
  Ssid2VapInfo const read(pack.to_str());
  EXPECT_EQ(read, pack);
  EXPECT_EQ(read.to_str(), two_aps_text);
  Ssid2VapInfo const empty(Ssid2VapInfo().to_str());
  EXPECT_TRUE(empty.empty());
  EXPECT_EQ(empty.to_str(), "{}");
}

TEST(Ssid2VapInfo, ReadsBareAndUpperCaseAddresses) {
  Ssid2VapInfo const read(message_of({
      {{"ap-mac-addr", "A45D36102000"}, {"rrm-info", hall_text}},
      {{"ap-mac-addr", "00:1A:2B:3C:4D:5F"}, {"rrm-info", "{}"}},
  }));
  Pack const& map = read.get_ssid2vap_info_pack();
  ASSERT_EQ(map.size(), 2U);
  EXPECT_EQ(map.at(mac("a4:5d:36:10:20:00")), hall_ap());
  EXPECT_TRUE(map.at(mac("00:1a:2b:3c:4d:5f")).is_empty());
  EXPECT_TRUE(map.begin()->first.valid);
}

TEST(Ssid2VapInfo, FirstEntryOfAnAddressWins) {
  Ssid2VapInfo const read(message_of({
      {{"ap-mac-addr", "a4:5d:36:10:20:00"}, {"rrm-info", hall_text}},
      {{"ap-mac-addr", "A4:5D:36:10:20:00"}, {"rrm-info", roof_ap().to_str()}},
  }));
  ASSERT_EQ(read.get_ssid2vap_info_pack().size(), 1U);
  EXPECT_EQ(read.get_ssid2vap_info_pack().begin()->second, hall_ap());
}

TEST(Ssid2VapInfo, BadOrMissingAddressGivesTheDefaultAddress) {
  for (char const* bad : {"aa-bb-cc-dd-ee-ff", "aa:bb:cc:dd:ee:f", "aa:bb:cc:dd:ee:fg", "", "x"}) {
    Ssid2VapInfo const read(message_of({{{"ap-mac-addr", bad}, {"rrm-info", hall_text}}}));
    ASSERT_EQ(read.get_ssid2vap_info_pack().size(), 1U) << bad;
    MacAddr const& key = read.get_ssid2vap_info_pack().begin()->first;
    EXPECT_FALSE(key.valid) << bad;
    EXPECT_EQ(key, MacAddr{}) << bad;
    EXPECT_EQ(read.get_ssid2vap_info_pack().begin()->second, hall_ap()) << bad;
  }
  // Without the key, and with two bad addresses, the first entry is kept under the default one.
  Ssid2VapInfo const read(message_of({
      {{"rrm-info", hall_text}},
      {{"ap-mac-addr", "bad"}, {"rrm-info", roof_ap().to_str()}},
  }));
  ASSERT_EQ(read.get_ssid2vap_info_pack().size(), 1U);
  EXPECT_EQ(read.get_ssid2vap_info_pack().at(MacAddr{}), hall_ap());
  EXPECT_EQ(read.to_str(),
            std::string(R"json({"ssid2vap-info":[{"ap-mac-addr":"00:00:00:00:00:00",)json"
                        R"json("rrm-info":)json") +
                boost::json::serialize(boost::json::value(hall_text)) + "}]}");
}

// ---- Hostile input ------------------------------------------------------------------------------

TEST(Ssid2VapInfo, TextWithoutTheArrayGivesAnEmptyMessage) {
  for (char const* text :
       {"", "not json", "{", "[]", "[{\"ssid2vap-info\":[]}]", "5", "\"x\"", "null", "{}",
        R"({"ssid2vap-info":{"ap-mac-addr":"a4:5d:36:10:20:00","rrm-info":"{}"}})",
        R"({"ssid2vap-info":"[]"})", R"({"ssid2vap-info":null})", R"({"ssid2vap-info":[]})",
        R"({"SSID2VAP-INFO":[{"ap-mac-addr":"a4:5d:36:10:20:00","rrm-info":"{}"}]})"}) {
    Ssid2VapInfo read = two_aps();
    EXPECT_NO_THROW(read = Ssid2VapInfo(std::string(text))) << text;
    EXPECT_TRUE(read.empty()) << text;
    EXPECT_EQ(read.to_str(), "{}") << text;
  }
}

TEST(Ssid2VapInfo, RrmInfoThatIsNoTextOfARecordGivesTheDefaultInfo) {
  boost::json::array elements;
  char const* const addresses[] = {"02:00:00:00:00:01", "02:00:00:00:00:02", "02:00:00:00:00:03",
                                   "02:00:00:00:00:04", "02:00:00:00:00:05", "02:00:00:00:00:06"};
  // Not JSON; JSON that is not an object; an object instead of a string; a number; missing; null.
  elements.push_back(
      boost::json::object{{"ap-mac-addr", addresses[0]}, {"rrm-info", "{\"type\":"}});
  elements.push_back(boost::json::object{{"ap-mac-addr", addresses[1]}, {"rrm-info", "[1,2]"}});
  elements.push_back(boost::json::object{{"ap-mac-addr", addresses[2]},
                                         {"rrm-info", boost::json::parse(hall_text)}});
  elements.push_back(boost::json::object{{"ap-mac-addr", addresses[3]}, {"rrm-info", 42}});
  elements.push_back(boost::json::object{{"ap-mac-addr", addresses[4]}});
  elements.push_back(boost::json::object{{"ap-mac-addr", addresses[5]}, {"rrm-info", nullptr}});
  Ssid2VapInfo read;
  EXPECT_NO_THROW(read = Ssid2VapInfo(message_of(elements)));
  Pack const& map = read.get_ssid2vap_info_pack();
  ASSERT_EQ(map.size(), 6U);
  for (char const* address : addresses) {
    EXPECT_EQ(map.at(mac(address)), IpcMsgRrmApInfo()) << address;
  }
}

TEST(Ssid2VapInfo, ElementsThatAreNoObjectsAreKeptUnderTheDefaultAddress) {
  Ssid2VapInfo const read(
      R"({"ssid2vap-info":[1,"a4:5d:36:10:20:00",null,[],{"ap-mac-addr":"a4:5d:36:10:20:01",)"
      R"("rrm-info":"{}"}]})");
  Pack const& map = read.get_ssid2vap_info_pack();
  ASSERT_EQ(map.size(), 2U);
  EXPECT_EQ(map.at(MacAddr{}), IpcMsgRrmApInfo());
  EXPECT_EQ(map.at(mac("a4:5d:36:10:20:01")), IpcMsgRrmApInfo());
}

TEST(Ssid2VapInfo, AddressOfAnotherJsonTypeIsReadByItsText) {
  // A number has a decimal text of twelve digits: a bare address by the MAC text rules.
  Ssid2VapInfo const read(R"({"ssid2vap-info":[{"ap-mac-addr":123456789012,"rrm-info":"{}"},)"
                          R"({"ap-mac-addr":{"a":1},"rrm-info":"{}"}]})");
  Pack const& map = read.get_ssid2vap_info_pack();
  ASSERT_EQ(map.size(), 2U);
  EXPECT_EQ(map.count(mac("12:34:56:78:90:12")), 1U);
  EXPECT_EQ(map.count(MacAddr{}), 1U);
}

TEST(Ssid2VapInfo, ManyEntriesAreAllRead) {
  Ssid2VapInfo pack;
  for (unsigned i = 0; i < 500; ++i) {
    MacAddr address = mac("02:00:00:00:00:00");
    address.bytes[4] = static_cast<unsigned char>(i >> 8U);
    address.bytes[5] = static_cast<unsigned char>(i & 0xFFU);
    IpcMsgRrmApInfo info = hall_ap();
    info.location = "Floor " + std::to_string(i);
    pack.insert(address, std::move(info));
  }
  Ssid2VapInfo const read(pack.to_str());
  EXPECT_EQ(read.get_ssid2vap_info_pack().size(), 500U);
  EXPECT_EQ(read, pack);
}
