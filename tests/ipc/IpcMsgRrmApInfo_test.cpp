#include <wlccw/ipc/IpcMsgRrmApInfo.hpp>

#include <wlccw/cfg/owned.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

using Band = IpcMsgRrmApInfo::Band;
using VapInfo = IpcMsgRrmApInfo::VapInfo;

/// An AP with four interfaces, added out of name order.
IpcMsgRrmApInfo lobby_ap() {
  IpcMsgRrmApInfo info;
  info.type = "WAP-6E-4x4";
  info.ip = "10.20.30.40";
  info.location = "Lobby 3F";
  info.interfaces.try_emplace("wlan1-vap0", "Corp-WiFi", Band::BAND_5G, 1U, 0U);
  info.interfaces.try_emplace("wlan2-vap0", "Corp-6E", Band::BAND_6G, 2U, 0U);
  info.interfaces.try_emplace("wlan0-vap1", "Guest", Band::BAND_2G, 0U, 1U);
  info.interfaces.try_emplace("wlan0-vap0", "Corp-WiFi", Band::BAND_2G, 0U, 0U);
  return info;
}

constexpr std::string_view lobby_ap_text =
    R"({"type":"WAP-6E-4x4","ip":"10.20.30.40","location":"Lobby 3F","interfaces":[)"
    R"({"name":"wlan0-vap0","band":"2g","ssid":"Corp-WiFi","radio-id":0,"vap-id":0},)"
    R"({"name":"wlan0-vap1","band":"2g","ssid":"Guest","radio-id":0,"vap-id":1},)"
    R"({"name":"wlan1-vap0","band":"5g","ssid":"Corp-WiFi","radio-id":1,"vap-id":0},)"
    R"({"name":"wlan2-vap0","band":"6g","ssid":"Corp-6E","radio-id":2,"vap-id":0}]})";

/// An AP that is not empty and has no interfaces.
IpcMsgRrmApInfo bare_ap() {
  IpcMsgRrmApInfo info;
  info.type = "WAP-2";
  info.ip = "192.168.1.1";
  info.location = "Hall";
  return info;
}

/// The compact text of get_json, with the tree released by its owner.
std::string json_text(IpcMsgRrmApInfo const& info) {
  wlccw::cfg::Tree const tree(info.get_json());
  EXPECT_TRUE(tree);
  return wlccw::cfg::compact(tree.get());
}

} // namespace

// ---- Types --------------------------------------------------------------------------------------

TEST(IpcMsgRrmApInfo, BandIsA32BitEnumerationNumbered0To2) {
  static_assert(std::is_enum_v<Band>);
  static_assert(sizeof(Band) == 4);
  EXPECT_EQ(static_cast<int>(Band::BAND_2G), 0);
  EXPECT_EQ(static_cast<int>(Band::BAND_5G), 1);
  EXPECT_EQ(static_cast<int>(Band::BAND_6G), 2);
}

TEST(IpcMsgRrmApInfo, VapInfoIsPolymorphicOnlyThroughItsDestructor) {
  static_assert(std::has_virtual_destructor_v<VapInfo>);
  static_assert(std::is_polymorphic_v<VapInfo>);
  static_assert(!std::is_default_constructible_v<VapInfo>);
  static_assert(std::is_copy_constructible_v<VapInfo>);
  static_assert(std::is_nothrow_move_constructible_v<VapInfo>);
  static_assert(std::is_same_v<decltype(VapInfo::ssid), std::string>);
  static_assert(std::is_same_v<decltype(VapInfo::band), Band>);
  static_assert(std::is_same_v<decltype(VapInfo::radio_id), std::uint64_t>);
  static_assert(std::is_same_v<decltype(VapInfo::vap_id), std::uint64_t>);
}

TEST(IpcMsgRrmApInfo, VapInfoConstructorWithBandKeepsEveryField) {
  VapInfo const vap("Corp", Band::BAND_6G, 3U, 7U);
  EXPECT_EQ(vap.ssid, "Corp");
  EXPECT_EQ(vap.band, Band::BAND_6G);
  EXPECT_EQ(vap.radio_id, 3U);
  EXPECT_EQ(vap.vap_id, 7U);
}

TEST(IpcMsgRrmApInfo, VapInfoConstructorWithBandTextReadsItWithBandFromStr) {
  VapInfo const five("Corp", std::string("5g"), 1U, 2U);
  EXPECT_EQ(five.band, Band::BAND_5G);
  EXPECT_EQ(five.ssid, "Corp");
  EXPECT_EQ(five.radio_id, 1U);
  EXPECT_EQ(five.vap_id, 2U);
  EXPECT_EQ(VapInfo("x", std::string("6g"), 0U, 0U).band, Band::BAND_6G);
  EXPECT_EQ(VapInfo("x", std::string("2g"), 0U, 0U).band, Band::BAND_2G);
  EXPECT_EQ(VapInfo("x", std::string("6G"), 0U, 0U).band, Band::BAND_2G);
  EXPECT_EQ(VapInfo("x", std::string(""), 0U, 0U).band, Band::BAND_2G);
  EXPECT_EQ(VapInfo("x", "5g", 0U, 0U).band, Band::BAND_5G);
}

TEST(IpcMsgRrmApInfo, VapInfoEqualityComparesEveryField) {
  VapInfo const vap("Corp", Band::BAND_5G, 1U, 2U);
  EXPECT_EQ(vap, VapInfo("Corp", Band::BAND_5G, 1U, 2U));
  EXPECT_NE(vap, VapInfo("Corq", Band::BAND_5G, 1U, 2U));
  EXPECT_NE(vap, VapInfo("Corp", Band::BAND_6G, 1U, 2U));
  EXPECT_NE(vap, VapInfo("Corp", Band::BAND_5G, 0U, 2U));
  EXPECT_NE(vap, VapInfo("Corp", Band::BAND_5G, 1U, 3U));
}

TEST(IpcMsgRrmApInfo, RecordIsACopyableMovableValueEmptyByDefault) {
  static_assert(std::is_copy_constructible_v<IpcMsgRrmApInfo>);
  static_assert(std::is_copy_assignable_v<IpcMsgRrmApInfo>);
  static_assert(std::is_nothrow_move_constructible_v<IpcMsgRrmApInfo>);
  static_assert(
      std::is_same_v<decltype(IpcMsgRrmApInfo::interfaces), std::map<std::string, VapInfo>>);
  IpcMsgRrmApInfo const info;
  EXPECT_FALSE(info.ip.valid);
  EXPECT_TRUE(info.type.empty());
  EXPECT_TRUE(info.location.empty());
  EXPECT_TRUE(info.interfaces.empty());

  IpcMsgRrmApInfo original = lobby_ap();
  IpcMsgRrmApInfo const copy = original;
  original.interfaces.clear();
  EXPECT_EQ(copy.interfaces.size(), 4U);
  IpcMsgRrmApInfo moved = std::move(original);
  EXPECT_EQ(moved.type, "WAP-6E-4x4");
  moved = copy;
  EXPECT_EQ(moved, copy);
}

// ---- Band conversions ---------------------------------------------------------------------------

TEST(IpcMsgRrmApInfo, BandFromStrReadsTheThreeTexts) {
  EXPECT_EQ(IpcMsgRrmApInfo::band_from_str("2g"), Band::BAND_2G);
  EXPECT_EQ(IpcMsgRrmApInfo::band_from_str("5g"), Band::BAND_5G);
  EXPECT_EQ(IpcMsgRrmApInfo::band_from_str("6g"), Band::BAND_6G);
}

TEST(IpcMsgRrmApInfo, BandFromStrReadsEveryOtherTextAs2g) {
  for (char const* text : {"2.4g", "", "5G", "6G", "5", "6", " 5g", "5g ", "5gg", "UNKNOWN", "g"}) {
    EXPECT_EQ(IpcMsgRrmApInfo::band_from_str(text), Band::BAND_2G) << text;
  }
  // The whole text counts, an embedded NUL included.
  EXPECT_EQ(IpcMsgRrmApInfo::band_from_str(std::string("5g\0x", 4)), Band::BAND_2G);
}

TEST(IpcMsgRrmApInfo, StrFromBandWritesTheThreeTexts) {
  EXPECT_EQ(IpcMsgRrmApInfo::str_from_band(Band::BAND_2G), "2g");
  EXPECT_EQ(IpcMsgRrmApInfo::str_from_band(Band::BAND_5G), "5g");
  EXPECT_EQ(IpcMsgRrmApInfo::str_from_band(Band::BAND_6G), "6g");
}

TEST(IpcMsgRrmApInfo, StrFromBandWritesEveryOtherValueAs2g) {
  EXPECT_EQ(IpcMsgRrmApInfo::str_from_band(static_cast<Band>(3)), "2g");
  EXPECT_EQ(IpcMsgRrmApInfo::str_from_band(static_cast<Band>(-1)), "2g");
  EXPECT_EQ(IpcMsgRrmApInfo::str_from_band(static_cast<Band>(std::numeric_limits<int>::max())),
            "2g");
}

TEST(IpcMsgRrmApInfo, ApProfileRadioBandFromBandKeepsTheNumber) {
  EXPECT_EQ(IpcMsgRrmApInfo::ApProfileRadioBand_from_band(Band::BAND_2G),
            ApProfileRadioBand::BAND_2_4_GHZ);
  EXPECT_EQ(IpcMsgRrmApInfo::ApProfileRadioBand_from_band(Band::BAND_5G),
            ApProfileRadioBand::BAND_5_GHZ);
  EXPECT_EQ(IpcMsgRrmApInfo::ApProfileRadioBand_from_band(Band::BAND_6G),
            ApProfileRadioBand::BAND_6_GHZ);
}

TEST(IpcMsgRrmApInfo, ApProfileRadioBandFromBandGives2Point4ForOtherValues) {
  for (int const value : {3, 4, -1, 100}) {
    EXPECT_EQ(IpcMsgRrmApInfo::ApProfileRadioBand_from_band(static_cast<Band>(value)),
              ApProfileRadioBand::BAND_2_4_GHZ)
        << value;
  }
}

// ---- Emptiness and the type ---------------------------------------------------------------------

TEST(IpcMsgRrmApInfo, IsEmptyNeedsTypeLocationAndValidAddress) {
  EXPECT_TRUE(IpcMsgRrmApInfo().is_empty());
  EXPECT_FALSE(bare_ap().is_empty());
  EXPECT_FALSE(lobby_ap().is_empty());

  IpcMsgRrmApInfo no_type = bare_ap();
  no_type.type.clear();
  EXPECT_TRUE(no_type.is_empty());
  IpcMsgRrmApInfo no_location = bare_ap();
  no_location.location.clear();
  EXPECT_TRUE(no_location.is_empty());
  IpcMsgRrmApInfo no_ip = bare_ap();
  no_ip.ip = IpAddr{};
  EXPECT_TRUE(no_ip.is_empty());
  // A valid 0.0.0.0 is an address.
  IpcMsgRrmApInfo zero_ip = bare_ap();
  zero_ip.ip = "0.0.0.0";
  EXPECT_FALSE(zero_ip.is_empty());
}

TEST(IpcMsgRrmApInfo, GetTypeIsTheField) {
  IpcMsgRrmApInfo info = bare_ap();
  IpcMsgRrmApInfo const& view = info;
  EXPECT_EQ(&view.get_type(), &info.type);
  EXPECT_EQ(view.get_type(), "WAP-2");
  info.get_type() = "WAP-3";
  EXPECT_EQ(info.type, "WAP-3");
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(IpcMsgRrmApInfo, PopulatedRecordWritesItsExactText) {
  IpcMsgRrmApInfo const info = lobby_ap();
  EXPECT_EQ(info.to_str(), lobby_ap_text);
  EXPECT_EQ(json_text(info), lobby_ap_text);
}

TEST(IpcMsgRrmApInfo, EmptyRecordWritesAnObjectWithNoKeys) {
  IpcMsgRrmApInfo const info;
  wlccw::cfg::Tree const tree(info.get_json());
  ASSERT_TRUE(tree);
  EXPECT_NE(cfg_is_empty(tree.get()), 0);
  EXPECT_EQ(info.to_str(), "{}");
}

TEST(IpcMsgRrmApInfo, RecordWithoutInterfacesHasNoInterfacesKey) {
  EXPECT_EQ(bare_ap().to_str(), R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall"})");
}

TEST(IpcMsgRrmApInfo, EmptyLocationWritesNoKeysEvenWithInterfaces) {
  IpcMsgRrmApInfo info = lobby_ap();
  info.location.clear();
  EXPECT_EQ(info.to_str(), "{}");
  wlccw::cfg::Tree const tree(info.get_json());
  ASSERT_TRUE(tree);
  EXPECT_NE(cfg_is_empty(tree.get()), 0);
}

TEST(IpcMsgRrmApInfo, EmptyTypeOrInvalidAddressWritesNoKeys) {
  IpcMsgRrmApInfo no_type = lobby_ap();
  no_type.type.clear();
  EXPECT_EQ(no_type.to_str(), "{}");
  IpcMsgRrmApInfo no_ip = lobby_ap();
  no_ip.ip = "10.20.30.400";
  EXPECT_EQ(no_ip.to_str(), "{}");
}

TEST(IpcMsgRrmApInfo, InterfacesAreWrittenInAscendingNameOrder) {
  IpcMsgRrmApInfo info = bare_ap();
  info.interfaces.try_emplace("b", "B", Band::BAND_2G, 0U, 0U);
  info.interfaces.try_emplace("B", "upper", Band::BAND_2G, 0U, 0U);
  info.interfaces.try_emplace("a10", "A10", Band::BAND_2G, 0U, 0U);
  info.interfaces.try_emplace("a2", "A2", Band::BAND_2G, 0U, 0U);
  EXPECT_EQ(info.to_str(), R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
                           R"({"name":"B","band":"2g","ssid":"upper","radio-id":0,"vap-id":0},)"
                           R"({"name":"a10","band":"2g","ssid":"A10","radio-id":0,"vap-id":0},)"
                           R"({"name":"a2","band":"2g","ssid":"A2","radio-id":0,"vap-id":0},)"
                           R"({"name":"b","band":"2g","ssid":"B","radio-id":0,"vap-id":0}]})");
}

TEST(IpcMsgRrmApInfo, BandOutsideTheEnumerationIsWrittenAs2g) {
  IpcMsgRrmApInfo info = bare_ap();
  info.interfaces.try_emplace("wlan0-vap0", "Corp", static_cast<Band>(9), 0U, 0U);
  EXPECT_EQ(info.to_str(), R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
                           R"({"name":"wlan0-vap0","band":"2g","ssid":"Corp","radio-id":0,)"
                           R"("vap-id":0}]})");
}

TEST(IpcMsgRrmApInfo, AddressIsWrittenInDottedDecimal) {
  IpcMsgRrmApInfo info = bare_ap();
  info.ip = "010.0.0.1"; // octal by the IPv4 text rules
  EXPECT_EQ(info.to_str(), R"({"type":"WAP-2","ip":"8.0.0.1","location":"Hall"})");
  info.ip = "255.255.255.255";
  EXPECT_EQ(info.to_str(), R"({"type":"WAP-2","ip":"255.255.255.255","location":"Hall"})");
}

TEST(IpcMsgRrmApInfo, TextsAreEscapedAsJsonStrings) {
  IpcMsgRrmApInfo info = bare_ap();
  info.type = R"(WAP "quoted" \ 1)";
  info.interfaces.try_emplace("wlan0-vap0", "Caf\xc3\xa9\t", Band::BAND_2G, 0U, 0U);
  std::string const text = info.to_str();
  EXPECT_EQ(text, "{\"type\":\"WAP \\\"quoted\\\" \\\\ 1\",\"ip\":\"192.168.1.1\",\"location\":"
                  "\"Hall\",\"interfaces\":[{\"name\":\"wlan0-vap0\",\"band\":\"2g\",\"ssid\":"
                  "\"Caf\xc3\xa9\\t\",\"radio-id\":0,\"vap-id\":0}]}");
  EXPECT_EQ(IpcMsgRrmApInfo(text), info);
}

TEST(IpcMsgRrmApInfo, NumbersAboveTheIntRangeKeepTheirLow32Bits) {
  IpcMsgRrmApInfo info = bare_ap();
  info.interfaces.try_emplace("a", "A", Band::BAND_2G, 0x1'0000'0005ULL, 2147483647U);
  info.interfaces.try_emplace("b", "B", Band::BAND_2G, 2147483648U,
                              std::numeric_limits<std::uint64_t>::max());
  std::string const text = info.to_str();
  EXPECT_EQ(text, R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
                  R"({"name":"a","band":"2g","ssid":"A","radio-id":5,"vap-id":2147483647},)"
                  R"({"name":"b","band":"2g","ssid":"B","radio-id":-2147483648,"vap-id":-1}]})");
  // Read back, a negative int is widened with its sign; written again, it gives the same text.
  IpcMsgRrmApInfo const read(text);
  EXPECT_EQ(read.interfaces.at("a").radio_id, 5U);
  EXPECT_EQ(read.interfaces.at("b").radio_id, 0xFFFF'FFFF'8000'0000ULL);
  EXPECT_EQ(read.interfaces.at("b").vap_id, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(read.to_str(), text);
  EXPECT_EQ(read.get_hash(), info.get_hash());
}

// ---- Hash ---------------------------------------------------------------------------------------

TEST(IpcMsgRrmApInfo, HashIsTheStringHashOfTheText) {
  IpcMsgRrmApInfo const info = lobby_ap();
  EXPECT_EQ(info.get_hash(), std::hash<std::string>{}(std::string(lobby_ap_text)));
  EXPECT_EQ(IpcMsgRrmApInfo().get_hash(), std::hash<std::string>{}("{}"));
  IpcMsgRrmApInfo changed = info;
  changed.interfaces.at("wlan0-vap1").vap_id = 2;
  EXPECT_NE(changed.get_hash(), info.get_hash());
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(IpcMsgRrmApInfo, WrittenTextReadsBackToTheSameRecordTextAndHash) {
  IpcMsgRrmApInfo const info = lobby_ap();
  IpcMsgRrmApInfo const read(info.to_str());
  EXPECT_EQ(read, info);
  EXPECT_EQ(read.to_str(), lobby_ap_text);
  EXPECT_EQ(read.get_hash(), info.get_hash());

  IpcMsgRrmApInfo const bare(bare_ap().to_str());
  EXPECT_EQ(bare, bare_ap());
  IpcMsgRrmApInfo const empty(IpcMsgRrmApInfo().to_str());
  EXPECT_EQ(empty, IpcMsgRrmApInfo());
  EXPECT_EQ(empty.to_str(), "{}");
}

TEST(IpcMsgRrmApInfo, ReadsTheFieldsOfHandWrittenText) {
  IpcMsgRrmApInfo const info(
      R"({"location":"Dock","interfaces":[{"vap-id":4,"radio-id":"1","ssid":"Ops","band":"5g",)"
      R"("name":"wlan1-vap4"}],"ip":"172.16.0.9","type":"WAP-X","extra":[1,2]})");
  EXPECT_EQ(info.type, "WAP-X");
  EXPECT_EQ(info.location, "Dock");
  EXPECT_TRUE(info.ip.valid);
  EXPECT_EQ(info.ip.str(), "172.16.0.9");
  ASSERT_EQ(info.interfaces.size(), 1U);
  EXPECT_EQ(info.interfaces.at("wlan1-vap4"), VapInfo("Ops", Band::BAND_5G, 1U, 4U));
}

TEST(IpcMsgRrmApInfo, ReadsOnlyTheCharactersOfTheView) {
  std::string const buffer = std::string(lobby_ap_text) + "trailing garbage";
  IpcMsgRrmApInfo const info(std::string_view(buffer).substr(0, lobby_ap_text.size()));
  EXPECT_EQ(info, lobby_ap());
}

TEST(IpcMsgRrmApInfo, InputOrderOfInterfacesDoesNotMatter) {
  IpcMsgRrmApInfo const info(
      R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
      R"({"name":"wlan2-vap0","band":"6g","ssid":"C","radio-id":2,"vap-id":0},)"
      R"({"name":"wlan0-vap0","band":"2g","ssid":"A","radio-id":0,"vap-id":0},)"
      R"({"name":"wlan1-vap0","band":"5g","ssid":"B","radio-id":1,"vap-id":0}]})");
  EXPECT_EQ(info.to_str(),
            R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
            R"({"name":"wlan0-vap0","band":"2g","ssid":"A","radio-id":0,"vap-id":0},)"
            R"({"name":"wlan1-vap0","band":"5g","ssid":"B","radio-id":1,"vap-id":0},)"
            R"({"name":"wlan2-vap0","band":"6g","ssid":"C","radio-id":2,"vap-id":0}]})");
}

TEST(IpcMsgRrmApInfo, FirstInterfaceOfANameWins) {
  IpcMsgRrmApInfo const info(
      R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
      R"({"name":"wlan0-vap0","band":"5g","ssid":"First","radio-id":1,"vap-id":1},)"
      R"({"name":"wlan0-vap1","band":"2g","ssid":"Other","radio-id":0,"vap-id":1},)"
      R"({"name":"wlan0-vap0","band":"6g","ssid":"Second","radio-id":2,"vap-id":2}]})");
  ASSERT_EQ(info.interfaces.size(), 2U);
  EXPECT_EQ(info.interfaces.at("wlan0-vap0"), VapInfo("First", Band::BAND_5G, 1U, 1U));
  EXPECT_EQ(info.interfaces.at("wlan0-vap1"), VapInfo("Other", Band::BAND_2G, 0U, 1U));
}

TEST(IpcMsgRrmApInfo, UnknownOrEmptyBandReadsAs2gAndIsWrittenSo) {
  IpcMsgRrmApInfo const info(
      R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
      R"({"name":"a","band":"2.4g","ssid":"A","radio-id":0,"vap-id":0},)"
      R"({"name":"b","band":"","ssid":"B","radio-id":0,"vap-id":0},)"
      R"({"name":"c","ssid":"C","radio-id":0,"vap-id":0},)"
      R"({"name":"d","band":"5G","ssid":"D","radio-id":0,"vap-id":0}]})");
  ASSERT_EQ(info.interfaces.size(), 4U);
  for (auto const& [name, vap] : info.interfaces) {
    EXPECT_EQ(vap.band, Band::BAND_2G) << name;
  }
  EXPECT_EQ(info.to_str(), R"({"type":"WAP-2","ip":"192.168.1.1","location":"Hall","interfaces":[)"
                           R"({"name":"a","band":"2g","ssid":"A","radio-id":0,"vap-id":0},)"
                           R"({"name":"b","band":"2g","ssid":"B","radio-id":0,"vap-id":0},)"
                           R"({"name":"c","band":"2g","ssid":"C","radio-id":0,"vap-id":0},)"
                           R"({"name":"d","band":"2g","ssid":"D","radio-id":0,"vap-id":0}]})");
}

TEST(IpcMsgRrmApInfo, RefusedAddressLeavesTheRecordEmpty) {
  for (char const* ip :
       {"192.168.1.256", "1.2.3", "-1.2.3.4", "1921681", "192.168.100.100.1", "", "garbage"}) {
    std::string const text =
        std::string(R"({"type":"WAP-2","ip":")") + ip +
        R"(","location":"Hall","interfaces":[{"name":"a","band":"5g","ssid":"A"}]})";
    IpcMsgRrmApInfo const info(text);
    EXPECT_FALSE(info.ip.valid) << ip;
    EXPECT_TRUE(info.is_empty()) << ip;
    EXPECT_EQ(info.type, "WAP-2") << ip;
    EXPECT_EQ(info.interfaces.size(), 1U) << ip;
    EXPECT_EQ(info.to_str(), "{}") << ip;
  }
  IpcMsgRrmApInfo const missing(R"({"type":"WAP-2","location":"Hall"})");
  EXPECT_TRUE(missing.is_empty());
}

TEST(IpcMsgRrmApInfo, EmptyLocationOnInputGivesAnEmptyRecord) {
  IpcMsgRrmApInfo const info(R"({"type":"WAP-2","ip":"192.168.1.1","location":""})");
  EXPECT_TRUE(info.is_empty());
  EXPECT_EQ(info.to_str(), "{}");
}

// ---- Hostile input ------------------------------------------------------------------------------

TEST(IpcMsgRrmApInfo, TextThatIsNotAnObjectGivesTheDefaultRecord) {
  for (char const* text : {"", "not json", "{", "{\"type\":\"WAP-2\",}", "[]", "[{}]", "5", "\"x\"",
                           "null", "true", "{}{}"}) {
    IpcMsgRrmApInfo info{"{}"};
    EXPECT_NO_THROW(info = IpcMsgRrmApInfo(std::string_view(text))) << text;
    EXPECT_EQ(info, IpcMsgRrmApInfo()) << text;
    EXPECT_EQ(info.to_str(), "{}") << text;
  }
}

TEST(IpcMsgRrmApInfo, ScalarKeysOfOtherJsonTypesReadAsTheirText) {
  IpcMsgRrmApInfo const numbers(R"({"type":12,"ip":"10.0.0.1","location":true})");
  EXPECT_EQ(numbers.type, "12");
  EXPECT_EQ(numbers.location, "true");
  EXPECT_EQ(numbers.to_str(), R"({"type":"12","ip":"10.0.0.1","location":"true"})");

  IpcMsgRrmApInfo const containers(R"({"type":{},"ip":["10.0.0.1"],"location":null})");
  EXPECT_EQ(containers, IpcMsgRrmApInfo());

  IpcMsgRrmApInfo const numeric_ip(R"({"type":"t","ip":167772161,"location":"l"})");
  EXPECT_FALSE(numeric_ip.ip.valid);
}

TEST(IpcMsgRrmApInfo, InterfacesThatAreNoArrayGiveNoInterfaces) {
  for (char const* interfaces : {R"({"name":"a","band":"5g"})", R"("wlan0")", "7", "null", "[]"}) {
    std::string const text =
        std::string(R"({"type":"t","ip":"10.0.0.1","location":"l","interfaces":)") + interfaces +
        "}";
    IpcMsgRrmApInfo const info(text);
    EXPECT_TRUE(info.interfaces.empty()) << interfaces;
    EXPECT_EQ(info.to_str(), R"({"type":"t","ip":"10.0.0.1","location":"l"})") << interfaces;
  }
}

TEST(IpcMsgRrmApInfo, ElementsThatAreNoObjectsAreKeptUnderTheEmptyName) {
  IpcMsgRrmApInfo const info(
      R"({"type":"t","ip":"10.0.0.1","location":"l","interfaces":[1,"wlan0",null,[],)"
      R"({"name":"wlan0-vap0","band":5,"ssid":{},"radio-id":"x","vap-id":true}]})");
  ASSERT_EQ(info.interfaces.size(), 2U);
  EXPECT_EQ(info.interfaces.at(""), VapInfo("", Band::BAND_2G, 0U, 0U));
  EXPECT_EQ(info.interfaces.at("wlan0-vap0"), VapInfo("", Band::BAND_2G, 0U, 0U));
  EXPECT_EQ(info.to_str(),
            R"({"type":"t","ip":"10.0.0.1","location":"l","interfaces":[)"
            R"({"name":"","band":"2g","ssid":"","radio-id":0,"vap-id":0},)"
            R"({"name":"wlan0-vap0","band":"2g","ssid":"","radio-id":0,"vap-id":0}]})");
}

TEST(IpcMsgRrmApInfo, NumbersOutsideTheIntRangeReadAsZero) {
  IpcMsgRrmApInfo const info(
      R"({"type":"t","ip":"10.0.0.1","location":"l","interfaces":[)"
      R"({"name":"a","band":"5g","ssid":"A","radio-id":2147483648,"vap-id":-2147483649},)"
      R"({"name":"b","band":"5g","ssid":"B","radio-id":1e3,"vap-id":1.5},)"
      R"({"name":"c","band":"5g","ssid":"C","radio-id":99999999999999999999999999,)"
      R"("vap-id":"-7"}]})");
  ASSERT_EQ(info.interfaces.size(), 3U);
  EXPECT_EQ(info.interfaces.at("a").radio_id, 0U);
  EXPECT_EQ(info.interfaces.at("a").vap_id, 0U);
  EXPECT_EQ(info.interfaces.at("b").radio_id, 0U);
  EXPECT_EQ(info.interfaces.at("b").vap_id, 0U);
  EXPECT_EQ(info.interfaces.at("c").radio_id, 0U);
  EXPECT_EQ(info.interfaces.at("c").vap_id, static_cast<std::uint64_t>(-7));
}

TEST(IpcMsgRrmApInfo, DeeplyNestedOrHugeTextIsReadWithoutHarm) {
  std::string deep(100000, '[');
  IpcMsgRrmApInfo const nested(deep);
  EXPECT_EQ(nested, IpcMsgRrmApInfo());

  std::string const long_name(100000, 'n');
  IpcMsgRrmApInfo const long_text(R"({"type":"t","ip":"10.0.0.1","location":"l","interfaces":[)"
                                  R"({"name":")" +
                                  long_name + R"(","band":")" + long_name + R"("}]})");
  ASSERT_EQ(long_text.interfaces.size(), 1U);
  EXPECT_EQ(long_text.interfaces.begin()->first, long_name);
  EXPECT_EQ(long_text.interfaces.begin()->second.band, Band::BAND_2G);
}
