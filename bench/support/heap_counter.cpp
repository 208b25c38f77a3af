#include "heap_counter.hpp"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <malloc.h>

// The C library's allocator under its own names, which it exports for programs that wrap it.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace {

std::atomic<std::ptrdiff_t> live{0};
std::atomic<std::ptrdiff_t> peak{0};
std::atomic<std::size_t> allocations{0};
std::atomic<bool> counting{true};

std::ptrdiff_t usable(void* block) noexcept {
  return static_cast<std::ptrdiff_t>(malloc_usable_size(block));
}

void count_allocation(void* block) noexcept {
  if (block == nullptr || !counting.load(std::memory_order_relaxed)) {
    return;
  }
  allocations.fetch_add(1, std::memory_order_relaxed);
  std::ptrdiff_t const now =
      live.fetch_add(usable(block), std::memory_order_relaxed) + usable(block);
  std::ptrdiff_t seen = peak.load(std::memory_order_relaxed);
  while (now > seen && !peak.compare_exchange_weak(seen, now, std::memory_order_relaxed)) {
  }
}

void count_release(void* block) noexcept {
  if (block != nullptr && counting.load(std::memory_order_relaxed)) {
    live.fetch_sub(usable(block), std::memory_order_relaxed);
  }
}

} // namespace

namespace wlccw::bench {

HeapCounts heap_counts() noexcept {
  return {live.load(std::memory_order_relaxed), peak.load(std::memory_order_relaxed),
          allocations.load(std::memory_order_relaxed)};
}

void reset_heap_peak() noexcept {
  peak.store(live.load(std::memory_order_relaxed), std::memory_order_relaxed);
}

HeapCountingPause::HeapCountingPause() noexcept {
  counting.store(false, std::memory_order_relaxed);
}

HeapCountingPause::~HeapCountingPause() {
  counting.store(true, std::memory_order_relaxed);
}

} // namespace wlccw::bench

extern "C" {

void* malloc(std::size_t size) noexcept {
  void* const block = __libc_malloc(size);
  count_allocation(block);
  return block;
}

void* calloc(std::size_t count, std::size_t size) noexcept {
  void* const block = __libc_calloc(count, size);
  count_allocation(block);
  return block;
}

void* realloc(void* block, std::size_t size) noexcept {
  if (!counting.load(std::memory_order_relaxed)) {
    return __libc_realloc(block, size);
  }
  std::ptrdiff_t const before = block != nullptr ? usable(block) : 0;
  void* const moved = __libc_realloc(block, size);
  if (moved == nullptr) {
    // A failed reallocation keeps the old block; realloc(p, 0) may have freed it.
    if (size == 0 && block != nullptr) {
      live.fetch_sub(before, std::memory_order_relaxed);
    }
    return nullptr;
  }
  live.fetch_sub(before, std::memory_order_relaxed);
  count_allocation(moved);
  return moved;
}

void free(void* block) noexcept {
  count_release(block);
  __libc_free(block);
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
  void* const block = __libc_memalign(alignment, size);
  count_allocation(block);
  return block;
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  return memalign(alignment, size);
}

int posix_memalign(void** out, std::size_t alignment, std::size_t size) noexcept {
  if (alignment < sizeof(void*) || (alignment & (alignment - 1)) != 0) {
    return EINVAL;
  }
  void* const block = memalign(alignment, size);
  if (block == nullptr) {
    return ENOMEM;
  }
  *out = block;
  return 0;
}

} // extern "C"
