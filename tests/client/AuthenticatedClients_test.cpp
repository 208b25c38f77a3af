// Which clients count as authenticated: the five predicates over every combination of the four
// authentication facts, the list built from records, its IPC text and the reader's fallbacks.
#include <wlccw/client/AuthenticatedClients.hpp>

#include "auth_combinations.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using wlccw::test::AuthFacts;
using wlccw::test::describe;
using wlccw::test::make_auth_client;
using M = ClientMacAuthStatus;
using P = ClientPortalAuthStatus;
using W = ClientWlanAuthStatus;
using Method = ClientWlanAuthMethod;
using Client = AuthenticatedClients::Client;

// ---- The rules, stated by name -------------------------------------------------------------

bool expect_use_portal_or_mab(AuthFacts const& f) {
  if (!f.mac || !f.portal) {
    return false;
  }
  switch (*f.portal) {
  case P::AUTHENTICATED:
  case P::REAUTHENTICATE:
  case P::UNAUTHENTICATED:
  case P::PENDING:
  case P::EXPIRED:
    return true;
  case P::NOT_REQUIRED:
    return *f.mac == M::AUTHENTICATED || *f.mac == M::UNAUTHENTICATED || *f.mac == M::PENDING;
  }
  return false;
}

bool expect_auth_by_wlan(AuthFacts const& f) {
  return f.method.has_value() && f.wlan == W::AUTHENTICATED;
}

bool expect_auth_by_mab(AuthFacts const& f) {
  return f.portal == P::NOT_REQUIRED && f.mac == M::AUTHENTICATED;
}

bool expect_auth_by_portal_mab(AuthFacts const& f) {
  bool const portal_ok = f.portal == P::AUTHENTICATED || f.portal == P::REAUTHENTICATE;
  bool const mac_ok = f.mac == M::AUTHENTICATED || f.mac == M::UNAUTHENTICATED;
  return portal_ok && mac_ok;
}

bool expect_auth(AuthFacts const& f) {
  if (expect_use_portal_or_mab(f)) {
    return (expect_auth_by_mab(f) || expect_auth_by_portal_mab(f)) && expect_auth_by_wlan(f);
  }
  return expect_auth_by_wlan(f);
}

TEST(AuthenticatedClientsPredicates, EveryCombinationOfTheFourFacts) {
  std::vector<AuthFacts> const all = wlccw::test::all_auth_facts();
  ASSERT_EQ(all.size(), 1260U);
  std::size_t authenticated = 0;
  for (AuthFacts const& facts : all) {
    APClientData const client = make_auth_client(facts);
    EXPECT_EQ(AuthenticatedClients::is_use_portal_or_mab(client), expect_use_portal_or_mab(facts))
        << describe(facts);
    EXPECT_EQ(AuthenticatedClients::is_auth_by_wlan(client), expect_auth_by_wlan(facts))
        << describe(facts);
    EXPECT_EQ(AuthenticatedClients::is_auth_by_mab(client), expect_auth_by_mab(facts))
        << describe(facts);
    EXPECT_EQ(AuthenticatedClients::is_auth_by_portal_mab(client), expect_auth_by_portal_mab(facts))
        << describe(facts);
    EXPECT_EQ(AuthenticatedClients::is_auth(client), expect_auth(facts)) << describe(facts);
    authenticated += AuthenticatedClients::is_auth(client) ? 1U : 0U;
  }
  // Both outcomes occur, so the comparison above is not trivially satisfied.
  EXPECT_GT(authenticated, 0U);
  EXPECT_LT(authenticated, all.size());
}

TEST(AuthenticatedClientsPredicates, ValuesOutsideTheNamesFollowTheirNumbers) {
  APClientData client =
      make_auth_client({M::AUTHENTICATED, static_cast<P>(6), W::AUTHENTICATED, Method::WPA2});
  EXPECT_FALSE(AuthenticatedClients::is_use_portal_or_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_portal_mab(client));
  EXPECT_TRUE(AuthenticatedClients::is_auth(client)); // decided by the WLAN alone

  client.portal_auth_status = static_cast<P>(-1);
  EXPECT_FALSE(AuthenticatedClients::is_use_portal_or_mab(client));

  client.portal_auth_status = P::NOT_REQUIRED;
  client.mac_auth_status = static_cast<M>(4);
  EXPECT_FALSE(AuthenticatedClients::is_use_portal_or_mab(client));

  client.wlan_auth_status = static_cast<W>(3);
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_wlan(client));
  client.wlan_auth_status = W::AUTHENTICATED;
  client.wlan_auth_method = static_cast<Method>(42); // any method set will do
  EXPECT_TRUE(AuthenticatedClients::is_auth_by_wlan(client));
}

// ---- Edge cases -----------------------------------------------------------------------------

TEST(AuthenticatedClientsPredicates, MabClientNeedsTheWlanToo) {
  APClientData client =
      make_auth_client({M::AUTHENTICATED, P::NOT_REQUIRED, W::AUTHENTICATED, Method::OPEN});
  EXPECT_TRUE(AuthenticatedClients::is_auth_by_mab(client));
  EXPECT_TRUE(AuthenticatedClients::is_use_portal_or_mab(client));
  EXPECT_TRUE(AuthenticatedClients::is_auth(client));

  client.wlan_auth_status.reset();
  EXPECT_TRUE(AuthenticatedClients::is_auth_by_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth(client));
}

TEST(AuthenticatedClientsPredicates, WithoutMacAndPortalOnlyTheWlanDecides) {
  for (auto const& wlan : wlccw::test::all_wlan_states()) {
    for (auto const& method : wlccw::test::all_wlan_methods()) {
      AuthFacts const facts{std::nullopt, std::nullopt, wlan, method};
      APClientData const client = make_auth_client(facts);
      EXPECT_FALSE(AuthenticatedClients::is_use_portal_or_mab(client));
      EXPECT_EQ(AuthenticatedClients::is_auth(client),
                method.has_value() && wlan == W::AUTHENTICATED)
          << describe(facts);
    }
  }
}

TEST(AuthenticatedClientsPredicates, PortalAuthenticatedWithMacNotRequiredUsesPortalOrMab) {
  APClientData const client =
      make_auth_client({M::NOT_REQUIRED, P::AUTHENTICATED, W::AUTHENTICATED, Method::WPA2});
  EXPECT_TRUE(AuthenticatedClients::is_use_portal_or_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_portal_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth(client));
}

TEST(AuthenticatedClientsPredicates, OnlyOneOfMacAndPortalSetIsNeitherPortalNorMab) {
  APClientData client =
      make_auth_client({M::AUTHENTICATED, std::nullopt, W::AUTHENTICATED, Method::WPA2});
  EXPECT_FALSE(AuthenticatedClients::is_use_portal_or_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_portal_mab(client));
  EXPECT_TRUE(AuthenticatedClients::is_auth(client));
  client.mac_auth_status.reset();
  client.portal_auth_status = P::NOT_REQUIRED;
  EXPECT_FALSE(AuthenticatedClients::is_use_portal_or_mab(client));
  EXPECT_FALSE(AuthenticatedClients::is_auth_by_mab(client));
  EXPECT_TRUE(AuthenticatedClients::is_auth(client));
}

// ---- Building the list ------------------------------------------------------------------------

TEST(AuthenticatedClientsBuild, KeepsTheAuthenticatedRecordsInOrder) {
  std::vector<AuthFacts> const all = wlccw::test::all_auth_facts();
  std::vector<APClientData> records;
  std::vector<Client> expected;
  for (std::size_t i = 0; i < all.size(); ++i) {
    APClientData record = make_auth_client(all[i], i);
    record.ssid = "net-" + std::to_string(i);
    if (i % 3 != 0) {
      record.username = "user-" + std::to_string(i);
    }
    record.hostname = "host"; // not carried over
    if (expect_auth(all[i])) {
      expected.push_back(Client{record.mac, record.ssid, record.username});
    }
    records.push_back(record);
  }
  AuthenticatedClients const list(records);
  ASSERT_FALSE(expected.empty());
  ASSERT_EQ(list.clients.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(list.clients[i], expected[i]) << i;
    EXPECT_TRUE(list.clients[i].mac.valid);
  }
}

TEST(AuthenticatedClientsBuild, EmptyVectorAndNoAuthenticatedRecordGiveAnEmptyList) {
  EXPECT_TRUE(AuthenticatedClients(std::vector<APClientData>{}).clients.empty());
  std::vector<APClientData> const records{
      make_auth_client({std::nullopt, std::nullopt, W::PENDING, Method::WPA2}, 1),
      make_auth_client({std::nullopt, std::nullopt, W::AUTHENTICATED, std::nullopt}, 2)};
  EXPECT_TRUE(AuthenticatedClients(records).clients.empty());
}

// ---- IPC text ---------------------------------------------------------------------------------

Client make_client(char const* mac, std::string ssid, std::optional<std::string> username) {
  return Client{MacAddr::from_str(mac), std::move(ssid), std::move(username)};
}

TEST(AuthenticatedClientsJson, EmptyList) {
  EXPECT_EQ(AuthenticatedClients().to_json(), R"({"authenticated-clients":[]})");
}

TEST(AuthenticatedClientsJson, WithAndWithoutUserNames) {
  AuthenticatedClients list;
  list.clients.push_back(make_client("AA:BB:CC:DD:EE:0F", "Office", "alice"));
  list.clients.push_back(make_client("001122334455", "Guest", std::nullopt));
  list.clients.push_back(make_client("02:00:00:00:00:01", "Lab", ""));
  EXPECT_EQ(list.to_json(), R"({"authenticated-clients":[)"
                            R"({"mac":"aa:bb:cc:dd:ee:0f","ssid":"Office","username":"alice"},)"
                            R"({"mac":"00:11:22:33:44:55","ssid":"Guest"},)"
                            R"({"mac":"02:00:00:00:00:01","ssid":"Lab","username":""}]})");
}

TEST(AuthenticatedClientsJson, InvalidMacIsWrittenAsItsOctets) {
  AuthenticatedClients list;
  list.clients.push_back(Client{MacAddr(), "Office", "bob"});
  MacAddr stale;
  stale.bytes = {0xde, 0xad, 0xbe, 0xef, 0x00, 0x01};
  ASSERT_FALSE(stale.valid);
  list.clients.push_back(Client{stale, "x\"y", std::nullopt});
  EXPECT_EQ(list.to_json(), R"({"authenticated-clients":[)"
                            R"({"mac":"00:00:00:00:00:00","ssid":"Office","username":"bob"},)"
                            R"({"mac":"de:ad:be:ef:00:01","ssid":"x\"y"}]})");
}

TEST(AuthenticatedClientsJson, RoundTrip) {
  AuthenticatedClients list;
  list.clients.push_back(make_client("aa:bb:cc:dd:ee:0f", "Office", "alice"));
  list.clients.push_back(make_client("00:11:22:33:44:55", "Guest", std::nullopt));
  list.clients.push_back(make_client("02:00:00:00:00:01", "Lab", ""));
  AuthenticatedClients const back = AuthenticatedClients::from_json(list.to_json());
  EXPECT_EQ(back, list);
  for (Client const& client : back.clients) {
    EXPECT_TRUE(client.mac.valid);
  }
}

TEST(AuthenticatedClientsJson, ReadsBothAddressFormsInEitherCase) {
  AuthenticatedClients const list = AuthenticatedClients::from_json(
      R"({"authenticated-clients":[{"mac":"AABBCCDDEEFF","ssid":"a"},)"
      R"({"mac":"0A:0b:0C:0d:0E:0f","ssid":"b","username":"u"}]})");
  ASSERT_EQ(list.clients.size(), 2U);
  EXPECT_TRUE(list.clients[0].mac.valid);
  EXPECT_EQ(list.clients[0].mac.str(), "aa:bb:cc:dd:ee:ff");
  EXPECT_EQ(list.clients[0].ssid, "a");
  EXPECT_EQ(list.clients[0].username, std::nullopt);
  EXPECT_TRUE(list.clients[1].mac.valid);
  EXPECT_EQ(list.clients[1].mac.str(), "0a:0b:0c:0d:0e:0f");
  EXPECT_EQ(list.clients[1].username, std::optional<std::string>("u"));
}

TEST(AuthenticatedClientsJson, ElementWithNonHexMacIsKeptInvalid) {
  AuthenticatedClients const list = AuthenticatedClients::from_json(
      R"({"authenticated-clients":[{"mac":"zz:bb:cc:dd:ee:gg","ssid":"Office","username":"al"},)"
      R"({"mac":"aa:bb:cc:dd:ee:ff","ssid":"Guest"}]})");
  ASSERT_EQ(list.clients.size(), 2U);
  EXPECT_FALSE(list.clients[0].mac.valid);
  EXPECT_EQ(list.clients[0].mac, MacAddr());
  EXPECT_EQ(list.clients[0].ssid, "Office");
  EXPECT_EQ(list.clients[0].username, std::optional<std::string>("al"));
  EXPECT_TRUE(list.clients[1].mac.valid);
  EXPECT_EQ(list.clients[1].ssid, "Guest");
}

TEST(AuthenticatedClientsJson, MissingKeysGiveDefaultsAndTheElementIsKept) {
  AuthenticatedClients const list =
      AuthenticatedClients::from_json(R"({"authenticated-clients":[{},{"ssid":"s"},7,"x",null]})");
  ASSERT_EQ(list.clients.size(), 5U);
  for (Client const& client : list.clients) {
    EXPECT_FALSE(client.mac.valid);
    EXPECT_EQ(client.mac, MacAddr());
    EXPECT_EQ(client.username, std::nullopt);
  }
  EXPECT_EQ(list.clients[0].ssid, "");
  EXPECT_EQ(list.clients[1].ssid, "s");
  EXPECT_EQ(list.clients[2].ssid, "");
}

TEST(AuthenticatedClientsJson, WrongTypesOfMembers) {
  AuthenticatedClients const list = AuthenticatedClients::from_json(
      R"({"authenticated-clients":[{"mac":["aa:bb:cc:dd:ee:ff"],"ssid":{"a":1},"username":[]},)"
      R"({"mac":17,"ssid":true,"username":null},{"mac":"aa:bb:cc:dd:ee:f","ssid":"","username":5}]})");
  ASSERT_EQ(list.clients.size(), 3U);
  EXPECT_FALSE(list.clients[0].mac.valid);
  EXPECT_EQ(list.clients[0].ssid, "");
  EXPECT_EQ(list.clients[0].username, std::nullopt);
  EXPECT_FALSE(list.clients[1].mac.valid);
  EXPECT_EQ(list.clients[1].ssid, "true"); // a scalar reads as its text
  EXPECT_EQ(list.clients[1].username, std::nullopt);
  EXPECT_FALSE(list.clients[2].mac.valid); // 11 digits
  EXPECT_EQ(list.clients[2].username, std::optional<std::string>("5"));
}

TEST(AuthenticatedClientsJson, TextsThatGiveAnEmptyList) {
  for (char const* text :
       {"", "not json", "{", R"({"authenticated-clients":[{}]} x)", "{}", "[]", "[{}]", "5", "null",
        R"("authenticated-clients")", R"({"authenticated-clients":{}})",
        R"({"authenticated-clients":{"mac":"aa:bb:cc:dd:ee:ff"}})",
        R"({"authenticated-clients":"aa:bb:cc:dd:ee:ff"})", R"({"authenticated-clients":null})",
        R"({"authenticated-clients":[]})", R"({"Authenticated-clients":[{}]})"}) {
    EXPECT_TRUE(AuthenticatedClients::from_json(text).clients.empty()) << text;
  }
}

} // namespace
