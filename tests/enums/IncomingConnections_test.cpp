// IncomingConnections: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/IncomingConnections.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = IncomingConnections;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 3> names{{
    {"ALLOWED", E::ALLOWED},
    {"FORBIDDEN", E::FORBIDDEN},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(IncomingConnections, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(IncomingConnections, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, IncomingConnectionsFromStrX,
                                       IncomingConnectionsToStrX);
}

TEST(IncomingConnections, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(IncomingConnectionsFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(IncomingConnectionsToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(IncomingConnections, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, IncomingConnectionsFromStrX);
}

TEST(IncomingConnections, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, IncomingConnectionsFromStrX);
}

TEST(IncomingConnections, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, IncomingConnectionsToStrX);
}

} // namespace
