// The client list by interface: updates and their counts, deletion, registration events, the exact
// IPC text, the reader's fallbacks for bad input, hashes and the whole road from NETCONF samples
// through IPC text and back.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/NcIpcClientList.hpp>

#include "client_support.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

using wlccw::cfg::Tree;
using wlccw::test::full_record;
using wlccw::test::mac_of;
using wlccw::test::parse_json;
using wlccw::test::read_client_sample;

APClientData record(char const* mac, std::string const& interface, std::string const& ssid) {
  return APClientData(mac_of(mac), interface, ssid);
}

/// The client stored under interface and MAC; fails the test and throws when there is none.
APClientData const& client_at(NcIpcClientList const& list, std::string const& interface,
                              char const* mac) {
  return list.interfaces.at(interface).clients.at(mac_of(mac));
}

NcIpcClientList read_list(std::string const& json) {
  Tree const root = parse_json(json);
  return NcIpcClientList::from_ipc_json(root.get());
}

std::vector<std::string> interface_names(NcIpcClientList const& list) {
  std::vector<std::string> names;
  for (auto const& entry : list.interfaces) {
    names.push_back(entry.first);
  }
  return names;
}

std::vector<MacAddr> client_macs(NcIpcClientList const& list, std::string const& interface) {
  std::vector<MacAddr> macs;
  for (auto const& entry : list.interfaces.at(interface).clients) {
    macs.push_back(entry.first);
  }
  return macs;
}

// ---- add_or_update ---------------------------------------------------------------------------

TEST(NcIpcClientList, FreshListIsEmpty) {
  NcIpcClientList const list;
  EXPECT_TRUE(list.interfaces.empty());
  EXPECT_EQ(list.clients_count, 0U);
  EXPECT_FALSE(list.find(mac_of("00:11:22:33:44:55")));
  EXPECT_EQ(list.to_str(), "{}");
}

TEST(NcIpcClientList, SameMacOnSameInterfaceIsAddedThenReplaced) {
  NcIpcClientList list;
  EXPECT_EQ(list.add_or_update(record("00:11:22:33:44:55", "wlan0", "Guest")), 1);
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(list.add_or_update(record("00:11:22:33:44:55", "wlan0", "Guest")), 2);
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(list.interfaces.size(), 1U);
  EXPECT_TRUE(list.find(mac_of("00:11:22:33:44:55")));
}

TEST(NcIpcClientList, SameMacOnTwoInterfacesIsTwoClients) {
  NcIpcClientList list;
  EXPECT_EQ(list.add_or_update(record("00:11:22:33:44:55", "wlan0", "Guest")), 1);
  EXPECT_EQ(list.add_or_update(record("00:11:22:33:44:55", "wlan1", "Guest")), 1);
  EXPECT_EQ(list.clients_count, 2U);
  EXPECT_EQ(list.interfaces.size(), 2U);
  EXPECT_TRUE(list.find(mac_of("00:11:22:33:44:55")));
}

TEST(NcIpcClientList, ReplacementTakesTheNewRecordWholeWithoutMerging) {
  NcIpcClientList list;
  APClientData first = record("00:11:22:33:44:55", "wlan0", "Guest");
  first.hostname = "laptop";
  first.channel = 36;
  first.rssi.add(-60);
  ASSERT_EQ(list.add_or_update(std::move(first)), 1);

  APClientData second = record("00:11:22:33:44:55", "wlan0", "Guest");
  second.uptime = 42;
  APClientData const expected = second;
  ASSERT_EQ(list.add_or_update(std::move(second)), 2);

  APClientData const& stored = client_at(list, "wlan0", "00:11:22:33:44:55");
  EXPECT_EQ(stored, expected);
  EXPECT_FALSE(stored.hostname.has_value()); // not kept from the first record
  EXPECT_FALSE(stored.channel.has_value());
  EXPECT_TRUE(stored.rssi.values.empty());
  EXPECT_EQ(stored.uptime, 42U);
}

// The list takes the facts of the record it is given without copying them; every member must
// arrive, including those equality leaves out.
void expect_same_record(APClientData const& stored, APClientData const& expected) {
  EXPECT_EQ(stored, expected);
  EXPECT_EQ(stored.mac.valid, expected.mac.valid);
  EXPECT_EQ(stored.ip.valid, expected.ip.valid);
  EXPECT_EQ(stored.frequency, expected.frequency);
  EXPECT_EQ(stored.channel, expected.channel);
  EXPECT_EQ(stored.rssi.floor, expected.rssi.floor);
  EXPECT_EQ(stored.snr.floor, expected.snr.floor);
  EXPECT_EQ(stored.encryption_cipher, expected.encryption_cipher);
  EXPECT_EQ(stored.encryption_group_cipher, expected.encryption_group_cipher);
  EXPECT_EQ(stored.to_json_str(), expected.to_json_str());
}

TEST(NcIpcClientList, NewClientIsStoredWithEveryMember) {
  NcIpcClientList list;
  APClientData given = full_record();
  APClientData const expected = given;
  ASSERT_EQ(list.add_or_update(std::move(given)), 1);
  expect_same_record(client_at(list, "wlan1-2", "0A:1B:2C:3D:4E:5F"), expected);
}

TEST(NcIpcClientList, ReplacedClientTakesEveryMember) {
  NcIpcClientList list;
  ASSERT_EQ(list.add_or_update(record("0A:1B:2C:3D:4E:5F", "wlan1-2", "Office")), 1);
  APClientData given = full_record();
  APClientData const expected = given;
  ASSERT_EQ(list.add_or_update(std::move(given)), 2);
  expect_same_record(client_at(list, "wlan1-2", "0A:1B:2C:3D:4E:5F"), expected);
}

TEST(NcIpcClientList, RecordGivenKeepsItsIdentity) {
  NcIpcClientList list;
  APClientData given = full_record();
  list.add_or_update(std::move(given));
  EXPECT_EQ(given.mac, mac_of("0A:1B:2C:3D:4E:5F"));
  EXPECT_TRUE(given.mac.valid);
  EXPECT_EQ(given.interface, "wlan1-2");
  EXPECT_EQ(given.ssid, "Office \"A\"");
}

TEST(NcIpcClientList, RecordWithIdentityChangedAfterConstructionIsStoredAsItIs) {
  // The members are public: a caller may empty the SSID after construction. The list stores
  // what it is given and does not check the record again.
  NcIpcClientList list;
  APClientData given = record("00:11:22:33:44:55", "wlan0", "Guest");
  given.ssid.clear();
  given.mac.valid = false;
  APClientData const expected = given;
  ASSERT_EQ(list.add_or_update(std::move(given)), 1);
  APClientData const& stored = client_at(list, "wlan0", "00:11:22:33:44:55");
  expect_same_record(stored, expected);
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "");
}

TEST(NcIpcClientList, NewInterfaceTakesTheSsidOfItsFirstClient) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "Guest"));
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "Guest");
}

TEST(NcIpcClientList, ExistingInterfaceKeepsItsSsid) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "Guest"));
  EXPECT_EQ(list.add_or_update(record("00:00:00:00:00:02", "wlan0", "Other")), 1);
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "Guest");
  // The record keeps the SSID it reported.
  EXPECT_EQ(client_at(list, "wlan0", "00:00:00:00:00:02").ssid, "Other");
  // Replacing the first client with another SSID changes nothing either.
  EXPECT_EQ(list.add_or_update(record("00:00:00:00:00:01", "wlan0", "Third")), 2);
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "Guest");
}

TEST(NcIpcClientList, ClientsAreKeptInMacOrderAndInterfacesInNameOrder) {
  NcIpcClientList list;
  list.add_or_update(record("ff:00:00:00:00:01", "wlan1", "A"));
  list.add_or_update(record("00:00:00:00:00:09", "wlan1", "A"));
  list.add_or_update(record("0a:00:00:00:00:00", "wlan1", "A"));
  list.add_or_update(record("01:00:00:00:00:00", "wlan0", "B"));
  list.add_or_update(record("01:00:00:00:00:00", "Wlan9", "C")); // "W" sorts before "w"
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"Wlan9", "wlan0", "wlan1"}));
  EXPECT_EQ(client_macs(list, "wlan1"),
            (std::vector<MacAddr>{mac_of("00:00:00:00:00:09"), mac_of("0a:00:00:00:00:00"),
                                  mac_of("ff:00:00:00:00:01")}));
  EXPECT_EQ(list.clients_count, 5U);
}

// ---- find, recount, clear ----------------------------------------------------------------------

TEST(NcIpcClientList, FindLooksAtEveryInterface) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.add_or_update(record("00:00:00:00:00:02", "wlan5", "B"));
  EXPECT_TRUE(list.find(mac_of("00:00:00:00:00:01")));
  EXPECT_TRUE(list.find(mac_of("00:00:00:00:00:02")));
  EXPECT_FALSE(list.find(mac_of("00:00:00:00:00:03")));
}

TEST(NcIpcClientList, FindComparesTheOctetsOnly) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:00", "wlan0", "A"));
  EXPECT_TRUE(list.find(MacAddr{})); // the invalid default has the same six octets
}

TEST(NcIpcClientList, RecountSumsTheClientsOfEveryInterface) {
  NcIpcClientList list;
  list.interfaces["a"].clients.emplace(mac_of("00:00:00:00:00:01"),
                                       record("00:00:00:00:00:01", "a", "S"));
  list.interfaces["b"].clients.emplace(mac_of("00:00:00:00:00:01"),
                                       record("00:00:00:00:00:01", "b", "S"));
  list.interfaces["b"].clients.emplace(mac_of("00:00:00:00:00:02"),
                                       record("00:00:00:00:00:02", "b", "S"));
  list.interfaces["c"];
  EXPECT_EQ(list.clients_count, 0U);
  list.recount();
  EXPECT_EQ(list.clients_count, 3U);
}

TEST(NcIpcClientList, ClearRemovesEverything) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.add_or_update(record("00:00:00:00:00:02", "wlan1", "B"));
  ASSERT_EQ(list.clients_count, 2U);
  list.clear();
  EXPECT_TRUE(list.interfaces.empty());
  EXPECT_EQ(list.clients_count, 0U);
  EXPECT_FALSE(list.find(mac_of("00:00:00:00:00:01")));
  EXPECT_EQ(list.to_str(), "{}");
}

// ---- del, del_from_all_interfaces ---------------------------------------------------------------

TEST(NcIpcClientList, DelRemovesOneClientAndKeepsTheInterfaceWhileItHasClients) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.add_or_update(record("00:00:00:00:00:02", "wlan0", "A"));
  list.del(mac_of("00:00:00:00:00:01"), "wlan0");
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_FALSE(list.find(mac_of("00:00:00:00:00:01")));
  EXPECT_EQ(client_macs(list, "wlan0"), (std::vector<MacAddr>{mac_of("00:00:00:00:00:02")}));
}

TEST(NcIpcClientList, DelOfTheLastClientRemovesTheInterface) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.add_or_update(record("00:00:00:00:00:02", "wlan1", "B"));
  list.del(mac_of("00:00:00:00:00:01"), "wlan0");
  EXPECT_EQ(list.interfaces.count("wlan0"), 0U);
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(list.to_str(), R"({"wlan1":{"ssid":"B","client":{"00:00:00:00:00:02":)"
                           R"({"mac":"00:00:00:00:00:02","interface":"wlan1","ssid":"B"}}}})");
}

TEST(NcIpcClientList, DelOfOnlyTheInterfaceGivenLeavesTheSameMacElsewhere) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.add_or_update(record("00:00:00:00:00:01", "wlan1", "A"));
  list.del(mac_of("00:00:00:00:00:01"), "wlan1");
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"wlan0"}));
  EXPECT_TRUE(list.find(mac_of("00:00:00:00:00:01")));
  EXPECT_EQ(list.clients_count, 1U);
}

TEST(NcIpcClientList, DelOfUnknownInterfaceOrMacChangesNothing) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  std::string const before = list.to_str();
  list.del(mac_of("00:00:00:00:00:01"), "wlan9");
  list.del(mac_of("00:00:00:00:00:02"), "wlan0");
  list.del(mac_of("00:00:00:00:00:01"), "");
  EXPECT_EQ(list.to_str(), before);
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"wlan0"}));
}

TEST(NcIpcClientList, DelFromAllInterfacesRemovesTheMacFromEveryInterface) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.add_or_update(record("00:00:00:00:00:01", "wlan1", "B"));
  list.add_or_update(record("00:00:00:00:00:01", "wlan2", "C"));
  list.add_or_update(record("00:00:00:00:00:02", "wlan1", "B"));
  ASSERT_EQ(list.clients_count, 4U);
  list.del_from_all_interfaces(mac_of("00:00:00:00:00:01"));
  EXPECT_FALSE(list.find(mac_of("00:00:00:00:00:01")));
  EXPECT_EQ(list.clients_count, 1U);
  // wlan0 and wlan2 had only that client and are gone; wlan1 keeps its other client.
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"wlan1"}));
  EXPECT_EQ(client_macs(list, "wlan1"), (std::vector<MacAddr>{mac_of("00:00:00:00:00:02")}));
}

TEST(NcIpcClientList, DelFromAllInterfacesOfAnUnknownMacChangesNothing) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  std::string const before = list.to_str();
  list.del_from_all_interfaces(mac_of("00:00:00:00:00:09"));
  EXPECT_EQ(list.to_str(), before);
  EXPECT_EQ(list.clients_count, 1U);
}

// ---- registration events ------------------------------------------------------------------------

TEST(NcIpcClientList, SettingANameMarksThePortalAuthenticated) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.set_username_for_client_and_update_status("wlan0", mac_of("00:00:00:00:00:01"), "alice");
  APClientData const& client = client_at(list, "wlan0", "00:00:00:00:00:01");
  EXPECT_EQ(client.username, "alice");
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::AUTHENTICATED);
  EXPECT_EQ(list.clients_count, 1U);
}

TEST(NcIpcClientList, SettingAnEmptyNameSetsItAndMarksThePortalUnauthenticated) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.set_username_for_client_and_update_status("wlan0", mac_of("00:00:00:00:00:01"), "");
  APClientData const& client = client_at(list, "wlan0", "00:00:00:00:00:01");
  ASSERT_TRUE(client.username.has_value());
  EXPECT_EQ(*client.username, "");
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::UNAUTHENTICATED);
}

TEST(NcIpcClientList, SettingANameTouchesOnlyThatClientOnThatInterface) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.add_or_update(record("00:00:00:00:00:01", "wlan1", "A"));
  list.add_or_update(record("00:00:00:00:00:02", "wlan0", "A"));
  list.set_username_for_client_and_update_status("wlan0", mac_of("00:00:00:00:00:01"), "alice");
  EXPECT_FALSE(client_at(list, "wlan1", "00:00:00:00:00:01").username.has_value());
  EXPECT_FALSE(client_at(list, "wlan0", "00:00:00:00:00:02").username.has_value());
  EXPECT_FALSE(client_at(list, "wlan0", "00:00:00:00:00:02").portal_auth_status.has_value());
}

TEST(NcIpcClientList, SettingANameOfAnUnknownInterfaceOrClientChangesNothing) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  NcIpcClientList const before = list;
  list.set_username_for_client_and_update_status("wlan1", mac_of("00:00:00:00:00:01"), "alice");
  list.set_username_for_client_and_update_status("wlan0", mac_of("00:00:00:00:00:02"), "alice");
  list.update_client_as_registered("wlan9", mac_of("00:00:00:00:00:01"), "bob");
  list.update_client_as_unregistered("wlan0", mac_of("00:00:00:00:00:09"));
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"wlan0"}));
  APClientData const& client = client_at(list, "wlan0", "00:00:00:00:00:01");
  EXPECT_EQ(client, client_at(before, "wlan0", "00:00:00:00:00:01"));
  EXPECT_FALSE(client.username.has_value());
  EXPECT_FALSE(client.portal_auth_status.has_value());
  EXPECT_EQ(list.to_str(), before.to_str());
}

TEST(NcIpcClientList, RegisteredSetsTheNameAndAuthenticated) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.update_client_as_registered("wlan0", mac_of("00:00:00:00:00:01"), "bob");
  APClientData const& client = client_at(list, "wlan0", "00:00:00:00:00:01");
  EXPECT_EQ(client.username, "bob");
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::AUTHENTICATED);
}

TEST(NcIpcClientList, RegisteredWithAnEmptyNameIsUnauthenticated) {
  NcIpcClientList list;
  list.add_or_update(record("00:00:00:00:00:01", "wlan0", "A"));
  list.update_client_as_registered("wlan0", mac_of("00:00:00:00:00:01"), "");
  APClientData const& client = client_at(list, "wlan0", "00:00:00:00:00:01");
  EXPECT_EQ(client.username, "");
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::UNAUTHENTICATED);
}

TEST(NcIpcClientList, UnregisteredLeavesAnEmptySetNameAndUnauthenticated) {
  NcIpcClientList list;
  APClientData client = record("00:00:00:00:00:01", "wlan0", "A");
  client.username = "carol";
  client.portal_auth_status = ClientPortalAuthStatus::AUTHENTICATED;
  list.add_or_update(std::move(client));
  list.update_client_as_unregistered("wlan0", mac_of("00:00:00:00:00:01"));
  APClientData const& stored = client_at(list, "wlan0", "00:00:00:00:00:01");
  ASSERT_TRUE(stored.username.has_value());
  EXPECT_EQ(*stored.username, "");
  EXPECT_EQ(stored.portal_auth_status, ClientPortalAuthStatus::UNAUTHENTICATED);
}

// ---- IPC form
// ------------------------------------------------------------------------------------

/// Four clients on two interfaces, added out of order: one with several optional members, one
/// with statistics (so its authentication and cipher keys are written) and one whose SSID differs
/// from its interface's.
NcIpcClientList sample_list() {
  NcIpcClientList list;
  APClientData c1 = record("AA:BB:CC:00:00:01", "wlan1", "Office");
  c1.ip = "10.0.0.5";
  c1.hostname = "pc-1";
  c1.rssi.add(-60);
  c1.rssi.add(-70);
  list.add_or_update(std::move(c1));

  list.add_or_update(record("00:00:00:00:00:02", "wlan1", "Office"));

  APClientData c3 = record("10:00:00:00:00:01", "wlan0", "Guest");
  c3.band = radio::Band::BAND_5G;
  c3.vlan_id = 20;
  APClientData::Statistics statistics;
  statistics.tx.rate = "6M";
  statistics.tx.actual_rate = 6;
  statistics.tx.bytes = 100;
  statistics.tx.packets = 2;
  c3.statistics = statistics;
  c3.wlan_auth_status = ClientWlanAuthStatus::AUTHENTICATED;
  c3.encryption_cipher = "CCMP";
  list.add_or_update(std::move(c3));

  APClientData c4 = record("02:00:00:00:00:01", "wlan0", "Other");
  c4.username = "bob";
  list.add_or_update(std::move(c4));
  return list;
}

constexpr char const* sample_text =
    R"({"wlan0":{"ssid":"Guest","client":{)"
    R"("02:00:00:00:00:01":{"mac":"02:00:00:00:00:01","interface":"wlan0","ssid":"Other",)"
    R"("username":"bob"},)"
    R"("10:00:00:00:00:01":{"mac":"10:00:00:00:00:01","interface":"wlan0","ssid":"Guest",)"
    R"("band":"5G","vlan-id":20,"statistics":{"tx":{"rate":"6M","actual-rate":6,"bytes":100,)"
    R"("packets":2},"rx":{"actual-rate":0,"bytes":0,"packets":0}},)"
    R"("wlan-auth-status":"authenticated","encryption-cipher":"CCMP"}}},)"
    R"("wlan1":{"ssid":"Office","client":{)"
    R"("00:00:00:00:00:02":{"mac":"00:00:00:00:00:02","interface":"wlan1","ssid":"Office"},)"
    R"("aa:bb:cc:00:00:01":{"mac":"aa:bb:cc:00:00:01","interface":"wlan1","ssid":"Office",)"
    R"("ip":"10.0.0.5","hostname":"pc-1","rssi-list":[-60,-70],"rssi":-70}}}})";

TEST(NcIpcClientListIpc, ToStrIsTheWholeIpcText) {
  NcIpcClientList const list = sample_list();
  EXPECT_EQ(list.clients_count, 4U);
  EXPECT_EQ(list.to_str(), sample_text);
}

TEST(NcIpcClientListIpc, ToIpcJsonGivesAnOwnedTreeOfTheSameText) {
  NcIpcClientList const list = sample_list();
  Tree const root(list.to_ipc_json());
  ASSERT_TRUE(root);
  EXPECT_EQ(wlccw::cfg::compact(root.get()), sample_text);
  // The tree is the caller's: changing it leaves the list alone.
  cfg_set_param(root.get(), "extra", "x");
  EXPECT_EQ(list.to_str(), sample_text);
}

TEST(NcIpcClientListIpc, EachClientObjectIsTheRecordsOwnIpcForm) {
  NcIpcClientList const list = sample_list();
  Tree const root(list.to_ipc_json());
  ASSERT_TRUE(root);
  for (auto const& [name, desc] : list.interfaces) {
    for (auto const& [mac, client] : desc.clients) {
      std::string const path = "/" + name + "/client/" + mac.str();
      lcw_data_t const* const object = cfg_get_subtree_from_path(root.get(), path.c_str());
      ASSERT_NE(object, nullptr) << path;
      EXPECT_EQ(wlccw::cfg::compact(object), client.to_json_str()) << path;
    }
  }
}

TEST(NcIpcClientListIpc, EmptyListIsAnEmptyObject) {
  NcIpcClientList const list;
  Tree const root(list.to_ipc_json());
  ASSERT_TRUE(root);
  EXPECT_EQ(wlccw::cfg::compact(root.get()), "{}");
}

TEST(NcIpcClientListIpc, InterfaceWithoutClientsIsWrittenWithAnEmptyClientObject) {
  NcIpcClientList list;
  list.interfaces["wlan0"].ssid = "Guest";
  EXPECT_EQ(list.to_str(), R"({"wlan0":{"ssid":"Guest","client":{}}})");
}

TEST(NcIpcClientListIpc, ClientsAreKeyedByTheMapKeyInLowerCase) {
  // The key is the map's MAC, even when the record was stored under another one by hand.
  NcIpcClientList list;
  list.interfaces["wlan0"].ssid = "G";
  list.interfaces["wlan0"].clients.emplace(mac_of("0A:0B:0C:0D:0E:0F"),
                                           record("00:11:22:33:44:55", "wlan0", "G"));
  list.recount();
  EXPECT_EQ(list.to_str(), R"({"wlan0":{"ssid":"G","client":{"0a:0b:0c:0d:0e:0f":)"
                           R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"G"}}}})");
}

TEST(NcIpcClientListIpc, GetHashIsTheStringHashOfToStr) {
  NcIpcClientList const list = sample_list();
  EXPECT_EQ(list.get_hash(), std::hash<std::string>{}(std::string(sample_text)));
  EXPECT_EQ(NcIpcClientList().get_hash(), std::hash<std::string>{}("{}"));
}

TEST(NcIpcClientListIpc, AChangeOfContentChangesTextAndHash) {
  NcIpcClientList list = sample_list();
  std::string const before = list.to_str();
  std::size_t const before_hash = list.get_hash();
  list.update_client_as_registered("wlan1", mac_of("00:00:00:00:00:02"), "eve");
  EXPECT_NE(list.to_str(), before);
  EXPECT_NE(list.get_hash(), before_hash);
}

TEST(NcIpcClientListIpc, InsertionOrderDoesNotChangeTextOrHash) {
  NcIpcClientList const forward = sample_list();

  NcIpcClientList backward;
  std::vector<APClientData> records;
  for (auto const& entry : forward.interfaces) {
    for (auto const& client : entry.second.clients) {
      records.push_back(client.second);
    }
  }
  // Reversed, but the first client of wlan0 must still be one reporting the interface's SSID.
  std::vector<APClientData> reordered;
  reordered.push_back(records[1]); // wlan0 "Guest"
  reordered.push_back(records[3]); // wlan1
  reordered.push_back(records[2]); // wlan1
  reordered.push_back(records[0]); // wlan0 "Other"
  for (APClientData& client : reordered) {
    backward.add_or_update(std::move(client));
  }
  EXPECT_EQ(backward.clients_count, forward.clients_count);
  EXPECT_EQ(backward.to_str(), forward.to_str());
  EXPECT_EQ(backward.get_hash(), forward.get_hash());
}

// ---- from_ipc_json
// -------------------------------------------------------------------------------

TEST(NcIpcClientListFromIpc, NullRootGivesAnEmptyList) {
  NcIpcClientList const list = NcIpcClientList::from_ipc_json(nullptr);
  EXPECT_TRUE(list.interfaces.empty());
  EXPECT_EQ(list.clients_count, 0U);
}

TEST(NcIpcClientListFromIpc, EmptyObjectGivesAnEmptyList) {
  NcIpcClientList const list = read_list("{}");
  EXPECT_TRUE(list.interfaces.empty());
  EXPECT_EQ(list.clients_count, 0U);
}

TEST(NcIpcClientListFromIpc, RootThatIsNoObjectGivesAnEmptyList) {
  for (char const* json : {R"([{"ssid":"G","client":{}}])", "[]", R"("wlan0")", "5", "null"}) {
    NcIpcClientList const list = read_list(json);
    EXPECT_TRUE(list.interfaces.empty()) << json;
    EXPECT_EQ(list.clients_count, 0U) << json;
  }
}

TEST(NcIpcClientListFromIpc, ReadsBackTheSampleText) {
  NcIpcClientList const original = sample_list();
  NcIpcClientList const list = read_list(sample_text);
  EXPECT_EQ(list.clients_count, 4U);
  EXPECT_EQ(interface_names(list), interface_names(original));
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "Guest");
  EXPECT_EQ(list.interfaces.at("wlan1").ssid, "Office");
  EXPECT_EQ(client_at(list, "wlan0", "02:00:00:00:00:01").ssid, "Other");
  EXPECT_EQ(list.to_str(), sample_text);
}

TEST(NcIpcClientListFromIpc, ClientsAreKeyedByMemberNameNotByTheirMac) {
  NcIpcClientList const list =
      read_list(R"({"wlan0":{"ssid":"G","client":{"AABBCCDDEEFF":)"
                R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"G"}}}})");
  ASSERT_EQ(list.clients_count, 1U);
  auto const& clients = list.interfaces.at("wlan0").clients;
  ASSERT_EQ(clients.count(mac_of("aa:bb:cc:dd:ee:ff")), 1U);
  EXPECT_EQ(clients.count(mac_of("00:11:22:33:44:55")), 0U);
  // The record keeps the address it carries.
  EXPECT_EQ(clients.at(mac_of("aa:bb:cc:dd:ee:ff")).mac, mac_of("00:11:22:33:44:55"));
  EXPECT_FALSE(list.find(mac_of("00:11:22:33:44:55")));
}

TEST(NcIpcClientListFromIpc, MemberNameThatIsNoMacGivesTheZeroKey) {
  NcIpcClientList const list =
      read_list(R"({"wlan0":{"ssid":"G","client":{"not-a-mac":)"
                R"({"mac":"00:11:22:33:44:55","interface":"wlan0","ssid":"G"}}}})");
  ASSERT_EQ(list.clients_count, 1U);
  auto const& clients = list.interfaces.at("wlan0").clients;
  ASSERT_EQ(clients.size(), 1U);
  EXPECT_EQ(clients.begin()->first, MacAddr{});
  EXPECT_EQ(clients.begin()->second.mac, mac_of("00:11:22:33:44:55"));
}

TEST(NcIpcClientListFromIpc, ALaterMemberOfTheSameAddressReplacesTheEarlier) {
  NcIpcClientList const list =
      read_list(R"({"wlan0":{"ssid":"G","client":{)"
                R"("aa:bb:cc:dd:ee:ff":{"mac":"aa:bb:cc:dd:ee:ff","interface":"wlan0","ssid":"G",)"
                R"("hostname":"first"},)"
                R"("AABBCCDDEEFF":{"mac":"aa:bb:cc:dd:ee:ff","interface":"wlan0","ssid":"G",)"
                R"("hostname":"second"}}}})");
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(client_at(list, "wlan0", "aa:bb:cc:dd:ee:ff").hostname, "second");
}

TEST(NcIpcClientListFromIpc, ClientWithoutSsidIsDropped) {
  NcIpcClientList const list =
      read_list(R"({"wlan0":{"ssid":"G","client":{)"
                R"("00:00:00:00:00:01":{"mac":"00:00:00:00:00:01","interface":"wlan0","ssid":"G"},)"
                R"("00:00:00:00:00:02":{"mac":"00:00:00:00:00:02","interface":"wlan0"}}}})");
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(client_macs(list, "wlan0"), (std::vector<MacAddr>{mac_of("00:00:00:00:00:01")}));
}

TEST(NcIpcClientListFromIpc, BadClientsAreDroppedOneByOne) {
  NcIpcClientList const list = read_list(
      R"({"wlan0":{"ssid":"G","client":{)"
      R"("00:00:00:00:00:01":{"mac":"zz","interface":"wlan0","ssid":"G"},)"
      R"("00:00:00:00:00:02":{"mac":"00:00:00:00:00:02","interface":"wlan0","ssid":"G"},)"
      R"("00:00:00:00:00:03":{},)"
      R"("00:00:00:00:00:04":{"mac":"00:00:00:00:00:04","interface":"","ssid":"G"},)"
      R"("00:00:00:00:00:05":{"mac":"00:00:00:00:00:05","interface":"wlan0","ssid":""},)"
      R"("00:00:00:00:00:06":{"mac":"00:00:00:00:00:06","interface":"wlan0","ssid":"G"}}},)"
      R"("wlan1":{"ssid":"H","client":{)"
      R"("00:00:00:00:00:07":{"interface":"wlan1","ssid":"H"}}}})");
  EXPECT_EQ(list.clients_count, 2U);
  EXPECT_EQ(client_macs(list, "wlan0"),
            (std::vector<MacAddr>{mac_of("00:00:00:00:00:02"), mac_of("00:00:00:00:00:06")}));
  // wlan1 lost its only client but stays, as every interface the text names does.
  EXPECT_TRUE(list.interfaces.at("wlan1").clients.empty());
  EXPECT_EQ(list.interfaces.at("wlan1").ssid, "H");
}

TEST(NcIpcClientListFromIpc, ClientMembersThatAreNoObjectsAreDropped) {
  NcIpcClientList const list = read_list(
      R"({"wlan0":{"ssid":"G","client":{)"
      R"("00:00:00:00:00:01":5,"00:00:00:00:00:02":"text","00:00:00:00:00:03":null,)"
      R"("00:00:00:00:00:04":[{"mac":"00:00:00:00:00:04","interface":"wlan0","ssid":"G"}],)"
      R"("00:00:00:00:00:05":{"mac":"00:00:00:00:00:05","interface":"wlan0","ssid":"G"}}}})");
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(client_macs(list, "wlan0"), (std::vector<MacAddr>{mac_of("00:00:00:00:00:05")}));
}

TEST(NcIpcClientListFromIpc, InterfaceWithoutClientObjectIsKeptWithNoClients) {
  NcIpcClientList const list = read_list(
      R"({"wlan0":{"ssid":"G"},)"
      R"("wlan1":{"ssid":"H","client":{)"
      R"("00:00:00:00:00:01":{"mac":"00:00:00:00:00:01","interface":"wlan1","ssid":"H"}}}})");
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"wlan0", "wlan1"}));
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "G");
  EXPECT_TRUE(list.interfaces.at("wlan0").clients.empty());
  EXPECT_EQ(list.clients_count, 1U);
  EXPECT_EQ(list.to_str(),
            R"({"wlan0":{"ssid":"G","client":{}},"wlan1":{"ssid":"H","client":{)"
            R"("00:00:00:00:00:01":{"mac":"00:00:00:00:00:01","interface":"wlan1","ssid":"H"}}}})");
}

TEST(NcIpcClientListFromIpc, ClientMemberThatIsNoObjectGivesNoClients) {
  NcIpcClientList const list =
      read_list(R"({"wlan0":{"ssid":"G","client":[{"mac":"00:00:00:00:00:01","interface":"wlan0",)"
                R"("ssid":"G"}]},"wlan1":{"ssid":"H","client":"x"}})");
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"wlan0", "wlan1"}));
  EXPECT_TRUE(list.interfaces.at("wlan0").clients.empty());
  EXPECT_TRUE(list.interfaces.at("wlan1").clients.empty());
  EXPECT_EQ(list.clients_count, 0U);
}

TEST(NcIpcClientListFromIpc, InterfaceMembersThatAreNoObjectsGiveEntriesWithoutSsidOrClients) {
  // Every member names an interface; a member that is no object has no "ssid" and no "client".
  NcIpcClientList const list = read_list(R"({"wlan0":5,"wlan1":"text","wlan2":[1],"wlan3":null})");
  EXPECT_EQ(interface_names(list), (std::vector<std::string>{"wlan0", "wlan1", "wlan2", "wlan3"}));
  for (auto const& entry : list.interfaces) {
    EXPECT_EQ(entry.second.ssid, "") << entry.first;
    EXPECT_TRUE(entry.second.clients.empty()) << entry.first;
  }
  EXPECT_EQ(list.clients_count, 0U);
}

TEST(NcIpcClientListFromIpc, MissingOrNonTextSsidIsEmpty) {
  NcIpcClientList const list =
      read_list(R"({"wlan0":{"client":{}},"wlan1":{"ssid":{"x":1}},"wlan2":{"ssid":7}})");
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "");
  EXPECT_EQ(list.interfaces.at("wlan1").ssid, "");
  EXPECT_EQ(list.interfaces.at("wlan2").ssid, "7"); // a number reads as its decimal text
}

TEST(NcIpcClientListFromIpc, RecordsKeepTheInterfaceTheyCarry) {
  NcIpcClientList const list =
      read_list(R"({"wlan0":{"ssid":"G","client":{"00:00:00:00:00:01":)"
                R"({"mac":"00:00:00:00:00:01","interface":"wlan7","ssid":"X"}}}})");
  APClientData const& client = client_at(list, "wlan0", "00:00:00:00:00:01");
  EXPECT_EQ(client.interface, "wlan7");
  EXPECT_EQ(client.ssid, "X");
  EXPECT_EQ(list.interfaces.at("wlan0").ssid, "G");
}

// ---- From NETCONF samples through the IPC text and back -----------------------------------------

APClientData from_netconf_sample(char const* name) {
  Tree const node = parse_json(read_client_sample(name));
  return APClientData::from_netconf_json(node.get());
}

/// The record as its own IPC form carries it: a signal with readings comes back with its
/// representative value as the reported one, and a reported value without readings is not sent.
void as_the_ipc_form_carries_it(AntennaSignalMetrics<std::greater<int>, std::less<int>>& metric) {
  if (metric.values.empty()) {
    metric.reported.reset();
  } else {
    metric.reported = metric.get_signal();
  }
}

TEST(NcIpcClientListRoundTrip, NetconfClientsSurviveTheIpcText) {
  std::vector<APClientData> imported;
  for (char const* name : {"netconf-full.json", "netconf-minimal.json", "netconf-html-escapes.json",
                           "netconf-rfc7951-strings.json", "netconf-hostile.json"}) {
    APClientData client = from_netconf_sample(name);
    as_the_ipc_form_carries_it(client.rssi);
    as_the_ipc_form_carries_it(client.snr);
    imported.push_back(client);
  }
  // A second client on the interface of the first, and the first again on another interface.
  APClientData extra = imported.front();
  extra.mac = mac_of("a4:5e:60:c2:19:01");
  imported.push_back(extra);
  APClientData moved = imported.front();
  moved.interface = "wlan9";
  imported.push_back(moved);

  NcIpcClientList list;
  for (APClientData const& client : imported) {
    APClientData copy = client;
    EXPECT_EQ(list.add_or_update(std::move(copy)), 1) << client.mac.str() << client.interface;
  }
  ASSERT_EQ(list.clients_count, imported.size());

  std::string const text = list.to_str();
  NcIpcClientList const back = read_list(text);
  EXPECT_EQ(back.clients_count, list.clients_count);
  EXPECT_EQ(interface_names(back), interface_names(list));
  for (auto const& [name, desc] : list.interfaces) {
    EXPECT_EQ(back.interfaces.at(name).ssid, desc.ssid) << name;
    EXPECT_EQ(client_macs(back, name), client_macs(list, name)) << name;
    for (auto const& [mac, client] : desc.clients) {
      EXPECT_EQ(back.interfaces.at(name).clients.at(mac), client) << name << " " << mac.str();
    }
  }
  EXPECT_EQ(back.to_str(), text);
  EXPECT_EQ(back.get_hash(), list.get_hash());
}

TEST(NcIpcClientListRoundTrip, NonUtf8SsidSurvivesTheIpcText) {
  Tree const node = parse_json(R"({"hw-addr":"00:1a:2b:3c:4d:5e","interface":"wlan0",)"
                               R"("ssid":"&#xff;"})");
  APClientData client = APClientData::from_netconf_json(node.get());
  ASSERT_EQ(client.ssid, std::string(1, '\xff'));
  NcIpcClientList list;
  list.add_or_update(std::move(client));
  list.add_or_update(from_netconf_sample("netconf-html-escapes.json"));
  ASSERT_EQ(list.interfaces.at("wlan0").ssid, "\xff");

  std::string const text = list.to_str();
  EXPECT_NE(text.find("\"ssid\":\"\xff\""), std::string::npos); // written as the byte itself
  NcIpcClientList const back = read_list(text);
  EXPECT_EQ(back.interfaces.at("wlan0").ssid, "\xff");
  EXPECT_EQ(client_at(back, "wlan0", "00:1a:2b:3c:4d:5e").ssid, "\xff");
  EXPECT_EQ(back.interfaces.at("wlan2-vap0").ssid, "Caf\xe9 Guest\xff");
  EXPECT_EQ(client_at(back, "wlan2-vap0", "3c:22:fb:7a:10:4e"),
            client_at(list, "wlan2-vap0", "3c:22:fb:7a:10:4e"));
  EXPECT_EQ(back.to_str(), text);
}

} // namespace
