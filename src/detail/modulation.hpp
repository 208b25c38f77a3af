// Splitting an AP's rate text ("VHT-MCS 9 NSS 2 866.7") into its modulation and its numeric rate,
// and the cipher names of a NETCONF client object. Internal to the library; inline so that the
// tests can call it although the library's internal symbols are hidden.
//
// The split is the whole-text match of "^(.+?)\s+([\d.]+)$" (ECMAScript, case-insensitive, which
// changes nothing for this pattern), written out by hand because it runs for both directions of
// every client on every poll. What the expression accepts, and so what the matcher accepts:
// - the text ends with a run of digits and dots (the second group); that run is the whole
//   maximal trailing run, because the character before it has to be white space;
// - right before it stands a run of white space (space, \t, \n, \v, \f, \r); the lazy first group
//   gives up all of that run, except its first character when the run starts the text (the first
//   group needs one character);
// - the first group is not empty and holds neither '\n' nor '\r' (what "." does not match).
#pragma once

#include <climits>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace wlccw::detail {

/// Which part of a rate text to return.
enum class ModulationPart {
  /// Everything before the last run of white space ahead of the trailing number.
  MODULATION = 1,
  /// The trailing number of digits and dots.
  NUMERIC_RATE = 2
};

/// White space as the "\s" class of the rate pattern knows it.
constexpr bool is_rate_space(char c) noexcept {
  return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

/// A character of the trailing number: a decimal digit or a dot.
constexpr bool is_rate_number_char(char c) noexcept {
  return (c >= '0' && c <= '9') || c == '.';
}

/// The two groups of a rate text that matches, as views into it.
struct RateTextSplit {
  std::string_view modulation;
  std::string_view number;
};

/// Splits text into modulation and trailing number; empty when the text does not match.
constexpr std::optional<RateTextSplit> split_rate_text(std::string_view text) noexcept {
  std::size_t number_begin = text.size();
  while (number_begin > 0 && is_rate_number_char(text[number_begin - 1])) {
    --number_begin;
  }
  if (number_begin == text.size()) {
    return std::nullopt; // no trailing number
  }
  std::size_t space_begin = number_begin;
  while (space_begin > 0 && is_rate_space(text[space_begin - 1])) {
    --space_begin;
  }
  if (space_begin == number_begin) {
    return std::nullopt; // no white space before the number
  }
  // The first group takes as little as it can but at least one character; the white space in
  // front of the number must keep at least one character too.
  std::size_t const modulation_end = space_begin == 0 ? 1 : space_begin;
  if (modulation_end >= number_begin) {
    return std::nullopt;
  }
  std::string_view const modulation = text.substr(0, modulation_end);
  // A plain loop: find_first_of would call memchr on its two characters for every byte.
  for (char const c : modulation) {
    if (c == '\n' || c == '\r') {
      return std::nullopt;
    }
  }
  return RateTextSplit{modulation, text.substr(number_begin)};
}

/// Whether the numeric rate counts: its leading decimal digits, read as an int, are a number
/// other than 0. A number that starts with a dot has no leading digit, and one beyond the range of
/// int cannot be read; neither counts.
constexpr bool is_nonzero_rate_number(std::string_view number) noexcept {
  if (number.empty() || number.front() < '0' || number.front() > '9') {
    return false;
  }
  long long value = 0;
  for (char const c : number) {
    if (c < '0' || c > '9') {
      break;
    }
    value = value * 10 + (c - '0');
    if (value > INT_MAX) {
      return false;
    }
  }
  return value != 0;
}

/// One part of an AP's rate text: MODULATION gives the text before the trailing number
/// ("VHT-MCS 9 NSS 2" of "VHT-MCS 9 NSS 2 866.7"), NUMERIC_RATE the trailing number as written
/// ("866.7") unless its whole-number part is 0 or unreadable ("HT-MCS 0 0.0" has none). Empty for
/// an empty text, a text that does not end in white space and a number ("54M"), or a part outside
/// the two.
inline std::optional<std::string>
parse_modulation_data_string(std::optional<std::string> const& text, ModulationPart part) {
  if (!text) {
    return std::nullopt;
  }
  std::optional<RateTextSplit> const split = split_rate_text(*text);
  if (!split) {
    return std::nullopt;
  }
  switch (part) {
  case ModulationPart::MODULATION:
    return std::string(split->modulation);
  case ModulationPart::NUMERIC_RATE:
    if (!is_nonzero_rate_number(split->number)) {
      return std::nullopt;
    }
    return std::string(split->number);
  }
  return std::nullopt;
}

/// The cipher name of a NETCONF client object: "no-cipher" means none, any other text is kept.
inline std::optional<std::string> cipher_from_netconf(std::optional<std::string> const& text) {
  if (!text || *text == "no-cipher") {
    return std::nullopt;
  }
  return text;
}

} // namespace wlccw::detail
