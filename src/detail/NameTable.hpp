// The shape shared by the controller state enumerations: a name per value in value order, the last
// one "UNKNOWN"; text to value by exact name (UNKNOWN when no name matches), value to text by index
// (the literal "UNKNOWN" past the last proper name).
#pragma once

#include "detail/Dictionary.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wlccw::detail {

/// The rows (name, value) of a name table: value i is named names[i].
template <typename E, std::size_t N>
constexpr std::array<Row<E>, N> name_rows(std::array<char const*, N> const& names) {
  std::array<Row<E>, N> rows{};
  for (std::size_t i = 0; i < N; ++i) {
    rows[i] = Row<E>{std::string_view(names[i]), static_cast<E>(i)};
  }
  return rows;
}

/// The dictionary from each name of the table to its value, built at compile time.
template <typename E, std::size_t N>
constexpr auto make_name_dictionary(std::array<char const*, N> const& names) {
  return make_dictionary(name_rows<E>(names));
}

/// The text up to its first NUL: state words are compared as the NUL-terminated texts daemons
/// pass (a std::string or a literal), so a NUL ends the word.
constexpr std::string_view until_nul(std::string_view text) noexcept {
  return text.substr(0, text.find('\0'));
}

/// The value named by text (up to its first NUL); unknown when no name matches.
template <typename Dict, typename E>
E x_from_str(Dict const& dictionary, std::string_view text, E unknown) noexcept {
  return dictionary.find(until_nul(text)).value_or(unknown);
}

/// The name of a value; "UNKNOWN" for any value past the last proper name, compared as unsigned.
template <typename E, std::size_t N>
char const* x_to_str(std::array<char const*, N> const& names, E value) noexcept {
  auto const index = static_cast<std::uint32_t>(value);
  return index < N - 1 ? names[index] : "UNKNOWN";
}

} // namespace wlccw::detail
