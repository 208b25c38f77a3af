/// \file
/// The event with which a client's connection failed: the disconnection events, then the failures
/// of association, authentication and 802.1X.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The event with which a client's connection failed: the disconnection events, with the values of
/// ClientDisconnectedEventType, then ASSOC_FAIL, AUTH_FAIL and IEEE_8021X_FAIL.
enum class ClientFailEventType : std::int32_t {
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
  ASSOC_FAIL,
  AUTH_FAIL,
  IEEE_8021X_FAIL,
};

/// The event of an AP's NETCONF text ("send-disassoc" ... "8021x-fail", exactly); empty for any
/// other.
WLCCW_EXPORT std::optional<ClientFailEventType>
client_fail_event_type_from_netconf_str(std::string_view text);
/// The event of an IPC text ("send_disassoc" ... "8021x_fail", exactly); SEND_DISASSOC for any
/// other text.
WLCCW_EXPORT ClientFailEventType client_fail_event_type_from_ipc_str(std::string_view text);
/// The IPC text of the event; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientFailEventType event);
