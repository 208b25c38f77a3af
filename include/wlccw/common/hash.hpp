/// \file
/// Combining hashes of several values into one seed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace tools {

/// Mixes the hash of value into seed: `seed ^= h + 0x9e3779b9 + (seed << 6) + (seed >> 2)`, with
/// `h = std::hash<T>{}(value)`, in wrapping 64-bit unsigned arithmetic. With seed 0 the seed
/// becomes h + 0x9e3779b9. Throws only what std::hash<T> throws (the standard hashes never do).
template <typename T> void hash_combine(std::size_t& seed, T const& value) {
  std::uint64_t const h = std::hash<T>{}(value);
  std::uint64_t s = seed;
  s ^= h + std::uint64_t{0x9e3779b9U} + (s << 6U) + (s >> 2U);
  seed = static_cast<std::size_t>(s);
}

} // namespace tools
