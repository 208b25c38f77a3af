// IpcMsgStatus: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/IpcMsgStatus.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace {

using E = IpcMsgStatus;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 3> names{{
    {"FAILURE", E::FAILURE},
    {"SUCCESS", E::SUCCESS},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(IpcMsgStatus, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(IpcMsgStatus, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, IpcMsgStatusFromStrX, IpcMsgStatusToStrX);
}

TEST(IpcMsgStatus, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(IpcMsgStatusFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(IpcMsgStatusToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(IpcMsgStatus, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, IpcMsgStatusFromStrX);
}

TEST(IpcMsgStatus, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, IpcMsgStatusFromStrX);
}

TEST(IpcMsgStatus, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, IpcMsgStatusToStrX);
}

TEST(IpcMsgStatus, SuccessIsOneAndFailureIsZero) {
  EXPECT_EQ(static_cast<std::int32_t>(IpcMsgStatusFromStrX("SUCCESS")), 1);
  EXPECT_EQ(static_cast<std::int32_t>(IpcMsgStatusFromStrX("FAILURE")), 0);
  EXPECT_STREQ(IpcMsgStatusToStrX(static_cast<E>(1)), "SUCCESS");
  EXPECT_STREQ(IpcMsgStatusToStrX(static_cast<E>(0)), "FAILURE");
}

} // namespace
