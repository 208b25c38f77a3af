/// \file
/// The step at which a client's authentication failed.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The step at which a client's authentication failed. UNSPECIFIED is also what an unknown IPC
/// text reads as.
enum class ClientFailAuthStep : std::int32_t {
  OPEN_SYS_AUTH,
  ASSOCIATION,
  RE_ASSOCIATION,
  ACL_RADIUS,
  FOUR_WAY_HANDSHAKE,
  SAE_HANDSHAKE,
  ROAMING_HANDSHAKE,
  ACL_LOCAL,
  EAP,
  TLS,
  IEEE_8021X_UNSPECIFIED,
  UNSPECIFIED,
};

/// The step of an AP's NETCONF text ("open-sys-auth" ... "unspecified", exactly); empty for any
/// other.
WLCCW_EXPORT std::optional<ClientFailAuthStep>
client_fail_auth_step_from_netconf_str(std::string_view text);
/// The step of an IPC text ("open_sys_auth" ... "unspecified", exactly); UNSPECIFIED for any other
/// text.
WLCCW_EXPORT ClientFailAuthStep client_fail_auth_step_from_ipc_str(std::string_view text);
/// The IPC text of the step; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientFailAuthStep step);
