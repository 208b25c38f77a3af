/// \file
/// The outcome of a client's MAC authentication (the AP says "failed" where the controller says
/// "fail").
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The outcome of a client's MAC authentication.
enum class ClientMacAuthEventType : std::int32_t {
  SUCCESS,
  FAIL,
};

/// The outcome of an AP's NETCONF text ("success", "failed", exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientMacAuthEventType>
client_mac_auth_event_type_from_netconf_str(std::string_view text);
/// The outcome of an IPC text ("success", "fail", exactly); FAIL for any other text.
WLCCW_EXPORT ClientMacAuthEventType client_mac_auth_event_type_from_ipc_str(std::string_view text);
/// The IPC text of the outcome; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientMacAuthEventType outcome);
