// The generic dictionary behind the enumerations: exact lookups over rows built at compile time.
#include "detail/Dictionary.hpp"
#include "detail/NameTable.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using wlccw::detail::Row;

enum class Colour : std::int32_t { RED, GREEN, BLUE, UNKNOWN };

constexpr std::array<Row<Colour>, 3> colour_rows{{
    {"red", Colour::RED},
    {"green", Colour::GREEN},
    {"blue", Colour::BLUE},
}};
constexpr auto colours = wlccw::detail::make_dictionary(colour_rows);

// Built at compile time: lookups work in constant expressions too.
static_assert(colours.find("green") == Colour::GREEN);
static_assert(!colours.find("GREEN").has_value());

TEST(Dictionary, FindsEveryRowByItsExactText) {
  for (auto const& [text, value] : colour_rows) {
    EXPECT_EQ(colours.find(text), value) << text;
  }
}

TEST(Dictionary, AnyOtherTextIsNotFound) {
  for (std::string_view text : {"", "Red", "RED", " red", "red ", "re", "redd", "gree", "blue\n"}) {
    EXPECT_EQ(colours.find(text), std::nullopt) << text;
  }
}

TEST(Dictionary, ComparesTheViewsBytesNotATerminatedString) {
  std::string const text = "redish";
  EXPECT_EQ(colours.find(std::string_view(text).substr(0, 3)), Colour::RED);
  EXPECT_EQ(colours.find(std::string_view("red\0x", 5)), std::nullopt);
}

// Texts that share their length and their first and last eight bytes hash alike; the table must
// still tell them apart.
TEST(Dictionary, TextsThatCollideAreToldApart) {
  constexpr std::array<Row<int>, 4> rows{{
      {"prefix--AAAA--suffix", 0},
      {"prefix--BBBB--suffix", 1},
      {"prefix--CCCC--suffix", 2},
      {"prefix--DDDD--suffix", 3},
  }};
  constexpr auto dictionary = wlccw::detail::make_dictionary(rows);
  for (auto const& [text, value] : rows) {
    EXPECT_EQ(dictionary.find(text), value) << text;
  }
  EXPECT_EQ(dictionary.find("prefix--EEEE--suffix"), std::nullopt);
}

TEST(Dictionary, FirstOfRepeatedTextsStays) {
  constexpr std::array<Row<int>, 2> rows{{{"same", 1}, {"same", 2}}};
  constexpr auto dictionary = wlccw::detail::make_dictionary(rows);
  EXPECT_EQ(dictionary.find("same"), 1);
}

TEST(Dictionary, LongTextsAreHashedWithoutReadingPastThem) {
  std::string const long_text(1 << 20, 'x');
  EXPECT_EQ(colours.find(long_text), std::nullopt);
}

TEST(Dictionary, TextOfIndexesRowsInValueOrder) {
  static_assert(wlccw::detail::rows_in_value_order(colour_rows));
  EXPECT_EQ(wlccw::detail::text_of(colour_rows, Colour::BLUE), "blue");
  EXPECT_EQ(wlccw::detail::text_of(colour_rows, Colour::UNKNOWN), std::nullopt);
  EXPECT_EQ(wlccw::detail::text_of(colour_rows, static_cast<Colour>(-1)), std::nullopt);
}

constexpr std::array<char const*, 4> colour_names{"red", "green", "blue", "UNKNOWN"};
constexpr auto colour_dictionary = wlccw::detail::make_name_dictionary<Colour>(colour_names);

TEST(NameTable, TextToValueByExactNameElseUnknown) {
  using wlccw::detail::x_from_str;
  EXPECT_EQ(x_from_str(colour_dictionary, "blue", Colour::UNKNOWN), Colour::BLUE);
  EXPECT_EQ(x_from_str(colour_dictionary, "UNKNOWN", Colour::UNKNOWN), Colour::UNKNOWN);
  EXPECT_EQ(x_from_str(colour_dictionary, "Blue", Colour::UNKNOWN), Colour::UNKNOWN);
  EXPECT_EQ(x_from_str(colour_dictionary, "", Colour::UNKNOWN), Colour::UNKNOWN);
  EXPECT_EQ(x_from_str(colour_dictionary, std::string_view(), Colour::UNKNOWN), Colour::UNKNOWN);
}

TEST(NameTable, TextEndsAtItsFirstNul) {
  using wlccw::detail::x_from_str;
  EXPECT_EQ(x_from_str(colour_dictionary, std::string_view("red\0junk", 8), Colour::UNKNOWN),
            Colour::RED);
  EXPECT_EQ(x_from_str(colour_dictionary, std::string_view("\0red", 4), Colour::UNKNOWN),
            Colour::UNKNOWN);
}

TEST(NameTable, ValueToTextWithUnknownPastTheProperNames) {
  using wlccw::detail::x_to_str;
  EXPECT_STREQ(x_to_str(colour_names, Colour::RED), "red");
  EXPECT_STREQ(x_to_str(colour_names, Colour::UNKNOWN), "UNKNOWN");
  EXPECT_STREQ(x_to_str(colour_names, static_cast<Colour>(200)), "UNKNOWN");
  EXPECT_STREQ(x_to_str(colour_names, static_cast<Colour>(-1)), "UNKNOWN");
}

} // namespace
