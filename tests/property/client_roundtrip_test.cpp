// Round trips of generated client records through their IPC forms: the client record (with and
// without multi-link data), the multi-link data alone, the client list by interface, the
// authenticated clients, the counters by authentication type and the client lists of several APs.
// Each generated record, written and read back, equals the record the IPC form can carry
// (expected_after_trip), and the record read back writes the same text.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/ApWithClients.hpp>
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>
#include <wlccw/client/Mlo.hpp>
#include <wlccw/client/NcIpcClientList.hpp>

#include <client/client_support.hpp>

#include "property/property_support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using wlccw::test::for_each_seed;
using wlccw::test::list_length;
using wlccw::test::Random;
using wlccw::test::seed_count;
using wlccw::test::up_to_nul;
using Metrics = AntennaSignalMetrics<std::greater<int>, std::less<int>>;
using Statistic = APClientData::Statistics::Statistic;

// ---- Generators -----------------------------------------------------------------------------

/// Any text a record can hold: besides Random::text's pieces, bytes that are not UTF-8 and the DEL
/// byte, which the tree carries as they are, and now and then a NUL byte, which a writer taking a C
/// string cuts the text at.
std::string any_text(Random& random, std::size_t max_length = 24) {
  if (random.chance(0.05)) {
    std::string text = random.text(max_length);
    text.insert(random.integer<std::size_t>(0, text.size()), 1, '\0');
    return text;
  }
  if (!random.chance(0.2)) {
    return random.text(max_length);
  }
  static constexpr std::string_view pieces[] = {"\xff", "\x80", "\xc3", "\x7f", "x", "&#x41;", " "};
  std::string out;
  std::size_t const count = random.integer<std::size_t>(1, max_length);
  for (std::size_t i = 0; i < count; ++i) {
    out += pieces[random.integer<std::size_t>(0, std::size(pieces) - 1)];
  }
  return out;
}

/// A text that is not empty and does not start with a NUL byte, as a client's interface and SSID
/// must be, also once cut at a NUL byte.
std::string non_empty_text(Random& random, std::size_t max_length = 16) {
  std::string text = any_text(random, max_length);
  if (text.empty() || text.front() == '\0') {
    text.insert(0, random.coin() ? "w" : "\"");
  }
  return text;
}

// Enumerator counts of the client tables; CountsCoverEveryEnumerator checks them.
constexpr int wireless_mode_count = 8;
constexpr int eap_method_count = 22;
constexpr int mac_auth_status_count = 4;
constexpr int portal_auth_status_count = 6;
constexpr int wlan_auth_status_count = 3;
constexpr int wlan_auth_method_count = 8;
constexpr int auth_algorithm_count = 8;
constexpr int band_count = 3;

/// An enumerator of a client table, and now and then a value outside it (one cast from a number),
/// which has no IPC text.
template <typename E> E client_enumerator(Random& random, int count) {
  if (random.chance(0.05)) {
    return static_cast<E>(random.coin() ? random.integer(count, count + 100)
                                        : random.integer(std::numeric_limits<int>::min(), -1));
  }
  return random.enumerator<E>(count);
}

/// A signal reading: mostly plausible dBm / dB values around the floors, often an extreme.
int reading(Random& random) {
  return random.coin() ? random.integer(-140, 70) : random.any<int>();
}

/// Readings of a signal metric whose floor is already set. Most go through add (raised to the
/// floor); some are stored as they are, as a record assigned by hand can hold them below the
/// floor. A reported value is there or not.
void add_readings(Random& random, Metrics& metrics) {
  std::size_t const count = list_length(random, 8);
  for (std::size_t i = 0; i < count; ++i) {
    int const value = reading(random);
    if (random.chance(0.8)) {
      metrics.add(value);
    } else {
      metrics.values.push_back(value);
    }
  }
  metrics.reported = random.maybe([&random] { return reading(random); });
}

std::optional<std::string> maybe_text(Random& random) {
  return random.maybe([&random] { return any_text(random); });
}

/// A client-level counter set of one direction; every member random, each optional text present
/// or not. The members are drawn one statement at a time so that a seed gives the same record
/// whatever order a compiler evaluates function arguments in.
Statistic make_statistic(Random& random) {
  auto const actual_rate = random.any<std::int32_t>();
  auto rate = maybe_text(random);
  auto modulation = maybe_text(random);
  auto rate_numeric = maybe_text(random);
  auto bandwidth = maybe_text(random);
  auto const bytes = random.any<std::int32_t>();
  auto const packets = random.any<std::int32_t>();
  return wlccw::test::make_statistic(actual_rate, std::move(rate), std::move(modulation),
                                     std::move(rate_numeric), std::move(bandwidth), bytes, packets);
}

Mlo::Link::Statistic make_link_statistic(Random& random) {
  Mlo::Link::Statistic statistic;
  statistic.bytes = random.maybe([&random] { return random.any<int>(); });
  statistic.packets = random.maybe([&random] { return random.any<int>(); });
  statistic.rate = maybe_text(random);
  return statistic;
}

/// A link as the readers store it: a valid MAC address and a known band; every other member
/// random.
Mlo::Link make_link(Random& random) {
  Mlo::Link link;
  link.id = random.any<std::uint8_t>();
  link.mac = random.mac();
  link.band = random.enumerator<radio::Band>(band_count);
  link.bandwidth = maybe_text(random);
  add_readings(random, link.rssi);
  add_readings(random, link.snr);
  link.tx = make_link_statistic(random);
  link.rx = make_link_statistic(random);
  return link;
}

Mlo make_mlo(Random& random) {
  Mlo mlo;
  mlo.mld_mac_ap = random.any_mac();
  std::size_t const count = list_length(random, 6);
  for (std::size_t i = 0; i < count; ++i) {
    mlo.links.push_back(make_link(random));
  }
  return mlo;
}

/// A client record with every member drawn: identity, optionals present or not, every enumerator,
/// numbers at their limits, signal readings, statistics present in most records and multi-link data
/// in about half of them.
APClientData make_client(Random& random) {
  MacAddr const mac = random.mac();
  std::string const interface = non_empty_text(random);
  std::string const ssid = non_empty_text(random);
  APClientData client(mac, interface, ssid);

  switch (random.integer(0, 3)) {
  case 0:
    break; // not set
  case 1:
    client.ip = random.ip();
    client.ip.valid = false; // octets without the flag, as an assignment by hand leaves them
    break;
  default:
    client.ip = random.ip();
    break;
  }
  client.band = random.maybe([&random] { return random.enumerator<radio::Band>(band_count); });
  client.vlan_id = random.maybe([&random] { return random.any<std::uint32_t>(); });
  client.hostname = maybe_text(random);
  client.username = maybe_text(random);
  client.domain = maybe_text(random);
  client.ap_hostname = maybe_text(random);
  client.ap_location = maybe_text(random);
  client.uptime = random.maybe([&random] { return random.any<std::uint32_t>(); });
  client.frequency = random.maybe([&random] { return random.any<std::uint32_t>(); });
  client.channel = random.maybe([&random] { return random.any<std::uint32_t>(); });
  add_readings(random, client.rssi);
  add_readings(random, client.snr);
  client.authorized = random.maybe([&random] { return random.coin(); });
  client.wireless_mode = random.maybe(
      [&random] { return client_enumerator<ClientWirelessMode>(random, wireless_mode_count); });
  client.link_quality = maybe_text(random);
  client.link_quality_common = maybe_text(random);
  if (random.chance(0.75)) {
    APClientData::Statistics statistics;
    statistics.tx = make_statistic(random);
    statistics.rx = make_statistic(random);
    client.statistics = std::move(statistics);
  }
  client.mlo = random.maybe([&random] { return make_mlo(random); });
  client.wlan_auth_uptime = random.maybe([&random] { return random.any<std::uint32_t>(); });
  client.mac_auth_uptime = random.maybe([&random] { return random.any<std::uint32_t>(); });
  client.portal_auth_uptime = random.maybe([&random] { return random.any<std::uint32_t>(); });
  client.eap_method = random.maybe(
      [&random] { return client_enumerator<ClientEapMethod>(random, eap_method_count); });
  client.mac_auth_status = random.maybe(
      [&random] { return client_enumerator<ClientMacAuthStatus>(random, mac_auth_status_count); });
  client.portal_auth_status = random.maybe([&random] {
    return client_enumerator<ClientPortalAuthStatus>(random, portal_auth_status_count);
  });
  client.wlan_auth_status = random.maybe([&random] {
    return client_enumerator<ClientWlanAuthStatus>(random, wlan_auth_status_count);
  });
  client.wlan_auth_method = random.maybe([&random] {
    return client_enumerator<ClientWlanAuthMethod>(random, wlan_auth_method_count);
  });
  client.auth_algorithm = random.maybe(
      [&random] { return client_enumerator<ClientAuthAlgorithm>(random, auth_algorithm_count); });
  client.encryption_cipher = maybe_text(random);
  client.encryption_group_cipher = maybe_text(random);
  return client;
}

/// A client list by interface, built as the controller builds it (add_or_update), with a few
/// interface names shared by many clients, a MAC address now and then on two interfaces or
/// replaced on one, and now and then an interface without clients (as a list read from IPC can
/// hold one).
NcIpcClientList make_list(Random& random, std::size_t long_length = 16) {
  NcIpcClientList list;
  std::vector<std::string> names(list_length(random, 5));
  for (std::string& name : names) {
    name = up_to_nul(non_empty_text(random, 10));
  }
  std::vector<MacAddr> used;
  std::size_t const count = list_length(random, long_length);
  for (std::size_t i = 0; i < count; ++i) {
    APClientData client = make_client(random);
    // Interface names are object keys of the IPC form; they are kept free of NUL bytes so that
    // two names never become one key.
    client.interface = names.empty() ? up_to_nul(client.interface)
                                     : names[random.integer<std::size_t>(0, names.size() - 1)];
    if (!used.empty() && random.chance(0.15)) {
      client.mac = used[random.integer<std::size_t>(0, used.size() - 1)];
    }
    used.push_back(client.mac);
    list.add_or_update(std::move(client));
  }
  if (random.chance(0.2)) {
    std::string name = up_to_nul(any_text(random, 10));
    std::string ssid = any_text(random, 10);
    list.interfaces.try_emplace(std::move(name),
                                NcIpcClientList::InterfaceDesc{std::move(ssid), {}});
  }
  return list;
}

// ---- What the IPC forms carry ---------------------------------------------------------------

/// A signal metric after its trip through the client's IPC form: each reading is read back
/// through add, so one below the floor comes back as the floor; the representative value
/// (get_signal: the reported value, else the smallest reading) travels as the single value and
/// comes back as the reported one; without readings nothing travels, the reported value included.
void signal_after_client_trip(Metrics& metrics) {
  if (metrics.values.empty()) {
    metrics.reported.reset();
    return;
  }
  int const representative =
      metrics.reported.value_or(*std::min_element(metrics.values.begin(), metrics.values.end()));
  for (int& value : metrics.values) {
    value = std::max(value, metrics.floor);
  }
  metrics.reported = representative;
}

/// A link's signal metric after its trip: the readings travel (raised to the floor on reading),
/// the single value of a link is never written.
void signal_after_link_trip(Metrics& metrics) {
  for (int& value : metrics.values) {
    value = std::max(value, metrics.floor);
  }
  metrics.reported.reset();
}

/// Multi-link data after its trip through the "mlo" object: the device address travels only when
/// valid (else it reads back as the default address), the links lose their single signal values,
/// and data without any link reads back as no multi-link data at all.
std::optional<Mlo> expected_after_trip(Mlo mlo) {
  if (!mlo.mld_mac_ap.valid) {
    mlo.mld_mac_ap = MacAddr{};
  }
  for (Mlo::Link& link : mlo.links) {
    signal_after_link_trip(link.rssi);
    signal_after_link_trip(link.snr);
  }
  if (mlo.links.empty()) {
    return std::nullopt;
  }
  return mlo;
}

/// An enumerator after its trip: a value outside the table has no IPC text, is not written and
/// comes back empty.
template <typename E> void drop_unnamed(std::optional<E>& value, int count) {
  if (value && (static_cast<int>(*value) < 0 || static_cast<int>(*value) >= count)) {
    value.reset();
  }
}

/// A client record after its trip through the IPC form: the interface and the SSID are written as
/// C strings (cut at a NUL byte; the optional texts carry every byte); an address not valid is not
/// written and reads back as the default; signals as signal_after_client_trip; an enumerator
/// outside its table is not written; a record without statistics carries no authentication,
/// multi-link or cipher keys, so those come back empty; multi-link data as its own
/// expected_after_trip.
APClientData expected_after_trip(APClientData const& original) {
  APClientData expected = original;
  expected.interface = up_to_nul(expected.interface);
  expected.ssid = up_to_nul(expected.ssid);
  if (!expected.ip.valid) {
    expected.ip = IpAddr{};
  }
  signal_after_client_trip(expected.rssi);
  signal_after_client_trip(expected.snr);
  drop_unnamed(expected.wireless_mode, wireless_mode_count);
  drop_unnamed(expected.eap_method, eap_method_count);
  drop_unnamed(expected.mac_auth_status, mac_auth_status_count);
  drop_unnamed(expected.portal_auth_status, portal_auth_status_count);
  drop_unnamed(expected.wlan_auth_status, wlan_auth_status_count);
  drop_unnamed(expected.wlan_auth_method, wlan_auth_method_count);
  drop_unnamed(expected.auth_algorithm, auth_algorithm_count);
  if (!expected.statistics) {
    wlccw::test::drop_members_cut_off_without_statistics(expected);
  } else if (expected.mlo) {
    expected.mlo = expected_after_trip(*expected.mlo);
  }
  return expected;
}

/// A list after its trip: every client as its own expected_after_trip; the interface's SSID is
/// written as a C string; interfaces, keys and the count unchanged.
NcIpcClientList expected_after_trip(NcIpcClientList const& original) {
  NcIpcClientList expected = original;
  for (auto& [name, desc] : expected.interfaces) {
    desc.ssid = up_to_nul(desc.ssid);
    for (auto& [mac, client] : desc.clients) {
      client = expected_after_trip(client);
    }
  }
  return expected;
}

/// The authenticated clients after their trip: every address is written as its octets and parsed
/// back, so it comes back valid; the SSID is written as a C string, the user name with every byte.
AuthenticatedClients expected_after_trip(AuthenticatedClients expected) {
  for (AuthenticatedClients::Client& client : expected.clients) {
    client.mac.valid = true;
    client.ssid = up_to_nul(client.ssid);
  }
  return expected;
}

/// The APs after their trip: the AP address is written as its octets and parsed back, so it comes
/// back valid; each client list as its own expected_after_trip.
std::vector<ApWithClients> expected_after_trip(std::vector<ApWithClients> const& original) {
  std::vector<ApWithClients> expected;
  for (ApWithClients const& entry : original) {
    ApWithClients copy;
    copy.ap_mac = entry.ap_mac;
    copy.ap_mac.valid = true;
    copy.clients = expected_after_trip(entry.clients);
    expected.push_back(std::move(copy));
  }
  return expected;
}

// ---- Comparisons ----------------------------------------------------------------------------

/// The record's equality, plus the members it leaves out on purpose (frequency, channel, the
/// ciphers) and the validity flags of the addresses, which the round trip must keep as well.
::testing::AssertionResult same_client(APClientData const& expected, APClientData const& actual) {
  if (expected != actual) {
    return ::testing::AssertionFailure() << "records differ by operator==";
  }
  if (expected.frequency != actual.frequency || expected.channel != actual.channel) {
    return ::testing::AssertionFailure() << "frequency or channel differ";
  }
  if (expected.encryption_cipher != actual.encryption_cipher ||
      expected.encryption_group_cipher != actual.encryption_group_cipher) {
    return ::testing::AssertionFailure() << "ciphers differ";
  }
  if (expected.mac.valid != actual.mac.valid || expected.ip.valid != actual.ip.valid) {
    return ::testing::AssertionFailure() << "address validity differs";
  }
  if (expected.mlo && actual.mlo &&
      expected.mlo->mld_mac_ap.valid != actual.mlo->mld_mac_ap.valid) {
    return ::testing::AssertionFailure() << "validity of the multi-link device address differs";
  }
  return ::testing::AssertionSuccess();
}

/// Interfaces, SSIDs, client keys (octets and validity), clients by same_client and the count.
::testing::AssertionResult same_list(NcIpcClientList const& expected,
                                     NcIpcClientList const& actual) {
  if (expected.clients_count != actual.clients_count) {
    return ::testing::AssertionFailure()
           << "clients_count " << actual.clients_count << " instead of " << expected.clients_count;
  }
  if (expected.interfaces.size() != actual.interfaces.size()) {
    return ::testing::AssertionFailure()
           << actual.interfaces.size() << " interfaces instead of " << expected.interfaces.size();
  }
  auto actual_interface = actual.interfaces.begin();
  for (auto const& [name, desc] : expected.interfaces) {
    auto const& [actual_name, actual_desc] = *actual_interface++;
    if (name != actual_name || desc.ssid != actual_desc.ssid) {
      return ::testing::AssertionFailure()
             << "interface " << actual_name << " (SSID " << actual_desc.ssid << ") instead of "
             << name << " (SSID " << desc.ssid << ")";
    }
    if (desc.clients.size() != actual_desc.clients.size()) {
      return ::testing::AssertionFailure()
             << "interface " << name << " has " << actual_desc.clients.size()
             << " clients instead of " << desc.clients.size();
    }
    auto actual_client = actual_desc.clients.begin();
    for (auto const& [mac, client] : desc.clients) {
      auto const& [actual_mac, actual_record] = *actual_client++;
      if (mac != actual_mac || mac.valid != actual_mac.valid) {
        return ::testing::AssertionFailure() << "client key " << actual_mac.str() << " instead of "
                                             << mac.str() << " on interface " << name;
      }
      ::testing::AssertionResult const same = same_client(client, actual_record);
      if (!same) {
        return ::testing::AssertionFailure()
               << "client " << mac.str() << " on interface " << name << ": " << same.message();
      }
    }
  }
  return ::testing::AssertionSuccess();
}

// ---- Trips ----------------------------------------------------------------------------------

/// Reads a client from a text or a tree; a reader that throws fails the test with the exception's
/// message and gives nothing.
template <typename Read> std::optional<APClientData> read_client(Read&& read) {
  try {
    return read();
  } catch (std::exception const& e) {
    ADD_FAILURE() << "the reader threw: " << e.what();
  }
  return std::nullopt;
}

/// The client through its IPC text and through its IPC tree (written into an object and read from
/// that object without serialising it).
void expect_client_round_trip(APClientData const& original) {
  std::string const text = original.to_json_str();
  SCOPED_TRACE("client " + text);
  APClientData const expected = expected_after_trip(original);
  std::string const expected_text = expected.to_json_str();

  std::optional<APClientData> const from_text =
      read_client([&text] { return APClientData::from_json_str(text); });
  if (from_text) {
    EXPECT_TRUE(same_client(expected, *from_text)) << "from text";
    EXPECT_EQ(from_text->to_json_str(), expected_text);
  }

  wlccw::cfg::Tree const object = wlccw::cfg::make_object();
  ASSERT_TRUE(object);
  original.to_json(object.get());
  EXPECT_EQ(wlccw::cfg::compact(object.get()), text);
  std::optional<APClientData> const from_tree =
      read_client([&object] { return APClientData::from_json(object.get()); });
  if (from_tree) {
    EXPECT_TRUE(same_client(expected, *from_tree)) << "from tree";
    EXPECT_EQ(from_tree->to_json_str(), expected_text);
  }
}

/// The compact text of a client object holding only the "mlo" object that mlo writes.
std::string mlo_text(Mlo const& mlo) {
  wlccw::cfg::Tree const object = wlccw::cfg::make_object();
  mlo.to_json(*object);
  return wlccw::cfg::compact(object.get());
}

/// The list through its IPC text (parsed again) and through its IPC tree, with the hash.
void expect_list_round_trip(NcIpcClientList const& original) {
  std::string const text = original.to_str();
  SCOPED_TRACE("list " + text);
  NcIpcClientList const expected = expected_after_trip(original);

  wlccw::cfg::Tree const parsed = wlccw::cfg::parse(text);
  ASSERT_TRUE(parsed);
  NcIpcClientList const from_text = NcIpcClientList::from_ipc_json(parsed.get());
  EXPECT_TRUE(same_list(expected, from_text)) << "from text";
  EXPECT_EQ(from_text.to_str(), expected.to_str());
  EXPECT_EQ(from_text.get_hash(), expected.get_hash());

  wlccw::cfg::Tree const tree(original.to_ipc_json());
  ASSERT_TRUE(tree);
  NcIpcClientList const from_tree = NcIpcClientList::from_ipc_json(tree.get());
  EXPECT_TRUE(same_list(expected, from_tree)) << "from tree";
  EXPECT_EQ(from_tree.get_hash(), expected.get_hash());
}

// ---- Tests ----------------------------------------------------------------------------------

/// The enumerator counts the generators draw from are the whole tables: the last value has an IPC
/// text and the value past it has none.
TEST(ClientRoundTripGenerators, CountsCoverEveryEnumerator) {
  auto const covers = [](auto last, auto past) {
    using E = decltype(last);
    return convert_to_ipc_str(std::optional<E>(last)).has_value() &&
           !convert_to_ipc_str(std::optional<E>(past)).has_value();
  };
  EXPECT_TRUE(covers(static_cast<ClientWirelessMode>(wireless_mode_count - 1),
                     static_cast<ClientWirelessMode>(wireless_mode_count)));
  EXPECT_TRUE(covers(static_cast<ClientEapMethod>(eap_method_count - 1),
                     static_cast<ClientEapMethod>(eap_method_count)));
  EXPECT_TRUE(covers(static_cast<ClientMacAuthStatus>(mac_auth_status_count - 1),
                     static_cast<ClientMacAuthStatus>(mac_auth_status_count)));
  EXPECT_TRUE(covers(static_cast<ClientPortalAuthStatus>(portal_auth_status_count - 1),
                     static_cast<ClientPortalAuthStatus>(portal_auth_status_count)));
  EXPECT_TRUE(covers(static_cast<ClientWlanAuthStatus>(wlan_auth_status_count - 1),
                     static_cast<ClientWlanAuthStatus>(wlan_auth_status_count)));
  EXPECT_TRUE(covers(static_cast<ClientWlanAuthMethod>(wlan_auth_method_count - 1),
                     static_cast<ClientWlanAuthMethod>(wlan_auth_method_count)));
  EXPECT_TRUE(covers(static_cast<ClientAuthAlgorithm>(auth_algorithm_count - 1),
                     static_cast<ClientAuthAlgorithm>(auth_algorithm_count)));
  EXPECT_TRUE(radio::band::to_str_opt(static_cast<radio::Band>(band_count - 1)).has_value());
  EXPECT_FALSE(radio::band::to_str_opt(static_cast<radio::Band>(band_count)).has_value());
}

TEST(ClientRoundTrip, ClientRecordsWithAndWithoutMultiLinkData) {
  std::size_t with_mlo = 0;
  std::size_t without_statistics = 0;
  for_each_seed([&](Random& random) {
    APClientData const original = make_client(random);
    with_mlo += original.statistics && original.mlo && !original.mlo->links.empty() ? 1U : 0U;
    without_statistics += original.statistics ? 0U : 1U;
    expect_client_round_trip(original);
  });
  // Both shapes of the IPC form came up many times.
  EXPECT_GT(with_mlo, seed_count / 8);
  EXPECT_GT(without_statistics, seed_count / 8);
}

TEST(ClientRoundTrip, MultiLinkData) {
  for_each_seed([](Random& random) {
    Mlo const original = make_mlo(random);
    std::string const text = mlo_text(original);
    SCOPED_TRACE("mlo " + text);
    std::optional<Mlo> const expected = expected_after_trip(original);

    wlccw::cfg::Tree const object = wlccw::test::parse_json(text);
    ASSERT_TRUE(object);
    std::optional<Mlo> const back = Mlo::from_json(*object);
    EXPECT_EQ(back, expected);
    if (back && expected) {
      EXPECT_EQ(back->mld_mac_ap.valid, expected->mld_mac_ap.valid);
      EXPECT_EQ(mlo_text(*back), mlo_text(*expected));
    }
  });
}

TEST(ClientRoundTrip, ClientListByInterface) {
  for_each_seed([](Random& random) { expect_list_round_trip(make_list(random)); });
}

TEST(ClientRoundTrip, AuthenticatedClients) {
  for_each_seed([](Random& random) {
    AuthenticatedClients original;
    if (random.coin()) {
      // Built from client records, as the controller builds it.
      std::vector<APClientData> records;
      std::size_t const count = list_length(random, 12);
      for (std::size_t i = 0; i < count; ++i) {
        records.push_back(make_client(random));
      }
      original = AuthenticatedClients(records);
    } else {
      // Any member values, addresses not valid and empty SSIDs included.
      std::size_t const count = list_length(random, 24);
      for (std::size_t i = 0; i < count; ++i) {
        AuthenticatedClients::Client client;
        client.mac = random.any_mac();
        client.ssid = any_text(random);
        client.username = maybe_text(random);
        original.clients.push_back(std::move(client));
      }
    }
    std::string const text = original.to_json();
    SCOPED_TRACE("authenticated clients " + text);
    AuthenticatedClients const expected = expected_after_trip(original);

    AuthenticatedClients const back = AuthenticatedClients::from_json(text);
    EXPECT_EQ(back, expected);
    for (std::size_t i = 0; i < back.clients.size() && i < expected.clients.size(); ++i) {
      EXPECT_EQ(back.clients[i].mac.valid, expected.clients[i].mac.valid) << "client " << i;
    }
    EXPECT_EQ(back.to_json(), expected.to_json());
  });
}

TEST(ClientRoundTrip, ClientsByAuthTypeCount) {
  for_each_seed([](Random& random) {
    ClientsByAuthTypeCount original;
    if (random.coin()) {
      std::vector<APClientData> records;
      std::size_t const count = list_length(random, 24);
      for (std::size_t i = 0; i < count; ++i) {
        records.push_back(make_client(random));
      }
      original = ClientsByAuthTypeCount(records);
    } else {
      for (std::uint32_t* counter :
           {&original.wlan_open_owe, &original.wlan_psk, &original.wlan_enterprise,
            &original.wlan_unauthenticated, &original.wlan_total, &original.mab_authenticated,
            &original.mab_pending, &original.portal_mab_authenticated_mab,
            &original.portal_mab_authenticated_portal, &original.portal_mab_pending_mab,
            &original.portal_mab_pending_portal}) {
        *counter = random.any<std::uint32_t>();
      }
    }
    std::string const text = original.to_json();
    SCOPED_TRACE("counters " + text);

    // Every counter travels as it is: nothing is lost.
    std::shared_ptr<ClientsByAuthTypeCount> const back = ClientsByAuthTypeCount::from_json(text);
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(*back, original);
    EXPECT_EQ(back->to_json(), text);
  });
}

TEST(ClientRoundTrip, ApsWithClients) {
  for_each_seed([](Random& random) {
    std::vector<ApWithClients> original(list_length(random, 5));
    for (ApWithClients& entry : original) {
      entry.ap_mac = random.any_mac();
      entry.clients = make_list(random, 6);
    }
    std::string const text = ApWithClients::serialize(original);
    SCOPED_TRACE("APs " + text);
    std::vector<ApWithClients> const expected = expected_after_trip(original);

    std::vector<ApWithClients> const back = ApWithClients::deserialize(text);
    ASSERT_EQ(back.size(), expected.size());
    for (std::size_t i = 0; i < back.size(); ++i) {
      EXPECT_EQ(back[i].ap_mac, expected[i].ap_mac) << "AP " << i;
      EXPECT_EQ(back[i].ap_mac.valid, expected[i].ap_mac.valid) << "AP " << i;
      EXPECT_TRUE(same_list(expected[i].clients, back[i].clients)) << "AP " << i;
    }
    EXPECT_EQ(ApWithClients::serialize(back), ApWithClients::serialize(expected));
  });
}

} // namespace

// ---- Texts written without a tree ------------------------------------------------------------

// The client record and the client list write their texts straight away; the text has to be the
// one the tree of their IPC form serialises to.

std::string tree_text(APClientData const& client) {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  client.to_json(root.get());
  return wlccw::cfg::compact(root.get());
}

std::string tree_text(NcIpcClientList const& list) {
  wlccw::cfg::Tree const root(list.to_ipc_json());
  return wlccw::cfg::compact(root.get());
}

TEST(ClientTexts, ClientRecordTextIsItsTreesText) {
  for_each_seed([](Random& random) {
    APClientData const client = make_client(random);
    EXPECT_EQ(client.to_json_str(), tree_text(client));
  });
}

TEST(ClientTexts, ClientListTextIsItsTreesText) {
  for_each_seed([](Random& random) {
    NcIpcClientList const list = make_list(random);
    EXPECT_EQ(list.to_str(), tree_text(list));
    EXPECT_EQ(list.get_hash(), std::hash<std::string>{}(tree_text(list)));
  });
}

// Interface names that hold a NUL become one key of the IPC form, cut at the NUL; the tree merges
// them into one object, and the text is still the tree's.
TEST(ClientTexts, InterfaceNamesCutAlikeAtANulShareOneObject) {
  NcIpcClientList list;
  list.add_or_update(
      APClientData(MacAddr::from_str("00:00:00:00:00:01"), std::string("wlan0\0a", 7), "first"));
  list.add_or_update(
      APClientData(MacAddr::from_str("00:00:00:00:00:02"), std::string("wlan0\0b", 7), "second"));
  std::string const text = list.to_str();
  EXPECT_EQ(text, tree_text(list));
  EXPECT_EQ(text, "{\"wlan0\":{\"ssid\":\"second\",\"client\":{"
                  "\"00:00:00:00:00:01\":{\"mac\":\"00:00:00:00:00:01\",\"interface\":\"wlan0\","
                  "\"ssid\":\"first\"},"
                  "\"00:00:00:00:00:02\":{\"mac\":\"00:00:00:00:00:02\",\"interface\":\"wlan0\","
                  "\"ssid\":\"second\"}}}}");
}
