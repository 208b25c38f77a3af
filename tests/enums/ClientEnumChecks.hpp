// Checks shared by the tests of the client enumerations, whose texts come in an IPC and a NETCONF
// form: every text of a column parses to its value, every value converts to its text, and every
// other text (unknown, empty, changed in case, padded with blanks, cut short, lengthened, the other
// form's text) gives the parser's fallback: an empty optional, or the default value of a defaulting
// parser. Values outside the table convert to no text.
//
// Each test states its table itself, as rows written out in the test; the checks compare the
// functions under test with those rows, never with the library's own tables.
#pragma once

#include "support/text_variants.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace client_enum_checks {

/// One row of a client enumeration: its value and its two texts.
template <typename E> struct TableRow {
  E value;
  std::string_view ipc;
  std::string_view netconf;
};

/// One text of a column and the value it stands for.
template <typename E> using Entry = std::pair<std::string_view, E>;
template <typename E> using Column = std::vector<Entry<E>>;

template <typename E, std::size_t N> Column<E> ipc_column(std::array<TableRow<E>, N> const& rows) {
  Column<E> column;
  for (TableRow<E> const& row : rows) {
    column.emplace_back(row.ipc, row.value);
  }
  return column;
}

template <typename E, std::size_t N>
Column<E> netconf_column(std::array<TableRow<E>, N> const& rows) {
  Column<E> column;
  for (TableRow<E> const& row : rows) {
    column.emplace_back(row.netconf, row.value);
  }
  return column;
}

/// The number of a value, so failures print numbers rather than bytes.
template <typename E> std::int32_t number(E value) {
  return static_cast<std::int32_t>(value);
}
template <typename E> std::optional<std::int32_t> number(std::optional<E> const& value) {
  if (!value) {
    return std::nullopt;
  }
  return number(*value);
}

/// A text with quotes and escapes, for failure messages.
inline std::string shown(std::string_view text) {
  return ::testing::PrintToString(std::string(text));
}

template <typename E> bool in_column(Column<E> const& column, std::string_view text) {
  return std::any_of(column.begin(), column.end(),
                     [text](Entry<E> const& entry) { return entry.first == text; });
}

/// The texts kept from candidates: those that are no text of the column (so a change that happens
/// to give another row's text is left out) and not given twice.
template <typename E>
std::vector<std::string> not_in_column(Column<E> const& column,
                                       std::vector<std::string> const& candidates) {
  std::vector<std::string> kept;
  for (std::string const& text : candidates) {
    if (!in_column(column, text) && std::find(kept.begin(), kept.end(), text) == kept.end()) {
      kept.push_back(text);
    }
  }
  return kept;
}

/// The texts of the column.
template <typename E> std::vector<std::string_view> texts_of(Column<E> const& column) {
  std::vector<std::string_view> texts;
  for (auto const& [text, value] : column) {
    texts.push_back(text);
  }
  return texts;
}

/// Every text of the column upper-cased, lower-cased, capitalised and with its first letter's
/// case flipped, wherever that changes it.
template <typename E> std::vector<std::string> case_changed(Column<E> const& column) {
  return wlccw::test::variants_of(texts_of(column), wlccw::test::case_variants);
}

/// Every text of the column with a leading blank, a trailing blank, both, and a tab or a newline.
template <typename E> std::vector<std::string> blank_padded(Column<E> const& column) {
  return wlccw::test::variants_of(texts_of(column), wlccw::test::padded_variants);
}

/// Every text of the column cut short by its last or first byte, lengthened by one byte, and
/// followed or preceded by a NUL byte: a lookup takes no prefix and reads the whole text.
template <typename E> std::vector<std::string> altered(Column<E> const& column) {
  return wlccw::test::variants_of(texts_of(column), wlccw::test::cut_short_variants,
                                  wlccw::test::lengthened_variants,
                                  wlccw::test::embedded_nul_variants);
}

/// The texts of the other column that are not texts of this one.
template <typename E>
std::vector<std::string> other_form(Column<E> const& column, Column<E> const& other) {
  std::vector<std::string> texts;
  for (auto const& [text, value] : other) {
    texts.emplace_back(text);
  }
  return not_in_column(column, texts);
}

/// Texts that name nothing in any of the client tables.
template <typename E> std::vector<std::string> unknown_texts(Column<E> const& column) {
  return not_in_column(column, {"", " ", "unknown", "none", "null", "0", "1", "-", "_", "bogus",
                                std::string(1, '\0'), std::string(1000, 'a'), "\xff\xfe"});
}

/// Every text of the column parses to its value.
template <typename E, typename Parse> void expect_parses(Column<E> const& column, Parse parse) {
  ASSERT_FALSE(column.empty());
  for (auto const& [text, value] : column) {
    auto const result = parse(text);
    if constexpr (std::is_same_v<std::remove_cv_t<decltype(result)>, E>) {
      EXPECT_EQ(number(result), number(value)) << shown(text);
    } else {
      EXPECT_EQ(number(result), std::optional<std::int32_t>(number(value))) << shown(text);
    }
  }
}

/// Every text gives the fallback: an empty optional (pass std::nullopt) or the default value.
template <typename Parse, typename Fallback>
void expect_all_fall_back(std::vector<std::string> const& texts, Parse parse, Fallback fallback) {
  ASSERT_FALSE(texts.empty()) << "a check over no text checks nothing";
  for (std::string const& text : texts) {
    auto const result = parse(std::string_view(text));
    if constexpr (std::is_same_v<Fallback, std::nullopt_t>) {
      EXPECT_FALSE(result.has_value())
          << shown(text) << " parsed as " << ::testing::PrintToString(number(result));
    } else {
      EXPECT_EQ(number(result), number(fallback)) << shown(text);
    }
  }
}

/// The values cast from numbers outside a table of n rows: one past the last, the next, 200, the
/// largest, and negative ones.
template <typename E> std::vector<E> out_of_range(std::size_t n) {
  auto const past = static_cast<std::int32_t>(n);
  std::vector<E> values;
  for (std::int32_t v : {past, past + 1, 200, std::numeric_limits<std::int32_t>::max(), -1, -2,
                         -200, std::numeric_limits<std::int32_t>::min()}) {
    values.push_back(static_cast<E>(v));
  }
  return values;
}

} // namespace client_enum_checks
