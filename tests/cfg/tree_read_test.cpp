// Reading members and scalar nodes through the default tree backend: texts, booleans, integers of
// every width with their range limits, sub-trees and paths.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using wlccw::cfg::make_object;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;

// A tree {"k": value_json}; the test fails when the text does not parse.
Tree member(std::string const& value_json) {
  Tree root = parse("{\"k\":" + value_json + "}");
  EXPECT_TRUE(root) << "does not parse: " << value_json;
  return root;
}

// Values that no integer reader accepts, as JSON texts.
std::vector<std::string> const kNotIntegers = {
    "\"12abc\"", "\" 12\"", "\"12 \"", "\"\"",    "\"-\"",   "\"+1\"",   "\"1.5\"", "\"1e3\"",
    "\"0x10\"",  "\"--1\"", "\"1-\"",  "\"- 1\"", "\"abc\"", "1.5",      "-2.5",    "true",
    "false",     "null",    "{}",      "[]",      "[1]",     "{\"a\":1}"};

// ---- cfg_contain_param -------------------------------------------------------------------------

TEST(CfgContainParam, PresentMembersOfAnyTypeAreFound) {
  Tree root = parse(R"({"s":"x","i":1,"t":false,"n":null,"o":{},"a":[],"e":""})");
  ASSERT_TRUE(root);
  for (char const* key : {"s", "i", "t", "n", "o", "a", "e"}) {
    EXPECT_NE(cfg_contain_param(root.get(), key), 0) << key;
  }
}

TEST(CfgContainParam, MissingMembersAndKeysOfOtherCaseAreNotFound) {
  Tree root = parse(R"({"rx-bytes":1,"o":{"inner":1}})");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_contain_param(root.get(), "missing"), 0);
  EXPECT_EQ(cfg_contain_param(root.get(), "RX-BYTES"), 0);
  EXPECT_EQ(cfg_contain_param(root.get(), "rx_bytes"), 0);
  EXPECT_EQ(cfg_contain_param(root.get(), "rx-byte"), 0);
  EXPECT_EQ(cfg_contain_param(root.get(), "inner"), 0); // members are not searched recursively
  EXPECT_NE(cfg_contain_param(root.get(), "rx-bytes"), 0);
}

TEST(CfgContainParam, NodesThatAreNotObjectsHaveNoMembers) {
  Tree array = parse(R"(["k",{"k":1}])");
  ASSERT_TRUE(array);
  EXPECT_EQ(cfg_contain_param(array.get(), "k"), 0);
  Tree scalar = parse("\"k\"");
  ASSERT_TRUE(scalar);
  EXPECT_EQ(cfg_contain_param(scalar.get(), "k"), 0);
}

// ---- cfg_get_param / cfg_get_param_opt ---------------------------------------------------------

TEST(CfgGetParam, TextsOfScalars) {
  Tree root = parse(R"({"s":"text","e":"","i":123,"neg":-5,"z":0,"fr":1.5,"t":true,"f":false,)"
                    R"("big":18446744073709551615,"huge":12345678901234567890123})");
  ASSERT_TRUE(root);
  EXPECT_STREQ(cfg_get_param(root.get(), "s"), "text");
  EXPECT_STREQ(cfg_get_param(root.get(), "e"), "");
  EXPECT_STREQ(cfg_get_param(root.get(), "i"), "123");
  EXPECT_STREQ(cfg_get_param(root.get(), "neg"), "-5");
  EXPECT_STREQ(cfg_get_param(root.get(), "z"), "0");
  EXPECT_STREQ(cfg_get_param(root.get(), "fr"), "1.5");
  EXPECT_STREQ(cfg_get_param(root.get(), "t"), "true");
  EXPECT_STREQ(cfg_get_param(root.get(), "f"), "false");
  EXPECT_STREQ(cfg_get_param(root.get(), "big"), "18446744073709551615");
  EXPECT_STREQ(cfg_get_param(root.get(), "huge"), "12345678901234567890123");
}

TEST(CfgGetParam, ObjectsArraysNullAndMissingGiveEmptyTextNeverNull) {
  Tree root = parse(R"({"o":{"a":"b"},"a":["x"],"n":null})");
  ASSERT_TRUE(root);
  for (char const* key : {"o", "a", "n", "missing"}) {
    char const* text = cfg_get_param(root.get(), key);
    ASSERT_NE(text, nullptr) << key;
    EXPECT_STREQ(text, "") << key;
  }
}

TEST(CfgGetParam, MembersOfNodesThatAreNotObjectsAreMissing) {
  Tree array = parse(R"(["k",{"k":"v"}])");
  ASSERT_TRUE(array);
  char const* text = cfg_get_param(array.get(), "k");
  ASSERT_NE(text, nullptr);
  EXPECT_STREQ(text, "");
  EXPECT_EQ(cfg_get_param_opt(array.get(), "k"), std::nullopt);

  Tree scalar = parse("\"k\"");
  ASSERT_TRUE(scalar);
  text = cfg_get_param(scalar.get(), "k");
  ASSERT_NE(text, nullptr);
  EXPECT_STREQ(text, "");
  EXPECT_EQ(cfg_get_param_opt(scalar.get(), "k"), std::nullopt);
}

TEST(CfgGetParamOpt, TextsOfScalars) {
  Tree root = parse(R"({"s":"text","e":"","i":123,"neg":-5,"fr":1.5,"t":true,"f":false})");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_get_param_opt(root.get(), "s"), "text");
  EXPECT_EQ(cfg_get_param_opt(root.get(), "e"), ""); // an empty string is present, not missing
  EXPECT_EQ(cfg_get_param_opt(root.get(), "i"), "123");
  EXPECT_EQ(cfg_get_param_opt(root.get(), "neg"), "-5");
  EXPECT_EQ(cfg_get_param_opt(root.get(), "fr"), "1.5");
  EXPECT_EQ(cfg_get_param_opt(root.get(), "t"), "true");
  EXPECT_EQ(cfg_get_param_opt(root.get(), "f"), "false");
}

TEST(CfgGetParamOpt, ObjectsArraysNullAndMissingGiveEmptyOptional) {
  Tree root = parse(R"({"o":{},"a":[],"n":null})");
  ASSERT_TRUE(root);
  for (char const* key : {"o", "a", "n", "missing"}) {
    EXPECT_EQ(cfg_get_param_opt(root.get(), key), std::nullopt) << key;
  }
}

TEST(CfgGetParam, KeysAreComparedExactly) {
  Tree root = parse(R"({"Key":"upper","key":"lower","rx-bytes":"dash"})");
  ASSERT_TRUE(root);
  EXPECT_STREQ(cfg_get_param(root.get(), "Key"), "upper");
  EXPECT_STREQ(cfg_get_param(root.get(), "key"), "lower");
  EXPECT_STREQ(cfg_get_param(root.get(), "rx-bytes"), "dash");
  EXPECT_STREQ(cfg_get_param(root.get(), "KEY"), "");
}

TEST(CfgGetParam, TextsStayValidAfterFurtherReadsOfTheSameTree) {
  Tree root = parse(R"({"a":"first","b":"second","n":42,"t":true,"o":{"x":"deep"}})");
  ASSERT_TRUE(root);
  char const* a = cfg_get_param(root.get(), "a");
  char const* n = cfg_get_param(root.get(), "n");
  char const* t = cfg_get_param(root.get(), "t");
  lcw_data_t const* o = cfg_get_subtree(root.get(), "o");
  ASSERT_NE(o, nullptr);
  char const* x = cfg_get_param(o, "x");
  for (int i = 0; i < 100; ++i) {
    EXPECT_STREQ(cfg_get_param(root.get(), "b"), "second");
    EXPECT_STREQ(cfg_get_param(root.get(), "missing"), "");
    EXPECT_EQ(cfg_get_int_param(root.get(), "n"), 42);
    EXPECT_EQ(cfg_get_param_opt(root.get(), "a"), "first");
    EXPECT_STREQ(cfg_get_param(o, "x"), "deep");
  }
  EXPECT_STREQ(a, "first");
  EXPECT_STREQ(n, "42");
  EXPECT_STREQ(t, "true");
  EXPECT_STREQ(x, "deep");
}

TEST(CfgGetParam, MembersAreFoundInAnyOrderOfLookup) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  for (int i = 0; i < 50; ++i) {
    cfg_set_int_param(root.get(), ("m" + std::to_string(i)).c_str(), i);
  }
  // Backwards, forwards, strided and repeated lookups, with writes in between.
  for (int i = 49; i >= 0; --i) {
    EXPECT_EQ(cfg_get_int_param(root.get(), ("m" + std::to_string(i)).c_str()), i);
  }
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(cfg_get_int_param(root.get(), ("m" + std::to_string(i)).c_str()), i);
    EXPECT_EQ(cfg_get_int_param(root.get(), ("m" + std::to_string(i)).c_str()), i);
  }
  for (int step : {7, 13, 31}) {
    for (int i = 0; i < 50; ++i) {
      int const j = (i * step) % 50;
      EXPECT_EQ(cfg_get_int_param(root.get(), ("m" + std::to_string(j)).c_str()), j);
      EXPECT_EQ(cfg_contain_param(root.get(), ("x" + std::to_string(j)).c_str()), 0);
    }
  }
  cfg_set_int_param(root.get(), "m10", 1000);
  cfg_set_int_param(root.get(), "last", -1);
  EXPECT_EQ(cfg_get_int_param(root.get(), "m0"), 0);
  EXPECT_EQ(cfg_get_int_param(root.get(), "last"), -1);
  EXPECT_EQ(cfg_get_int_param(root.get(), "m10"), 1000);
  EXPECT_EQ(cfg_get_int_param(root.get(), "m49"), 49);
}

// ---- Booleans
// ------------------------------------------------------------------------------------

TEST(CfgGetBoolean, JsonTrueAndFalse) {
  Tree root = parse(R"({"t":true,"f":false})");
  ASSERT_TRUE(root);
  EXPECT_NE(cfg_get_boolean_param(root.get(), "t"), 0);
  EXPECT_EQ(cfg_get_boolean_param(root.get(), "f"), 0);
  EXPECT_EQ(cfg_get_boolean_param_opt(root.get(), "t"), std::optional<bool>(true));
  EXPECT_EQ(cfg_get_boolean_param_opt(root.get(), "f"), std::optional<bool>(false));
}

TEST(CfgGetBoolean, AnythingButJsonTrueOrFalseIsMissing) {
  for (std::string const value : {"\"true\"", "\"false\"", "\"1\"", "\"yes\"", "1", "0", "-1",
                                  "1.0", "null", "{}", "[]", "[true]", "{\"t\":true}", "\"\""}) {
    Tree root = member(value);
    ASSERT_TRUE(root);
    EXPECT_EQ(cfg_get_boolean_param(root.get(), "k"), 0) << value;
    EXPECT_EQ(cfg_get_boolean_param_opt(root.get(), "k"), std::nullopt) << value;
  }
}

TEST(CfgGetBoolean, MissingMemberAndNonObjectNode) {
  Tree root = parse(R"({"t":true})");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_get_boolean_param(root.get(), "missing"), 0);
  EXPECT_EQ(cfg_get_boolean_param_opt(root.get(), "missing"), std::nullopt);
  Tree array = parse("[true]");
  ASSERT_TRUE(array);
  EXPECT_EQ(cfg_get_boolean_param(array.get(), "t"), 0);
  EXPECT_EQ(cfg_get_boolean_param_opt(array.get(), "t"), std::nullopt);
}

// ---- Integers: accepted forms ------------------------------------------------------------------

TEST(CfgGetInteger, JsonIntegersAndWholeDecimalStringsAreAccepted) {
  for (std::string const value : {"123", "\"123\""}) {
    Tree root = member(value);
    ASSERT_TRUE(root);
    lcw_data_t const* node = root.get();
    EXPECT_EQ(cfg_get_int_param(node, "k"), 123) << value;
    EXPECT_EQ(cfg_get_uint_param(node, "k"), 123U) << value;
    EXPECT_EQ(cfg_get_uint8_param(node, "k"), 123U) << value;
    EXPECT_EQ(cfg_get_uint16_param(node, "k"), 123U) << value;
    EXPECT_EQ(cfg_get_uint32_param(node, "k"), 123U) << value;
    EXPECT_EQ(cfg_get_uint64_param(node, "k"), 123U) << value;
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(node, "k", -1), 123) << value;
    EXPECT_EQ(cfg_get_uint8_param_opt(node, "k"), std::optional<unsigned char>(123)) << value;
    EXPECT_EQ(cfg_get_uint32_param_opt(node, "k"), std::optional<unsigned int>(123U)) << value;
    EXPECT_EQ(cfg_get_int16_param_opt(node, "k"), std::optional<short>(123)) << value;
    EXPECT_EQ(cfg_get_int32_param_opt(node, "k"), std::optional<int>(123)) << value;
  }
}

TEST(CfgGetInteger, NegativeIntegersAndStringsForSignedReaders) {
  for (std::string const value : {"-5", "\"-5\""}) {
    Tree root = member(value);
    ASSERT_TRUE(root);
    lcw_data_t const* node = root.get();
    EXPECT_EQ(cfg_get_int_param(node, "k"), -5) << value;
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(node, "k", 42), -5) << value;
    EXPECT_EQ(cfg_get_int16_param_opt(node, "k"), std::optional<short>(-5)) << value;
    EXPECT_EQ(cfg_get_int32_param_opt(node, "k"), std::optional<int>(-5)) << value;
  }
}

TEST(CfgGetInteger, ZeroIsPresentNotMissing) {
  for (std::string const value : {"0", "\"0\""}) {
    Tree root = member(value);
    ASSERT_TRUE(root);
    lcw_data_t const* node = root.get();
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(node, "k", -1), 0) << value;
    EXPECT_EQ(cfg_get_uint8_param_opt(node, "k"), std::optional<unsigned char>(0)) << value;
    EXPECT_EQ(cfg_get_uint32_param_opt(node, "k"), std::optional<unsigned int>(0U)) << value;
    EXPECT_EQ(cfg_get_int16_param_opt(node, "k"), std::optional<short>(0)) << value;
    EXPECT_EQ(cfg_get_int32_param_opt(node, "k"), std::optional<int>(0)) << value;
  }
}

// ---- Integers: rejected forms ------------------------------------------------------------------

TEST(CfgGetInteger, TextsThatAreNotOneWholeDecimalIntegerAndOtherTypesAreMissing) {
  for (auto const& value : kNotIntegers) {
    Tree root = member(value);
    ASSERT_TRUE(root);
    lcw_data_t const* node = root.get();
    EXPECT_EQ(cfg_get_int_param(node, "k"), 0) << value;
    EXPECT_EQ(cfg_get_uint_param(node, "k"), 0U) << value;
    EXPECT_EQ(cfg_get_uint8_param(node, "k"), 0U) << value;
    EXPECT_EQ(cfg_get_uint16_param(node, "k"), 0U) << value;
    EXPECT_EQ(cfg_get_uint32_param(node, "k"), 0U) << value;
    EXPECT_EQ(cfg_get_uint64_param(node, "k"), 0U) << value;
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(node, "k", -1), -1) << value;
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(node, "k", 42), 42) << value;
    EXPECT_EQ(cfg_get_uint8_param_opt(node, "k"), std::nullopt) << value;
    EXPECT_EQ(cfg_get_uint32_param_opt(node, "k"), std::nullopt) << value;
    EXPECT_EQ(cfg_get_int16_param_opt(node, "k"), std::nullopt) << value;
    EXPECT_EQ(cfg_get_int32_param_opt(node, "k"), std::nullopt) << value;
  }
}

TEST(CfgGetInteger, MissingMemberReadsAsMissing) {
  Tree root = parse(R"({"other":7})");
  ASSERT_TRUE(root);
  lcw_data_t const* node = root.get();
  EXPECT_EQ(cfg_get_int_param(node, "k"), 0);
  EXPECT_EQ(cfg_get_uint_param(node, "k"), 0U);
  EXPECT_EQ(cfg_get_uint8_param(node, "k"), 0U);
  EXPECT_EQ(cfg_get_uint16_param(node, "k"), 0U);
  EXPECT_EQ(cfg_get_uint32_param(node, "k"), 0U);
  EXPECT_EQ(cfg_get_uint64_param(node, "k"), 0U);
  EXPECT_EQ(cfg_get_int8_param_with_custom_default(node, "k", -1), -1);
  EXPECT_EQ(cfg_get_int8_param_with_custom_default(node, "k", 17), 17);
  EXPECT_EQ(cfg_get_uint8_param_opt(node, "k"), std::nullopt);
  EXPECT_EQ(cfg_get_uint32_param_opt(node, "k"), std::nullopt);
  EXPECT_EQ(cfg_get_int16_param_opt(node, "k"), std::nullopt);
  EXPECT_EQ(cfg_get_int32_param_opt(node, "k"), std::nullopt);
}

TEST(CfgGetInteger, MembersOfNodesThatAreNotObjectsAreMissing) {
  Tree array = parse("[7]");
  ASSERT_TRUE(array);
  EXPECT_EQ(cfg_get_int_param(array.get(), "0"), 0);
  EXPECT_EQ(cfg_get_uint64_param(array.get(), "0"), 0U);
  EXPECT_EQ(cfg_get_int8_param_with_custom_default(array.get(), "0", -1), -1);
  EXPECT_EQ(cfg_get_int32_param_opt(array.get(), "0"), std::nullopt);
  Tree scalar = parse("7");
  ASSERT_TRUE(scalar);
  EXPECT_EQ(cfg_get_uint32_param(scalar.get(), "k"), 0U);
  EXPECT_EQ(cfg_get_uint8_param_opt(scalar.get(), "k"), std::nullopt);
}

// ---- Integers: range limits at the exact boundaries ---------------------------------------------

// Each boundary is checked both as a JSON integer and as a decimal string.
std::vector<std::string> both_forms(std::string const& digits) {
  return {digits, "\"" + digits + "\""};
}

TEST(CfgIntegerRange, Int) {
  for (auto const& v : both_forms("2147483647")) {
    EXPECT_EQ(cfg_get_int_param(member(v).get(), "k"), 2147483647) << v;
    EXPECT_EQ(cfg_get_int32_param_opt(member(v).get(), "k"), std::optional<int>(2147483647)) << v;
  }
  for (auto const& v : both_forms("-2147483648")) {
    EXPECT_EQ(cfg_get_int_param(member(v).get(), "k"), -2147483647 - 1) << v;
    EXPECT_EQ(cfg_get_int32_param_opt(member(v).get(), "k"), std::optional<int>(-2147483647 - 1))
        << v;
  }
  for (std::string const digits :
       {"2147483648", "-2147483649", "4294967296", "4294967297", "9223372036854775807",
        "-9223372036854775808", "18446744073709551615", "99999999999999999999999"}) {
    for (auto const& v : both_forms(digits)) {
      EXPECT_EQ(cfg_get_int_param(member(v).get(), "k"), 0) << v;
      EXPECT_EQ(cfg_get_int32_param_opt(member(v).get(), "k"), std::nullopt) << v;
    }
  }
}

TEST(CfgIntegerRange, UnsignedInt) {
  for (auto const& v : both_forms("4294967295")) {
    EXPECT_EQ(cfg_get_uint_param(member(v).get(), "k"), 4294967295U) << v;
    EXPECT_EQ(cfg_get_uint32_param(member(v).get(), "k"), 4294967295U) << v;
    EXPECT_EQ(cfg_get_uint32_param_opt(member(v).get(), "k"),
              std::optional<unsigned int>(4294967295U))
        << v;
  }
  for (std::string const digits : {"4294967296", "4294967297", "-1", "-4294967295",
                                   "18446744073709551615", "99999999999999999999999"}) {
    for (auto const& v : both_forms(digits)) {
      EXPECT_EQ(cfg_get_uint_param(member(v).get(), "k"), 0U) << v;
      EXPECT_EQ(cfg_get_uint32_param(member(v).get(), "k"), 0U) << v;
      EXPECT_EQ(cfg_get_uint32_param_opt(member(v).get(), "k"), std::nullopt) << v;
    }
  }
}

TEST(CfgIntegerRange, Uint8) {
  for (auto const& v : both_forms("255")) {
    EXPECT_EQ(cfg_get_uint8_param(member(v).get(), "k"), 255U) << v;
    EXPECT_EQ(cfg_get_uint8_param_opt(member(v).get(), "k"), std::optional<unsigned char>(255))
        << v;
  }
  for (std::string const digits : {"256", "257", "65791", "-1", "-255", "4294967297"}) {
    for (auto const& v : both_forms(digits)) {
      EXPECT_EQ(cfg_get_uint8_param(member(v).get(), "k"), 0U) << v;
      EXPECT_EQ(cfg_get_uint8_param_opt(member(v).get(), "k"), std::nullopt) << v;
    }
  }
}

TEST(CfgIntegerRange, Uint16) {
  for (auto const& v : both_forms("65535")) {
    EXPECT_EQ(cfg_get_uint16_param(member(v).get(), "k"), 65535U) << v;
  }
  for (std::string const digits : {"65536", "65537", "-1", "-65535", "4294967297"}) {
    for (auto const& v : both_forms(digits)) {
      EXPECT_EQ(cfg_get_uint16_param(member(v).get(), "k"), 0U) << v;
    }
  }
}

TEST(CfgIntegerRange, Uint64) {
  for (auto const& v : both_forms("18446744073709551615")) {
    EXPECT_EQ(cfg_get_uint64_param(member(v).get(), "k"), UINT64_C(18446744073709551615)) << v;
  }
  for (auto const& v : both_forms("9223372036854775808")) { // beyond the signed 64-bit range
    EXPECT_EQ(cfg_get_uint64_param(member(v).get(), "k"), UINT64_C(9223372036854775808)) << v;
  }
  for (auto const& v : both_forms("4294967296")) {
    EXPECT_EQ(cfg_get_uint64_param(member(v).get(), "k"), UINT64_C(4294967296)) << v;
  }
  for (std::string const digits : {"18446744073709551616", "18446744073709551617",
                                   "36893488147419103233", "-1", "-9223372036854775808"}) {
    for (auto const& v : both_forms(digits)) {
      EXPECT_EQ(cfg_get_uint64_param(member(v).get(), "k"), 0U) << v;
    }
  }
}

TEST(CfgIntegerRange, Int16) {
  for (auto const& v : both_forms("32767")) {
    EXPECT_EQ(cfg_get_int16_param_opt(member(v).get(), "k"), std::optional<short>(32767)) << v;
  }
  for (auto const& v : both_forms("-32768")) {
    EXPECT_EQ(cfg_get_int16_param_opt(member(v).get(), "k"), std::optional<short>(-32768)) << v;
  }
  for (std::string const digits : {"32768", "-32769", "65535", "65536", "4294967296"}) {
    for (auto const& v : both_forms(digits)) {
      EXPECT_EQ(cfg_get_int16_param_opt(member(v).get(), "k"), std::nullopt) << v;
    }
  }
}

TEST(CfgIntegerRange, Int8WithCustomDefault) {
  for (auto const& v : both_forms("127")) {
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(member(v).get(), "k", -1), 127) << v;
  }
  for (auto const& v : both_forms("-128")) {
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(member(v).get(), "k", -1), -128) << v;
  }
  for (auto const& v : both_forms("-1")) { // the value equal to the default is still read
    EXPECT_EQ(cfg_get_int8_param_with_custom_default(member(v).get(), "k", 5), -1) << v;
  }
  for (std::string const digits : {"128", "-129", "255", "256", "383", "65535"}) {
    for (auto const& v : both_forms(digits)) {
      EXPECT_EQ(cfg_get_int8_param_with_custom_default(member(v).get(), "k", -1), -1) << v;
      EXPECT_EQ(cfg_get_int8_param_with_custom_default(member(v).get(), "k", 9), 9) << v;
    }
  }
}

// ---- cfg_get_subtree / cfg_get_subtree_from_path
// -------------------------------------------------

TEST(CfgGetSubtree, ObjectAndArrayMembers) {
  Tree root = parse(R"({"o":{"x":"1"},"a":[5,6]})");
  ASSERT_TRUE(root);
  lcw_data_t* o = cfg_get_subtree(root.get(), "o");
  ASSERT_NE(o, nullptr);
  EXPECT_STREQ(cfg_get_param(o, "x"), "1");
  EXPECT_EQ(wlccw::cfg::compact(o), "{\"x\":\"1\"}");
  lcw_data_t* a = cfg_get_subtree(root.get(), "a");
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(wlccw::cfg::compact(a), "[5,6]");
  EXPECT_EQ(cfg_get_subtree(root.get(), "o"), o); // the same borrowed node each time
}

TEST(CfgGetSubtree, ScalarMemberIsItsNode) {
  Tree root = parse(R"({"s":"text","i":7})");
  ASSERT_TRUE(root);
  lcw_data_t* s = cfg_get_subtree(root.get(), "s");
  ASSERT_NE(s, nullptr);
  EXPECT_STREQ(cfg_object_to_string(s), "text");
  lcw_data_t* i = cfg_get_subtree(root.get(), "i");
  ASSERT_NE(i, nullptr);
  EXPECT_EQ(cfg_object_to_int_opt(i), std::optional<int>(7));
}

TEST(CfgGetSubtree, MissingMemberAndNonObjectNodeGiveNull) {
  Tree root = parse(R"({"o":{}})");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_get_subtree(root.get(), "missing"), nullptr);
  EXPECT_EQ(cfg_get_subtree(root.get(), "O"), nullptr);
  Tree array = parse(R"([{"o":{}}])");
  ASSERT_TRUE(array);
  EXPECT_EQ(cfg_get_subtree(array.get(), "o"), nullptr);
}

TEST(CfgGetSubtreeFromPath, FollowsEveryStep) {
  Tree root = parse(R"({"rpc-reply":{"data":{"monitoring":{"information":{"x":"y"},"n":1}}}})");
  ASSERT_TRUE(root);
  lcw_data_t* monitoring = cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring");
  ASSERT_NE(monitoring, nullptr);
  EXPECT_STREQ(cfg_get_param(monitoring, "n"), "1");
  lcw_data_t* information =
      cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring/information");
  ASSERT_NE(information, nullptr);
  EXPECT_STREQ(cfg_get_param(information, "x"), "y");
  EXPECT_EQ(information, cfg_get_subtree(monitoring, "information"));
  lcw_data_t* one = cfg_get_subtree_from_path(root.get(), "/rpc-reply");
  EXPECT_EQ(one, cfg_get_subtree(root.get(), "rpc-reply"));
  // A path starts at the node it is given.
  EXPECT_EQ(cfg_get_subtree_from_path(monitoring, "/information"), information);
}

TEST(CfgGetSubtreeFromPath, AnyMissingStepGivesNull) {
  Tree root = parse(R"({"a":{"b":{"c":{"d":1}},"s":"x","arr":[{"b":1}]}})");
  ASSERT_TRUE(root);
  EXPECT_NE(cfg_get_subtree_from_path(root.get(), "/a/b/c"), nullptr);
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/x/b/c"), nullptr);
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/a/x/c"), nullptr);
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/a/b/x"), nullptr);
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/a/b/c/d/e"), nullptr);
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/a/s/b"), nullptr);   // through a string
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/a/arr/b"), nullptr); // through an array
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/A/b/c"), nullptr);
}

TEST(CfgGetSubtreeFromPath, PathsNamingNoMemberGiveTheNodeItself) {
  Tree root = parse(R"({"a":{"b":1}})");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/"), root.get());
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), ""), root.get());
  lcw_data_t* a = cfg_get_subtree(root.get(), "a");
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(cfg_get_subtree_from_path(a, "/"), a);
  EXPECT_EQ(cfg_get_subtree_from_path(root.get(), "/a/"), a);
}

// ---- Scalar nodes (array elements) -------------------------------------------------------------

// The elements of an array node, in order.
std::vector<lcw_data_t*> elements(lcw_data_t const* array) {
  std::vector<lcw_data_t*> out;
  wlccw::cfg::for_each_element(array, [&](lcw_data_t& element) { out.push_back(&element); });
  return out;
}

TEST(CfgObjectToString, TextsOfScalarElementsAndEmptyTextForTheRest) {
  Tree root = parse(R"(["text","",123,-5,1.5,true,false,null,{"a":"b"},["x"]])");
  ASSERT_TRUE(root);
  std::vector<lcw_data_t*> const items = elements(root.get());
  ASSERT_EQ(items.size(), 10U);
  std::vector<std::string> const expected = {"text", "",      "123", "-5", "1.5",
                                             "true", "false", "",    "",   ""};
  for (std::size_t i = 0; i < items.size(); ++i) {
    char const* text = cfg_object_to_string(items[i]);
    ASSERT_NE(text, nullptr) << "element " << i;
    EXPECT_EQ(std::string(text), expected[i]) << "element " << i;
  }
  // Texts of elements stay valid while other elements are read.
  char const* first = cfg_object_to_string(items[0]);
  char const* number = cfg_object_to_string(items[2]);
  for (lcw_data_t* item : items) {
    (void)cfg_object_to_string(item);
    (void)cfg_object_to_int_opt(item);
  }
  EXPECT_STREQ(first, "text");
  EXPECT_STREQ(number, "123");
}

TEST(CfgObjectToIntOpt, ReadsArrayElementsByTheIntegerRule) {
  Tree root = parse(R"([1,"2",-3,"-4",0,2147483647,-2147483648,"2147483647","-2147483648",)"
                    R"(2147483648,-2147483649,"2147483648","x","12abc"," 12","","-","+1",)"
                    R"("1.5",1.5,true,false,null,{},[]])");
  ASSERT_TRUE(root);
  std::vector<lcw_data_t*> const items = elements(root.get());
  std::vector<std::optional<int>> const expected = {1,
                                                    2,
                                                    -3,
                                                    -4,
                                                    0,
                                                    2147483647,
                                                    -2147483647 - 1,
                                                    2147483647,
                                                    -2147483647 - 1,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt,
                                                    std::nullopt};
  ASSERT_EQ(items.size(), expected.size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    EXPECT_EQ(cfg_object_to_int_opt(items[i]), expected[i])
        << "element " << i << ": " << wlccw::cfg::compact(items[i]);
  }
}

} // namespace
