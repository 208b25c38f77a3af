/// \file
/// The answer of an AP to a captive-portal query about one client. The AP sends it; the controller
/// never writes it.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string_view>

/// An access point's answer to a captive-portal query about one client.
enum class AuthPortalClientStatus : std::int32_t {
  SUCCESS,
  FAILED,
  CLIENT_NOT_FOUND,
  PORTAL_NOT_ENABLED,
};

/// The status of an AP's NETCONF text ("success", "failed", "clientNotFound", "portalNotEnabled",
/// exactly); empty for any other.
WLCCW_EXPORT std::optional<AuthPortalClientStatus>
auth_portal_client_status_from_netconf_str(std::string_view text);
