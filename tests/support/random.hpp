// Seeded random values for generated records: every test that generates records takes a seed, so
// a failure names the seed that reproduces it.
#pragma once

#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace wlccw::test {

class Random {
public:
  explicit Random(std::uint64_t seed) : seed_(seed), engine_(seed) {}

  /// The seed this generator started from, for failure messages.
  std::uint64_t seed() const { return seed_; }

  /// A uniformly chosen integer in [low, high]; any integer type but the character types.
  template <typename T> T integer(T low, T high) {
    static_assert(std::is_integral_v<T> && !std::is_same_v<T, bool>);
    if constexpr (sizeof(T) < sizeof(short)) {
      using Wide = std::conditional_t<std::is_signed_v<T>, short, unsigned short>;
      return static_cast<T>(std::uniform_int_distribution<Wide>(low, high)(engine_));
    } else {
      return std::uniform_int_distribution<T>(low, high)(engine_);
    }
  }

  /// Any value of an integer type, with the extremes and small values more often than chance
  /// would give them, since those are where widths and signs go wrong.
  template <typename T> T any() {
    using Limits = std::numeric_limits<T>;
    switch (integer(0, 7)) {
    case 0:
      return Limits::min();
    case 1:
      return Limits::max();
    case 2:
      return T{0};
    case 3:
      if constexpr (std::is_signed_v<T>) {
        return integer<T>(T{-16}, T{16});
      } else {
        return integer<T>(T{0}, T{16});
      }
    default:
      return integer<T>(Limits::min(), Limits::max());
    }
  }

  /// True with the given chance.
  bool chance(double probability) { return std::bernoulli_distribution(probability)(engine_); }
  /// True or false, evenly.
  bool coin() { return chance(0.5); }

  /// An enumerator chosen from the first `count` values of an enumeration (0 … count - 1).
  template <typename E> E enumerator(int count) { return static_cast<E>(integer(0, count - 1)); }

  /// The value `make()` gives, or nothing, evenly.
  template <typename Make> auto maybe(Make&& make) -> std::optional<decltype(make())> {
    if (coin()) {
      return std::forward<Make>(make)();
    }
    return std::nullopt;
  }

  /// Up to max_length characters from the given alphabet.
  std::string text_from(std::string_view alphabet, std::size_t max_length) {
    std::string out(integer<std::size_t>(0, max_length), ' ');
    for (char& c : out) {
      c = alphabet[integer<std::size_t>(0, alphabet.size() - 1)];
    }
    return out;
  }

  /// A name-like word: lower-case letters, digits, "-", "_" and ".".
  std::string word(std::size_t max_length = 12) {
    return text_from("abcdefghijklmnopqrstuvwxyz0123456789-_.", max_length);
  }

  /// Any text a JSON string can carry: printable ASCII with the characters JSON escapes (quote,
  /// backslash, control characters) and multi-byte UTF-8 sequences, but no NUL, which the tree's
  /// text readers stop at.
  std::string text(std::size_t max_length = 24) {
    static constexpr std::string_view pieces[] = {"a",
                                                  "Z",
                                                  "0",
                                                  " ",
                                                  "\"",
                                                  "\\",
                                                  "/",
                                                  "\n",
                                                  "\t",
                                                  "\x01",
                                                  "\x1f",
                                                  "&",
                                                  "<",
                                                  "#",
                                                  "{",
                                                  "}",
                                                  "[",
                                                  "]",
                                                  ":",
                                                  ",",
                                                  "\xc3\xa9",
                                                  "\xe2\x82\xac",
                                                  "\xf0\x9f\x93\xb6",
                                                  "'"};
    std::size_t const count = integer<std::size_t>(0, max_length);
    std::string out;
    for (std::size_t i = 0; i < count; ++i) {
      out += pieces[integer<std::size_t>(0, std::size(pieces) - 1)];
    }
    return out;
  }

  /// A MAC address with random octets, valid as a parsed one is.
  MacAddr mac() {
    MacAddr address;
    address.valid = true;
    for (unsigned char& octet : address.bytes) {
      octet = integer<unsigned char>(0, 255);
    }
    return address;
  }

  /// Any address a record can hold: the default one, random octets flagged not valid (as one
  /// assigned by hand can be), the valid broadcast address, and most often valid random octets.
  MacAddr any_mac() {
    switch (integer(0, 9)) {
    case 0:
      return MacAddr{};
    case 1: {
      MacAddr address = mac();
      address.valid = false;
      return address;
    }
    case 2: {
      MacAddr address;
      address.valid = true;
      address.bytes.fill(0xff);
      return address;
    }
    default:
      return mac();
    }
  }

  /// A valid IPv4 address with random octets, as a parsed one is.
  IpAddr ip() {
    IpAddr address;
    address.valid = true;
    for (std::uint8_t& octet : address.octets) {
      octet = integer<std::uint8_t>(0, 255);
    }
    return address;
  }

  /// The engine, for the standard distributions.
  std::mt19937_64& engine() { return engine_; }

private:
  std::uint64_t seed_;
  std::mt19937_64 engine_;
};

} // namespace wlccw::test
