#include <wlccw/enums/ClientConnectedEventType.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientConnectedEventType;

constexpr std::array<Row<E>, 4> client_connected_event_type_netconf_names{{
    {"assoc", E::ASSOC},
    {"auth", E::AUTH},
    {"wds-connected", E::WDS_CONNECTED},
    {"8021x-success", E::IEEE_8021X_SUCCESS},
}};

constexpr std::array<Row<E>, 4> client_connected_event_type_ipc_names{{
    {"assoc", E::ASSOC},
    {"auth", E::AUTH},
    {"wds_connected", E::WDS_CONNECTED},
    {"8021x_success", E::IEEE_8021X_SUCCESS},
}};
static_assert(wlccw::detail::rows_in_value_order(client_connected_event_type_ipc_names));

constexpr auto netconf_str_to_client_connected_event_type =
    wlccw::detail::make_dictionary(client_connected_event_type_netconf_names);
constexpr auto ipc_str_to_client_connected_event_type =
    wlccw::detail::make_dictionary(client_connected_event_type_ipc_names);

} // namespace

std::optional<ClientConnectedEventType>
client_connected_event_type_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_connected_event_type.find(text);
}

ClientConnectedEventType client_connected_event_type_from_ipc_str(std::string_view text) {
  // An event always has a type: an unknown text counts as an association.
  return ipc_str_to_client_connected_event_type.find(text).value_or(E::ASSOC);
}

std::string convert_to_ipc_str(ClientConnectedEventType event) {
  return wlccw::detail::text_or_empty(client_connected_event_type_ipc_names, event);
}
