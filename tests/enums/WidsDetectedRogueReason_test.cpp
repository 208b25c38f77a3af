// Why an AP counts as rogue: four texts both ways, no reason (an empty optional) or "" for
// anything else.
#include <wlccw/enums/WidsDetectedRogueReason.hpp>

#include "WidsChecks.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

namespace {

using WidsDetectedRogueReason::Reason;

struct Entry {
  std::int32_t value;
  char const* text;
};

// The reasons and their texts, written out here independently of the library's table.
constexpr Entry entries[] = {
    {0, "fake-ssid-rogue"},
    {1, "fake-mac-rogue"},
    {2, "unspecified"},
    {3, "reserved"},
};

Reason reason_of(std::int32_t value) {
  return static_cast<Reason>(value);
}

// Both parsers must give the same answer; this checks that and returns it.
constexpr auto parse_both = &wids_checks::parse_both<WidsDetectedRogueReason::netconf_deserialize,
                                                     WidsDetectedRogueReason::ipc_deserialize>;

TEST(WidsDetectedRogueReason, EnumeratorsHaveTheTableValues) {
  EXPECT_EQ(static_cast<std::int32_t>(Reason::FAKE_SSID_ROGUE), 0);
  EXPECT_EQ(static_cast<std::int32_t>(Reason::FAKE_MAC_ROGUE), 1);
  EXPECT_EQ(static_cast<std::int32_t>(Reason::UNSPECIFIED), 2);
  EXPECT_EQ(static_cast<std::int32_t>(Reason::RESERVED), 3);
}

TEST(WidsDetectedRogueReason, EveryRowInEveryDirection) {
  for (auto const& [value, text] : entries) {
    EXPECT_EQ(WidsDetectedRogueReason::netconf_deserialize(text), reason_of(value)) << text;
    EXPECT_EQ(WidsDetectedRogueReason::ipc_deserialize(text), reason_of(value)) << text;
    EXPECT_EQ(WidsDetectedRogueReason::to_str(reason_of(value)), text) << value;
    EXPECT_EQ(WidsDetectedRogueReason::ipc_serialize(reason_of(value)), text) << value;
  }
}

TEST(WidsDetectedRogueReason, FakeSsidRogueIsZeroAndTheUnderscoredWordsAreNoReason) {
  std::optional<Reason> const reason = WidsDetectedRogueReason::ipc_deserialize("fake-ssid-rogue");
  ASSERT_TRUE(reason.has_value());
  EXPECT_EQ(static_cast<std::int32_t>(*reason), 0);
  EXPECT_EQ(WidsDetectedRogueReason::ipc_deserialize("fake_ssid_rogue"), std::nullopt);
}

TEST(WidsDetectedRogueReason, UnderscoredTextsAreNoReasonInEitherParser) {
  wids_checks::expect_swapped_separator_texts_fall_back(entries, parse_both, std::nullopt);
}

TEST(WidsDetectedRogueReason, UnknownAndEmptyTextsAreNoReason) {
  wids_checks::expect_all_fall_back({"", "unknown", "rogue", "fake", "fake-ssid", "fake-rogue",
                                     "fake ssid rogue", "fakessidrogue", "0", "1", "none"},
                                    parse_both, std::nullopt);
}

TEST(WidsDetectedRogueReason, CaseChangedTextsAreNoReason) {
  wids_checks::expect_case_changed_texts_fall_back(entries, parse_both, std::nullopt);
}

TEST(WidsDetectedRogueReason, BlankPaddedTextsAreNoReason) {
  wids_checks::expect_blank_padded_texts_fall_back(entries, parse_both, std::nullopt);
}

TEST(WidsDetectedRogueReason, TextIsComparedWholeIncludingNulBytes) {
  wids_checks::expect_texts_compared_whole(entries, parse_both, std::nullopt);
}

TEST(WidsDetectedRogueReason, ValuesOutsideTheTableHaveNoText) {
  for (std::int32_t value : {4, 5, 200, 255, -1, -4, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(WidsDetectedRogueReason::to_str(reason_of(value)), "") << value;
    EXPECT_EQ(WidsDetectedRogueReason::ipc_serialize(reason_of(value)), "") << value;
  }
}

} // namespace
