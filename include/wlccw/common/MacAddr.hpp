/// \file
/// A 48-bit IEEE 802 MAC address: a validity flag and six octets, with a fixed lower-case text
/// form, a parser that never throws, a hash, an ordering and the Boost.JSON conversions.
#pragma once

#include <wlccw/export.hpp>

#include <boost/json/fwd.hpp>

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

/// A MAC address. `valid` is true once a parser accepted a text; it takes no part in equality,
/// ordering or hashing, so the default value equals a parsed 00:00:00:00:00:00.
class WLCCW_EXPORT MacAddr {
public:
  /// True once a parser accepted a text; false for the default value and after a failed parse.
  bool valid = false;
  /// The six octets in transmission order: bytes[0] is the first pair of the text form.
  std::array<unsigned char, 6> bytes{};

  /// Not valid, all six octets 0.
  constexpr MacAddr() noexcept = default;

  /// Parses a NUL-terminated text: six hexadecimal pairs joined by ":" (17 characters) or twelve
  /// hexadecimal digits (12 characters), either case. A null pointer or any other text gives the
  /// default value. Never throws, never allocates.
  static MacAddr from_str(char const* text) noexcept;
  /// Parses exactly `length` characters of `text` by the same rules; no terminator is needed. A
  /// null pointer or a length other than 17 or 12 gives the default value. Never throws.
  static MacAddr from_str(char const* text, unsigned long length) noexcept;

  /// Six pairs of lower-case hexadecimal digits joined by ":", whatever `valid` says.
  std::string str() const;
  /// Writes the text form of str() and a terminating NUL into out, without allocating. Never
  /// throws.
  void format(char (&out)[18]) const noexcept;

  /// Equal when the six octets are equal; the validity flags are not compared.
  friend constexpr bool operator==(MacAddr const& a, MacAddr const& b) noexcept {
    return a.bytes == b.bytes;
  }
  /// Lexicographic over the six octets (the order of the numbers they form); the validity flags
  /// are not compared.
  friend constexpr std::strong_ordering operator<=>(MacAddr const& a, MacAddr const& b) noexcept {
    return number(a.bytes) <=> number(b.bytes);
  }

private:
  // The six octets as one 48-bit number, bytes[0] most significant: its order is the octets'
  // lexicographic order, found without a call to compare bytes (lists keyed by address compare on
  // every insertion and lookup).
  static constexpr std::uint64_t number(std::array<unsigned char, 6> const& octets) noexcept {
    std::uint64_t value = 0;
    for (unsigned char const octet : octets) {
      value = (value << 8U) | octet;
    }
    return value;
  }
};

/// Boost.JSON conversion to a value: stores the JSON string `mac.str()`, whatever `valid` says.
WLCCW_EXPORT void tag_invoke(boost::json::value_from_tag, boost::json::value& jv,
                             MacAddr const& mac);
/// Boost.JSON conversion from a value: reads a JSON string and parses it as MacAddr::from_str
/// does; a text that is no address gives the default value. A value that is not a JSON string
/// throws Boost.JSON's conversion error (boost::system::system_error).
WLCCW_EXPORT MacAddr tag_invoke(boost::json::value_to_tag<MacAddr>, boost::json::value const& jv);

namespace std {

/// Hashing of MacAddr for unordered containers.
template <> struct hash<MacAddr> {
  /// The six octets read as one 48-bit big-endian number (bytes[0] most significant), without
  /// further mixing; the validity flag takes no part. Never throws.
  std::size_t operator()(MacAddr const& mac) const noexcept {
    std::uint64_t value = 0;
    for (unsigned char octet : mac.bytes) {
      value = (value << 8U) | octet;
    }
    return static_cast<std::size_t>(value);
  }
};

} // namespace std
