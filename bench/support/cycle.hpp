// One call per iteration of a small conversion, cycling through inputs held in memory so that no
// result can be computed ahead of the loop; reports items per second and heap allocations per
// call (allocs/op).
#pragma once

#include "support/allocations.hpp"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>

namespace wlccw::bench {

template <typename T, std::size_t N, typename Conversion>
void cycle(benchmark::State& state, std::array<T, N> const& inputs, Conversion conversion) {
  std::size_t i = 0;
  AllocationCount const allocations;
  for (auto _ : state) {
    T const& input = inputs[i];
    benchmark::DoNotOptimize(&input);
    auto result = conversion(input);
    benchmark::DoNotOptimize(result);
    i = (i + 1) % N;
  }
  allocations.report(state);
  state.SetItemsProcessed(state.iterations());
}

} // namespace wlccw::bench
