// The seed loop of the round-trip tests: each family runs the same fixed seeds, so a failure
// names a seed that reproduces it.
#pragma once

#include <support/random.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

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

/// The text up to its first NUL byte: what a writer that takes a C string writes.
inline std::string up_to_nul(std::string text) {
  text.resize(std::min(text.size(), text.find('\0')));
  return text;
}

/// The length of a generated list: empty, one element or many, up to long_length.
inline std::size_t list_length(Random& random, std::size_t long_length) {
  switch (random.integer(0, 3)) {
  case 0:
    return 0;
  case 1:
    return 1;
  case 2:
    return random.integer<std::size_t>(2, 4);
  default:
    return random.integer<std::size_t>(2, long_length);
  }
}

} // namespace wlccw::test
