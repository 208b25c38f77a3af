// The client record: construction and its checks, initial state, per-antenna signal, band setter
// and getter, statistics and record equality.
#include <wlccw/client/APClientData.hpp>

#include "client_support.hpp"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace {

using wlccw::test::mac_of;
using Metrics = AntennaSignalMetrics<std::greater<int>, std::less<int>>;
using Statistics = APClientData::Statistics;
using Statistic = APClientData::Statistics::Statistic;

// ---------------------------------------------------------------------------------------------
// Member types, as the record's users see them.

template <typename Member, typename Expected> constexpr bool is = std::is_same_v<Member, Expected>;

static_assert(is<decltype(APClientData::mac), MacAddr>);
static_assert(is<decltype(APClientData::interface), std::string>);
static_assert(is<decltype(APClientData::ssid), std::string>);
static_assert(is<decltype(APClientData::ip), IpAddr>);
static_assert(is<decltype(APClientData::band), std::optional<radio::Band>>);
static_assert(is<decltype(APClientData::vlan_id), std::optional<std::uint32_t>>);
static_assert(is<decltype(APClientData::hostname), std::optional<std::string>>);
static_assert(is<decltype(APClientData::username), std::optional<std::string>>);
static_assert(is<decltype(APClientData::domain), std::optional<std::string>>);
static_assert(is<decltype(APClientData::ap_hostname), std::optional<std::string>>);
static_assert(is<decltype(APClientData::ap_location), std::optional<std::string>>);
static_assert(is<decltype(APClientData::uptime), std::optional<std::uint32_t>>);
static_assert(is<decltype(APClientData::frequency), std::optional<std::uint32_t>>);
static_assert(is<decltype(APClientData::channel), std::optional<std::uint32_t>>);
static_assert(
    is<decltype(APClientData::rssi), AntennaSignalMetrics<std::greater<int>, std::less<int>>>);
static_assert(
    is<decltype(APClientData::snr), AntennaSignalMetrics<std::greater<int>, std::less<int>>>);
static_assert(is<decltype(APClientData::authorized), std::optional<bool>>);
static_assert(is<decltype(APClientData::wireless_mode), std::optional<ClientWirelessMode>>);
static_assert(is<decltype(APClientData::link_quality), std::optional<std::string>>);
static_assert(is<decltype(APClientData::link_quality_common), std::optional<std::string>>);
static_assert(is<decltype(APClientData::statistics), std::optional<APClientData::Statistics>>);
static_assert(is<decltype(APClientData::mlo), std::optional<Mlo>>);
static_assert(is<decltype(APClientData::wlan_auth_uptime), std::optional<std::uint32_t>>);
static_assert(is<decltype(APClientData::mac_auth_uptime), std::optional<std::uint32_t>>);
static_assert(is<decltype(APClientData::portal_auth_uptime), std::optional<std::uint32_t>>);
static_assert(is<decltype(APClientData::eap_method), std::optional<ClientEapMethod>>);
static_assert(is<decltype(APClientData::mac_auth_status), std::optional<ClientMacAuthStatus>>);
static_assert(
    is<decltype(APClientData::portal_auth_status), std::optional<ClientPortalAuthStatus>>);
static_assert(is<decltype(APClientData::wlan_auth_status), std::optional<ClientWlanAuthStatus>>);
static_assert(is<decltype(APClientData::wlan_auth_method), std::optional<ClientWlanAuthMethod>>);
static_assert(is<decltype(APClientData::auth_algorithm), std::optional<ClientAuthAlgorithm>>);
static_assert(is<decltype(APClientData::encryption_cipher), std::optional<std::string>>);
static_assert(is<decltype(APClientData::encryption_group_cipher), std::optional<std::string>>);

static_assert(is<decltype(Statistics::tx), Statistic>);
static_assert(is<decltype(Statistics::rx), Statistic>);
static_assert(is<decltype(Statistic::actual_rate), std::int32_t>);
static_assert(is<decltype(Statistic::rate), std::optional<std::string>>);
static_assert(is<decltype(Statistic::modulation), std::optional<std::string>>);
static_assert(is<decltype(Statistic::rate_numeric), std::optional<std::string>>);
static_assert(is<decltype(Statistic::bandwidth), std::optional<std::string>>);
static_assert(is<decltype(Statistic::bytes), std::int32_t>);
static_assert(is<decltype(Statistic::packets), std::int32_t>);

static_assert(is<decltype(Metrics::values), std::vector<int>>);
static_assert(is<decltype(Metrics::reported), std::optional<int>>);
static_assert(is<decltype(Metrics::floor), int>);

// The record: built only from its identity, copyable, and moved by copying (no move operations of
// its own, so moving is not noexcept as a generated move would be).
static_assert(!std::is_default_constructible_v<APClientData>);
static_assert(
    std::is_constructible_v<APClientData, MacAddr const&, std::string const&, std::string const&>);
static_assert(std::is_copy_constructible_v<APClientData>);
static_assert(std::is_copy_assignable_v<APClientData>);
static_assert(std::is_destructible_v<APClientData>);
static_assert(std::is_move_constructible_v<APClientData>);
static_assert(!std::is_nothrow_move_constructible_v<APClientData>);
static_assert(!std::is_nothrow_move_assignable_v<APClientData>);
static_assert(!std::is_aggregate_v<APClientData>);

// Statistics and the signal template are aggregates; designated initialisers, which must follow
// declaration order, pin the order of their members. Statistic has its own default constructor
// (its member order is checked at run time below).
static_assert(std::is_aggregate_v<Statistics>);
static_assert(std::is_aggregate_v<Metrics>);
static_assert(std::is_nothrow_default_constructible_v<Statistic>);
static_assert(std::is_nothrow_default_constructible_v<Statistics>);
static_assert(std::is_copy_constructible_v<Statistic> && std::is_move_constructible_v<Statistic>);
static_assert(std::is_copy_assignable_v<Statistic> && std::is_move_assignable_v<Statistic>);
static_assert(std::is_copy_constructible_v<Statistics> && std::is_move_constructible_v<Statistics>);

Statistics const ordered_statistics{.tx = Statistic{}, .rx = Statistic{}};
Metrics const ordered_metrics{.values = {1}, .reported = 2, .floor = 3};

// ---------------------------------------------------------------------------------------------
// Helpers.

IpAddr ip_of(char const* text) {
  IpAddr ip;
  ip = text;
  EXPECT_TRUE(ip.valid) << text;
  return ip;
}

APClientData fresh() {
  return APClientData(mac_of("00:11:22:33:44:55"), "wlan0", "corp");
}

Mlo::Link link_of(std::uint8_t id, char const* mac, radio::Band band) {
  Mlo::Link link;
  link.id = id;
  link.mac = mac_of(mac);
  link.band = band;
  link.bandwidth = "80MHz";
  link.rssi.add(-55);
  link.snr.add(30);
  link.tx.bytes = 10;
  link.rx.packets = 20;
  return link;
}

Statistic statistic_of(std::int32_t seed) {
  Statistic s;
  s.actual_rate = seed;
  s.rate = "VHT-MCS 9 NSS 2 866.7";
  s.modulation = "VHT-MCS 9 NSS 2";
  s.rate_numeric = "866.7";
  s.bandwidth = "80MHz";
  s.bytes = seed * 10;
  s.packets = seed * 100;
  return s;
}

// A record with every member set.
APClientData filled() {
  APClientData r = fresh();
  r.ip = ip_of("192.168.1.20");
  r.band = radio::Band::BAND_5G;
  r.vlan_id = 10U;
  r.hostname = "laptop";
  r.username = "alice";
  r.domain = "example.org";
  r.ap_hostname = "ap-1";
  r.ap_location = "floor 1";
  r.uptime = 3600U;
  r.frequency = 5180U;
  r.channel = 36U;
  r.rssi.add(-60);
  r.rssi.add(-70);
  r.rssi.reported = -65;
  r.snr.add(20);
  r.snr.add(25);
  r.snr.reported = 22;
  r.authorized = true;
  r.wireless_mode = ClientWirelessMode::AX;
  r.link_quality = "good";
  r.link_quality_common = "fine";
  r.statistics = Statistics{statistic_of(1), statistic_of(2)};
  Mlo mlo;
  mlo.mld_mac_ap = mac_of("02:00:00:00:00:01");
  mlo.links.push_back(link_of(1, "02:00:00:00:01:01", radio::Band::BAND_5G));
  r.mlo = mlo;
  r.wlan_auth_uptime = 100U;
  r.mac_auth_uptime = 200U;
  r.portal_auth_uptime = 300U;
  r.eap_method = ClientEapMethod::EAP_PEAP;
  r.mac_auth_status = ClientMacAuthStatus::AUTHENTICATED;
  r.portal_auth_status = ClientPortalAuthStatus::AUTHENTICATED;
  r.wlan_auth_status = ClientWlanAuthStatus::AUTHENTICATED;
  r.wlan_auth_method = ClientWlanAuthMethod::WPA2_ENTERPRISE;
  r.auth_algorithm = ClientAuthAlgorithm::OPEN_SYSTEM;
  r.encryption_cipher = "CCMP";
  r.encryption_group_cipher = "CCMP";
  return r;
}

// The text of the std::invalid_argument the constructor throws for these arguments, or "" when it
// throws nothing. Any other exception type, derived ones included, fails the test.
std::string construction_error(MacAddr const& mac, std::string const& interface,
                               std::string const& ssid) {
  try {
    APClientData const record(mac, interface, ssid);
  } catch (std::invalid_argument const& e) {
    EXPECT_EQ(typeid(e), typeid(std::invalid_argument));
    return e.what();
  }
  return "";
}

// ---------------------------------------------------------------------------------------------
// Construction.

TEST(APClientDataConstructor, CopiesTheIdentity) {
  MacAddr const mac = mac_of("00:11:22:33:44:55");
  std::string interface = "wlan0";
  std::string ssid = "corp";
  APClientData const r(mac, interface, ssid);
  interface = "changed";
  ssid = "changed";
  EXPECT_TRUE(r.mac.valid);
  EXPECT_EQ(r.mac.bytes, mac.bytes);
  EXPECT_EQ(r.interface, "wlan0");
  EXPECT_EQ(r.ssid, "corp");
}

TEST(APClientDataConstructor, EveryOtherMemberStartsEmpty) {
  APClientData const r = fresh();
  EXPECT_FALSE(r.ip.valid);
  EXPECT_EQ(r.ip.octets, (std::array<std::uint8_t, 4>{0, 0, 0, 0}));
  EXPECT_FALSE(r.band);
  EXPECT_FALSE(r.vlan_id);
  EXPECT_FALSE(r.hostname);
  EXPECT_FALSE(r.username);
  EXPECT_FALSE(r.domain);
  EXPECT_FALSE(r.ap_hostname);
  EXPECT_FALSE(r.ap_location);
  EXPECT_FALSE(r.uptime);
  EXPECT_FALSE(r.frequency);
  EXPECT_FALSE(r.channel);
  EXPECT_TRUE(r.rssi.values.empty());
  EXPECT_FALSE(r.rssi.reported);
  EXPECT_EQ(r.rssi.floor, -127);
  EXPECT_TRUE(r.snr.values.empty());
  EXPECT_FALSE(r.snr.reported);
  EXPECT_EQ(r.snr.floor, 0);
  EXPECT_FALSE(r.authorized);
  EXPECT_FALSE(r.wireless_mode);
  EXPECT_FALSE(r.link_quality);
  EXPECT_FALSE(r.link_quality_common);
  EXPECT_FALSE(r.statistics);
  EXPECT_FALSE(r.mlo);
  EXPECT_FALSE(r.wlan_auth_uptime);
  EXPECT_FALSE(r.mac_auth_uptime);
  EXPECT_FALSE(r.portal_auth_uptime);
  EXPECT_FALSE(r.eap_method);
  EXPECT_FALSE(r.mac_auth_status);
  EXPECT_FALSE(r.portal_auth_status);
  EXPECT_FALSE(r.wlan_auth_status);
  EXPECT_FALSE(r.wlan_auth_method);
  EXPECT_FALSE(r.auth_algorithm);
  EXPECT_FALSE(r.encryption_cipher);
  EXPECT_FALSE(r.encryption_group_cipher);
  EXPECT_FALSE(r.get_band_str());
}

TEST(APClientDataConstructor, ChecksMacThenInterfaceThenSsid) {
  MacAddr const good = mac_of("00:11:22:33:44:55");
  MacAddr const bad;
  struct Case {
    bool mac_ok;
    bool interface_ok;
    bool ssid_ok;
    char const* error;
  };
  Case const cases[] = {
      {true, true, true, ""},
      {false, true, true, "parameter 'mac' is not valid"},
      {false, false, true, "parameter 'mac' is not valid"},
      {false, true, false, "parameter 'mac' is not valid"},
      {false, false, false, "parameter 'mac' is not valid"},
      {true, false, true, "parameter 'interface' is empty"},
      {true, false, false, "parameter 'interface' is empty"},
      {true, true, false, "parameter 'ssid' is empty"},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(construction_error(c.mac_ok ? good : bad, c.interface_ok ? "wlan0" : "",
                                 c.ssid_ok ? "corp" : ""),
              c.error)
        << "mac " << c.mac_ok << " interface " << c.interface_ok << " ssid " << c.ssid_ok;
  }
}

TEST(APClientDataConstructor, EmptyInterfaceAndSsidReportTheInterface) {
  EXPECT_THROW(
      {
        try {
          APClientData(mac_of("00:11:22:33:44:55"), "", "");
        } catch (std::invalid_argument const& e) {
          EXPECT_STREQ(e.what(), "parameter 'interface' is empty");
          throw;
        }
      },
      std::invalid_argument);
}

TEST(APClientDataConstructor, MacValidityIsTheFlagNotTheOctets) {
  // A failed parse gives the default, invalid value.
  EXPECT_EQ(construction_error(MacAddr::from_str("not a mac"), "wlan0", "corp"),
            "parameter 'mac' is not valid");
  // Octets set but the flag false: refused.
  MacAddr unflagged = mac_of("00:11:22:33:44:55");
  unflagged.valid = false;
  EXPECT_EQ(construction_error(unflagged, "wlan0", "corp"), "parameter 'mac' is not valid");
  // A parsed all-zero address is valid.
  EXPECT_EQ(construction_error(mac_of("00:00:00:00:00:00"), "wlan0", "corp"), "");
}

TEST(APClientDataConstructor, OnlyEmptinessIsRefused) {
  EXPECT_EQ(construction_error(mac_of("00:11:22:33:44:55"), " ", " "), "");
  APClientData const r(mac_of("00:11:22:33:44:55"), " ", " ");
  EXPECT_EQ(r.interface, " ");
  EXPECT_EQ(r.ssid, " ");
}

// ---------------------------------------------------------------------------------------------
// Copies.

TEST(APClientDataCopy, CopyConstructionCopiesEveryMember) {
  APClientData const original = filled();
  APClientData const copy(original);
  EXPECT_TRUE(copy == original);
  // The members equality leaves out are copied too.
  EXPECT_EQ(copy.frequency, original.frequency);
  EXPECT_EQ(copy.channel, original.channel);
  EXPECT_EQ(copy.encryption_cipher, original.encryption_cipher);
  EXPECT_EQ(copy.encryption_group_cipher, original.encryption_group_cipher);
  EXPECT_EQ(copy.ip.valid, original.ip.valid);
  EXPECT_EQ(copy.mac.valid, original.mac.valid);
}

TEST(APClientDataCopy, CopyAssignmentCopiesEveryMember) {
  APClientData const original = filled();
  APClientData target(mac_of("66:77:88:99:aa:bb"), "wlan9", "other");
  target = original;
  EXPECT_TRUE(target == original);
  EXPECT_EQ(target.mac.bytes, original.mac.bytes);
  EXPECT_EQ(target.interface, "wlan0");
  EXPECT_EQ(target.frequency, original.frequency);
  EXPECT_EQ(target.channel, original.channel);
  EXPECT_EQ(target.encryption_cipher, original.encryption_cipher);
  EXPECT_EQ(target.encryption_group_cipher, original.encryption_group_cipher);
}

TEST(APClientDataCopy, CopiesAreIndependent) {
  APClientData const original = filled();
  APClientData copy = original;
  copy.hostname = "changed";
  copy.rssi.add(-90);
  copy.statistics->tx.bytes = 0;
  copy.mlo->links.clear();
  EXPECT_EQ(original.hostname, "laptop");
  EXPECT_EQ(original.rssi.values, (std::vector<int>{-60, -70}));
  EXPECT_EQ(original.statistics->tx.bytes, 10);
  EXPECT_EQ(original.mlo->links.size(), 1U);
}

TEST(APClientDataCopy, AnRvalueIsCopiedAndItsSourceStaysValid) {
  APClientData source = filled();
  APClientData const moved(std::move(source));
  // No move operation exists, so the source keeps its identity and its data.
  EXPECT_EQ(source.interface, "wlan0");
  EXPECT_EQ(source.ssid, "corp");
  EXPECT_EQ(source.hostname, "laptop");
  EXPECT_TRUE(source == moved);

  APClientData target = fresh();
  target = std::move(source);
  EXPECT_EQ(source.interface, "wlan0");
  EXPECT_EQ(source.rssi.values, (std::vector<int>{-60, -70}));
  EXPECT_TRUE(target == moved);
}

// ---------------------------------------------------------------------------------------------
// Per-antenna signal.

TEST(AntennaSignalMetrics, AFreshRecordGivesTheFloors) {
  APClientData const r = fresh();
  EXPECT_EQ(r.rssi.get_signal(), -127);
  EXPECT_EQ(r.snr.get_signal(), 0);
}

TEST(AntennaSignalMetrics, ReadingsBelowTheFloorAreRaised) {
  APClientData r = fresh();
  r.rssi.add(-60);
  r.rssi.add(-75);
  r.rssi.add(-200);
  EXPECT_EQ(r.rssi.values, (std::vector<int>{-60, -75, -127}));
  EXPECT_EQ(r.rssi.get_signal(), -127);
  r.rssi.reported = -50;
  EXPECT_EQ(r.rssi.get_signal(), -50);

  r.rssi.values.clear();
  r.rssi.add(-130);
  r.rssi.add(-127);
  r.rssi.add(-126);
  EXPECT_EQ(r.rssi.values, (std::vector<int>{-127, -127, -126}));

  r.snr.add(-3);
  r.snr.add(0);
  r.snr.add(25);
  r.snr.add(INT_MIN);
  EXPECT_EQ(r.snr.values, (std::vector<int>{0, 0, 25, 0}));
}

TEST(AntennaSignalMetrics, ReadingsAtOrAboveTheFloorAreStoredInOrder) {
  Metrics m{{}, std::nullopt, -127};
  m.add(-40);
  m.add(-90);
  m.add(-40);
  m.add(INT_MAX);
  EXPECT_EQ(m.values, (std::vector<int>{-40, -90, -40, INT_MAX}));
  EXPECT_FALSE(m.reported);
  EXPECT_EQ(m.floor, -127);
}

TEST(AntennaSignalMetrics, TheSmallestReadingRepresentsTheMetric) {
  Metrics m{{}, std::nullopt, -127};
  m.add(-40);
  EXPECT_EQ(m.get_signal(), -40);
  m.add(-80);
  m.add(-60);
  EXPECT_EQ(m.get_signal(), -80);
  m.add(-80);
  EXPECT_EQ(m.get_signal(), -80);
}

// Ties by the selecting comparator: the first of them is the one chosen.
struct ByTens {
  bool operator()(int a, int b) const { return a / 10 < b / 10; }
};

TEST(AntennaSignalMetrics, TheFirstOfEqualMinimaIsChosen) {
  AntennaSignalMetrics<std::greater<int>, ByTens> m{{}, std::nullopt, -127};
  m.add(-62);
  m.add(-71);
  m.add(-75);
  m.add(-79);
  EXPECT_EQ(m.get_signal(), -71);
}

TEST(AntennaSignalMetrics, TheReportedValueWins) {
  Metrics m{{}, std::nullopt, -127};
  m.reported = -50;
  EXPECT_EQ(m.get_signal(), -50); // no readings
  m.add(-60);
  m.add(-75);
  EXPECT_EQ(m.get_signal(), -50); // above the smallest reading
  m.reported = -90;
  EXPECT_EQ(m.get_signal(), -90); // below it
  m.reported = -300;
  EXPECT_EQ(m.get_signal(), -300); // even below the floor: reported values are not raised
  EXPECT_EQ(m.values, (std::vector<int>{-60, -75}));
}

TEST(AntennaSignalMetrics, ThereIsNoLimitOnReadings) {
  Metrics m{{}, std::nullopt, 0};
  for (int i = 0; i < 10000; ++i) {
    m.add(i % 50);
  }
  EXPECT_EQ(m.values.size(), 10000U);
  EXPECT_EQ(m.get_signal(), 0);
}

TEST(AntennaSignalMetrics, EqualityComparesValuesReportedAndFloor) {
  Metrics const base{{-60, -70}, -65, -127};
  EXPECT_TRUE(base == (Metrics{{-60, -70}, -65, -127}));
  EXPECT_FALSE(base == (Metrics{{-70, -60}, -65, -127}));          // order
  EXPECT_FALSE(base == (Metrics{{-60}, -65, -127}));               // length
  EXPECT_FALSE(base == (Metrics{{-60, -70, -70}, -65, -127}));     // length
  EXPECT_FALSE(base == (Metrics{{-60, -71}, -65, -127}));          // an element
  EXPECT_FALSE(base == (Metrics{{-60, -70}, std::nullopt, -127})); // reported empty vs set
  EXPECT_FALSE(base == (Metrics{{-60, -70}, -66, -127}));          // reported value
  EXPECT_FALSE(base == (Metrics{{-60, -70}, -65, 0}));             // floor
  EXPECT_TRUE((Metrics{{}, std::nullopt, 0}) == (Metrics{{}, std::nullopt, 0}));
  EXPECT_TRUE(base != (Metrics{{-60, -70}, -65, 0}));
  EXPECT_FALSE(base != base);
  // Same representative signal is not enough.
  EXPECT_FALSE((Metrics{{-60}, std::nullopt, -127}) == (Metrics{{}, -60, -127}));
}

// ---------------------------------------------------------------------------------------------
// Band.

TEST(APClientDataBand, SetBandMapsTheProfileBand) {
  APClientData r = fresh();
  r.set_band(static_cast<ApProfileRadioBand>(0));
  EXPECT_EQ(r.band, radio::Band::BAND_2G);
  r.set_band(static_cast<ApProfileRadioBand>(1));
  EXPECT_EQ(r.band, radio::Band::BAND_5G);
  r.set_band(static_cast<ApProfileRadioBand>(2));
  EXPECT_EQ(r.band, radio::Band::BAND_6G);
  r.set_band(static_cast<ApProfileRadioBand>(3));
  EXPECT_FALSE(r.band);
  r.set_band(ApProfileRadioBand::BAND_5_GHZ);
  EXPECT_EQ(r.band, radio::Band::BAND_5G);
  r.set_band(ApProfileRadioBand::UNKNOWN);
  EXPECT_FALSE(r.band);
}

TEST(APClientDataBand, UnknownEmptiesA5GBand) {
  APClientData r = fresh();
  r.band = radio::Band::BAND_5G;
  r.set_band(static_cast<ApProfileRadioBand>(3));
  EXPECT_FALSE(r.band);
  EXPECT_FALSE(r.get_band_str());
}

TEST(APClientDataBand, OtherValuesLeaveTheBandUnchanged) {
  for (std::int32_t const value : {4, 7, 100, INT32_MAX, -1, -2, INT32_MIN}) {
    APClientData r = fresh();
    r.band = radio::Band::BAND_5G;
    r.set_band(static_cast<ApProfileRadioBand>(value));
    EXPECT_EQ(r.band, radio::Band::BAND_5G) << value;
    EXPECT_EQ(r.get_band_str(), "5G") << value;

    APClientData empty = fresh();
    empty.set_band(static_cast<ApProfileRadioBand>(value));
    EXPECT_FALSE(empty.band) << value;
  }
}

TEST(APClientDataBand, SetBandTouchesNothingElse) {
  APClientData r = filled();
  APClientData const before = r;
  r.set_band(ApProfileRadioBand::BAND_5_GHZ); // the band it already has
  EXPECT_TRUE(r == before);
  r.set_band(ApProfileRadioBand::BAND_2_4_GHZ);
  r.band = before.band;
  EXPECT_TRUE(r == before);
  EXPECT_EQ(r.channel, before.channel);
  EXPECT_EQ(r.frequency, before.frequency);
}

TEST(APClientDataBand, GetBandStrGivesTheBandText) {
  APClientData r = fresh();
  EXPECT_EQ(r.get_band_str(), std::nullopt);
  r.band = radio::Band::BAND_2G;
  EXPECT_EQ(r.get_band_str(), "2G");
  r.band = radio::Band::BAND_5G;
  EXPECT_EQ(r.get_band_str(), "5G");
  r.band = radio::Band::BAND_6G;
  EXPECT_EQ(r.get_band_str(), "6G");
}

TEST(APClientDataBand, GetBandStrThrowsForAForcedValue) {
  for (std::int32_t const value : {3, 4, -1, INT32_MAX, INT32_MIN}) {
    APClientData r = fresh();
    r.band = static_cast<radio::Band>(value);
    try {
      (void)r.get_band_str();
      ADD_FAILURE() << "no exception for " << value;
    } catch (std::invalid_argument const& e) {
      EXPECT_STREQ(e.what(), "APClientData: band_to_str unknown band") << value;
    }
  }
}

// ---------------------------------------------------------------------------------------------
// Statistics.

TEST(APClientDataStatistic, DefaultIsZeroesAndNothingElse) {
  Statistic const s;
  EXPECT_EQ(s.actual_rate, 0);
  EXPECT_FALSE(s.rate);
  EXPECT_FALSE(s.modulation);
  EXPECT_FALSE(s.rate_numeric);
  EXPECT_FALSE(s.bandwidth);
  EXPECT_EQ(s.bytes, 0);
  EXPECT_EQ(s.packets, 0);
  Statistics const both;
  EXPECT_TRUE(both.tx == s);
  EXPECT_TRUE(both.rx == s);
}

TEST(APClientDataStatistic, CopyAndMoveAreMemberWise) {
  Statistic original;
  original.actual_rate = 1;
  original.rate = "r";
  original.modulation = "m";
  original.rate_numeric = "n";
  original.bandwidth = "b";
  original.bytes = 2;
  original.packets = 3;
  Statistic copy = original;
  EXPECT_TRUE(copy == original);
  Statistic const moved = std::move(copy);
  EXPECT_TRUE(moved == original);
  Statistic assigned;
  assigned = moved;
  EXPECT_TRUE(assigned == original);
  EXPECT_EQ(assigned.actual_rate, 1);
  EXPECT_EQ(assigned.rate, "r");
  EXPECT_EQ(assigned.modulation, "m");
  EXPECT_EQ(assigned.rate_numeric, "n");
  EXPECT_EQ(assigned.bandwidth, "b");
  EXPECT_EQ(assigned.bytes, 2);
  EXPECT_EQ(assigned.packets, 3);
  Statistics pair = ordered_statistics;
  pair.rx = original;
  Statistics const pair_copy = pair;
  EXPECT_TRUE(pair_copy.tx == Statistic{});
  EXPECT_TRUE(pair_copy.rx == original);
  EXPECT_EQ(ordered_metrics.floor, 3);
}

TEST(APClientDataStatistic, TheRecordsStatisticsCanBeMadeInPlace) {
  APClientData r = fresh();
  r.statistics.emplace();
  EXPECT_TRUE(*r.statistics == Statistics{});
  EXPECT_EQ(r.statistics->tx.bytes, 0);
  EXPECT_EQ(r.statistics->rx.actual_rate, 0);
  EXPECT_FALSE(r.statistics->rx.bandwidth);
}

struct StatisticChange {
  char const* name;
  std::function<void(Statistic&)> change;
};

std::vector<StatisticChange> const statistic_changes = {
    {"actual_rate", [](Statistic& s) { s.actual_rate = 99; }},
    {"rate", [](Statistic& s) { s.rate = "other rate"; }},
    {"rate_empty",
     [](Statistic& s) { s.rate = s.rate ? std::nullopt : std::optional<std::string>{""}; }},
    {"modulation", [](Statistic& s) { s.modulation = "other modulation"; }},
    {"modulation_empty",
     [](Statistic& s) {
       s.modulation = s.modulation ? std::nullopt : std::optional<std::string>{""};
     }},
    {"rate_numeric", [](Statistic& s) { s.rate_numeric = "1.5"; }},
    {"rate_numeric_empty",
     [](Statistic& s) {
       s.rate_numeric = s.rate_numeric ? std::nullopt : std::optional<std::string>{""};
     }},
    {"bandwidth", [](Statistic& s) { s.bandwidth = "160MHz"; }},
    {"bandwidth_empty",
     [](Statistic& s) {
       s.bandwidth = s.bandwidth ? std::nullopt : std::optional<std::string>{""};
     }},
    {"bytes", [](Statistic& s) { s.bytes = -1; }},
    {"packets", [](Statistic& s) { s.packets = INT32_MAX; }},
};

TEST(APClientDataStatistic, EveryMemberTakesPartInEquality) {
  for (Statistic const& base : {Statistic{}, statistic_of(7)}) {
    EXPECT_TRUE(base == base);
    EXPECT_FALSE(base != base);
    for (StatisticChange const& c : statistic_changes) {
      Statistic changed = base;
      c.change(changed);
      EXPECT_FALSE(base == changed) << c.name;
      EXPECT_FALSE(changed == base) << c.name;
      EXPECT_TRUE(base != changed) << c.name;
      EXPECT_TRUE(changed != base) << c.name;
    }
  }
}

TEST(APClientDataStatistic, BandwidthEmptyVersusSetIsUnequal) {
  Statistic a;
  Statistic b;
  b.bandwidth = "20MHz";
  EXPECT_FALSE(a == b);
  EXPECT_TRUE(a != b);
  a.bandwidth = "20MHz";
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(a != b);
}

TEST(APClientDataStatistics, BothDirectionsTakePartInEquality) {
  Statistics const base{statistic_of(1), statistic_of(2)};
  EXPECT_TRUE(base == (Statistics{statistic_of(1), statistic_of(2)}));
  EXPECT_FALSE(base != (Statistics{statistic_of(1), statistic_of(2)}));
  for (StatisticChange const& c : statistic_changes) {
    Statistics tx_changed = base;
    c.change(tx_changed.tx);
    EXPECT_FALSE(base == tx_changed) << c.name;
    EXPECT_TRUE(base != tx_changed) << c.name;
    Statistics rx_changed = base;
    c.change(rx_changed.rx);
    EXPECT_FALSE(base == rx_changed) << c.name;
    EXPECT_TRUE(rx_changed != base) << c.name;
  }
  // The directions are not interchangeable.
  EXPECT_FALSE(base == (Statistics{statistic_of(2), statistic_of(1)}));
}

// ---------------------------------------------------------------------------------------------
// Record equality, one member at a time.

enum class Base { fresh, filled };

struct MemberChange {
  std::string name;
  Base base;
  std::function<void(APClientData&)> change;
  bool compared;
};

std::ostream& operator<<(std::ostream& out, MemberChange const& c) {
  return out << c.name;
}

// Changes that set a member to a value that neither a fresh nor a filled record holds.
std::vector<std::pair<std::string, std::function<void(APClientData&)>>> set_changes() {
  return {
      {"mac", [](APClientData& r) { r.mac = mac_of("66:77:88:99:aa:bb"); }},
      {"interface", [](APClientData& r) { r.interface = "wlan7"; }},
      {"ssid", [](APClientData& r) { r.ssid = "guest"; }},
      {"ip", [](APClientData& r) { r.ip = ip_of("10.9.8.7"); }},
      {"ip_octet", [](APClientData& r) { r.ip.octets[3] = 1; }},
      {"band", [](APClientData& r) { r.band = radio::Band::BAND_6G; }},
      {"vlan_id", [](APClientData& r) { r.vlan_id = 999U; }},
      {"hostname", [](APClientData& r) { r.hostname = "other-host"; }},
      {"username", [](APClientData& r) { r.username = "bob"; }},
      {"domain", [](APClientData& r) { r.domain = "other.example"; }},
      {"ap_hostname", [](APClientData& r) { r.ap_hostname = "ap-2"; }},
      {"ap_location", [](APClientData& r) { r.ap_location = "floor 2"; }},
      {"uptime", [](APClientData& r) { r.uptime = 7U; }},
      {"rssi_values", [](APClientData& r) { r.rssi.add(-80); }},
      {"rssi_reported", [](APClientData& r) { r.rssi.reported = -33; }},
      {"rssi_floor", [](APClientData& r) { r.rssi.floor = -100; }},
      {"snr_values", [](APClientData& r) { r.snr.add(5); }},
      {"snr_reported", [](APClientData& r) { r.snr.reported = 3; }},
      {"snr_floor", [](APClientData& r) { r.snr.floor = 1; }},
      {"authorized", [](APClientData& r) { r.authorized = false; }},
      {"wireless_mode", [](APClientData& r) { r.wireless_mode = ClientWirelessMode::BE; }},
      {"link_quality", [](APClientData& r) { r.link_quality = "bad"; }},
      {"link_quality_common", [](APClientData& r) { r.link_quality_common = "bad"; }},
      {"statistics",
       [](APClientData& r) {
         if (!r.statistics) {
           r.statistics.emplace();
         }
         r.statistics->rx.packets = 424242;
       }},
      {"statistics_bandwidth",
       [](APClientData& r) {
         if (!r.statistics) {
           r.statistics.emplace();
         }
         r.statistics->tx.bandwidth = "40MHz";
       }},
      {"mlo",
       [](APClientData& r) {
         if (!r.mlo) {
           r.mlo.emplace();
         }
         r.mlo->mld_mac_ap = mac_of("02:00:00:00:00:99");
       }},
      {"mlo_link",
       [](APClientData& r) {
         if (!r.mlo) {
           r.mlo.emplace();
         }
         r.mlo->links.push_back(link_of(2, "02:00:00:00:02:02", radio::Band::BAND_6G));
       }},
      {"wlan_auth_uptime", [](APClientData& r) { r.wlan_auth_uptime = 1U; }},
      {"mac_auth_uptime", [](APClientData& r) { r.mac_auth_uptime = 2U; }},
      {"portal_auth_uptime", [](APClientData& r) { r.portal_auth_uptime = 3U; }},
      {"eap_method", [](APClientData& r) { r.eap_method = ClientEapMethod::EAP_TEAP; }},
      {"mac_auth_status",
       [](APClientData& r) { r.mac_auth_status = ClientMacAuthStatus::PENDING; }},
      {"portal_auth_status",
       [](APClientData& r) { r.portal_auth_status = ClientPortalAuthStatus::EXPIRED; }},
      {"wlan_auth_status",
       [](APClientData& r) { r.wlan_auth_status = ClientWlanAuthStatus::PENDING; }},
      {"wlan_auth_method", [](APClientData& r) { r.wlan_auth_method = ClientWlanAuthMethod::OWE; }},
      {"auth_algorithm", [](APClientData& r) { r.auth_algorithm = ClientAuthAlgorithm::SAE; }},
  };
}

// Changes that equality does not see.
std::vector<std::pair<std::string, std::function<void(APClientData&)>>> unseen_changes() {
  return {
      {"frequency", [](APClientData& r) { r.frequency = 2412U; }},
      {"channel", [](APClientData& r) { r.channel = 40U; }},
      {"encryption_cipher", [](APClientData& r) { r.encryption_cipher = "GCMP-256"; }},
      {"encryption_group_cipher", [](APClientData& r) { r.encryption_group_cipher = "TKIP"; }},
      {"all_four_left_out",
       [](APClientData& r) {
         r.frequency = 2412U;
         r.channel = 40U;
         r.encryption_cipher = "GCMP-256";
         r.encryption_group_cipher = "TKIP";
       }},
      {"mac_validity_flag", [](APClientData& r) { r.mac.valid = false; }},
      {"ip_validity_flag", [](APClientData& r) { r.ip.valid = !r.ip.valid; }},
  };
}

// Changes that empty an optional member of a filled record.
std::vector<std::pair<std::string, std::function<void(APClientData&)>>> clear_changes() {
  return {
      {"ip", [](APClientData& r) { r.ip = IpAddr{}; }},
      {"band", [](APClientData& r) { r.band.reset(); }},
      {"vlan_id", [](APClientData& r) { r.vlan_id.reset(); }},
      {"hostname", [](APClientData& r) { r.hostname.reset(); }},
      {"username", [](APClientData& r) { r.username.reset(); }},
      {"domain", [](APClientData& r) { r.domain.reset(); }},
      {"ap_hostname", [](APClientData& r) { r.ap_hostname.reset(); }},
      {"ap_location", [](APClientData& r) { r.ap_location.reset(); }},
      {"uptime", [](APClientData& r) { r.uptime.reset(); }},
      {"rssi_values", [](APClientData& r) { r.rssi.values.clear(); }},
      {"rssi_reported", [](APClientData& r) { r.rssi.reported.reset(); }},
      {"snr_values", [](APClientData& r) { r.snr.values.clear(); }},
      {"snr_reported", [](APClientData& r) { r.snr.reported.reset(); }},
      {"authorized", [](APClientData& r) { r.authorized.reset(); }},
      {"wireless_mode", [](APClientData& r) { r.wireless_mode.reset(); }},
      {"link_quality", [](APClientData& r) { r.link_quality.reset(); }},
      {"link_quality_common", [](APClientData& r) { r.link_quality_common.reset(); }},
      {"statistics", [](APClientData& r) { r.statistics.reset(); }},
      {"mlo", [](APClientData& r) { r.mlo.reset(); }},
      {"mlo_links", [](APClientData& r) { r.mlo->links.clear(); }},
      {"wlan_auth_uptime", [](APClientData& r) { r.wlan_auth_uptime.reset(); }},
      {"mac_auth_uptime", [](APClientData& r) { r.mac_auth_uptime.reset(); }},
      {"portal_auth_uptime", [](APClientData& r) { r.portal_auth_uptime.reset(); }},
      {"eap_method", [](APClientData& r) { r.eap_method.reset(); }},
      {"mac_auth_status", [](APClientData& r) { r.mac_auth_status.reset(); }},
      {"portal_auth_status", [](APClientData& r) { r.portal_auth_status.reset(); }},
      {"wlan_auth_status", [](APClientData& r) { r.wlan_auth_status.reset(); }},
      {"wlan_auth_method", [](APClientData& r) { r.wlan_auth_method.reset(); }},
      {"auth_algorithm", [](APClientData& r) { r.auth_algorithm.reset(); }},
  };
}

// Emptying these in a filled record is not seen either.
std::vector<std::pair<std::string, std::function<void(APClientData&)>>> unseen_clear_changes() {
  return {
      {"frequency", [](APClientData& r) { r.frequency.reset(); }},
      {"channel", [](APClientData& r) { r.channel.reset(); }},
      {"encryption_cipher", [](APClientData& r) { r.encryption_cipher.reset(); }},
      {"encryption_group_cipher", [](APClientData& r) { r.encryption_group_cipher.reset(); }},
  };
}

std::vector<MemberChange> member_changes() {
  std::vector<MemberChange> all;
  for (auto const& [name, change] : set_changes()) {
    all.push_back({"fresh_" + name, Base::fresh, change, true});
    all.push_back({"filled_" + name, Base::filled, change, true});
  }
  for (auto const& [name, change] : unseen_changes()) {
    all.push_back({"fresh_" + name, Base::fresh, change, false});
    all.push_back({"filled_" + name, Base::filled, change, false});
  }
  for (auto const& [name, change] : clear_changes()) {
    all.push_back({"filled_clear_" + name, Base::filled, change, true});
  }
  for (auto const& [name, change] : unseen_clear_changes()) {
    all.push_back({"filled_clear_" + name, Base::filled, change, false});
  }
  return all;
}

class APClientDataMemberEquality : public ::testing::TestWithParam<MemberChange> {};

TEST_P(APClientDataMemberEquality, DiffersOnlyInOneMember) {
  MemberChange const& c = GetParam();
  APClientData const a = c.base == Base::fresh ? fresh() : filled();
  APClientData b = a;
  ASSERT_TRUE(a == b);
  c.change(b);
  bool const expect_equal = !c.compared;
  EXPECT_EQ(a == b, expect_equal);
  EXPECT_EQ(b == a, expect_equal);
  EXPECT_EQ(a != b, !expect_equal);
  EXPECT_EQ(b != a, !expect_equal);
  EXPECT_TRUE(b == b);
  EXPECT_FALSE(b != b);
}

INSTANTIATE_TEST_SUITE_P(Members, APClientDataMemberEquality, ::testing::ValuesIn(member_changes()),
                         [](::testing::TestParamInfo<MemberChange> const& param_info) {
                           return param_info.param.name;
                         });

TEST(APClientDataEquality, TheFilledRecordSetsEveryOptional) {
  // Guards the member tests above: their "clear" changes must really empty something.
  APClientData const r = filled();
  EXPECT_TRUE(r.ip.valid);
  EXPECT_TRUE(r.band && r.vlan_id && r.hostname && r.username && r.domain && r.ap_hostname &&
              r.ap_location && r.uptime && r.frequency && r.channel && r.rssi.reported &&
              r.snr.reported && r.authorized && r.wireless_mode && r.link_quality &&
              r.link_quality_common && r.statistics && r.mlo && r.wlan_auth_uptime &&
              r.mac_auth_uptime && r.portal_auth_uptime && r.eap_method && r.mac_auth_status &&
              r.portal_auth_status && r.wlan_auth_status && r.wlan_auth_method &&
              r.auth_algorithm && r.encryption_cipher && r.encryption_group_cipher);
  EXPECT_FALSE(r.rssi.values.empty());
  EXPECT_FALSE(r.snr.values.empty());
  EXPECT_FALSE(r.mlo->links.empty());
}

TEST(APClientDataEquality, ChannelIsNotComparedButUptimeIs) {
  APClientData a = filled();
  APClientData b = filled();
  a.channel = 36U;
  b.channel = 40U;
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(a != b);
  b.channel = 36U;
  b.uptime = *a.uptime + 1U;
  EXPECT_FALSE(a == b);
  EXPECT_TRUE(a != b);
}

TEST(APClientDataEquality, AnUnsetIpEqualsASetZeroAddress) {
  APClientData const unset = fresh();
  APClientData zero = fresh();
  zero.ip = ip_of("0.0.0.0");
  ASSERT_TRUE(zero.ip.valid);
  ASSERT_FALSE(unset.ip.valid);
  EXPECT_TRUE(unset == zero);
  EXPECT_FALSE(unset != zero);
  // Set octets with the flag down equal the same octets with the flag up.
  APClientData flagged = fresh();
  flagged.ip = ip_of("10.0.0.1");
  APClientData unflagged = flagged;
  unflagged.ip.valid = false;
  EXPECT_TRUE(flagged == unflagged);
}

TEST(APClientDataEquality, StatisticsAndMloEmptyVersusSet) {
  APClientData const empty = fresh();
  APClientData with_statistics = fresh();
  with_statistics.statistics = Statistics{};
  EXPECT_FALSE(empty == with_statistics);
  EXPECT_TRUE(empty != with_statistics);
  APClientData with_mlo = fresh();
  with_mlo.mlo = Mlo{};
  EXPECT_FALSE(empty == with_mlo);
  EXPECT_TRUE(with_mlo != empty);
  // Both set and equal.
  APClientData other = fresh();
  other.statistics = Statistics{};
  other.mlo = Mlo{};
  with_statistics.mlo = Mlo{};
  EXPECT_TRUE(other == with_statistics);
}

TEST(APClientDataEquality, RecordsWithTheSameFactsAreEqual) {
  EXPECT_TRUE(fresh() == fresh());
  EXPECT_FALSE(fresh() != fresh());
  EXPECT_TRUE(filled() == filled());
  EXPECT_FALSE(filled() != filled());
  EXPECT_FALSE(fresh() == filled());
  EXPECT_TRUE(fresh() != filled());
}

// ---------------------------------------------------------------------------------------------
// Member order.

bool in_address_order(std::vector<void const*> const& addresses) {
  for (std::size_t i = 1; i < addresses.size(); ++i) {
    if (!std::less<void const*>{}(addresses[i - 1], addresses[i])) {
      return false;
    }
  }
  return true;
}

TEST(APClientDataLayout, StatisticMembersAreDeclaredInTheirOrder) {
  Statistic const s;
  EXPECT_TRUE(in_address_order({&s.actual_rate, &s.rate, &s.modulation, &s.rate_numeric,
                                &s.bandwidth, &s.bytes, &s.packets}));
}

TEST(APClientDataLayout, MembersAreDeclaredInTheirOrder) {
  // Members of one access level are laid out in declaration order.
  APClientData const r = fresh();
  EXPECT_TRUE(in_address_order({
      &r.mac,
      &r.interface,
      &r.ssid,
      &r.ip,
      &r.band,
      &r.vlan_id,
      &r.hostname,
      &r.username,
      &r.domain,
      &r.ap_hostname,
      &r.ap_location,
      &r.uptime,
      &r.frequency,
      &r.channel,
      &r.rssi,
      &r.snr,
      &r.authorized,
      &r.wireless_mode,
      &r.link_quality,
      &r.link_quality_common,
      &r.statistics,
      &r.mlo,
      &r.wlan_auth_uptime,
      &r.mac_auth_uptime,
      &r.portal_auth_uptime,
      &r.eap_method,
      &r.mac_auth_status,
      &r.portal_auth_status,
      &r.wlan_auth_status,
      &r.wlan_auth_method,
      &r.auth_algorithm,
      &r.encryption_cipher,
      &r.encryption_group_cipher,
  }));
}

} // namespace
