/// \file
/// Where a WLAN checks the MAC addresses of its clients: locally or through RADIUS.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string>
#include <string_view>

/// Where a WLAN checks the MAC addresses of its clients: locally (0) or through RADIUS (1).
enum class MacAuthMode : std::int32_t {
  LOCAL = 0,
  RADIUS = 1,
};

/// The mode of the controller's configuration word: RADIUS for exactly "radius"; LOCAL for any
/// other text, the empty one included.
WLCCW_EXPORT MacAuthMode MacAuthMode_from_wlc_config(std::string_view text);
/// The AP configuration word of the mode ("local", "radius"); "" for any other value.
WLCCW_EXPORT std::string MacAuthMode_to_ap_config(MacAuthMode mode);
