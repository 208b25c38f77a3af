/// \file
/// The verdict of the admission check of an access point that asks to connect.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The verdict of the admission check of an access point: accepted (ACCEPT_...), refused (FAIL_...)
/// or NOT_CHECKED. UNKNOWN is what any other text reads as.
enum class IpcMsgCheckApVerdict : std::int32_t {
  ACCEPT_KNOWN_AP,
  ACCEPT_KNOWN_UPGRADING_AP,
  ACCEPT_NEW_AP,
  FAIL_INTERNAL,
  FAIL_AP_HITS_LIMIT,
  FAIL_AP_CONNECTION_ESTABLISHED,
  FAIL_AP_CONNECTION_PLANNED,
  NOT_CHECKED,
  UNKNOWN,
};

/// The verdict named by the text ("ACCEPT_KNOWN_AP" ... "NOT_CHECKED", "UNKNOWN", exactly, up to
/// the first NUL); UNKNOWN for any other text.
WLCCW_EXPORT IpcMsgCheckApVerdict IpcMsgCheckApVerdictFromStrX(std::string_view text);
/// The name of the verdict; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* IpcMsgCheckApVerdictToStrX(IpcMsgCheckApVerdict value);
