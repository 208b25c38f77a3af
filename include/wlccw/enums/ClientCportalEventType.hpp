/// \file
/// A captive-portal event of a client.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A captive-portal event of a client.
enum class ClientCportalEventType : std::int32_t {
  CP_AUTH,
  CP_DEAUTH,
  CP_CONNECTED,
  CP_DISCONNECTED,
};

/// The event of an AP's NETCONF text ("cp-auth", "cp-deauth", "cp-connected", "cp-disconnected",
/// exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientCportalEventType>
client_cportal_event_type_from_netconf_str(std::string_view text);
/// The event of an IPC text ("cp_auth", "cp_deauth", "cp_connected", "cp_disconnected", exactly);
/// CP_AUTH for any other text.
WLCCW_EXPORT ClientCportalEventType client_cportal_event_type_from_ipc_str(std::string_view text);
/// The IPC text of the event; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientCportalEventType event);
