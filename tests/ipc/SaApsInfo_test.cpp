#include <wlccw/ipc/SaApsInfo.hpp>

#include "support/text_variants.hpp"

#include "support/addresses.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

// Failure messages show the list as its IPC text.
void PrintTo(SaApsInfo const& info, std::ostream* os) {
  *os << SaApsInfo::ipc_serialize(info);
}

namespace {

using wlccw::test::ip;
using wlccw::test::mac;

using ApInfo = SaApsInfo::ApInfo;

// Every stage with its text, value 0 first.
std::vector<std::pair<WLCBT_SA_STATUS, std::string>> const kStages{
    {WLCBT_SA_STATUS::NONE, ""},
    {WLCBT_SA_STATUS::REGISTERING, "Registering"},
    {WLCBT_SA_STATUS::AWAITED, "Awaited"},
    {WLCBT_SA_STATUS::JOIN_BY_ADMIN, "Join-by-admin"},
    {WLCBT_SA_STATUS::JOIN_AUTO, "Join-auto"},
    {WLCBT_SA_STATUS::JOINED, "Joined"},
    {WLCBT_SA_STATUS::UPGRADING_FW, "Upgrading FW"},
};

ApInfo ap_with_status(WLCBT_SA_STATUS status) {
  ApInfo ap;
  ap.status = status;
  return ap;
}

// An AP with valid addresses: IpAddr equality takes its validity flag into account, and the
// default address is written as 0.0.0.0, which reads back as a valid address.
ApInfo valid_ap_with_status(WLCBT_SA_STATUS status) {
  ApInfo ap = ap_with_status(status);
  ap.ap_mac = mac("00:11:22:33:44:55");
  ap.ip = ip("10.0.0.1");
  return ap;
}

// The IPC text of one AP with default fields but the status text.
std::string one_default_ap(std::string const& status) {
  return R"({"sa-aps":[{"ap-mac":"00:00:00:00:00:00","ip":"0.0.0.0","board-type":"",)"
         R"("sw-version":"","hw-version":"","serial":"","status":")" +
         status + R"("}]})";
}

// The JSON string of a text: quote and backslash escaped, control characters as \u00XX.
std::string json_string(std::string_view text) {
  static constexpr char kHex[] = "0123456789abcdef";
  std::string out = "\"";
  for (char const c : text) {
    auto const byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (byte < 0x20) {
      out += "\\u00";
      out += kHex[byte >> 4U];
      out += kHex[byte & 0xfU];
    } else {
      out += c;
    }
  }
  return out + '"';
}

// The status read from one AP element with the given "status" JSON value.
WLCBT_SA_STATUS status_read_from(std::string const& json_value) {
  SaApsInfo const info =
      SaApsInfo::ipc_deserialize(R"({"sa-aps":[{"status":)" + json_value + "}]}");
  EXPECT_EQ(info.sa_aps.size(), 1U) << json_value;
  return info.sa_aps.empty() ? static_cast<WLCBT_SA_STATUS>(-1) : info.sa_aps[0].status;
}

SaApsInfo two_aps() {
  SaApsInfo info;
  ApInfo first;
  first.ap_mac = mac("00:1A:2B:3C:4D:5E");
  first.ip = ip("192.168.10.21");
  first.board_type = "WEP-3ax";
  first.sw_version = "1.27.0 build 4312";
  first.hw_version = "2A";
  first.serial = "WP23C9001234";
  first.status = WLCBT_SA_STATUS::JOINED;
  info.sa_aps.push_back(first);
  ApInfo second;
  second.ap_mac = mac("a4:5e:60:c1:02:7d");
  second.ip = ip("10.0.0.2");
  second.board_type = "WEP-2ac Wall";
  second.sw_version = "1.26.2";
  second.status = WLCBT_SA_STATUS::UPGRADING_FW;
  info.sa_aps.push_back(second);
  return info;
}

constexpr char const* kTwoAps =
    R"({"sa-aps":[{"ap-mac":"00:1a:2b:3c:4d:5e","ip":"192.168.10.21","board-type":"WEP-3ax",)"
    R"("sw-version":"1.27.0 build 4312","hw-version":"2A","serial":"WP23C9001234",)"
    R"("status":"Joined"},)"
    R"({"ap-mac":"a4:5e:60:c1:02:7d","ip":"10.0.0.2","board-type":"WEP-2ac Wall",)"
    R"("sw-version":"1.26.2","hw-version":"","serial":"","status":"Upgrading FW"}]})";

} // namespace

// ---- The record ---------------------------------------------------------------------------------

TEST(SaApsInfo, StagesHaveTheirValues) {
  static_assert(std::is_same_v<std::underlying_type_t<WLCBT_SA_STATUS>, std::int32_t>);
  for (std::size_t i = 0; i < kStages.size(); ++i) {
    EXPECT_EQ(static_cast<std::int32_t>(kStages[i].first), static_cast<std::int32_t>(i));
  }
}

TEST(SaApsInfo, DefaultApHoldsDefaultValues) {
  ApInfo const ap;
  EXPECT_EQ(ap.ap_mac, MacAddr{});
  EXPECT_FALSE(ap.ap_mac.valid);
  EXPECT_EQ(ap.ip, IpAddr{});
  EXPECT_FALSE(ap.ip.valid);
  EXPECT_TRUE(ap.board_type.empty());
  EXPECT_TRUE(ap.sw_version.empty());
  EXPECT_TRUE(ap.hw_version.empty());
  EXPECT_TRUE(ap.serial.empty());
  EXPECT_EQ(ap.status, WLCBT_SA_STATUS::NONE);
  EXPECT_TRUE(SaApsInfo{}.sa_aps.empty());
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(SaApsInfo, EmptyListSerialisesToAnEmptyArray) {
  EXPECT_EQ(SaApsInfo::ipc_serialize(SaApsInfo{}), R"({"sa-aps":[]})");
}

TEST(SaApsInfo, ApsSerialiseExactlyInListOrder) {
  EXPECT_EQ(SaApsInfo::ipc_serialize(two_aps()), kTwoAps);
}

TEST(SaApsInfo, DefaultApSerialisesItsDefaults) {
  SaApsInfo info;
  info.sa_aps.emplace_back();
  EXPECT_EQ(SaApsInfo::ipc_serialize(info), one_default_ap(""));
}

TEST(SaApsInfo, EveryStageIsWrittenWithItsText) {
  for (auto const& [status, text] : kStages) {
    SaApsInfo info;
    info.sa_aps.push_back(ap_with_status(status));
    EXPECT_EQ(SaApsInfo::ipc_serialize(info), one_default_ap(text)) << text;
  }
}

TEST(SaApsInfo, ValuesPastTheStagesAreWrittenAsEmptyText) {
  for (std::int32_t const value : {7, 8, 100, 2147483647, -1, -2147483647 - 1}) {
    SaApsInfo info;
    info.sa_aps.push_back(ap_with_status(static_cast<WLCBT_SA_STATUS>(value)));
    EXPECT_EQ(SaApsInfo::ipc_serialize(info), one_default_ap("")) << value;
  }
}

TEST(SaApsInfo, InvalidAddressesAreWrittenByTheirOctets) {
  SaApsInfo info;
  ApInfo ap;
  ap.ap_mac.bytes = {0xde, 0xad, 0xbe, 0xef, 0x00, 0x01};
  ap.ip.octets = {1, 2, 3, 4};
  info.sa_aps.push_back(ap);
  EXPECT_EQ(SaApsInfo::ipc_serialize(info),
            R"({"sa-aps":[{"ap-mac":"de:ad:be:ef:00:01","ip":"1.2.3.4","board-type":"",)"
            R"("sw-version":"","hw-version":"","serial":"","status":""}]})");
}

TEST(SaApsInfo, TextsAreWrittenWithJsonEscapes) {
  SaApsInfo info;
  ApInfo ap = valid_ap_with_status(WLCBT_SA_STATUS::AWAITED);
  ap.board_type = "quote\" back\\slash";
  ap.serial = "tab\t/";
  info.sa_aps.push_back(ap);
  std::string const text = SaApsInfo::ipc_serialize(info);
  EXPECT_EQ(text, R"({"sa-aps":[{"ap-mac":"00:11:22:33:44:55","ip":"10.0.0.1",)"
                  R"("board-type":"quote\" back\\slash","sw-version":"","hw-version":"",)"
                  R"("serial":"tab\t/","status":"Awaited"}]})");
  EXPECT_EQ(SaApsInfo::ipc_deserialize(text), info);
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(SaApsInfo, WrittenTextReadsBackToTheSameList) {
  SaApsInfo const info = two_aps();
  SaApsInfo const back = SaApsInfo::ipc_deserialize(SaApsInfo::ipc_serialize(info));
  EXPECT_EQ(back, info);
  ASSERT_EQ(back.sa_aps.size(), 2U);
  EXPECT_TRUE(back.sa_aps[0].ap_mac.valid);
  EXPECT_TRUE(back.sa_aps[0].ip.valid);
  EXPECT_EQ(SaApsInfo::ipc_serialize(back), kTwoAps);
}

TEST(SaApsInfo, JoinedSurvivesWritingAndReading) {
  SaApsInfo info;
  info.sa_aps.push_back(ap_with_status(WLCBT_SA_STATUS::JOINED));
  SaApsInfo const back = SaApsInfo::ipc_deserialize(SaApsInfo::ipc_serialize(info));
  ASSERT_EQ(back.sa_aps.size(), 1U);
  EXPECT_EQ(back.sa_aps[0].status, WLCBT_SA_STATUS::JOINED);
}

TEST(SaApsInfo, EveryStageTextReadsAsItsValue) {
  for (auto const& [status, text] : kStages) {
    EXPECT_EQ(status_read_from(json_string(text)), status) << text;
    SaApsInfo info;
    info.sa_aps.push_back(valid_ap_with_status(status));
    EXPECT_EQ(SaApsInfo::ipc_deserialize(SaApsInfo::ipc_serialize(info)), info) << text;
  }
}

TEST(SaApsInfo, LowerCaseJoinedReadsAsNoneAndIsWrittenAsEmptyText) {
  SaApsInfo const info = SaApsInfo::ipc_deserialize(R"({"sa-aps":[{"status":"joined"}]})");
  ASSERT_EQ(info.sa_aps.size(), 1U);
  EXPECT_EQ(info.sa_aps[0].status, WLCBT_SA_STATUS::NONE);
  EXPECT_EQ(SaApsInfo::ipc_serialize(info), one_default_ap(""));
}

TEST(SaApsInfo, StageTextsAreComparedExactly) {
  std::vector<std::string_view> table;
  for (auto const& stage : kStages) {
    table.push_back(stage.second);
  }
  auto const swapped = [](std::string_view text) {
    return std::vector<std::string>{wlccw::test::swap_hyphens_and_underscores(text)};
  };
  std::vector<std::string> const bad = wlccw::test::variants_of(
      table, wlccw::test::case_variants, wlccw::test::padded_variants,
      wlccw::test::cut_short_variants, wlccw::test::lengthened_variants, swapped);
  ASSERT_GT(bad.size(), 50U);
  for (std::string const& text : bad) {
    EXPECT_EQ(status_read_from(json_string(text)), WLCBT_SA_STATUS::NONE) << text;
  }
  for (std::string const text : {"REGISTERING", "JOINED", "Upgrading_FW", "Upgrading  FW",
                                 "Join by admin", "1", "5", "Joined\\n"}) {
    EXPECT_EQ(status_read_from(json_string(text)), WLCBT_SA_STATUS::NONE) << text;
  }
}

TEST(SaApsInfo, MissingOrNonTextStatusReadsAsNone) {
  SaApsInfo const missing = SaApsInfo::ipc_deserialize(R"({"sa-aps":[{"serial":"x"}]})");
  ASSERT_EQ(missing.sa_aps.size(), 1U);
  EXPECT_EQ(missing.sa_aps[0].status, WLCBT_SA_STATUS::NONE);
  for (std::string const value : {"5", "null", "true", R"(["Joined"])", R"({"Joined":1})"}) {
    EXPECT_EQ(status_read_from(value), WLCBT_SA_STATUS::NONE) << value;
  }
}

TEST(SaApsInfo, BadIpReadsAsTheInvalidAddressWrittenAsZeros) {
  for (std::string const bad : {"10.0.0.256", "10-0-0-1", "1.2.3", "1921681", "192.168.100.100.1",
                                "-1.2.3.4", "", "garbage"}) {
    SaApsInfo const info = SaApsInfo::ipc_deserialize(
        R"({"sa-aps":[{"ap-mac":"00:11:22:33:44:55","ip":")" + bad + R"("}]})");
    ASSERT_EQ(info.sa_aps.size(), 1U) << bad;
    EXPECT_EQ(info.sa_aps[0].ip, IpAddr{}) << bad;
    EXPECT_FALSE(info.sa_aps[0].ip.valid) << bad;
    EXPECT_EQ(SaApsInfo::ipc_serialize(info),
              R"({"sa-aps":[{"ap-mac":"00:11:22:33:44:55","ip":"0.0.0.0","board-type":"",)"
              R"("sw-version":"","hw-version":"","serial":"","status":""}]})")
        << bad;
  }
}

TEST(SaApsInfo, IpIsReadByTheAddressTextRules) {
  SaApsInfo const info = SaApsInfo::ipc_deserialize(
      R"({"sa-aps":[{"ip":"010.0.0.1"},{"ip":"0x10.1.1.1"},{"ip":"1.2.3.4junk"},{"ip":10}]})");
  ASSERT_EQ(info.sa_aps.size(), 4U);
  EXPECT_EQ(info.sa_aps[0].ip.str(), "8.0.0.1");
  EXPECT_EQ(info.sa_aps[1].ip.str(), "16.1.1.1");
  EXPECT_EQ(info.sa_aps[2].ip.str(), "1.2.3.4");
  EXPECT_TRUE(info.sa_aps[2].ip.valid);
  EXPECT_FALSE(info.sa_aps[3].ip.valid);
}

TEST(SaApsInfo, MacIsReadByTheAddressTextRules) {
  SaApsInfo const info = SaApsInfo::ipc_deserialize(
      R"({"sa-aps":[{"ap-mac":"AA:bb:0C:dd:0e:FF"},{"ap-mac":"aabbccddeeff"},)"
      R"({"ap-mac":"aa-bb-cc-dd-ee-ff"},{"ap-mac":"aa:bb:cc:dd:ee:fg"},{"ap-mac":"aa:bb:cc:dd:ee:ff:"},)"
      R"({"ap-mac":["aa:bb:cc:dd:ee:ff"]},{}]})");
  ASSERT_EQ(info.sa_aps.size(), 7U);
  EXPECT_EQ(info.sa_aps[0].ap_mac.str(), "aa:bb:0c:dd:0e:ff");
  EXPECT_TRUE(info.sa_aps[0].ap_mac.valid);
  EXPECT_EQ(info.sa_aps[1].ap_mac.str(), "aa:bb:cc:dd:ee:ff");
  EXPECT_TRUE(info.sa_aps[1].ap_mac.valid);
  for (std::size_t i = 2; i < info.sa_aps.size(); ++i) {
    EXPECT_EQ(info.sa_aps[i].ap_mac, MacAddr{}) << i;
    EXPECT_FALSE(info.sa_aps[i].ap_mac.valid) << i;
  }
}

TEST(SaApsInfo, TextsAreTakenAsText) {
  SaApsInfo const info = SaApsInfo::ipc_deserialize(
      R"({"sa-aps":[{"board-type":12,"sw-version":true,"hw-version":null,"serial":{"a":"b"}},)"
      R"({"board-type":["x"],"sw-version":"","hw-version":"1.0","serial":"S N"},)"
      R"({"serial":123456789012345678901234567890}]})");
  ASSERT_EQ(info.sa_aps.size(), 3U);
  // A number is read through its text as written.
  EXPECT_EQ(info.sa_aps[2].serial, "123456789012345678901234567890");
  EXPECT_EQ(info.sa_aps[0].board_type, "12");
  EXPECT_EQ(info.sa_aps[0].sw_version, "true");
  EXPECT_EQ(info.sa_aps[0].hw_version, "");
  EXPECT_EQ(info.sa_aps[0].serial, "");
  EXPECT_EQ(info.sa_aps[1].board_type, "");
  EXPECT_EQ(info.sa_aps[1].sw_version, "");
  EXPECT_EQ(info.sa_aps[1].hw_version, "1.0");
  EXPECT_EQ(info.sa_aps[1].serial, "S N");
}

TEST(SaApsInfo, EveryElementGivesAnApEvenWhenItIsNotAnObject) {
  SaApsInfo const info = SaApsInfo::ipc_deserialize(
      R"({"sa-aps":[1,"00:11:22:33:44:55",null,[],true,{"status":"Awaited"}]})");
  ASSERT_EQ(info.sa_aps.size(), 6U);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(info.sa_aps[i], ApInfo{}) << i;
  }
  EXPECT_EQ(info.sa_aps[5].status, WLCBT_SA_STATUS::AWAITED);
}

TEST(SaApsInfo, EmptyArrayReadsAsAnEmptyList) {
  EXPECT_TRUE(SaApsInfo::ipc_deserialize(R"({"sa-aps":[]})").sa_aps.empty());
}

TEST(SaApsInfo, TextThatIsNotJsonReadsAsAnEmptyList) {
  for (std::string const& text : std::vector<std::string>{
           "", " ", "sa-aps", "{", R"({"sa-aps":[)", R"({"sa-aps":[{}]}x)", R"({"sa-aps":[{},]})",
           R"({"sa-aps":)" + std::string(100000, '[')}) {
    EXPECT_TRUE(SaApsInfo::ipc_deserialize(text).sa_aps.empty()) << text.substr(0, 40);
  }
}

TEST(SaApsInfo, MissingOrNonArraySaApsReadsAsAnEmptyList) {
  for (std::string const text :
       {"{}", R"({"sa_aps":[{}]})", R"({"SA-APS":[{}]})", R"({"sa-aps":{"a":{}}})",
        R"({"sa-aps":"x"})", R"({"sa-aps":1})", R"({"sa-aps":null})", R"([{"sa-aps":[{}]}])",
        R"([{}])", "42", "null", R"("sa-aps")"}) {
    EXPECT_TRUE(SaApsInfo::ipc_deserialize(text).sa_aps.empty()) << text;
  }
}

TEST(SaApsInfo, ReadsExactlyTheCharactersOfTheView) {
  // The view ends before the closing brace that makes the text whole: it is not JSON.
  std::string const whole = R"({"sa-aps":[{"serial":"x"}]})";
  EXPECT_TRUE(
      SaApsInfo::ipc_deserialize(std::string_view(whole.data(), whole.size() - 1)).sa_aps.empty());
  // A view inside a longer buffer reads only its own characters.
  std::string const buffer = whole + "trailing garbage";
  SaApsInfo const info = SaApsInfo::ipc_deserialize(std::string_view(buffer.data(), whole.size()));
  ASSERT_EQ(info.sa_aps.size(), 1U);
  EXPECT_EQ(info.sa_aps[0].serial, "x");
}

TEST(SaApsInfo, OtherMembersAreIgnored) {
  SaApsInfo const info = SaApsInfo::ipc_deserialize(
      R"({"type":"sa","sa-aps":[{"x":1,"status":"Join-auto","ap-mac":"001122334455"}],"n":2})");
  ASSERT_EQ(info.sa_aps.size(), 1U);
  EXPECT_EQ(info.sa_aps[0].status, WLCBT_SA_STATUS::JOIN_AUTO);
  EXPECT_EQ(info.sa_aps[0].ap_mac, mac("00:11:22:33:44:55"));
}

TEST(SaApsInfo, ManyApsReadBackInOrder) {
  SaApsInfo info;
  for (unsigned i = 0; i < 700; ++i) {
    ApInfo ap;
    ap.ap_mac = mac("02:00:00:00:00:00");
    ap.ap_mac.bytes[4] = static_cast<unsigned char>(i >> 8U);
    ap.ap_mac.bytes[5] = static_cast<unsigned char>(i);
    ap.ip = ip(("10.0." + std::to_string(i / 256) + "." + std::to_string(i % 256)).c_str());
    ap.serial = "S" + std::to_string(i);
    ap.status = static_cast<WLCBT_SA_STATUS>(i % 7);
    info.sa_aps.push_back(ap);
  }
  EXPECT_EQ(SaApsInfo::ipc_deserialize(SaApsInfo::ipc_serialize(info)), info);
}
