#include <wlccw/enums/ClientMacAuthEventType.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientMacAuthEventType;

constexpr std::array<Row<E>, 2> client_mac_auth_event_type_netconf_names{{
    {"success", E::SUCCESS},
    {"failed", E::FAIL},
}};
static_assert(wlccw::detail::rows_in_value_order(client_mac_auth_event_type_netconf_names));

constexpr std::array<Row<E>, 2> client_mac_auth_event_type_ipc_names{{
    {"success", E::SUCCESS},
    {"fail", E::FAIL},
}};
static_assert(wlccw::detail::rows_in_value_order(client_mac_auth_event_type_ipc_names));

constexpr auto netconf_str_to_client_mac_auth_event_type =
    wlccw::detail::make_dictionary(client_mac_auth_event_type_netconf_names);
constexpr auto ipc_str_to_client_mac_auth_event_type =
    wlccw::detail::make_dictionary(client_mac_auth_event_type_ipc_names);

} // namespace

std::optional<ClientMacAuthEventType>
client_mac_auth_event_type_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_mac_auth_event_type.find(text);
}

ClientMacAuthEventType client_mac_auth_event_type_from_ipc_str(std::string_view text) {
  // An outcome that cannot be read is a failure, never a success.
  return ipc_str_to_client_mac_auth_event_type.find(text).value_or(E::FAIL);
}

std::string convert_to_ipc_str(ClientMacAuthEventType outcome) {
  return wlccw::detail::text_or_empty(client_mac_auth_event_type_ipc_names, outcome);
}
