// SecurityMode: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/SecurityMode.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = SecurityMode;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 13> names{{
    {"off", E::OFF},
    {"WPA", E::WPA},
    {"WPA_1X", E::WPA_1X},
    {"WPA2", E::WPA2},
    {"WPA2_1X", E::WPA2_1X},
    {"WPA3", E::WPA3},
    {"WPA3_1X", E::WPA3_1X},
    {"WPA_WPA2", E::WPA_WPA2},
    {"WPA_WPA2_1X", E::WPA_WPA2_1X},
    {"WPA2_WPA3", E::WPA2_WPA3},
    {"WPA2_WPA3_1X", E::WPA2_WPA3_1X},
    {"OWE", E::OWE},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(SecurityMode, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(SecurityMode, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, SecurityModeFromStrX, SecurityModeToStrX);
}

TEST(SecurityMode, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(SecurityModeFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(SecurityModeToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(SecurityMode, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, SecurityModeFromStrX);
}

TEST(SecurityMode, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, SecurityModeFromStrX);
}

TEST(SecurityMode, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, SecurityModeToStrX);
}

} // namespace
