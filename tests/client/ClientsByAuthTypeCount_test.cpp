// Client counters by authentication type: every combination of the four authentication facts
// against the counting rules, the IPC text and the reader's fallbacks.
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>

#include "auth_combinations.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using wlccw::test::AuthFacts;
using wlccw::test::describe;
using wlccw::test::make_auth_client;
using Count = ClientsByAuthTypeCount;
using Counter = std::uint32_t ClientsByAuthTypeCount::*;
using M = ClientMacAuthStatus;
using P = ClientPortalAuthStatus;
using W = ClientWlanAuthStatus;
using Method = ClientWlanAuthMethod;

// ---- The rules, stated as lists of what counts where -------------------------------------------

struct MethodRow {
  Method method;
  Counter when_authenticated; // the counter of an authenticated client
  bool counts_when_pending;   // whether a pending client counts as unauthenticated
};

MethodRow const method_rows[] = {
    {Method::OPEN, &Count::wlan_open_owe, false},
    {Method::WPA, &Count::wlan_psk, true},
    {Method::WPA2, &Count::wlan_psk, true},
    {Method::WPA3, &Count::wlan_psk, true},
    {Method::WPA_ENTERPRISE, &Count::wlan_enterprise, true},
    {Method::WPA2_ENTERPRISE, &Count::wlan_enterprise, true},
    {Method::WPA3_ENTERPRISE, &Count::wlan_enterprise, true},
    {Method::OWE, &Count::wlan_open_owe, false},
};

struct PairRow {
  P portal;
  M mac;
  Counter counter;
};

/// Every (portal, MAC) pair that counts among the portal/MAB counters; any other pair counts
/// nowhere there.
PairRow const portal_mab_rows[] = {
    {P::AUTHENTICATED, M::AUTHENTICATED, &Count::portal_mab_authenticated_mab},
    {P::AUTHENTICATED, M::UNAUTHENTICATED, &Count::portal_mab_authenticated_portal},
    {P::REAUTHENTICATE, M::AUTHENTICATED, &Count::portal_mab_authenticated_portal},
    {P::REAUTHENTICATE, M::UNAUTHENTICATED, &Count::portal_mab_authenticated_portal},
    {P::PENDING, M::AUTHENTICATED, &Count::portal_mab_pending_portal},
    {P::PENDING, M::UNAUTHENTICATED, &Count::portal_mab_pending_portal},
    {P::PENDING, M::PENDING, &Count::portal_mab_pending_mab},
    {P::EXPIRED, M::AUTHENTICATED, &Count::portal_mab_pending_portal},
    {P::EXPIRED, M::UNAUTHENTICATED, &Count::portal_mab_pending_portal},
};

Count expected_by_wlan(AuthFacts const& f) {
  Count count;
  if (!f.wlan || !f.method) {
    return count;
  }
  count.wlan_total = 1;
  for (MethodRow const& row : method_rows) {
    if (row.method != *f.method) {
      continue;
    }
    if (*f.wlan == W::AUTHENTICATED) {
      count.*row.when_authenticated = 1;
    }
    if (*f.wlan == W::PENDING && row.counts_when_pending) {
      count.wlan_unauthenticated = 1;
    }
  }
  return count;
}

Count expected_by_mab(AuthFacts const& f) {
  Count count;
  if (f.mac.has_value() && f.portal == P::NOT_REQUIRED) {
    count.mab_authenticated = *f.mac == M::AUTHENTICATED ? 1U : 0U;
    count.mab_pending = *f.mac == M::PENDING ? 1U : 0U;
  }
  return count;
}

Count expected_by_portal_mab(AuthFacts const& f) {
  Count count;
  for (PairRow const& row : portal_mab_rows) {
    if (f.portal == row.portal && f.mac == row.mac) {
      count.*row.counter = 1;
    }
  }
  return count;
}

/// Counter by counter sum.
Count operator+(Count a, Count const& b) {
  for (Counter const counter :
       {&Count::wlan_open_owe, &Count::wlan_psk, &Count::wlan_enterprise,
        &Count::wlan_unauthenticated, &Count::wlan_total, &Count::mab_authenticated,
        &Count::mab_pending, &Count::portal_mab_authenticated_mab,
        &Count::portal_mab_authenticated_portal, &Count::portal_mab_pending_mab,
        &Count::portal_mab_pending_portal}) {
    a.*counter += b.*counter;
  }
  return a;
}

std::string counters_text(Count const& c) {
  return "wlan " + std::to_string(c.wlan_open_owe) + "/" + std::to_string(c.wlan_psk) + "/" +
         std::to_string(c.wlan_enterprise) + "/" + std::to_string(c.wlan_unauthenticated) + "/" +
         std::to_string(c.wlan_total) + " mab " + std::to_string(c.mab_authenticated) + "/" +
         std::to_string(c.mab_pending) + " portal-mab " +
         std::to_string(c.portal_mab_authenticated_mab) + "/" +
         std::to_string(c.portal_mab_authenticated_portal) + "/" +
         std::to_string(c.portal_mab_pending_mab) + "/" +
         std::to_string(c.portal_mab_pending_portal);
}

bool all_zero(Count const& c) {
  return c == Count();
}

TEST(ClientsByAuthTypeCountFill, EveryCombinationOfTheFourFacts) {
  std::vector<AuthFacts> const all = wlccw::test::all_auth_facts();
  ASSERT_EQ(all.size(), 1260U);
  for (AuthFacts const& facts : all) {
    APClientData const client = make_auth_client(facts);
    Count by_wlan;
    by_wlan.fill_clients_count_by_wlan(client);
    EXPECT_EQ(by_wlan, expected_by_wlan(facts))
        << describe(facts) << ": " << counters_text(by_wlan);
    Count by_mab;
    by_mab.fill_clients_count_by_mab(client);
    EXPECT_EQ(by_mab, expected_by_mab(facts)) << describe(facts) << ": " << counters_text(by_mab);
    Count by_portal_mab;
    by_portal_mab.fill_clients_count_by_portal_mab(client);
    EXPECT_EQ(by_portal_mab, expected_by_portal_mab(facts))
        << describe(facts) << ": " << counters_text(by_portal_mab);
    Count const all_three(std::vector<APClientData>{client});
    EXPECT_EQ(all_three,
              expected_by_wlan(facts) + expected_by_mab(facts) + expected_by_portal_mab(facts))
        << describe(facts) << ": " << counters_text(all_three);
  }
}

TEST(ClientsByAuthTypeCountFill, ConstructorCountsEveryRecord) {
  std::vector<AuthFacts> const all = wlccw::test::all_auth_facts();
  std::vector<APClientData> records;
  Count expected;
  for (std::size_t i = 0; i < all.size(); ++i) {
    records.push_back(make_auth_client(all[i], i));
    expected = expected + expected_by_wlan(all[i]) + expected_by_mab(all[i]) +
               expected_by_portal_mab(all[i]);
  }
  Count const count(records);
  EXPECT_EQ(count, expected) << counters_text(count);
  // The same totals counted by hand: each of the 35 (MAC, portal) pairs, absent facts included,
  // comes with 3 WLAN states x 8 methods, and each of the 4 x 9 WLAN pairs with every MAC/portal
  // pair.
  EXPECT_EQ(count.wlan_total, 35U * 3U * 8U);
  EXPECT_EQ(count.wlan_open_owe, 35U * 2U);
  EXPECT_EQ(count.wlan_psk, 35U * 3U);
  EXPECT_EQ(count.wlan_enterprise, 35U * 3U);
  EXPECT_EQ(count.wlan_unauthenticated, 35U * 6U);
  EXPECT_EQ(count.mab_authenticated, 4U * 9U);
  EXPECT_EQ(count.mab_pending, 4U * 9U);
  EXPECT_EQ(count.portal_mab_authenticated_mab, 36U);
  EXPECT_EQ(count.portal_mab_authenticated_portal, 3U * 36U);
  EXPECT_EQ(count.portal_mab_pending_mab, 36U);
  EXPECT_EQ(count.portal_mab_pending_portal, 4U * 36U);
}

TEST(ClientsByAuthTypeCountFill, FillsAdd) {
  APClientData const client =
      make_auth_client({M::AUTHENTICATED, P::NOT_REQUIRED, W::AUTHENTICATED, Method::WPA2});
  Count count;
  for (int i = 0; i < 3; ++i) {
    count.fill_clients_count_by_wlan(client);
    count.fill_clients_count_by_mab(client);
    count.fill_clients_count_by_portal_mab(client);
  }
  EXPECT_EQ(count.wlan_psk, 3U);
  EXPECT_EQ(count.wlan_total, 3U);
  EXPECT_EQ(count.mab_authenticated, 3U);
  Count expected;
  expected.wlan_psk = 3;
  expected.wlan_total = 3;
  expected.mab_authenticated = 3;
  EXPECT_EQ(count, expected);
}

TEST(ClientsByAuthTypeCountFill, FreshAndEmptyVectorAreZero) {
  Count const fresh;
  EXPECT_EQ(fresh.wlan_open_owe, 0U);
  EXPECT_EQ(fresh.wlan_psk, 0U);
  EXPECT_EQ(fresh.wlan_enterprise, 0U);
  EXPECT_EQ(fresh.wlan_unauthenticated, 0U);
  EXPECT_EQ(fresh.wlan_total, 0U);
  EXPECT_EQ(fresh.mab_authenticated, 0U);
  EXPECT_EQ(fresh.mab_pending, 0U);
  EXPECT_EQ(fresh.portal_mab_authenticated_mab, 0U);
  EXPECT_EQ(fresh.portal_mab_authenticated_portal, 0U);
  EXPECT_EQ(fresh.portal_mab_pending_mab, 0U);
  EXPECT_EQ(fresh.portal_mab_pending_portal, 0U);
  EXPECT_TRUE(all_zero(Count(std::vector<APClientData>{})));
}

// ---- Edge cases -----------------------------------------------------------------------------

TEST(ClientsByAuthTypeCountFill, WlanEdgeCases) {
  Count owe;
  owe.fill_clients_count_by_wlan(
      make_auth_client({std::nullopt, std::nullopt, W::AUTHENTICATED, Method::OWE}));
  Count expected;
  expected.wlan_open_owe = 1;
  expected.wlan_total = 1;
  EXPECT_EQ(owe, expected) << counters_text(owe);

  Count only_total;
  only_total.wlan_total = 1;
  Count open_pending;
  open_pending.fill_clients_count_by_wlan(
      make_auth_client({std::nullopt, std::nullopt, W::PENDING, Method::OPEN}));
  EXPECT_EQ(open_pending, only_total) << counters_text(open_pending);
  for (auto const& method : wlccw::test::all_wlan_methods()) {
    if (!method) {
      continue;
    }
    Count unauthenticated;
    unauthenticated.fill_clients_count_by_wlan(
        make_auth_client({std::nullopt, std::nullopt, W::UNAUTHENTICATED, method}));
    EXPECT_EQ(unauthenticated, only_total) << counters_text(unauthenticated);
  }

  Count absent;
  absent.fill_clients_count_by_wlan(
      make_auth_client({std::nullopt, std::nullopt, std::nullopt, Method::WPA2}));
  absent.fill_clients_count_by_wlan(
      make_auth_client({std::nullopt, std::nullopt, W::AUTHENTICATED, std::nullopt}));
  EXPECT_TRUE(all_zero(absent)) << counters_text(absent);
}

TEST(ClientsByAuthTypeCountFill, MethodAboveOweCountsOnlyInTheTotal) {
  Count count;
  count.fill_clients_count_by_wlan(
      make_auth_client({std::nullopt, std::nullopt, W::AUTHENTICATED, static_cast<Method>(8)}));
  count.fill_clients_count_by_wlan(
      make_auth_client({std::nullopt, std::nullopt, W::PENDING, static_cast<Method>(8)}));
  count.fill_clients_count_by_wlan(
      make_auth_client({std::nullopt, std::nullopt, static_cast<W>(7), Method::WPA2}));
  Count expected;
  expected.wlan_total = 3;
  EXPECT_EQ(count, expected) << counters_text(count);
}

TEST(ClientsByAuthTypeCountFill, PortalAuthenticatedWithMacNotRequiredCountsNowhere) {
  APClientData const client =
      make_auth_client({M::NOT_REQUIRED, P::AUTHENTICATED, std::nullopt, std::nullopt});
  Count count;
  count.fill_clients_count_by_portal_mab(client);
  count.fill_clients_count_by_mab(client);
  EXPECT_TRUE(all_zero(count)) << counters_text(count);
  EXPECT_TRUE(AuthenticatedClients::is_use_portal_or_mab(client));
}

// ---- IPC text ---------------------------------------------------------------------------------

Count numbered() {
  Count count;
  count.wlan_open_owe = 1;
  count.wlan_psk = 2;
  count.wlan_enterprise = 3;
  count.wlan_unauthenticated = 4;
  count.wlan_total = 5;
  count.mab_authenticated = 6;
  count.mab_pending = 7;
  count.portal_mab_authenticated_mab = 8;
  count.portal_mab_authenticated_portal = 9;
  count.portal_mab_pending_mab = 10;
  count.portal_mab_pending_portal = 4294967295U;
  return count;
}

TEST(ClientsByAuthTypeCountJson, FreshObject) {
  EXPECT_EQ(Count().to_json(),
            R"({"clients-by-auth-type":{},)"
            R"("wlan":{"open-owe":0,"psk":0,"enterprise":0,"unauthenticated":0,"total-clients":0},)"
            R"("mab":{"authenticated":0,"pending":0},)"
            R"("portal-mab":{"authenticated-mab":0,"authenticated-portal":0,)"
            R"("pending-mab":0,"pending-portal":0}})");
}

TEST(ClientsByAuthTypeCountJson, FilledObject) {
  EXPECT_EQ(numbered().to_json(),
            R"({"clients-by-auth-type":{},)"
            R"("wlan":{"open-owe":1,"psk":2,"enterprise":3,"unauthenticated":4,"total-clients":5},)"
            R"("mab":{"authenticated":6,"pending":7},)"
            R"("portal-mab":{"authenticated-mab":8,"authenticated-portal":9,)"
            R"("pending-mab":10,"pending-portal":4294967295}})");
}

TEST(ClientsByAuthTypeCountJson, RoundTrip) {
  std::shared_ptr<Count> const back = Count::from_json(numbered().to_json());
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, numbered()) << counters_text(*back);
  std::shared_ptr<Count> const zero = Count::from_json(Count().to_json());
  ASSERT_NE(zero, nullptr);
  EXPECT_TRUE(all_zero(*zero));
}

TEST(ClientsByAuthTypeCountJson, TextsThatGiveZeroCounters) {
  for (char const* text :
       {"", "not json", "{", "[]", "5", "null", R"("clients-by-auth-type")", "{}",
        R"({"wlan":{"open-owe":1,"psk":2,"enterprise":3,"unauthenticated":4,"total-clients":5},)"
        R"("mab":{"authenticated":6,"pending":7}})",
        R"([{"clients-by-auth-type":{},"wlan":{"psk":2}}])",
        R"({"clients-by-auth-type":{},"wlan":{"psk":2}} trailing)"}) {
    std::shared_ptr<Count> const count = Count::from_json(text);
    ASSERT_NE(count, nullptr) << text;
    EXPECT_TRUE(all_zero(*count)) << text << ": " << counters_text(*count);
  }
}

TEST(ClientsByAuthTypeCountJson, MarkerMayHoldAnything) {
  for (char const* marker : {"{}", "{\"x\":1}", "[]", "0", "null", "\"\""}) {
    std::string const text = std::string(R"({"clients-by-auth-type":)") + marker +
                             R"(,"mab":{"authenticated":6,"pending":7},"wlan":{"psk":2}})";
    std::shared_ptr<Count> const count = Count::from_json(text);
    ASSERT_NE(count, nullptr);
    Count expected;
    expected.wlan_psk = 2;
    expected.mab_authenticated = 6;
    expected.mab_pending = 7;
    EXPECT_EQ(*count, expected) << text << ": " << counters_text(*count);
  }
}

TEST(ClientsByAuthTypeCountJson, GroupsInsideTheMarkerAreNotRead) {
  std::shared_ptr<Count> const count =
      Count::from_json(R"({"clients-by-auth-type":{"wlan":{"psk":2},"mab":{"pending":1}}})");
  ASSERT_NE(count, nullptr);
  EXPECT_TRUE(all_zero(*count)) << counters_text(*count);
}

TEST(ClientsByAuthTypeCountJson, MissingMabGroupStopsTheReading) {
  std::shared_ptr<Count> const count = Count::from_json(
      R"({"clients-by-auth-type":{},)"
      R"("wlan":{"open-owe":1,"psk":2,"enterprise":3,"unauthenticated":4,"total-clients":5},)"
      R"("portal-mab":{"authenticated-mab":8,"authenticated-portal":9,)"
      R"("pending-mab":10,"pending-portal":11}})");
  ASSERT_NE(count, nullptr);
  Count expected;
  expected.wlan_open_owe = 1;
  expected.wlan_psk = 2;
  expected.wlan_enterprise = 3;
  expected.wlan_unauthenticated = 4;
  expected.wlan_total = 5;
  EXPECT_EQ(*count, expected) << counters_text(*count);
}

TEST(ClientsByAuthTypeCountJson, MissingWlanGroupLeavesEverythingZero) {
  std::shared_ptr<Count> const count =
      Count::from_json(R"({"clients-by-auth-type":{},"mab":{"authenticated":6,"pending":7},)"
                       R"("portal-mab":{"authenticated-mab":8}})");
  ASSERT_NE(count, nullptr);
  EXPECT_TRUE(all_zero(*count)) << counters_text(*count);
}

TEST(ClientsByAuthTypeCountJson, MissingPortalMabGroupKeepsTheOthers) {
  std::shared_ptr<Count> const count = Count::from_json(
      R"({"clients-by-auth-type":{},"wlan":{"total-clients":5},"mab":{"pending":7}})");
  ASSERT_NE(count, nullptr);
  Count expected;
  expected.wlan_total = 5;
  expected.mab_pending = 7;
  EXPECT_EQ(*count, expected) << counters_text(*count);
}

TEST(ClientsByAuthTypeCountJson, MissingKeysAndWrongTypesReadAsZero) {
  std::shared_ptr<Count> const count = Count::from_json(
      R"({"clients-by-auth-type":{},)"
      R"("wlan":{"open-owe":"12","psk":"12abc","enterprise":-1,"unauthenticated":4294967296,)"
      R"("total-clients":1.5},)"
      R"("mab":{"authenticated":true,"pending":{"n":1}},)"
      R"("portal-mab":{"authenticated-mab":[3],"authenticated-portal":null,"pending-mab":" 4"}})");
  ASSERT_NE(count, nullptr);
  Count expected;
  expected.wlan_open_owe = 12; // a string holding one decimal integer reads as that integer
  EXPECT_EQ(*count, expected) << counters_text(*count);
}

TEST(ClientsByAuthTypeCountJson, GroupThatIsNoObjectReadsAsZerosAndTheReadingGoesOn) {
  std::shared_ptr<Count> const count = Count::from_json(
      R"({"clients-by-auth-type":{},"wlan":5,"mab":[1,2],"portal-mab":{"pending-mab":10}})");
  ASSERT_NE(count, nullptr);
  Count expected;
  expected.portal_mab_pending_mab = 10;
  EXPECT_EQ(*count, expected) << counters_text(*count);
}

TEST(ClientsByAuthTypeCountJson, EachCallGivesItsOwnObject) {
  std::shared_ptr<Count> const a = Count::from_json("");
  std::shared_ptr<Count> const b = Count::from_json("");
  ASSERT_NE(a, nullptr);
  ASSERT_NE(b, nullptr);
  EXPECT_NE(a.get(), b.get());
  a->wlan_psk = 1;
  EXPECT_EQ(b->wlan_psk, 0U);
}

} // namespace
