#include <wlccw/ipc/Vap.hpp>

#include <wlccw/cfg/owned.hpp>

#include "support/samples.hpp"

#include <boost/json.hpp>
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Json = boost::json::object;

/// An enabled VAP as an AP reports it, every key present.
Json netconf_vap() {
  return Json{
      {"rfid", 1},         {"wid", 2},       {"name", "wlan1-vap2"},         {"radio", "wifi1"},
      {"enabled", true},   {"ssid", "Corp"}, {"bssid", "a4:5d:36:10:20:42"}, {"auth-type", "WPA2"},
      {"client-count", 4}, {"retry-rate", 9}};
}

constexpr std::string_view netconf_vap_ipc =
    R"({"rfid":1,"wid":2,"vlanid":0,"interface":"wlan1-vap2","radio":"wifi1","band":"2.4",)"
    R"("client-count":4,"enabled":true,"ssid":"Corp","bssid":"a4:5d:36:10:20:42",)"
    R"("auth-type":"WPA2","retry-rate":9})";

Json with(Json object, std::string_view key, boost::json::value value) {
  object[key] = std::move(value);
  return object;
}

Json without(Json object, std::string_view key) {
  object.erase(key);
  return object;
}

/// from_netconf_json of a JSON text.
std::optional<Vap> from_netconf(std::string const& text) {
  wlccw::cfg::Tree const tree = wlccw::test::parse_json(text);
  if (!tree) {
    return std::nullopt;
  }
  return Vap::from_netconf_json(*tree);
}

std::optional<Vap> from_netconf(Json const& object) {
  return from_netconf(boost::json::serialize(object));
}

/// from_json of a JSON text.
std::optional<Vap> from_ipc(std::string const& text) {
  wlccw::cfg::Tree const tree = wlccw::test::parse_json(text);
  if (!tree) {
    return std::nullopt;
  }
  return Vap::from_json(*tree);
}

std::optional<Vap> from_ipc(std::string_view text) {
  return from_ipc(std::string(text));
}

/// The compact IPC text that to_json writes into a new object.
std::string ipc_text(Vap const& vap) {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  EXPECT_TRUE(root);
  vap.to_json(*root);
  return wlccw::cfg::compact(root.get());
}

/// A populated enabled VAP built field by field.
Vap enabled_vap() {
  Vap vap;
  vap.rfid = 2;
  vap.wid = 5;
  vap.vlanid = 210;
  vap.interface = "wlan2-vap5";
  vap.radio = "wifi2";
  vap.band = ApProfileRadioBand::BAND_6_GHZ;
  vap.client_count = 17;
  vap.enabled = true;
  vap.ssid = "Corp-6E";
  vap.bssid = MacAddr::from_str("A4:5D:36:10:20:55");
  vap.auth_type = SecurityMode::WPA3_1X;
  vap.retry_rate = 11;
  return vap;
}

constexpr std::string_view enabled_vap_ipc =
    R"({"rfid":2,"wid":5,"vlanid":210,"interface":"wlan2-vap5","radio":"wifi2","band":"6",)"
    R"("client-count":17,"enabled":true,"ssid":"Corp-6E","bssid":"a4:5d:36:10:20:55",)"
    R"("auth-type":"WPA3_1X","retry-rate":11})";

/// The IPC texts of the VAPs of tests/data/vaps/netconf-vaps.json, in file order; empty for the
/// VAPs that must be rejected.
std::vector<std::optional<std::string>> const& sample_ipc_texts() {
  static std::vector<std::optional<std::string>> const texts{
      R"({"rfid":0,"wid":0,"vlanid":0,"interface":"wlan0-vap0","radio":"wifi0","band":"2.4",)"
      R"("client-count":14,"enabled":true,"ssid":"Corp-WiFi","bssid":"a4:5d:36:10:20:30",)"
      R"("auth-type":"WPA2_1X","retry-rate":7})",
      R"({"rfid":0,"wid":1,"vlanid":0,"interface":"wlan0-vap1","radio":"wifi0","band":"2.4",)"
      "\"client-count\":3,\"enabled\":true,\"ssid\":\"Caf\xc3\xa9 & Guests\","
      R"("bssid":"a4:5d:36:10:20:31","auth-type":"off"})",
      R"({"rfid":0,"wid":2,"vlanid":0,"interface":"wlan0-vap2","radio":"wifi0","band":"2.4",)"
      R"("client-count":0,"enabled":false})",
      std::nullopt, // a BSSID of 16 characters
      R"({"rfid":1,"wid":0,"vlanid":0,"interface":"wlan1-vap0","radio":"wifi1","band":"2.4",)"
      R"("client-count":22,"enabled":true,"ssid":"Corp-WiFi","bssid":"a4:5d:36:10:20:40",)"
      R"("auth-type":"WPA2_WPA3_1X","retry-rate":12})",
      R"({"rfid":1,"wid":1,"vlanid":0,"interface":"wlan1-vap1","radio":"wifi1","band":"2.4",)"
      R"("client-count":0,"enabled":true,"ssid":"IoT","bssid":"a4:5d:36:10:20:41",)"
      R"("auth-type":"WPA2","retry-rate":0})",
      std::nullopt, // authentication type WEP
      R"({"rfid":1,"wid":3,"vlanid":0,"interface":"wlan1-vap3","radio":"wifi1","band":"2.4",)"
      R"("client-count":0,"enabled":false})",
      R"({"rfid":2,"wid":0,"vlanid":0,"interface":"wlan2-vap0","radio":"wifi2","band":"2.4",)"
      R"("client-count":9,"enabled":true,"ssid":"Corp-6E","bssid":"a4:5d:36:10:20:50",)"
      R"("auth-type":"WPA3_1X","retry-rate":4})",
      R"({"rfid":2,"wid":1,"vlanid":0,"interface":"wlan2-vap1","radio":"wifi2","band":"2.4",)"
      R"("client-count":1,"enabled":true,"ssid":"Open OWE","bssid":"a4:5d:36:10:20:51",)"
      R"("auth-type":"OWE"})",
      std::nullopt, // no "enabled"
      std::nullopt, // client count -1
  };
  return texts;
}

/// The VAP objects of the sample file, as an independent parser reads them.
boost::json::array sample_objects() {
  return boost::json::parse(wlccw::test::read_sample("vaps/netconf-vaps.json")).as_array();
}

} // namespace

// ---- The type -----------------------------------------------------------------------------------

TEST(Vap, IsAPolymorphicValueWithTheStatedFieldTypes) {
  static_assert(std::is_polymorphic_v<Vap>);
  static_assert(std::has_virtual_destructor_v<Vap>);
  static_assert(std::is_copy_constructible_v<Vap>);
  static_assert(std::is_nothrow_move_constructible_v<Vap>);
  static_assert(std::is_same_v<decltype(Vap::rfid), std::int32_t>);
  static_assert(std::is_same_v<decltype(Vap::wid), std::int32_t>);
  static_assert(std::is_same_v<decltype(Vap::vlanid), std::uint32_t>);
  static_assert(std::is_same_v<decltype(Vap::interface), std::string>);
  static_assert(std::is_same_v<decltype(Vap::radio), std::string>);
  static_assert(std::is_same_v<decltype(Vap::band), ApProfileRadioBand>);
  static_assert(std::is_same_v<decltype(Vap::client_count), std::int32_t>);
  static_assert(std::is_same_v<decltype(Vap::enabled), bool>);
  static_assert(std::is_same_v<decltype(Vap::ssid), std::optional<std::string>>);
  static_assert(std::is_same_v<decltype(Vap::bssid), std::optional<MacAddr>>);
  static_assert(std::is_same_v<decltype(Vap::auth_type), std::optional<SecurityMode>>);
  static_assert(std::is_same_v<decltype(Vap::retry_rate), std::optional<std::uint8_t>>);

  Vap const vap;
  EXPECT_EQ(vap.rfid, 0);
  EXPECT_EQ(vap.wid, 0);
  EXPECT_EQ(vap.vlanid, 0U);
  EXPECT_EQ(vap.band, ApProfileRadioBand::BAND_2_4_GHZ);
  EXPECT_EQ(vap.client_count, 0);
  EXPECT_FALSE(vap.enabled);
  EXPECT_FALSE(vap.ssid || vap.bssid || vap.auth_type || vap.retry_rate);
}

// ---- Band text ----------------------------------------------------------------------------------

TEST(Vap, BandBridgeSerializeWritesTheBandTable) {
  Vap vap;
  vap.band = ApProfileRadioBand::BAND_2_4_GHZ;
  EXPECT_EQ(vap.band_bridge_serialize(), "2.4");
  vap.band = ApProfileRadioBand::BAND_5_GHZ;
  EXPECT_EQ(vap.band_bridge_serialize(), "5");
  vap.band = ApProfileRadioBand::BAND_6_GHZ;
  EXPECT_EQ(vap.band_bridge_serialize(), "6");
}

TEST(Vap, BandBridgeSerializeWritesNothingOutsideTheTable) {
  Vap vap;
  for (int const value : {3, 4, -1, 1000}) {
    vap.band = static_cast<ApProfileRadioBand>(value);
    EXPECT_EQ(vap.band_bridge_serialize(), "") << value;
  }
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(Vap, EnabledVapWritesItsExactText) {
  EXPECT_EQ(ipc_text(enabled_vap()), enabled_vap_ipc);
}

TEST(Vap, DefaultVapWritesTheKeysUpToEnabled) {
  EXPECT_EQ(ipc_text(Vap{}), R"({"rfid":0,"wid":0,"vlanid":0,"interface":"","radio":"",)"
                             R"("band":"2.4","client-count":0,"enabled":false})");
}

TEST(Vap, DisabledVapStopsAtEnabledWhateverItHolds) {
  Vap vap = enabled_vap();
  vap.enabled = false;
  EXPECT_EQ(ipc_text(vap), R"({"rfid":2,"wid":5,"vlanid":210,"interface":"wlan2-vap5",)"
                           R"("radio":"wifi2","band":"6","client-count":17,"enabled":false})");
}

TEST(Vap, EnabledVapWithEmptyOptionalsWritesDefaultBssidAndAuthType) {
  Vap vap = enabled_vap();
  vap.ssid.reset();
  vap.bssid.reset();
  vap.auth_type.reset();
  vap.retry_rate.reset();
  EXPECT_EQ(ipc_text(vap), R"({"rfid":2,"wid":5,"vlanid":210,"interface":"wlan2-vap5",)"
                           R"("radio":"wifi2","band":"6","client-count":17,"enabled":true,)"
                           R"("bssid":"00:00:00:00:00:00","auth-type":"off"})");
}

TEST(Vap, WritesExtremeNumbersAndAnUnknownBand) {
  Vap vap = enabled_vap();
  vap.rfid = std::numeric_limits<std::int32_t>::min();
  vap.wid = -1;
  vap.vlanid = std::numeric_limits<std::uint32_t>::max();
  vap.client_count = -5;
  vap.band = ApProfileRadioBand::UNKNOWN;
  vap.retry_rate = 255;
  vap.auth_type = static_cast<SecurityMode>(40);
  EXPECT_EQ(ipc_text(vap),
            R"({"rfid":-2147483648,"wid":-1,"vlanid":4294967295,"interface":"wlan2-vap5",)"
            R"("radio":"wifi2","band":"","client-count":-5,"enabled":true,"ssid":"Corp-6E",)"
            R"("bssid":"a4:5d:36:10:20:55","auth-type":"UNKNOWN","retry-rate":255})");
}

TEST(Vap, InvalidBssidIsWrittenByItsOctets) {
  Vap vap = enabled_vap();
  MacAddr bssid;
  bssid.bytes = {0xde, 0xad, 0xbe, 0xef, 0x00, 0x01};
  vap.bssid = bssid;
  std::string const text = ipc_text(vap);
  EXPECT_NE(text.find(R"("bssid":"de:ad:be:ef:00:01")"), std::string::npos) << text;
}

TEST(Vap, ToJsonFillsTheGivenObjectAfterItsOwnKeys) {
  wlccw::cfg::Tree const root = wlccw::test::parse_json(R"({"kept":1})");
  ASSERT_TRUE(root);
  Vap vap;
  vap.to_json(*root);
  EXPECT_EQ(wlccw::cfg::compact(root.get()),
            R"({"kept":1,"rfid":0,"wid":0,"vlanid":0,"interface":"","radio":"","band":"2.4",)"
            R"("client-count":0,"enabled":false})");
}

// ---- Reading IPC --------------------------------------------------------------------------------

TEST(Vap, IpcTextReadsBackToTheSameVapAndText) {
  Vap const vap = enabled_vap();
  std::optional<Vap> const read = from_ipc(enabled_vap_ipc);
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, vap);
  EXPECT_EQ(ipc_text(*read), enabled_vap_ipc);

  Vap disabled = vap;
  disabled.enabled = false;
  std::optional<Vap> const read_disabled = from_ipc(ipc_text(disabled));
  ASSERT_TRUE(read_disabled);
  // What a disabled VAP does not write is not read back.
  Vap expected = disabled;
  expected.ssid.reset();
  expected.bssid.reset();
  expected.auth_type.reset();
  expected.retry_rate.reset();
  EXPECT_EQ(*read_disabled, expected);
  EXPECT_EQ(ipc_text(*read_disabled), ipc_text(disabled));
}

TEST(Vap, IpcBandTextsReadByTheTable) {
  for (auto const& [text, band] : std::vector<std::pair<std::string, ApProfileRadioBand>>{
           {"2.4", ApProfileRadioBand::BAND_2_4_GHZ},
           {"5", ApProfileRadioBand::BAND_5_GHZ},
           {"6", ApProfileRadioBand::BAND_6_GHZ},
           {"2.4GHz", ApProfileRadioBand::UNKNOWN},
           {"2.4 ", ApProfileRadioBand::UNKNOWN},
           {"2g", ApProfileRadioBand::UNKNOWN},
           {"", ApProfileRadioBand::UNKNOWN},
           {"5.0", ApProfileRadioBand::UNKNOWN}}) {
    std::optional<Vap> const read = from_ipc(R"({"band":")" + text + R"("})");
    ASSERT_TRUE(read) << text;
    EXPECT_EQ(read->band, band) << text;
  }
  std::optional<Vap> const missing = from_ipc(std::string("{}"));
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->band, ApProfileRadioBand::UNKNOWN);
}

TEST(Vap, IpcBand2Point4SurvivesAndAnUnknownTextIsWrittenEmpty) {
  std::string const text = R"({"rfid":0,"wid":0,"vlanid":0,"interface":"i","radio":"r",)"
                           R"("band":"2.4","client-count":0,"enabled":false})";
  std::optional<Vap> const read = from_ipc(text);
  ASSERT_TRUE(read);
  EXPECT_EQ(ipc_text(*read), text);

  std::optional<Vap> const ghz = from_ipc(std::string(R"({"band":"2.4GHz"})"));
  ASSERT_TRUE(ghz);
  EXPECT_EQ(ghz->band, ApProfileRadioBand::UNKNOWN);
  EXPECT_EQ(ipc_text(*ghz), R"({"rfid":0,"wid":0,"vlanid":0,"interface":"","radio":"",)"
                            R"("band":"","client-count":0,"enabled":false})");
}

TEST(Vap, IpcNegativeClientCountIsAccepted) {
  Vap vap = enabled_vap();
  vap.client_count = -1;
  std::optional<Vap> const read = from_ipc(ipc_text(vap));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->client_count, -1);
  EXPECT_EQ(*read, vap);
}

TEST(Vap, IpcSsidIsTakenAsItStands) {
  Vap vap = enabled_vap();
  vap.ssid = "Corp&#x2d;WiFi\t";
  std::optional<Vap> const read = from_ipc(ipc_text(vap));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->ssid, "Corp&#x2d;WiFi\t");
}

TEST(Vap, IpcUnknownOrMissingAuthTypeRejectsAnEnabledVap) {
  Json const ipc = boost::json::parse(enabled_vap_ipc).as_object();
  for (char const* auth : {"UNKNOWN", "wpa2", "WEP", "", "WPA2 ", "OFF"}) {
    EXPECT_FALSE(from_ipc(boost::json::serialize(with(ipc, "auth-type", auth)))) << auth;
  }
  EXPECT_FALSE(from_ipc(boost::json::serialize(without(ipc, "auth-type"))));
  EXPECT_FALSE(from_ipc(boost::json::serialize(with(ipc, "auth-type", 3))));
  // A disabled VAP's authentication type is not read, so it cannot reject it.
  Json disabled = with(ipc, "enabled", false);
  disabled["auth-type"] = "WEP";
  std::optional<Vap> const read = from_ipc(boost::json::serialize(disabled));
  ASSERT_TRUE(read);
  EXPECT_FALSE(read->auth_type);
}

TEST(Vap, IpcReadsEveryKnownAuthType) {
  Json const ipc = boost::json::parse(enabled_vap_ipc).as_object();
  for (int i = 0; i < static_cast<int>(SecurityMode::UNKNOWN); ++i) {
    auto const mode = static_cast<SecurityMode>(i);
    std::optional<Vap> const read =
        from_ipc(boost::json::serialize(with(ipc, "auth-type", SecurityModeToStrX(mode))));
    ASSERT_TRUE(read) << i;
    EXPECT_EQ(read->auth_type, mode);
  }
}

TEST(Vap, IpcBssidIsStoredWhateverItsValidity) {
  Json const ipc = boost::json::parse(enabled_vap_ipc).as_object();
  std::optional<Vap> const bad = from_ipc(boost::json::serialize(with(ipc, "bssid", "garbage")));
  ASSERT_TRUE(bad);
  ASSERT_TRUE(bad->bssid);
  EXPECT_FALSE(bad->bssid->valid);
  EXPECT_EQ(*bad->bssid, MacAddr{});

  std::optional<Vap> const missing = from_ipc(boost::json::serialize(without(ipc, "bssid")));
  ASSERT_TRUE(missing);
  ASSERT_TRUE(missing->bssid);
  EXPECT_FALSE(missing->bssid->valid);

  std::optional<Vap> const bare =
      from_ipc(boost::json::serialize(with(ipc, "bssid", "A45D36102055")));
  ASSERT_TRUE(bare);
  ASSERT_TRUE(bare->bssid);
  EXPECT_TRUE(bare->bssid->valid);
  EXPECT_EQ(bare->bssid->str(), "a4:5d:36:10:20:55");
}

TEST(Vap, IpcOptionalKeysAbsentStayEmpty) {
  Json const ipc = boost::json::parse(enabled_vap_ipc).as_object();
  std::optional<Vap> const read =
      from_ipc(boost::json::serialize(without(without(ipc, "ssid"), "retry-rate")));
  ASSERT_TRUE(read);
  EXPECT_FALSE(read->ssid);
  EXPECT_FALSE(read->retry_rate);
  EXPECT_EQ(ipc_text(*read),
            R"({"rfid":2,"wid":5,"vlanid":210,"interface":"wlan2-vap5","radio":"wifi2","band":"6",)"
            R"("client-count":17,"enabled":true,"bssid":"a4:5d:36:10:20:55",)"
            R"("auth-type":"WPA3_1X"})");
}

TEST(Vap, IpcRootThatIsNoObjectReadsAsADefaultDisabledVap) {
  for (char const* text : {"[]", "[1,2]", "5", "\"x\"", "null", "true", "{}"}) {
    std::optional<Vap> read;
    EXPECT_NO_THROW(read = from_ipc(std::string(text))) << text;
    ASSERT_TRUE(read) << text;
    Vap expected;
    expected.band = ApProfileRadioBand::UNKNOWN; // no band text
    EXPECT_EQ(*read, expected) << text;
  }
}

TEST(Vap, IpcKeysOfWrongJsonTypesReadAsMissingOrAsTheirText) {
  std::optional<Vap> const read =
      from_ipc(std::string(R"({"rfid":"abc","wid":1.5,"vlanid":-1,"interface":5,"radio":{},)"
                           R"("band":6,"client-count":99999999999,"enabled":"true",)"
                           R"("ssid":"x","auth-type":"WEP"})"));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->rfid, 0);
  EXPECT_EQ(read->wid, 0);
  EXPECT_EQ(read->vlanid, 0U);
  EXPECT_EQ(read->interface, "5");
  EXPECT_EQ(read->radio, "");
  EXPECT_EQ(read->band, ApProfileRadioBand::BAND_6_GHZ); // a number reads as its text
  EXPECT_EQ(read->client_count, 0);
  EXPECT_FALSE(read->enabled); // only JSON true enables
  EXPECT_FALSE(read->ssid);

  std::optional<Vap> const enabled = from_ipc(std::string(
      R"({"enabled":true,"ssid":{"a":1},"bssid":[],"auth-type":"WPA2","retry-rate":256})"));
  ASSERT_TRUE(enabled);
  EXPECT_FALSE(enabled->ssid);
  ASSERT_TRUE(enabled->bssid);
  EXPECT_FALSE(enabled->bssid->valid);
  EXPECT_FALSE(enabled->retry_rate);
  std::optional<Vap> const rate = from_ipc(std::string(
      R"({"enabled":true,"auth-type":"WPA2","retry-rate":"200","vlanid":"4294967295"})"));
  ASSERT_TRUE(rate);
  EXPECT_EQ(rate->retry_rate, 200);
  EXPECT_EQ(rate->vlanid, 4294967295U);
}

// ---- Reading NETCONF ----------------------------------------------------------------------------

TEST(Vap, NetconfEnabledVapReadsEveryKey) {
  std::optional<Vap> const vap = from_netconf(netconf_vap());
  ASSERT_TRUE(vap);
  EXPECT_EQ(vap->rfid, 1);
  EXPECT_EQ(vap->wid, 2);
  EXPECT_EQ(vap->vlanid, 0U);
  EXPECT_EQ(vap->interface, "wlan1-vap2");
  EXPECT_EQ(vap->radio, "wifi1");
  EXPECT_EQ(vap->band, ApProfileRadioBand::BAND_2_4_GHZ);
  EXPECT_EQ(vap->client_count, 4);
  EXPECT_TRUE(vap->enabled);
  EXPECT_EQ(vap->ssid, "Corp");
  ASSERT_TRUE(vap->bssid);
  EXPECT_TRUE(vap->bssid->valid);
  EXPECT_EQ(vap->bssid->str(), "a4:5d:36:10:20:42");
  EXPECT_EQ(vap->auth_type, SecurityMode::WPA2);
  EXPECT_EQ(vap->retry_rate, 9);
  EXPECT_EQ(ipc_text(*vap), netconf_vap_ipc);
}

TEST(Vap, NetconfVapWithoutRfidWidOrEnabledIsRejected) {
  for (char const* key : {"rfid", "wid", "enabled"}) {
    EXPECT_FALSE(from_netconf(without(netconf_vap(), key))) << key;
  }
  // Present with a value of another type counts as present.
  std::optional<Vap> const odd = from_netconf(with(netconf_vap(), "rfid", "x"));
  ASSERT_TRUE(odd);
  EXPECT_EQ(odd->rfid, 0);
}

TEST(Vap, NetconfDisabledVapWithoutBssidIsAcceptedAndEndsAtEnabled) {
  Json const object{
      {"rfid", 0}, {"wid", 7}, {"name", "wlan0-vap7"}, {"radio", "wifi0"}, {"enabled", false}};
  std::optional<Vap> const vap = from_netconf(object);
  ASSERT_TRUE(vap);
  EXPECT_EQ(ipc_text(*vap), R"({"rfid":0,"wid":7,"vlanid":0,"interface":"wlan0-vap7",)"
                            R"("radio":"wifi0","band":"2.4","client-count":0,"enabled":false})");
}

TEST(Vap, NetconfDisabledVapReadsNothingMore) {
  // Even a negative count, an unknown mode and a bad BSSID do not reject a disabled VAP.
  Json object = with(netconf_vap(), "enabled", false);
  object["client-count"] = -3;
  object["auth-type"] = "WEP";
  object["bssid"] = "bad";
  std::optional<Vap> const vap = from_netconf(object);
  ASSERT_TRUE(vap);
  EXPECT_FALSE(vap->enabled);
  EXPECT_FALSE(vap->ssid);
  EXPECT_FALSE(vap->bssid);
  EXPECT_FALSE(vap->auth_type);
  EXPECT_FALSE(vap->retry_rate);
  EXPECT_EQ(vap->client_count, 0);
  EXPECT_EQ(vap->interface, "wlan1-vap2");
}

TEST(Vap, NetconfBssidRules) {
  std::optional<Vap> const bare = from_netconf(with(netconf_vap(), "bssid", "A45D36102042"));
  ASSERT_TRUE(bare);
  EXPECT_EQ(bare->bssid->str(), "a4:5d:36:10:20:42");
  EXPECT_TRUE(bare->bssid->valid);

  for (char const* bad : {"A45D3610204", "A45D361020421", "a4-5d-36-10-20-42", "a4:5d:36:10:20:4g",
                          "a4:5d:36:10:20:42:", "", "00000000000g"}) {
    EXPECT_FALSE(from_netconf(with(netconf_vap(), "bssid", bad))) << bad;
  }
  EXPECT_FALSE(from_netconf(without(netconf_vap(), "bssid")));
  EXPECT_FALSE(from_netconf(with(netconf_vap(), "bssid", Json{})));
  // A valid all-zero address is an address.
  EXPECT_TRUE(from_netconf(with(netconf_vap(), "bssid", "00:00:00:00:00:00")));
}

TEST(Vap, NetconfAuthTypeMustBeAKnownMode) {
  for (int i = 0; i < static_cast<int>(SecurityMode::UNKNOWN); ++i) {
    auto const mode = static_cast<SecurityMode>(i);
    std::optional<Vap> const vap =
        from_netconf(with(netconf_vap(), "auth-type", SecurityModeToStrX(mode)));
    ASSERT_TRUE(vap) << i;
    EXPECT_EQ(vap->auth_type, mode);
    Json expected = boost::json::parse(netconf_vap_ipc).as_object();
    expected["auth-type"] = SecurityModeToStrX(mode);
    EXPECT_EQ(ipc_text(*vap), boost::json::serialize(expected));
  }
  for (char const* bad : {"UNKNOWN", "WEP", "wpa2", "Off", "", "WPA2_"}) {
    EXPECT_FALSE(from_netconf(with(netconf_vap(), "auth-type", bad))) << bad;
  }
  EXPECT_FALSE(from_netconf(without(netconf_vap(), "auth-type")));
  EXPECT_FALSE(from_netconf(with(netconf_vap(), "auth-type", 3)));
}

TEST(Vap, NetconfNegativeClientCountIsRejected) {
  EXPECT_FALSE(from_netconf(with(netconf_vap(), "client-count", -1)));
  EXPECT_FALSE(from_netconf(with(netconf_vap(), "client-count", "-1")));
  EXPECT_FALSE(from_netconf(with(netconf_vap(), "client-count", -2147483648LL)));
  std::optional<Vap> const zero = from_netconf(with(netconf_vap(), "client-count", 0));
  ASSERT_TRUE(zero);
  EXPECT_EQ(zero->client_count, 0);
  // Missing or unreadable counts read as 0.
  std::optional<Vap> const missing = from_netconf(without(netconf_vap(), "client-count"));
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->client_count, 0);
  std::optional<Vap> const huge = from_netconf(with(netconf_vap(), "client-count", 99999999999LL));
  ASSERT_TRUE(huge);
  EXPECT_EQ(huge->client_count, 0);
}

TEST(Vap, NetconfNegativeClientCountRejectedButAcceptedInIpcForm) {
  Json const object = with(netconf_vap(), "client-count", -1);
  EXPECT_FALSE(from_netconf(object));
  std::string const ipc = R"({"rfid":1,"wid":2,"vlanid":0,"interface":"wlan1-vap2",)"
                          R"("radio":"wifi1","band":"2.4","client-count":-1,"enabled":true,)"
                          R"("ssid":"Corp","bssid":"a4:5d:36:10:20:42","auth-type":"WPA2",)"
                          R"("retry-rate":9})";
  std::optional<Vap> const read = from_ipc(ipc);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->client_count, -1);
  EXPECT_EQ(ipc_text(*read), ipc);
}

TEST(Vap, NetconfSsidIsHtmlDecoded) {
  std::optional<Vap> const vap =
      from_netconf(with(netconf_vap(), "ssid", "Corp&#x2d;WiFi&#x0a;&amp;&#x41"));
  ASSERT_TRUE(vap);
  EXPECT_EQ(vap->ssid, "Corp-WiFi.&amp;&#x41");
  std::optional<Vap> const no_ssid = from_netconf(without(netconf_vap(), "ssid"));
  ASSERT_TRUE(no_ssid);
  EXPECT_FALSE(no_ssid->ssid);
  std::optional<Vap> const empty_ssid = from_netconf(with(netconf_vap(), "ssid", ""));
  ASSERT_TRUE(empty_ssid);
  EXPECT_EQ(empty_ssid->ssid, "");
}

TEST(Vap, NetconfRetryRateIsOptional) {
  std::optional<Vap> const absent = from_netconf(without(netconf_vap(), "retry-rate"));
  ASSERT_TRUE(absent);
  EXPECT_FALSE(absent->retry_rate);
  EXPECT_EQ(ipc_text(*absent),
            R"({"rfid":1,"wid":2,"vlanid":0,"interface":"wlan1-vap2","radio":"wifi1","band":"2.4",)"
            R"("client-count":4,"enabled":true,"ssid":"Corp","bssid":"a4:5d:36:10:20:42",)"
            R"("auth-type":"WPA2"})");
  std::optional<Vap> const text = from_netconf(with(netconf_vap(), "retry-rate", "255"));
  ASSERT_TRUE(text);
  EXPECT_EQ(text->retry_rate, 255);
  for (boost::json::value const& bad : {boost::json::value(256), boost::json::value(-1),
                                        boost::json::value("x"), boost::json::value(1.5)}) {
    std::optional<Vap> const vap = from_netconf(with(netconf_vap(), "retry-rate", bad));
    ASSERT_TRUE(vap) << bad;
    EXPECT_FALSE(vap->retry_rate) << bad;
  }
}

TEST(Vap, NetconfIgnoresIpcOnlyKeys) {
  Json object = netconf_vap();
  object["vlanid"] = 210;
  object["band"] = "5";
  object["interface"] = "other";
  std::optional<Vap> const vap = from_netconf(object);
  ASSERT_TRUE(vap);
  EXPECT_EQ(vap->vlanid, 0U);
  EXPECT_EQ(vap->band, ApProfileRadioBand::BAND_2_4_GHZ);
  EXPECT_EQ(vap->interface, "wlan1-vap2");
}

TEST(Vap, NetconfRootThatIsNoObjectIsRejected) {
  for (char const* text : {"[]", "[1]", "5", "\"rfid\"", "null", "true", "{}"}) {
    std::optional<Vap> read;
    EXPECT_NO_THROW(read = from_netconf(std::string(text))) << text;
    EXPECT_FALSE(read) << text;
  }
}

TEST(Vap, NetconfKeysOfWrongJsonTypes) {
  std::optional<Vap> const read = from_netconf(
      std::string(R"({"rfid":[1],"wid":{"x":2},"name":7,"radio":null,"enabled":"true",)"
                  R"("bssid":"bad"})"));
  ASSERT_TRUE(read); // a non-boolean "enabled" reads as false: a disabled VAP
  EXPECT_EQ(read->rfid, 0);
  EXPECT_EQ(read->wid, 0);
  EXPECT_EQ(read->interface, "7");
  EXPECT_EQ(read->radio, "");
  EXPECT_FALSE(read->enabled);

  std::optional<Vap> const huge = from_netconf(
      with(with(netconf_vap(), "rfid", 99999999999LL), "wid", "123456789012345678901234567890"));
  ASSERT_TRUE(huge);
  EXPECT_EQ(huge->rfid, 0);
  EXPECT_EQ(huge->wid, 0);
}

// ---- The sample of an AP's VAPs -----------------------------------------------------------------

TEST(Vap, SampleVapsGiveTheirExactIpcTexts) {
  wlccw::cfg::Tree const root =
      wlccw::test::parse_json(wlccw::test::read_sample("vaps/netconf-vaps.json"));
  ASSERT_TRUE(root);
  std::vector<std::optional<std::string>> texts;
  wlccw::cfg::for_each_element(root.get(), [&texts](lcw_data_t& element) {
    std::optional<Vap> const vap = Vap::from_netconf_json(element);
    texts.push_back(vap ? std::optional<std::string>(ipc_text(*vap)) : std::nullopt);
  });
  ASSERT_EQ(texts.size(), sample_ipc_texts().size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts[i], sample_ipc_texts()[i]) << "VAP " << i;
  }
}

TEST(Vap, SampleIpcTextsReadBackToTheSameText) {
  for (std::optional<std::string> const& text : sample_ipc_texts()) {
    if (!text) {
      continue;
    }
    std::optional<Vap> const read = from_ipc(*text);
    ASSERT_TRUE(read) << *text;
    EXPECT_EQ(ipc_text(*read), *text);
  }
}

TEST(Vap, SampleRejectsAreAcceptedOnceTheirFaultIsMended) {
  boost::json::array const objects = sample_objects();
  ASSERT_EQ(objects.size(), sample_ipc_texts().size());
  // Each rejected VAP of the sample, with the one key that makes it acceptable.
  std::vector<std::pair<std::size_t, std::pair<char const*, boost::json::value>>> const mends{
      {3, {"bssid", "a4:5d:36:10:20:33"}},
      {6, {"auth-type", "WPA2"}},
      {10, {"enabled", true}},
      {11, {"client-count", 1}},
  };
  for (auto const& [index, mend] : mends) {
    Json const& object = objects.at(index).as_object();
    EXPECT_FALSE(from_netconf(object)) << index;
    EXPECT_TRUE(from_netconf(with(object, mend.first, mend.second))) << index;
  }
}
