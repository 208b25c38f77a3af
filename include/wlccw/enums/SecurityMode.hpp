/// \file
/// The security mode of a WLAN.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The security mode of a WLAN; the texts are "off", "WPA", "WPA_1X", ... "OWE" in value order.
/// UNKNOWN is what any other text reads as.
enum class SecurityMode : std::int32_t {
  OFF,
  WPA,
  WPA_1X,
  WPA2,
  WPA2_1X,
  WPA3,
  WPA3_1X,
  WPA_WPA2,
  WPA_WPA2_1X,
  WPA2_WPA3,
  WPA2_WPA3_1X,
  OWE,
  UNKNOWN,
};

/// The mode named by the text ("off" ... "OWE", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT SecurityMode SecurityModeFromStrX(std::string_view text);
/// The name of the mode; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative ones
/// included. Never null; static storage.
WLCCW_EXPORT char const* SecurityModeToStrX(SecurityMode value);
