#include <wlccw/enums/ClientMacAuthReason.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientMacAuthReason;

constexpr std::array<Row<E>, 3> client_mac_auth_reason_netconf_names{{
    {"radius-reject", E::RADIUS_REJECT},
    {"radius-timed-out", E::RADIUS_TIMED_OUT},
    {"radius-redirect", E::RADIUS_REDIRECT},
}};
static_assert(wlccw::detail::rows_in_value_order(client_mac_auth_reason_netconf_names));

constexpr std::array<Row<E>, 3> client_mac_auth_reason_ipc_names{{
    {"radius_reject", E::RADIUS_REJECT},
    {"radius_timed_out", E::RADIUS_TIMED_OUT},
    {"radius_redirect", E::RADIUS_REDIRECT},
}};
static_assert(wlccw::detail::rows_in_value_order(client_mac_auth_reason_ipc_names));

constexpr auto netconf_str_to_client_mac_auth_reason =
    wlccw::detail::make_dictionary(client_mac_auth_reason_netconf_names);
constexpr auto ipc_str_to_client_mac_auth_reason =
    wlccw::detail::make_dictionary(client_mac_auth_reason_ipc_names);

} // namespace

std::optional<ClientMacAuthReason> client_mac_auth_reason_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_mac_auth_reason.find(text);
}

std::optional<ClientMacAuthReason> client_mac_auth_reason_from_ipc_str(std::string_view text) {
  return ipc_str_to_client_mac_auth_reason.find(text);
}

std::string convert_to_ipc_str(std::optional<ClientMacAuthReason> const& reason) {
  // No reason, or a value outside the table, is written as no text at all.
  if (!reason) {
    return {};
  }
  return wlccw::detail::text_or_empty(client_mac_auth_reason_ipc_names, *reason);
}
