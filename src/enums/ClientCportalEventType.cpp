#include <wlccw/enums/ClientCportalEventType.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientCportalEventType;

constexpr std::array<Row<E>, 4> client_cportal_event_type_netconf_names{{
    {"cp-auth", E::CP_AUTH},
    {"cp-deauth", E::CP_DEAUTH},
    {"cp-connected", E::CP_CONNECTED},
    {"cp-disconnected", E::CP_DISCONNECTED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_cportal_event_type_netconf_names));

constexpr std::array<Row<E>, 4> client_cportal_event_type_ipc_names{{
    {"cp_auth", E::CP_AUTH},
    {"cp_deauth", E::CP_DEAUTH},
    {"cp_connected", E::CP_CONNECTED},
    {"cp_disconnected", E::CP_DISCONNECTED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_cportal_event_type_ipc_names));

constexpr auto netconf_str_to_client_cportal_event_type =
    wlccw::detail::make_dictionary(client_cportal_event_type_netconf_names);
constexpr auto ipc_str_to_client_cportal_event_type =
    wlccw::detail::make_dictionary(client_cportal_event_type_ipc_names);

} // namespace

std::optional<ClientCportalEventType>
client_cportal_event_type_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_cportal_event_type.find(text);
}

ClientCportalEventType client_cportal_event_type_from_ipc_str(std::string_view text) {
  // An event always has a type: an unknown text counts as a portal authentication.
  return ipc_str_to_client_cportal_event_type.find(text).value_or(E::CP_AUTH);
}

std::string convert_to_ipc_str(ClientCportalEventType event) {
  return wlccw::detail::text_or_empty(client_cportal_event_type_ipc_names, event);
}
