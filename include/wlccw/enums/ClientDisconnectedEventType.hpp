/// \file
/// The event that disconnected a client.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The event that disconnected a client: a disassociation or deauthentication sent or received by
/// the AP, a WDS disconnection sent or received, a polling event, a reassociation or a
/// disassociation.
enum class ClientDisconnectedEventType : std::int32_t {
  SEND_DISASSOC,
  RECV_DISASSOC,
  SEND_DEAUTH,
  RECV_DEAUTH,
  WDS_SEND_DISCONNECT,
  WDS_RECV_DISCONNECT,
  POLLING_EVENT,
  POLLING_STA_EVENT,
  REASSOC,
  DISASSOC,
};

/// The event of an AP's NETCONF text ("send-disassoc" ... "disassoc", exactly); empty for any
/// other.
WLCCW_EXPORT std::optional<ClientDisconnectedEventType>
client_disconnected_event_type_from_netconf_str(std::string_view text);
/// The event of an IPC text ("send_disassoc" ... "disassoc", exactly); SEND_DISASSOC for any other
/// text.
WLCCW_EXPORT ClientDisconnectedEventType
client_disconnected_event_type_from_ipc_str(std::string_view text);
/// The IPC text of the event; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientDisconnectedEventType event);
