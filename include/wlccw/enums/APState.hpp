/// \file
/// The state of an access point's management connection.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// A state of an access point's management connection, from START to FINISH. UNKNOWN is what any
/// other text reads as.
enum class APState : std::int32_t {
  START,
  PRE_CONFIGURED,
  RECONNECTING,
  REGISTERING,
  UPGRADING_FW,
  READY,
  APPLYING_CFG,
  SANDBOXED,
  ACTIVE,
  FAILED,
  CFG_FAILED,
  UPDATING_CREDS,
  REBOOTING,
  LOST,
  FINISH,
  UNKNOWN,
};

/// The state named by the text ("Start" ... "Finish", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT APState APStateFromStrX(std::string_view text);
/// The name of the state; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* APStateToStrX(APState value);
