#include <wlccw/enums/AuthPortalClientStatus.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = AuthPortalClientStatus;

constexpr std::array<Row<E>, 4> auth_portal_client_status_netconf_names{{
    {"success", E::SUCCESS},
    {"failed", E::FAILED},
    {"clientNotFound", E::CLIENT_NOT_FOUND},
    {"portalNotEnabled", E::PORTAL_NOT_ENABLED},
}};
static_assert(wlccw::detail::rows_in_value_order(auth_portal_client_status_netconf_names));

constexpr auto netconf_str_to_auth_portal_client_status =
    wlccw::detail::make_dictionary(auth_portal_client_status_netconf_names);

} // namespace

std::optional<AuthPortalClientStatus>
auth_portal_client_status_from_netconf_str(std::string_view text) {
  return netconf_str_to_auth_portal_client_status.find(text);
}
