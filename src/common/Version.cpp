#include <wlccw/common/Version.hpp>

#include <array>
#include <limits>
#include <stdexcept>
#include <string_view>

namespace {

constexpr bool is_digit(char c) noexcept {
  return c >= '0' && c <= '9';
}

/// The three digit groups of a version text, or nothing when the whole text does not have the
/// form ^(\d+)\.(\d+)\.(\d+).*$ (ECMAScript, where "." is any character but "\n" and "\r").
/// Written by hand so that parsing takes constant stack and no pattern is compiled: each group is
/// the longest run of digits at its place (the first two must be followed by "." and so cannot
/// stop earlier; the greedy third takes every digit before the rest), and the rest must not hold a
/// line break.
std::optional<std::array<std::string_view, 3>> match_version(std::string_view text) noexcept {
  std::array<std::string_view, 3> groups;
  std::size_t pos = 0;
  for (std::size_t g = 0; g < groups.size(); ++g) {
    std::size_t const begin = pos;
    while (pos < text.size() && is_digit(text[pos])) {
      ++pos;
    }
    if (pos == begin) {
      return std::nullopt;
    }
    groups[g] = text.substr(begin, pos - begin);
    if (g + 1 < groups.size()) {
      if (pos == text.size() || text[pos] != '.') {
        return std::nullopt;
      }
      ++pos;
    }
  }
  if (text.find_first_of("\n\r", pos) != std::string_view::npos) {
    return std::nullopt;
  }
  return groups;
}

enum class Conversion { ok, invalid, out_of_range };

/// Reads a decimal digit group as a 64-bit signed value with the outcomes of the standard
/// string-to-long-long conversion on it: no digit is an invalid argument, a value above the
/// largest long long is out of range.
Conversion to_int64(std::string_view digits, long long& value) noexcept {
  if (digits.empty()) {
    return Conversion::invalid;
  }
  constexpr long long max = std::numeric_limits<long long>::max();
  long long v = 0;
  for (char const c : digits) {
    if (!is_digit(c)) {
      return Conversion::invalid;
    }
    int const digit = c - '0';
    if (v > (max - digit) / 10) {
      return Conversion::out_of_range;
    }
    v = v * 10 + digit;
  }
  value = v;
  return Conversion::ok;
}

[[noreturn]] void fail(char const* what, std::string const& text) {
  std::string message(what);
  message += '\'';
  message += text;
  message += '\'';
  throw std::invalid_argument(message);
}

} // namespace

VersionRaw::Args VersionRaw::parse_args(std::string const& text) {
  std::optional<std::array<std::string_view, 3>> const groups = match_version(text);
  if (!groups) {
    fail("Invalid version format: ", text);
  }
  std::array<long long, 3> values{};
  for (std::size_t i = 0; i < values.size(); ++i) {
    switch (to_int64((*groups)[i], values[i])) {
    case Conversion::ok:
      break;
    case Conversion::invalid:
      fail("Invalid version format (non-numeric): ", text);
    case Conversion::out_of_range:
      fail("Version number too large: ", text);
    }
  }
  for (long long const v : values) {
    if (v < 0) {
      fail("Version numbers cannot be negative: ", text);
    }
  }
  constexpr long long limit = std::numeric_limits<std::uint32_t>::max();
  for (long long const v : values) {
    if (v > limit) {
      fail(("Version number exceeds " + std::to_string(limit) + ": ").c_str(), text);
    }
  }
  return {static_cast<std::uint32_t>(values[0]), static_cast<std::uint32_t>(values[1]),
          static_cast<std::uint32_t>(values[2])};
}

std::optional<VersionRaw::Args> VersionRaw::try_parse_args(std::string const& text) noexcept {
  try {
    return parse_args(text);
  } catch (std::exception const&) {
    return std::nullopt;
  }
}

VersionRaw VersionRaw::parse(std::string const& text) {
  auto const [major_number, minor_number, patch_number] = parse_args(text);
  return {major_number, minor_number, patch_number};
}

std::optional<VersionRaw> VersionRaw::try_parse(std::string const& text) noexcept {
  std::optional<Args> const args = try_parse_args(text);
  if (!args) {
    return std::nullopt;
  }
  auto const [major_number, minor_number, patch_number] = *args;
  return VersionRaw(major_number, minor_number, patch_number);
}

VersionRaw::VersionRaw(std::string const& text) {
  *this = parse(text);
}

std::string VersionRaw::to_string() const {
  std::string result = std::to_string(major);
  result += '.';
  result += std::to_string(minor);
  result += '.';
  result += std::to_string(patch);
  return result;
}

Version::Version(std::string const& text) : VersionRaw(text), text_(text) {}

Version Version::parse(std::string const& text) {
  return Version(text);
}

std::optional<Version> Version::try_parse(std::string const& text) noexcept {
  try {
    return Version(text);
  } catch (std::exception const&) {
    return std::nullopt;
  }
}
