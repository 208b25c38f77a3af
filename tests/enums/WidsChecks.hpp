// Checks shared by the tests of the WIDS enumerations, whose text parsers give a fallback (a
// default value or an empty optional) for every text that is not exactly a text of the table.
//
// Each test states its table itself, as rows written out in the test; the checks take the texts
// from those rows, never from the library's own tables.
#pragma once

#include "support/text_variants.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace wids_checks {

/// The texts of a table given as rows with a text member, or as the texts themselves.
template <typename Row, std::size_t N>
std::vector<std::string_view> texts_of(Row const (&rows)[N]) {
  std::vector<std::string_view> texts;
  for (Row const& row : rows) {
    if constexpr (std::is_convertible_v<Row const&, std::string_view>) {
      texts.emplace_back(row);
    } else {
      texts.emplace_back(row.text);
    }
  }
  return texts;
}

/// The answer of two parsers that must agree on every text: checks that they do and gives it.
template <auto netconf, auto ipc> auto parse_both(std::string const& text) {
  auto const from_netconf = netconf(text);
  auto const from_ipc = ipc(text);
  EXPECT_EQ(from_netconf, from_ipc) << ::testing::PrintToString(text);
  return from_ipc;
}

/// Every text parses to the fallback.
template <typename Parse, typename Fallback>
void expect_all_fall_back(std::vector<std::string> const& texts, Parse parse,
                          Fallback const& fallback) {
  ASSERT_FALSE(texts.empty()) << "a check over no text checks nothing";
  for (std::string const& text : texts) {
    EXPECT_EQ(parse(text), fallback) << ::testing::PrintToString(text);
  }
}

/// Every text of the table changed in case parses to the fallback.
template <typename Row, std::size_t N, typename Parse, typename Fallback>
void expect_case_changed_texts_fall_back(Row const (&rows)[N], Parse parse,
                                         Fallback const& fallback) {
  expect_all_fall_back(wlccw::test::variants_of(texts_of(rows), wlccw::test::case_variants), parse,
                       fallback);
}

/// Every text of the table padded with blanks parses to the fallback.
template <typename Row, std::size_t N, typename Parse, typename Fallback>
void expect_blank_padded_texts_fall_back(Row const (&rows)[N], Parse parse,
                                         Fallback const& fallback) {
  expect_all_fall_back(wlccw::test::variants_of(texts_of(rows), wlccw::test::padded_variants),
                       parse, fallback);
}

/// Every text of the table with its hyphens and underscores swapped, where it has any, parses to
/// the fallback.
template <typename Row, std::size_t N, typename Parse, typename Fallback>
void expect_swapped_separator_texts_fall_back(Row const (&rows)[N], Parse parse,
                                              Fallback const& fallback) {
  auto const swapped = [](std::string_view text) {
    return std::vector<std::string>{wlccw::test::swap_hyphens_and_underscores(text)};
  };
  expect_all_fall_back(wlccw::test::variants_of(texts_of(rows), swapped), parse, fallback);
}

/// The whole text is compared, NUL bytes included: every text of the table followed or preceded
/// by a NUL byte, or cut short by a byte, parses to the fallback.
template <typename Row, std::size_t N, typename Parse, typename Fallback>
void expect_texts_compared_whole(Row const (&rows)[N], Parse parse, Fallback const& fallback) {
  expect_all_fall_back(wlccw::test::variants_of(texts_of(rows), wlccw::test::embedded_nul_variants,
                                                wlccw::test::cut_short_variants),
                       parse, fallback);
}

} // namespace wids_checks
