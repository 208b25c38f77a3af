// RadioBand: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/RadioBand.hpp>
#include <wlccw/enums/radio_Band.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace {

using E = RadioBand;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 4> names{{
    {"2g", E::BAND_2G},
    {"5g", E::BAND_5G},
    {"6g", E::BAND_6G},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(RadioBand, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(RadioBand, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, RadioBandFromStrX, RadioBandToStrX);
}

TEST(RadioBand, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(RadioBandFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(RadioBandToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(RadioBand, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, RadioBandFromStrX);
}

TEST(RadioBand, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, RadioBandFromStrX);
}

TEST(RadioBand, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, RadioBandToStrX);
}

TEST(RadioBand, UpperCaseTextIsUnknownHereButIsTheOtherBandTypesText) {
  EXPECT_EQ(static_cast<std::int32_t>(RadioBandFromStrX("2G")), 3);
  EXPECT_EQ(radio::band::from_str_opt("2G"), radio::Band::BAND_2G);
  EXPECT_EQ(static_cast<std::int32_t>(*radio::band::from_str_opt("2G")), 0);
  EXPECT_FALSE(radio::band::from_str_opt("2g").has_value());
  EXPECT_EQ(static_cast<std::int32_t>(RadioBandFromStrX("2g")), 0);
}

} // namespace
