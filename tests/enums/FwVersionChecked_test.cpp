// FwVersionChecked: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/FwVersionChecked.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = FwVersionChecked;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 6> names{{
    {"UNKNOWN_BOARD_TYPE", E::UNKNOWN_BOARD_TYPE},
    {"FW_INVALID_FILE_ABSENT", E::FW_INVALID_FILE_ABSENT},
    {"FW_INVALID_FILE_PRESENT", E::FW_INVALID_FILE_PRESENT},
    {"FW_SUPPORTED_FILE_PRESENT", E::FW_SUPPORTED_FILE_PRESENT},
    {"FW_VALID", E::FW_VALID},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(FwVersionChecked, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(FwVersionChecked, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, FwVersionCheckedFromStrX, FwVersionCheckedToStrX);
}

TEST(FwVersionChecked, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(FwVersionCheckedFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(FwVersionCheckedToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(FwVersionChecked, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, FwVersionCheckedFromStrX);
}

TEST(FwVersionChecked, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, FwVersionCheckedFromStrX);
}

TEST(FwVersionChecked, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, FwVersionCheckedToStrX);
}

} // namespace
