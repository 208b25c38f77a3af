#include <wlccw/enums/ClientWlanAuthStatus.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_enum_texts.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientWlanAuthStatus;

constexpr std::array<Row<E>, 3> client_wlan_auth_status_netconf_names{{
    {"authorized", E::AUTHENTICATED},
    {"unauthorized", E::UNAUTHENTICATED},
    {"pending", E::PENDING},
}};
static_assert(wlccw::detail::rows_in_value_order(client_wlan_auth_status_netconf_names));

constexpr std::array<Row<E>, 3> client_wlan_auth_status_ipc_names{{
    {"authenticated", E::AUTHENTICATED},
    {"unauthenticated", E::UNAUTHENTICATED},
    {"pending", E::PENDING},
}};
static_assert(wlccw::detail::rows_in_value_order(client_wlan_auth_status_ipc_names));

constexpr auto netconf_str_to_client_wlan_auth_status =
    wlccw::detail::make_dictionary(client_wlan_auth_status_netconf_names);
constexpr auto ipc_str_to_client_wlan_auth_status =
    wlccw::detail::make_dictionary(client_wlan_auth_status_ipc_names);

} // namespace

std::optional<ClientWlanAuthStatus>
client_wlan_auth_status_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_wlan_auth_status.find(text);
}

std::optional<ClientWlanAuthStatus> client_wlan_auth_status_from_ipc_str(std::string_view text) {
  return ipc_str_to_client_wlan_auth_status.find(text);
}

std::optional<std::string> convert_to_ipc_str(std::optional<ClientWlanAuthStatus> const& status) {
  return wlccw::detail::optional_text(client_wlan_auth_status_ipc_names, status);
}

std::optional<std::string_view>
wlccw::detail::ipc_text(std::optional<ClientWlanAuthStatus> const& status) noexcept {
  return optional_text_view(client_wlan_auth_status_ipc_names, status);
}
