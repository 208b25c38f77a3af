// ApIndicationAction: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/ApIndicationAction.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = ApIndicationAction;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 3> names{{
    {"disable", E::DISABLE},
    {"enable", E::ENABLE},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(ApIndicationAction, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(ApIndicationAction, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, ApIndicationActionFromStrX, ApIndicationActionToStrX);
}

TEST(ApIndicationAction, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(ApIndicationActionFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(ApIndicationActionToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(ApIndicationAction, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, ApIndicationActionFromStrX);
}

TEST(ApIndicationAction, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, ApIndicationActionFromStrX);
}

TEST(ApIndicationAction, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, ApIndicationActionToStrX);
}

} // namespace
