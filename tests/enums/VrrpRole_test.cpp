// VrrpRole: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/VrrpRole.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = VrrpRole;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 4> names{{
    {"NO_VRRP", E::NO_VRRP},
    {"MASTER", E::MASTER},
    {"STANDBY", E::STANDBY},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(VrrpRole, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(VrrpRole, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, VrrpRoleFromStrX, VrrpRoleToStrX);
}

TEST(VrrpRole, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(VrrpRoleFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(VrrpRoleToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(VrrpRole, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, VrrpRoleFromStrX);
}

TEST(VrrpRole, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, VrrpRoleFromStrX);
}

TEST(VrrpRole, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, VrrpRoleToStrX);
}

} // namespace
