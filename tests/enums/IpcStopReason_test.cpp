// IpcStopReason: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/IpcStopReason.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>

namespace {

using E = IpcStopReason;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 2> names{{
    {"REBOOT", E::REBOOT},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(IpcStopReason, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(IpcStopReason, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, IpcStopReasonFromStrX, IpcStopReasonToStrX);
}

TEST(IpcStopReason, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(IpcStopReasonFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(IpcStopReasonToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(IpcStopReason, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, IpcStopReasonFromStrX);
}

TEST(IpcStopReason, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, IpcStopReasonFromStrX);
}

TEST(IpcStopReason, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, IpcStopReasonToStrX);
}

TEST(IpcStopReason, EveryNonZeroValueWritesUnknown) {
  EXPECT_STREQ(IpcStopReasonToStrX(static_cast<E>(0)), "REBOOT");
  for (std::int32_t n : {1, 2, 3, 200, std::numeric_limits<std::int32_t>::max(), -1, -200,
                         std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_STREQ(IpcStopReasonToStrX(static_cast<E>(n)), "UNKNOWN") << n;
  }
}

} // namespace
