// The client record's IPC form: the writer's exact texts and key order, the reader's fallbacks and
// exceptions, round trips, the merge of a newer record and the authentication summary.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/common/errors.hpp>

#include "client_support.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

namespace {

using wlccw::test::full_record;
using wlccw::test::mac_of;
using wlccw::test::make_mlo;
using wlccw::test::make_statistic;

using Statistic = APClientData::Statistics::Statistic;
using Statistics = APClientData::Statistics;
using wlccw::cfg::Tree;

APClientData minimal_record() {
  return APClientData(mac_of("00:11:22:33:44:55"), "wlan0", "Guest");
}

constexpr char const* minimal_text =
    R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest"})";

/// The identity members of minimal_text, to which a test appends its keys and the closing brace.
constexpr char const* identity_members =
    R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest")";

/// The IPC form of full_record() up to and including "link-quality-common".
constexpr char const* full_text_head =
    R"({"mac":"0a:1b:2c:3d:4e:5f","interface":"wlan1-2","ssid":"Office \"A\"","band":"5G",)"
    R"("ip":"192.168.1.20","vlan-id":100,"hostname":"laptop","username":"alice","domain":"corp",)"
    R"("ap-hostname":"ap-hall","ap-location":"Hall 2","uptime":3600,"frequency":5180,)"
    R"("channel":36,"rssi-list":[-60,-75,-40],"rssi":-75,"snr-list":[30,25],"snr":25,)"
    R"("authorized":true,"wireless-mode":"ax","link-quality":"good","link-quality-common":"fair")";

/// The rest of the IPC form of full_record(), from "statistics" on.
constexpr char const* full_text_tail =
    R"(,"statistics":{"tx":{"rate":"VHT-MCS 9 NSS 2 866.7","bandwidth":"80MHz",)"
    R"("modulation":"VHT-MCS 9 NSS 2","rate-numeric":"866.7","actual-rate":866,"bytes":123456,)"
    R"("packets":789},"rx":{"rate":"54M","actual-rate":0,"bytes":1000,"packets":10}},)"
    R"("eap-method":"eap_peap","mac-auth-status":"not_required",)"
    R"("portal-auth-status":"authenticated","wlan-auth-status":"authenticated",)"
    R"("wlan-auth-method":"wpa2_enterprise","auth-algorithm":"sae","wlan-auth-uptime":120,)"
    R"("mac-auth-uptime":60,"portal-auth-uptime":30,)"
    R"("mlo":{"mld-mac-ap":"02:00:00:00:00:01","links":[)"
    R"({"mac":"02:00:00:00:00:11","band":"2G","id":1,"bandwidth":"20MHz","rssi-list":[-50,-55],)"
    R"("snr-list":[20],"tx":{"rate":"144M","bytes":10,"packets":1},"rx":{"bytes":20}},)"
    R"({"mac":"02:00:00:00:00:12","band":"5G","id":2,"tx":{},"rx":{"packets":3}}]},)"
    R"("encryption-cipher":"CCMP","encryption-group-cipher":"TKIP"})";

std::string full_text() {
  return std::string(full_text_head) + full_text_tail;
}

/// Records are compared with ==, which leaves out frequency, channel and the ciphers; those are
/// compared here too, and both texts are shown on a difference.
::testing::AssertionResult same_record(APClientData const& actual, APClientData const& expected) {
  if (actual == expected && actual.frequency == expected.frequency &&
      actual.channel == expected.channel &&
      actual.encryption_cipher == expected.encryption_cipher &&
      actual.encryption_group_cipher == expected.encryption_group_cipher &&
      actual.ip.valid == expected.ip.valid) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure()
         << "\n  actual:   " << actual.to_json_str() << "\n  expected: " << expected.to_json_str();
}

/// The record read from the identity members followed by members (a text starting with ",").
APClientData read_with(std::string const& members) {
  return APClientData::from_json_str(std::string(identity_members) + members + "}");
}

/// Calls fn and checks that it throws exactly E with the text what.
template <typename E, typename Fn> void expect_throw(Fn&& fn, std::string const& what) {
  try {
    fn();
    ADD_FAILURE() << "no exception, expected: " << what;
  } catch (E const& e) {
    EXPECT_EQ(typeid(e), typeid(E));
    EXPECT_EQ(std::string(e.what()), what);
  } catch (std::exception const& e) {
    ADD_FAILURE() << "other exception: " << typeid(e).name() << ": " << e.what();
  }
}

// ---------------------------------------------------------------------------------------------
// Writer

TEST(APClientDataIpcWrite, MinimalRecordWritesIdentityOnly) {
  EXPECT_EQ(minimal_record().to_json_str(), minimal_text);
}

TEST(APClientDataIpcWrite, FullRecordInKeyOrder) {
  EXPECT_EQ(full_record().to_json_str(), full_text());
}

TEST(APClientDataIpcWrite, ToJsonFillsTheGivenObject) {
  Tree const root = wlccw::cfg::make_object();
  ASSERT_TRUE(root);
  full_record().to_json(root.get());
  EXPECT_EQ(wlccw::cfg::compact(root.get()), full_text());
}

TEST(APClientDataIpcWrite, NullObjectWritesNothing) {
  APClientData const client = full_record();
  client.to_json(nullptr); // nothing to write into, nothing to fail
  SUCCEED();
}

TEST(APClientDataIpcWrite, WithoutStatisticsNothingAfterLinkQuality) {
  APClientData client = full_record();
  client.statistics.reset();
  EXPECT_EQ(client.to_json_str(), std::string(full_text_head) + "}");
}

TEST(APClientDataIpcWrite, WithoutStatisticsNoAuthenticationMloOrCipherKeys) {
  APClientData client = minimal_record();
  client.eap_method = ClientEapMethod::EAP_TLS;
  client.mac_auth_status = ClientMacAuthStatus::AUTHENTICATED;
  client.wlan_auth_uptime = 5;
  client.mlo = make_mlo();
  client.encryption_cipher = "CCMP";
  std::string const text = client.to_json_str();
  EXPECT_EQ(text, minimal_text);
  EXPECT_EQ(text.find("eap-method"), std::string::npos);
  EXPECT_EQ(text.find("mlo"), std::string::npos);
  EXPECT_EQ(text.find("encryption-cipher"), std::string::npos);
}

TEST(APClientDataIpcWrite, StatisticsAloneWriteAllCountersOfBothDirections) {
  APClientData client = minimal_record();
  client.statistics.emplace();
  EXPECT_EQ(client.to_json_str(),
            R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest",)"
            R"("statistics":{"tx":{"actual-rate":0,"bytes":0,"packets":0},)"
            R"("rx":{"actual-rate":0,"bytes":0,"packets":0}}})");
}

TEST(APClientDataIpcWrite, CountersAreSignedIntegers) {
  APClientData client = minimal_record();
  client.statistics = Statistics{
      make_statistic(-1, std::nullopt, std::nullopt, std::nullopt, "40MHz", 2147483647, -5),
      make_statistic(7, std::nullopt, "OFDM", std::nullopt, std::nullopt, -2147483647 - 1, 0)};
  EXPECT_EQ(client.to_json_str(),
            R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest",)"
            R"("statistics":{"tx":{"bandwidth":"40MHz","actual-rate":-1,"bytes":2147483647,)"
            R"("packets":-5},"rx":{"modulation":"OFDM","actual-rate":7,"bytes":-2147483648,)"
            R"("packets":0}}})");
}

TEST(APClientDataIpcWrite, ReadingsWriteListAndTheWeakestValue) {
  APClientData client = minimal_record();
  client.rssi.add(-60);
  client.rssi.add(-75);
  EXPECT_EQ(client.to_json_str(),
            R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest",)"
            R"("rssi-list":[-60,-75],"rssi":-75})");
}

TEST(APClientDataIpcWrite, ReportedValueWinsWhenThereAreReadings) {
  APClientData client = minimal_record();
  client.snr.add(12);
  client.snr.add(-3); // stored as the floor 0
  client.snr.reported = 40;
  EXPECT_EQ(client.to_json_str(),
            R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest",)"
            R"("snr-list":[12,0],"snr":40})");
}

TEST(APClientDataIpcWrite, ReportedValueWithoutReadingsIsNotWritten) {
  APClientData client = minimal_record();
  client.rssi.reported = -50;
  client.snr.reported = 20;
  EXPECT_EQ(client.to_json_str(), minimal_text);
}

TEST(APClientDataIpcWrite, InvalidIpIsNotWritten) {
  APClientData client = minimal_record();
  client.ip = "not an address";
  ASSERT_FALSE(client.ip.valid);
  EXPECT_EQ(client.to_json_str(), minimal_text);
  client.ip = "0.0.0.0";
  ASSERT_TRUE(client.ip.valid);
  EXPECT_EQ(client.to_json_str(),
            R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest","ip":"0.0.0.0"})");
}

TEST(APClientDataIpcWrite, EveryBandText) {
  APClientData client = minimal_record();
  std::array<std::pair<radio::Band, char const*>, 3> const bands{{
      {radio::Band::BAND_2G, "2G"},
      {radio::Band::BAND_5G, "5G"},
      {radio::Band::BAND_6G, "6G"},
  }};
  for (auto const& [band, text] : bands) {
    client.band = band;
    EXPECT_EQ(client.to_json_str(),
              std::string(R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest",)") +
                  R"("band":")" + text + R"("})");
  }
}

TEST(APClientDataIpcWrite, EnumerationOutsideItsTableIsLeftOut) {
  APClientData client = minimal_record();
  client.wireless_mode = static_cast<ClientWirelessMode>(99);
  client.statistics.emplace();
  client.eap_method = static_cast<ClientEapMethod>(-1);
  client.mac_auth_status = static_cast<ClientMacAuthStatus>(4);
  client.portal_auth_status = static_cast<ClientPortalAuthStatus>(6);
  client.wlan_auth_status = static_cast<ClientWlanAuthStatus>(3);
  client.wlan_auth_method = static_cast<ClientWlanAuthMethod>(8);
  client.auth_algorithm = static_cast<ClientAuthAlgorithm>(8);
  EXPECT_EQ(client.to_json_str(),
            R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest",)"
            R"("statistics":{"tx":{"actual-rate":0,"bytes":0,"packets":0},)"
            R"("rx":{"actual-rate":0,"bytes":0,"packets":0}}})");
}

TEST(APClientDataIpcWrite, ExistingListAndObjectsAreReused) {
  Tree const root = wlccw::cfg::parse(
      R"({"statistics":{"tx":{"bytes":1,"extra":true}},"rssi-list":[1],"mac":"x"})");
  ASSERT_TRUE(root);
  APClientData client = minimal_record();
  client.rssi.add(-60);
  client.statistics.emplace();
  client.statistics->tx.bytes = 5;
  client.to_json(root.get());
  EXPECT_EQ(wlccw::cfg::compact(root.get()),
            R"({"statistics":{"tx":{"bytes":5,"extra":true,"actual-rate":0,"packets":0},)"
            R"("rx":{"actual-rate":0,"bytes":0,"packets":0}},"rssi-list":[1,-60],)"
            R"("mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest","rssi":-60})");
}

TEST(APClientDataIpcWrite, MembersOfTheWrongTypeInTheTargetDoNotStopTheWriter) {
  Tree const root = wlccw::cfg::parse(R"({"rssi-list":"x","statistics":"y"})");
  ASSERT_TRUE(root);
  APClientData client = minimal_record();
  client.rssi.add(-60);
  client.statistics.emplace();
  client.encryption_cipher = "CCMP";
  client.to_json(root.get());
  EXPECT_EQ(wlccw::cfg::compact(root.get()),
            R"({"rssi-list":"x","statistics":"y","mac":"00:11:22:33:44:55","interface":"wlan0",)"
            R"("ssid":"Guest","rssi":-60,"encryption-cipher":"CCMP"})");
}

TEST(APClientDataIpcWrite, WritingIntoAnArrayChangesNothing) {
  Tree const root = wlccw::cfg::make_array();
  ASSERT_TRUE(root);
  full_record().to_json(root.get());
  EXPECT_EQ(wlccw::cfg::compact(root.get()), "[]");
}

// ---------------------------------------------------------------------------------------------
// Reader: whole records and round trips

TEST(APClientDataIpcRead, MinimalText) {
  EXPECT_TRUE(same_record(APClientData::from_json_str(minimal_text), minimal_record()));
}

TEST(APClientDataIpcRead, FullTextGivesTheRecordWithReportedSignals) {
  APClientData expected = full_record();
  expected.rssi.reported = -75;
  expected.snr.reported = 25;
  EXPECT_TRUE(same_record(APClientData::from_json_str(full_text()), expected));
}

TEST(APClientDataIpcRead, FromJsonOfAParsedTree) {
  Tree const root = wlccw::cfg::parse(full_text());
  ASSERT_TRUE(root);
  APClientData expected = full_record();
  expected.rssi.reported = -75;
  expected.snr.reported = 25;
  EXPECT_TRUE(same_record(APClientData::from_json(root.get()), expected));
}

TEST(APClientDataIpcRoundTrip, MinimalRecordIsUnchanged) {
  APClientData const client = minimal_record();
  EXPECT_TRUE(same_record(APClientData::from_json_str(client.to_json_str()), client));
}

TEST(APClientDataIpcRoundTrip, FullRecordGainsOnlyTheReportedSignals) {
  APClientData const client = full_record();
  APClientData const back = APClientData::from_json_str(client.to_json_str());
  APClientData expected = client;
  expected.rssi.reported = client.rssi.get_signal();
  expected.snr.reported = client.snr.get_signal();
  EXPECT_TRUE(same_record(back, expected));
  EXPECT_EQ(back.to_json_str(), client.to_json_str());
}

TEST(APClientDataIpcRoundTrip, ReportedValueWithReadingsSurvives) {
  APClientData client = minimal_record();
  client.rssi.add(-60);
  client.rssi.add(-75);
  client.rssi.reported = -50;
  EXPECT_TRUE(same_record(APClientData::from_json_str(client.to_json_str()), client));
}

TEST(APClientDataIpcRoundTrip, ReadingsComeBackWithTheWeakestAsReported) {
  APClientData client = minimal_record();
  client.rssi.add(-60);
  client.rssi.add(-75);
  APClientData const back = APClientData::from_json_str(client.to_json_str());
  EXPECT_EQ(back.rssi.values, (std::vector<int>{-60, -75}));
  EXPECT_EQ(back.rssi.reported, -75);
  EXPECT_EQ(back.rssi.floor, -127);
  EXPECT_FALSE(back.snr.reported);
  EXPECT_TRUE(back.snr.values.empty());
}

TEST(APClientDataIpcRoundTrip, ReportedValueWithoutReadingsIsLost) {
  APClientData client = minimal_record();
  client.rssi.reported = -50;
  client.snr.reported = 10;
  APClientData const back = APClientData::from_json_str(client.to_json_str());
  EXPECT_FALSE(back.rssi.reported);
  EXPECT_FALSE(back.snr.reported);
  EXPECT_TRUE(same_record(back, minimal_record()));
}

TEST(APClientDataIpcRoundTrip, WithoutStatisticsTheCutOffMembersAreLost) {
  APClientData client = full_record();
  client.statistics.reset();
  APClientData const back = APClientData::from_json_str(client.to_json_str());

  APClientData expected = client;
  expected.rssi.reported = client.rssi.get_signal();
  expected.snr.reported = client.snr.get_signal();
  wlccw::test::drop_members_cut_off_without_statistics(expected);
  EXPECT_TRUE(same_record(back, expected));
}

TEST(APClientDataIpcRoundTrip, EmptyTextsAndZeroesSurvive) {
  APClientData client = minimal_record();
  client.hostname = "";
  client.link_quality = "";
  client.vlan_id = 0;
  client.uptime = 4294967295U;
  client.authorized = false;
  client.statistics.emplace();
  client.encryption_group_cipher = "no-cipher";
  client.portal_auth_uptime = 0;
  EXPECT_TRUE(same_record(APClientData::from_json_str(client.to_json_str()), client));
}

TEST(APClientDataIpcRoundTrip, OneDirectionOfStatisticsComesBackWithAZeroedOther) {
  APClientData client = minimal_record();
  client.statistics.emplace();
  client.statistics->rx.bytes = 99;
  APClientData const back = APClientData::from_json_str(client.to_json_str());
  ASSERT_TRUE(back.statistics);
  EXPECT_EQ(back.statistics->tx, Statistic());
  EXPECT_EQ(back.statistics->rx.bytes, 99);
}

// ---------------------------------------------------------------------------------------------
// Reader: exceptions

TEST(APClientDataIpcRead, NullObjectThrows) {
  expect_throw<wlccw::InvalidJsonPointer>([] { APClientData::from_json(nullptr); },
                                          "JSON pointer is null");
}

TEST(APClientDataIpcRead, UnparsableTextThrowsNullPointer) {
  for (char const* text : {"", "{", "not json", R"({"mac":"00:11:22:33:44:55",})",
                           R"({"mac":"00:11:22:33:44:55"} {})"}) {
    SCOPED_TRACE(text);
    expect_throw<wlccw::InvalidJsonPointer>([text] { APClientData::from_json_str(text); },
                                            "JSON pointer is null");
  }
}

TEST(APClientDataIpcRead, EmptyObjectThrows) {
  expect_throw<wlccw::EmptyJson>([] { APClientData::from_json_str("{}"); }, "JSON data is empty");
  Tree const root = wlccw::cfg::make_object();
  ASSERT_TRUE(root);
  expect_throw<wlccw::EmptyJson>([&root] { APClientData::from_json(root.get()); },
                                 "JSON data is empty");
}

TEST(APClientDataIpcRead, NodesHoldingNoMemberThrowEmpty) {
  for (char const* text : {"[]", "5", R"("text")", "null", "true"}) {
    SCOPED_TRACE(text);
    expect_throw<wlccw::EmptyJson>([text] { APClientData::from_json_str(text); },
                                   "JSON data is empty");
  }
}

TEST(APClientDataIpcRead, BadIdentityThrowsTheConstructorsTexts) {
  std::vector<std::pair<char const*, char const*>> const cases{
      {R"({"interface":"wlan0","ssid":"Guest"})", "parameter 'mac' is not valid"},
      {R"({"mac":"00:11:22:33:44","interface":"wlan0","ssid":"Guest"})",
       "parameter 'mac' is not valid"},
      {R"({"mac":5,"interface":"wlan0","ssid":"Guest"})", "parameter 'mac' is not valid"},
      {R"({"mac":"zz:11:22:33:44:55","interface":"","ssid":""})", "parameter 'mac' is not valid"},
      {R"({"mac":"00:11:22:33:44:55","ssid":"Guest"})", "parameter 'interface' is empty"},
      {R"({"mac":"00:11:22:33:44:55","interface":{},"ssid":"Guest"})",
       "parameter 'interface' is empty"},
      {R"({"mac":"00:11:22:33:44:55","interface":"","ssid":""})", "parameter 'interface' is empty"},
      {R"({"mac":"00:11:22:33:44:55","interface":"wlan0"})", "parameter 'ssid' is empty"},
      {R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":""})", "parameter 'ssid' is empty"},
      {R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":null})",
       "parameter 'ssid' is empty"},
      {R"([{"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"Guest"}])",
       "parameter 'mac' is not valid"},
  };
  for (auto const& [text, what] : cases) {
    SCOPED_TRACE(text);
    expect_throw<std::invalid_argument>([text = text] { APClientData::from_json_str(text); }, what);
  }
}

TEST(APClientDataIpcRead, IdentityTextsAreTakenAsTheyAre) {
  APClientData const client = APClientData::from_json_str(
      R"({"mac":"AABBCCDDEEFF","interface":" wlan0 ","ssid":"Caf&amp;e"})");
  EXPECT_EQ(client.mac, mac_of("aa:bb:cc:dd:ee:ff"));
  EXPECT_EQ(client.interface, " wlan0 ");
  EXPECT_EQ(client.ssid, "Caf&amp;e");
}

// ---------------------------------------------------------------------------------------------
// Reader: every key's fallbacks

TEST(APClientDataIpcRead, Band) {
  EXPECT_EQ(read_with(R"(,"band":"2G")").band, radio::Band::BAND_2G);
  EXPECT_EQ(read_with(R"(,"band":"6G")").band, radio::Band::BAND_6G);
  EXPECT_FALSE(read_with("").band);
  for (char const* bad : {R"("5g")", R"("5")", R"(" 5G")", "5", "{}", "[]", "null", "true"}) {
    SCOPED_TRACE(bad);
    EXPECT_FALSE(read_with(std::string(R"(,"band":)") + bad).band);
  }
}

TEST(APClientDataIpcRead, Ip) {
  APClientData const client = read_with(R"(,"ip":"10.0.0.7")");
  EXPECT_TRUE(client.ip.valid);
  EXPECT_EQ(client.ip.str(), "10.0.0.7");
  EXPECT_FALSE(read_with("").ip.valid);
  for (char const* bad : {R"("10.0.0.256")", R"("host")", "7", "{}", "[]", "null"}) {
    SCOPED_TRACE(bad);
    EXPECT_FALSE(read_with(std::string(R"(,"ip":)") + bad).ip.valid);
  }
}

/// The unsigned 32-bit keys: a number or a decimal text reads; anything else is empty.
TEST(APClientDataIpcRead, UnsignedKeys) {
  using Member = std::optional<std::uint32_t> APClientData::*;
  std::vector<std::pair<char const*, Member>> const keys{
      {"vlan-id", &APClientData::vlan_id},
      {"uptime", &APClientData::uptime},
      {"frequency", &APClientData::frequency},
      {"channel", &APClientData::channel},
  };
  for (auto const& [key, member] : keys) {
    SCOPED_TRACE(key);
    std::string const prefix = std::string(",\"") + key + "\":";
    EXPECT_EQ(read_with(prefix + "42").*member, 42U);
    EXPECT_EQ(read_with(prefix + "4294967295").*member, 4294967295U);
    EXPECT_EQ(read_with(prefix + R"("42")").*member, 42U);
    EXPECT_FALSE(read_with("").*member);
    for (char const* bad :
         {"-1", "4294967296", "1.5", R"("abc")", R"("12abc")", "true", "{}", "[1]", "null"}) {
      SCOPED_TRACE(bad);
      EXPECT_FALSE(read_with(prefix + bad).*member);
    }
  }
}

/// The optional text keys: a string reads as it is; an object, an array or null is empty.
TEST(APClientDataIpcRead, TextKeys) {
  using Member = std::optional<std::string> APClientData::*;
  std::vector<std::pair<char const*, Member>> const keys{
      {"hostname", &APClientData::hostname},
      {"username", &APClientData::username},
      {"domain", &APClientData::domain},
      {"ap-hostname", &APClientData::ap_hostname},
      {"ap-location", &APClientData::ap_location},
      {"link-quality", &APClientData::link_quality},
      {"link-quality-common", &APClientData::link_quality_common},
      {"encryption-cipher", &APClientData::encryption_cipher},
      {"encryption-group-cipher", &APClientData::encryption_group_cipher},
  };
  for (auto const& [key, member] : keys) {
    SCOPED_TRACE(key);
    std::string const prefix = std::string(",\"") + key + "\":";
    EXPECT_EQ(read_with(prefix + R"("a &amp; b ")").*member, "a &amp; b ");
    EXPECT_EQ(read_with(prefix + R"("")").*member, "");
    EXPECT_FALSE(read_with("").*member);
    for (char const* bad : {"{}", "[]", R"({"a":"b"})", "null"}) {
      SCOPED_TRACE(bad);
      EXPECT_FALSE(read_with(prefix + bad).*member);
    }
  }
}

TEST(APClientDataIpcRead, NoCipherIsAnOrdinaryText) {
  APClientData const client =
      read_with(R"(,"encryption-cipher":"no-cipher","encryption-group-cipher":"no-cipher")");
  EXPECT_EQ(client.encryption_cipher, "no-cipher");
  EXPECT_EQ(client.encryption_group_cipher, "no-cipher");
}

TEST(APClientDataIpcRead, SignalLists) {
  APClientData const client =
      read_with(R"(,"rssi-list":[-60,1.5,"a",-200,null,{},[],true,"-70"],"rssi":-61,)"
                R"("snr-list":[5,-3],"snr":"7")");
  EXPECT_EQ(client.rssi.values, (std::vector<int>{-60, -127, -70}));
  EXPECT_EQ(client.rssi.reported, -61);
  EXPECT_EQ(client.rssi.floor, -127);
  EXPECT_EQ(client.snr.values, (std::vector<int>{5, 0}));
  EXPECT_EQ(client.snr.reported, 7);
  EXPECT_EQ(client.snr.floor, 0);
}

TEST(APClientDataIpcRead, SignalFallbacks) {
  APClientData const missing = read_with("");
  EXPECT_TRUE(missing.rssi.values.empty());
  EXPECT_FALSE(missing.rssi.reported);
  EXPECT_TRUE(missing.snr.values.empty());
  EXPECT_FALSE(missing.snr.reported);

  for (char const* list : {R"("-60")", "-60", "{}", R"({"a":-60})", "null"}) {
    SCOPED_TRACE(list);
    APClientData const client =
        read_with(std::string(R"(,"rssi-list":)") + list + R"(,"snr-list":)" + list);
    EXPECT_TRUE(client.rssi.values.empty());
    EXPECT_TRUE(client.snr.values.empty());
  }
  for (char const* value : {"1.5", R"("abc")", "true", "[1]", "{}", "null", "2147483648"}) {
    SCOPED_TRACE(value);
    APClientData const client =
        read_with(std::string(R"(,"rssi":)") + value + R"(,"snr":)" + value);
    EXPECT_FALSE(client.rssi.reported);
    EXPECT_FALSE(client.snr.reported);
  }
  // A value without a list is read as reported all the same.
  APClientData const alone = read_with(R"(,"rssi":-50)");
  EXPECT_TRUE(alone.rssi.values.empty());
  EXPECT_EQ(alone.rssi.reported, -50);
  EXPECT_EQ(alone.rssi.get_signal(), -50);
}

TEST(APClientDataIpcRead, Authorized) {
  EXPECT_EQ(read_with(R"(,"authorized":true)").authorized, true);
  EXPECT_EQ(read_with(R"(,"authorized":false)").authorized, false);
  EXPECT_FALSE(read_with("").authorized);
  for (char const* bad : {R"("true")", R"("yes")", "1", "{}", "null"}) {
    SCOPED_TRACE(bad);
    EXPECT_FALSE(read_with(std::string(R"(,"authorized":)") + bad).authorized);
  }
}

TEST(APClientDataIpcRead, WirelessMode) {
  EXPECT_EQ(read_with(R"(,"wireless-mode":"be")").wireless_mode, ClientWirelessMode::BE);
  EXPECT_EQ(read_with(R"(,"wireless-mode":"bg")").wireless_mode, ClientWirelessMode::BG);
  EXPECT_FALSE(read_with("").wireless_mode);
  for (char const* bad : {R"("BE")", R"("")", R"("802.11ax")", "7", "{}", "null"}) {
    SCOPED_TRACE(bad);
    EXPECT_FALSE(read_with(std::string(R"(,"wireless-mode":)") + bad).wireless_mode);
  }
}

TEST(APClientDataIpcRead, AuthenticationEnumerations) {
  APClientData const client =
      read_with(R"(,"eap-method":"eap_teap","mac-auth-status":"pending",)"
                R"("portal-auth-status":"expired","wlan-auth-status":"unauthenticated",)"
                R"("wlan-auth-method":"owe","auth-algorithm":"fils_public_key")");
  EXPECT_EQ(client.eap_method, ClientEapMethod::EAP_TEAP);
  EXPECT_EQ(client.mac_auth_status, ClientMacAuthStatus::PENDING);
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::EXPIRED);
  EXPECT_EQ(client.wlan_auth_status, ClientWlanAuthStatus::UNAUTHENTICATED);
  EXPECT_EQ(client.wlan_auth_method, ClientWlanAuthMethod::OWE);
  EXPECT_EQ(client.auth_algorithm, ClientAuthAlgorithm::FILS_PUBLIC_KEY);

  // Read in statistics-less texts too: the reader does not depend on the writer's cut-off.
  APClientData const missing = read_with("");
  EXPECT_FALSE(missing.eap_method);
  EXPECT_FALSE(missing.mac_auth_status);
  EXPECT_FALSE(missing.portal_auth_status);
  EXPECT_FALSE(missing.wlan_auth_status);
  EXPECT_FALSE(missing.wlan_auth_method);
  EXPECT_FALSE(missing.auth_algorithm);

  // The AP's NETCONF texts, other case, other types and unknown texts are all unknown here.
  std::vector<std::string> const bad_values{R"("EAP-TEAP")",
                                            R"("authorized")",
                                            R"("not-required")",
                                            R"("WPA2-Enterprise")",
                                            R"("open-system")",
                                            R"("Authenticated")",
                                            R"(" pending")",
                                            R"("")",
                                            "0",
                                            "{}",
                                            "[]",
                                            "null",
                                            "true"};
  for (std::string const& bad : bad_values) {
    SCOPED_TRACE(bad);
    APClientData const client_bad =
        read_with(",\"eap-method\":" + bad + ",\"mac-auth-status\":" + bad +
                  ",\"portal-auth-status\":" + bad + ",\"wlan-auth-status\":" + bad +
                  ",\"wlan-auth-method\":" + bad + ",\"auth-algorithm\":" + bad);
    EXPECT_FALSE(client_bad.eap_method);
    EXPECT_FALSE(client_bad.mac_auth_status);
    EXPECT_FALSE(client_bad.portal_auth_status);
    EXPECT_FALSE(client_bad.wlan_auth_status);
    EXPECT_FALSE(client_bad.wlan_auth_method);
    EXPECT_FALSE(client_bad.auth_algorithm);
  }
}

TEST(APClientDataIpcRead, StatisticsMissingOrWithoutDirections) {
  for (char const* members :
       {"", R"(,"statistics":5)", R"(,"statistics":{})", R"(,"statistics":[])",
        R"(,"statistics":{"up":{}})", R"(,"tx":{"bytes":1},"rx":{"bytes":2})"}) {
    SCOPED_TRACE(members);
    EXPECT_FALSE(read_with(members).statistics);
  }
}

TEST(APClientDataIpcRead, StatisticsOneDirectionMakesTheOtherZeroed) {
  APClientData const client =
      read_with(R"(,"statistics":{"rx":{"rate":"54M","actual-rate":54,"bytes":5,"packets":1}})");
  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx, Statistic());
  EXPECT_EQ(client.statistics->rx,
            make_statistic(54, "54M", std::nullopt, std::nullopt, std::nullopt, 5, 1));

  APClientData const tx_only = read_with(R"(,"statistics":{"tx":{}})");
  ASSERT_TRUE(tx_only.statistics);
  EXPECT_EQ(tx_only.statistics->tx, Statistic());
  EXPECT_EQ(tx_only.statistics->rx, Statistic());
}

TEST(APClientDataIpcRead, StatisticsMembersOfTheWrongType) {
  APClientData const client = read_with(
      R"(,"statistics":{"tx":{"rate":{},"bandwidth":null,"modulation":[],"rate-numeric":"1.5",)"
      R"("actual-rate":"x","bytes":1.5,"packets":true},)"
      R"("rx":{"actual-rate":"300","bytes":2147483648,"packets":-4}})");
  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx,
            make_statistic(0, std::nullopt, std::nullopt, "1.5", std::nullopt, 0, 0));
  EXPECT_EQ(client.statistics->rx,
            make_statistic(300, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 0, -4));
}

TEST(APClientDataIpcRead, StatisticsDirectionThatIsNoObjectIsZeroed) {
  APClientData const client = read_with(R"(,"statistics":{"tx":5})");
  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx, Statistic());
  EXPECT_EQ(client.statistics->rx, Statistic());
}

TEST(APClientDataIpcRead, Mlo) {
  EXPECT_FALSE(read_with("").mlo);
  EXPECT_FALSE(read_with(R"(,"mlo":5)").mlo);
  EXPECT_FALSE(read_with(R"(,"mlo":{"links":[{"mac":"02:00:00:00:00:11","band":"2.4G"}]})").mlo);
  APClientData const client =
      read_with(R"(,"mlo":{"links":[{"mac":"02:00:00:00:00:11","band":"6G","id":3}]})");
  ASSERT_TRUE(client.mlo);
  ASSERT_EQ(client.mlo->links.size(), 1U);
  EXPECT_EQ(client.mlo->links[0].band, radio::Band::BAND_6G);
  EXPECT_EQ(client.mlo->links[0].id, 3);
  EXPECT_FALSE(client.mlo->mld_mac_ap.valid);
}

// ---------------------------------------------------------------------------------------------
// Authentication uptimes

TEST(APClientDataIpcRead, AuthUptimes) {
  std::vector<std::pair<char const*, std::optional<std::uint32_t>>> const cases{
      {"120", 120U},
      {R"("120")", 120U},
      {R"(" 120")", 120U},
      {R"("\t\n 120")", 120U},
      {R"("+7")", 7U},
      {R"("-1")", 4294967295U},
      {"-1", 4294967295U},
      {R"("-2")", 4294967294U},
      {R"("12abc")", 12U},
      {R"("0")", 0U},
      {R"("4294967296")", 0U},
      {R"("4294967301")", 5U},
      {R"("9223372036854775807")", 4294967295U},
      {R"("-9223372036854775808")", 0U},
      {R"("abc")", std::nullopt},
      {R"("")", std::nullopt},
      {R"("   ")", std::nullopt},
      {R"("+")", std::nullopt},
      {R"("+-5")", std::nullopt},
      {R"("- 5")", std::nullopt},
      {R"("99999999999999999999")", std::nullopt},
      {R"("-9223372036854775809")", std::nullopt},
      {"99999999999999999999", std::nullopt},
      {"true", std::nullopt},
      {"{}", std::nullopt},
      {"[120]", std::nullopt},
      {"null", std::nullopt},
  };
  using Member = std::optional<std::uint32_t> APClientData::*;
  std::vector<std::pair<char const*, Member>> const keys{
      {"wlan-auth-uptime", &APClientData::wlan_auth_uptime},
      {"mac-auth-uptime", &APClientData::mac_auth_uptime},
      {"portal-auth-uptime", &APClientData::portal_auth_uptime},
  };
  for (auto const& [key, member] : keys) {
    SCOPED_TRACE(key);
    EXPECT_FALSE(read_with("").*member);
    for (auto const& [value, expected] : cases) {
      SCOPED_TRACE(value);
      EXPECT_EQ(read_with(std::string(",\"") + key + "\":" + value).*member, expected);
    }
  }
}

// ---------------------------------------------------------------------------------------------
// Merge

/// A record of another client with a value different from full_record() in every member.
APClientData other_record() {
  APClientData client(mac_of("00:11:22:33:44:55"), "wlan0", "Guest");
  client.ip = "10.1.1.1";
  client.band = radio::Band::BAND_6G;
  client.vlan_id = 7;
  client.hostname = "phone";
  client.username = "bob";
  client.domain = "home";
  client.ap_hostname = "ap-roof";
  client.ap_location = "Roof";
  client.uptime = 9;
  client.frequency = 2412;
  client.channel = 1;
  client.rssi.floor = -100;
  client.rssi.add(-80);
  client.rssi.reported = -81;
  client.snr.floor = 3;
  client.snr.add(9);
  client.authorized = false;
  client.wireless_mode = ClientWirelessMode::BE;
  client.link_quality = "poor";
  client.link_quality_common = "bad";
  client.statistics.emplace();
  client.statistics->rx.packets = 77;
  Mlo mlo = make_mlo();
  mlo.links.pop_back();
  client.mlo = mlo;
  client.wlan_auth_uptime = 1;
  client.mac_auth_uptime = 2;
  client.portal_auth_uptime = 3;
  client.eap_method = ClientEapMethod::EAP_TLS;
  client.mac_auth_status = ClientMacAuthStatus::PENDING;
  client.portal_auth_status = ClientPortalAuthStatus::EXPIRED;
  client.wlan_auth_status = ClientWlanAuthStatus::PENDING;
  client.wlan_auth_method = ClientWlanAuthMethod::OPEN;
  client.auth_algorithm = ClientAuthAlgorithm::OPEN_SYSTEM;
  client.encryption_cipher = "GCMP";
  client.encryption_group_cipher = "GCMP-256";
  return client;
}

/// Checks that merged holds the kept members of original (identity, frequency, channel, ciphers).
void expect_kept(APClientData const& merged, APClientData const& original) {
  EXPECT_EQ(merged.mac, original.mac);
  EXPECT_EQ(merged.interface, original.interface);
  EXPECT_EQ(merged.ssid, original.ssid);
  EXPECT_EQ(merged.frequency, original.frequency);
  EXPECT_EQ(merged.channel, original.channel);
  EXPECT_EQ(merged.encryption_cipher, original.encryption_cipher);
  EXPECT_EQ(merged.encryption_group_cipher, original.encryption_group_cipher);
}

/// Checks that merged holds every copied member of source.
void expect_copied(APClientData const& merged, APClientData const& source) {
  EXPECT_EQ(merged.ip, source.ip);
  EXPECT_EQ(merged.ip.valid, source.ip.valid);
  EXPECT_EQ(merged.band, source.band);
  EXPECT_EQ(merged.vlan_id, source.vlan_id);
  EXPECT_EQ(merged.hostname, source.hostname);
  EXPECT_EQ(merged.username, source.username);
  EXPECT_EQ(merged.domain, source.domain);
  EXPECT_EQ(merged.ap_hostname, source.ap_hostname);
  EXPECT_EQ(merged.ap_location, source.ap_location);
  EXPECT_EQ(merged.uptime, source.uptime);
  EXPECT_EQ(merged.rssi.values, source.rssi.values);
  EXPECT_EQ(merged.rssi.reported, source.rssi.reported);
  EXPECT_EQ(merged.rssi.floor, source.rssi.floor);
  EXPECT_EQ(merged.snr.values, source.snr.values);
  EXPECT_EQ(merged.snr.reported, source.snr.reported);
  EXPECT_EQ(merged.snr.floor, source.snr.floor);
  EXPECT_EQ(merged.authorized, source.authorized);
  EXPECT_EQ(merged.wireless_mode, source.wireless_mode);
  EXPECT_EQ(merged.link_quality, source.link_quality);
  EXPECT_EQ(merged.link_quality_common, source.link_quality_common);
  EXPECT_EQ(merged.statistics, source.statistics);
  EXPECT_EQ(merged.wlan_auth_uptime, source.wlan_auth_uptime);
  EXPECT_EQ(merged.mac_auth_uptime, source.mac_auth_uptime);
  EXPECT_EQ(merged.portal_auth_uptime, source.portal_auth_uptime);
  EXPECT_EQ(merged.eap_method, source.eap_method);
  EXPECT_EQ(merged.mac_auth_status, source.mac_auth_status);
  EXPECT_EQ(merged.portal_auth_status, source.portal_auth_status);
  EXPECT_EQ(merged.wlan_auth_status, source.wlan_auth_status);
  EXPECT_EQ(merged.wlan_auth_method, source.wlan_auth_method);
  EXPECT_EQ(merged.auth_algorithm, source.auth_algorithm);
  EXPECT_TRUE(merged.mlo == source.mlo);
}

TEST(APClientDataFill, TakesEveryChangeableMemberOfTheNewerRecord) {
  APClientData const original = full_record();
  APClientData const newer = other_record();
  APClientData merged = original;
  merged.fill_optional_data(newer);
  expect_copied(merged, newer);
  expect_kept(merged, original);
  // The kept members really differ, so keeping them is visible.
  EXPECT_NE(newer.mac, original.mac);
  EXPECT_NE(newer.channel, original.channel);
  EXPECT_NE(newer.frequency, original.frequency);
  EXPECT_NE(newer.encryption_cipher, original.encryption_cipher);
  EXPECT_NE(newer.encryption_group_cipher, original.encryption_group_cipher);
}

TEST(APClientDataFill, EmptyMembersOfTheNewerRecordEmptyThisRecord) {
  APClientData const original = full_record();
  APClientData const newer(mac_of("00:11:22:33:44:55"), "wlan0", "Guest");
  APClientData merged = original;
  merged.fill_optional_data(newer);
  expect_copied(merged, newer);
  expect_kept(merged, original);
  EXPECT_FALSE(merged.ip.valid);
  EXPECT_FALSE(merged.hostname);
  EXPECT_FALSE(merged.statistics);
  EXPECT_FALSE(merged.mlo);
  EXPECT_TRUE(merged.rssi.values.empty());
  EXPECT_EQ(merged.rssi.floor, -127);
  // Frequency, channel and ciphers stay even when the newer record has none.
  EXPECT_EQ(merged.channel, 36U);
  EXPECT_EQ(merged.frequency, 5180U);
  EXPECT_EQ(merged.encryption_cipher, "CCMP");
  EXPECT_EQ(merged.encryption_group_cipher, "TKIP");
}

TEST(APClientDataFill, EmptyHostnameEmptiesAndChannelIsKept) {
  APClientData client = minimal_record();
  client.hostname = "laptop";
  client.channel = 36;
  APClientData newer = minimal_record();
  newer.channel = 40;
  client.fill_optional_data(newer);
  EXPECT_FALSE(client.hostname);
  EXPECT_EQ(client.channel, 36U);
}

TEST(APClientDataFill, EachMemberAlone) {
  // One member set in the newer record at a time: only that member changes in an empty record.
  using Setter = std::function<void(APClientData&)>;
  std::vector<std::pair<char const*, Setter>> const setters{
      {"ip", [](APClientData& c) { c.ip = "10.0.0.1"; }},
      {"band", [](APClientData& c) { c.band = radio::Band::BAND_2G; }},
      {"vlan_id", [](APClientData& c) { c.vlan_id = 3; }},
      {"hostname", [](APClientData& c) { c.hostname = "h"; }},
      {"username", [](APClientData& c) { c.username = "u"; }},
      {"domain", [](APClientData& c) { c.domain = "d"; }},
      {"ap_hostname", [](APClientData& c) { c.ap_hostname = "a"; }},
      {"ap_location", [](APClientData& c) { c.ap_location = "l"; }},
      {"uptime", [](APClientData& c) { c.uptime = 1; }},
      {"rssi.values", [](APClientData& c) { c.rssi.add(-1); }},
      {"rssi.reported", [](APClientData& c) { c.rssi.reported = -2; }},
      {"rssi.floor", [](APClientData& c) { c.rssi.floor = -90; }},
      {"snr.values", [](APClientData& c) { c.snr.add(1); }},
      {"snr.reported", [](APClientData& c) { c.snr.reported = 2; }},
      {"snr.floor", [](APClientData& c) { c.snr.floor = 5; }},
      {"authorized", [](APClientData& c) { c.authorized = true; }},
      {"wireless_mode", [](APClientData& c) { c.wireless_mode = ClientWirelessMode::N; }},
      {"link_quality", [](APClientData& c) { c.link_quality = "q"; }},
      {"link_quality_common", [](APClientData& c) { c.link_quality_common = "c"; }},
      {"statistics", [](APClientData& c) { c.statistics.emplace(); }},
      {"wlan_auth_uptime", [](APClientData& c) { c.wlan_auth_uptime = 1; }},
      {"mac_auth_uptime", [](APClientData& c) { c.mac_auth_uptime = 1; }},
      {"portal_auth_uptime", [](APClientData& c) { c.portal_auth_uptime = 1; }},
      {"eap_method", [](APClientData& c) { c.eap_method = ClientEapMethod::EAP_MD5; }},
      {"mac_auth_status",
       [](APClientData& c) { c.mac_auth_status = ClientMacAuthStatus::AUTHENTICATED; }},
      {"portal_auth_status",
       [](APClientData& c) { c.portal_auth_status = ClientPortalAuthStatus::PENDING; }},
      {"wlan_auth_status",
       [](APClientData& c) { c.wlan_auth_status = ClientWlanAuthStatus::AUTHENTICATED; }},
      {"wlan_auth_method", [](APClientData& c) { c.wlan_auth_method = ClientWlanAuthMethod::WPA; }},
      {"auth_algorithm",
       [](APClientData& c) { c.auth_algorithm = ClientAuthAlgorithm::SHARED_KEY; }},
      {"mlo", [](APClientData& c) { c.mlo = make_mlo(); }},
  };
  for (auto const& [name, set] : setters) {
    SCOPED_TRACE(name);
    APClientData newer = minimal_record();
    set(newer);
    APClientData merged = minimal_record();
    ASSERT_FALSE(merged == newer); // each setter changes something == sees
    merged.fill_optional_data(newer);
    expect_copied(merged, newer);
    EXPECT_TRUE(merged == newer);
  }
}

TEST(APClientDataFill, KeptMembersAlone) {
  using Setter = std::function<void(APClientData&)>;
  std::vector<std::pair<char const*, Setter>> const setters{
      {"frequency", [](APClientData& c) { c.frequency = 5500; }},
      {"channel", [](APClientData& c) { c.channel = 100; }},
      {"encryption_cipher", [](APClientData& c) { c.encryption_cipher = "CCMP-256"; }},
      {"encryption_group_cipher", [](APClientData& c) { c.encryption_group_cipher = "BIP"; }},
  };
  for (auto const& [name, set] : setters) {
    SCOPED_TRACE(name);
    APClientData newer = minimal_record();
    set(newer);
    APClientData merged = minimal_record();
    merged.fill_optional_data(newer);
    expect_kept(merged, minimal_record());
    // And the other way round: this record's value survives a newer record without it.
    APClientData holder = minimal_record();
    set(holder);
    APClientData const before = holder;
    holder.fill_optional_data(minimal_record());
    expect_kept(holder, before);
  }
}

TEST(APClientDataFill, IdentityIsKept) {
  APClientData client = minimal_record();
  APClientData const newer(mac_of("66:77:88:99:aa:bb"), "wlan9", "Other");
  client.fill_optional_data(newer);
  EXPECT_EQ(client.mac, mac_of("00:11:22:33:44:55"));
  EXPECT_EQ(client.interface, "wlan0");
  EXPECT_EQ(client.ssid, "Guest");
}

TEST(APClientDataFill, FromItself) {
  APClientData client = full_record();
  APClientData const before = client;
  client.fill_optional_data(client);
  EXPECT_TRUE(same_record(client, before));
}

// ---------------------------------------------------------------------------------------------
// Authentication summary

/// The command-line names of the WLAN methods, by value.
constexpr std::array<char const*, 8> method_names{
    "Open", "WPA", "WPA2", "WPA3", "WPA-Enterprise", "WPA2-Enterprise", "WPA3-Enterprise", "OWE"};

/// What follows the method of a WLAN-authenticated client, by MAC state (rows: authenticated,
/// unauthenticated, pending, not_required) and portal state (columns: authenticated,
/// reauthenticate, unauthenticated, pending, expired, not_required); null shows nothing.
constexpr std::array<std::array<char const*, 6>, 4> suffix_grid{{
    {"+MAB+Portal/Authenticated-by-MAB", "+MAB+Portal/Authenticated-by-portal",
     "+MAB+Portal/Pending-portal", "+MAB+Portal/Pending-portal", "+MAB+Portal/Pending-portal",
     "+MAB/Authenticated-by-MAB"},
    {"+MAB+Portal/Authenticated-by-portal", "+MAB+Portal/Authenticated-by-portal",
     "+MAB+Portal/Pending-portal", "+MAB+Portal/Pending-portal", "+MAB+Portal/Pending-portal",
     nullptr},
    {nullptr, nullptr, "+MAB+Portal/Pending-MAB", "+MAB+Portal/Pending-MAB", nullptr,
     "+MAB/Pending-MAB"},
    {"+Portal/Authenticated-by-portal", nullptr, "+Portal/Pending-portal", "+Portal/Pending-portal",
     nullptr, "/Authenticated"},
}};

/// Every value of an enumeration with count values, and the empty optional first.
template <typename E> std::vector<std::optional<E>> all_values(int count) {
  std::vector<std::optional<E>> values{std::nullopt};
  for (int i = 0; i < count; ++i) {
    values.emplace_back(static_cast<E>(i));
  }
  return values;
}

std::optional<std::string> expected_description(std::optional<ClientWlanAuthStatus> wlan,
                                                std::optional<ClientMacAuthStatus> mac,
                                                std::optional<ClientPortalAuthStatus> portal,
                                                std::optional<ClientWlanAuthMethod> method) {
  std::string const name = method ? method_names.at(static_cast<std::size_t>(*method)) : "";
  if (wlan == ClientWlanAuthStatus::PENDING) {
    return name + "/Pending";
  }
  if (wlan != ClientWlanAuthStatus::AUTHENTICATED || !mac || !portal) {
    return std::nullopt;
  }
  char const* const suffix =
      suffix_grid.at(static_cast<std::size_t>(*mac)).at(static_cast<std::size_t>(*portal));
  if (suffix == nullptr) {
    return std::nullopt;
  }
  return name + suffix;
}

TEST(APClientDataAuthDescription, EveryCombination) {
  int checked = 0;
  for (auto const wlan : all_values<ClientWlanAuthStatus>(3)) {
    for (auto const mac : all_values<ClientMacAuthStatus>(4)) {
      for (auto const portal : all_values<ClientPortalAuthStatus>(6)) {
        for (auto const method : all_values<ClientWlanAuthMethod>(8)) {
          APClientData client = minimal_record();
          client.wlan_auth_status = wlan;
          client.mac_auth_status = mac;
          client.portal_auth_status = portal;
          client.wlan_auth_method = method;
          EXPECT_EQ(client.get_auth_description(), expected_description(wlan, mac, portal, method))
              << "wlan " << (wlan ? static_cast<int>(*wlan) : -1) << " mac "
              << (mac ? static_cast<int>(*mac) : -1) << " portal "
              << (portal ? static_cast<int>(*portal) : -1) << " method "
              << (method ? static_cast<int>(*method) : -1);
          ++checked;
        }
      }
    }
  }
  EXPECT_EQ(checked, 4 * 5 * 7 * 9);
}

TEST(APClientDataAuthDescription, EnterpriseWithNothingElseRequired) {
  APClientData client = minimal_record();
  client.wlan_auth_status = ClientWlanAuthStatus::AUTHENTICATED;
  client.wlan_auth_method = ClientWlanAuthMethod::WPA2_ENTERPRISE;
  client.mac_auth_status = ClientMacAuthStatus::NOT_REQUIRED;
  client.portal_auth_status = ClientPortalAuthStatus::NOT_REQUIRED;
  EXPECT_EQ(client.get_auth_description(), "WPA2-Enterprise/Authenticated");
}

TEST(APClientDataAuthDescription, IrregularCells) {
  APClientData client = minimal_record();
  client.wlan_auth_status = ClientWlanAuthStatus::AUTHENTICATED;
  client.wlan_auth_method = ClientWlanAuthMethod::OPEN;
  client.mac_auth_status = ClientMacAuthStatus::UNAUTHENTICATED;
  client.portal_auth_status = ClientPortalAuthStatus::AUTHENTICATED;
  EXPECT_EQ(client.get_auth_description(), "Open+MAB+Portal/Authenticated-by-portal");
  client.mac_auth_status = ClientMacAuthStatus::PENDING;
  client.portal_auth_status = ClientPortalAuthStatus::EXPIRED;
  EXPECT_FALSE(client.get_auth_description());
  client.portal_auth_status = ClientPortalAuthStatus::PENDING;
  EXPECT_EQ(client.get_auth_description(), "Open+MAB+Portal/Pending-MAB");
}

TEST(APClientDataAuthDescription, PendingWithoutMethodIsTheBareSuffix) {
  APClientData client = minimal_record();
  client.wlan_auth_status = ClientWlanAuthStatus::PENDING;
  EXPECT_EQ(client.get_auth_description(), "/Pending");
}

TEST(APClientDataAuthDescription, StatesOutsideTheirTablesShowNothing) {
  APClientData client = minimal_record();
  client.wlan_auth_method = ClientWlanAuthMethod::WPA3;
  client.mac_auth_status = ClientMacAuthStatus::NOT_REQUIRED;
  client.portal_auth_status = ClientPortalAuthStatus::NOT_REQUIRED;
  client.wlan_auth_status = static_cast<ClientWlanAuthStatus>(3);
  EXPECT_FALSE(client.get_auth_description());
  client.wlan_auth_status = ClientWlanAuthStatus::AUTHENTICATED;
  client.mac_auth_status = static_cast<ClientMacAuthStatus>(4);
  EXPECT_FALSE(client.get_auth_description());
  client.mac_auth_status = ClientMacAuthStatus::NOT_REQUIRED;
  client.portal_auth_status = static_cast<ClientPortalAuthStatus>(-1);
  EXPECT_FALSE(client.get_auth_description());
  client.portal_auth_status = ClientPortalAuthStatus::NOT_REQUIRED;
  client.wlan_auth_method = static_cast<ClientWlanAuthMethod>(8);
  EXPECT_EQ(client.get_auth_description(), "/Authenticated");
}

} // namespace
