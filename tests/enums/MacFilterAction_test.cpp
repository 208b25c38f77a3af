// MacFilterAction: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/MacFilterAction.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = MacFilterAction;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 8> names{{
    {"enable", E::ENABLE},
    {"disable", E::DISABLE},
    {"add", E::ADD},
    {"remove", E::REMOVE},
    {"status", E::STATUS},
    {"show", E::SHOW},
    {"clear", E::CLEAR},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(MacFilterAction, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(MacFilterAction, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, MacFilterActionFromStrX, MacFilterActionToStrX);
}

TEST(MacFilterAction, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(MacFilterActionFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(MacFilterActionToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(MacFilterAction, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, MacFilterActionFromStrX);
}

TEST(MacFilterAction, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, MacFilterActionFromStrX);
}

TEST(MacFilterAction, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, MacFilterActionToStrX);
}

} // namespace
