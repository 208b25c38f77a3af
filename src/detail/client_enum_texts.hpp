// The IPC texts of the client record's enumerations, viewed in their tables: what
// convert_to_ipc_str gives, without making a string, for the writers of the client's IPC text.
#pragma once

#include <wlccw/enums/ClientAuthAlgorithm.hpp>
#include <wlccw/enums/ClientEapMethod.hpp>
#include <wlccw/enums/ClientMacAuthStatus.hpp>
#include <wlccw/enums/ClientPortalAuthStatus.hpp>
#include <wlccw/enums/ClientWirelessMode.hpp>
#include <wlccw/enums/ClientWlanAuthMethod.hpp>
#include <wlccw/enums/ClientWlanAuthStatus.hpp>

#include <optional>
#include <string_view>

namespace wlccw::detail {

/// The IPC text of the value; empty for no value or a value without a text.
std::optional<std::string_view> ipc_text(std::optional<ClientWirelessMode> const& mode) noexcept;
std::optional<std::string_view> ipc_text(std::optional<ClientEapMethod> const& method) noexcept;
std::optional<std::string_view> ipc_text(std::optional<ClientMacAuthStatus> const& status) noexcept;
std::optional<std::string_view>
ipc_text(std::optional<ClientPortalAuthStatus> const& status) noexcept;
std::optional<std::string_view>
ipc_text(std::optional<ClientWlanAuthStatus> const& status) noexcept;
std::optional<std::string_view>
ipc_text(std::optional<ClientWlanAuthMethod> const& method) noexcept;
std::optional<std::string_view>
ipc_text(std::optional<ClientAuthAlgorithm> const& algorithm) noexcept;

} // namespace wlccw::detail
