// NETCONF replies of hostile size: a 64 MiB client reply with 1 MiB texts among ordinary clients,
// a reply that is one 64 MiB string, and a monitoring reply with tens of thousands of neighbours,
// interfaces and Ethernet ports. Every reader gives its full result or its stated fallback.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/ApWithClients.hpp>
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>
#include <wlccw/client/NcIpcClientList.hpp>
#include <wlccw/common/errors.hpp>
#include <wlccw/ipc/Vap.hpp>
#include <wlccw/ipc/WidsAttackedAps.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include <support/samples.hpp>

#include "hostile/hostile_support.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using wlccw::test::k64MiB;
using wlccw::test::kMiB;
using wlccw::test::kUnderThreadSanitizer;

using wlccw::cfg::Tree;

/// A MAC address text made from a number, upper-case digits as APs often send them.
std::string mac_text(unsigned prefix, unsigned n) {
  char text[24];
  std::snprintf(text, sizeof text, "%02X:%02X:%02X:%02X:%02X:%02X", prefix & 0xFFU, 0x5EU,
                (n >> 24) & 0xFFU, (n >> 16) & 0xFFU, (n >> 8) & 0xFFU, n & 0xFFU);
  return text;
}

// ---- A 64 MiB client reply --------------------------------------------------------------------

TEST(HostileReplies, SixtyFourMebibyteClientReplyImportsEveryClient) {
  if (kUnderThreadSanitizer) {
    GTEST_SKIP() << "too slow under ThreadSanitizer; runs in the other builds";
  }

  constexpr unsigned kHuge = 32;    // clients with a 1 MiB SSID and a 1 MiB host name
  constexpr unsigned kSmall = 2000; // ordinary clients between them
  std::string const huge_ssid = "&#x41;" + std::string(kMiB, 's');
  std::string const huge_hostname = std::string(kMiB, 'h') + "&#x0a;";
  std::string reply = "[";
  reply.reserve(k64MiB + kSmall * 200);
  for (unsigned i = 0; i < kHuge + kSmall; ++i) {
    bool const huge = i % ((kHuge + kSmall) / kHuge) == 0 && i / ((kHuge + kSmall) / kHuge) < kHuge;
    if (i > 0) {
      reply += ',';
    }
    reply += R"({"hw-addr":")" + mac_text(0x02, i) + R"(","interface":"wlan)" +
             std::to_string(i % 4) + R"(-vap0","ssid":")" + (huge ? huge_ssid : "Office") +
             R"(","hostname":")" + (huge ? huge_hostname : "host-" + std::to_string(i)) +
             R"(","rssi-1":-50,"uptime":"0:00:)" + std::to_string(i % 60) + R"("})";
  }
  reply += ']';
  ASSERT_GE(reply.size(), k64MiB);

  Tree const root = wlccw::test::parse_json(reply);
  ASSERT_NE(root, nullptr);
  std::vector<APClientData> clients;
  wlccw::cfg::for_each_element(root.get(), [&](lcw_data_t& element) {
    clients.push_back(APClientData::from_netconf_json(&element));
  });
  ASSERT_EQ(clients.size(), kHuge + kSmall);
  unsigned huge_seen = 0;
  for (unsigned i = 0; i < clients.size(); ++i) {
    APClientData const& client = clients[i];
    EXPECT_EQ(client.mac, MacAddr::from_str(mac_text(0x02, i).c_str()));
    EXPECT_EQ(client.uptime, std::optional<std::uint32_t>(i % 60));
    if (client.ssid.size() > kMiB) {
      ++huge_seen;
      EXPECT_EQ(client.ssid, "A" + std::string(kMiB, 's'));
      EXPECT_EQ(client.hostname, std::string(kMiB, 'h') + ".");
    } else {
      EXPECT_EQ(client.ssid, "Office");
      EXPECT_EQ(client.hostname, "host-" + std::to_string(i));
    }
  }
  EXPECT_EQ(huge_seen, kHuge);
}

// ---- A reply that is one 64 MiB string --------------------------------------------------------

class HostileStringReply : public ::testing::Test {
protected:
  static void SetUpTestSuite() {
    text_ = new std::string("\"");
    text_->reserve(k64MiB + 2);
    while (text_->size() < k64MiB) {
      *text_ += piece();
    }
    *text_ += '"';
    root_ = new Tree(wlccw::cfg::parse(*text_));
  }
  static void TearDownTestSuite() {
    delete root_;
    root_ = nullptr;
    delete text_;
    text_ = nullptr;
  }
  static std::string const& text() { return *text_; }
  /// The parsed reply, shared by the tests of the readers that take a node.
  static lcw_data_t* root() { return root_->get(); }

  /// 256 bytes of string content that need no escape: JSON punctuation, the words of a reply and
  /// the start of an attack report, then plain letters. (Strings with escapes are read through
  /// the parser's slower path; the 1 MiB texts of the other tests carry those.)
  static std::string const& piece() {
    static std::string const text = [] {
      std::string p = "{ error: false, rpc-reply: [1] }]ap 00:11:22 ";
      p.append(kPieceSize - p.size(), 'z');
      return p;
    }();
    return text;
  }
  static constexpr std::size_t kPieceSize = 256;

private:
  static std::string* text_;
  static Tree* root_;
};
std::string* HostileStringReply::text_ = nullptr;
Tree* HostileStringReply::root_ = nullptr;

TEST_F(HostileStringReply, ParsesAsOneStringHeldWhole) {
  ASSERT_EQ(piece().size(), kPieceSize);
  ASSERT_NE(root(), nullptr);
  std::size_t const pieces = (text().size() - 2) / kPieceSize;
  std::string expected;
  expected.reserve(pieces * kPieceSize);
  for (std::size_t i = 0; i < pieces; ++i) {
    expected += piece();
  }
  EXPECT_TRUE(cfg_object_to_string(root()) == expected); // 64 MiB: not printed on failure
}

TEST_F(HostileStringReply, ClientReadersSeeAnEmptyTree) {
  ASSERT_NE(root(), nullptr);
  try {
    (void)APClientData::from_netconf_json(root());
    ADD_FAILURE() << "a string reply was imported";
  } catch (wlccw::EmptyJson const& e) {
    EXPECT_STREQ(e.what(), "JSON data is empty");
  }
  EXPECT_THROW((void)APClientData::from_json(root()), wlccw::EmptyJson);
  EXPECT_THROW((void)APClientData::from_json_str(text()), wlccw::EmptyJson);
  NcIpcClientList const list = NcIpcClientList::from_ipc_json(root());
  EXPECT_TRUE(list.interfaces.empty());
  EXPECT_EQ(list.clients_count, 0U);
}

TEST_F(HostileStringReply, MonitoringReadersGiveTheirFallbacks) {
  NcIpcApMonitoringInformation const info = NcIpcApMonitoringInformation::from_netconf(text());
  EXPECT_TRUE(info.error);
  EXPECT_EQ(info.to_str(), R"({"error":true})");
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface::from_netconf(text()).radios.empty());

  ASSERT_NE(root(), nullptr);
  // As an IPC tree the string has no "error" member that is true: the record is read, and holds
  // nothing.
  NcIpcApMonitoringInformation const from_ipc = NcIpcApMonitoringInformation::from_json(root());
  EXPECT_FALSE(from_ipc.error);
  EXPECT_EQ(from_ipc.hostname, "");
  EXPECT_EQ(from_ipc.power_supply, PowerSupply::UNKNOWN);
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface::from_json(root()).radios.empty());
  EXPECT_EQ(NcIpcApMonitoringApNeighbours::from_netconf(*root()), nullptr);
  EXPECT_EQ(NcIpcApMonitoringApNeighbours::from_ipc(*root()), nullptr);
  EXPECT_EQ(NcIpcApMonitoringInterfaces::from_netconf(*root()), nullptr);
  EXPECT_EQ(NcIpcApMonitoringEthernetPorts::from_netconf(*root()), nullptr);
}

TEST_F(HostileStringReply, ServiceReadersGiveTheirFallbacks) {
  // The text holds "ap 00:11:22" again and again, never a whole report.
  EXPECT_TRUE(WidsAttackedAps::netconf_deserialize(text()).attacked_aps.empty());
  ASSERT_NE(root(), nullptr);
  EXPECT_FALSE(Vap::from_netconf_json(*root()).has_value());
  EXPECT_FALSE(Vap::from_json(*root())->enabled);
}

TEST(HostileReplies, IpcTextReadersOfAStringRootGiveTheirFallbacks) {
  std::string const text = "\"" + std::string(kMiB, 'x') + "\"";
  EXPECT_TRUE(AuthenticatedClients::from_json(text).clients.empty());
  std::shared_ptr<ClientsByAuthTypeCount> const counts = ClientsByAuthTypeCount::from_json(text);
  ASSERT_NE(counts, nullptr);
  EXPECT_EQ(*counts, ClientsByAuthTypeCount());
  EXPECT_TRUE(ApWithClients::deserialize(text).empty());
  NcIpcApMonitoringInformation const info(text);
  EXPECT_FALSE(info.error);
  EXPECT_EQ(info.hostname, "");
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface(text).radios.empty());
  EXPECT_EQ(NcIpcApMonitoringApNeighbours::from_ipc(text), nullptr);
  EXPECT_TRUE(WidsAttackedAps::ipc_deserialize(text).attacked_aps.empty());
}

// ---- A monitoring reply with tens of thousands of entries -------------------------------------

constexpr unsigned kNeighbours = 30'000;
constexpr unsigned kInterfaces = 20'000;
constexpr unsigned kPorts = 20'000;
constexpr unsigned kRadios = 3'000;

char const* const kStates[] = {"up",      "down",    "unknown", "notpresent", "lowerlayerdown",
                               "testing", "dormant", "UP"};
char const* const kDuplexes[] = {"half", "full", "unavailable", "auto", "enabled", "disabled"};

struct MonitoringReply {
  std::string text;
  std::vector<NcIpcApMonitoringApNeighbours::ApNeighbourInfo> neighbours;
  std::vector<NcIpcApMonitoringInterfaces::ApInterfaceInfo> interfaces;
  std::vector<NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo> ports;
};

MonitoringReply const& monitoring_reply() {
  static MonitoringReply const reply = [] {
    MonitoringReply r;
    std::string& t = r.text;
    t = R"({"error":false,"rpc-reply":{"data":{"monitoring":{"information":{"uptime":"1 day",)"
        R"("hostname":"ap-big","hw-platform":"WAP","power-supply":"PoE++","is-default-config":true},)";
    t += R"("neighbor-ap":[)";
    for (unsigned i = 0; i < kNeighbours; ++i) {
      NcIpcApMonitoringApNeighbours::ApNeighbourInfo n;
      std::string const bssid = mac_text(0x0A, i);
      n.bssid = MacAddr::from_str(bssid.c_str());
      n.ssid = "Net-" + std::to_string(i % 97);
      n.channel = 1 + i % 165;
      n.signal_level = -static_cast<std::int32_t>(i % 100);
      n.privacy = i % 2 == 0;
      n.bandwidth = 20U << (i % 4);
      n.last_seen = i;
      if (i % 3 != 0) {
        n.controlled_by_wlc = i % 3 == 1;
      }
      t += (i > 0 ? ",{" : "{");
      t += R"("bssid":")" + bssid + R"(","ssid":"Net&#x2d;)" + std::to_string(i % 97) +
           R"(","channel":)" + std::to_string(n.channel) + R"(,"signal-level":)" +
           std::to_string(n.signal_level) + R"(,"privacy":)" + (n.privacy ? "true" : "false") +
           R"(,"bandwidth":")" + std::to_string(n.bandwidth) + R"(","last-seen":)" +
           std::to_string(n.last_seen);
      if (n.controlled_by_wlc) {
        t += std::string(R"(,"controlled-by-wlc":)") + (*n.controlled_by_wlc ? "true" : "false");
      }
      t += '}';
      r.neighbours.push_back(n);
    }
    t += R"(],"interface":[)";
    for (unsigned i = 0; i < kInterfaces; ++i) {
      NcIpcApMonitoringInterfaces::ApInterfaceInfo e;
      std::string const hwaddr = mac_text(0x0B, i);
      e.name = "eth" + std::to_string(i);
      e.hwaddr = MacAddr::from_str(hwaddr.c_str());
      e.operstate = static_cast<WLCBT_OPERSTATE>(i % 8);
      e.speed = std::uint64_t{1} << (i % 64);
      e.duplex = static_cast<WLCBT_DUPLEX_MODE>(i % 4);
      e.rx_bytes = 18'000'000'000'000'000'000ULL + i;
      e.tx_drop = i;
      t += (i > 0 ? ",{" : "{");
      t += R"("name":")" + e.name + R"(","hwaddr":")" + hwaddr + R"(","operstate":")" +
           kStates[i % 8] + R"(","speed":")" + std::to_string(e.speed) + R"(","duplex":")" +
           kDuplexes[i % 4] + R"(","rx-bytes":")" + std::to_string(e.rx_bytes) + R"(","tx-drop":)" +
           std::to_string(e.tx_drop) + '}';
      r.interfaces.push_back(e);
    }
    t += R"(],"ethernet-ports":[)";
    for (unsigned i = 0; i < kPorts; ++i) {
      NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo p;
      std::string const mac = mac_text(0x0C, i);
      p.name = "lan" + std::to_string(i);
      p.mac_address = MacAddr::from_str(mac.c_str());
      p.logical_interface = "br" + std::to_string(i % 3);
      p.link = static_cast<WLCBT_OPERSTATE>(i % 8);
      p.speed = 1000;
      static WLCBT_DUPLEX_MODE const duplex_read[] = {
          WLCBT_DUPLEX_MODE::HALF,    WLCBT_DUPLEX_MODE::FULL, WLCBT_DUPLEX_MODE::UNAVAILABLE,
          WLCBT_DUPLEX_MODE::UNNAMED, WLCBT_DUPLEX_MODE::FULL, WLCBT_DUPLEX_MODE::HALF};
      p.duplex = duplex_read[i % 6];
      p.media_type = "copper";
      p.uptime = i;
      p.tx_packets = i;
      t += (i > 0 ? ",{" : "{");
      t += R"("name":"LAN)" + std::to_string(i) + R"(","logical-interface":")" +
           p.logical_interface + R"(","mac-address":")" + mac + R"(","link":")" + kStates[i % 8] +
           R"(","speed":1000,"duplex":")" + kDuplexes[i % 6] +
           R"(","media-type":"copper","uptime":)" + std::to_string(i) + R"(,"tx-packets":)" +
           std::to_string(i) + '}';
      r.ports.push_back(p);
    }
    t += R"(],"radio-interface":[)";
    for (unsigned i = 0; i < kRadios; ++i) {
      t += (i > 0 ? ",{" : "{");
      t +=
          R"("name":"wifi)" + std::to_string(i) + R"(","band":"5GHz","noise-1":-90,"noise-2":-92})";
    }
    t += "]}}}}";
    return r;
  }();
  return reply;
}

TEST(HostileReplies, MonitoringReplyWithTensOfThousandsOfEntriesReadsWhole) {
  MonitoringReply const& reply = monitoring_reply();
  NcIpcApMonitoringInformation const info = NcIpcApMonitoringInformation::from_netconf(reply.text);
  EXPECT_FALSE(info.error);
  EXPECT_EQ(info.hostname, "ap-big");
  EXPECT_EQ(info.power_supply, PowerSupply::POE_PLUS_PLUS);
  EXPECT_TRUE(info.is_default_config);

  NcIpcApMonitoringRadioInterface const radio =
      NcIpcApMonitoringRadioInterface::from_netconf(reply.text);
  ASSERT_EQ(radio.radios.size(), kRadios);
  EXPECT_EQ(radio.radios.back().name, "wifi" + std::to_string(kRadios - 1));
  EXPECT_EQ(radio.radios.back().noise_level, std::optional<std::int16_t>(-91));

  Tree const root = wlccw::test::parse_json(reply.text);
  ASSERT_NE(root, nullptr);
  lcw_data_t* const monitoring =
      cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring");
  ASSERT_NE(monitoring, nullptr);

  std::shared_ptr<NcIpcApMonitoringApNeighbours> const neighbours =
      NcIpcApMonitoringApNeighbours::from_netconf(*monitoring);
  ASSERT_NE(neighbours, nullptr);
  EXPECT_EQ(neighbours->neighbours, reply.neighbours);
  std::shared_ptr<NcIpcApMonitoringInterfaces> const interfaces =
      NcIpcApMonitoringInterfaces::from_netconf(*monitoring);
  ASSERT_NE(interfaces, nullptr);
  EXPECT_EQ(interfaces->interfaces, reply.interfaces);
  std::shared_ptr<NcIpcApMonitoringEthernetPorts> const ports =
      NcIpcApMonitoringEthernetPorts::from_netconf(*monitoring);
  ASSERT_NE(ports, nullptr);
  EXPECT_EQ(ports->ethernet_ports, reply.ports);
  // The neighbours' IPC key is not the NETCONF one.
  EXPECT_EQ(NcIpcApMonitoringApNeighbours::from_ipc(*monitoring), nullptr);
}

TEST(HostileReplies, MonitoringListsOfTensOfThousandsReadBackFromIpc) {
  MonitoringReply const& reply = monitoring_reply();
  NcIpcApMonitoringApNeighbours neighbours;
  neighbours.neighbours = reply.neighbours;
  NcIpcApMonitoringInterfaces interfaces;
  interfaces.interfaces = reply.interfaces;
  NcIpcApMonitoringEthernetPorts ports;
  ports.ethernet_ports = reply.ports;

  std::shared_ptr<NcIpcApMonitoringApNeighbours> const from_text =
      NcIpcApMonitoringApNeighbours::from_ipc(neighbours.to_ipc());
  ASSERT_NE(from_text, nullptr);
  EXPECT_EQ(*from_text, neighbours);

  Tree const node = wlccw::cfg::make_object();
  neighbours.to_ipc(*node);
  interfaces.to_ipc(*node);
  ports.to_ipc(*node);
  std::shared_ptr<NcIpcApMonitoringApNeighbours> const n =
      NcIpcApMonitoringApNeighbours::from_ipc(*node);
  ASSERT_NE(n, nullptr);
  EXPECT_EQ(*n, neighbours);
  std::shared_ptr<NcIpcApMonitoringInterfaces> const i =
      NcIpcApMonitoringInterfaces::from_ipc(*node);
  ASSERT_NE(i, nullptr);
  // States and duplexes outside the tables are written as "" and read back as the unnamed value.
  EXPECT_EQ(*i, interfaces);
  std::shared_ptr<NcIpcApMonitoringEthernetPorts> const p =
      NcIpcApMonitoringEthernetPorts::from_ipc(*node);
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(*p, ports);
}

} // namespace
