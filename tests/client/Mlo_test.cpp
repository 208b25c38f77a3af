// Multi-link data of a client: the NETCONF reader, the IPC writer and reader, and equality.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/Mlo.hpp>

#include "client_support.hpp"

#include "support/addresses.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using wlccw::test::mac;

using wlccw::test::parse_json;
using wlccw::test::read_client_sample;

using Link = Mlo::Link;
using Statistic = Mlo::Link::Statistic;
using radio::Band;
using wlccw::cfg::Tree;

Link make_link(std::uint8_t id, char const* link_mac, Band band) {
  Link link;
  link.id = id;
  link.mac = mac(link_mac);
  link.band = band;
  return link;
}

Statistic make_statistic(std::optional<int> bytes, std::optional<int> packets,
                         std::optional<std::string> rate) {
  Statistic statistic;
  statistic.bytes = bytes;
  statistic.packets = packets;
  statistic.rate = std::move(rate);
  return statistic;
}

std::optional<Mlo> from_netconf(std::string const& json) {
  Tree const client = parse_json(json);
  if (!client) {
    return std::nullopt;
  }
  return Mlo::from_netconf_json(*client);
}

std::optional<Mlo> from_netconf_sample(char const* name) {
  return from_netconf(read_client_sample(name));
}

std::optional<Mlo> from_ipc(std::string const& json) {
  Tree const client = parse_json(json);
  if (!client) {
    return std::nullopt;
  }
  return Mlo::from_json(*client);
}

/// The compact IPC text of the multi-link data written into a new empty client object.
std::string ipc_text(Mlo const& mlo) {
  Tree const root = wlccw::cfg::make_object();
  EXPECT_TRUE(root);
  if (!root) {
    return {};
  }
  mlo.to_json(*root);
  return wlccw::cfg::compact(root.get());
}

/// A NETCONF client object with "mlo-enabled" "yes" and the given members after it.
std::string enabled_client(std::string const& members) {
  return R"({"hw-addr":"3c:22:fb:7a:10:4e","interface":"wlan0","ssid":"s","mlo-enabled":"yes")" +
         (members.empty() ? std::string() : "," + members) + "}";
}

/// Link 1 of a NETCONF client, valid, with band "5".
constexpr char const* good_link_1 = R"("mlo-link-1-mac":"00:11:22:33:44:01","mlo-link-1-band":"5")";

/// An IPC client object holding the given "mlo" member text.
std::string ipc_client(std::string const& mlo) {
  return R"({"mac":"3c:22:fb:7a:10:4e","mlo":)" + mlo + "}";
}

constexpr char const* good_ipc_link = R"({"mac":"00:11:22:33:44:01","band":"5G","id":1})";

} // namespace

// ---- The value types ----------------------------------------------------------------------------

TEST(Mlo, MembersHaveTheirTypesAndDefaults) {
  static_assert(std::is_same_v<decltype(Mlo::mld_mac_ap), MacAddr>);
  static_assert(std::is_same_v<decltype(Mlo::links), std::vector<Link>>);
  static_assert(std::is_same_v<decltype(Link::id), std::uint8_t>);
  static_assert(std::is_same_v<decltype(Link::band), Band>);
  static_assert(std::is_same_v<decltype(Link::bandwidth), std::optional<std::string>>);
  static_assert(std::is_same_v<decltype(Statistic::bytes), std::optional<int>>);
  static_assert(std::is_same_v<decltype(Statistic::packets), std::optional<int>>);
  static_assert(std::is_same_v<decltype(Statistic::rate), std::optional<std::string>>);
  static_assert(std::is_nothrow_move_constructible_v<Mlo>);
  static_assert(std::is_copy_assignable_v<Mlo>);

  Link const link;
  EXPECT_EQ(link.rssi.floor, -127);
  EXPECT_EQ(link.snr.floor, 0);
  EXPECT_TRUE(link.rssi.values.empty());
  EXPECT_FALSE(link.rssi.reported);
  EXPECT_FALSE(link.bandwidth);
  EXPECT_EQ(link.tx, Statistic{});
  EXPECT_FALSE(link.tx.bytes || link.tx.packets || link.tx.rate);
  Mlo const mlo;
  EXPECT_FALSE(mlo.mld_mac_ap.valid);
  EXPECT_TRUE(mlo.links.empty());
}

// ---- Equality -----------------------------------------------------------------------------------

TEST(MloEquality, StatisticComparesEveryMember) {
  Statistic const base = make_statistic(100, 10, "54");
  EXPECT_TRUE(base == make_statistic(100, 10, "54"));
  EXPECT_FALSE(base != make_statistic(100, 10, "54"));

  EXPECT_NE(base, make_statistic(101, 10, "54"));
  EXPECT_NE(base, make_statistic(std::nullopt, 10, "54"));
  EXPECT_NE(base, make_statistic(100, 11, "54"));
  EXPECT_NE(base, make_statistic(100, std::nullopt, "54"));
  EXPECT_NE(base, make_statistic(100, 10, "54.0"));
  EXPECT_NE(base, make_statistic(100, 10, std::nullopt));
  // A zero is not an absent value.
  EXPECT_NE(make_statistic(0, 0, ""), Statistic{});
  EXPECT_EQ(Statistic{}, Statistic{});
}

TEST(MloEquality, LinkComparesAllEightMembers) {
  Link base = make_link(2, "00:11:22:33:44:55", Band::BAND_5G);
  base.bandwidth = "80MHz";
  base.rssi.add(-50);
  base.snr.add(30);
  base.tx = make_statistic(1, 2, "x");
  base.rx = make_statistic(3, 4, "y");
  Link const copy = base;
  EXPECT_TRUE(base == copy);
  EXPECT_FALSE(base != copy);

  Link other = base;
  other.id = 3;
  EXPECT_NE(base, other);

  other = base;
  other.mac = mac("00:11:22:33:44:56");
  EXPECT_NE(base, other);
  other = base;
  other.mac.valid = false; // the MAC address compares by its octets only
  EXPECT_EQ(base, other);

  other = base;
  other.band = Band::BAND_6G;
  EXPECT_NE(base, other);

  other = base;
  other.bandwidth.reset();
  EXPECT_NE(base, other);
  other.bandwidth = "160MHz";
  EXPECT_NE(base, other);

  other = base;
  other.rssi.add(-60);
  EXPECT_NE(base, other);
  other = base;
  other.rssi.reported = -50;
  EXPECT_NE(base, other);
  other = base;
  other.rssi.floor = -100;
  EXPECT_NE(base, other);

  other = base;
  other.snr.values = {31};
  EXPECT_NE(base, other);
  other = base;
  other.snr.floor = -1;
  EXPECT_NE(base, other);

  other = base;
  other.tx.bytes = 5;
  EXPECT_NE(base, other);
  other = base;
  other.rx.rate.reset();
  EXPECT_NE(base, other);
  other = base;
  std::swap(other.tx, other.rx);
  EXPECT_NE(base, other);
}

TEST(MloEquality, MloComparesTheApAddressByOctetsAndTheLinksInOrder) {
  Mlo base;
  base.mld_mac_ap = mac("02:1b:2c:3d:4e:50");
  base.links = {make_link(1, "00:00:00:00:00:01", Band::BAND_2G),
                make_link(2, "00:00:00:00:00:02", Band::BAND_5G)};
  Mlo const copy = base;
  EXPECT_TRUE(base == copy);
  EXPECT_FALSE(base != copy);

  Mlo other = base;
  other.mld_mac_ap = mac("02:1b:2c:3d:4e:51");
  EXPECT_NE(base, other);
  other = base;
  other.mld_mac_ap.valid = false;
  EXPECT_EQ(base, other);

  other = base;
  std::swap(other.links[0], other.links[1]);
  EXPECT_NE(base, other);
  other = base;
  other.links.pop_back();
  EXPECT_NE(base, other);
  other = base;
  other.links.push_back(other.links.back());
  EXPECT_NE(base, other);
  other = base;
  other.links[1].rx.packets = 1;
  EXPECT_NE(base, other);

  // Default addresses and parsed zero addresses are equal; a failed parse gives the default.
  Mlo left;
  Mlo right;
  right.mld_mac_ap = mac("00:00:00:00:00:00");
  EXPECT_EQ(left, right);
  right.mld_mac_ap = mac("not an address");
  EXPECT_EQ(left, right);
}

// ---- NETCONF reader -----------------------------------------------------------------------------

TEST(MloFromNetconf, ReadsAnApClientWithThreeLinks) {
  std::optional<Mlo> const mlo = from_netconf_sample("mlo-ap-client-three-links.json");
  ASSERT_TRUE(mlo);
  EXPECT_TRUE(mlo->mld_mac_ap.valid);
  EXPECT_EQ(mlo->mld_mac_ap.str(), "02:1b:2c:3d:4e:50");
  ASSERT_EQ(mlo->links.size(), 3U);

  Link const& first = mlo->links[0];
  EXPECT_EQ(first.id, 1);
  EXPECT_TRUE(first.mac.valid);
  EXPECT_EQ(first.mac.str(), "3c:22:fb:7a:10:4f");
  EXPECT_EQ(first.band, Band::BAND_2G);
  EXPECT_EQ(first.bandwidth, "20MHz");
  EXPECT_EQ(first.rssi.values, (std::vector<int>{-55, -58}));
  EXPECT_EQ(first.rssi.floor, -127);
  EXPECT_FALSE(first.rssi.reported);
  EXPECT_EQ(first.rssi.get_signal(), -58);
  EXPECT_EQ(first.snr.values, (std::vector<int>{37, 34}));
  EXPECT_EQ(first.snr.floor, 0);
  EXPECT_FALSE(first.snr.reported);
  EXPECT_EQ(first.tx, make_statistic(1048576, 2048, "EHT-MCS 7 NSS 2 172.1"));
  EXPECT_EQ(first.rx, make_statistic(524288, 1024, "EHT-MCS 5 NSS 2 114.7"));

  Link const& second = mlo->links[1];
  EXPECT_EQ(second.id, 2);
  EXPECT_EQ(second.mac.str(), "3c:22:fb:7a:10:50");
  EXPECT_EQ(second.band, Band::BAND_5G);
  EXPECT_EQ(second.bandwidth, "160MHz");
  EXPECT_EQ(second.rssi.values, (std::vector<int>{-47, -50, -49}));
  EXPECT_EQ(second.snr.values, (std::vector<int>{45, 42, 43}));
  EXPECT_EQ(second.tx, make_statistic(734003200, 650112, "EHT-MCS 11 NSS 2 2882.4"));
  EXPECT_EQ(second.rx, make_statistic(98566144, 80211, "EHT-MCS 9 NSS 2 2161.8"));

  Link const& third = mlo->links[2];
  EXPECT_EQ(third.id, 3);
  EXPECT_EQ(third.mac.str(), "3c:22:fb:7a:10:51");
  EXPECT_EQ(third.band, Band::BAND_6G);
  EXPECT_EQ(third.bandwidth, "320MHz");
  EXPECT_EQ(third.rssi.values, (std::vector<int>{-61}));
  EXPECT_EQ(third.snr.values, (std::vector<int>{29}));
  EXPECT_EQ(third.tx, make_statistic(183500800, 160185, "EHT-MCS 9 NSS 2 4323.5"));
  EXPECT_EQ(third.rx, Statistic{});
}

TEST(MloFromNetconf, SkipsLinksWithAnInvalidMacOrAnUnknownBand) {
  // Link 1 has an invalid MAC address, link 3 the band "2.4": only link 2 is left.
  std::optional<Mlo> const mlo = from_netconf_sample("mlo-ap-client-skipped-links.json");
  ASSERT_TRUE(mlo);
  EXPECT_EQ(mlo->mld_mac_ap.str(), "02:1b:2c:3d:4e:60");
  ASSERT_EQ(mlo->links.size(), 1U);
  Link const& link = mlo->links[0];
  EXPECT_EQ(link.id, 2);
  EXPECT_EQ(link.mac.str(), "a4:83:e7:01:02:05");
  EXPECT_EQ(link.band, Band::BAND_5G);
  EXPECT_EQ(link.bandwidth, "80MHz");
  EXPECT_EQ(link.rssi.values, (std::vector<int>{-62}));
  EXPECT_EQ(link.snr.values, (std::vector<int>{29}));
  EXPECT_EQ(link.tx, make_statistic(65536, std::nullopt, "EHT-MCS 8 NSS 1 600.4"));
  EXPECT_EQ(link.rx, make_statistic(std::nullopt, 77, std::nullopt));
}

TEST(MloFromNetconf, ReadsALinkWithOnlyMacAndBand) {
  std::optional<Mlo> const mlo = from_netconf_sample("mlo-ap-client-single-link.json");
  ASSERT_TRUE(mlo);
  // No "mld-mac-ap": the address is kept as it parses, invalid.
  EXPECT_FALSE(mlo->mld_mac_ap.valid);
  EXPECT_EQ(mlo->mld_mac_ap, MacAddr{});
  ASSERT_EQ(mlo->links.size(), 1U);
  Link expected = make_link(1, "f0:9e:4a:11:22:34", Band::BAND_5G);
  EXPECT_EQ(mlo->links[0], expected);
  // The client-level "rssi" and "snr" are no link readings.
  EXPECT_TRUE(mlo->links[0].rssi.values.empty());
  EXPECT_TRUE(mlo->links[0].snr.values.empty());
}

TEST(MloFromNetconf, DisabledMultiLinkGivesNothingEvenWithFullLinkKeys) {
  EXPECT_FALSE(from_netconf_sample("mlo-ap-client-disabled.json"));
}

TEST(MloFromNetconf, MloEnabledMustBeExactlyYes) {
  std::string const links = std::string(good_link_1) + R"(,"mld-mac-ap":"02:00:00:00:00:01")";
  EXPECT_TRUE(from_netconf(R"({"mlo-enabled":"yes",)" + links + "}"));

  for (char const* value : {R"("no")", R"("Yes")", R"("YES")", R"("yes ")", R"(" yes")", R"("y")",
                            R"("")", R"("true")", "true", "1", "null", R"({})", R"(["yes"])"}) {
    EXPECT_FALSE(from_netconf(std::string(R"({"mlo-enabled":)") + value + "," + links + "}"))
        << value;
  }
  EXPECT_FALSE(from_netconf("{" + links + "}")) << "missing key";
  EXPECT_FALSE(from_netconf(R"({"mlo_enabled":"yes",)" + links + "}"));
}

TEST(MloFromNetconf, NoValidLinkGivesNoMlo) {
  EXPECT_FALSE(from_netconf(enabled_client("")));
  EXPECT_FALSE(from_netconf(enabled_client(R"("mld-mac-ap":"02:00:00:00:00:01")")));
  EXPECT_FALSE(from_netconf(enabled_client(
      R"("mlo-link-1-mac":"00:11:22:33:44:zz","mlo-link-1-band":"5",)"
      R"("mlo-link-2-mac":"00:11:22:33:44:02","mlo-link-2-band":"5G",)"
      R"("mlo-link-3-band":"6","mlo-link-3-bandwidth":"320MHz","mlo-link-3-rssi-1":-50)")));
}

TEST(MloFromNetconf, InvalidMacOnLinkOneLeavesLinkTwo) {
  std::optional<Mlo> const mlo =
      from_netconf(enabled_client(R"("mlo-link-1-mac":"00:11:22:33:44","mlo-link-1-band":"2",)"
                                  R"("mlo-link-2-mac":"00:11:22:33:44:02","mlo-link-2-band":"5")"));
  ASSERT_TRUE(mlo);
  ASSERT_EQ(mlo->links.size(), 1U);
  EXPECT_EQ(mlo->links[0].id, 2);
  EXPECT_EQ(mlo->links[0].band, Band::BAND_5G);
}

TEST(MloFromNetconf, AMissingLinkIsSkippedAndTheScanGoesOn) {
  std::optional<Mlo> const mlo =
      from_netconf(enabled_client(R"("mlo-link-3-mac":"00:11:22:33:44:03","mlo-link-3-band":"6",)"
                                  R"("mlo-link-1-mac":"00:11:22:33:44:01","mlo-link-1-band":"2")"));
  ASSERT_TRUE(mlo);
  ASSERT_EQ(mlo->links.size(), 2U);
  // Link-number order, whatever the order of the keys.
  EXPECT_EQ(mlo->links[0].id, 1);
  EXPECT_EQ(mlo->links[0].band, Band::BAND_2G);
  EXPECT_EQ(mlo->links[1].id, 3);
  EXPECT_EQ(mlo->links[1].band, Band::BAND_6G);
}

TEST(MloFromNetconf, OnlyTheBandTextsTwoFiveAndSixAreKnown) {
  struct Case {
    char const* text;
    std::optional<Band> band;
  };
  for (Case const& c :
       {Case{R"("2")", Band::BAND_2G}, Case{R"("5")", Band::BAND_5G}, Case{R"("6")", Band::BAND_6G},
        Case{R"("2.4")", std::nullopt}, Case{R"("5G")", std::nullopt},
        Case{R"("2G")", std::nullopt}, Case{R"("6g")", std::nullopt}, Case{R"("")", std::nullopt},
        Case{R"("5 ")", std::nullopt}, Case{R"(" 5")", std::nullopt}, Case{R"("05")", std::nullopt},
        Case{R"("3")", std::nullopt}, Case{R"("56")", std::nullopt}, Case{"null", std::nullopt},
        Case{R"(["5"])", std::nullopt}}) {
    std::optional<Mlo> const mlo = from_netconf(enabled_client(
        std::string(R"("mlo-link-1-mac":"00:11:22:33:44:01","mlo-link-1-band":)") + c.text));
    if (c.band) {
      ASSERT_TRUE(mlo) << c.text;
      ASSERT_EQ(mlo->links.size(), 1U);
      EXPECT_EQ(mlo->links[0].band, *c.band) << c.text;
    } else {
      EXPECT_FALSE(mlo) << c.text;
    }
  }
  // A missing band skips the link too.
  EXPECT_FALSE(from_netconf(enabled_client(R"("mlo-link-1-mac":"00:11:22:33:44:01")")));
}

TEST(MloFromNetconf, LinkNumbersFourAndAboveAndZeroAreNeverRead) {
  std::string const other_links =
      R"("mlo-link-0-mac":"00:11:22:33:44:00","mlo-link-0-band":"2",)"
      R"("mlo-link-4-mac":"00:11:22:33:44:04","mlo-link-4-band":"5",)"
      R"("mlo-link-4-bandwidth":"80MHz","mlo-link-4-rssi-1":-40,"mlo-link-4-snr-1":40,)"
      R"("mlo-link-4-tx-rate":"1","mlo-link-4-bytes-tx":1,"mlo-link-4-packets-tx":1,)"
      R"("mlo-link-5-mac":"00:11:22:33:44:05","mlo-link-5-band":"6",)"
      R"("mlo-link-10-mac":"00:11:22:33:44:0a","mlo-link-10-band":"6")";
  EXPECT_FALSE(from_netconf(enabled_client(other_links)));

  std::optional<Mlo> const mlo =
      from_netconf(enabled_client(other_links + "," + std::string(good_link_1)));
  ASSERT_TRUE(mlo);
  ASSERT_EQ(mlo->links.size(), 1U);
  EXPECT_EQ(mlo->links[0], make_link(1, "00:11:22:33:44:01", Band::BAND_5G));
}

TEST(MloFromNetconf, EveryFieldIsReadFromItsExactKeyForLinksOneToThree) {
  std::optional<Mlo> const mlo = from_netconf(enabled_client(R"(
      "mlo-link-1-mac":"00:00:00:00:01:01",
      "mlo-link-1-band":"2",
      "mlo-link-1-bandwidth":"bw-1",
      "mlo-link-1-rssi-1":-11,
      "mlo-link-1-rssi-2":-12,
      "mlo-link-1-snr-1":11,
      "mlo-link-1-tx-rate":"tx-rate-1",
      "mlo-link-1-rx-rate":"rx-rate-1",
      "mlo-link-1-bytes-tx":1101,
      "mlo-link-1-bytes-rx":1102,
      "mlo-link-1-packets-tx":1103,
      "mlo-link-1-packets-rx":1104,
      "mlo-link-2-mac":"00:00:00:00:02:02",
      "mlo-link-2-band":"5",
      "mlo-link-2-bandwidth":"bw-2",
      "mlo-link-2-rssi":-21,
      "mlo-link-2-snr":21,
      "mlo-link-2-tx-rate":"tx-rate-2",
      "mlo-link-2-rx-rate":"rx-rate-2",
      "mlo-link-2-bytes-tx":2201,
      "mlo-link-2-bytes-rx":2202,
      "mlo-link-2-packets-tx":2203,
      "mlo-link-2-packets-rx":2204,
      "mlo-link-3-mac":"00:00:00:00:03:03",
      "mlo-link-3-band":"6",
      "mlo-link-3-bandwidth":"bw-3",
      "mlo-link-3-rssi":-30,
      "mlo-link-3-rssi-1":-31,
      "mlo-link-3-snr":30,
      "mlo-link-3-snr-1":31,
      "mlo-link-3-snr-2":32,
      "mlo-link-3-tx-rate":"tx-rate-3",
      "mlo-link-3-rx-rate":"rx-rate-3",
      "mlo-link-3-bytes-tx":3301,
      "mlo-link-3-bytes-rx":3302,
      "mlo-link-3-packets-tx":3303,
      "mlo-link-3-packets-rx":3304,
      "mld-mac-ap":"02:00:00:00:00:ff")"));
  ASSERT_TRUE(mlo);
  EXPECT_EQ(mlo->mld_mac_ap.str(), "02:00:00:00:00:ff");
  ASSERT_EQ(mlo->links.size(), 3U);

  Link expected_1 = make_link(1, "00:00:00:00:01:01", Band::BAND_2G);
  expected_1.bandwidth = "bw-1";
  expected_1.rssi.values = {-11, -12};
  expected_1.snr.values = {11};
  expected_1.tx = make_statistic(1101, 1103, "tx-rate-1");
  expected_1.rx = make_statistic(1102, 1104, "rx-rate-1");
  EXPECT_EQ(mlo->links[0], expected_1);

  Link expected_2 = make_link(2, "00:00:00:00:02:02", Band::BAND_5G);
  expected_2.bandwidth = "bw-2";
  expected_2.rssi.values = {-21};
  expected_2.snr.values = {21};
  expected_2.tx = make_statistic(2201, 2203, "tx-rate-2");
  expected_2.rx = make_statistic(2202, 2204, "rx-rate-2");
  EXPECT_EQ(mlo->links[1], expected_2);

  // Numbered readings win over the base key itself.
  Link expected_3 = make_link(3, "00:00:00:00:03:03", Band::BAND_6G);
  expected_3.bandwidth = "bw-3";
  expected_3.rssi.values = {-31};
  expected_3.snr.values = {31, 32};
  expected_3.tx = make_statistic(3301, 3303, "tx-rate-3");
  expected_3.rx = make_statistic(3302, 3304, "rx-rate-3");
  EXPECT_EQ(mlo->links[2], expected_3);
}

TEST(MloFromNetconf, KeysOfOtherShapesAreNotRead) {
  std::optional<Mlo> const mlo = from_netconf(enabled_client(std::string(good_link_1) + R"(,
      "mlo-link-01-bandwidth":"a", "mlo-link1-bandwidth":"b", "mlo_link_1_bandwidth":"c",
      "mlo-link-1-Bandwidth":"d", "mlo-link-1-bw":"e", "mlo-link-1-rssi1":-40,
      "mlo-link-1-rssi-list":-41, "mlo-link-1-snr_1":10, "mlo-link-1-tx-bytes":1,
      "mlo-link-1-rx-packets":2, "mlo-link-1-rate-tx":"3", "mlo-link-1-txrate":"4",
      "mlo-link-1-bytes_tx":5, "mlo-link-1-packets-TX":6, "mlo-link-1-tx-rate-numeric":"7",
      "mlo-link-1-bytes":8, "mlo-link-1-packets":9, "mlo-link-1-rate":"10",
      "mld_mac_ap":"02:00:00:00:00:01", "mlo-link-1-mld-mac-ap":"02:00:00:00:00:02",
      "rssi-1":-50, "snr-1":20, "tx-rate":"11", "statistics":{"tx":{"bytes":12}})"));
  ASSERT_TRUE(mlo);
  EXPECT_EQ(mlo->mld_mac_ap, MacAddr{});
  ASSERT_EQ(mlo->links.size(), 1U);
  EXPECT_EQ(mlo->links[0], make_link(1, "00:11:22:33:44:01", Band::BAND_5G));
}

TEST(MloFromNetconf, TheApMultiLinkDeviceAddressIsNotValidated) {
  for (char const* value : {R"("not a mac")", R"("02:1b:2c:3d:4e")", R"("")", "12", "null"}) {
    std::optional<Mlo> const mlo =
        from_netconf(enabled_client(std::string(good_link_1) + R"(,"mld-mac-ap":)" + value));
    ASSERT_TRUE(mlo) << value;
    EXPECT_FALSE(mlo->mld_mac_ap.valid) << value;
    EXPECT_EQ(mlo->mld_mac_ap, MacAddr{}) << value;
  }
  std::optional<Mlo> const bare =
      from_netconf(enabled_client(std::string(good_link_1) + R"(,"mld-mac-ap":"021B2C3D4E50")"));
  ASSERT_TRUE(bare);
  EXPECT_TRUE(bare->mld_mac_ap.valid);
  EXPECT_EQ(bare->mld_mac_ap.str(), "02:1b:2c:3d:4e:50");
}

TEST(MloFromNetconf, TheLinkMacAcceptsEveryFormOfTheAddressParser) {
  std::optional<Mlo> const mlo =
      from_netconf(enabled_client(R"("mlo-link-1-mac":"AABBCCDDEEFF","mlo-link-1-band":"2",)"
                                  R"("mlo-link-2-mac":"AA:BB:CC:DD:EE:0F","mlo-link-2-band":"5",)"
                                  R"("mlo-link-3-mac":"aa-bb-cc-dd-ee-ff","mlo-link-3-band":"6")"));
  ASSERT_TRUE(mlo);
  ASSERT_EQ(mlo->links.size(), 2U);
  EXPECT_EQ(mlo->links[0].mac.str(), "aa:bb:cc:dd:ee:ff");
  EXPECT_EQ(mlo->links[1].mac.str(), "aa:bb:cc:dd:ee:0f");
  EXPECT_TRUE(mlo->links[0].mac.valid && mlo->links[1].mac.valid);
}

TEST(MloFromNetconf, PerAntennaReadingsFollowTheNumberedKeysAndTheFloors) {
  std::optional<Mlo> const mlo = from_netconf(enabled_client(std::string(good_link_1) + R"(,
      "mlo-link-1-rssi-1":-40, "mlo-link-1-rssi-2":-140, "mlo-link-1-rssi-3":"-60",
      "mlo-link-1-rssi-5":-70,
      "mlo-link-1-snr-1":5, "mlo-link-1-snr-2":-3, "mlo-link-1-snr-3":0,
      "mlo-link-1-snr-4":4, "mlo-link-1-snr-5":5, "mlo-link-1-snr-6":6, "mlo-link-1-snr-7":7,
      "mlo-link-1-snr-8":8, "mlo-link-1-snr-9":9)"));
  ASSERT_TRUE(mlo);
  Link const& link = mlo->links.at(0);
  // A gap ends the scan; readings below the floor are raised to it.
  EXPECT_EQ(link.rssi.values, (std::vector<int>{-40, -127, -60}));
  EXPECT_EQ(link.rssi.get_signal(), -127);
  EXPECT_FALSE(link.rssi.reported);
  // At most eight readings.
  EXPECT_EQ(link.snr.values, (std::vector<int>{5, 0, 0, 4, 5, 6, 7, 8}));
  EXPECT_EQ(link.snr.get_signal(), 0);

  std::optional<Mlo> const plain = from_netconf(
      enabled_client(std::string(good_link_1) + R"(,"mlo-link-1-rssi":-200,"mlo-link-1-snr":-1)"));
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->links.at(0).rssi.values, (std::vector<int>{-127}));
  EXPECT_EQ(plain->links.at(0).snr.values, (std::vector<int>{0}));
  EXPECT_FALSE(plain->links.at(0).rssi.reported);
}

TEST(MloFromNetconf, CountersAreSigned32BitOptionals) {
  std::optional<Mlo> const mlo = from_netconf(enabled_client(std::string(good_link_1) + R"(,
      "mlo-link-1-bytes-tx":2147483647, "mlo-link-1-packets-tx":"-5",
      "mlo-link-1-bytes-rx":2147483648, "mlo-link-1-packets-rx":"4000000000")"));
  ASSERT_TRUE(mlo);
  Link const& link = mlo->links.at(0);
  EXPECT_EQ(link.tx, make_statistic(2147483647, -5, std::nullopt));
  EXPECT_EQ(link.rx, Statistic{});

  for (char const* value :
       {R"("12abc")", R"(" 12")", "1.5", "true", R"({})", R"([1])", "null", R"("")"}) {
    std::optional<Mlo> const odd =
        from_netconf(enabled_client(std::string(good_link_1) + R"(,"mlo-link-1-bytes-tx":)" +
                                    value + R"(,"mlo-link-1-packets-rx":)" + value));
    ASSERT_TRUE(odd) << value;
    EXPECT_FALSE(odd->links.at(0).tx.bytes) << value;
    EXPECT_FALSE(odd->links.at(0).rx.packets) << value;
  }
  std::optional<Mlo> const low = from_netconf(enabled_client(
      std::string(good_link_1) + R"(,"mlo-link-1-bytes-tx":-2147483648,"mlo-link-1-bytes-rx":0)"));
  ASSERT_TRUE(low);
  EXPECT_EQ(low->links.at(0).tx.bytes, -2147483647 - 1);
  EXPECT_EQ(low->links.at(0).rx.bytes, 0);
}

TEST(MloFromNetconf, TextsAreKeptAsReported) {
  std::optional<Mlo> const mlo = from_netconf(enabled_client(std::string(good_link_1) + R"(,
      "mlo-link-1-bandwidth":" 80 MHz ", "mlo-link-1-tx-rate":"", "mlo-link-1-rx-rate":"HE&#x20;x")"));
  ASSERT_TRUE(mlo);
  Link const& link = mlo->links.at(0);
  EXPECT_EQ(link.bandwidth, " 80 MHz ");
  EXPECT_EQ(link.tx.rate, "");
  EXPECT_EQ(link.rx.rate, "HE&#x20;x");
  EXPECT_FALSE(link.tx.bytes);
  EXPECT_FALSE(link.tx.packets);
}

TEST(MloFromNetconf, AClientWithoutMultiLinkKeysHasNoMlo) {
  EXPECT_FALSE(from_netconf(R"({"hw-addr":"3c:22:fb:7a:10:4e","interface":"wlan0","ssid":"s",)"
                            R"("rssi-1":-40,"tx-rate":"VHT-MCS 9 NSS 2 866.7"})"));
  EXPECT_FALSE(from_netconf("{}"));
  EXPECT_FALSE(from_netconf("[]"));
  EXPECT_FALSE(from_netconf(R"("yes")"));
}

// ---- IPC writer ---------------------------------------------------------------------------------

TEST(MloToJson, WritesOneLinkWithEveryMember) {
  Mlo mlo;
  mlo.mld_mac_ap = mac("02:1B:2C:3D:4E:50");
  Link link = make_link(2, "3C:22:FB:7A:10:50", Band::BAND_5G);
  link.bandwidth = "160MHz";
  link.rssi.add(-47);
  link.rssi.add(-50);
  link.snr.add(45);
  link.snr.add(42);
  link.tx = make_statistic(734003200, 650112, "EHT-MCS 11 NSS 2 2882.4");
  link.rx = make_statistic(-1, 0, "");
  mlo.links.push_back(link);

  EXPECT_EQ(ipc_text(mlo),
            R"({"mlo":{"mld-mac-ap":"02:1b:2c:3d:4e:50","links":[{"mac":"3c:22:fb:7a:10:50",)"
            R"("band":"5G","id":2,"bandwidth":"160MHz","rssi-list":[-47,-50],"snr-list":[45,42],)"
            R"("tx":{"rate":"EHT-MCS 11 NSS 2 2882.4","bytes":734003200,"packets":650112},)"
            R"("rx":{"rate":"","bytes":-1,"packets":0}}]}})");
}

TEST(MloToJson, WritesALinkWithoutOptionalMembersAsMacBandIdAndEmptyDirections) {
  Mlo mlo;
  mlo.mld_mac_ap = mac("02:00:00:00:00:01");
  mlo.links.push_back(make_link(1, "00:11:22:33:44:01", Band::BAND_2G));
  EXPECT_EQ(ipc_text(mlo),
            R"({"mlo":{"mld-mac-ap":"02:00:00:00:00:01","links":[{"mac":"00:11:22:33:44:01",)"
            R"("band":"2G","id":1,"tx":{},"rx":{}}]}})");
}

TEST(MloToJson, WritesSeveralLinksInOrderWithTheirOwnMembers) {
  Mlo mlo;
  mlo.mld_mac_ap = mac("02:00:00:00:00:0a");
  Link first = make_link(3, "00:00:00:00:00:03", Band::BAND_6G);
  first.snr.add(20); // no RSSI reading: no "rssi-list"
  first.tx = make_statistic(std::nullopt, 7, std::nullopt);
  Link second = make_link(1, "00:00:00:00:00:01", Band::BAND_2G);
  second.bandwidth = "20MHz";
  second.rssi.add(-90);
  second.rx = make_statistic(std::nullopt, std::nullopt, "54");
  Link third = make_link(2, "00:00:00:00:00:02", Band::BAND_5G);
  third.rssi.add(-60);
  third.rssi.add(-61);
  third.rssi.add(-62);
  third.tx = make_statistic(5, std::nullopt, std::nullopt);
  third.rx = make_statistic(6, 8, std::nullopt);
  mlo.links = {first, second, third};

  EXPECT_EQ(ipc_text(mlo),
            R"({"mlo":{"mld-mac-ap":"02:00:00:00:00:0a","links":[)"
            R"({"mac":"00:00:00:00:00:03","band":"6G","id":3,"snr-list":[20],)"
            R"("tx":{"packets":7},"rx":{}},)"
            R"({"mac":"00:00:00:00:00:01","band":"2G","id":1,"bandwidth":"20MHz",)"
            R"("rssi-list":[-90],"tx":{},"rx":{"rate":"54"}},)"
            R"({"mac":"00:00:00:00:00:02","band":"5G","id":2,"rssi-list":[-60,-61,-62],)"
            R"("tx":{"bytes":5},"rx":{"bytes":6,"packets":8}}]}})");
}

TEST(MloToJson, AnInvalidApAddressIsLeftOut) {
  Mlo mlo;
  mlo.links.push_back(make_link(1, "00:11:22:33:44:01", Band::BAND_5G));
  std::string const expected = R"({"mlo":{"links":[{"mac":"00:11:22:33:44:01","band":"5G",)"
                               R"("id":1,"tx":{},"rx":{}}]}})";
  EXPECT_EQ(ipc_text(mlo), expected);

  // Octets without the validity flag are not written either.
  mlo.mld_mac_ap = mac("02:1b:2c:3d:4e:50");
  mlo.mld_mac_ap.valid = false;
  EXPECT_EQ(ipc_text(mlo), expected);

  mlo.mld_mac_ap = mac("not an address");
  EXPECT_EQ(ipc_text(mlo), expected);
}

TEST(MloToJson, TheSingleReportedSignalIsNotWritten) {
  Mlo mlo;
  Link link = make_link(1, "00:11:22:33:44:01", Band::BAND_5G);
  link.rssi.reported = -33;
  link.snr.reported = 33;
  mlo.links.push_back(link);
  EXPECT_EQ(ipc_text(mlo), R"({"mlo":{"links":[{"mac":"00:11:22:33:44:01","band":"5G",)"
                           R"("id":1,"tx":{},"rx":{}}]}})");
}

TEST(MloToJson, TheLinkMacIsWrittenWhateverItsValidityFlag) {
  Mlo mlo;
  Link link = make_link(255, "AA:BB:CC:DD:EE:FF", Band::BAND_2G);
  link.mac.valid = false;
  mlo.links.push_back(link);
  EXPECT_EQ(ipc_text(mlo), R"({"mlo":{"links":[{"mac":"aa:bb:cc:dd:ee:ff","band":"2G",)"
                           R"("id":255,"tx":{},"rx":{}}]}})");
}

TEST(MloToJson, NoLinksWritesAnEmptyArray) {
  Mlo mlo;
  mlo.mld_mac_ap = mac("02:00:00:00:00:01");
  EXPECT_EQ(ipc_text(mlo), R"({"mlo":{"mld-mac-ap":"02:00:00:00:00:01","links":[]}})");
}

TEST(MloToJson, IsAppendedAfterTheParentsMembers) {
  Tree const client = parse_json(R"({"mac":"3c:22:fb:7a:10:4e","ssid":"s"})");
  ASSERT_TRUE(client);
  Mlo mlo;
  mlo.links.push_back(make_link(1, "00:11:22:33:44:01", Band::BAND_6G));
  mlo.to_json(*client);
  EXPECT_EQ(wlccw::cfg::compact(client.get()),
            R"({"mac":"3c:22:fb:7a:10:4e","ssid":"s","mlo":{"links":[{"mac":"00:11:22:33:44:01",)"
            R"("band":"6G","id":1,"tx":{},"rx":{}}]}})");
}

TEST(MloToJson, WritesNothingWhenTheMloObjectCannotBeInserted) {
  // An array takes no keyed member, so the "mlo" object cannot be made.
  Tree const array = wlccw::cfg::make_array();
  ASSERT_TRUE(array);
  Mlo mlo;
  mlo.mld_mac_ap = mac("02:00:00:00:00:01");
  mlo.links.push_back(make_link(1, "00:11:22:33:44:01", Band::BAND_5G));
  mlo.to_json(*array);
  EXPECT_EQ(wlccw::cfg::compact(array.get()), "[]");

  Tree const scalar = parse_json(R"("text")");
  ASSERT_TRUE(scalar);
  mlo.to_json(*scalar);
  EXPECT_EQ(wlccw::cfg::compact(scalar.get()), R"("text")");
}

TEST(MloToJson, ABandOutsideTheKnownThreeThrows) {
  Mlo mlo;
  mlo.links.push_back(make_link(1, "00:11:22:33:44:01", static_cast<Band>(3)));
  Tree const root = wlccw::cfg::make_object();
  ASSERT_TRUE(root);
  try {
    mlo.to_json(*root);
    FAIL() << "no exception";
  } catch (std::invalid_argument const& error) {
    EXPECT_STREQ(error.what(), "APClientData: band_to_str unknown band");
  }
}

// ---- IPC reader ---------------------------------------------------------------------------------

TEST(MloFromJson, ReadsEveryMember) {
  std::optional<Mlo> const mlo = from_ipc(
      ipc_client(R"({"mld-mac-ap":"02:1b:2c:3d:4e:50","links":[)"
                 R"({"mac":"3c:22:fb:7a:10:50","band":"5G","id":2,"bandwidth":"160MHz",)"
                 R"("rssi-list":[-47,-50],"snr-list":[45,42],)"
                 R"("tx":{"rate":"EHT-MCS 11 NSS 2 2882.4","bytes":734003200,"packets":650112},)"
                 R"("rx":{"rate":"EHT-MCS 9 NSS 2 2161.8","bytes":"98566144","packets":-3}},)"
                 R"({"mac":"3C:22:FB:7A:10:51","band":"6G","id":3}]})"));
  ASSERT_TRUE(mlo);
  EXPECT_TRUE(mlo->mld_mac_ap.valid);
  EXPECT_EQ(mlo->mld_mac_ap.str(), "02:1b:2c:3d:4e:50");
  ASSERT_EQ(mlo->links.size(), 2U);

  Link expected = make_link(2, "3c:22:fb:7a:10:50", Band::BAND_5G);
  expected.bandwidth = "160MHz";
  expected.rssi.values = {-47, -50};
  expected.snr.values = {45, 42};
  expected.tx = make_statistic(734003200, 650112, "EHT-MCS 11 NSS 2 2882.4");
  expected.rx = make_statistic(98566144, -3, "EHT-MCS 9 NSS 2 2161.8");
  EXPECT_EQ(mlo->links[0], expected);
  EXPECT_TRUE(mlo->links[0].mac.valid);
  EXPECT_EQ(mlo->links[0].rssi.floor, -127);
  EXPECT_EQ(mlo->links[0].snr.floor, 0);
  EXPECT_FALSE(mlo->links[0].rssi.reported);

  EXPECT_EQ(mlo->links[1], make_link(3, "3c:22:fb:7a:10:51", Band::BAND_6G));
}

TEST(MloFromJson, NoMloObjectOrNoLinksArrayGivesNothing) {
  EXPECT_FALSE(from_ipc(R"({"mac":"3c:22:fb:7a:10:4e"})"));
  EXPECT_FALSE(from_ipc("{}"));
  EXPECT_FALSE(from_ipc(ipc_client("null")));
  EXPECT_FALSE(from_ipc(ipc_client(R"("text")")));
  EXPECT_FALSE(from_ipc(ipc_client(std::string("[") + good_ipc_link + "]")));
  EXPECT_FALSE(from_ipc(ipc_client("{}")));
  EXPECT_FALSE(from_ipc(ipc_client(R"({"mld-mac-ap":"02:00:00:00:00:01"})")));
  EXPECT_FALSE(from_ipc(ipc_client(R"({"links":null})")));
  EXPECT_FALSE(from_ipc(ipc_client(R"({"links":"x"})")));
  EXPECT_FALSE(from_ipc(ipc_client(std::string(R"({"links":{"0":)") + good_ipc_link + "}}")));
  // The keys of the NETCONF form are not read here.
  EXPECT_FALSE(from_ipc(enabled_client(good_link_1)));
}

TEST(MloFromJson, AnEmptyLinksArrayGivesNothing) {
  EXPECT_FALSE(from_ipc(ipc_client(R"({"mld-mac-ap":"02:00:00:00:00:01","links":[]})")));
}

TEST(MloFromJson, OneLinkWithAnUnknownBandEmptiesTheWholeResult) {
  for (char const* band : {R"("5g")", R"("5")", R"("2.4")", R"("")", R"("6G ")", "1", "null"}) {
    std::string const bad =
        std::string(R"({"mac":"00:11:22:33:44:02","id":2,"band":)") + band + "}";
    EXPECT_FALSE(
        from_ipc(ipc_client(std::string(R"({"links":[)") + good_ipc_link + "," + bad + "]}")))
        << band;
    EXPECT_FALSE(
        from_ipc(ipc_client(std::string(R"({"links":[)") + bad + "," + good_ipc_link + "]}")))
        << band;
  }
  EXPECT_FALSE(from_ipc(ipc_client(std::string(R"({"links":[)") + good_ipc_link +
                                   R"(,{"mac":"00:11:22:33:44:02","id":2}]})")));
}

TEST(MloFromJson, OneLinkWithAnInvalidMacEmptiesTheWholeResult) {
  for (char const* link :
       {R"({"mac":"00:11:22:33:44","band":"5G"})", R"({"mac":"","band":"5G"})",
        R"({"band":"5G","id":2})", R"({"mac":12,"band":"5G"})", R"("00:11:22:33:44:02")",
        R"(["00:11:22:33:44:02","5G"])", "null", "7", "{}"}) {
    EXPECT_FALSE(
        from_ipc(ipc_client(std::string(R"({"links":[)") + good_ipc_link + "," + link + "]}")))
        << link;
  }
}

TEST(MloFromJson, TheApMultiLinkDeviceAddressIsNotValidated) {
  std::string const links = std::string(R"("links":[)") + good_ipc_link + "]";
  for (std::string const& mlo_text :
       {"{" + links + "}", R"({"mld-mac-ap":"not a mac",)" + links + "}",
        R"({"mld-mac-ap":null,)" + links + "}"}) {
    std::optional<Mlo> const mlo = from_ipc(ipc_client(mlo_text));
    ASSERT_TRUE(mlo) << mlo_text;
    EXPECT_FALSE(mlo->mld_mac_ap.valid);
    EXPECT_EQ(mlo->mld_mac_ap, MacAddr{});
    ASSERT_EQ(mlo->links.size(), 1U);
  }
}

TEST(MloFromJson, TheIdIsAnUnsigned8BitReading) {
  struct Case {
    char const* text;
    std::uint8_t id;
  };
  for (Case const& c :
       {Case{"0", 0}, Case{"3", 3}, Case{"255", 255}, Case{R"("7")", 7}, Case{"256", 0},
        Case{"-1", 0}, Case{"1.5", 0}, Case{R"("x")", 0}, Case{"true", 0}, Case{"null", 0}}) {
    std::optional<Mlo> const mlo = from_ipc(ipc_client(
        std::string(R"({"links":[{"mac":"00:11:22:33:44:01","band":"2G","id":)") + c.text + "}]}"));
    ASSERT_TRUE(mlo) << c.text;
    EXPECT_EQ(mlo->links.at(0).id, c.id) << c.text;
  }
  std::optional<Mlo> const missing =
      from_ipc(ipc_client(R"({"links":[{"mac":"00:11:22:33:44:01","band":"2G"}]})"));
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->links.at(0).id, 0);
}

TEST(MloFromJson, ListElementsThatAreNotIntegersAreLeftOut) {
  std::optional<Mlo> const mlo = from_ipc(
      ipc_client(R"({"links":[{"mac":"00:11:22:33:44:01","band":"5G",)"
                 R"("rssi-list":[-40,"weak",1.5,true,null,{},[],"-42",-140,2147483648,-55],)"
                 R"("snr-list":[-3,"20",20.0,30]}]})"));
  ASSERT_TRUE(mlo);
  Link const& link = mlo->links.at(0);
  // Readings below the floor are raised to it, as when they are added one by one.
  EXPECT_EQ(link.rssi.values, (std::vector<int>{-40, -42, -127, -55}));
  EXPECT_EQ(link.snr.values, (std::vector<int>{0, 20, 30}));
  EXPECT_EQ(link.rssi.floor, -127);
  EXPECT_EQ(link.snr.floor, 0);

  std::optional<Mlo> const odd =
      from_ipc(ipc_client(R"({"links":[{"mac":"00:11:22:33:44:01","band":"5G","rssi-list":-40,)"
                          R"("snr-list":{"a":1}}]})"));
  ASSERT_TRUE(odd);
  EXPECT_TRUE(odd->links.at(0).rssi.values.empty());
  EXPECT_TRUE(odd->links.at(0).snr.values.empty());
}

TEST(MloFromJson, DirectionsReadRateAndSigned32BitCounters) {
  std::optional<Mlo> const mlo = from_ipc(
      ipc_client(R"({"links":[{"mac":"00:11:22:33:44:01","band":"5G",)"
                 R"("tx":{"bytes":2147483648,"packets":"12abc","rate":"HE-MCS 7 NSS 2 573.5"},)"
                 R"("rx":{"bytes":-2147483648,"packets":"4"}},)"
                 R"({"mac":"00:11:22:33:44:02","band":"5G","tx":"x","rx":[1,2]},)"
                 R"({"mac":"00:11:22:33:44:03","band":"5G","tx":{},"rx":null}]})"));
  ASSERT_TRUE(mlo);
  ASSERT_EQ(mlo->links.size(), 3U);
  EXPECT_EQ(mlo->links[0].tx, make_statistic(std::nullopt, std::nullopt, "HE-MCS 7 NSS 2 573.5"));
  EXPECT_EQ(mlo->links[0].rx, make_statistic(-2147483647 - 1, 4, std::nullopt));
  EXPECT_EQ(mlo->links[1].tx, Statistic{});
  EXPECT_EQ(mlo->links[1].rx, Statistic{});
  EXPECT_EQ(mlo->links[2].tx, Statistic{});
  EXPECT_EQ(mlo->links[2].rx, Statistic{});
}

TEST(MloFromJson, LinksKeepArrayOrder) {
  std::optional<Mlo> const mlo =
      from_ipc(ipc_client(R"({"links":[{"mac":"00:00:00:00:00:03","band":"6G","id":3},)"
                          R"({"mac":"00:00:00:00:00:01","band":"2G","id":1},)"
                          R"({"mac":"00:00:00:00:00:03","band":"6G","id":3}]})"));
  ASSERT_TRUE(mlo);
  ASSERT_EQ(mlo->links.size(), 3U);
  EXPECT_EQ(mlo->links[0].id, 3);
  EXPECT_EQ(mlo->links[1].id, 1);
  EXPECT_EQ(mlo->links[2], mlo->links[0]);
}

// ---- Round trips --------------------------------------------------------------------------------

TEST(MloRoundTrip, EmptyReadingsWriteNoListAndReadBackEmptyWithTheirFloors) {
  Mlo mlo;
  mlo.mld_mac_ap = mac("02:00:00:00:00:01");
  mlo.links.push_back(make_link(1, "00:11:22:33:44:01", Band::BAND_5G));
  std::string const text = ipc_text(mlo);
  EXPECT_EQ(text.find("rssi-list"), std::string::npos);
  EXPECT_EQ(text.find("snr-list"), std::string::npos);

  std::optional<Mlo> const back = from_ipc(text);
  ASSERT_TRUE(back);
  EXPECT_EQ(*back, mlo);
  EXPECT_TRUE(back->links.at(0).rssi.values.empty());
  EXPECT_EQ(back->links.at(0).rssi.floor, -127);
  EXPECT_EQ(back->links.at(0).rssi.get_signal(), -127);
  EXPECT_TRUE(back->links.at(0).snr.values.empty());
  EXPECT_EQ(back->links.at(0).snr.floor, 0);
}

TEST(MloRoundTrip, NetconfToIpcAndBackGivesAnEqualMlo) {
  for (char const* sample : {"mlo-ap-client-three-links.json", "mlo-ap-client-skipped-links.json",
                             "mlo-ap-client-single-link.json"}) {
    std::optional<Mlo> const mlo = from_netconf_sample(sample);
    ASSERT_TRUE(mlo) << sample;
    std::string const text = ipc_text(*mlo);
    std::optional<Mlo> const back = from_ipc(text);
    ASSERT_TRUE(back) << sample << ": " << text;
    EXPECT_EQ(*back, *mlo) << sample << ": " << text;
    EXPECT_EQ(back->mld_mac_ap.valid, mlo->mld_mac_ap.valid) << sample;
    // Writing the result again gives the same text.
    EXPECT_EQ(ipc_text(*back), text) << sample;
  }
}

TEST(MloRoundTrip, TheThreeLinkSampleHasThisIpcText) {
  std::optional<Mlo> const mlo = from_netconf_sample("mlo-ap-client-three-links.json");
  ASSERT_TRUE(mlo);
  EXPECT_EQ(ipc_text(*mlo),
            R"({"mlo":{"mld-mac-ap":"02:1b:2c:3d:4e:50","links":[)"
            R"({"mac":"3c:22:fb:7a:10:4f","band":"2G","id":1,"bandwidth":"20MHz",)"
            R"("rssi-list":[-55,-58],"snr-list":[37,34],)"
            R"("tx":{"rate":"EHT-MCS 7 NSS 2 172.1","bytes":1048576,"packets":2048},)"
            R"("rx":{"rate":"EHT-MCS 5 NSS 2 114.7","bytes":524288,"packets":1024}},)"
            R"({"mac":"3c:22:fb:7a:10:50","band":"5G","id":2,"bandwidth":"160MHz",)"
            R"("rssi-list":[-47,-50,-49],"snr-list":[45,42,43],)"
            R"("tx":{"rate":"EHT-MCS 11 NSS 2 2882.4","bytes":734003200,"packets":650112},)"
            R"("rx":{"rate":"EHT-MCS 9 NSS 2 2161.8","bytes":98566144,"packets":80211}},)"
            R"({"mac":"3c:22:fb:7a:10:51","band":"6G","id":3,"bandwidth":"320MHz",)"
            R"("rssi-list":[-61],"snr-list":[29],)"
            R"("tx":{"rate":"EHT-MCS 9 NSS 2 4323.5","bytes":183500800,"packets":160185},)"
            R"("rx":{}}]}})");
}
