/// \file
/// Whether a configuration exists and is valid, as daemons report it to each other.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// Whether a configuration exists and is valid. UNKNOWN is what any other text reads as.
enum class IpcMsgCfgState : std::int32_t {
  NOT_EXISTS,
  EXISTS,
  INVALID,
  UNKNOWN,
};

/// The state named by the text ("NOT_EXISTS", "EXISTS", "INVALID", "UNKNOWN", exactly, up to the
/// first NUL); UNKNOWN for any other text.
WLCCW_EXPORT IpcMsgCfgState IpcMsgCfgStateFromStrX(std::string_view text);
/// The name of the state; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* IpcMsgCfgStateToStrX(IpcMsgCfgState value);
