// Version::try_parse on arbitrary text against a plain reading of the version form: three decimal
// numbers joined by "." at the start (leading zeros allowed), then any rest without a line break,
// and every number within 32 bits. An accepted text keeps its whole text and the numbers; a
// refused one is refused by Version::parse with one of the documented messages.
#include "fuzz_support.hpp"

#include <wlccw/common/Version.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

/// How large a number of the text is.
enum class Size { fits, over_32_bits, over_63_bits };

struct Expected {
  bool well_formed = false;
  std::array<std::uint32_t, 3> numbers{};
  bool any_over_32 = false; // a number above 4294967295 that still fits 63 bits
  bool any_over_63 = false; // a number of 2^63 or more
};

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

Size read_number(std::string const& text, std::size_t begin, std::size_t end,
                 std::uint32_t& value) {
  // Leading zeros carry no value; more than 19 significant digits never fit 63 bits.
  while (begin < end && text[begin] == '0') {
    ++begin;
  }
  if (end - begin > 19) {
    return Size::over_63_bits;
  }
  unsigned long long v = 0;
  for (std::size_t i = begin; i < end; ++i) {
    v = v * 10U + static_cast<unsigned long long>(text[i] - '0');
  }
  if (v > 0x7FFFFFFFFFFFFFFFULL) {
    return Size::over_63_bits;
  }
  if (v > 0xFFFFFFFFULL) {
    return Size::over_32_bits;
  }
  value = static_cast<std::uint32_t>(v);
  return Size::fits;
}

Expected expect(std::string const& text) {
  Expected expected;
  std::size_t pos = 0;
  for (std::size_t n = 0; n < 3; ++n) {
    std::size_t const begin = pos;
    while (pos < text.size() && is_digit(text[pos])) {
      ++pos;
    }
    if (pos == begin) {
      return expected;
    }
    switch (read_number(text, begin, pos, expected.numbers[n])) {
    case Size::fits:
      break;
    case Size::over_32_bits:
      expected.any_over_32 = true;
      break;
    case Size::over_63_bits:
      expected.any_over_63 = true;
      break;
    }
    if (n < 2) {
      if (pos == text.size() || text[pos] != '.') {
        return expected;
      }
      ++pos;
    }
  }
  expected.well_formed = text.find_first_of("\n\r", pos) == std::string::npos;
  return expected;
}

/// The message quoting the text, as what() shows it: up to an embedded NUL of the text.
std::string quoted(char const* prefix, std::string const& text) {
  std::string const message = std::string(prefix) + "'" + text + "'";
  return std::string(message.c_str());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);
  Expected const expected = expect(text);
  bool const accepted = expected.well_formed && !expected.any_over_32 && !expected.any_over_63;

  std::optional<Version> const version = Version::try_parse(text);
  wlccw::fuzz::check(version.has_value() == accepted);

  std::optional<VersionRaw> const raw = VersionRaw::try_parse(text);
  wlccw::fuzz::check(raw.has_value() == accepted);

  if (version) {
    wlccw::fuzz::check_same(version->text(), text);
    VersionRaw const numbers(expected.numbers[0], expected.numbers[1], expected.numbers[2]);
    wlccw::fuzz::check(version->numbers() == numbers);
    wlccw::fuzz::check(*raw == numbers);
    // The numbers written out read back as the same numbers.
    std::optional<Version> const again = Version::try_parse(numbers.to_string());
    wlccw::fuzz::check(again.has_value() && again->numbers() == numbers &&
                       again->text() == numbers.to_string());
    return 0;
  }

  // A refused text is refused by parse with the message of its fault.
  std::string message;
  try {
    static_cast<void>(Version::parse(text));
  } catch (std::invalid_argument const& error) {
    message = error.what();
  }
  if (!expected.well_formed) {
    wlccw::fuzz::check_same(message, quoted("Invalid version format: ", text));
  } else {
    std::string const too_large = quoted("Version number too large: ", text);
    std::string const exceeds = quoted("Version number exceeds 4294967295: ", text);
    if (!expected.any_over_32) {
      wlccw::fuzz::check_same(message, too_large);
    } else if (!expected.any_over_63) {
      wlccw::fuzz::check_same(message, exceeds);
    } else {
      wlccw::fuzz::check(message == too_large || message == exceeds);
    }
  }
  return 0;
}
