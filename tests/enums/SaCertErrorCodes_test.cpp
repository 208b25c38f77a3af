// SaCertErrorCodes: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/SaCertErrorCodes.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using E = SaCertErrorCodes;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 4> names{{
    {"SUCCESS", E::SUCCESS},
    {"CLIENT_ERROR", E::CLIENT_ERROR},
    {"GEN_AP_CERT_ERROR", E::GEN_AP_CERT_ERROR},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(SaCertErrorCodes, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(SaCertErrorCodes, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, SaCertErrorCodesFromStrX, SaCertErrorCodesToStrX);
}

TEST(SaCertErrorCodes, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(SaCertErrorCodesFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(SaCertErrorCodesToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(SaCertErrorCodes, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, SaCertErrorCodesFromStrX);
}

TEST(SaCertErrorCodes, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, SaCertErrorCodesFromStrX);
}

TEST(SaCertErrorCodes, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, SaCertErrorCodesToStrX);
}

} // namespace
