#include <wlccw/enums/ClientIpChangedEventType.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientIpChangedEventType;

constexpr std::array<Row<E>, 4> client_ip_changed_event_type_netconf_names{{
    {"ip-changed-ipv4", E::IP_CHANGED_IPV4},
    {"ip-changed-arp", E::IP_CHANGED_ARP},
    {"ip-changed-dhcp", E::IP_CHANGED_DHCP},
    {"ip-changed-action", E::IP_CHANGED_ACTION},
}};
static_assert(wlccw::detail::rows_in_value_order(client_ip_changed_event_type_netconf_names));

constexpr std::array<Row<E>, 4> client_ip_changed_event_type_ipc_names{{
    {"ip_changed_ipv4", E::IP_CHANGED_IPV4},
    {"ip_changed_arp", E::IP_CHANGED_ARP},
    {"ip_changed_dhcp", E::IP_CHANGED_DHCP},
    {"ip_changed_action", E::IP_CHANGED_ACTION},
}};
static_assert(wlccw::detail::rows_in_value_order(client_ip_changed_event_type_ipc_names));

constexpr auto netconf_str_to_client_ip_changed_event_type =
    wlccw::detail::make_dictionary(client_ip_changed_event_type_netconf_names);
constexpr auto ipc_str_to_client_ip_changed_event_type =
    wlccw::detail::make_dictionary(client_ip_changed_event_type_ipc_names);

} // namespace

std::optional<ClientIpChangedEventType>
client_ip_changed_event_type_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_ip_changed_event_type.find(text);
}

ClientIpChangedEventType client_ip_changed_event_type_from_ipc_str(std::string_view text) {
  // An event always has a type: an unknown text counts as an IPv4 address change.
  return ipc_str_to_client_ip_changed_event_type.find(text).value_or(E::IP_CHANGED_IPV4);
}

std::string convert_to_ipc_str(ClientIpChangedEventType event) {
  return wlccw::detail::text_or_empty(client_ip_changed_event_type_ipc_names, event);
}
