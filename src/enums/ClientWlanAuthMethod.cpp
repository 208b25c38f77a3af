#include <wlccw/enums/ClientWlanAuthMethod.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_enum_texts.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientWlanAuthMethod;

constexpr std::array<Row<E>, 8> client_wlan_auth_method_netconf_names{{
    {"Open", E::OPEN},
    {"WPA", E::WPA},
    {"WPA2", E::WPA2},
    {"WPA3", E::WPA3},
    {"WPA-Enterprise", E::WPA_ENTERPRISE},
    {"WPA2-Enterprise", E::WPA2_ENTERPRISE},
    {"WPA3-Enterprise", E::WPA3_ENTERPRISE},
    {"OWE", E::OWE},
}};
static_assert(wlccw::detail::rows_in_value_order(client_wlan_auth_method_netconf_names));

constexpr std::array<Row<E>, 8> client_wlan_auth_method_ipc_names{{
    {"open", E::OPEN},
    {"wpa", E::WPA},
    {"wpa2", E::WPA2},
    {"wpa3", E::WPA3},
    {"wpa_enterprise", E::WPA_ENTERPRISE},
    {"wpa2_enterprise", E::WPA2_ENTERPRISE},
    {"wpa3_enterprise", E::WPA3_ENTERPRISE},
    {"owe", E::OWE},
}};
static_assert(wlccw::detail::rows_in_value_order(client_wlan_auth_method_ipc_names));

constexpr auto netconf_str_to_client_wlan_auth_method =
    wlccw::detail::make_dictionary(client_wlan_auth_method_netconf_names);
constexpr auto ipc_str_to_client_wlan_auth_method =
    wlccw::detail::make_dictionary(client_wlan_auth_method_ipc_names);

} // namespace

std::optional<ClientWlanAuthMethod>
client_wlan_auth_method_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_wlan_auth_method.find(text);
}

std::optional<ClientWlanAuthMethod> client_wlan_auth_method_from_ipc_str(std::string_view text) {
  return ipc_str_to_client_wlan_auth_method.find(text);
}

std::optional<std::string> convert_to_ipc_str(std::optional<ClientWlanAuthMethod> const& method) {
  return wlccw::detail::optional_text(client_wlan_auth_method_ipc_names, method);
}

std::optional<std::string_view>
wlccw::detail::ipc_text(std::optional<ClientWlanAuthMethod> const& method) noexcept {
  return optional_text_view(client_wlan_auth_method_ipc_names, method);
}

std::string convert_to_clish_str(std::optional<ClientWlanAuthMethod> const& method) {
  // The command line shows the AP's own spelling of the method.
  if (!method) {
    return {};
  }
  return wlccw::detail::text_or_empty(client_wlan_auth_method_netconf_names, *method);
}
