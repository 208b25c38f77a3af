// The kind of a denial-of-service attack: three texts both ways, UNKNOWN or "" for anything else.
#include <wlccw/enums/WidsDosAttack.hpp>

#include "WidsChecks.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

using WidsDosAttack::Type;

struct Entry {
  std::int32_t value;
  char const* text;
};

// The attacks and their texts, written out here independently of the library's table.
constexpr Entry entries[] = {
    {0, "many-packets-over-period"},
    {1, "packets-leap-too-big"},
    {2, "unknown"},
};

Type type_of(std::int32_t value) {
  return static_cast<Type>(value);
}

// Both parsers must give the same answer; this checks that and returns it.
constexpr auto parse_both =
    &wids_checks::parse_both<WidsDosAttack::netconf_deserialize, WidsDosAttack::ipc_deserialize>;

// Found by argument-dependent lookup in the enumeration's namespace, if it is declared there.
template <typename T>
concept has_to_str = requires(T value) {
  to_str(value);
};
template <typename T>
concept has_ipc_serialize = requires(T value) {
  ipc_serialize(value);
};

// The attack kinds have an IPC text only, no separate to_str.
static_assert(has_ipc_serialize<Type>);
static_assert(!has_to_str<Type>);

TEST(WidsDosAttack, EnumeratorsHaveTheTableValues) {
  EXPECT_EQ(static_cast<std::int32_t>(Type::MANY_PACKETS_OVER_PERIOD), 0);
  EXPECT_EQ(static_cast<std::int32_t>(Type::PACKETS_LEAP_TOO_BIG), 1);
  EXPECT_EQ(static_cast<std::int32_t>(Type::UNKNOWN), 2);
}

TEST(WidsDosAttack, EveryRowInEveryDirection) {
  for (auto const& [value, text] : entries) {
    EXPECT_EQ(WidsDosAttack::netconf_deserialize(text), type_of(value)) << text;
    EXPECT_EQ(WidsDosAttack::ipc_deserialize(text), type_of(value)) << text;
    EXPECT_EQ(WidsDosAttack::ipc_serialize(type_of(value)), text) << value;
  }
}

TEST(WidsDosAttack, EmptyTextIsUnknownAndValueThreeHasNoText) {
  EXPECT_EQ(WidsDosAttack::netconf_deserialize(""), Type::UNKNOWN);
  EXPECT_EQ(static_cast<std::int32_t>(WidsDosAttack::netconf_deserialize("")), 2);
  EXPECT_EQ(WidsDosAttack::ipc_serialize(type_of(3)), "");
}

TEST(WidsDosAttack, UnknownTextsAreUnknownInEitherParser) {
  wids_checks::expect_all_fall_back({"", "flood", "many-packets", "packets-leap", "over-period",
                                     "many packets over period", "0", "1", "none", "unknow"},
                                    parse_both, Type::UNKNOWN);
}

TEST(WidsDosAttack, UnderscoredTextsAreUnknown) {
  wids_checks::expect_swapped_separator_texts_fall_back(entries, parse_both, Type::UNKNOWN);
}

TEST(WidsDosAttack, CaseChangedTextsAreUnknown) {
  wids_checks::expect_case_changed_texts_fall_back(entries, parse_both, Type::UNKNOWN);
}

TEST(WidsDosAttack, BlankPaddedTextsAreUnknown) {
  wids_checks::expect_blank_padded_texts_fall_back(entries, parse_both, Type::UNKNOWN);
}

TEST(WidsDosAttack, TextIsComparedWholeIncludingNulBytes) {
  wids_checks::expect_texts_compared_whole(entries, parse_both, Type::UNKNOWN);
}

TEST(WidsDosAttack, ValuesOutsideTheTableHaveNoText) {
  for (std::int32_t value : {3, 4, 200, 255, -1, -3, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(WidsDosAttack::ipc_serialize(type_of(value)), "") << value;
  }
}

} // namespace
