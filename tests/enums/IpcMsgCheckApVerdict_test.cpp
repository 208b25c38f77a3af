// IpcMsgCheckApVerdict: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/IpcMsgCheckApVerdict.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = IpcMsgCheckApVerdict;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 9> names{{
    {"ACCEPT_KNOWN_AP", E::ACCEPT_KNOWN_AP},
    {"ACCEPT_KNOWN_UPGRADING_AP", E::ACCEPT_KNOWN_UPGRADING_AP},
    {"ACCEPT_NEW_AP", E::ACCEPT_NEW_AP},
    {"FAIL_INTERNAL", E::FAIL_INTERNAL},
    {"FAIL_AP_HITS_LIMIT", E::FAIL_AP_HITS_LIMIT},
    {"FAIL_AP_CONNECTION_ESTABLISHED", E::FAIL_AP_CONNECTION_ESTABLISHED},
    {"FAIL_AP_CONNECTION_PLANNED", E::FAIL_AP_CONNECTION_PLANNED},
    {"NOT_CHECKED", E::NOT_CHECKED},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(IpcMsgCheckApVerdict, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(IpcMsgCheckApVerdict, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, IpcMsgCheckApVerdictFromStrX,
                                       IpcMsgCheckApVerdictToStrX);
}

TEST(IpcMsgCheckApVerdict, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(IpcMsgCheckApVerdictFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(IpcMsgCheckApVerdictToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(IpcMsgCheckApVerdict, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, IpcMsgCheckApVerdictFromStrX);
}

TEST(IpcMsgCheckApVerdict, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, IpcMsgCheckApVerdictFromStrX);
}

TEST(IpcMsgCheckApVerdict, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, IpcMsgCheckApVerdictToStrX);
}

} // namespace
