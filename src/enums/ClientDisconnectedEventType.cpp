#include <wlccw/enums/ClientDisconnectedEventType.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientDisconnectedEventType;

constexpr std::array<Row<E>, 10> client_disconnected_event_type_netconf_names{{
    {"send-disassoc", E::SEND_DISASSOC},
    {"recv-disassoc", E::RECV_DISASSOC},
    {"send-deauth", E::SEND_DEAUTH},
    {"recv-deauth", E::RECV_DEAUTH},
    {"wds-send-disconnect", E::WDS_SEND_DISCONNECT},
    {"wds-recv-disconnect", E::WDS_RECV_DISCONNECT},
    {"polling-event", E::POLLING_EVENT},
    {"polling-sta-event", E::POLLING_STA_EVENT},
    {"reassoc", E::REASSOC},
    {"disassoc", E::DISASSOC},
}};
static_assert(wlccw::detail::rows_in_value_order(client_disconnected_event_type_netconf_names));

constexpr std::array<Row<E>, 10> client_disconnected_event_type_ipc_names{{
    {"send_disassoc", E::SEND_DISASSOC},
    {"recv_disassoc", E::RECV_DISASSOC},
    {"send_deauth", E::SEND_DEAUTH},
    {"recv_deauth", E::RECV_DEAUTH},
    {"wds_send_disconnect", E::WDS_SEND_DISCONNECT},
    {"wds_recv_disconnect", E::WDS_RECV_DISCONNECT},
    {"polling_event", E::POLLING_EVENT},
    {"polling_sta_event", E::POLLING_STA_EVENT},
    {"reassoc", E::REASSOC},
    {"disassoc", E::DISASSOC},
}};
static_assert(wlccw::detail::rows_in_value_order(client_disconnected_event_type_ipc_names));

constexpr auto netconf_str_to_client_disconnected_event_type =
    wlccw::detail::make_dictionary(client_disconnected_event_type_netconf_names);
constexpr auto ipc_str_to_client_disconnected_event_type =
    wlccw::detail::make_dictionary(client_disconnected_event_type_ipc_names);

} // namespace

std::optional<ClientDisconnectedEventType>
client_disconnected_event_type_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_disconnected_event_type.find(text);
}

ClientDisconnectedEventType client_disconnected_event_type_from_ipc_str(std::string_view text) {
  // An event always has a type: an unknown text counts as a disassociation sent by the AP.
  return ipc_str_to_client_disconnected_event_type.find(text).value_or(E::SEND_DISASSOC);
}

std::string convert_to_ipc_str(ClientDisconnectedEventType event) {
  return wlccw::detail::text_or_empty(client_disconnected_event_type_ipc_names, event);
}
