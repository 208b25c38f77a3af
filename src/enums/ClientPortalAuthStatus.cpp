#include <wlccw/enums/ClientPortalAuthStatus.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_enum_texts.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientPortalAuthStatus;

constexpr std::array<Row<E>, 6> client_portal_auth_status_netconf_names{{
    {"authorized", E::AUTHENTICATED},
    {"reauthenticate", E::REAUTHENTICATE},
    {"unauthorized", E::UNAUTHENTICATED},
    {"pending", E::PENDING},
    {"expired", E::EXPIRED},
    {"not-required", E::NOT_REQUIRED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_portal_auth_status_netconf_names));

constexpr std::array<Row<E>, 6> client_portal_auth_status_ipc_names{{
    {"authenticated", E::AUTHENTICATED},
    {"reauthenticate", E::REAUTHENTICATE},
    {"unauthenticated", E::UNAUTHENTICATED},
    {"pending", E::PENDING},
    {"expired", E::EXPIRED},
    {"not_required", E::NOT_REQUIRED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_portal_auth_status_ipc_names));

constexpr auto netconf_str_to_client_portal_auth_status =
    wlccw::detail::make_dictionary(client_portal_auth_status_netconf_names);
constexpr auto ipc_str_to_client_portal_auth_status =
    wlccw::detail::make_dictionary(client_portal_auth_status_ipc_names);

} // namespace

std::optional<ClientPortalAuthStatus>
client_portal_auth_status_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_portal_auth_status.find(text);
}

std::optional<ClientPortalAuthStatus>
client_portal_auth_status_from_ipc_str(std::string_view text) {
  return ipc_str_to_client_portal_auth_status.find(text);
}

std::optional<std::string> convert_to_ipc_str(std::optional<ClientPortalAuthStatus> const& status) {
  return wlccw::detail::optional_text(client_portal_auth_status_ipc_names, status);
}

std::optional<std::string_view>
wlccw::detail::ipc_text(std::optional<ClientPortalAuthStatus> const& status) noexcept {
  return optional_text_view(client_portal_auth_status_ipc_names, status);
}
