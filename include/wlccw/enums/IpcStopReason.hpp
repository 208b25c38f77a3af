/// \file
/// The reason carried by a request to stop.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The reason carried by a request to stop: REBOOT, or UNKNOWN for any other.
enum class IpcStopReason : std::int32_t {
  REBOOT,
  UNKNOWN,
};

/// The reason named by the text ("REBOOT", exactly, up to the first NUL); UNKNOWN for any other
/// text, "UNKNOWN" included.
WLCCW_EXPORT IpcStopReason IpcStopReasonFromStrX(std::string_view text);
/// "REBOOT" for REBOOT; "UNKNOWN" for any other value. Never null; static storage.
WLCCW_EXPORT char const* IpcStopReasonToStrX(IpcStopReason value);
