/// \file
/// The state of a client's captive-portal authentication (the AP says "authorized" where the
/// controller says "authenticated").
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The state of a client's captive-portal authentication.
enum class ClientPortalAuthStatus : std::int32_t {
  AUTHENTICATED,
  REAUTHENTICATE,
  UNAUTHENTICATED,
  PENDING,
  EXPIRED,
  NOT_REQUIRED,
};

/// The status of an AP's NETCONF text ("authorized" ... "not-required", exactly); empty for any
/// other.
WLCCW_EXPORT std::optional<ClientPortalAuthStatus>
client_portal_auth_status_from_netconf_str(std::string_view text);
/// The status of an IPC text ("authenticated" ... "not_required", exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientPortalAuthStatus>
client_portal_auth_status_from_ipc_str(std::string_view text);
/// The IPC text of the status; empty for an empty argument or a value outside the table.
WLCCW_EXPORT std::optional<std::string>
convert_to_ipc_str(std::optional<ClientPortalAuthStatus> const& status);
