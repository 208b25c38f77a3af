/// \file
/// An IPv4 address: a validity flag and four octets, with the dotted text form, a parser that
/// never throws and the Boost.JSON conversions.
#pragma once

#include <wlccw/export.hpp>

#include <boost/json/fwd.hpp>

#include <array>
#include <cstdint>
#include <string>

/// An IPv4 address. `valid` is true once a parser accepted a text; unlike MacAddr, it takes part
/// in equality.
class WLCCW_EXPORT IpAddr {
public:
  /// True once a parser accepted a text; false for the default value and after a failed parse.
  bool valid = false;
  /// The address in dotted order: octets[0] is the first number of the text form.
  std::array<std::uint8_t, 4> octets{};

  /// Not valid, all four octets 0.
  constexpr IpAddr() noexcept = default;

  /// Resets to the default value, then parses text as four numbers read with the format
  /// `"%hi.%hi.%hi.%hi"` (so 0x starts a hexadecimal number, a leading 0 an octal one, spaces
  /// before a number are skipped and text after the fourth number is ignored). The text is
  /// refused, and the default value kept, when it is null, holds a "-", holds no ".", is longer
  /// than 15 characters, does not yield four numbers or yields one above 255. Never throws.
  IpAddr& operator=(char const* text) noexcept;

  /// The four octets as decimal numbers joined by "." (`"%u.%u.%u.%u"`), whatever `valid` says:
  /// "0.0.0.0" for the default value.
  std::string str() const;
  /// Writes the text of str() and a terminating NUL into out, without allocating. Never throws.
  void format(char (&out)[16]) const noexcept;

  /// Equal when the validity flags and the four octets are equal.
  friend bool operator==(IpAddr const&, IpAddr const&) = default;
};

/// Boost.JSON conversion to a value: stores the JSON string `ip.str()`, whatever `valid` says.
WLCCW_EXPORT void tag_invoke(boost::json::value_from_tag, boost::json::value& jv, IpAddr const& ip);
/// Boost.JSON conversion from a value: reads a JSON string and parses it as IpAddr::operator=
/// does (up to its first NUL byte); a text that is no address gives the default value. A value that
/// is not a JSON string throws Boost.JSON's conversion error (boost::system::system_error).
WLCCW_EXPORT IpAddr tag_invoke(boost::json::value_to_tag<IpAddr>, boost::json::value const& jv);
