// The seed loop of the round-trip tests: each family runs the same fixed seeds, so a failure
// names a seed that reproduces it.
#pragma once

#include <support/random.hpp>

#include <gtest/gtest.h>

#include <cstdint>

namespace wlccw::test {

/// Seeds per family: enough for every enumerator, extreme and list length to come up many times.
inline constexpr std::uint64_t seed_count = 300;

/// Runs check once per seed 1 … seed_count with a generator started from that seed; stops at the
/// first seed that fails, whose number the failure messages carry.
template <typename Check> void for_each_seed(Check&& check) {
  for (std::uint64_t seed = 1; seed <= seed_count; ++seed) {
    SCOPED_TRACE(::testing::Message() << "seed " << seed);
    Random random(seed);
    check(random);
    if (::testing::Test::HasFailure()) {
      return;
    }
  }
}

} // namespace wlccw::test
