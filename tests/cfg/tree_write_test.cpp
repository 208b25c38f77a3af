// Writing members through the default tree backend: every writer's JSON form, replacement in place
// and the _opt writers.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

namespace {

using wlccw::cfg::compact;
using wlccw::cfg::make_array;
using wlccw::cfg::make_object;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;

TEST(CfgSetParam, WritesAJsonString) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_param(root.get(), "name", "value");
  cfg_set_param(root.get(), "empty", "");
  cfg_set_param(root.get(), "digits", "123");
  EXPECT_EQ(compact(root.get()), R"({"name":"value","empty":"","digits":"123"})");
  EXPECT_STREQ(cfg_get_param(root.get(), "name"), "value");
  EXPECT_EQ(cfg_get_param_opt(root.get(), "empty"), "");
}

TEST(CfgSetBoolean, WritesJsonBooleans) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_boolean_param(root.get(), "t", true);
  cfg_set_boolean_param(root.get(), "f", false);
  EXPECT_EQ(compact(root.get()), R"({"t":true,"f":false})");
  EXPECT_EQ(cfg_get_boolean_param_opt(root.get(), "t"), std::optional<bool>(true));
  EXPECT_EQ(cfg_get_boolean_param_opt(root.get(), "f"), std::optional<bool>(false));
}

TEST(CfgSetInteger, SignedWritersWriteJsonNumbersAtTheirLimits) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_int_param(root.get(), "imin", std::numeric_limits<int>::min());
  cfg_set_int_param(root.get(), "imax", std::numeric_limits<int>::max());
  cfg_set_int32_param(root.get(), "i32min", std::numeric_limits<std::int32_t>::min());
  cfg_set_int32_param(root.get(), "i32", -7);
  cfg_set_int_param(root.get(), "zero", 0);
  EXPECT_EQ(compact(root.get()),
            R"({"imin":-2147483648,"imax":2147483647,"i32min":-2147483648,"i32":-7,"zero":0})");
  EXPECT_EQ(cfg_get_int_param(root.get(), "imin"), std::numeric_limits<int>::min());
  EXPECT_EQ(cfg_get_int32_param_opt(root.get(), "i32"), std::optional<int>(-7));
}

TEST(CfgSetInteger, UnsignedWritersWriteJsonNumbersAtTheirLimits) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_uint_param(root.get(), "u", std::numeric_limits<unsigned int>::max());
  cfg_set_uint8_param(root.get(), "u8", 255);
  cfg_set_uint16_param(root.get(), "u16", 65535);
  cfg_set_uint32_param(root.get(), "u32", 4294967295U);
  cfg_set_uint64_param(root.get(), "u64", std::numeric_limits<std::uint64_t>::max());
  cfg_set_uint64_param(root.get(), "u64mid", UINT64_C(9223372036854775808));
  cfg_set_uint8_param(root.get(), "u8zero", 0);
  EXPECT_EQ(compact(root.get()),
            R"({"u":4294967295,"u8":255,"u16":65535,"u32":4294967295,)"
            R"("u64":18446744073709551615,"u64mid":9223372036854775808,"u8zero":0})");
  EXPECT_EQ(cfg_get_uint64_param(root.get(), "u64"), std::numeric_limits<std::uint64_t>::max());
  EXPECT_STREQ(cfg_get_param(root.get(), "u64"), "18446744073709551615");
  EXPECT_EQ(cfg_get_uint8_param(root.get(), "u8"), 255U);
  EXPECT_EQ(cfg_get_uint16_param(root.get(), "u16"), 65535U);
}

TEST(CfgSetInteger, WrittenNumbersSurviveATextRoundTrip) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_uint64_param(root.get(), "u64", std::numeric_limits<std::uint64_t>::max());
  cfg_set_int_param(root.get(), "neg", -42);
  Tree back = parse(compact(root.get()));
  ASSERT_TRUE(back);
  EXPECT_EQ(cfg_get_uint64_param(back.get(), "u64"), std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(cfg_get_int_param(back.get(), "neg"), -42);
  EXPECT_EQ(compact(back.get()), compact(root.get()));
}

TEST(CfgSet, WriteToAnExistingKeyReplacesItInPlace) {
  Tree root = parse(R"({"a":1,"b":2,"c":3})");
  ASSERT_TRUE(root);
  cfg_set_param(root.get(), "b", "x");
  EXPECT_EQ(compact(root.get()), R"({"a":1,"b":"x","c":3})");
  cfg_set_uint64_param(root.get(), "a", 18);
  EXPECT_EQ(compact(root.get()), R"({"a":18,"b":"x","c":3})");
  cfg_set_boolean_param(root.get(), "c", false);
  EXPECT_EQ(compact(root.get()), R"({"a":18,"b":"x","c":false})");
  cfg_set_int_param(root.get(), "b", -1);
  cfg_set_param(root.get(), "d", "new");
  EXPECT_EQ(compact(root.get()), R"({"a":18,"b":-1,"c":false,"d":"new"})");
}

TEST(CfgSet, WriteReplacesASubtreeInPlace) {
  Tree root = parse(R"({"a":{"x":[1,2]},"b":[{}],"c":0})");
  ASSERT_TRUE(root);
  cfg_set_param(root.get(), "a", "flat");
  cfg_set_uint8_param(root.get(), "b", 3);
  EXPECT_EQ(compact(root.get()), R"({"a":"flat","b":3,"c":0})");
}

TEST(CfgSet, EveryWriterReplacesInPlace) {
  Tree root = parse(R"({"first":0,"k":"old","last":0})");
  ASSERT_TRUE(root);
  lcw_data_t* node = root.get();
  auto expect_k = [&](char const* value_json) {
    EXPECT_EQ(compact(node), std::string(R"({"first":0,"k":)") + value_json + R"(,"last":0})");
  };
  cfg_set_int32_param(node, "k", -32);
  expect_k("-32");
  cfg_set_uint_param(node, "k", 1U);
  expect_k("1");
  cfg_set_uint8_param(node, "k", 8);
  expect_k("8");
  cfg_set_uint16_param(node, "k", 16);
  expect_k("16");
  cfg_set_uint32_param(node, "k", 32);
  expect_k("32");
  cfg_set_param_opt(node, "k", std::string("s"));
  expect_k("\"s\"");
  cfg_set_boolean_param_opt(node, "k", true);
  expect_k("true");
  cfg_set_int8_param_opt(node, "k", static_cast<signed char>(-8));
  expect_k("-8");
  cfg_set_int16_param_opt(node, "k", static_cast<short>(-16));
  expect_k("-16");
  cfg_set_uint8_param_opt(node, "k", static_cast<unsigned char>(200));
  expect_k("200");
  cfg_set_uint32_param_opt(node, "k", 4000000000U);
  expect_k("4000000000");
}

TEST(CfgSet, WritingToANodeThatIsNotAnObjectDoesNothing) {
  Tree array = make_array();
  ASSERT_TRUE(array);
  cfg_set_param(array.get(), "k", "v");
  cfg_set_int_param(array.get(), "k", 1);
  cfg_set_uint64_param(array.get(), "k", 1);
  cfg_set_boolean_param(array.get(), "k", true);
  cfg_set_param_opt(array.get(), "k", std::string("v"));
  cfg_set_uint32_param_opt(array.get(), "k", 1U);
  EXPECT_EQ(compact(array.get()), "[]");

  Tree scalar = parse("\"text\"");
  ASSERT_TRUE(scalar);
  cfg_set_param(scalar.get(), "k", "v");
  cfg_set_uint8_param(scalar.get(), "k", 1);
  EXPECT_EQ(compact(scalar.get()), "\"text\"");
}

TEST(CfgSetOpt, EngagedOptionalsAreWrittenWithTheirTypes) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_param_opt(root.get(), "s", std::string("v"));
  cfg_set_param_opt(root.get(), "e", std::string());
  cfg_set_boolean_param_opt(root.get(), "b", false);
  cfg_set_int8_param_opt(root.get(), "i8min", static_cast<signed char>(-128));
  cfg_set_int8_param_opt(root.get(), "i8max", static_cast<signed char>(127));
  cfg_set_int16_param_opt(root.get(), "i16min", static_cast<short>(-32768));
  cfg_set_int16_param_opt(root.get(), "i16max", static_cast<short>(32767));
  cfg_set_uint8_param_opt(root.get(), "u8", static_cast<unsigned char>(255));
  cfg_set_uint32_param_opt(root.get(), "u32", 4294967295U);
  EXPECT_EQ(compact(root.get()),
            R"({"s":"v","e":"","b":false,"i8min":-128,"i8max":127,"i16min":-32768,)"
            R"("i16max":32767,"u8":255,"u32":4294967295})");
  EXPECT_EQ(cfg_get_int8_param_with_custom_default(root.get(), "i8min", -1), -128);
  EXPECT_EQ(cfg_get_int16_param_opt(root.get(), "i16min"), std::optional<short>(-32768));
  EXPECT_EQ(cfg_get_uint8_param_opt(root.get(), "u8"), std::optional<unsigned char>(255));
  EXPECT_EQ(cfg_get_uint32_param_opt(root.get(), "u32"), std::optional<unsigned int>(4294967295U));
}

TEST(CfgSetOpt, EmptyOptionalsWriteNothing) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_param_opt(root.get(), "s", std::nullopt);
  cfg_set_boolean_param_opt(root.get(), "b", std::nullopt);
  cfg_set_int8_param_opt(root.get(), "i8", std::nullopt);
  cfg_set_int16_param_opt(root.get(), "i16", std::nullopt);
  cfg_set_uint8_param_opt(root.get(), "u8", std::nullopt);
  cfg_set_uint32_param_opt(root.get(), "u32", std::nullopt);
  EXPECT_EQ(compact(root.get()), "{}");
  EXPECT_NE(cfg_is_empty(root.get()), 0);
  for (char const* key : {"s", "b", "i8", "i16", "u8", "u32"}) {
    EXPECT_EQ(cfg_contain_param(root.get(), key), 0) << key;
  }
}

TEST(CfgSetOpt, EmptyOptionalLeavesAnExistingMemberAsItIs) {
  Tree root = parse(R"({"s":"keep","b":true,"i8":1,"i16":2,"u8":3,"u32":4})");
  ASSERT_TRUE(root);
  std::string const before = compact(root.get());
  cfg_set_param_opt(root.get(), "s", std::nullopt);
  cfg_set_boolean_param_opt(root.get(), "b", std::nullopt);
  cfg_set_int8_param_opt(root.get(), "i8", std::nullopt);
  cfg_set_int16_param_opt(root.get(), "i16", std::nullopt);
  cfg_set_uint8_param_opt(root.get(), "u8", std::nullopt);
  cfg_set_uint32_param_opt(root.get(), "u32", std::nullopt);
  EXPECT_EQ(compact(root.get()), before);
}

TEST(CfgSet, WrittenStringIsACopyOfTheCallersText) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  std::string value = "original";
  std::string key = "key";
  cfg_set_param(root.get(), key.c_str(), value.c_str());
  value.assign("changed!");
  key.assign("xyz");
  EXPECT_EQ(compact(root.get()), R"({"key":"original"})");
}

} // namespace
