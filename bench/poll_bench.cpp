// The poll of one AP with N clients, side by side with what a team would otherwise use, all on the
// same generated reply text:
// - Poll: the library's poll (reply text -> APClientData::from_netconf_json for each client ->
//   NcIpcClientList -> to_str + get_hash), and its three stages alone;
// - Floor: Boost.JSON parse into a monotonic resource and compact serialise of the reply text,
//   what any conversion through a JSON tree has to pay at least;
// - Limit: simdjson's DOM parse of the reply text, what parsing alone costs at best;
// - Peer: the same import and IPC list write done directly on nlohmann::json;
// - PollBesideFloor: the poll and the floor taking turns within one loop, each timed on its own,
//   for their ratio on a machine whose speed drifts;
// - Receive: the receiving daemon's side, the list's IPC text -> NcIpcClientList::from_ipc_json,
//   beside the floor of that text.
// Each run reports the time per client (items) and bytes of reply per second; the library's poll
// also reports its heap peak above the program's baseline, as a multiple of the reply's size.
#include "nlohmann_peer.hpp"
#include "poll.hpp"
#include "support/baselines.hpp"
#include "support/heap_counter.hpp"
#include "workload.hpp"

#include <wlccw/wlccw.hpp>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <chrono>
#include <climits>
#include <cstdint>
#include <map>
#include <string>

namespace {

// Freed memory stays with the process for the whole run. The C library's allocator otherwise gives
// large freed blocks back to the system, and a benchmark that allocates such blocks afresh on every
// iteration (the floor's monotonic resource and output string) then pays page faults or not
// depending on what ran before it in the process: its time moved by a factor of two from run to
// run. Kept, every benchmark runs on memory the process already has.
[[maybe_unused]] bool const heap_kept = [] {
  constexpr int most = 32 << 20; // the largest mmap threshold the allocator takes on 64-bit
  return mallopt(M_MMAP_THRESHOLD, most) == 1 && mallopt(M_TRIM_THRESHOLD, INT_MAX) == 1;
}();

constexpr std::uint64_t seed = 20261121;

/// The reply of n clients, generated once per program.
std::string const& reply(std::size_t n) {
  static std::map<std::size_t, std::string> replies;
  auto [it, added] = replies.try_emplace(n);
  if (added) {
    it->second = wlccw::workload::client_reply(n, seed);
  }
  return it->second;
}

std::size_t clients(benchmark::State const& state) {
  return static_cast<std::size_t>(state.range(0));
}

void per_client(benchmark::State& state, std::string const& text) {
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(text.size()));
}

void BM_Poll(benchmark::State& state) {
  std::string const& text = reply(clients(state));
  // The heap the poll needs at its peak, measured on one poll before the timed ones.
  wlccw::bench::reset_heap_peak();
  std::ptrdiff_t const baseline = wlccw::bench::heap_counts().live_bytes;
  std::size_t const allocations_before = wlccw::bench::heap_counts().allocations;
  {
    wlccw::workload::PollResult const once = wlccw::workload::library_poll(text);
    benchmark::DoNotOptimize(&once);
    if (once.clients != clients(state)) {
      state.SkipWithError("the poll lost clients of the generated reply");
      return;
    }
  }
  auto const counts = wlccw::bench::heap_counts();
  state.counters["peak_heap/reply"] =
      static_cast<double>(counts.peak_bytes - baseline) / static_cast<double>(text.size());
  state.counters["allocs/client"] = static_cast<double>(counts.allocations - allocations_before) /
                                    static_cast<double>(clients(state));
  wlccw::bench::HeapCountingPause const timed;
  for (auto _ : state) {
    wlccw::workload::PollResult result = wlccw::workload::library_poll(text);
    benchmark::DoNotOptimize(&result);
  }
  per_client(state, text);
}

void BM_PollParse(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const& text = reply(clients(state));
  for (auto _ : state) {
    wlccw::cfg::Tree root = wlccw::cfg::parse(text);
    benchmark::DoNotOptimize(root.get());
  }
  per_client(state, text);
}

void BM_PollImport(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const& text = reply(clients(state));
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  lcw_data_t* const array =
      cfg_get_subtree_from_path(root.get(), wlccw::workload::client_array_path);
  for (auto _ : state) {
    NcIpcClientList list;
    wlccw::cfg::for_each_element(array, [&list](lcw_data_t& client) {
      list.add_or_update(APClientData::from_netconf_json(&client));
    });
    benchmark::DoNotOptimize(&list);
  }
  per_client(state, text);
}

void BM_PollWrite(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const& text = reply(clients(state));
  NcIpcClientList const list = wlccw::workload::import_clients(text);
  for (auto _ : state) {
    std::string ipc = list.to_str();
    std::size_t hash = list.get_hash();
    benchmark::DoNotOptimize(ipc.data());
    benchmark::DoNotOptimize(hash);
  }
  per_client(state, text);
}

void BM_Floor_BoostParseSerialize(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const& text = reply(clients(state));
  wlccw::bench::boost_parse_serialize(state, text);
  per_client(state, text);
}

void BM_Limit_SimdjsonDomParse(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const& text = reply(clients(state));
  wlccw::bench::simdjson_dom_parse(state, text);
  per_client(state, text);
}

void BM_Peer_Nlohmann(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const& text = reply(clients(state));
  for (auto _ : state) {
    wlccw::peer::PollResult result = wlccw::peer::poll(text);
    benchmark::DoNotOptimize(&result);
  }
  per_client(state, text);
}

// The poll and the floor in turns, one of each per iteration, the one that goes first alternating.
// Timed apart, the two run minutes from each other, and on a shared machine whose speed drifts
// by tens of percent within a run their ratio moved by as much; in turns, both see the same
// machine, and their ratio holds to a few percent however fast the machine is at the time.
void BM_PollBesideFloor(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const& text = reply(clients(state));
  using Clock = std::chrono::steady_clock;
  Clock::duration poll{};
  Clock::duration floor{};
  auto const run = [&text](bool the_poll) {
    if (the_poll) {
      wlccw::workload::PollResult result = wlccw::workload::library_poll(text);
      benchmark::DoNotOptimize(&result);
    } else {
      wlccw::bench::boost_parse_serialize_once(text);
    }
  };
  bool poll_first = false;
  for (auto _ : state) {
    Clock::time_point const start = Clock::now();
    run(poll_first);
    Clock::time_point const between = Clock::now();
    run(!poll_first);
    Clock::time_point const end = Clock::now();
    (poll_first ? poll : floor) += between - start;
    (poll_first ? floor : poll) += end - between;
    poll_first = !poll_first;
  }
  if (floor.count() > 0) {
    state.counters["poll/floor"] =
        std::chrono::duration<double>(poll) / std::chrono::duration<double>(floor);
  }
  auto const per_iteration_us = [](Clock::duration d) {
    return benchmark::Counter(std::chrono::duration<double, std::micro>(d).count(),
                              benchmark::Counter::kAvgIterations);
  };
  state.counters["poll_us"] = per_iteration_us(poll);
  state.counters["floor_us"] = per_iteration_us(floor);
}

void BM_Receive(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const ipc = wlccw::workload::library_poll(reply(clients(state))).ipc_text;
  for (auto _ : state) {
    wlccw::cfg::Tree const root = wlccw::cfg::parse(ipc);
    NcIpcClientList list = NcIpcClientList::from_ipc_json(root.get());
    benchmark::DoNotOptimize(&list);
  }
  per_client(state, ipc);
}

void BM_ReceiveFloor_BoostParseSerialize(benchmark::State& state) {
  wlccw::bench::HeapCountingPause const timed;
  std::string const ipc = wlccw::workload::library_poll(reply(clients(state))).ipc_text;
  wlccw::bench::boost_parse_serialize(state, ipc);
  per_client(state, ipc);
}

void sizes(benchmark::internal::Benchmark* b) {
  for (long n : {16, 64, 256, 1024, 4096}) {
    b->Arg(n);
  }
}

} // namespace

BENCHMARK(BM_Poll)->Apply(sizes);
BENCHMARK(BM_Floor_BoostParseSerialize)->Apply(sizes);
BENCHMARK(BM_Limit_SimdjsonDomParse)->Apply(sizes);
BENCHMARK(BM_Peer_Nlohmann)->Apply(sizes);
BENCHMARK(BM_PollParse)->Apply(sizes);
BENCHMARK(BM_PollImport)->Apply(sizes);
BENCHMARK(BM_PollWrite)->Apply(sizes);
BENCHMARK(BM_PollBesideFloor)->Apply(sizes);
BENCHMARK(BM_Receive)->Apply(sizes);
BENCHMARK(BM_ReceiveFloor_BoostParseSerialize)->Apply(sizes);
