// 100 000 clients: imported from one NETCONF reply, kept in a client list that is written to IPC
// and read back, and summarised by the authentication aggregates. The clients cycle through
// fourteen authentication situations whose outcome (authenticated or not, which counters grow)
// follows from the rules for each one, so the totals are checked client by client.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>
#include <wlccw/client/NcIpcClientList.hpp>

#include <support/samples.hpp>

#include "hostile/hostile_support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using wlccw::test::kUnderThreadSanitizer;

using wlccw::cfg::Tree;

constexpr unsigned kClients = 100'000;
constexpr unsigned kInterfaces = 8;

/// The eleven counters in their declaration order.
enum Counter : std::size_t {
  OPEN_OWE,
  PSK,
  ENTERPRISE,
  UNAUTHENTICATED,
  TOTAL,
  MAB_AUTHENTICATED,
  MAB_PENDING,
  PM_AUTHENTICATED_MAB,
  PM_AUTHENTICATED_PORTAL,
  PM_PENDING_MAB,
  PM_PENDING_PORTAL,
  COUNTER_COUNT
};

/// One authentication situation: the AP's texts (nullptr: key absent), whether the client counts
/// as authenticated, and the counters it adds one to.
struct Situation {
  char const* wlan_status;
  char const* wlan_method;
  char const* mac_status;
  char const* portal_status;
  bool authenticated;
  std::vector<Counter> counted_in;
};

std::vector<Situation> const& situations() {
  static std::vector<Situation> const all = {
      // WLAN only: authenticated exactly when the WLAN status is authenticated.
      {"authorized", "WPA2", nullptr, nullptr, true, {PSK, TOTAL}},
      {"authorized", "OWE", nullptr, nullptr, true, {OPEN_OWE, TOTAL}},
      {"authorized", "WPA2-Enterprise", nullptr, nullptr, true, {ENTERPRISE, TOTAL}},
      {"pending", "WPA2", nullptr, nullptr, false, {UNAUTHENTICATED, TOTAL}},
      {"pending", "Open", nullptr, nullptr, false, {TOTAL}},
      {"unauthorized", "WPA", nullptr, nullptr, false, {TOTAL}},
      // MAB with portal not required.
      {"authorized", "WPA2", "authorized", "not-required", true, {PSK, TOTAL, MAB_AUTHENTICATED}},
      {"authorized", "WPA2", "pending", "not-required", false, {PSK, TOTAL, MAB_PENDING}},
      // Portal and MAB.
      {"authorized",
       "Open",
       "unauthorized",
       "authorized",
       true,
       {OPEN_OWE, TOTAL, PM_AUTHENTICATED_PORTAL}},
      {nullptr, nullptr, "pending", "pending", false, {PM_PENDING_MAB}},
      {"authorized",
       "WPA3-Enterprise",
       "authorized",
       "authorized",
       true,
       {ENTERPRISE, TOTAL, PM_AUTHENTICATED_MAB}},
      {"authorized", "WPA3", "authorized", "expired", false, {PSK, TOTAL, PM_PENDING_PORTAL}},
      {"authorized", "WPA2", "not-required", "reauthenticate", false, {PSK, TOTAL}},
      // Neither MAB nor portal in use: the WLAN decides.
      {"authorized", "WPA2", "not-required", "not-required", true, {PSK, TOTAL}},
  };
  return all;
}

Situation const& situation_of(unsigned i) {
  return situations()[i % situations().size()];
}

std::string mac_text(unsigned n) {
  char text[24];
  std::snprintf(text, sizeof text, "02:5E:%02X:%02X:%02X:%02X", (n >> 24) & 0xFFU,
                (n >> 16) & 0xFFU, (n >> 8) & 0xFFU, n & 0xFFU);
  return text;
}

std::string interface_of(unsigned i) {
  return "wlan" + std::to_string(i % kInterfaces) + "-vap0";
}

/// One NETCONF client object of an ordinary size.
std::string client_object(unsigned i) {
  Situation const& s = situation_of(i);
  std::string text = R"({"hw-addr":")" + mac_text(i) + R"(","interface":")" + interface_of(i) +
                     R"(","ssid":"Net&#x2d;)" + std::to_string(i % kInterfaces) +
                     R"(","ip-addr":"10.)" + std::to_string((i >> 16) & 0xFFU) + "." +
                     std::to_string((i >> 8) & 0xFFU) + "." + std::to_string(i & 0xFFU) +
                     R"(","hostname":"host-)" + std::to_string(i) + '"';
  if (i % 2 == 0) {
    text += R"(,"username":"user-)" + std::to_string(i) + '"';
  }
  text += R"(,"uptime":"1 d 00:00:)" + std::to_string(i % 60) + R"(","rssi-1":)" +
          std::to_string(-40 - static_cast<int>(i % 50)) +
          R"(,"rssi-2":-60,"snr-1":30,"tx-rate":"HE-MCS 11 NSS 2 1201.0","tx-bw":"80MHz",)"
          R"("actual-tx-rate":1100,"statistics":{"tx":{"bytes":")" +
          std::to_string(i) + R"(","packets":)" + std::to_string(i % 1000) + "}}";
  for (auto [key, value] :
       {std::pair{"wlan-auth-status", s.wlan_status}, std::pair{"wlan-auth-type", s.wlan_method},
        std::pair{"radius-mac-auth", s.mac_status}, std::pair{"portal-auth", s.portal_status}}) {
    if (value != nullptr) {
      text += std::string(",\"") + key + "\":\"" + value + '"';
    }
  }
  text += '}';
  return text;
}

class HostileManyClients : public ::testing::Test {
protected:
  static void SetUpTestSuite() {
    clients_ = new std::vector<APClientData>();
    if (kUnderThreadSanitizer) {
      return; // every test of the suite is skipped there
    }
    std::string reply = "[";
    reply.reserve(std::size_t{kClients} * 400);
    for (unsigned i = 0; i < kClients; ++i) {
      if (i > 0) {
        reply += ',';
      }
      reply += client_object(i);
    }
    reply += ']';
    Tree const root = wlccw::cfg::parse(reply);
    clients_->reserve(kClients);
    wlccw::cfg::for_each_element(root.get(), [](lcw_data_t& element) {
      clients_->push_back(APClientData::from_netconf_json(&element));
    });
  }
  static void TearDownTestSuite() {
    delete clients_;
    clients_ = nullptr;
  }
  void SetUp() override {
    if (kUnderThreadSanitizer) {
      GTEST_SKIP() << "too slow under ThreadSanitizer; runs in the other builds";
    }
  }
  static std::vector<APClientData> const& clients() { return *clients_; }

private:
  static std::vector<APClientData>* clients_;
};
std::vector<APClientData>* HostileManyClients::clients_ = nullptr;

TEST_F(HostileManyClients, EveryClientOfTheReplyIsImported) {
  ASSERT_EQ(clients().size(), kClients);
  for (unsigned i = 0; i < kClients; ++i) {
    APClientData const& c = clients()[i];
    Situation const& s = situation_of(i);
    ASSERT_EQ(c.mac, MacAddr::from_str(mac_text(i).c_str())) << i;
    EXPECT_EQ(c.interface, interface_of(i));
    EXPECT_EQ(c.ssid, "Net-" + std::to_string(i % kInterfaces));
    EXPECT_EQ(c.hostname, "host-" + std::to_string(i));
    EXPECT_EQ(c.username.has_value(), i % 2 == 0);
    EXPECT_EQ(c.uptime, std::optional<std::uint32_t>(86'400 + i % 60));
    // The weakest antenna represents the client.
    EXPECT_EQ(c.rssi.get_signal(), std::min(-40 - static_cast<int>(i % 50), -60));
    ASSERT_TRUE(c.statistics.has_value());
    EXPECT_EQ(c.statistics->tx.bytes, static_cast<std::int32_t>(i));
    EXPECT_EQ(c.wlan_auth_status.has_value(), s.wlan_status != nullptr);
    EXPECT_EQ(c.mac_auth_status.has_value(), s.mac_status != nullptr);
    EXPECT_EQ(AuthenticatedClients::is_auth(c), s.authenticated) << i;
  }
}

TEST_F(HostileManyClients, ClientListOfAllClientsReadsBackFromIpc) {

  NcIpcClientList list;
  for (APClientData const& client : clients()) {
    APClientData copy = client;
    ASSERT_EQ(list.add_or_update(std::move(copy)), 1);
  }
  EXPECT_EQ(list.clients_count, kClients);
  ASSERT_EQ(list.interfaces.size(), kInterfaces);

  std::string const text = list.to_str();
  Tree const tree = wlccw::test::parse_json(text);
  ASSERT_NE(tree, nullptr);
  NcIpcClientList const back = NcIpcClientList::from_ipc_json(tree.get());
  EXPECT_EQ(back.clients_count, kClients);
  ASSERT_EQ(back.interfaces.size(), kInterfaces);
  for (auto const& [name, interface] : list.interfaces) {
    NcIpcClientList::InterfaceDesc const& read = back.interfaces.at(name);
    EXPECT_EQ(read.ssid, interface.ssid);
    ASSERT_EQ(read.clients.size(), interface.clients.size());
    for (auto const& [mac, client] : interface.clients) {
      // The IPC form carries the selected reading as "rssi"/"snr": read back, it is reported.
      APClientData expected = client;
      expected.rssi.reported = client.rssi.get_signal();
      expected.snr.reported = client.snr.get_signal();
      auto const found = read.clients.find(mac);
      ASSERT_NE(found, read.clients.end()) << mac.str();
      ASSERT_EQ(found->second, expected) << mac.str();
    }
  }

  // Removing every other client leaves half of them.
  for (unsigned i = 0; i < kClients; i += 2) {
    list.del_from_all_interfaces(MacAddr::from_str(mac_text(i).c_str()));
  }
  EXPECT_EQ(list.clients_count, kClients / 2);
}

TEST_F(HostileManyClients, AuthenticatedClientsOfAllClients) {
  AuthenticatedClients expected;
  for (unsigned i = 0; i < kClients; ++i) {
    if (situation_of(i).authenticated) {
      APClientData const& c = clients()[i];
      expected.clients.push_back({c.mac, c.ssid, c.username});
    }
  }
  AuthenticatedClients const built(clients());
  ASSERT_EQ(built.clients.size(), expected.clients.size());
  EXPECT_EQ(built, expected);
  EXPECT_EQ(AuthenticatedClients::from_json(built.to_json()), built);
}

TEST_F(HostileManyClients, ClientsByAuthTypeCountOfAllClients) {
  std::array<std::uint32_t, COUNTER_COUNT> expected{};
  for (unsigned i = 0; i < kClients; ++i) {
    for (Counter const counter : situation_of(i).counted_in) {
      ++expected[counter];
    }
  }
  ClientsByAuthTypeCount const counts(clients());
  std::array<std::uint32_t, COUNTER_COUNT> const got = {counts.wlan_open_owe,
                                                        counts.wlan_psk,
                                                        counts.wlan_enterprise,
                                                        counts.wlan_unauthenticated,
                                                        counts.wlan_total,
                                                        counts.mab_authenticated,
                                                        counts.mab_pending,
                                                        counts.portal_mab_authenticated_mab,
                                                        counts.portal_mab_authenticated_portal,
                                                        counts.portal_mab_pending_mab,
                                                        counts.portal_mab_pending_portal};
  EXPECT_EQ(got, expected);
  std::shared_ptr<ClientsByAuthTypeCount> const back =
      ClientsByAuthTypeCount::from_json(counts.to_json());
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, counts);
}

} // namespace
