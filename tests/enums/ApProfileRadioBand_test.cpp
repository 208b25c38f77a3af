// ApProfileRadioBand: the numbering of the AP profile's radio bands.
#include <wlccw/enums/ApProfileRadioBand.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

namespace {

using E = ApProfileRadioBand;

static_assert(std::is_same_v<std::underlying_type_t<E>, std::int32_t>);

TEST(ApProfileRadioBand, BandsAreNumberedTwoFiveSixGigahertzThenUnknown) {
  EXPECT_EQ(static_cast<std::int32_t>(E::BAND_2_4_GHZ), 0);
  EXPECT_EQ(static_cast<std::int32_t>(E::BAND_5_GHZ), 1);
  EXPECT_EQ(static_cast<std::int32_t>(E::BAND_6_GHZ), 2);
  EXPECT_EQ(static_cast<std::int32_t>(E::UNKNOWN), 3);
}

TEST(ApProfileRadioBand, NumbersConvertBackToTheBands) {
  EXPECT_EQ(static_cast<E>(0), E::BAND_2_4_GHZ);
  EXPECT_EQ(static_cast<E>(1), E::BAND_5_GHZ);
  EXPECT_EQ(static_cast<E>(2), E::BAND_6_GHZ);
  EXPECT_EQ(static_cast<E>(3), E::UNKNOWN);
}

} // namespace
