// VelmoraRespStatus: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/VelmoraRespStatus.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = VelmoraRespStatus;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 3> names{{
    {"success", E::SUCCESS},
    {"failure", E::FAILURE},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(VelmoraRespStatus, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(VelmoraRespStatus, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, VelmoraRespStatusFromStrX, VelmoraRespStatusToStrX);
}

TEST(VelmoraRespStatus, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(VelmoraRespStatusFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(VelmoraRespStatusToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(VelmoraRespStatus, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, VelmoraRespStatusFromStrX);
}

TEST(VelmoraRespStatus, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, VelmoraRespStatusFromStrX);
}

TEST(VelmoraRespStatus, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, VelmoraRespStatusToStrX);
}

} // namespace
