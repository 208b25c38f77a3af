/// \file
/// Whether an access point's indication is to be switched off or on.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// Whether to switch an access point's indication off (DISABLE) or on (ENABLE). UNKNOWN is what any
/// other text reads as.
enum class ApIndicationAction : std::int32_t {
  DISABLE,
  ENABLE,
  UNKNOWN,
};

/// The action named by the text ("disable", "enable", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT ApIndicationAction ApIndicationActionFromStrX(std::string_view text);
/// The name of the action; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* ApIndicationActionToStrX(ApIndicationAction value);
