// Cost of the readers of outside input as the input grows to hostile sizes: texts of 1 to 64 MiB,
// 1 000 to 100 000 clients or neighbours, nesting 1 000 to 100 000 levels deep. Every benchmark
// reports its fitted complexity, which should be O(N) (or better, where a reader stops early).
#include <wlccw/wlccw.hpp>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using wlccw::cfg::Tree;

constexpr std::int64_t kMiB = std::int64_t{1} << 20;

std::size_t size_of(benchmark::State const& state) {
  return static_cast<std::size_t>(state.range(0));
}

std::string repeated(std::string const& piece, std::size_t size) {
  std::string text;
  text.reserve(size + piece.size());
  while (text.size() < size) {
    text += piece;
  }
  return text;
}

std::string mac_text(unsigned prefix, unsigned n) {
  char text[24];
  std::snprintf(text, sizeof text, "%02X:5E:%02X:%02X:%02X:%02X", prefix & 0xFFU, (n >> 24) & 0xFFU,
                (n >> 16) & 0xFFU, (n >> 8) & 0xFFU, n & 0xFFU);
  return text;
}

void finish(benchmark::State& state, std::size_t bytes) {
  state.SetComplexityN(state.range(0));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(bytes));
}

// ---- Texts of 1 to 64 MiB ---------------------------------------------------------------------

void BM_DecodeHtmlEscapes(benchmark::State& state) {
  std::string const text = repeated("&#x41;&#x0a;Caf&#xc3;&#xa9;&amp;", size_of(state));
  for (auto _ : state) {
    std::string decoded = external_data::ap::decode_html_safe(std::string_view(text));
    benchmark::DoNotOptimize(decoded.data());
  }
  finish(state, text.size());
}

void BM_StringToInts(benchmark::State& state) {
  std::string const text = repeated("123456,-42,7x,", size_of(state));
  for (auto _ : state) {
    std::vector<int> values = tools::string_to_ints(text, ',');
    benchmark::DoNotOptimize(values.data());
  }
  finish(state, text.size());
}

void BM_StringToMacs(benchmark::State& state) {
  std::string const text = repeated("aa:bb:cc:dd:ee:ff;AABBCCDDEEFF;bad;", size_of(state));
  for (auto _ : state) {
    std::vector<MacAddr> macs = tools::string_to_macs(text, ';');
    benchmark::DoNotOptimize(macs.data());
  }
  finish(state, text.size());
}

void BM_ParseAttackedAps(benchmark::State& state) {
  std::string const text = repeated(
      "ap 00:11:22:33:44:55 at channel 149, ap 00-11-22-33-44-55 at channel 6; ", size_of(state));
  for (auto _ : state) {
    std::vector<std::pair<MacAddr, int>> found = parse_attacked_aps(text);
    benchmark::DoNotOptimize(found.data());
  }
  finish(state, text.size());
}

void BM_ParseAttackedApsNearMisses(benchmark::State& state) {
  std::string const text = repeated("ap ap 00:11:22:33:44:5 at channel x ", size_of(state));
  for (auto _ : state) {
    std::vector<std::pair<MacAddr, int>> found = parse_attacked_aps(text);
    benchmark::DoNotOptimize(found.data());
  }
  finish(state, text.size());
}

void BM_VersionWithLongSuffix(benchmark::State& state) {
  std::string const text = "6.4.12-" + std::string(size_of(state), 'x');
  for (auto _ : state) {
    std::optional<Version> version = Version::try_parse(text);
    benchmark::DoNotOptimize(version);
  }
  finish(state, text.size());
}

void BM_VersionOfLongDigits(benchmark::State& state) {
  std::string const text = std::string(size_of(state), '1') + ".2.3";
  for (auto _ : state) {
    std::optional<VersionRaw> version = VersionRaw::try_parse(text);
    benchmark::DoNotOptimize(version);
  }
  finish(state, text.size());
}

void BM_MacFromLongText(benchmark::State& state) {
  std::string const text(size_of(state), 'a');
  for (auto _ : state) {
    MacAddr mac = MacAddr::from_str(text.c_str());
    benchmark::DoNotOptimize(mac);
  }
  finish(state, text.size());
}

void BM_ImportClientWithLongSsid(benchmark::State& state) {
  std::string const reply = R"({"hw-addr":"aa:bb:cc:dd:ee:01","interface":"wlan0","ssid":")" +
                            repeated("Caf&#xc3;&#xa9;", size_of(state)) + R"(","hostname":"h"})";
  for (auto _ : state) {
    Tree const root = wlccw::cfg::parse(reply);
    APClientData client = APClientData::from_netconf_json(root.get());
    benchmark::DoNotOptimize(&client);
  }
  finish(state, reply.size());
}

void BM_StringReply(benchmark::State& state) {
  std::string const reply = "\"" + repeated(R"(ab\"x\n)", size_of(state)) + "\"";
  for (auto _ : state) {
    NcIpcApMonitoringInformation info = NcIpcApMonitoringInformation::from_netconf(reply);
    benchmark::DoNotOptimize(&info);
  }
  finish(state, reply.size());
}

// ---- 1 000 to 100 000 records -----------------------------------------------------------------

std::string client_object(unsigned i) {
  static char const* const statuses[] = {"authorized", "pending", "unauthorized"};
  static char const* const methods[] = {"Open", "WPA2", "WPA2-Enterprise", "OWE"};
  static char const* const portals[] = {"authorized", "not-required", "pending"};
  return R"({"hw-addr":")" + mac_text(0x02, i) + R"(","interface":"wlan)" + std::to_string(i % 8) +
         R"(-vap0","ssid":"Net&#x2d;)" + std::to_string(i % 8) +
         R"(","ip-addr":"10.0.0.1","hostname":"host-)" + std::to_string(i) +
         R"(","uptime":"1 d 00:00:05","rssi-1":-50,"rssi-2":-60,"snr-1":30,)"
         R"("tx-rate":"HE-MCS 11 NSS 2 1201.0","tx-bw":"80MHz","actual-tx-rate":1100,)"
         R"("statistics":{"tx":{"bytes":"123456","packets":77}},"wlan-auth-status":")" +
         statuses[i % 3] + R"(","wlan-auth-type":")" + methods[i % 4] +
         R"(","radius-mac-auth":"authorized","portal-auth":")" + portals[i % 3] + R"("})";
}

std::string client_reply(std::size_t count) {
  std::string reply = "[";
  for (unsigned i = 0; i < count; ++i) {
    if (i > 0) {
      reply += ',';
    }
    reply += client_object(i);
  }
  reply += ']';
  return reply;
}

std::vector<APClientData> import_all(lcw_data_t const* root) {
  std::vector<APClientData> clients;
  wlccw::cfg::for_each_element(root, [&](lcw_data_t& element) {
    clients.push_back(APClientData::from_netconf_json(&element));
  });
  return clients;
}

void BM_ImportClients(benchmark::State& state) {
  std::string const reply = client_reply(size_of(state));
  for (auto _ : state) {
    Tree const root = wlccw::cfg::parse(reply);
    std::vector<APClientData> clients = import_all(root.get());
    benchmark::DoNotOptimize(clients.data());
  }
  finish(state, reply.size());
}

void BM_ClientListIpcRoundTrip(benchmark::State& state) {
  Tree const root = wlccw::cfg::parse(client_reply(size_of(state)));
  std::vector<APClientData> const clients = import_all(root.get());
  for (auto _ : state) {
    NcIpcClientList list;
    for (APClientData const& client : clients) {
      APClientData copy = client;
      list.add_or_update(std::move(copy));
    }
    std::string const text = list.to_str();
    Tree const tree = wlccw::cfg::parse(text);
    NcIpcClientList back = NcIpcClientList::from_ipc_json(tree.get());
    benchmark::DoNotOptimize(&back);
  }
  finish(state, 0);
}

void BM_Aggregates(benchmark::State& state) {
  Tree const root = wlccw::cfg::parse(client_reply(size_of(state)));
  std::vector<APClientData> const clients = import_all(root.get());
  for (auto _ : state) {
    AuthenticatedClients const authenticated(clients);
    AuthenticatedClients back = AuthenticatedClients::from_json(authenticated.to_json());
    ClientsByAuthTypeCount const counts(clients);
    std::shared_ptr<ClientsByAuthTypeCount> read =
        ClientsByAuthTypeCount::from_json(counts.to_json());
    benchmark::DoNotOptimize(&back);
    benchmark::DoNotOptimize(read.get());
  }
  finish(state, 0);
}

void BM_NeighboursReply(benchmark::State& state) {
  std::string reply = R"({"error":false,"rpc-reply":{"data":{"monitoring":{"neighbor-ap":[)";
  for (unsigned i = 0; i < size_of(state); ++i) {
    reply += (i > 0 ? ",{" : "{");
    reply += R"("bssid":")" + mac_text(0x0A, i) +
             R"(","ssid":"Net&#x2d;1","channel":36,"signal-level":-70,"privacy":true,)"
             R"("bandwidth":"80","last-seen":12,"controlled-by-wlc":false})";
  }
  reply += "]}}}}";
  for (auto _ : state) {
    Tree const root = wlccw::cfg::parse(reply);
    lcw_data_t* const monitoring =
        cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring");
    std::shared_ptr<NcIpcApMonitoringApNeighbours> const neighbours =
        NcIpcApMonitoringApNeighbours::from_netconf(*monitoring);
    std::shared_ptr<NcIpcApMonitoringApNeighbours> back =
        NcIpcApMonitoringApNeighbours::from_ipc(neighbours->to_ipc());
    benchmark::DoNotOptimize(back.get());
  }
  finish(state, reply.size());
}

// ---- Nesting 1 000 to 100 000 levels deep -----------------------------------------------------

void BM_ParseDeepArrays(benchmark::State& state) {
  std::string const text = std::string(size_of(state), '[') + std::string(size_of(state), ']');
  for (auto _ : state) {
    Tree const root = wlccw::cfg::parse(text); // refused: deeper than the parser allows
    benchmark::DoNotOptimize(root.get());
  }
  finish(state, text.size());
}

void BM_DeepClientText(benchmark::State& state) {
  std::string text = R"({"mac":"aa:bb:cc:dd:ee:01","interface":"wlan0","ssid":"Net","hostname":)";
  for (std::size_t i = 0; i < size_of(state); ++i) {
    text += R"({"a":)";
  }
  text += '1';
  text.append(size_of(state), '}');
  text += '}';
  for (auto _ : state) {
    try {
      APClientData client = APClientData::from_json_str(text);
      benchmark::DoNotOptimize(&client);
    } catch (wlccw::InvalidJsonPointer const&) {
      // the parser refuses the nesting: no tree to read
    }
  }
  finish(state, text.size());
}

void BM_DeepTreeWriteAndRead(benchmark::State& state) {
  for (auto _ : state) {
    Tree const client = wlccw::cfg::make_object();
    cfg_set_param(client.get(), "mac", "aa:bb:cc:dd:ee:01");
    cfg_set_param(client.get(), "interface", "wlan0");
    cfg_set_param(client.get(), "ssid", "Net");
    lcw_data_t* node = cfg_insert_empty_array(client.get(), "rssi-list");
    for (std::size_t i = 1; i < size_of(state); ++i) {
      node = cfg_insert_empty_array(node, nullptr);
    }
    APClientData record = APClientData::from_json(client.get());
    std::string text = wlccw::cfg::compact(client.get());
    benchmark::DoNotOptimize(&record);
    benchmark::DoNotOptimize(text.data());
  }
  finish(state, 0);
}

} // namespace

#define WLCCW_MEBIBYTES(bm)                                                                        \
  BENCHMARK(bm)                                                                                    \
      ->RangeMultiplier(4)                                                                         \
      ->Range(kMiB, 64 * kMiB)                                                                     \
      ->Unit(benchmark::kMillisecond)                                                              \
      ->Complexity(benchmark::oN)
#define WLCCW_COUNTS(bm)                                                                           \
  BENCHMARK(bm)                                                                                    \
      ->RangeMultiplier(10)                                                                        \
      ->Range(1'000, 100'000)                                                                      \
      ->Unit(benchmark::kMillisecond)                                                              \
      ->Complexity(benchmark::oN)

WLCCW_MEBIBYTES(BM_DecodeHtmlEscapes);
WLCCW_MEBIBYTES(BM_StringToInts);
WLCCW_MEBIBYTES(BM_StringToMacs);
WLCCW_MEBIBYTES(BM_ParseAttackedAps);
WLCCW_MEBIBYTES(BM_ParseAttackedApsNearMisses);
WLCCW_MEBIBYTES(BM_VersionWithLongSuffix);
WLCCW_MEBIBYTES(BM_VersionOfLongDigits);
WLCCW_MEBIBYTES(BM_MacFromLongText);
WLCCW_MEBIBYTES(BM_ImportClientWithLongSsid);
WLCCW_MEBIBYTES(BM_StringReply);
WLCCW_COUNTS(BM_ImportClients);
WLCCW_COUNTS(BM_ClientListIpcRoundTrip);
WLCCW_COUNTS(BM_Aggregates);
WLCCW_COUNTS(BM_NeighboursReply);
WLCCW_COUNTS(BM_ParseDeepArrays);
WLCCW_COUNTS(BM_DeepClientText);
WLCCW_COUNTS(BM_DeepTreeWriteAndRead);
