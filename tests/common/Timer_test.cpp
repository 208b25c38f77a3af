#include <wlccw/common/Timer.hpp>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <type_traits>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

static_assert(std::is_copy_constructible_v<Timer> && std::is_copy_assignable_v<Timer>);
static_assert(std::is_same_v<decltype(Timer::start), Clock::time_point>);
static_assert(std::is_same_v<decltype(Timer::timeout), std::optional<std::chrono::milliseconds>>);

TEST(Timer, ConstructorSetsTheTimeoutAndStartsNow) {
  Clock::time_point const before = Clock::now();
  Timer const timer(250ms);
  Clock::time_point const after = Clock::now();
  EXPECT_EQ(timer.timeout, std::optional<std::chrono::milliseconds>(250ms));
  EXPECT_GE(timer.start, before);
  EXPECT_LE(timer.start, after);
}

TEST(Timer, ZeroTimeoutIsExpiredAtOnce) {
  Timer const timer(0ms);
  EXPECT_TRUE(timer.is_expired());
}

TEST(Timer, NegativeTimeoutIsExpiredAtOnce) {
  Timer const timer(-5ms);
  EXPECT_TRUE(timer.is_expired());
}

TEST(Timer, LongTimeoutIsNotExpiredYet) {
  Timer const timer(1h);
  EXPECT_FALSE(timer.is_expired());
}

TEST(Timer, ExpiresOnceTheTimeoutHasElapsed) {
  Timer const timer(20ms);
  std::this_thread::sleep_for(25ms);
  EXPECT_TRUE(timer.is_expired());
}

TEST(Timer, StartedExactlyTheTimeoutAgoIsExpired) {
  Timer timer(500ms);
  timer.start = Clock::now() - 500ms; // by the time of the check at least 500 ms have passed
  EXPECT_TRUE(timer.is_expired());
  timer.start = Clock::now() - 400ms; // well under 500 ms later: not yet
  EXPECT_FALSE(timer.is_expired());
}

TEST(Timer, WithoutTimeoutNeverExpires) {
  Timer timer(0ms);
  timer.timeout.reset();
  EXPECT_FALSE(timer.is_expired());
  timer.start = Clock::time_point::min();
  EXPECT_FALSE(timer.is_expired());
}

TEST(Timer, ResetRestartsAndKeepsTheTimeout) {
  Timer timer(1h);
  timer.start = Clock::now() - 2h;
  EXPECT_TRUE(timer.is_expired());
  Clock::time_point const before = Clock::now();
  timer.reset();
  EXPECT_GE(timer.start, before);
  EXPECT_LE(timer.start, Clock::now());
  EXPECT_EQ(timer.timeout, std::optional<std::chrono::milliseconds>(1h));
  EXPECT_FALSE(timer.is_expired());
}

TEST(Timer, StartInTheFutureIsNotExpired) {
  Timer timer(0ms);
  timer.start = Clock::now() + 1h;
  EXPECT_FALSE(timer.is_expired());
}

TEST(Timer, CopiesAreIndependentValues) {
  Timer first(1h);
  Timer second = first;
  EXPECT_EQ(second.start, first.start);
  second.start = Clock::now() - 2h;
  EXPECT_TRUE(second.is_expired());
  EXPECT_FALSE(first.is_expired());
}

TEST(Timer, ExtremeStartsAndTimeoutsAreDecidedWithoutOverflow) {
  Timer timer(0ms);
  // Elapsed time beyond 64 bits of nanoseconds, against the largest and smallest timeouts.
  timer.start = Clock::time_point::min();
  timer.timeout = std::chrono::milliseconds::max();
  EXPECT_FALSE(timer.is_expired());
  timer.timeout = std::chrono::milliseconds::min();
  EXPECT_TRUE(timer.is_expired());
  timer.timeout = 1h;
  EXPECT_TRUE(timer.is_expired());
  // Elapsed time below minus 64 bits of nanoseconds.
  timer.start = Clock::time_point::max();
  timer.timeout = std::chrono::milliseconds::min();
  EXPECT_TRUE(timer.is_expired());
  timer.timeout = 0ms;
  EXPECT_FALSE(timer.is_expired());
  timer.timeout = std::chrono::milliseconds::max();
  EXPECT_FALSE(timer.is_expired());
}
