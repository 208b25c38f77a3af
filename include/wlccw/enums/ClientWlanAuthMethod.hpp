/// \file
/// The security of the WLAN a client joined. The AP's capitalised text is also the command-line
/// name.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The security of the WLAN a client joined.
enum class ClientWlanAuthMethod : std::int32_t {
  OPEN,
  WPA,
  WPA2,
  WPA3,
  WPA_ENTERPRISE,
  WPA2_ENTERPRISE,
  WPA3_ENTERPRISE,
  OWE,
};

/// The method of an AP's NETCONF text ("Open" ... "OWE", exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientWlanAuthMethod>
client_wlan_auth_method_from_netconf_str(std::string_view text);
/// The method of an IPC text ("open" ... "owe", exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientWlanAuthMethod>
client_wlan_auth_method_from_ipc_str(std::string_view text);
/// The IPC text of the method; empty for an empty argument or a value outside the table.
WLCCW_EXPORT std::optional<std::string>
convert_to_ipc_str(std::optional<ClientWlanAuthMethod> const& method);
/// The command-line name of the method (its NETCONF text, "Open" ... "OWE"); "" for an empty
/// argument or a value outside the table.
WLCCW_EXPORT std::string convert_to_clish_str(std::optional<ClientWlanAuthMethod> const& method);
