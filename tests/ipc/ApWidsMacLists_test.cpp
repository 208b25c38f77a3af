#include <wlccw/ipc/ApWidsMacLists.hpp>

#include <wlccw/cfg/owned.hpp>

#include "support/addresses.hpp"
#include <boost/json.hpp>
#include <gmock/gmock.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

namespace {

using wlccw::test::mac;

using MacSet = std::unordered_set<MacAddr>;
using ::testing::UnorderedElementsAre;

// The compact JSON array of the set's text forms in the set's own iteration order: what every
// writer is expected to produce for that set.
std::string array_text(MacSet const& set) {
  std::string text = "[";
  for (MacAddr const& m : set) {
    if (text.size() > 1) {
      text += ',';
    }
    text += '"' + m.str() + '"';
  }
  return text + "]";
}

// The strings of a JSON array text, read with an independent JSON parser.
std::vector<std::string> strings_of(std::string const& array) {
  std::vector<std::string> result;
  boost::json::value const parsed = boost::json::parse(array);
  for (boost::json::value const& element : parsed.as_array()) {
    result.emplace_back(element.as_string());
  }
  return result;
}

} // namespace

// ---- The value type -----------------------------------------------------------------------------

TEST(ApWidsMacLists, IsACopyableMovableValueWithTwoEmptyLists) {
  static_assert(std::is_copy_constructible_v<ApWidsMacLists>);
  static_assert(std::is_nothrow_move_constructible_v<ApWidsMacLists>);
  static_assert(std::is_same_v<decltype(ApWidsMacLists::white_list), MacSet>);
  static_assert(std::is_same_v<decltype(ApWidsMacLists::black_list), MacSet>);
  ApWidsMacLists const lists;
  EXPECT_TRUE(lists.white_list.empty());
  EXPECT_TRUE(lists.black_list.empty());

  ApWidsMacLists original;
  original.white_list.insert(mac("00:11:22:33:44:55"));
  ApWidsMacLists const copy = original;
  original.white_list.clear();
  EXPECT_EQ(copy.white_list, MacSet{mac("00:11:22:33:44:55")});
  ApWidsMacLists source = copy;
  ApWidsMacLists const moved = std::move(source);
  EXPECT_EQ(moved.white_list, copy.white_list);
}

// ---- Setters ------------------------------------------------------------------------------------

TEST(ApWidsMacLists, SetWhiteListReplacesOnlyTheWhiteList) {
  ApWidsMacLists lists;
  lists.black_list = {mac("aa:aa:aa:aa:aa:aa")};
  lists.white_list = {mac("01:01:01:01:01:01")};
  MacSet replacement{mac("00:11:22:33:44:55"), mac("66:77:88:99:aa:bb")};
  lists.set_white_list(replacement);
  EXPECT_EQ(lists.white_list, replacement);
  EXPECT_EQ(lists.black_list, MacSet{mac("aa:aa:aa:aa:aa:aa")});
  // It holds a copy: changing the argument afterwards changes nothing.
  replacement.clear();
  EXPECT_EQ(lists.white_list.size(), 2U);
}

TEST(ApWidsMacLists, SetBlackListReplacesOnlyTheBlackList) {
  ApWidsMacLists lists;
  lists.white_list = {mac("aa:aa:aa:aa:aa:aa")};
  lists.black_list = {mac("01:01:01:01:01:01")};
  MacSet replacement{mac("00:11:22:33:44:55")};
  lists.set_black_list(replacement);
  EXPECT_EQ(lists.black_list, replacement);
  EXPECT_EQ(lists.white_list, MacSet{mac("aa:aa:aa:aa:aa:aa")});
  replacement.clear();
  EXPECT_EQ(lists.black_list.size(), 1U);
  lists.set_black_list({});
  EXPECT_TRUE(lists.black_list.empty());
  EXPECT_EQ(lists.white_list.size(), 1U);
}

// ---- The array of one list ----------------------------------------------------------------------

TEST(ApWidsMacLists, MacListJsonIsAnArrayOfTheTextForms) {
  MacSet const set{mac("AA:BB:CC:DD:EE:FF"), mac("001122334455"), MacAddr{}};
  wlccw::cfg::Tree const array(get_mac_list_json(set));
  ASSERT_TRUE(array);
  std::vector<std::string> elements;
  wlccw::cfg::for_each_element(array.get(), [&](lcw_data_t& element) {
    elements.emplace_back(cfg_object_to_string(&element));
  });
  std::vector<std::string> in_set_order;
  for (MacAddr const& m : set) {
    in_set_order.push_back(m.str());
  }
  EXPECT_EQ(elements, in_set_order);
  EXPECT_THAT(elements,
              UnorderedElementsAre("aa:bb:cc:dd:ee:ff", "00:11:22:33:44:55", "00:00:00:00:00:00"));
  EXPECT_EQ(wlccw::cfg::compact(array.get()), array_text(set));
}

TEST(ApWidsMacLists, MacListJsonOfAnEmptySetIsAnEmptyArray) {
  wlccw::cfg::Tree const array(get_mac_list_json({}));
  ASSERT_TRUE(array);
  EXPECT_EQ(wlccw::cfg::compact(array.get()), "[]");
}

TEST(ApWidsMacLists, MacListJsonWritesInvalidAddressesByTheirOctets) {
  MacAddr invalid;
  invalid.bytes = {1, 2, 3, 4, 5, 6};
  wlccw::cfg::Tree const array(get_mac_list_json({invalid}));
  EXPECT_EQ(wlccw::cfg::compact(array.get()), R"(["01:02:03:04:05:06"])");
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(ApWidsMacLists, EmptyListsSerialiseToTwoEmptyArrays) {
  ApWidsMacLists const lists;
  EXPECT_EQ(lists.ipc_serialize(), R"({"white-list":[],"black-list":[]})");
  EXPECT_EQ(lists.netconf_serialize_white_list(), "[]");
  EXPECT_EQ(lists.netconf_serialize_black_list(), "[]");
}

TEST(ApWidsMacLists, OneAddressPerListSerialisesExactly) {
  ApWidsMacLists lists;
  lists.set_white_list({mac("00:11:22:33:44:55")});
  lists.set_black_list({mac("AA:BB:CC:DD:EE:FF")});
  EXPECT_EQ(lists.ipc_serialize(),
            R"({"white-list":["00:11:22:33:44:55"],"black-list":["aa:bb:cc:dd:ee:ff"]})");
  EXPECT_EQ(lists.netconf_serialize_white_list(), R"(["00:11:22:33:44:55"])");
  EXPECT_EQ(lists.netconf_serialize_black_list(), R"(["aa:bb:cc:dd:ee:ff"])");
}

TEST(ApWidsMacLists, WhiteListComesFirstEvenWhenOnlyTheBlackListHoldsAddresses) {
  ApWidsMacLists lists;
  lists.set_black_list({mac("aa:bb:cc:dd:ee:ff")});
  EXPECT_EQ(lists.ipc_serialize(), R"({"white-list":[],"black-list":["aa:bb:cc:dd:ee:ff"]})");
}

TEST(ApWidsMacLists, SeveralAddressesAreWrittenInTheSetsIterationOrder) {
  ApWidsMacLists lists;
  lists.set_white_list(
      {mac("00:11:22:33:44:55"), mac("66:77:88:99:aa:bb"), mac("cc:dd:ee:ff:00:11")});
  lists.set_black_list({mac("02:00:00:00:00:01"), mac("02:00:00:00:00:02")});
  std::string const white = array_text(lists.white_list);
  std::string const black = array_text(lists.black_list);
  EXPECT_EQ(lists.netconf_serialize_white_list(), white);
  EXPECT_EQ(lists.netconf_serialize_black_list(), black);
  EXPECT_EQ(lists.ipc_serialize(), R"({"white-list":)" + white + R"(,"black-list":)" + black + "}");
  // Two addresses: the NETCONF text is one of the two orders, with no spaces.
  std::string const netconf_black = lists.netconf_serialize_black_list();
  EXPECT_TRUE(netconf_black == R"(["02:00:00:00:00:01","02:00:00:00:00:02"])" ||
              netconf_black == R"(["02:00:00:00:00:02","02:00:00:00:00:01"])")
      << netconf_black;
}

TEST(ApWidsMacLists, UpperCaseInputComesBackInLowerCaseInEveryTextForm) {
  std::string const text = R"({"white-list":["AA:BB:CC:DD:EE:FF"],"black-list":["0A0B0C0D0E0F"]})";
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(text);
  EXPECT_EQ(lists.ipc_serialize(),
            R"({"white-list":["aa:bb:cc:dd:ee:ff"],"black-list":["0a:0b:0c:0d:0e:0f"]})");
  EXPECT_EQ(lists.netconf_serialize_white_list(), R"(["aa:bb:cc:dd:ee:ff"])");
  EXPECT_EQ(lists.netconf_serialize_black_list(), R"(["0a:0b:0c:0d:0e:0f"])");
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(ApWidsMacLists, OnlyAWhiteListReadsAsOneAddressAndAnEmptyBlackList) {
  ApWidsMacLists const lists =
      ApWidsMacLists::ipc_deserialize(R"({"white-list":["00:11:22:33:44:55"]})");
  EXPECT_EQ(lists.white_list, MacSet{mac("00:11:22:33:44:55")});
  EXPECT_TRUE(lists.white_list.begin()->valid);
  EXPECT_TRUE(lists.black_list.empty());
}

TEST(ApWidsMacLists, OnlyABlackListReadsAsAnEmptyWhiteList) {
  ApWidsMacLists const lists =
      ApWidsMacLists::ipc_deserialize(R"({"black-list":["00:11:22:33:44:55"]})");
  EXPECT_TRUE(lists.white_list.empty());
  EXPECT_EQ(lists.black_list, MacSet{mac("00:11:22:33:44:55")});
}

TEST(ApWidsMacLists, EmptyObjectAndTextThatIsNotJsonReadAsTwoEmptyLists) {
  for (std::string const text : {"{}", "", "not json", "{\"white-list\":[", "   ", "{}{}"}) {
    ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(text);
    EXPECT_TRUE(lists.white_list.empty()) << text;
    EXPECT_TRUE(lists.black_list.empty()) << text;
  }
}

TEST(ApWidsMacLists, RootThatIsNotAnObjectReadsAsTwoEmptyLists) {
  for (std::string const text : {R"(["00:11:22:33:44:55"])", R"("white-list")", "42", "null"}) {
    ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(text);
    EXPECT_TRUE(lists.white_list.empty()) << text;
    EXPECT_TRUE(lists.black_list.empty()) << text;
  }
}

TEST(ApWidsMacLists, MemberThatIsNotAnArrayReadsAsAnEmptyList) {
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(
      R"({"white-list":"00:11:22:33:44:55","black-list":{"a":"00:11:22:33:44:55"}})");
  EXPECT_TRUE(lists.white_list.empty());
  EXPECT_TRUE(lists.black_list.empty());
  ApWidsMacLists const numbers =
      ApWidsMacLists::ipc_deserialize(R"({"white-list":1,"black-list":null})");
  EXPECT_TRUE(numbers.white_list.empty());
  EXPECT_TRUE(numbers.black_list.empty());
}

TEST(ApWidsMacLists, KeysAreCaseSensitive) {
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(
      R"({"White-List":["00:11:22:33:44:55"],"black_list":["00:11:22:33:44:55"]})");
  EXPECT_TRUE(lists.white_list.empty());
  EXPECT_TRUE(lists.black_list.empty());
}

TEST(ApWidsMacLists, BadElementIsKeptAsTheDefaultAddress) {
  ApWidsMacLists const lists =
      ApWidsMacLists::ipc_deserialize(R"({"black-list":["no address","AA:BB:CC:DD:EE:FF"]})");
  ASSERT_EQ(lists.black_list.size(), 2U);
  ASSERT_EQ(lists.black_list.count(MacAddr{}), 1U);
  MacAddr const& kept = *lists.black_list.find(MacAddr{});
  EXPECT_FALSE(kept.valid);
  EXPECT_EQ(kept.bytes, (std::array<unsigned char, 6>{}));
  EXPECT_EQ(lists.black_list.count(mac("aa:bb:cc:dd:ee:ff")), 1U);
  EXPECT_TRUE(lists.white_list.empty());
  // Written back, the bad element shows as the all-zero address.
  EXPECT_THAT(strings_of(lists.netconf_serialize_black_list()),
              UnorderedElementsAre("00:00:00:00:00:00", "aa:bb:cc:dd:ee:ff"));
  EXPECT_EQ(lists.netconf_serialize_black_list(), array_text(lists.black_list));
}

TEST(ApWidsMacLists, BadElementsAndTheAllZeroAddressCollapseIntoOneEntry) {
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(
      R"({"white-list":["bad","worse","00:00:00:00:00:00","000000000000",""]})");
  EXPECT_EQ(lists.white_list.size(), 1U);
  EXPECT_EQ(lists.netconf_serialize_white_list(), R"(["00:00:00:00:00:00"])");
}

TEST(ApWidsMacLists, ElementsThatAreNotStringsAreKeptAsTheDefaultAddress) {
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(
      R"({"white-list":[true,null,{"a":1},["00:11:22:33:44:55"],1.5],"black-list":[7]})");
  EXPECT_EQ(lists.white_list, MacSet{MacAddr{}});
  EXPECT_FALSE(lists.white_list.begin()->valid);
  EXPECT_EQ(lists.black_list, MacSet{MacAddr{}});
}

TEST(ApWidsMacLists, ANumberElementIsReadThroughItsDecimalText) {
  // The element's text is what is parsed: twelve decimal digits are twelve hexadecimal digits.
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(R"({"white-list":[112233445566]})");
  EXPECT_EQ(lists.white_list, MacSet{mac("11:22:33:44:55:66")});
}

TEST(ApWidsMacLists, SpellingsOfTheSameAddressReadAsOne) {
  ApWidsMacLists const lists =
      ApWidsMacLists::ipc_deserialize(R"({"white-list":["001122334455","00:11:22:33:44:55"]})");
  ASSERT_EQ(lists.white_list.size(), 1U);
  EXPECT_TRUE(lists.white_list.begin()->valid);
  EXPECT_EQ(lists.white_list.begin()->str(), "00:11:22:33:44:55");
}

TEST(ApWidsMacLists, EmptyArraysReadAsEmptyLists) {
  ApWidsMacLists const lists =
      ApWidsMacLists::ipc_deserialize(R"({"white-list":[],"black-list":[]})");
  EXPECT_TRUE(lists.white_list.empty());
  EXPECT_TRUE(lists.black_list.empty());
}

TEST(ApWidsMacLists, OtherMembersAreIgnored) {
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(
      R"({"type":"wids","white-list":["00:11:22:33:44:55"],"extra":[1,2],"black-list":["aabbccddeeff"]})");
  EXPECT_EQ(lists.white_list, MacSet{mac("00:11:22:33:44:55")});
  EXPECT_EQ(lists.black_list, MacSet{mac("aa:bb:cc:dd:ee:ff")});
}

TEST(ApWidsMacLists, RoundTripKeepsEveryAddress) {
  ApWidsMacLists lists;
  MacSet white;
  MacSet black;
  for (unsigned i = 0; i < 500; ++i) {
    MacAddr m;
    m.bytes = {0x02, 0x00, static_cast<unsigned char>(i >> 8U), static_cast<unsigned char>(i),
               0x00, 0x01};
    m.valid = true;
    white.insert(m);
    m.bytes[5] = 0x02;
    black.insert(m);
  }
  lists.set_white_list(white);
  lists.set_black_list(black);
  ApWidsMacLists const back = ApWidsMacLists::ipc_deserialize(lists.ipc_serialize());
  EXPECT_EQ(back.white_list, white);
  EXPECT_EQ(back.black_list, black);
  for (MacAddr const& m : back.white_list) {
    ASSERT_TRUE(m.valid);
  }
}

// ---- Hash ---------------------------------------------------------------------------------------

TEST(ApWidsMacLists, HashIsTheStringHashOfTheIpcText) {
  ApWidsMacLists lists;
  EXPECT_EQ(lists.get_hash(), std::hash<std::string>{}(R"({"white-list":[],"black-list":[]})"));
  lists.set_white_list({mac("00:11:22:33:44:55"), mac("66:77:88:99:aa:bb")});
  EXPECT_EQ(lists.get_hash(), std::hash<std::string>{}(lists.ipc_serialize()));
}

TEST(ApWidsMacLists, ObjectsReadFromTheSameTextHashAlike) {
  std::string const text =
      R"({"white-list":["00:11:22:33:44:55","66:77:88:99:AA:BB","cc:dd:ee:ff:00:11"],)"
      R"("black-list":["02:00:00:00:00:01","bad"]})";
  ApWidsMacLists const a = ApWidsMacLists::ipc_deserialize(text);
  ApWidsMacLists const b = ApWidsMacLists::ipc_deserialize(text);
  EXPECT_EQ(a.get_hash(), b.get_hash());
  EXPECT_EQ(a.ipc_serialize(), b.ipc_serialize());
}

TEST(ApWidsMacLists, HashFollowsTheContent) {
  ApWidsMacLists a;
  ApWidsMacLists b;
  a.set_white_list({mac("00:11:22:33:44:55")});
  b.set_black_list({mac("00:11:22:33:44:55")});
  EXPECT_NE(a.get_hash(), b.get_hash());
  b.set_black_list({});
  b.set_white_list({mac("001122334455")});
  EXPECT_EQ(a.get_hash(), b.get_hash());
}
