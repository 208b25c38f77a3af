/// \file
/// The stage of a standalone access point with the controller: registering, ready or upgrading.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The stage of a standalone access point with the controller. UNKNOWN is what any other text reads
/// as.
enum class ApSaStage : std::int32_t {
  REGISTER,
  READY,
  UPGRADE,
  UNKNOWN,
};

/// The stage named by the text ("REGISTER", "READY", "UPGRADE", "UNKNOWN", exactly, up to the first
/// NUL); UNKNOWN for any other text.
WLCCW_EXPORT ApSaStage ApSaStageFromStrX(std::string_view text);
/// The name of the stage; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* ApSaStageToStrX(ApSaStage value);
