/// \file
/// The operation a request to the radio-optimisation service asks for.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The operation a request to the radio-optimisation service asks for. UNKNOWN is what any other
/// text reads as.
enum class VelmoraMsgType : std::int32_t {
  GET_COMMON,
  GET_SESSIONS,
  REM_SESSIONS,
  GET_RRM_GROUP_STAT,
  GET_ROAMING_STAT,
  GET_AP_INFO,
  START_OPTIMIZATION,
  GET_REPORTS,
  UNKNOWN,
};

/// The operation named by the text ("get_common" ... "get_reports", "UNKNOWN", exactly, up to the
/// first NUL); UNKNOWN for any other text.
WLCCW_EXPORT VelmoraMsgType VelmoraMsgTypeFromStrX(std::string_view text);
/// The name of the operation; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* VelmoraMsgTypeToStrX(VelmoraMsgType value);
