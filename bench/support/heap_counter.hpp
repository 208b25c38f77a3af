// Counting the heap of a benchmark program: the program's own malloc family (in heap_counter.cpp)
// forwards to the C library's allocator and keeps the bytes in use, their peak and the number of
// allocations. Every allocation of the process goes through it, the library's included, since a
// program's malloc takes the place of the C library's for every shared object it loads.
#pragma once

#include <cstddef>

namespace wlccw::bench {

struct HeapCounts {
  /// Usable bytes allocated minus usable bytes freed while counting was on. Only differences of
  /// it mean something: blocks allocated while counting was paused and freed while it is on take
  /// their bytes off, so it may go below zero.
  std::ptrdiff_t live_bytes = 0;
  /// The highest live_bytes since the last reset_heap_peak.
  std::ptrdiff_t peak_bytes = 0;
  /// Allocations made since the program started (reallocations count as one).
  std::size_t allocations = 0;
};

HeapCounts heap_counts() noexcept;

/// Starts a new peak from the bytes in use now.
void reset_heap_peak() noexcept;

/// Turns the counting off while it lives, so that timed loops pay the C library's allocator and
/// nothing more. Counting is on otherwise. Not nested, and only for single-threaded benchmarks.
class HeapCountingPause {
public:
  HeapCountingPause() noexcept;
  ~HeapCountingPause();
  HeapCountingPause(HeapCountingPause const&) = delete;
  HeapCountingPause& operator=(HeapCountingPause const&) = delete;
};

} // namespace wlccw::bench
