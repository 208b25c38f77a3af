#include <wlccw/ipc/FullVapData.hpp>

#include <wlccw/cfg/owned.hpp>

#include "support/samples.hpp"

#include <boost/json.hpp>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

FullVapData full_vap() {
  FullVapData full;
  full.rfid = 1;
  full.wid = 0;
  full.vlanid = 30;
  full.interface = "wlan1-vap0";
  full.radio = "wifi1";
  full.band = ApProfileRadioBand::BAND_5_GHZ;
  full.client_count = 8;
  full.enabled = true;
  full.ssid = "Corp";
  full.bssid = MacAddr::from_str("a4:5d:36:10:20:40");
  full.auth_type = SecurityMode::WPA2_1X;
  full.retry_rate = 3;
  full.ap_mac = MacAddr::from_str("A4:5D:36:10:20:00");
  full.ap_hostname = "ap-lobby-3F-east";
  full.ap_location = "Lobby 3F";
  return full;
}

constexpr std::string_view full_vap_ipc =
    R"({"rfid":1,"wid":0,"vlanid":30,"interface":"wlan1-vap0","radio":"wifi1","band":"5",)"
    R"("client-count":8,"enabled":true,"ssid":"Corp","bssid":"a4:5d:36:10:20:40",)"
    R"("auth-type":"WPA2_1X","retry-rate":3,"ap-mac":"a4:5d:36:10:20:00",)"
    R"("ap-hostname":"ap-lobby-3F-east","ap-location":"Lobby 3F"})";

/// The compact text that to_json writes into a new object, called through the given reference.
std::string ipc_text(Vap const& vap) {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  EXPECT_TRUE(root);
  vap.to_json(*root);
  return wlccw::cfg::compact(root.get());
}

std::optional<FullVapData> from_full(std::string const& text) {
  wlccw::cfg::Tree const tree = wlccw::test::parse_json(text);
  if (!tree) {
    return std::nullopt;
  }
  return FullVapData::from_full_json(*tree);
}

std::optional<FullVapData> from_full(std::string_view text) {
  return from_full(std::string(text));
}

std::string with(std::string_view text, std::string_view key, boost::json::value value) {
  boost::json::object object = boost::json::parse(text).as_object();
  object[key] = std::move(value);
  return boost::json::serialize(object);
}

std::string without(std::string_view text, std::string_view key) {
  boost::json::object object = boost::json::parse(text).as_object();
  object.erase(key);
  return boost::json::serialize(object);
}

} // namespace

TEST(FullVapData, IsAVapWithTheApIdentity) {
  static_assert(std::is_base_of_v<Vap, FullVapData>);
  static_assert(std::is_convertible_v<FullVapData*, Vap*>);
  static_assert(std::is_polymorphic_v<FullVapData>);
  static_assert(std::is_copy_constructible_v<FullVapData>);
  static_assert(std::is_nothrow_move_constructible_v<FullVapData>);
  static_assert(std::is_same_v<decltype(FullVapData::ap_mac), MacAddr>);
  static_assert(std::is_same_v<decltype(FullVapData::ap_hostname), std::string>);
  static_assert(std::is_same_v<decltype(FullVapData::ap_location), std::string>);
  FullVapData const full;
  EXPECT_EQ(static_cast<Vap const&>(full), Vap{});
  EXPECT_FALSE(full.ap_mac.valid);
  EXPECT_TRUE(full.ap_hostname.empty());
  EXPECT_TRUE(full.ap_location.empty());
}

TEST(FullVapData, WritesTheVapKeysThenTheApKeys) {
  EXPECT_EQ(ipc_text(full_vap()), full_vap_ipc);
}

TEST(FullVapData, ToJsonOverridesThroughAVapReference) {
  FullVapData const full = full_vap();
  Vap const& as_vap = full;
  EXPECT_EQ(ipc_text(as_vap), full_vap_ipc);
  std::unique_ptr<Vap> const owned = std::make_unique<FullVapData>(full);
  EXPECT_EQ(ipc_text(*owned), full_vap_ipc);
  // The Vap part alone writes no AP keys.
  EXPECT_EQ(ipc_text(static_cast<Vap>(full)),
            R"({"rfid":1,"wid":0,"vlanid":30,"interface":"wlan1-vap0","radio":"wifi1","band":"5",)"
            R"("client-count":8,"enabled":true,"ssid":"Corp","bssid":"a4:5d:36:10:20:40",)"
            R"("auth-type":"WPA2_1X","retry-rate":3})");
}

TEST(FullVapData, DisabledVapCarriesOnlyTheApKeysAfterEnabled) {
  FullVapData full = full_vap();
  full.enabled = false;
  EXPECT_EQ(ipc_text(full),
            R"({"rfid":1,"wid":0,"vlanid":30,"interface":"wlan1-vap0","radio":"wifi1","band":"5",)"
            R"("client-count":8,"enabled":false,"ap-mac":"a4:5d:36:10:20:00",)"
            R"("ap-hostname":"ap-lobby-3F-east","ap-location":"Lobby 3F"})");
}

TEST(FullVapData, DefaultRecordWritesItsExactText) {
  EXPECT_EQ(ipc_text(FullVapData{}),
            R"({"rfid":0,"wid":0,"vlanid":0,"interface":"","radio":"","band":"2.4",)"
            R"("client-count":0,"enabled":false,"ap-mac":"00:00:00:00:00:00","ap-hostname":"",)"
            R"("ap-location":""})");
}

TEST(FullVapData, ReadsBackToTheSameRecordAndText) {
  std::optional<FullVapData> const read = from_full(full_vap_ipc);
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, full_vap());
  EXPECT_TRUE(read->ap_mac.valid);
  EXPECT_EQ(ipc_text(*read), full_vap_ipc);

  std::optional<FullVapData> const empty = from_full(ipc_text(FullVapData{}));
  ASSERT_TRUE(empty);
  EXPECT_EQ(ipc_text(*empty), ipc_text(FullVapData{}));
}

TEST(FullVapData, IsRejectedWhenItsVapIs) {
  EXPECT_FALSE(from_full(with(full_vap_ipc, "auth-type", "WEP")));
  EXPECT_FALSE(from_full(without(full_vap_ipc, "auth-type")));
  // A disabled VAP is never rejected for its authentication type.
  std::optional<FullVapData> const disabled =
      from_full(with(with(full_vap_ipc, "enabled", false), "auth-type", "WEP"));
  ASSERT_TRUE(disabled);
  EXPECT_EQ(disabled->ap_hostname, "ap-lobby-3F-east");
}

TEST(FullVapData, ApMacIsStoredAsRead) {
  std::optional<FullVapData> const bare = from_full(with(full_vap_ipc, "ap-mac", "A45D36102000"));
  ASSERT_TRUE(bare);
  EXPECT_TRUE(bare->ap_mac.valid);
  EXPECT_EQ(ipc_text(*bare), full_vap_ipc);

  for (char const* bad : {"a4-5d-36-10-20-00", "a4:5d:36:10:20:0", "", "x"}) {
    std::optional<FullVapData> const read = from_full(with(full_vap_ipc, "ap-mac", bad));
    ASSERT_TRUE(read) << bad;
    EXPECT_FALSE(read->ap_mac.valid) << bad;
    EXPECT_EQ(read->ap_mac, MacAddr{}) << bad;
  }
}

TEST(FullVapData, MissingApKeysGiveEmptyTexts) {
  std::string text =
      without(without(without(full_vap_ipc, "ap-hostname"), "ap-location"), "ap-mac");
  std::optional<FullVapData> const read = from_full(text);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->ap_hostname, "");
  EXPECT_EQ(read->ap_location, "");
  EXPECT_EQ(read->ap_mac, MacAddr{});
  EXPECT_EQ(static_cast<Vap const&>(*read), static_cast<Vap const&>(full_vap()));
}

TEST(FullVapData, HostileInputIsReadWithoutHarm) {
  for (char const* text : {"[]", "5", "\"x\"", "null", "{}"}) {
    std::optional<FullVapData> read;
    EXPECT_NO_THROW(read = from_full(std::string(text))) << text;
    ASSERT_TRUE(read) << text; // a disabled default VAP
    EXPECT_FALSE(read->enabled);
    EXPECT_EQ(read->ap_hostname, "");
  }
  std::optional<FullVapData> const odd = from_full(
      with(with(with(full_vap_ipc, "ap-hostname", 42), "ap-location", boost::json::array{1}),
           "ap-mac", boost::json::object{}));
  ASSERT_TRUE(odd);
  EXPECT_EQ(odd->ap_hostname, "42");
  EXPECT_EQ(odd->ap_location, "");
  EXPECT_FALSE(odd->ap_mac.valid);
}

TEST(FullVapData, EqualityComparesTheVapAndTheAp) {
  FullVapData const full = full_vap();
  FullVapData other = full;
  EXPECT_EQ(other, full);
  other.ap_location = "Roof";
  EXPECT_NE(other, full);
  other = full;
  other.client_count = 9;
  EXPECT_NE(other, full);
}
