// IpcMsgCfgState: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/IpcMsgCfgState.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = IpcMsgCfgState;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 4> names{{
    {"NOT_EXISTS", E::NOT_EXISTS},
    {"EXISTS", E::EXISTS},
    {"INVALID", E::INVALID},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(IpcMsgCfgState, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(IpcMsgCfgState, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, IpcMsgCfgStateFromStrX, IpcMsgCfgStateToStrX);
}

TEST(IpcMsgCfgState, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(IpcMsgCfgStateFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(IpcMsgCfgStateToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(IpcMsgCfgState, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, IpcMsgCfgStateFromStrX);
}

TEST(IpcMsgCfgState, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, IpcMsgCfgStateFromStrX);
}

TEST(IpcMsgCfgState, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, IpcMsgCfgStateToStrX);
}

} // namespace
