/// \file
/// The event that connected a client.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The event that connected a client: association, authentication, a WDS link or 802.1X success.
enum class ClientConnectedEventType : std::int32_t {
  ASSOC,
  AUTH,
  WDS_CONNECTED,
  IEEE_8021X_SUCCESS,
};

/// The event of an AP's NETCONF text ("assoc", "auth", "wds-connected", "8021x-success", exactly);
/// empty for any other.
WLCCW_EXPORT std::optional<ClientConnectedEventType>
client_connected_event_type_from_netconf_str(std::string_view text);
/// The event of an IPC text ("assoc", "auth", "wds_connected", "8021x_success", exactly); ASSOC for
/// any other text.
WLCCW_EXPORT ClientConnectedEventType
client_connected_event_type_from_ipc_str(std::string_view text);
/// The IPC text of the event; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientConnectedEventType event);
