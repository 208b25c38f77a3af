// ApSaStage: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/ApSaStage.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = ApSaStage;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 4> names{{
    {"REGISTER", E::REGISTER},
    {"READY", E::READY},
    {"UPGRADE", E::UPGRADE},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(ApSaStage, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(ApSaStage, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, ApSaStageFromStrX, ApSaStageToStrX);
}

TEST(ApSaStage, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(ApSaStageFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(ApSaStageToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(ApSaStage, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, ApSaStageFromStrX);
}

TEST(ApSaStage, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, ApSaStageFromStrX);
}

TEST(ApSaStage, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, ApSaStageToStrX);
}

} // namespace
