/// \file
/// The 802.11 generation a client uses. The values are not in chronological order; they are
/// fixed, "ax" being 0 and "be" the last.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>

/// The 802.11 generation a client uses; the texts are "ax", "ac", "n", "g", "a", "b", "bg" and "be"
/// in value order.
enum class ClientWirelessMode : std::int32_t {
  AX,
  AC,
  N,
  G,
  A,
  B,
  BG,
  BE,
};

/// The mode of an AP's NETCONF text ("ax" ... "be", exactly); empty for an empty argument or any
/// other text.
WLCCW_EXPORT std::optional<ClientWirelessMode>
client_wireless_mode_from_netconf_str(std::optional<std::string> text);
/// The mode of an IPC text ("ax" ... "be", exactly); empty for an empty argument or any other
/// text.
WLCCW_EXPORT std::optional<ClientWirelessMode>
client_wireless_mode_from_ipc_str(std::optional<std::string> text);
/// The IPC text of the mode; empty for an empty argument or a value outside the table.
WLCCW_EXPORT std::optional<std::string>
convert_to_ipc_str(std::optional<ClientWirelessMode> const& mode);
