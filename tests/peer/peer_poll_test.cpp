// The benchmarks' peer (the poll written directly on nlohmann::json) must write exactly the
// library's IPC client-list text, and so its hash, for the replies the workload generator writes;
// and the generator must write what it claims to.
#include "nlohmann_peer.hpp"
#include "poll.hpp"

#include "support/samples.hpp"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using wlccw::workload::client_reply;
using wlccw::workload::library_poll;

/// Compares the peer's poll of a reply with the library's, text, hash and client count.
void expect_same_poll(std::string const& reply, std::string const& what) {
  SCOPED_TRACE(what);
  wlccw::workload::PollResult const library = library_poll(reply);
  wlccw::peer::PollResult const peer = wlccw::peer::poll(reply);
  EXPECT_EQ(peer.ipc_text, library.ipc_text);
  EXPECT_EQ(peer.hash, library.hash);
  EXPECT_EQ(peer.clients, library.clients);
}

/// A reply holding the given client objects (JSON texts) in its client array.
std::string reply_of(std::vector<std::string> const& clients) {
  std::string reply = R"({"error":false,"rpc-reply":{"data":{"clients":[)";
  for (std::size_t i = 0; i < clients.size(); ++i) {
    reply += (i == 0 ? "" : ",") + clients[i];
  }
  return reply + "]}}}";
}

/// The client objects of a generated reply, parsed by the library's tree layer.
struct ParsedReply {
  wlccw::cfg::Tree root;
  std::vector<lcw_data_t*> clients;
};

ParsedReply parse_reply(std::string const& reply) {
  ParsedReply parsed{wlccw::test::parse_json(reply), {}};
  wlccw::cfg::for_each_element(
      cfg_get_subtree_from_path(parsed.root.get(), wlccw::workload::client_array_path),
      [&parsed](lcw_data_t& client) { parsed.clients.push_back(&client); });
  return parsed;
}

/// Every client record of the library's list for a reply.
std::vector<APClientData> library_clients(std::string const& reply) {
  NcIpcClientList const list = wlccw::workload::import_clients(reply);
  std::vector<APClientData> clients;
  for (auto const& [name, desc] : list.interfaces) {
    for (auto const& [mac, client] : desc.clients) {
      clients.push_back(client);
    }
  }
  return clients;
}

// ---- Peer against library
// ------------------------------------------------------------------------

TEST(PeerPoll, SameTextAndHashAsLibraryForEveryReplySize) {
  for (std::size_t const n : {0U, 1U, 16U, 256U, 1024U}) {
    std::string const reply = client_reply(n, 42);
    expect_same_poll(reply, "clients " + std::to_string(n));
    EXPECT_EQ(wlccw::peer::poll(reply).clients, n) << "a generated client was refused";
  }
}

TEST(PeerPoll, SameTextAndHashAsLibraryForManySeeds) {
  for (std::uint64_t seed = 1; seed <= 24; ++seed) {
    expect_same_poll(client_reply(64, seed), "seed " + std::to_string(seed));
  }
}

TEST(PeerPoll, EmptyListWithoutClientArray) {
  for (std::string const reply :
       {R"({"error":false})", R"({"rpc-reply":{"data":{"clients":{}}}})",
        R"({"rpc-reply":{"data":{"clients":"none"}}})", R"({"rpc-reply":[1,2]})", R"([])"}) {
    expect_same_poll(reply, reply);
    EXPECT_EQ(wlccw::peer::poll(reply).ipc_text, "{}");
  }
}

// The generator never writes refused clients, repeated addresses or one interface with two SSIDs;
// the list rules for them are checked on hand-written replies.
TEST(PeerPoll, RefusedClientsAreLeftOutAsByTheLibrary) {
  std::string const good = R"({"hw-addr":"00:11:22:33:44:55","interface":"wlan0","ssid":"a"})";
  std::string const reply = reply_of({
      good,
      R"({"hw-addr":"00:11:22:33:44:zz","interface":"wlan0","ssid":"a"})", // bad address
      R"({"hw-addr":"00-11-22-33-44-56","interface":"wlan0","ssid":"a"})", // wrong separator
      R"({"interface":"wlan0","ssid":"a"})",                               // no address
      R"({"hw-addr":"001122334457","ssid":"a"})",                          // no interface
      R"({"hw-addr":"001122334458","interface":"","ssid":"a"})",           // empty interface
      R"({"hw-addr":"001122334459","interface":"wlan0"})",                 // no SSID
      R"({"hw-addr":"00112233445a","interface":"wlan0","ssid":""})",       // empty SSID
      R"({})",
      R"(17)",
      R"("text")",
      R"([1])",
      R"(null)",
  });
  expect_same_poll(reply, "refused clients");
  EXPECT_EQ(wlccw::peer::poll(reply).clients, 1U);
}

TEST(PeerPoll, SameAddressReplacesAndInterfaceKeepsFirstSsid) {
  std::string const reply = reply_of({
      R"({"hw-addr":"00:11:22:33:44:55","interface":"wlan1","ssid":"first","vlan-id":1})",
      R"({"hw-addr":"00:11:22:33:44:66","interface":"wlan1","ssid":"second","vlan-id":2})",
      R"({"hw-addr":"00:11:22:33:44:55","interface":"wlan1","ssid":"third","vlan-id":3})",
      R"({"hw-addr":"00:11:22:33:44:55","interface":"wlan0","ssid":"other","vlan-id":4})",
      R"({"hw-addr":"FF:00:00:00:00:01","interface":"Wlan","ssid":"upper","vlan-id":5})",
  });
  expect_same_poll(reply, "replacement");
  wlccw::peer::PollResult const peer = wlccw::peer::poll(reply);
  EXPECT_EQ(peer.clients, 4U);
  // The replacing record is whole: its own SSID and VLAN, the interface's first SSID.
  EXPECT_NE(peer.ipc_text.find(R"("wlan1":{"ssid":"first","client":{"00:11:22:33:44:55":)"
                               R"({"mac":"00:11:22:33:44:55","interface":"wlan1","ssid":"third",)"
                               R"("vlan-id":3})"),
            std::string::npos)
      << peer.ipc_text;
}

// Values the readers refuse or convert in a particular way, one client each.
TEST(PeerPoll, SameTextForReadingEdgeCases) {
  std::string const id = R"("hw-addr":"00:11:22:33:44:55","interface":"wlan0","ssid":"s",)";
  std::string const stats = R"("statistics":{"tx":{"bytes":1}},)";
  std::vector<std::string> const bodies = {
      R"("ip-addr":"010.0.0.1")",
      R"("ip-addr":"0x10.1.1.1")",
      R"("ip-addr":"1.2.3.4junk")",
      R"("ip-addr":"192.168.100.100x")",
      R"("ip-addr":"192.168.100.100.1")",
      R"("ip-addr":"1.2.3")",
      R"("ip-addr":"192.168.1.256")",
      R"("ip-addr":"-1.2.3.4")",
      R"("ip-addr":3232235777)",
      R"("vlan-id":"-0","channel":"007","frequency":"12abc")",
      R"("vlan-id":-5,"channel":4294967296,"frequency":"4294967295")",
      R"("vlan-id":1.5,"channel":true,"frequency":"+6")",
      R"("uptime":"0:00:59")",
      R"("uptime":"1 d 0:0:0")",
      R"("uptime":"59s")",
      R"("uptime":"4294967295:59:59")",
      R"("rssi-1":-40,"rssi-2":-140)",
      R"("rssi":-55,"snr":-3)",
      R"("rssi-1":-40,"rssi-3":-50,"rssi":-30)",
      R"("rssi-1":"-41","rssi-2":"x","rssi-3":1e3,"rssi-4":-2147483649)",
      R"("snr-1":1,"snr-2":2,"snr-3":3,"snr-4":4,"snr-5":5,"snr-6":6,"snr-7":7,"snr-8":8,"snr-9":9)",
      R"("authorized":"True")",
      R"("authorized":true)",
      R"("authorized":false)",
      R"("authorized":1)",
      R"("wireless-mode":"AX")",
      R"("wireless-mode":"11ax","link-quality":80,"link-quality-common":false)",
      R"("hostname":"a&#x41;b&#x4;&#x41&#x041;&amp;&#x0a;x","username":"u&#x2d;1","domain":"d")",
      R"("hostname":null,"username":[1],"domain":{"a":1})",
      R"("rx-bw":"20MHz")",
      R"("tx-rate-numeric":"12")",
      R"("tx-rate":"VHT-MCS 9 NSS 2 866.7","tx-rate-numeric":"866")",
      R"("tx-rate":"HT-MCS 0 0.0","rx-rate":"54M")",
      R"("tx-rate":"HE-MCS 11\tNSS 2   .5","rx-rate":" 1")",
      R"("tx-rate":"a\nb 5","rx-rate":"x 99999999999")",
      R"("actual-tx-rate":"-1","actual-rx-rate":4294967295)",
      R"("statistics":{"tx":"none","rx":{"bytes":"18446744073709551616","packets":1.5}})",
      R"("statistics":[1])",
      stats + R"("eap-method":"EAP-PEAP","radius-mac-auth":"authorized","portal-auth":"expired")",
      stats + R"("eap-method":"eap-peap","radius-mac-auth":"authorized ","portal-auth":"")",
      stats + R"("wlan-auth-status":"pending","wlan-auth-type":"WPA3-Enterprise")",
      stats + R"("wlan-auth-status":"Authorized","wlan-auth-type":"wpa2","auth-algorithm":0)",
      stats + R"("auth-algorithm":"fils-public-key","wlan-auth-time":"120")",
      stats +
          R"("wlan-auth-time":"120s","radius-mac-auth-time":-1,"portal-auth-time":"4294967296")",
      stats + R"("encryption-cipher":"no-cipher","encryption-group-cipher":"")",
      R"("encryption-cipher":"CCMP","eap-method":"EAP-TLS")", // cut off without statistics
      stats + R"("mlo-enabled":"YES","mlo-link-1-mac":"aa:bb:cc:dd:ee:11","mlo-link-1-band":"5")",
      stats + R"("mlo-enabled":"yes","mlo-link-1-mac":"aa:bb:cc:dd:ee:1z","mlo-link-1-band":"5")",
      stats + R"("mlo-enabled":"yes","mlo-link-1-mac":"aabbccddee11","mlo-link-1-band":"5G")",
      stats + R"("mlo-enabled":"yes","mlo-link-2-mac":"aabbccddee12","mlo-link-2-band":"6",)"
              R"("mld-mac-ap":"bad","mlo-link-4-mac":"aabbccddee14","mlo-link-4-band":"2")",
      stats + R"("mlo-enabled":"yes","mld-mac-ap":"02:1B:2C:3D:4E:50",)"
              R"("mlo-link-1-mac":"AA:BB:CC:DD:EE:11","mlo-link-1-band":"2",)"
              R"("mlo-link-1-rssi":-130,"mlo-link-1-snr-1":-2,"mlo-link-1-snr-2":"7",)"
              R"("mlo-link-1-tx-rate":54,"mlo-link-1-bytes-rx":"3000000000",)"
              R"("mlo-link-1-packets-rx":"-12")",
  };
  for (std::string const& body : bodies) {
    expect_same_poll(reply_of({"{" + id + body + "}"}), body);
  }
}

// ---- Sample client objects
// --------------------------------------------------------------------------

TEST(PeerPoll, SameTextAsLibraryForSampleClients) {
  // Left out: netconf-hostile.json and netconf-html-escapes.json. Their SSIDs decode "&#xe9;",
  // "&#xff;" and "&#xfe;" into single bytes that are not valid UTF-8; the library carries such
  // bytes, nlohmann::json refuses to dump them (see SampleWithInvalidUtf8IsRefusedByThePeer).
  for (char const* const name :
       {"mlo-ap-client-disabled.json", "mlo-ap-client-single-link.json",
        "mlo-ap-client-skipped-links.json", "mlo-ap-client-three-links.json", "netconf-full.json",
        "netconf-minimal.json", "netconf-rfc7951-strings.json"}) {
    std::string const sample = wlccw::test::read_sample(std::string("client/") + name);
    ASSERT_FALSE(sample.empty()) << name;
    std::string const reply = reply_of({sample});
    expect_same_poll(reply, name);
    EXPECT_EQ(wlccw::peer::poll(reply).clients, 1U) << name;
  }
}

TEST(PeerPoll, SampleWithInvalidUtf8IsRefusedByThePeer) {
  for (char const* const name : {"netconf-hostile.json", "netconf-html-escapes.json"}) {
    std::string const reply = reply_of({wlccw::test::read_sample(std::string("client/") + name)});
    EXPECT_EQ(library_poll(reply).clients, 1U) << name;
    EXPECT_THROW(wlccw::peer::poll(reply), nlohmann::json::exception) << name;
  }
}

// ---- The generator ------------------------------------------------------------------------------

TEST(Workload, SameSeedSameTextOtherSeedOtherText) {
  for (std::size_t const n : {1U, 64U, 512U}) {
    std::string const reply = client_reply(n, 11);
    EXPECT_EQ(client_reply(n, 11), reply);
    EXPECT_NE(client_reply(n, 12), reply);
    EXPECT_NE(client_reply(n, 11 + 0x100000000ULL), reply);
  }
  EXPECT_EQ(client_reply(0, 1), R"({"error":false,"rpc-reply":{"data":{"clients":[]}}})");
}

TEST(Workload, ClientAddressesAreValidAndDistinct) {
  for (std::uint64_t const seed : {0ULL, 1ULL, 42ULL, 0xffffffffffffffffULL}) {
    std::string const reply = client_reply(4096, seed);
    ParsedReply const parsed = parse_reply(reply);
    ASSERT_EQ(parsed.clients.size(), 4096U);
    std::set<MacAddr> macs;
    for (lcw_data_t* const client : parsed.clients) {
      MacAddr const mac = MacAddr::from_str(cfg_get_param(client, "hw-addr"));
      EXPECT_TRUE(mac.valid);
      macs.insert(mac);
    }
    EXPECT_EQ(macs.size(), 4096U) << "seed " << seed;
  }
}

TEST(Workload, SomeClientsHaveMultiLinkDataImported) {
  std::vector<APClientData> const clients = library_clients(client_reply(1024, 5));
  std::set<std::size_t> link_counts;
  for (APClientData const& client : clients) {
    if (client.mlo) {
      link_counts.insert(client.mlo->links.size());
    }
  }
  EXPECT_EQ(link_counts, (std::set<std::size_t>{2, 3}));
}

TEST(Workload, SomeIntegersComeAsJsonStrings) {
  std::string const reply = client_reply(1024, 6);
  ParsedReply const parsed = parse_reply(reply);
  std::size_t vlan_strings = 0;
  std::size_t vlan_numbers = 0;
  std::size_t byte_strings = 0;
  for (lcw_data_t* const client : parsed.clients) {
    // A string member's text is quoted again by the serialiser; a number's is not.
    std::string const vlan = wlccw::cfg::compact(cfg_get_subtree(client, "vlan-id"));
    ASSERT_FALSE(vlan.empty());
    ++(vlan.front() == '"' ? vlan_strings : vlan_numbers);
    std::string const bytes =
        wlccw::cfg::compact(cfg_get_subtree_from_path(client, "/statistics/tx/bytes"));
    ASSERT_FALSE(bytes.empty());
    if (bytes.front() == '"') {
      ++byte_strings;
    }
  }
  EXPECT_GT(vlan_strings, 0U);
  EXPECT_GT(vlan_numbers, 0U);
  EXPECT_GT(byte_strings, 0U);
  // Read as integers all the same: every client has its VLAN.
  for (APClientData const& client : library_clients(reply)) {
    ASSERT_TRUE(client.vlan_id.has_value());
    EXPECT_GE(*client.vlan_id, 100U);
  }
}

TEST(Workload, HtmlEscapesAreDecoded) {
  std::string const reply = client_reply(256, 7);
  EXPECT_NE(reply.find("&#x2d;"), std::string::npos);
  EXPECT_NE(reply.find("&#x20;"), std::string::npos);
  std::string const text = library_poll(reply).ipc_text;
  EXPECT_EQ(text.find("&#x"), std::string::npos);
  EXPECT_NE(text.find(R"("ssid":"Corp-WiFi")"), std::string::npos);
  EXPECT_NE(text.find("iPhone de Marie-"), std::string::npos);
  EXPECT_NE(text.find("Caf\xc3\xa9 Libre"), std::string::npos);
}

TEST(Workload, NumberedSignalsOfOneToFourAntennas) {
  std::set<std::size_t> rssi_counts;
  std::set<std::size_t> snr_counts;
  for (APClientData const& client : library_clients(client_reply(512, 8))) {
    rssi_counts.insert(client.rssi.values.size());
    snr_counts.insert(client.snr.values.size());
  }
  EXPECT_EQ(rssi_counts, (std::set<std::size_t>{1, 2, 3, 4}));
  EXPECT_EQ(snr_counts, (std::set<std::size_t>{1, 2, 3, 4}));
}

TEST(Workload, ValuesTheReadersRefuseAreThere) {
  std::string const reply = client_reply(1024, 9);
  ParsedReply const parsed = parse_reply(reply);
  std::map<MacAddr, unsigned long long> sent_bytes;
  for (lcw_data_t* const client : parsed.clients) {
    std::string const bytes =
        cfg_object_to_string(cfg_get_subtree_from_path(client, "/statistics/tx/bytes"));
    sent_bytes[MacAddr::from_str(cfg_get_param(client, "hw-addr"))] = std::stoull(bytes);
  }
  std::size_t wide_counters = 0;
  std::size_t rates_without_number = 0;
  for (APClientData const& client : library_clients(reply)) {
    ASSERT_TRUE(client.statistics.has_value());
    unsigned long long const sent = sent_bytes.at(client.mac);
    if (sent > 2147483647ULL) {
      ++wide_counters; // beyond what the reader keeps: read as 0
      EXPECT_EQ(client.statistics->tx.bytes, 0);
    } else {
      EXPECT_EQ(static_cast<unsigned long long>(client.statistics->tx.bytes), sent);
    }
    if (client.statistics->tx.rate == "54M") {
      ++rates_without_number;
      EXPECT_FALSE(client.statistics->tx.modulation);
    }
  }
  EXPECT_GT(wide_counters, 0U);
  EXPECT_GT(rates_without_number, 0U);
}

TEST(Workload, EveryIpcKeyFamilyIsWritten) {
  std::string const text = library_poll(client_reply(1024, 10)).ipc_text;
  // "band" of the client itself, "ap-hostname" and "ap-location" are the controller's to set and
  // never come from an AP's reply; "band" still appears inside the multi-link links.
  for (char const* const key : {"ssid",
                                "client",
                                "mac",
                                "interface",
                                "ip",
                                "vlan-id",
                                "hostname",
                                "username",
                                "domain",
                                "uptime",
                                "frequency",
                                "channel",
                                "rssi-list",
                                "rssi",
                                "snr-list",
                                "snr",
                                "authorized",
                                "wireless-mode",
                                "link-quality",
                                "link-quality-common",
                                "statistics",
                                "tx",
                                "rx",
                                "rate",
                                "bandwidth",
                                "modulation",
                                "rate-numeric",
                                "actual-rate",
                                "bytes",
                                "packets",
                                "eap-method",
                                "mac-auth-status",
                                "portal-auth-status",
                                "wlan-auth-status",
                                "wlan-auth-method",
                                "auth-algorithm",
                                "wlan-auth-uptime",
                                "mac-auth-uptime",
                                "portal-auth-uptime",
                                "mlo",
                                "mld-mac-ap",
                                "links",
                                "id",
                                "band",
                                "encryption-cipher",
                                "encryption-group-cipher"}) {
    EXPECT_NE(text.find("\"" + std::string(key) + "\":"), std::string::npos) << key;
  }
}

} // namespace
