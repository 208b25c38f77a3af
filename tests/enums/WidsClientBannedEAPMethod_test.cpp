// The EAP method of a banned client: EAP type codes with gaps, texts both ways, NONE or "" for
// anything else.
#include <wlccw/enums/WidsClientBannedEAPMethod.hpp>

#include "WidsChecks.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <string>

namespace {

using WidsClientBannedEAPMethod::Type;

struct Entry {
  unsigned int code;
  char const* text;
};

// The EAP type codes and their texts, written out here independently of the library's table.
constexpr Entry entries[] = {
    {0, "none"},   {1, "identity"},   {2, "notification"}, {3, "nak"},       {4, "md5"},
    {5, "otp"},    {6, "gtc"},        {13, "tls"},         {17, "leap"},     {18, "sim"},
    {21, "ttls"},  {23, "aka"},       {25, "peap"},        {26, "mschapv2"}, {33, "tlv"},
    {38, "tnc"},   {43, "fast"},      {46, "pax"},         {47, "psk"},      {48, "sake"},
    {49, "ikev2"}, {50, "aka_prime"}, {51, "gpsk"},        {52, "pwd"},      {53, "eke"},
    {55, "teap"},  {254, "expanded"},
};
static_assert(std::size(entries) == 27);

Type type_of(unsigned int code) {
  return static_cast<Type>(code);
}

bool in_table(unsigned int code) {
  return std::any_of(std::begin(entries), std::end(entries),
                     [code](Entry const& e) { return e.code == code; });
}

TEST(WidsClientBannedEAPMethod, EnumeratorsHaveTheEapTypeCodes) {
  EXPECT_EQ(static_cast<std::int32_t>(Type::NONE), 0);
  EXPECT_EQ(static_cast<std::int32_t>(Type::GTC), 6);
  EXPECT_EQ(static_cast<std::int32_t>(Type::TLS), 13);
  EXPECT_EQ(static_cast<std::int32_t>(Type::MSCHAPV2), 26);
  EXPECT_EQ(static_cast<std::int32_t>(Type::AKA_PRIME), 50);
  EXPECT_EQ(static_cast<std::int32_t>(Type::TEAP), 55);
  EXPECT_EQ(static_cast<std::int32_t>(Type::EXPANDED), 254);
}

TEST(WidsClientBannedEAPMethod, EveryRowInEveryDirection) {
  for (auto const& [code, text] : entries) {
    EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(code), type_of(code)) << code;
    EXPECT_EQ(WidsClientBannedEAPMethod::ipc_deserialize(text), type_of(code)) << text;
    EXPECT_EQ(WidsClientBannedEAPMethod::to_str(type_of(code)), text) << code;
    EXPECT_EQ(WidsClientBannedEAPMethod::ipc_serialize(type_of(code)), text) << code;
    EXPECT_EQ(WidsClientBannedEAPMethod::ipc_deserialize(
                  WidsClientBannedEAPMethod::ipc_serialize(type_of(code))),
              type_of(code))
        << code;
  }
}

TEST(WidsClientBannedEAPMethod, EveryCodeUpTo300IsItselfWhenInTheTableElseNone) {
  unsigned int members = 0;
  for (unsigned int code = 0; code <= 300; ++code) {
    Type const expected = in_table(code) ? type_of(code) : Type::NONE;
    EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(code), expected) << code;
    members += in_table(code) ? 1U : 0U;
  }
  EXPECT_EQ(members, 27U);
}

TEST(WidsClientBannedEAPMethod, HugeCodesAreNone) {
  for (unsigned int code : {301U, 510U, 65535U, 65536U + 13U, UINT_MAX - 1, UINT_MAX}) {
    EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(code), Type::NONE) << code;
  }
}

TEST(WidsClientBannedEAPMethod, SakeAndExpandedAreThemselvesNeighboursOfTheTableAreNone) {
  EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(48), Type::SAKE);
  EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(48), type_of(48));
  EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(7), Type::NONE);
  EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(54), Type::NONE);
  EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(255), Type::NONE);
  EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(254), Type::EXPANDED);
  EXPECT_EQ(WidsClientBannedEAPMethod::netconf_deserialize(254), type_of(254));
}

TEST(WidsClientBannedEAPMethod, TextOfCodeSevenIsEmpty) {
  EXPECT_EQ(WidsClientBannedEAPMethod::to_str(type_of(7)), "");
  EXPECT_EQ(WidsClientBannedEAPMethod::ipc_serialize(type_of(7)), "");
}

TEST(WidsClientBannedEAPMethod, ValuesOutsideTheTableHaveNoText) {
  for (std::int32_t value = -300; value <= 300; ++value) {
    if (value >= 0 && in_table(static_cast<unsigned int>(value))) {
      continue;
    }
    EXPECT_EQ(WidsClientBannedEAPMethod::to_str(static_cast<Type>(value)), "") << value;
    EXPECT_EQ(WidsClientBannedEAPMethod::ipc_serialize(static_cast<Type>(value)), "") << value;
  }
  for (std::int32_t value : {INT32_MIN, INT32_MAX, 255, 200, -1}) {
    EXPECT_EQ(WidsClientBannedEAPMethod::to_str(static_cast<Type>(value)), "") << value;
    EXPECT_EQ(WidsClientBannedEAPMethod::ipc_serialize(static_cast<Type>(value)), "") << value;
  }
}

TEST(WidsClientBannedEAPMethod, UnknownAndEmptyTextsAreNone) {
  wids_checks::expect_all_fall_back({"", "unknown", "eap", "md", "md55", "eap-md5", "eap_md5",
                                     "EAP-MD5", "aka-prime", "akaprime", "expand", "254", "0",
                                     "13"},
                                    WidsClientBannedEAPMethod::ipc_deserialize, Type::NONE);
}

// "none" changed in case gives NONE as the fallback; the other rows tell.
TEST(WidsClientBannedEAPMethod, CaseChangedTextsAreNone) {
  wids_checks::expect_case_changed_texts_fall_back(
      entries, WidsClientBannedEAPMethod::ipc_deserialize, Type::NONE);
}

TEST(WidsClientBannedEAPMethod, BlankPaddedTextsAreNone) {
  wids_checks::expect_blank_padded_texts_fall_back(
      entries, WidsClientBannedEAPMethod::ipc_deserialize, Type::NONE);
}

TEST(WidsClientBannedEAPMethod, TextIsComparedWholeIncludingNulBytes) {
  wids_checks::expect_texts_compared_whole(entries, WidsClientBannedEAPMethod::ipc_deserialize,
                                           Type::NONE);
}

} // namespace
