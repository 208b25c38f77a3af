#include <wlccw/ipc/IpcMsgVrrpUpdateBoardTypes.hpp>

#include <wlccw/cfg/owned.hpp>

#include "support/addresses.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>

namespace {

using wlccw::test::mac;

using Message = IpcMsgVrrpUpdateBoardTypes;
using Desc = IpcMsgVrrpUpdateBoardTypes::BoardTypeDesc;
using TextSet = std::multiset<std::string>;

// The compact texts of the elements of an array text: the array's content whatever its order.
TextSet element_texts(std::string const& array) {
  TextSet texts;
  wlccw::cfg::Tree const tree = wlccw::cfg::parse(array);
  EXPECT_TRUE(tree) << array;
  wlccw::cfg::for_each_element(tree.get(), [&texts](lcw_data_t const& element) {
    texts.insert(wlccw::cfg::compact(&element));
  });
  return texts;
}

std::string element(char const* mac_text, char const* board, char const* version) {
  return std::string("{\"mac\":\"") + mac_text + "\",\"board-type\":\"" + board +
         "\",\"sw-version\":\"" + version + "\"}";
}

Message three_aps() {
  Message message;
  message.aps.emplace(mac("00:11:22:33:44:55"), Desc{"WEP-1L", "1.2.3"});
  message.aps.emplace(mac("AA:BB:CC:DD:EE:FF"), Desc{"WEP-2ax", "2.0.0"});
  message.aps.emplace(mac("01:02:03:04:05:06"), Desc{"", ""});
  return message;
}

TextSet three_ap_elements() {
  return {element("00:11:22:33:44:55", "WEP-1L", "1.2.3"),
          element("aa:bb:cc:dd:ee:ff", "WEP-2ax", "2.0.0"), element("01:02:03:04:05:06", "", "")};
}

// The compact text of a new object after fill has written into it.
template <typename Fill> std::string object_text(Fill&& fill) {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  EXPECT_TRUE(root);
  fill(*root);
  return wlccw::cfg::compact(root.get());
}

} // namespace

// ---- The value types ----------------------------------------------------------------------------

TEST(IpcMsgVrrpUpdateBoardTypes, TypesAndDefaults) {
  static_assert(std::is_same_v<decltype(Message::aps), std::unordered_map<MacAddr, Desc>>);
  static_assert(std::is_same_v<decltype(Desc::board_type), std::string>);
  static_assert(std::is_same_v<decltype(Desc::sw_version), std::string>);
  static_assert(std::is_nothrow_move_constructible_v<Desc>);
  static_assert(std::is_nothrow_move_assignable_v<Desc>);
  static_assert(
      std::is_same_v<decltype(Message::from_str(std::string())), std::shared_ptr<Message>>);
  Message const message;
  EXPECT_TRUE(message.aps.empty());
  Desc const desc;
  EXPECT_EQ(desc.board_type, "");
  EXPECT_EQ(desc.sw_version, "");
}

TEST(IpcMsgVrrpUpdateBoardTypes, EqualityComparesTheMaps) {
  Message const a = three_aps();
  Message b = three_aps();
  EXPECT_EQ(a, b);
  b.aps[mac("00:11:22:33:44:55")].sw_version = "1.2.4";
  EXPECT_NE(a, b);
  EXPECT_NE((Desc{"a", "b"}), (Desc{"a", "c"}));
  EXPECT_NE((Desc{"a", "b"}), (Desc{"x", "b"}));
}

// ---- to_str -------------------------------------------------------------------------------------

TEST(IpcMsgVrrpUpdateBoardTypes, EmptyMapIsAnEmptyArray) {
  EXPECT_EQ(Message().to_str(), "[]");
  std::shared_ptr<Message> const read = Message::from_str("[]");
  ASSERT_NE(read, nullptr);
  EXPECT_TRUE(read->aps.empty());
  EXPECT_EQ(read->to_str(), "[]");
}

TEST(IpcMsgVrrpUpdateBoardTypes, OneEntryIsWrittenExactly) {
  Message message;
  message.aps.emplace(mac("AA:BB:CC:DD:EE:0F"), Desc{"WEP-2ax", "1.10.2 build 7"});
  std::string const text =
      "[{\"mac\":\"aa:bb:cc:dd:ee:0f\",\"board-type\":\"WEP-2ax\",\"sw-version\":\"1.10.2 build "
      "7\"}]";
  EXPECT_EQ(message.to_str(), text);
  std::shared_ptr<Message> const read = Message::from_str(text);
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(*read, message);
  EXPECT_EQ(read->to_str(), text);
}

TEST(IpcMsgVrrpUpdateBoardTypes, SeveralEntriesAreWrittenOneObjectEach) {
  Message const message = three_aps();
  EXPECT_EQ(element_texts(message.to_str()), three_ap_elements());
  std::shared_ptr<Message> const read = Message::from_str(message.to_str());
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(*read, message);
  EXPECT_EQ(element_texts(read->to_str()), three_ap_elements());
}

TEST(IpcMsgVrrpUpdateBoardTypes, TextsAreEscapedAndReadBack) {
  Message message;
  message.aps.emplace(mac("00:00:00:00:00:01"), Desc{"quote \" slash \\", "tab\t"});
  std::string const text = message.to_str();
  EXPECT_EQ(text, "[{\"mac\":\"00:00:00:00:00:01\",\"board-type\":\"quote \\\" slash \\\\\","
                  "\"sw-version\":\"tab\\t\"}]");
  EXPECT_EQ(*Message::from_str(text), message);
}

// ---- to_json ------------------------------------------------------------------------------------

TEST(IpcMsgVrrpUpdateBoardTypes, ToJsonInsertsTheArrayAsAps) {
  Message message;
  message.aps.emplace(mac("00:11:22:33:44:55"), Desc{"B", "V"});
  EXPECT_EQ(
      object_text([&](lcw_data_t& root) { message.to_json(root); }),
      "{\"aps\":[{\"mac\":\"00:11:22:33:44:55\",\"board-type\":\"B\",\"sw-version\":\"V\"}]}");
  EXPECT_EQ(object_text([](lcw_data_t& root) { Message().to_json(root); }), "{\"aps\":[]}");
}

TEST(IpcMsgVrrpUpdateBoardTypes, ToJsonKeepsTheOtherMembersOfTheParent) {
  Message message;
  message.aps.emplace(mac("00:11:22:33:44:55"), Desc{"B", "V"});
  EXPECT_EQ(object_text([&](lcw_data_t& root) {
              cfg_set_param(&root, "type", "update");
              message.to_json(root);
              cfg_set_param(&root, "after", "x");
            }),
            "{\"type\":\"update\",\"aps\":[{\"mac\":\"00:11:22:33:44:55\",\"board-type\":\"B\","
            "\"sw-version\":\"V\"}],\"after\":\"x\"}");
}

TEST(IpcMsgVrrpUpdateBoardTypes, ToJsonIntoAnArrayDoesNothing) {
  wlccw::cfg::Tree const array = wlccw::cfg::make_array();
  ASSERT_TRUE(array);
  three_aps().to_json(*array);
  EXPECT_EQ(wlccw::cfg::compact(array.get()), "[]");
}

TEST(IpcMsgVrrpUpdateBoardTypes, ToJsonAndFromJsonRoundTrip) {
  Message const message = three_aps();
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  ASSERT_TRUE(root);
  message.to_json(*root);
  std::shared_ptr<Message> const read = Message::from_json(*root);
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(*read, message);
  EXPECT_EQ(element_texts(wlccw::cfg::compact(cfg_get_subtree(root.get(), "aps"))),
            three_ap_elements());
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(IpcMsgVrrpUpdateBoardTypes, FromStrReadsEveryElement) {
  std::shared_ptr<Message> const read = Message::from_str(
      "[{\"sw-version\":\"1.2.3\",\"mac\":\"001122334455\",\"board-type\":\"WEP-1L\"},"
      "{\"mac\":\"AA:BB:CC:DD:EE:FF\",\"board-type\":\"WEP-2ax\",\"sw-version\":\"2.0.0\"}]");
  ASSERT_NE(read, nullptr);
  std::unordered_map<MacAddr, Desc> const expected = {
      {mac("00:11:22:33:44:55"), Desc{"WEP-1L", "1.2.3"}},
      {mac("aa:bb:cc:dd:ee:ff"), Desc{"WEP-2ax", "2.0.0"}}};
  EXPECT_EQ(read->aps, expected);
  EXPECT_TRUE(read->aps.find(mac("00:11:22:33:44:55"))->first.valid);
}

TEST(IpcMsgVrrpUpdateBoardTypes, FromStrOfTextThatIsNotJsonIsNull) {
  for (std::string const& text :
       {std::string(""), std::string("garbage"), std::string("["), std::string("[{}"),
        std::string("[]x"), std::string("[{\"mac\":}]"), std::string(700, '[')}) {
    EXPECT_EQ(Message::from_str(text), nullptr) << text;
  }
}

TEST(IpcMsgVrrpUpdateBoardTypes, FromStrOfARootThatIsNotAnArrayIsNull) {
  for (char const* text : {"{}", "{\"aps\":[]}", "\"[]\"", "5", "true", "null", "1e999"}) {
    EXPECT_EQ(Message::from_str(text), nullptr) << text;
  }
}

TEST(IpcMsgVrrpUpdateBoardTypes, ElementWithoutAMacAddressIsKeptUnderTheAllZeroAddress) {
  for (char const* mac_member :
       {"\"mac\":\"not a mac\",", "\"mac\":\"00-11-22-33-44-55\",", "\"mac\":\"\",", "",
        "\"mac\":5,", "\"mac\":null,", "\"mac\":{},", "\"mac\":[\"00:11:22:33:44:55\"],"}) {
    std::string const text =
        std::string("[{") + mac_member + "\"board-type\":\"B\",\"sw-version\":\"V\"}]";
    std::shared_ptr<Message> const read = Message::from_str(text);
    ASSERT_NE(read, nullptr) << text;
    ASSERT_EQ(read->aps.size(), 1U) << text;
    auto const& [key, desc] = *read->aps.begin();
    EXPECT_FALSE(key.valid) << text;
    EXPECT_EQ(key, MacAddr()) << text;
    EXPECT_EQ(desc, (Desc{"B", "V"})) << text;
    EXPECT_EQ(read->to_str(), "[" + element("00:00:00:00:00:00", "B", "V") + "]") << text;
  }
}

TEST(IpcMsgVrrpUpdateBoardTypes, MissingOrMistypedStringsReadAsEmpty) {
  std::shared_ptr<Message> const read = Message::from_str(
      "[{\"mac\":\"00:00:00:00:00:01\"},"
      "{\"mac\":\"00:00:00:00:00:02\",\"board-type\":{\"a\":1},\"sw-version\":null},"
      "{\"mac\":\"00:00:00:00:00:03\",\"board-type\":[\"x\"],\"sw-version\":\"\"}]");
  ASSERT_NE(read, nullptr);
  ASSERT_EQ(read->aps.size(), 3U);
  for (auto const& [key, desc] : read->aps) {
    EXPECT_EQ(desc, Desc{}) << key.str();
  }
}

TEST(IpcMsgVrrpUpdateBoardTypes, ElementsThatAreNotObjectsAreKeptAsEmptyEntries) {
  std::shared_ptr<Message> const read = Message::from_str("[5,\"00:11:22:33:44:55\",[],null]");
  ASSERT_NE(read, nullptr);
  ASSERT_EQ(read->aps.size(), 1U); // all under the all-zero address: the first stays
  EXPECT_EQ(read->aps.begin()->first, MacAddr());
  EXPECT_EQ(read->aps.begin()->second, Desc{});
}

TEST(IpcMsgVrrpUpdateBoardTypes, OfElementsWithTheSameAddressTheFirstStays) {
  std::shared_ptr<Message> const read = Message::from_str(
      "[" + element("AA:BB:CC:DD:EE:FF", "first", "1") + "," +
      element("aabbccddeeff", "second", "2") + "," + element("bad", "third", "3") + "," +
      element("also bad", "fourth", "4") + "]");
  ASSERT_NE(read, nullptr);
  ASSERT_EQ(read->aps.size(), 2U);
  EXPECT_EQ(read->aps.at(mac("aa:bb:cc:dd:ee:ff")), (Desc{"first", "1"}));
  EXPECT_EQ(read->aps.at(MacAddr()), (Desc{"third", "3"}));
}

TEST(IpcMsgVrrpUpdateBoardTypes, FromJsonReadsTheApsMember) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse("{\"type\":\"x\",\"aps\":[" +
                                                  element("00:11:22:33:44:55", "B", "V") + "]}");
  ASSERT_TRUE(root);
  std::shared_ptr<Message> const read = Message::from_json(*root);
  ASSERT_NE(read, nullptr);
  ASSERT_EQ(read->aps.size(), 1U);
  EXPECT_EQ(read->aps.at(mac("00:11:22:33:44:55")), (Desc{"B", "V"}));

  wlccw::cfg::Tree const empty = wlccw::cfg::parse("{\"aps\":[]}");
  ASSERT_TRUE(empty);
  std::shared_ptr<Message> const none = Message::from_json(*empty);
  ASSERT_NE(none, nullptr);
  EXPECT_TRUE(none->aps.empty());
}

TEST(IpcMsgVrrpUpdateBoardTypes, FromJsonWithoutAnApsArrayIsNull) {
  for (char const* text : {"{}", "{\"APS\":[]}", "{\"aps\":{}}", "{\"aps\":\"[]\"}", "{\"aps\":5}",
                           "{\"aps\":null}", "[]", "[{\"aps\":[]}]", "\"aps\"", "7"}) {
    wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
    ASSERT_TRUE(root) << text;
    EXPECT_EQ(Message::from_json(*root), nullptr) << text;
  }
}

TEST(IpcMsgVrrpUpdateBoardTypes, ManyEntriesRoundTrip) {
  Message message;
  TextSet expected;
  for (unsigned i = 0; i < 500; ++i) {
    char text[18];
    std::snprintf(text, sizeof text, "00:00:00:00:%02x:%02x", i / 256, i % 256);
    std::string const version = std::to_string(i);
    message.aps.emplace(mac(text), Desc{"board", version});
    expected.insert(element(text, "board", version.c_str()));
  }
  std::string const text = message.to_str();
  EXPECT_EQ(element_texts(text), expected);
  std::shared_ptr<Message> const read = Message::from_str(text);
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(*read, message);
}
