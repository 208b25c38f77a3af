// Checks shared by the tests of the controller state enumerations, the <Type>FromStrX and
// <Type>ToStrX family: every value has a name, the names are read exactly (up to the first NUL),
// and anything else reads as UNKNOWN, the last value; every value from UNKNOWN on, negative ones
// included, writes as "UNKNOWN".
//
// Each test states its table itself, as a list of names in value order; the checks compare the
// functions under test with that list, never with the library's own table.
#pragma once

#include "support/text_variants.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace xfamily {

/// One name of a table and the value it stands for.
template <typename E> struct Name {
  std::string_view text;
  E value;
};

template <typename E> std::int32_t number(E value) {
  return static_cast<std::int32_t>(value);
}

/// The value the family must give for a text: the value of the name equal to it, else UNKNOWN.
template <typename E, std::size_t N>
E expected_value(std::array<Name<E>, N> const& names, std::string_view text) {
  for (Name<E> const& name : names) {
    if (name.text == text) {
      return name.value;
    }
  }
  return names.back().value;
}

/// The values are 0, 1, 2, ... in the order of the names, and the last one is named "UNKNOWN".
template <typename E, std::size_t N>
void expect_numbered_in_order(std::array<Name<E>, N> const& names) {
  for (std::size_t i = 0; i < N; ++i) {
    EXPECT_EQ(number(names[i].value), static_cast<std::int32_t>(i)) << names[i].text;
  }
  EXPECT_EQ(names.back().text, "UNKNOWN");
}

/// Every name reads as its value, from a literal and from a std::string, and every value writes
/// as its name, always the same static text.
template <typename E, std::size_t N>
void expect_every_name_both_ways(std::array<Name<E>, N> const& names,
                                 E (*from_str)(std::string_view), char const* (*to_str)(E)) {
  for (Name<E> const& name : names) {
    EXPECT_EQ(number(from_str(name.text)), number(name.value)) << name.text;
    std::string const owned(name.text);
    EXPECT_EQ(number(from_str(owned)), number(name.value)) << name.text;
    char const* text = to_str(name.value);
    ASSERT_NE(text, nullptr) << name.text;
    EXPECT_EQ(std::string_view(text), name.text);
    EXPECT_EQ(to_str(name.value), text) << "the text of a value is one static string";
  }
}

/// The texts that differ from a name by case, by blanks around it, by a missing or an extra
/// character.
inline std::vector<std::string> near_misses(std::string_view text) {
  std::vector<std::string> misses = wlccw::test::case_variants(text);
  for (auto const& variants :
       {wlccw::test::padded_variants(text), wlccw::test::lengthened_variants(text),
        wlccw::test::cut_short_variants(text)}) {
    misses.insert(misses.end(), variants.begin(), variants.end());
  }
  return misses;
}

/// Texts that are no name read as UNKNOWN: empty, unknown words, and every name changed in case,
/// padded with blanks, cut short or lengthened.
template <typename E, std::size_t N>
void expect_other_texts_unknown(std::array<Name<E>, N> const& names,
                                E (*from_str)(std::string_view)) {
  E const unknown = names.back().value;
  EXPECT_EQ(number(from_str("")), number(unknown));
  EXPECT_EQ(number(from_str(std::string_view())), number(unknown));
  for (std::string_view text : {" ", "bogus", "unknown", "Unknown", "UNKNOWN ", "0", "-1"}) {
    EXPECT_EQ(number(from_str(text)), number(expected_value(names, text))) << '"' << text << '"';
  }
  for (Name<E> const& name : names) {
    for (std::string const& miss : near_misses(name.text)) {
      if (miss == name.text) {
        continue; // a change of case that changes nothing
      }
      EXPECT_EQ(number(from_str(miss)), number(expected_value(names, miss)))
          << '"' << miss << "\" near \"" << name.text << '"';
    }
  }
}

/// A text ends at its first NUL: a name followed by a NUL and anything reads as the name; a NUL
/// first reads as the empty text.
template <typename E, std::size_t N>
void expect_text_ends_at_first_nul(std::array<Name<E>, N> const& names,
                                   E (*from_str)(std::string_view)) {
  for (Name<E> const& name : names) {
    std::vector<std::string> texts = wlccw::test::embedded_nul_variants(name.text);
    texts.push_back(std::string(name.text) + std::string("\0junk", 5));
    for (std::string const& text : texts) {
      E const expected = text.front() == '\0' ? names.back().value : name.value;
      EXPECT_EQ(number(from_str(text)), number(expected)) << ::testing::PrintToString(text);
    }
  }
}

/// UNKNOWN, one past it, 200, the largest value and negative values all write as "UNKNOWN".
template <typename E, std::size_t N>
void expect_values_from_unknown_on_written_unknown(std::array<Name<E>, N> const& names,
                                                   char const* (*to_str)(E)) {
  std::int32_t const last = number(names.back().value);
  for (std::int32_t n : {last, last + 1, last + 2, 200, std::numeric_limits<std::int32_t>::max(),
                         -1, -2, -200, std::numeric_limits<std::int32_t>::min()}) {
    char const* text = to_str(static_cast<E>(n));
    ASSERT_NE(text, nullptr) << n;
    EXPECT_STREQ(text, "UNKNOWN") << n;
  }
}

} // namespace xfamily
