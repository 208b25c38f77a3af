// Heap allocations per iteration of a benchmark loop, as a counter of its report.
#pragma once

#include "support/heap_counter.hpp"

#include <benchmark/benchmark.h>

#include <cstddef>

namespace wlccw::bench {

/// Counts the allocations made between its construction and report().
class AllocationCount {
public:
  AllocationCount() noexcept : before_(heap_counts().allocations) {}

  /// Sets the counter "allocs/op": allocations per iteration of the state's loop.
  void report(benchmark::State& state) const {
    std::size_t const made = heap_counts().allocations - before_;
    state.counters["allocs/op"] =
        state.iterations() == 0
            ? 0.0
            : static_cast<double>(made) / static_cast<double>(state.iterations());
  }

private:
  std::size_t before_;
};

} // namespace wlccw::bench
