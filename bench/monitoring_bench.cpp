// Cost of one AP monitoring poll on the controller's side: a NETCONF monitoring reply (the sample,
// and a generated reply of a busy AP) turned into the IPC texts of all five monitoring records,
// beside the JSON floor of the same bytes (Boost.JSON parse into a monotonic resource and compact
// serialise) and simdjson's DOM parse of them.
#include <wlccw/wlccw.hpp>

#include <benchmark/benchmark.h>

#include "support/baselines.hpp"
#include "workload.hpp"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

std::string read_reply() {
  std::ifstream in(WLCCW_BENCH_DATA_DIR "/monitoring/reply-full.json", std::ios::binary);
  if (!in) {
    std::cerr << "cannot read " WLCCW_BENCH_DATA_DIR "/monitoring/reply-full.json\n";
    std::exit(1);
  }
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::string const& reply() {
  static std::string const text = read_reply();
  return text;
}

/// The five IPC texts of one reply, each record read the way its reader is meant to be called:
/// device information and radios from the reply text, the three lists from the parsed monitoring
/// node.
struct PollTexts {
  std::string information;
  std::string radios;
  std::string interfaces;
  std::string ports;
  std::string neighbours;
};

PollTexts convert(std::string const& text) {
  PollTexts out;
  out.information = NcIpcApMonitoringInformation::from_netconf(text).to_str();
  out.radios = NcIpcApMonitoringRadioInterface::from_netconf(text).to_str();
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  lcw_data_t* const monitoring =
      cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring");
  if (monitoring == nullptr) {
    return out;
  }
  if (auto const list = NcIpcApMonitoringInterfaces::from_netconf(*monitoring)) {
    out.interfaces = list->to_ipc();
  }
  if (auto const list = NcIpcApMonitoringEthernetPorts::from_netconf(*monitoring)) {
    out.ports = list->to_ipc();
  }
  if (auto const list = NcIpcApMonitoringApNeighbours::from_netconf(*monitoring)) {
    out.neighbours = list->to_ipc();
  }
  return out;
}

/// Converts text into the five IPC texts once per iteration.
void five_texts(benchmark::State& state, std::string const& text) {
  for (auto _ : state) {
    PollTexts texts = convert(text);
    benchmark::DoNotOptimize(&texts);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(text.size()));
}

void BM_ReplyToFiveIpcTexts(benchmark::State& state) {
  five_texts(state, reply());
}

void BM_InformationFromReply(benchmark::State& state) {
  std::string const& text = reply();
  for (auto _ : state) {
    std::string ipc = NcIpcApMonitoringInformation::from_netconf(text).to_str();
    benchmark::DoNotOptimize(ipc.data());
  }
}

void BM_RadiosFromReply(benchmark::State& state) {
  std::string const& text = reply();
  for (auto _ : state) {
    std::string ipc = NcIpcApMonitoringRadioInterface::from_netconf(text).to_str();
    benchmark::DoNotOptimize(ipc.data());
  }
}

void BM_NeighboursFromParsedReply(benchmark::State& state) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(reply());
  lcw_data_t* const monitoring =
      cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring");
  if (monitoring == nullptr) {
    state.SkipWithError("the sample reply has no monitoring node");
    return;
  }
  for (auto _ : state) {
    std::string ipc = NcIpcApMonitoringApNeighbours::from_netconf(*monitoring)->to_ipc();
    benchmark::DoNotOptimize(ipc.data());
  }
}

void BM_BoostParseSerializeReply(benchmark::State& state) {
  wlccw::bench::boost_parse_serialize(state, reply());
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(reply().size()));
}

/// A busy AP's reply: four radios, twelve interfaces, four ports and 200 neighbours.
std::string const& generated_reply() {
  static std::string const text = wlccw::workload::monitoring_reply({4, 12, 4, 200}, 20261121);
  return text;
}

void BM_GeneratedReplyToFiveIpcTexts(benchmark::State& state) {
  five_texts(state, generated_reply());
}

void BM_GeneratedReplyFloor_BoostParseSerialize(benchmark::State& state) {
  wlccw::bench::boost_parse_serialize(state, generated_reply());
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(generated_reply().size()));
}

void BM_GeneratedReplyLimit_SimdjsonDomParse(benchmark::State& state) {
  wlccw::bench::simdjson_dom_parse(state, generated_reply());
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(generated_reply().size()));
}

} // namespace

BENCHMARK(BM_GeneratedReplyToFiveIpcTexts);
BENCHMARK(BM_GeneratedReplyFloor_BoostParseSerialize);
BENCHMARK(BM_GeneratedReplyLimit_SimdjsonDomParse);
BENCHMARK(BM_ReplyToFiveIpcTexts);
BENCHMARK(BM_InformationFromReply);
BENCHMARK(BM_RadiosFromReply);
BENCHMARK(BM_NeighboursFromParsedReply);
BENCHMARK(BM_BoostParseSerializeReply);
