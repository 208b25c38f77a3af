/// \file
/// The event through which a client's IP address changed.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The event through which a client's IP address changed.
enum class ClientIpChangedEventType : std::int32_t {
  IP_CHANGED_IPV4,
  IP_CHANGED_ARP,
  IP_CHANGED_DHCP,
  IP_CHANGED_ACTION,
};

/// The event of an AP's NETCONF text ("ip-changed-ipv4", "ip-changed-arp", "ip-changed-dhcp",
/// "ip-changed-action", exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientIpChangedEventType>
client_ip_changed_event_type_from_netconf_str(std::string_view text);
/// The event of an IPC text ("ip_changed_ipv4", "ip_changed_arp", "ip_changed_dhcp",
/// "ip_changed_action", exactly); IP_CHANGED_IPV4 for any other text.
WLCCW_EXPORT ClientIpChangedEventType
client_ip_changed_event_type_from_ipc_str(std::string_view text);
/// The IPC text of the event; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientIpChangedEventType event);
