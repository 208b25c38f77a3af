// PowerSupply: the AP's power-supply texts; UNKNOWN has none.
#include <wlccw/enums/PowerSupply.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace {

using E = PowerSupply;

struct Word {
  std::string_view text;
  E value;
};

// The texts in value order; UNKNOWN (3) follows them.
constexpr std::array<Word, 3> words{{
    {"PoE/Unclassified", E::POE_UNCLASSIFIED},
    {"PoE+", E::POE_PLUS},
    {"PoE++", E::POE_PLUS_PLUS},
}};

TEST(PowerSupply, ValuesAreNumberedInTableOrderWithUnknownThree) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    EXPECT_EQ(static_cast<std::int32_t>(words[i].value), static_cast<std::int32_t>(i))
        << words[i].text;
  }
  EXPECT_EQ(static_cast<std::int32_t>(E::UNKNOWN), 3);
}

TEST(PowerSupply, EveryTextReadsAsItsValue) {
  for (Word const& word : words) {
    EXPECT_EQ(power_supply_from_str(word.text), word.value) << word.text;
    EXPECT_EQ(power_supply_from_str(std::string(word.text)), word.value) << word.text;
  }
}

TEST(PowerSupply, EveryValueWritesItsText) {
  for (Word const& word : words) {
    EXPECT_EQ(power_supply_to_str(word.value), word.text);
  }
}

TEST(PowerSupply, UnknownTextsReadAsUnknown) {
  for (std::string_view text :
       {"bogus", "UNKNOWN", "unknown", "PoE", "PoE+++", "PoE/", "Unclassified", "802.3at", "3"}) {
    EXPECT_EQ(power_supply_from_str(text), E::UNKNOWN) << '"' << text << '"';
  }
  EXPECT_EQ(power_supply_from_str(std::string_view()), E::UNKNOWN);
}

TEST(PowerSupply, ChangedCaseAndPaddedTextsReadAsUnknown) {
  for (Word const& word : words) {
    std::string const t(word.text);
    std::string upper = t;
    std::string lower = t;
    for (char& c : upper) {
      c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    for (char& c : lower) {
      c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    for (std::string const& text :
         {upper, lower, " " + t, t + " ", " " + t + " ", "\t" + t, t + "\n"}) {
      EXPECT_EQ(power_supply_from_str(text), E::UNKNOWN) << '"' << text << '"';
    }
  }
}

TEST(PowerSupply, TheWholeTextIsComparedEvenPastANul) {
  EXPECT_EQ(power_supply_from_str(std::string_view("PoE+\0+", 6)), E::UNKNOWN);
  EXPECT_EQ(power_supply_from_str(std::string_view("PoE++", 4)), E::POE_PLUS);
}

TEST(PowerSupply, EmptyTextReadsAsThreeAndThreeWritesEmpty) {
  EXPECT_EQ(static_cast<std::int32_t>(power_supply_from_str("")), 3);
  EXPECT_EQ(power_supply_to_str(static_cast<E>(3)), "");
}

TEST(PowerSupply, OtherValuesWriteAnEmptyText) {
  for (std::int32_t n : {3, 4, 200, std::numeric_limits<std::int32_t>::max(), -1, -200,
                         std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(power_supply_to_str(static_cast<E>(n)), "") << n;
  }
}

} // namespace
