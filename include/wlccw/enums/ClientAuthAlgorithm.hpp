/// \file
/// The 802.11 authentication algorithm of a client's association.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The 802.11 authentication algorithm of a client's association.
enum class ClientAuthAlgorithm : std::int32_t {
  OPEN_SYSTEM,
  SHARED_KEY,
  FAST_BSS_TRANSITION,
  SAE,
  FILS_SHARED_KEY_WITHOUT_PFS,
  FILS_SHARED_KEY_WITH_PFS,
  FILS_PUBLIC_KEY,
  VENDOR_SPECIFIC,
};

/// The algorithm of an AP's NETCONF text ("open-system" ... "vendor-specific", exactly); empty for
/// any other.
WLCCW_EXPORT std::optional<ClientAuthAlgorithm>
client_auth_algorithm_netconf_str(std::string_view text);
/// The algorithm of an IPC text ("open_system" ... "vendor_specific", exactly); empty for any
/// other.
WLCCW_EXPORT std::optional<ClientAuthAlgorithm>
client_auth_algorithm_from_ipc_str(std::string_view text);
/// The IPC text of the algorithm; empty for an empty argument or a value outside the table.
WLCCW_EXPORT std::optional<std::string>
convert_to_ipc_str(std::optional<ClientAuthAlgorithm> const& algorithm);
