// The security class of a banned client's WLAN: numbers 1 to 3 and four texts, OPEN or "" for
// anything else.
#include <wlccw/enums/WidsClientBannedAuthMethod.hpp>

#include "WidsChecks.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>

namespace {

using WidsClientBannedAuthMethod::Type;

struct Entry {
  unsigned int code;
  char const* text;
};

// The classes and their texts, written out here independently of the library's table.
constexpr Entry entries[] = {
    {0, "open"},
    {1, "personal"},
    {2, "enterprise"},
    {3, "owe"},
};

Type type_of(unsigned int code) {
  return static_cast<Type>(code);
}

TEST(WidsClientBannedAuthMethod, EnumeratorsHaveTheTableValues) {
  EXPECT_EQ(static_cast<std::int32_t>(Type::OPEN), 0);
  EXPECT_EQ(static_cast<std::int32_t>(Type::PERSONAL), 1);
  EXPECT_EQ(static_cast<std::int32_t>(Type::ENTERPRISE), 2);
  EXPECT_EQ(static_cast<std::int32_t>(Type::OWE), 3);
}

TEST(WidsClientBannedAuthMethod, EveryRowInEveryDirection) {
  for (auto const& [code, text] : entries) {
    EXPECT_EQ(WidsClientBannedAuthMethod::netconf_deserialize(code), type_of(code)) << code;
    EXPECT_EQ(WidsClientBannedAuthMethod::ipc_deserialize(text), type_of(code)) << text;
    EXPECT_EQ(WidsClientBannedAuthMethod::to_str(type_of(code)), text) << code;
    EXPECT_EQ(WidsClientBannedAuthMethod::ipc_serialize(type_of(code)), text) << code;
  }
}

TEST(WidsClientBannedAuthMethod, NumbersOneToThreeAreThemselvesEveryOtherIsOpen) {
  for (unsigned int code = 0; code <= 10; ++code) {
    Type const expected = code >= 1 && code <= 3 ? type_of(code) : Type::OPEN;
    EXPECT_EQ(WidsClientBannedAuthMethod::netconf_deserialize(code), expected) << code;
  }
  EXPECT_EQ(WidsClientBannedAuthMethod::netconf_deserialize(UINT_MAX), Type::OPEN);
  EXPECT_EQ(WidsClientBannedAuthMethod::netconf_deserialize(UINT_MAX - 2), Type::OPEN);
  EXPECT_EQ(WidsClientBannedAuthMethod::netconf_deserialize(256U + 1U), Type::OPEN);
  EXPECT_EQ(WidsClientBannedAuthMethod::netconf_deserialize(65536U + 2U), Type::OPEN);
}

TEST(WidsClientBannedAuthMethod, NumberFourIsOpenAndUpperCaseOweIsOpenWhileOweIsOwe) {
  EXPECT_EQ(WidsClientBannedAuthMethod::netconf_deserialize(4), Type::OPEN);
  EXPECT_EQ(WidsClientBannedAuthMethod::ipc_deserialize("OWE"), Type::OPEN);
  EXPECT_EQ(WidsClientBannedAuthMethod::ipc_deserialize("owe"), Type::OWE);
  EXPECT_EQ(static_cast<std::int32_t>(WidsClientBannedAuthMethod::ipc_deserialize("owe")), 3);
}

TEST(WidsClientBannedAuthMethod, UnknownAndEmptyTextsAreOpen) {
  wids_checks::expect_all_fall_back({"", "unknown", "wpa2", "psk", "sae", "enterprise1", "per",
                                     "owe-transition", "1", "2", "3", "null"},
                                    WidsClientBannedAuthMethod::ipc_deserialize, Type::OPEN);
}

TEST(WidsClientBannedAuthMethod, CaseChangedTextsAreOpen) {
  wids_checks::expect_case_changed_texts_fall_back(
      entries, WidsClientBannedAuthMethod::ipc_deserialize, Type::OPEN);
}

TEST(WidsClientBannedAuthMethod, BlankPaddedTextsAreOpen) {
  wids_checks::expect_blank_padded_texts_fall_back(
      entries, WidsClientBannedAuthMethod::ipc_deserialize, Type::OPEN);
}

TEST(WidsClientBannedAuthMethod, TextIsComparedWholeIncludingNulBytes) {
  wids_checks::expect_texts_compared_whole(entries, WidsClientBannedAuthMethod::ipc_deserialize,
                                           Type::OPEN);
}

TEST(WidsClientBannedAuthMethod, ValuesOutsideTheTableHaveNoText) {
  for (std::int32_t value : {4, 5, 200, 255, -1, -4, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(WidsClientBannedAuthMethod::to_str(static_cast<Type>(value)), "") << value;
    EXPECT_EQ(WidsClientBannedAuthMethod::ipc_serialize(static_cast<Type>(value)), "") << value;
  }
}

} // namespace
