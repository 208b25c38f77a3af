// MacAuthMode: the controller's word "radius" and nothing else selects RADIUS; the AP's words are
// "local" and "radius".
#include <wlccw/enums/MacAuthMode.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace {

using E = MacAuthMode;

struct Word {
  std::string_view text;
  E value;
};

// The AP's configuration words in value order.
constexpr std::array<Word, 2> ap_words{{
    {"local", E::LOCAL},
    {"radius", E::RADIUS},
}};

TEST(MacAuthMode, ValuesAreLocalZeroAndRadiusOne) {
  EXPECT_EQ(static_cast<std::int32_t>(E::LOCAL), 0);
  EXPECT_EQ(static_cast<std::int32_t>(E::RADIUS), 1);
}

TEST(MacAuthMode, RadiusReadsAsRadius) {
  EXPECT_EQ(MacAuthMode_from_wlc_config("radius"), E::RADIUS);
  EXPECT_EQ(MacAuthMode_from_wlc_config(std::string("radius")), E::RADIUS);
}

TEST(MacAuthMode, EveryOtherTextReadsAsLocal) {
  for (std::string_view text :
       {"", "local", "LOCAL", "Local", "bogus", "radiu", "radiuss", "xradius", " radius", "radius ",
        " radius ", "\tradius", "radius\n", "UNKNOWN", "unknown", "1", "0"}) {
    EXPECT_EQ(MacAuthMode_from_wlc_config(text), E::LOCAL) << '"' << text << '"';
  }
  EXPECT_EQ(MacAuthMode_from_wlc_config(std::string_view()), E::LOCAL);
}

TEST(MacAuthMode, RadiusInAnotherCaseReadsAsLocal) {
  for (std::string_view text : {"RADIUS", "Radius", "radiuS", "rAdIuS"}) {
    EXPECT_EQ(MacAuthMode_from_wlc_config(text), E::LOCAL) << text;
  }
}

TEST(MacAuthMode, TheWholeTextIsComparedEvenPastANul) {
  EXPECT_EQ(MacAuthMode_from_wlc_config(std::string_view("radius\0x", 8)), E::LOCAL);
  EXPECT_EQ(MacAuthMode_from_wlc_config(std::string_view("radius\0", 7)), E::LOCAL);
  EXPECT_EQ(MacAuthMode_from_wlc_config(std::string_view("radiusx", 6)), E::RADIUS);
}

TEST(MacAuthMode, EveryValueWritesItsApWord) {
  for (Word const& word : ap_words) {
    EXPECT_EQ(MacAuthMode_to_ap_config(word.value), word.text);
  }
}

TEST(MacAuthMode, TheLocalWordIsNotReadBackAsAWordButFallsBackToLocal) {
  // Only "radius" is a word of the controller's configuration; "local" reads as local because every
  // unrecognised word does.
  EXPECT_EQ(MacAuthMode_from_wlc_config(MacAuthMode_to_ap_config(E::RADIUS)), E::RADIUS);
  EXPECT_EQ(MacAuthMode_from_wlc_config(MacAuthMode_to_ap_config(E::LOCAL)), E::LOCAL);
}

TEST(MacAuthMode, OtherValuesWriteAnEmptyText) {
  for (std::int32_t n : {2, 3, 200, std::numeric_limits<std::int32_t>::max(), -1, -200,
                         std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(MacAuthMode_to_ap_config(static_cast<E>(n)), "") << n;
  }
}

} // namespace
