/// \file
/// The status of an IPC request: failed or succeeded.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The status of an IPC request: FAILURE is 0 and SUCCESS 1. UNKNOWN is what any other text reads
/// as.
enum class IpcMsgStatus : std::int32_t {
  FAILURE = 0, // failure is 0 and success 1, in this order on purpose
  SUCCESS = 1,
  UNKNOWN,
};

/// The status named by the text ("FAILURE", "SUCCESS", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT IpcMsgStatus IpcMsgStatusFromStrX(std::string_view text);
/// The name of the status; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* IpcMsgStatusToStrX(IpcMsgStatus value);
