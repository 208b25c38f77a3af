/// \file
/// The radio band of an AP profile.
#pragma once

#include <cstdint>

/// The radio band an AP profile configures; UNKNOWN stands for no band or one not known here.
enum class ApProfileRadioBand : std::int32_t {
  BAND_2_4_GHZ = 0,
  BAND_5_GHZ = 1,
  BAND_6_GHZ = 2,
  UNKNOWN = 3,
};
