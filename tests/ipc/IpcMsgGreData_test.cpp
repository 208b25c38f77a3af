#include <wlccw/ipc/IpcMsgGreData.hpp>

#include <wlccw/cfg/owned.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using Octets = std::array<std::uint8_t, 4>;

// The four bytes of an address as they lie in memory: network byte order, first number first.
Octets octets(in_addr address) {
  Octets bytes{};
  std::memcpy(bytes.data(), &address, sizeof bytes);
  return bytes;
}

std::shared_ptr<IpcMsgGreData::MacInfo> mac_info(char const* mac, char const* office) {
  auto info = std::make_shared<IpcMsgGreData::MacInfo>();
  info->mac = MacAddr::from_str(mac);
  info->office = office;
  return info;
}

std::shared_ptr<IpcMsgGreData::IpPoolInfo> pool(char const* name, Octets network, Octets netmask,
                                                char const* office) {
  auto info = std::make_shared<IpcMsgGreData::IpPoolInfo>();
  info->name = name;
  std::memcpy(&info->network, network.data(), network.size());
  std::memcpy(&info->netmask, netmask.data(), netmask.size());
  info->office = office;
  return info;
}

// The compact text of the message's tree, read through the owner that releases it.
std::string json_text(IpcMsgGreData const& message) {
  wlccw::cfg::Tree const tree(message.get_json());
  EXPECT_TRUE(tree);
  return wlccw::cfg::compact(tree.get());
}

std::vector<std::string> office_names(IpcMsgGreData const& message) {
  return {message.offices.begin(), message.offices.end()};
}

std::vector<std::string> mac_texts(IpcMsgGreData const& message) {
  std::vector<std::string> texts;
  for (auto const& info : message.macs) {
    texts.push_back(info->mac.str() + "=" + info->office);
  }
  return texts;
}

std::string const empty_text = "{\"offices\":[]}";

// A populated message in its exact written form: every collection sorted.
std::string const populated_text =
    "{\"offices\":[\"HQ\",\"branch-1\"],"
    "\"macs\":{\"00:11:22:33:44:55\":\"branch-1\",\"aa:bb:cc:dd:ee:ff\":\"HQ\"},"
    "\"ip-pools\":{\"pool-a\":{\"network\":\"192.168.1.0\",\"netmask\":\"255.255.255.0\","
    "\"office\":\"HQ\"},\"pool-b\":{\"network\":\"10.0.0.0\",\"netmask\":\"255.0.0.0\","
    "\"office\":\"branch-1\"}}}";

} // namespace

// ---- The value types ----------------------------------------------------------------------------

TEST(IpcMsgGreData, MembersHaveTheirDeclaredTypes) {
  static_assert(std::is_same_v<decltype(IpcMsgGreData::offices), std::set<std::string>>);
  static_assert(
      std::is_same_v<decltype(IpcMsgGreData::macs),
                     std::set<std::shared_ptr<IpcMsgGreData::MacInfo>, IpcMsgGreData::MacsCmp>>);
  static_assert(std::is_same_v<
                decltype(IpcMsgGreData::ip_pools),
                std::set<std::shared_ptr<IpcMsgGreData::IpPoolInfo>, IpcMsgGreData::IpPoolsCmp>>);
  static_assert(std::is_same_v<decltype(IpcMsgGreData::IpPoolInfo::network), in_addr>);
  static_assert(std::is_same_v<decltype(IpcMsgGreData::IpPoolInfo::netmask), in_addr>);
  IpcMsgGreData const message;
  EXPECT_TRUE(message.offices.empty());
  EXPECT_TRUE(message.macs.empty());
  EXPECT_TRUE(message.ip_pools.empty());
  IpcMsgGreData::IpPoolInfo const info;
  EXPECT_EQ(octets(info.network), (Octets{0, 0, 0, 0}));
  EXPECT_EQ(octets(info.netmask), (Octets{0, 0, 0, 0}));
}

TEST(IpcMsgGreData, MacsCmpOrdersByUnsignedOctetsAndIgnoresValidity) {
  IpcMsgGreData::MacsCmp const less;
  auto const low = mac_info("7f:ff:ff:ff:ff:ff", "x");
  auto const high = mac_info("80:00:00:00:00:00", "y");
  EXPECT_TRUE(less(low, high));
  EXPECT_FALSE(less(high, low));
  EXPECT_TRUE(less(mac_info("00:00:00:00:00:01", ""), mac_info("00:00:00:00:00:02", "")));
  EXPECT_TRUE(less(mac_info("00:00:00:00:01:00", ""), mac_info("00:00:00:00:02:00", "")));
  auto const invalid = std::make_shared<IpcMsgGreData::MacInfo>(); // all zero, not valid
  auto const zero = mac_info("00:00:00:00:00:00", "");
  ASSERT_TRUE(zero->mac.valid);
  EXPECT_FALSE(less(invalid, zero));
  EXPECT_FALSE(less(zero, invalid)); // the same key
  EXPECT_FALSE(less(low, low));
  // The office takes no part either.
  EXPECT_FALSE(less(mac_info("00:00:00:00:00:01", "a"), mac_info("00:00:00:00:00:01", "b")));
}

TEST(IpcMsgGreData, IpPoolsCmpOrdersByName) {
  IpcMsgGreData::IpPoolsCmp const less;
  auto const a = pool("a", {}, {}, "z");
  auto const b = pool("b", {}, {}, "a");
  auto const upper = pool("B", {}, {}, "");
  EXPECT_TRUE(less(a, b));
  EXPECT_FALSE(less(b, a));
  EXPECT_TRUE(less(upper, a)); // ordinary byte order: upper case first
  EXPECT_FALSE(less(a, pool("a", {1, 2, 3, 4}, {}, "other")));
}

TEST(IpcMsgGreData, SetsKeepOneEntryPerAddressAndPerName) {
  IpcMsgGreData message;
  EXPECT_TRUE(message.macs.insert(mac_info("aa:bb:cc:dd:ee:ff", "first")).second);
  EXPECT_FALSE(message.macs.insert(mac_info("AABBCCDDEEFF", "second")).second);
  EXPECT_TRUE(message.ip_pools.insert(pool("p", {}, {}, "first")).second);
  EXPECT_FALSE(message.ip_pools.insert(pool("p", {1, 1, 1, 1}, {}, "second")).second);
  EXPECT_EQ((*message.macs.begin())->office, "first");
  EXPECT_EQ((*message.ip_pools.begin())->office, "first");
}

TEST(IpcMsgGreData, EqualityComparesEntriesByValue) {
  IpcMsgGreData const a(populated_text);
  IpcMsgGreData b(populated_text);
  EXPECT_EQ(a, b); // distinct pointers, equal values
  (*b.macs.begin())->office = "elsewhere";
  EXPECT_FALSE(a == b);
  IpcMsgGreData c(populated_text);
  (*c.ip_pools.begin())->netmask.s_addr ^= 1U;
  EXPECT_FALSE(a == c);
  IpcMsgGreData d(populated_text);
  d.offices.insert("extra");
  EXPECT_FALSE(a == d);
  IpcMsgGreData e(populated_text);
  e.macs.erase(e.macs.begin());
  EXPECT_FALSE(a == e);
  EXPECT_EQ(IpcMsgGreData(), IpcMsgGreData("{}"));
}

// ---- Exact IPC text -----------------------------------------------------------------------------

TEST(IpcMsgGreData, EmptyObjectGivesAnEmptyMessageWrittenWithOnlyOffices) {
  IpcMsgGreData const message("{}");
  EXPECT_TRUE(message.offices.empty());
  EXPECT_TRUE(message.macs.empty());
  EXPECT_TRUE(message.ip_pools.empty());
  EXPECT_EQ(message.to_str(), empty_text);
  EXPECT_EQ(json_text(message), empty_text);
  EXPECT_EQ(IpcMsgGreData().to_str(), empty_text);
}

TEST(IpcMsgGreData, PopulatedMessageIsReadIntoItsFields) {
  IpcMsgGreData const message(
      "{\"ip-pools\":{\"pool-b\":{\"office\":\"branch-1\",\"netmask\":\"255.0.0.0\","
      "\"network\":\"10.0.0.0\"},\"pool-a\":{\"network\":\"192.168.1.0\","
      "\"netmask\":\"255.255.255.0\",\"office\":\"HQ\"}},"
      "\"macs\":{\"AA:BB:CC:DD:EE:FF\":\"HQ\",\"001122334455\":\"branch-1\"},"
      "\"offices\":[\"branch-1\",\"HQ\"]}");
  EXPECT_EQ(office_names(message), (std::vector<std::string>{"HQ", "branch-1"}));
  EXPECT_EQ(mac_texts(message),
            (std::vector<std::string>{"00:11:22:33:44:55=branch-1", "aa:bb:cc:dd:ee:ff=HQ"}));
  ASSERT_EQ(message.ip_pools.size(), 2U);
  auto const& a = **message.ip_pools.begin();
  auto const& b = **std::next(message.ip_pools.begin());
  EXPECT_EQ(a.name, "pool-a");
  EXPECT_EQ(octets(a.network), (Octets{192, 168, 1, 0}));
  EXPECT_EQ(octets(a.netmask), (Octets{255, 255, 255, 0}));
  EXPECT_EQ(a.office, "HQ");
  EXPECT_EQ(b.name, "pool-b");
  EXPECT_EQ(octets(b.network), (Octets{10, 0, 0, 0}));
  EXPECT_EQ(octets(b.netmask), (Octets{255, 0, 0, 0}));
  EXPECT_EQ(b.office, "branch-1");

  EXPECT_EQ(message.to_str(), populated_text);
  EXPECT_EQ(json_text(message), populated_text);
}

TEST(IpcMsgGreData, PopulatedMessageBuiltByHandIsWrittenExactly) {
  IpcMsgGreData message;
  message.offices = {"branch-1", "HQ"};
  message.macs.insert(mac_info("aa:bb:cc:dd:ee:ff", "HQ"));
  message.macs.insert(mac_info("00:11:22:33:44:55", "branch-1"));
  message.ip_pools.insert(pool("pool-b", {10, 0, 0, 0}, {255, 0, 0, 0}, "branch-1"));
  message.ip_pools.insert(pool("pool-a", {192, 168, 1, 0}, {255, 255, 255, 0}, "HQ"));
  EXPECT_EQ(message.to_str(), populated_text);
}

TEST(IpcMsgGreData, WrittenAndReadBackGivesTheSameTextAndHash) {
  IpcMsgGreData const message(populated_text);
  IpcMsgGreData const again(message.to_str());
  EXPECT_EQ(again, message);
  EXPECT_EQ(again.to_str(), populated_text);
  EXPECT_EQ(again.get_hash(), message.get_hash());
  IpcMsgGreData const empty_again(IpcMsgGreData().to_str());
  EXPECT_EQ(empty_again.to_str(), empty_text);
  EXPECT_EQ(empty_again.get_hash(), IpcMsgGreData().get_hash());
}

TEST(IpcMsgGreData, HashIsTheStringHashOfTheText) {
  IpcMsgGreData const message(populated_text);
  EXPECT_EQ(message.get_hash(), std::hash<std::string>{}(populated_text));
  EXPECT_EQ(IpcMsgGreData().get_hash(), std::hash<std::string>{}(empty_text));
  EXPECT_NE(message.get_hash(), IpcMsgGreData().get_hash());
}

TEST(IpcMsgGreData, HashIgnoresMemberOrderAndCaseOfMacKeys) {
  IpcMsgGreData const one(
      "{\"offices\":[\"a\",\"b\"],\"macs\":{\"aa:bb:cc:dd:ee:01\":\"a\",\"aa:bb:cc:dd:ee:02\":"
      "\"b\"},\"ip-pools\":{\"p1\":{\"network\":\"10.1.0.0\",\"netmask\":\"255.255.0.0\","
      "\"office\":\"a\"},\"p2\":{\"network\":\"10.2.0.0\",\"netmask\":\"255.255.0.0\","
      "\"office\":\"b\"}}}");
  IpcMsgGreData const two(
      "{\"ip-pools\":{\"p2\":{\"office\":\"b\",\"network\":\"10.2.0.0\",\"netmask\":"
      "\"255.255.0.0\"},\"p1\":{\"netmask\":\"255.255.0.0\",\"office\":\"a\",\"network\":"
      "\"10.1.0.0\"}},\"macs\":{\"AABBCCDDEE02\":\"b\",\"AA:BB:CC:DD:EE:01\":\"a\"},"
      "\"offices\":[\"b\",\"a\"]}");
  EXPECT_EQ(one.to_str(), two.to_str());
  EXPECT_EQ(one.get_hash(), two.get_hash());
  IpcMsgGreData const different(
      "{\"offices\":[\"a\",\"b\"],\"macs\":{\"aa:bb:cc:dd:ee:01\":\"b\",\"aa:bb:cc:dd:ee:02\":"
      "\"b\"}}");
  EXPECT_NE(one.get_hash(), different.get_hash());
}

// ---- Offices ------------------------------------------------------------------------------------

TEST(IpcMsgGreData, OfficesListedTwiceAreWrittenOnceInSortedOrder) {
  IpcMsgGreData const message("{\"offices\":[\"west\",\"east\",\"west\",\"north\",\"east\"]}");
  EXPECT_EQ(office_names(message), (std::vector<std::string>{"east", "north", "west"}));
  EXPECT_EQ(message.to_str(), "{\"offices\":[\"east\",\"north\",\"west\"]}");
}

TEST(IpcMsgGreData, OfficeElementsAreTakenAsTheirScalarText) {
  IpcMsgGreData const message("{\"offices\":[\"x\",12,true]}");
  EXPECT_EQ(office_names(message), (std::vector<std::string>{"12", "true", "x"}));
  // An element with no scalar text gives the empty name.
  IpcMsgGreData const odd("{\"offices\":[{\"a\":1},[\"b\"],null]}");
  EXPECT_EQ(office_names(odd), (std::vector<std::string>{""}));
  EXPECT_EQ(odd.to_str(), "{\"offices\":[\"\"]}");
}

TEST(IpcMsgGreData, OfficesThatAreNotAnArrayGiveNoOffices) {
  for (char const* offices : {"\"HQ\"", "{\"HQ\":1}", "5", "null", "true"}) {
    std::string const text = std::string("{\"offices\":") + offices + "}";
    IpcMsgGreData const message(text);
    EXPECT_TRUE(message.offices.empty()) << text;
    EXPECT_EQ(message.to_str(), empty_text) << text;
  }
}

// ---- MAC assignments ----------------------------------------------------------------------------

TEST(IpcMsgGreData, SameAddressInTwoFormsKeepsTheFirstWrittenInLowerCaseColonForm) {
  IpcMsgGreData const message(
      "{\"offices\":[],\"macs\":{\"AA:BB:CC:DD:EE:FF\":\"first\",\"aabbccddeeff\":\"second\"}}");
  ASSERT_EQ(message.macs.size(), 1U);
  EXPECT_EQ((*message.macs.begin())->office, "first");
  EXPECT_TRUE((*message.macs.begin())->mac.valid);
  EXPECT_EQ(message.to_str(), "{\"offices\":[],\"macs\":{\"aa:bb:cc:dd:ee:ff\":\"first\"}}");

  IpcMsgGreData const reversed(
      "{\"macs\":{\"AABBCCDDEEFF\":\"second\",\"aa:bb:cc:dd:ee:ff\":\"first\"}}");
  ASSERT_EQ(reversed.macs.size(), 1U);
  EXPECT_EQ((*reversed.macs.begin())->office, "second");
}

TEST(IpcMsgGreData, MalformedMacKeysCollapseIntoOneAllZeroEntry) {
  IpcMsgGreData const message(
      "{\"macs\":{\"not-a-mac\":\"first\",\"aa-bb-cc-dd-ee-ff\":\"second\",\"\":\"third\","
      "\"aa:bb:cc:dd:ee:fg\":\"fourth\"}}");
  ASSERT_EQ(message.macs.size(), 1U);
  auto const& info = **message.macs.begin();
  EXPECT_FALSE(info.mac.valid);
  EXPECT_EQ(info.mac.str(), "00:00:00:00:00:00");
  EXPECT_EQ(info.office, "first");
  EXPECT_EQ(message.to_str(), "{\"offices\":[],\"macs\":{\"00:00:00:00:00:00\":\"first\"}}");
}

TEST(IpcMsgGreData, MalformedKeyAndTheZeroAddressAreOneKey) {
  IpcMsgGreData const message("{\"macs\":{\"00:00:00:00:00:00\":\"zero\",\"bad\":\"bad\"}}");
  ASSERT_EQ(message.macs.size(), 1U);
  EXPECT_EQ((*message.macs.begin())->office, "zero");
  EXPECT_TRUE((*message.macs.begin())->mac.valid);
}

TEST(IpcMsgGreData, MacsAreWrittenInUnsignedOctetOrder) {
  IpcMsgGreData const message("{\"macs\":{\"ff:00:00:00:00:00\":\"c\",\"80:00:00:00:00:00\":\"b\","
                              "\"7f:ff:ff:ff:ff:ff\":\"a\",\"00:00:00:00:00:01\":\"0\"}}");
  EXPECT_EQ(message.to_str(),
            "{\"offices\":[],\"macs\":{\"00:00:00:00:00:01\":\"0\",\"7f:ff:ff:ff:ff:ff\":\"a\","
            "\"80:00:00:00:00:00\":\"b\",\"ff:00:00:00:00:00\":\"c\"}}");
}

TEST(IpcMsgGreData, MacOfficeIsTheScalarTextOfTheValue) {
  IpcMsgGreData const message(
      "{\"macs\":{\"00:00:00:00:00:01\":5,\"00:00:00:00:00:02\":{\"a\":\"b\"},"
      "\"00:00:00:00:00:03\":null}}");
  EXPECT_EQ(mac_texts(message),
            (std::vector<std::string>{"00:00:00:00:00:01=5",
                                      "00:00:00:00:00:02=", "00:00:00:00:00:03="}));
}

TEST(IpcMsgGreData, MacsThatAreNotAnObjectOrAreEmptyGiveNoMacs) {
  for (char const* macs :
       {"{}", "[\"aa:bb:cc:dd:ee:ff\"]", "[{\"aa:bb:cc:dd:ee:ff\":\"x\"}]", "\"x\"", "1", "null"}) {
    std::string const text = std::string("{\"offices\":[\"a\"],\"macs\":") + macs + "}";
    IpcMsgGreData const message(text);
    EXPECT_TRUE(message.macs.empty()) << text;
    EXPECT_EQ(message.to_str(), "{\"offices\":[\"a\"]}") << text;
  }
}

// ---- Address pools ------------------------------------------------------------------------------

TEST(IpcMsgGreData, PoolAddressesThatAreNotAddressesAreZero) {
  IpcMsgGreData const message(
      "{\"ip-pools\":{\"bad\":{\"network\":\"300.1.1.1\",\"netmask\":\"garbage\",\"office\":"
      "\"o\"},\"missing\":{\"office\":\"p\"},\"typed\":{\"network\":[\"10.0.0.0\"],\"netmask\":"
      "{},\"office\":\"q\"}}}");
  ASSERT_EQ(message.ip_pools.size(), 3U);
  for (auto const& entry : message.ip_pools) {
    EXPECT_EQ(octets(entry->network), (Octets{0, 0, 0, 0})) << entry->name;
    EXPECT_EQ(octets(entry->netmask), (Octets{0, 0, 0, 0})) << entry->name;
  }
  EXPECT_EQ(message.to_str(),
            "{\"offices\":[],\"ip-pools\":{"
            "\"bad\":{\"network\":\"0.0.0.0\",\"netmask\":\"0.0.0.0\",\"office\":\"o\"},"
            "\"missing\":{\"network\":\"0.0.0.0\",\"netmask\":\"0.0.0.0\",\"office\":\"p\"},"
            "\"typed\":{\"network\":\"0.0.0.0\",\"netmask\":\"0.0.0.0\",\"office\":\"q\"}}}");
}

TEST(IpcMsgGreData, PoolAddressesFollowTheClassicDottedForms) {
  // Short forms fill the last part; numbers may be hexadecimal or octal.
  IpcMsgGreData const message(
      "{\"ip-pools\":{\"p\":{\"network\":\"10.1\",\"netmask\":\"0xff.0377.0.0\","
      "\"office\":\"o\"}}}");
  ASSERT_EQ(message.ip_pools.size(), 1U);
  EXPECT_EQ(octets((*message.ip_pools.begin())->network), (Octets{10, 0, 0, 1}));
  EXPECT_EQ(octets((*message.ip_pools.begin())->netmask), (Octets{255, 255, 0, 0}));
}

TEST(IpcMsgGreData, PoolWhoseNameIsAlreadyPresentIsDropped) {
  IpcMsgGreData const message(
      "{\"ip-pools\":{\"p\":{\"network\":\"10.0.0.0\",\"netmask\":\"255.0.0.0\",\"office\":\"a\"},"
      "\"p\":{\"network\":\"11.0.0.0\",\"netmask\":\"255.0.0.0\",\"office\":\"b\"}}}");
  ASSERT_EQ(message.ip_pools.size(), 1U);
  EXPECT_EQ((*message.ip_pools.begin())->office, "a");
  EXPECT_EQ(octets((*message.ip_pools.begin())->network), (Octets{10, 0, 0, 0}));
}

TEST(IpcMsgGreData, PoolThatIsNotAnObjectIsKeptWithDefaults) {
  IpcMsgGreData const message("{\"ip-pools\":{\"p\":\"10.0.0.0\",\"q\":[1]}}");
  EXPECT_EQ(message.to_str(),
            "{\"offices\":[],\"ip-pools\":{"
            "\"p\":{\"network\":\"0.0.0.0\",\"netmask\":\"0.0.0.0\",\"office\":\"\"},"
            "\"q\":{\"network\":\"0.0.0.0\",\"netmask\":\"0.0.0.0\",\"office\":\"\"}}}");
}

TEST(IpcMsgGreData, PoolsThatAreNotAnObjectOrAreEmptyGiveNoPools) {
  for (char const* pools : {"{}", "[{\"network\":\"10.0.0.0\"}]", "\"x\"", "0", "false"}) {
    std::string const text = std::string("{\"ip-pools\":") + pools + "}";
    IpcMsgGreData const message(text);
    EXPECT_TRUE(message.ip_pools.empty()) << text;
    EXPECT_EQ(message.to_str(), empty_text) << text;
  }
}

TEST(IpcMsgGreData, PoolNamesAreEscapedAndReadBack) {
  IpcMsgGreData message;
  message.ip_pools.insert(pool("a \"quoted\" \\ name", {1, 2, 3, 4}, {255, 255, 255, 255}, ""));
  std::string const text = message.to_str();
  EXPECT_EQ(text, "{\"offices\":[],\"ip-pools\":{\"a \\\"quoted\\\" \\\\ name\":{\"network\":"
                  "\"1.2.3.4\",\"netmask\":\"255.255.255.255\",\"office\":\"\"}}}");
  EXPECT_EQ(IpcMsgGreData(text), message);
}

// ---- Hostile input ------------------------------------------------------------------------------

TEST(IpcMsgGreData, TextThatIsNotJsonGivesAnEmptyMessage) {
  for (std::string const& text :
       {std::string(""), std::string("garbage"), std::string("{\"offices\":[\"a\"]"),
        std::string("{\"offices\":[\"a\"]}x"), std::string("{\"macs\":{\"aa:bb:cc:dd:ee:ff\"}}"),
        std::string(1000, '[')}) {
    IpcMsgGreData const message(text);
    EXPECT_TRUE(message.offices.empty()) << text;
    EXPECT_TRUE(message.macs.empty()) << text;
    EXPECT_TRUE(message.ip_pools.empty()) << text;
    EXPECT_EQ(message.to_str(), empty_text) << text;
  }
}

TEST(IpcMsgGreData, RootsThatAreNotObjectsGiveAnEmptyMessage) {
  for (char const* text : {"[]", "[{\"offices\":[\"a\"]}]", "[\"a\"]", "\"offices\"", "1e999",
                           "-123456789012345678901234567890", "true", "null"}) {
    IpcMsgGreData const message(text);
    EXPECT_TRUE(message.offices.empty()) << text;
    EXPECT_TRUE(message.macs.empty()) << text;
    EXPECT_TRUE(message.ip_pools.empty()) << text;
  }
}

TEST(IpcMsgGreData, NullEntriesAreSkippedWhenWriting) {
  IpcMsgGreData message;
  message.macs.insert(nullptr);
  message.macs.insert(mac_info("00:00:00:00:00:01", "a"));
  message.ip_pools.insert(nullptr);
  EXPECT_EQ(message.to_str(),
            "{\"offices\":[],\"macs\":{\"00:00:00:00:00:01\":\"a\"},\"ip-pools\":{}}");
  IpcMsgGreData other;
  other.macs.insert(mac_info("00:00:00:00:00:01", "a"));
  other.macs.insert(nullptr);
  other.ip_pools.insert(nullptr);
  EXPECT_EQ(message, other);
}

TEST(IpcMsgGreData, SetsCanBeSearchedByAddressAndByName) {
  IpcMsgGreData const message(populated_text);
  auto const mac = message.macs.find(MacAddr::from_str("AABBCCDDEEFF"));
  ASSERT_NE(mac, message.macs.end());
  EXPECT_EQ((*mac)->office, "HQ");
  EXPECT_EQ(message.macs.find(MacAddr::from_str("00:00:00:00:00:00")), message.macs.end());
  auto const found = message.ip_pools.find(std::string_view("pool-b"));
  ASSERT_NE(found, message.ip_pools.end());
  EXPECT_EQ((*found)->office, "branch-1");
  EXPECT_EQ(message.ip_pools.find(std::string_view("pool-c")), message.ip_pools.end());
}

TEST(IpcMsgGreData, ManyEntriesAreAllKept) {
  std::string text = "{\"macs\":{";
  for (int i = 0; i < 300; ++i) {
    char key[18];
    std::snprintf(key, sizeof key, "00:00:00:00:%02x:%02x", i / 256, i % 256);
    text += std::string(i == 0 ? "" : ",") + "\"" + key + "\":\"o\"";
  }
  text += "}}";
  IpcMsgGreData const message(text);
  EXPECT_EQ(message.macs.size(), 300U);
  EXPECT_EQ(IpcMsgGreData(message.to_str()), message);
}
