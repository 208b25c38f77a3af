#include <wlccw/enums/ClientEapMethod.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_enum_texts.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientEapMethod;

constexpr std::array<Row<E>, 22> client_eap_method_netconf_names{{
    {"EAP-MD5", E::EAP_MD5},     {"EAP-OTP", E::EAP_OTP},
    {"EAP-GTC", E::EAP_GTC},     {"EAP-TLS", E::EAP_TLS},
    {"EAP-LEAP", E::EAP_LEAP},   {"EAP-SIM", E::EAP_SIM},
    {"EAP-TTLS", E::EAP_TTLS},   {"EAP-AKA", E::EAP_AKA},
    {"EAP-PEAP", E::EAP_PEAP},   {"EAP-MSCHAPV2", E::EAP_MSCHAPV2},
    {"EAP-TLV", E::EAP_TLV},     {"EAP-TNC", E::EAP_TNC},
    {"EAP-FAST", E::EAP_FAST},   {"EAP-PAX", E::EAP_PAX},
    {"EAP-PSK", E::EAP_PSK},     {"EAP-SAKE", E::EAP_SAKE},
    {"EAP-IKEV2", E::EAP_IKEV2}, {"EAP-AKA-PRIME", E::EAP_AKA_PRIME},
    {"EAP-GPSK", E::EAP_GPSK},   {"EAP-PWD", E::EAP_PWD},
    {"EAP-EKE", E::EAP_EKE},     {"EAP-TEAP", E::EAP_TEAP},
}};

constexpr std::array<Row<E>, 22> client_eap_method_ipc_names{{
    {"eap_md5", E::EAP_MD5},     {"eap_otp", E::EAP_OTP},
    {"eap_gtc", E::EAP_GTC},     {"eap_tls", E::EAP_TLS},
    {"eap_leap", E::EAP_LEAP},   {"eap_sim", E::EAP_SIM},
    {"eap_ttls", E::EAP_TTLS},   {"eap_aka", E::EAP_AKA},
    {"eap_peap", E::EAP_PEAP},   {"eap_mschapv2", E::EAP_MSCHAPV2},
    {"eap_tlv", E::EAP_TLV},     {"eap_tnc", E::EAP_TNC},
    {"eap_fast", E::EAP_FAST},   {"eap_pax", E::EAP_PAX},
    {"eap_psk", E::EAP_PSK},     {"eap_sake", E::EAP_SAKE},
    {"eap_ikev2", E::EAP_IKEV2}, {"eap_aka_prime", E::EAP_AKA_PRIME},
    {"eap_gpsk", E::EAP_GPSK},   {"eap_pwd", E::EAP_PWD},
    {"eap_eke", E::EAP_EKE},     {"eap_teap", E::EAP_TEAP},
}};
static_assert(wlccw::detail::rows_in_value_order(client_eap_method_ipc_names));

constexpr auto netconf_str_to_client_eap_method =
    wlccw::detail::make_dictionary(client_eap_method_netconf_names);
constexpr auto ipc_str_to_client_eap_method =
    wlccw::detail::make_dictionary(client_eap_method_ipc_names);

} // namespace

std::optional<ClientEapMethod> client_eap_method_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_eap_method.find(text);
}

std::optional<ClientEapMethod> client_eap_method_from_ipc_str(std::string_view text) {
  return ipc_str_to_client_eap_method.find(text);
}

std::optional<std::string> convert_to_ipc_str(std::optional<ClientEapMethod> const& method) {
  return wlccw::detail::optional_text(client_eap_method_ipc_names, method);
}

std::optional<std::string_view>
wlccw::detail::ipc_text(std::optional<ClientEapMethod> const& method) noexcept {
  return optional_text_view(client_eap_method_ipc_names, method);
}
