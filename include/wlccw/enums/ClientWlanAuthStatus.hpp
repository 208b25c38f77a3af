/// \file
/// The state of a client's WLAN authentication (the AP says "authorized" where the controller says
/// "authenticated").
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The state of a client's WLAN authentication.
enum class ClientWlanAuthStatus : std::int32_t {
  AUTHENTICATED,
  UNAUTHENTICATED,
  PENDING,
};

/// The status of an AP's NETCONF text ("authorized", "unauthorized", "pending", exactly); empty for
/// any other.
WLCCW_EXPORT std::optional<ClientWlanAuthStatus>
client_wlan_auth_status_from_netconf_str(std::string_view text);
/// The status of an IPC text ("authenticated", "unauthenticated", "pending", exactly); empty for
/// any other.
WLCCW_EXPORT std::optional<ClientWlanAuthStatus>
client_wlan_auth_status_from_ipc_str(std::string_view text);
/// The IPC text of the status; empty for an empty argument or a value outside the table.
WLCCW_EXPORT std::optional<std::string>
convert_to_ipc_str(std::optional<ClientWlanAuthStatus> const& status);
