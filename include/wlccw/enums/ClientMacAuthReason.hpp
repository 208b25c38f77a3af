/// \file
/// Why a client's MAC authentication at the RADIUS server did not succeed.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Why a client's MAC authentication at the RADIUS server did not succeed.
enum class ClientMacAuthReason : std::int32_t {
  RADIUS_REJECT,
  RADIUS_TIMED_OUT,
  RADIUS_REDIRECT,
};

/// The reason of an AP's NETCONF text ("radius-reject", "radius-timed-out", "radius-redirect",
/// exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientMacAuthReason>
client_mac_auth_reason_from_netconf_str(std::string_view text);
/// The reason of an IPC text ("radius_reject", "radius_timed_out", "radius_redirect", exactly);
/// empty for any other.
WLCCW_EXPORT std::optional<ClientMacAuthReason>
client_mac_auth_reason_from_ipc_str(std::string_view text);
/// The IPC text of the reason; "" for an empty argument or a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(std::optional<ClientMacAuthReason> const& reason);
