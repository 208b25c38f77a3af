// VelmoraMsgType: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/VelmoraMsgType.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = VelmoraMsgType;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 9> names{{
    {"get_common", E::GET_COMMON},
    {"get_sessions", E::GET_SESSIONS},
    {"rem_sessions", E::REM_SESSIONS},
    {"get_rrm_group_stat", E::GET_RRM_GROUP_STAT},
    {"get_roaming_stat", E::GET_ROAMING_STAT},
    {"get_ap_info", E::GET_AP_INFO},
    {"start_optimization", E::START_OPTIMIZATION},
    {"get_reports", E::GET_REPORTS},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(VelmoraMsgType, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(VelmoraMsgType, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, VelmoraMsgTypeFromStrX, VelmoraMsgTypeToStrX);
}

TEST(VelmoraMsgType, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(VelmoraMsgTypeFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(VelmoraMsgTypeToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(VelmoraMsgType, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, VelmoraMsgTypeFromStrX);
}

TEST(VelmoraMsgType, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, VelmoraMsgTypeFromStrX);
}

TEST(VelmoraMsgType, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, VelmoraMsgTypeToStrX);
}

} // namespace
