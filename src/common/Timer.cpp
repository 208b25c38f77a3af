#include <wlccw/common/Timer.hpp>

#include <cstdint>
#include <ratio>
#include <type_traits>

namespace {

using Clock = std::chrono::steady_clock;
static_assert(std::is_same_v<Clock::period, std::nano>, "the steady clock counts nanoseconds");

constexpr std::int64_t nanoseconds_per_millisecond = 1'000'000;

/// A tick count split into whole milliseconds (rounded toward minus infinity) and the nanoseconds
/// left over (0 to 999999).
struct Split {
  std::int64_t ms;
  std::int64_t ns;
};

constexpr Split split(std::int64_t ticks) {
  Split s{ticks / nanoseconds_per_millisecond, ticks % nanoseconds_per_millisecond};
  if (s.ns < 0) {
    s.ns += nanoseconds_per_millisecond;
    --s.ms;
  }
  return s;
}

} // namespace

Timer::Timer(std::chrono::milliseconds timeout_ms) : start(Clock::now()), timeout(timeout_ms) {}

void Timer::reset() {
  start = Clock::now();
}

bool Timer::is_expired() const {
  if (!timeout) {
    return false;
  }
  // Expired when (now - start) in nanoseconds >= timeout in milliseconds * 1000000. Neither side
  // may be formed directly, since start and timeout are free values whose difference or product
  // can leave 64 bits; for whole k, e >= k * 1000000 holds exactly when floor(e / 1000000) >= k,
  // and that floor is taken from the two time points apart, where nothing can overflow.
  Split const now = split(Clock::now().time_since_epoch().count());
  Split const begin = split(start.time_since_epoch().count());
  std::int64_t const elapsed_ms = now.ms - begin.ms - (now.ns < begin.ns ? 1 : 0);
  return elapsed_ms >= timeout->count();
}
