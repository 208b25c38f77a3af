// mfp::Mode: management-frame protection words, the same for the controller and the AP.
#include <wlccw/enums/mfp_Mode.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace {

using mfp::Mode;

struct Word {
  std::string_view text;
  Mode value;
};

// The words in value order.
constexpr std::array<Word, 4> words{{
    {"auto", Mode::AUTO},
    {"off", Mode::OFF},
    {"capable", Mode::CAPABLE},
    {"required", Mode::REQUIRED},
}};

TEST(MfpMode, ValuesAreNumberedAutoOffCapableRequired) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    EXPECT_EQ(static_cast<std::int32_t>(words[i].value), static_cast<std::int32_t>(i))
        << words[i].text;
  }
}

TEST(MfpMode, EveryWordReadsAsItsValue) {
  for (Word const& word : words) {
    EXPECT_EQ(mfp::from_wlc_config(word.text), word.value) << word.text;
    EXPECT_EQ(mfp::from_wlc_config(std::string(word.text)), word.value) << word.text;
  }
}

TEST(MfpMode, EveryValueWritesItsWord) {
  for (Word const& word : words) {
    EXPECT_EQ(mfp::to_ap_config(word.value), word.text);
  }
}

TEST(MfpMode, UnknownAndEmptyTextsAreEmpty) {
  for (std::string_view text : {"", "bogus", "UNKNOWN", "none", "0", "1"}) {
    EXPECT_EQ(mfp::from_wlc_config(text), std::nullopt) << '"' << text << '"';
  }
  EXPECT_EQ(mfp::from_wlc_config(std::string_view()), std::nullopt);
}

TEST(MfpMode, ChangedCaseAndPaddedWordsAreEmpty) {
  for (Word const& word : words) {
    std::string const t(word.text);
    std::string upper = t;
    std::string capital = t;
    for (char& c : upper) {
      c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    capital[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(capital[0])));
    for (std::string const& text : {upper, capital, " " + t, t + " ", " " + t + " ", "\t" + t,
                                    t + "\n", t + "x", t.substr(0, t.size() - 1)}) {
      EXPECT_EQ(mfp::from_wlc_config(text), std::nullopt) << '"' << text << '"';
    }
  }
}

TEST(MfpMode, TheWholeTextIsComparedEvenPastANul) {
  EXPECT_EQ(mfp::from_wlc_config(std::string_view("off\0x", 5)), std::nullopt);
  EXPECT_EQ(mfp::from_wlc_config(std::string_view("offx", 3)), Mode::OFF);
}

TEST(MfpMode, SevenWritesLowerCaseUnknownAndUnknownIsNotAWord) {
  EXPECT_EQ(mfp::to_ap_config(static_cast<Mode>(7)), "unknown");
  EXPECT_EQ(mfp::from_wlc_config("unknown"), std::nullopt);
}

TEST(MfpMode, OtherValuesWriteUnknown) {
  for (std::int32_t n : {4, 7, 200, std::numeric_limits<std::int32_t>::max(), -1, -200,
                         std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(mfp::to_ap_config(static_cast<Mode>(n)), "unknown") << n;
  }
}

} // namespace
