// APState: the names of its values, both ways, and UNKNOWN for everything else.
#include <wlccw/enums/APState.hpp>

#include "XFamilyChecks.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdint>
#include <string>

namespace {

using E = APState;

// The names in value order, value 0 first.
constexpr std::array<xfamily::Name<E>, 16> names{{
    {"Start", E::START},
    {"Pre-configured", E::PRE_CONFIGURED},
    {"Reconnecting", E::RECONNECTING},
    {"Registering", E::REGISTERING},
    {"Upgrading FW", E::UPGRADING_FW},
    {"Ready", E::READY},
    {"Applying cfg", E::APPLYING_CFG},
    {"Sandboxed", E::SANDBOXED},
    {"Active", E::ACTIVE},
    {"Failed", E::FAILED},
    {"Cfg failed", E::CFG_FAILED},
    {"Updating creds", E::UPDATING_CREDS},
    {"Rebooting", E::REBOOTING},
    {"Lost", E::LOST},
    {"Finish", E::FINISH},
    {"UNKNOWN", E::UNKNOWN},
}};

TEST(APState, ValuesAreNumberedInTableOrderWithUnknownLast) {
  xfamily::expect_numbered_in_order(names);
}

TEST(APState, EveryNameReadsAsItsValueAndEveryValueWritesAsItsName) {
  xfamily::expect_every_name_both_ways(names, APStateFromStrX, APStateToStrX);
}

TEST(APState, TheTextUnknownReadsAsUnknown) {
  EXPECT_EQ(APStateFromStrX("UNKNOWN"), E::UNKNOWN);
  EXPECT_STREQ(APStateToStrX(E::UNKNOWN), "UNKNOWN");
}

TEST(APState, OtherTextsReadAsUnknown) {
  xfamily::expect_other_texts_unknown(names, APStateFromStrX);
}

TEST(APState, TextEndsAtItsFirstNul) {
  xfamily::expect_text_ends_at_first_nul(names, APStateFromStrX);
}

TEST(APState, ValuesFromUnknownOnAndNegativeValuesWriteUnknown) {
  xfamily::expect_values_from_unknown_on_written_unknown(names, APStateToStrX);
}

TEST(APState, UpgradingFwIsFourAndAnyLetterInAnotherCaseIsUnknown) {
  std::string const text = "Upgrading FW";
  EXPECT_EQ(APStateFromStrX(text), E::UPGRADING_FW);
  EXPECT_EQ(static_cast<std::int32_t>(APStateFromStrX(text)), 4);
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto const c = static_cast<unsigned char>(text[i]);
    if (std::isalpha(c) == 0) {
      continue;
    }
    std::string changed = text;
    changed[i] = static_cast<char>(std::isupper(c) != 0 ? std::tolower(c) : std::toupper(c));
    EXPECT_EQ(static_cast<std::int32_t>(APStateFromStrX(changed)), 15) << changed;
  }
  EXPECT_EQ(static_cast<std::int32_t>(APStateFromStrX("UPGRADING FW")), 15);
  EXPECT_EQ(static_cast<std::int32_t>(APStateFromStrX("upgrading fw")), 15);
}

TEST(APState, FifteenAndTwoHundredWriteUnknown) {
  EXPECT_STREQ(APStateToStrX(static_cast<E>(15)), "UNKNOWN");
  EXPECT_STREQ(APStateToStrX(static_cast<E>(200)), "UNKNOWN");
}

} // namespace
