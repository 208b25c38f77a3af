// Per-client cost of the hottest path of the library: importing an AP's NETCONF client object,
// and the IPC round trip of the record (write the text, read it back).
#include <wlccw/wlccw.hpp>

#include <benchmark/benchmark.h>

#include <string>

namespace {

// A client object as an AP reports it: numbered signals, rate texts, counters as RFC 7951
// strings, authentication fields, HTML-escaped texts.
constexpr char const* plain_client = R"({
  "hw-addr":"AA:BB:CC:DD:EE:01","interface":"wlan0-vap1","ssid":"Office&#x20;Net",
  "ip-addr":"192.168.10.23","vlan-id":"100","hostname":"laptop&#x2d;42","username":"jdoe",
  "domain":"corp","frequency":5180,"channel":36,"uptime":"1 d 02:03:04",
  "rssi-1":-51,"rssi-2":-57,"rssi-3":-60,"rssi-4":-63,"snr-1":40,"snr-2":35,
  "authorized":"yes","wireless-mode":"ax","link-quality":"80/100","link-quality-common":"good",
  "tx-rate":"HE-MCS 11 NSS 2 1201.0","tx-bw":"80","actual-tx-rate":"1100",
  "rx-rate":"VHT-MCS 9 NSS 2 866.7","rx-bw":"80","actual-rx-rate":"800",
  "statistics":{"tx":{"bytes":"123456789","packets":"345678"},
                "rx":{"bytes":"987654321","packets":"876543"}},
  "eap-method":"EAP-PEAP","radius-mac-auth":"not-required","portal-auth":"not-required",
  "wlan-auth-status":"authorized","wlan-auth-type":"WPA2-Enterprise",
  "auth-algorithm":"open-system","wlan-auth-time":"3600","radius-mac-auth-time":"0",
  "portal-auth-time":"0","encryption-cipher":"CCMP","encryption-group-cipher":"CCMP"})";

// The same client associated over two links of a multi-link device.
std::string const mlo_client =
    std::string(plain_client).substr(0, std::string(plain_client).size() - 1) +
    R"(,"mlo-enabled":"yes","mld-mac-ap":"02:11:22:33:44:55",
  "mlo-link-1-mac":"aa:bb:cc:dd:ee:11","mlo-link-1-band":"5","mlo-link-1-bandwidth":"160",
  "mlo-link-1-rssi-1":-50,"mlo-link-1-rssi-2":-55,"mlo-link-1-snr-1":38,
  "mlo-link-1-tx-rate":"1201.0","mlo-link-1-bytes-tx":"1000","mlo-link-1-packets-tx":"10",
  "mlo-link-1-rx-rate":"866.7","mlo-link-1-bytes-rx":"2000","mlo-link-1-packets-rx":"20",
  "mlo-link-2-mac":"aa:bb:cc:dd:ee:12","mlo-link-2-band":"6","mlo-link-2-bandwidth":"320",
  "mlo-link-2-rssi-1":-61,"mlo-link-2-snr-1":30})";

void import(benchmark::State& state, std::string const& text) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  for (auto _ : state) {
    APClientData client = APClientData::from_netconf_json(root.get());
    benchmark::DoNotOptimize(&client);
  }
  state.SetItemsProcessed(state.iterations());
}

void parse_and_import(benchmark::State& state, std::string const& text) {
  for (auto _ : state) {
    wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
    APClientData client = APClientData::from_netconf_json(root.get());
    benchmark::DoNotOptimize(&client);
  }
  state.SetItemsProcessed(state.iterations());
}

void ipc_round_trip(benchmark::State& state, std::string const& text) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  APClientData const client = APClientData::from_netconf_json(root.get());
  for (auto _ : state) {
    std::string const ipc = client.to_json_str();
    APClientData back = APClientData::from_json_str(ipc);
    benchmark::DoNotOptimize(&back);
  }
  state.SetItemsProcessed(state.iterations());
}

void BM_ImportPlain(benchmark::State& state) {
  import(state, plain_client);
}
void BM_ImportMlo(benchmark::State& state) {
  import(state, mlo_client);
}
void BM_ParseAndImportPlain(benchmark::State& state) {
  parse_and_import(state, plain_client);
}
void BM_IpcRoundTripPlain(benchmark::State& state) {
  ipc_round_trip(state, plain_client);
}
void BM_IpcRoundTripMlo(benchmark::State& state) {
  ipc_round_trip(state, mlo_client);
}

} // namespace

BENCHMARK(BM_ImportPlain);
BENCHMARK(BM_ImportMlo);
BENCHMARK(BM_ParseAndImportPlain);
BENCHMARK(BM_IpcRoundTripPlain);
BENCHMARK(BM_IpcRoundTripMlo);
