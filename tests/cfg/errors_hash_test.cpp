// The two exceptions of the tree readers and the hash combiner.
#include <wlccw/common/errors.hpp>
#include <wlccw/common/hash.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

static_assert(std::is_base_of_v<std::invalid_argument, wlccw::InvalidJsonPointer>);
static_assert(std::is_base_of_v<std::invalid_argument, wlccw::EmptyJson>);
static_assert(!std::is_base_of_v<wlccw::EmptyJson, wlccw::InvalidJsonPointer>);
static_assert(!std::is_base_of_v<wlccw::InvalidJsonPointer, wlccw::EmptyJson>);
static_assert(std::is_default_constructible_v<wlccw::InvalidJsonPointer>);
static_assert(std::is_default_constructible_v<wlccw::EmptyJson>);

// ---- wlccw::InvalidJsonPointer / wlccw::EmptyJson
// ------------------------------------------------

TEST(JsonErrors, InvalidJsonPointerMessage) {
  wlccw::InvalidJsonPointer const error;
  EXPECT_STREQ(error.what(), "JSON pointer is null");
}

TEST(JsonErrors, EmptyJsonMessage) {
  wlccw::EmptyJson const error;
  EXPECT_STREQ(error.what(), "JSON data is empty");
}

TEST(JsonErrors, CatchableAsInvalidArgument) {
  try {
    throw wlccw::InvalidJsonPointer();
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "JSON pointer is null");
    EXPECT_NE(dynamic_cast<wlccw::InvalidJsonPointer const*>(&e), nullptr);
  }
  try {
    throw wlccw::EmptyJson();
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "JSON data is empty");
    EXPECT_NE(dynamic_cast<wlccw::EmptyJson const*>(&e), nullptr);
  }
  EXPECT_THROW(throw wlccw::InvalidJsonPointer(), std::invalid_argument);
  EXPECT_THROW(throw wlccw::EmptyJson(), std::invalid_argument);
  EXPECT_THROW(throw wlccw::EmptyJson(), std::logic_error);
  EXPECT_THROW(throw wlccw::InvalidJsonPointer(), std::exception);
}

TEST(JsonErrors, EachIsCaughtByItsOwnTypeOnly) {
  bool caught_pointer = false;
  try {
    throw wlccw::InvalidJsonPointer();
  } catch (wlccw::EmptyJson const&) {
    FAIL() << "InvalidJsonPointer caught as EmptyJson";
  } catch (wlccw::InvalidJsonPointer const&) {
    caught_pointer = true;
  }
  EXPECT_TRUE(caught_pointer);
  bool caught_empty = false;
  try {
    throw wlccw::EmptyJson();
  } catch (wlccw::InvalidJsonPointer const&) {
    FAIL() << "EmptyJson caught as InvalidJsonPointer";
  } catch (wlccw::EmptyJson const&) {
    caught_empty = true;
  }
  EXPECT_TRUE(caught_empty);
}

TEST(JsonErrors, CopiesKeepTheMessage) {
  wlccw::EmptyJson const original;
  wlccw::EmptyJson copy = original;
  EXPECT_STREQ(copy.what(), "JSON data is empty");
  wlccw::InvalidJsonPointer const pointer;
  wlccw::InvalidJsonPointer assigned;
  assigned = pointer;
  EXPECT_STREQ(assigned.what(), "JSON pointer is null");
  std::exception_ptr const stored = std::make_exception_ptr(wlccw::EmptyJson());
  try {
    std::rethrow_exception(stored);
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "JSON data is empty");
  }
}

// ---- tools::hash_combine -----------------------------------------------------------------------

TEST(HashCombine, SeedZeroGivesTheHashPlusTheConstant) {
  std::string const value = "ap-01";
  std::size_t seed = 0;
  tools::hash_combine(seed, value);
  std::uint64_t const expected = std::uint64_t{std::hash<std::string>{}(value)} + 0x9e3779b9U;
  EXPECT_EQ(std::uint64_t{seed}, expected);
}

TEST(HashCombine, HandComputedValues) {
  // Integer hashes are the identity, which makes the arithmetic checkable by hand.
  ASSERT_EQ(std::hash<std::uint64_t>{}(1), 1U);
  ASSERT_EQ(std::hash<std::uint64_t>{}(2), 2U);

  std::size_t seed = 0;
  tools::hash_combine(seed, std::uint64_t{0});
  EXPECT_EQ(seed, 0x9e3779b9U); // the constant is widened without sign

  seed = 0;
  tools::hash_combine(seed, std::uint64_t{1});
  EXPECT_EQ(seed, 0x9e3779baU);
  // 0x9e3779ba ^ (2 + 0x9e3779b9 + 0x278dde6e80 + 0x278dde6e) = 0x9e3779ba ^ 0x2853a3c6a9
  tools::hash_combine(seed, std::uint64_t{2});
  EXPECT_EQ(std::uint64_t{seed}, UINT64_C(0x28cd94bf13));
}

TEST(HashCombine, WrapsAroundIn64Bits) {
  ASSERT_EQ(std::hash<std::uint64_t>{}(UINT64_MAX), UINT64_MAX);
  std::size_t seed = static_cast<std::size_t>(UINT64_MAX);
  tools::hash_combine(seed, UINT64_MAX);
  EXPECT_EQ(std::uint64_t{seed}, UINT64_C(0xbfffffff61c88688));
}

TEST(HashCombine, OrderOfValuesMatters) {
  std::size_t ab = 0;
  tools::hash_combine(ab, std::string("a"));
  tools::hash_combine(ab, std::string("b"));
  std::size_t ba = 0;
  tools::hash_combine(ba, std::string("b"));
  tools::hash_combine(ba, std::string("a"));
  EXPECT_NE(ab, ba);

  std::uint64_t const ha = std::hash<std::string>{}("a");
  std::uint64_t const hb = std::hash<std::string>{}("b");
  std::uint64_t s = ha + 0x9e3779b9U;
  s ^= hb + 0x9e3779b9U + (s << 6U) + (s >> 2U);
  EXPECT_EQ(std::uint64_t{ab}, s);
}

} // namespace
