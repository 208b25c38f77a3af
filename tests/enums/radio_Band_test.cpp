// radio::Band: the upper-case band texts "2G", "5G", "6G".
#include <wlccw/enums/radio_Band.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

using radio::Band;

struct Word {
  std::string_view text;
  Band value;
};

// The texts in value order.
constexpr std::array<Word, 3> words{{
    {"2G", Band::BAND_2G},
    {"5G", Band::BAND_5G},
    {"6G", Band::BAND_6G},
}};

constexpr std::array<std::int32_t, 7> values_past_the_bands{
    3,
    4,
    200,
    std::numeric_limits<std::int32_t>::max(),
    -1,
    -200,
    std::numeric_limits<std::int32_t>::min()};

TEST(RadioNamespaceBand, ValuesAreNumberedTwoFiveSixGigahertz) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    EXPECT_EQ(static_cast<std::int32_t>(words[i].value), static_cast<std::int32_t>(i))
        << words[i].text;
  }
}

TEST(RadioNamespaceBand, EveryTextReadsAsItsBand) {
  for (Word const& word : words) {
    EXPECT_EQ(radio::band::from_str_opt(word.text), word.value) << word.text;
    EXPECT_EQ(radio::band::from_str_opt(std::string(word.text)), word.value) << word.text;
  }
}

TEST(RadioNamespaceBand, EveryBandWritesItsTextBothWays) {
  for (Word const& word : words) {
    EXPECT_EQ(radio::band::to_str_opt(word.value), word.text);
    EXPECT_EQ(radio::band::to_str(word.value), word.text);
  }
}

TEST(RadioNamespaceBand, TheTextIsAViewOfStaticStorage) {
  // The same characters every time, so the view outlives any call.
  for (Word const& word : words) {
    std::optional<std::string_view> const first = radio::band::to_str_opt(word.value);
    std::optional<std::string_view> const second = radio::band::to_str_opt(word.value);
    ASSERT_TRUE(first.has_value());
    ASSERT_TRUE(second.has_value());
    EXPECT_EQ(first->data(), second->data());
    EXPECT_EQ(radio::band::to_str(word.value).data(), first->data());
  }
}

TEST(RadioNamespaceBand, UnknownAndEmptyTextsAreEmpty) {
  for (std::string_view text : {"", "bogus", "UNKNOWN", "2.4G", "2.4", "24G", "5GHz", "0", "G"}) {
    EXPECT_EQ(radio::band::from_str_opt(text), std::nullopt) << '"' << text << '"';
  }
  EXPECT_EQ(radio::band::from_str_opt(std::string_view()), std::nullopt);
}

TEST(RadioNamespaceBand, LowerCaseAndPaddedTextsAreEmpty) {
  for (Word const& word : words) {
    std::string const t(word.text);
    std::string lower = t;
    for (char& c : lower) {
      c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    for (std::string const& text : {lower, " " + t, t + " ", " " + t + " ", "\t" + t, t + "\n"}) {
      EXPECT_EQ(radio::band::from_str_opt(text), std::nullopt) << '"' << text << '"';
    }
  }
}

TEST(RadioNamespaceBand, TheWholeTextIsComparedEvenPastANul) {
  EXPECT_EQ(radio::band::from_str_opt(std::string_view("5G\0", 3)), std::nullopt);
  EXPECT_EQ(radio::band::from_str_opt(std::string_view("5GHz", 2)), Band::BAND_5G);
}

TEST(RadioNamespaceBand, OtherValuesHaveNoText) {
  for (std::int32_t n : values_past_the_bands) {
    EXPECT_EQ(radio::band::to_str_opt(static_cast<Band>(n)), std::nullopt) << n;
  }
}

TEST(RadioNamespaceBand, ThreeThrowsInvalidArgumentWithItsMessage) {
  try {
    static_cast<void>(radio::band::to_str(static_cast<Band>(3)));
    ADD_FAILURE() << "no exception";
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "APClientData: band_to_str unknown band");
  }
}

TEST(RadioNamespaceBand, EveryOtherValueThrowsInvalidArgument) {
  for (std::int32_t n : values_past_the_bands) {
    EXPECT_THROW(static_cast<void>(radio::band::to_str(static_cast<Band>(n))),
                 std::invalid_argument)
        << n;
  }
}

} // namespace
