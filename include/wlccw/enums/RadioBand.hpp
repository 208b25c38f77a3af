/// \file
/// A radio band as daemons name it in their messages (lower-case "2g", "5g", "6g").
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// A radio band as daemons name it in their messages ("2g", "5g", "6g"). UNKNOWN is what any other
/// text reads as.
enum class RadioBand : std::int32_t {
  BAND_2G,
  BAND_5G,
  BAND_6G,
  UNKNOWN,
};

/// The band named by the text ("2g", "5g", "6g", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT RadioBand RadioBandFromStrX(std::string_view text);
/// The name of the band; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative ones
/// included. Never null; static storage.
WLCCW_EXPORT char const* RadioBandToStrX(RadioBand value);
