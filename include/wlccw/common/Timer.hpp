/// \file
/// A timeout on the monotonic clock.
#pragma once

#include <wlccw/export.hpp>

#include <chrono>
#include <optional>

/// Counts from a start time on the steady clock, so changes of the wall clock or the time zone do
/// not move it. Expired once the timeout has elapsed since the start; never without a timeout.
class WLCCW_EXPORT Timer {
public:
  /// Sets the timeout and starts the timer now. A zero or negative timeout is expired at once.
  explicit Timer(std::chrono::milliseconds timeout_ms);

  /// Restarts the timer: the start becomes now; the timeout stays.
  void reset();

  /// False without a timeout; otherwise whether the time since the start, in whole milliseconds,
  /// has reached the timeout (a timer is expired exactly at its timeout). Exact for any start and
  /// timeout the public members may hold: nothing overflows. Never throws.
  [[nodiscard]] bool is_expired() const;

  /// When the timer was last (re)started.
  std::chrono::steady_clock::time_point start;
  /// The time after which the timer counts as expired; empty means never.
  std::optional<std::chrono::milliseconds> timeout;
};
