/// \file
/// Management-frame protection of a WLAN.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Management-frame protection of a WLAN, with its configuration words.
namespace mfp {

/// The management-frame protection mode of a WLAN.
enum class Mode : std::int32_t {
  AUTO = 0,
  OFF = 1,
  CAPABLE = 2,
  REQUIRED = 3,
};

/// The mode of the controller's configuration word ("auto", "off", "capable", "required",
/// exactly); empty for any other text.
WLCCW_EXPORT std::optional<Mode> from_wlc_config(std::string_view text);
/// The AP configuration word of the mode ("auto", "off", "capable", "required"); "unknown" for
/// any other value.
WLCCW_EXPORT std::string to_ap_config(Mode mode);

} // namespace mfp
