/// \file
/// Whether the controller accepts incoming access-point connections.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// Whether the controller accepts incoming access-point connections. UNKNOWN is what any other text
/// reads as.
enum class IncomingConnections : std::int32_t {
  ALLOWED,
  FORBIDDEN,
  UNKNOWN,
};

/// The setting named by the text ("ALLOWED", "FORBIDDEN", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT IncomingConnections IncomingConnectionsFromStrX(std::string_view text);
/// The name of the setting; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* IncomingConnectionsToStrX(IncomingConnections value);
