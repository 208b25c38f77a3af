/// \file
/// The outcome of a request to the radio-optimisation service.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The outcome of a request to the radio-optimisation service. UNKNOWN is what any other text reads
/// as.
enum class VelmoraRespStatus : std::int32_t {
  SUCCESS,
  FAILURE,
  UNKNOWN,
};

/// The outcome named by the text ("success", "failure", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT VelmoraRespStatus VelmoraRespStatusFromStrX(std::string_view text);
/// The name of the outcome; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* VelmoraRespStatusToStrX(VelmoraRespStatus value);
