/// \file
/// A roaming event of a client.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A roaming event of a client.
enum class ClientRoamingEventType : std::int32_t {
  AUTH_FFT_AIR,
  AUTH_FFT_DS,
  REQUEST_RRB,
  REQUEST_RRB_FAIL,
  RESPONSE_RRB,
  STA_80211V_ROAM_ATTEMPT,
};

/// The event of an AP's NETCONF text ("auth-fft-air" ... "sta-80211v-roam-attempt", exactly); empty
/// for any other.
WLCCW_EXPORT std::optional<ClientRoamingEventType>
client_roaming_event_type_from_netconf_str(std::string_view text);
/// The event of an IPC text ("auth_fft_air" ... "sta_80211v_roam_attempt", exactly); AUTH_FFT_AIR
/// for any other text.
WLCCW_EXPORT ClientRoamingEventType client_roaming_event_type_from_ipc_str(std::string_view text);
/// The IPC text of the event; "" for a value outside the table.
WLCCW_EXPORT std::string convert_to_ipc_str(ClientRoamingEventType event);
