#include <wlccw/enums/ClientRoamingEventType.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientRoamingEventType;

constexpr std::array<Row<E>, 6> client_roaming_event_type_netconf_names{{
    {"auth-fft-air", E::AUTH_FFT_AIR},
    {"auth-fft-ds", E::AUTH_FFT_DS},
    {"request-rrb", E::REQUEST_RRB},
    {"request-rrb-fail", E::REQUEST_RRB_FAIL},
    {"response-rrb", E::RESPONSE_RRB},
    {"sta-80211v-roam-attempt", E::STA_80211V_ROAM_ATTEMPT},
}};
static_assert(wlccw::detail::rows_in_value_order(client_roaming_event_type_netconf_names));

constexpr std::array<Row<E>, 6> client_roaming_event_type_ipc_names{{
    {"auth_fft_air", E::AUTH_FFT_AIR},
    {"auth_fft_ds", E::AUTH_FFT_DS},
    {"request_rrb", E::REQUEST_RRB},
    {"request_rrb_fail", E::REQUEST_RRB_FAIL},
    {"response_rrb", E::RESPONSE_RRB},
    {"sta_80211v_roam_attempt", E::STA_80211V_ROAM_ATTEMPT},
}};
static_assert(wlccw::detail::rows_in_value_order(client_roaming_event_type_ipc_names));

constexpr auto netconf_str_to_client_roaming_event_type =
    wlccw::detail::make_dictionary(client_roaming_event_type_netconf_names);
constexpr auto ipc_str_to_client_roaming_event_type =
    wlccw::detail::make_dictionary(client_roaming_event_type_ipc_names);

} // namespace

std::optional<ClientRoamingEventType>
client_roaming_event_type_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_roaming_event_type.find(text);
}

ClientRoamingEventType client_roaming_event_type_from_ipc_str(std::string_view text) {
  // An event always has a type: an unknown text counts as a fast transition over the air.
  return ipc_str_to_client_roaming_event_type.find(text).value_or(E::AUTH_FFT_AIR);
}

std::string convert_to_ipc_str(ClientRoamingEventType event) {
  return wlccw::detail::text_or_empty(client_roaming_event_type_ipc_names, event);
}
