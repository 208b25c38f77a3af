#include <wlccw/enums/ClientMacAuthStatus.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_enum_texts.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientMacAuthStatus;

constexpr std::array<Row<E>, 4> client_mac_auth_status_netconf_names{{
    {"authorized", E::AUTHENTICATED},
    {"unauthorized", E::UNAUTHENTICATED},
    {"pending", E::PENDING},
    {"not-required", E::NOT_REQUIRED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_mac_auth_status_netconf_names));

constexpr std::array<Row<E>, 4> client_mac_auth_status_ipc_names{{
    {"authenticated", E::AUTHENTICATED},
    {"unauthenticated", E::UNAUTHENTICATED},
    {"pending", E::PENDING},
    {"not_required", E::NOT_REQUIRED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_mac_auth_status_ipc_names));

constexpr auto netconf_str_to_client_mac_auth_status =
    wlccw::detail::make_dictionary(client_mac_auth_status_netconf_names);
constexpr auto ipc_str_to_client_mac_auth_status =
    wlccw::detail::make_dictionary(client_mac_auth_status_ipc_names);

} // namespace

std::optional<ClientMacAuthStatus> client_mac_auth_status_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_mac_auth_status.find(text);
}

std::optional<ClientMacAuthStatus> client_mac_auth_status_from_ipc_str(std::string_view text) {
  return ipc_str_to_client_mac_auth_status.find(text);
}

std::optional<std::string> convert_to_ipc_str(std::optional<ClientMacAuthStatus> const& status) {
  return wlccw::detail::optional_text(client_mac_auth_status_ipc_names, status);
}

std::optional<std::string_view>
wlccw::detail::ipc_text(std::optional<ClientMacAuthStatus> const& status) noexcept {
  return optional_text_view(client_mac_auth_status_ipc_names, status);
}
