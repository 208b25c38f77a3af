// The client lists of several APs in one message: the exact text, the round trip and the reader's
// fallbacks.
#include <wlccw/client/ApWithClients.hpp>

#include "support/addresses.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using wlccw::test::mac;

APClientData make_client(char const* client_mac, char const* interface, char const* ssid) {
  return APClientData(mac(client_mac), interface, ssid);
}

/// Two APs: the first with three clients on two interfaces (added out of order), the second
/// without clients.
std::vector<ApWithClients> two_aps() {
  ApWithClients first;
  first.ap_mac = mac("AA:00:00:00:00:01");
  APClientData named = make_client("02:00:00:00:00:03", "wlan1", "Guest");
  named.username = "alice";
  first.clients.add_or_update(std::move(named));
  APClientData host = make_client("02:00:00:00:00:02", "wlan0", "Office");
  host.hostname = "laptop";
  first.clients.add_or_update(std::move(host));
  first.clients.add_or_update(make_client("02:00:00:00:00:01", "wlan0", "Office"));
  ApWithClients second;
  second.ap_mac = mac("bb0000000002");
  return {first, second};
}

std::string const two_aps_text =
    R"([{"ap_mac":"aa:00:00:00:00:01","client_list":{)"
    R"("wlan0":{"ssid":"Office","client":{)"
    R"("02:00:00:00:00:01":{"mac":"02:00:00:00:00:01","interface":"wlan0","ssid":"Office"},)"
    R"("02:00:00:00:00:02":{"mac":"02:00:00:00:00:02","interface":"wlan0","ssid":"Office",)"
    R"("hostname":"laptop"}}},)"
    R"("wlan1":{"ssid":"Guest","client":{)"
    R"("02:00:00:00:00:03":{"mac":"02:00:00:00:00:03","interface":"wlan1","ssid":"Guest",)"
    R"("username":"alice"}}}}},)"
    R"({"ap_mac":"bb:00:00:00:00:02","client_list":{}}])";

TEST(ApWithClientsSerialize, TwoApsWithSeveralClients) {
  EXPECT_EQ(ApWithClients::serialize(two_aps()), two_aps_text);
}

TEST(ApWithClientsSerialize, EmptyVector) {
  EXPECT_EQ(ApWithClients::serialize({}), "[]");
}

TEST(ApWithClientsSerialize, InvalidApMacIsWrittenAsItsOctets) {
  ApWithClients entry;
  entry.ap_mac.bytes = {0x0a, 0x0b, 0x0c, 0x0d, 0x0e, 0x0f};
  ASSERT_FALSE(entry.ap_mac.valid);
  EXPECT_EQ(ApWithClients::serialize({entry, ApWithClients()}),
            R"([{"ap_mac":"0a:0b:0c:0d:0e:0f","client_list":{}},)"
            R"({"ap_mac":"00:00:00:00:00:00","client_list":{}}])");
}

TEST(ApWithClientsDeserialize, TwoApsWithSeveralClients) {
  std::vector<ApWithClients> const expected = two_aps();
  std::vector<ApWithClients> const back = ApWithClients::deserialize(two_aps_text);
  ASSERT_EQ(back.size(), 2U);
  for (std::size_t i = 0; i < back.size(); ++i) {
    EXPECT_TRUE(back[i].ap_mac.valid);
    EXPECT_EQ(back[i].ap_mac, expected[i].ap_mac);
    EXPECT_EQ(back[i].clients.clients_count, expected[i].clients.clients_count);
    EXPECT_EQ(back[i].clients.to_str(), expected[i].clients.to_str());
  }
  EXPECT_EQ(back[0].clients.clients_count, 3U);
  ASSERT_EQ(back[0].clients.interfaces.size(), 2U);
  NcIpcClientList::InterfaceDesc const& guest = back[0].clients.interfaces.at("wlan1");
  EXPECT_EQ(guest.ssid, "Guest");
  ASSERT_EQ(guest.clients.size(), 1U);
  APClientData const& alice = guest.clients.begin()->second;
  EXPECT_EQ(alice, expected[0].clients.interfaces.at("wlan1").clients.begin()->second);
  EXPECT_EQ(alice.username, std::optional<std::string>("alice"));
  EXPECT_TRUE(back[1].clients.interfaces.empty());
  EXPECT_EQ(ApWithClients::serialize(back), two_aps_text);
}

TEST(ApWithClientsDeserialize, TextsThatGiveNoEntry) {
  for (char const* text : {"", "not json", "[", R"([{"ap_mac":"aa:00:00:00:00:01"}] x)", "{}",
                           R"({"ap_mac":"aa:00:00:00:00:01","client_list":{}})", "5", "null",
                           R"("aa:00:00:00:00:01")", "[]"}) {
    EXPECT_TRUE(ApWithClients::deserialize(text).empty()) << text;
  }
}

TEST(ApWithClientsDeserialize, ElementWithoutClientListGivesAnEmptyList) {
  std::vector<ApWithClients> const list =
      ApWithClients::deserialize(R"([{"ap_mac":"aa:00:00:00:00:01"},)"
                                 R"({"ap_mac":"aa:00:00:00:00:02","client_list":5},)"
                                 R"({"ap_mac":"aa:00:00:00:00:03","client_list":[1]}])");
  ASSERT_EQ(list.size(), 3U);
  for (std::size_t i = 0; i < list.size(); ++i) {
    EXPECT_TRUE(list[i].ap_mac.valid) << i;
    EXPECT_EQ(list[i].ap_mac.bytes[5], i + 1U);
    EXPECT_TRUE(list[i].clients.interfaces.empty()) << i;
    EXPECT_EQ(list[i].clients.clients_count, 0U) << i;
  }
}

TEST(ApWithClientsDeserialize, InvalidOrMissingApMacIsKept) {
  std::vector<ApWithClients> const list = ApWithClients::deserialize(
      R"([{"ap_mac":"xx:00:00:00:00:01","client_list":{"wlan0":{"ssid":"Office","client":{)"
      R"("02:00:00:00:00:01":{"mac":"02:00:00:00:00:01","interface":"wlan0","ssid":"Office"}}}}},)"
      R"({"client_list":{}},{"ap_mac":12},{"ap_mac":["aa:00:00:00:00:01"]},7,"s",null])");
  ASSERT_EQ(list.size(), 7U);
  for (ApWithClients const& entry : list) {
    EXPECT_FALSE(entry.ap_mac.valid);
    EXPECT_EQ(entry.ap_mac, MacAddr());
  }
  EXPECT_EQ(list[0].clients.clients_count, 1U);
  EXPECT_TRUE(list[0].clients.find(mac("02:00:00:00:00:01")));
  for (std::size_t i = 1; i < list.size(); ++i) {
    EXPECT_TRUE(list[i].clients.interfaces.empty()) << i;
  }
}

TEST(ApWithClientsDeserialize, BadClientObjectsAreDroppedOneByOne) {
  std::vector<ApWithClients> const list = ApWithClients::deserialize(
      R"([{"ap_mac":"aa:00:00:00:00:01","client_list":{"wlan0":{"ssid":"Office","client":{)"
      R"("02:00:00:00:00:01":{"mac":"02:00:00:00:00:01","interface":"wlan0","ssid":"Office"},)"
      R"("02:00:00:00:00:02":{"mac":"02:00:00:00:00:02","interface":"wlan0"},)"
      R"("02:00:00:00:00:03":{}}}}}])");
  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(list[0].clients.clients_count, 1U);
  EXPECT_TRUE(list[0].clients.find(mac("02:00:00:00:00:01")));
  EXPECT_FALSE(list[0].clients.find(mac("02:00:00:00:00:02")));
}

} // namespace
