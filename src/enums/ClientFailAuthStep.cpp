#include <wlccw/enums/ClientFailAuthStep.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientFailAuthStep;

constexpr std::array<Row<E>, 12> client_fail_auth_step_netconf_names{{
    {"open-sys-auth", E::OPEN_SYS_AUTH},
    {"association", E::ASSOCIATION},
    {"re-association", E::RE_ASSOCIATION},
    {"acl-radius", E::ACL_RADIUS},
    {"4-way-handshake", E::FOUR_WAY_HANDSHAKE},
    {"sae-handshake", E::SAE_HANDSHAKE},
    {"roaming-handshake", E::ROAMING_HANDSHAKE},
    {"acl-local", E::ACL_LOCAL},
    {"eap", E::EAP},
    {"tls", E::TLS},
    {"8021x-unspecified", E::IEEE_8021X_UNSPECIFIED},
    {"unspecified", E::UNSPECIFIED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_fail_auth_step_netconf_names));

constexpr std::array<Row<E>, 12> client_fail_auth_step_ipc_names{{
    {"open_sys_auth", E::OPEN_SYS_AUTH},
    {"association", E::ASSOCIATION},
    {"re_association", E::RE_ASSOCIATION},
    {"acl_radius", E::ACL_RADIUS},
    {"4_way_handshake", E::FOUR_WAY_HANDSHAKE},
    {"sae_handshake", E::SAE_HANDSHAKE},
    {"roaming_handshake", E::ROAMING_HANDSHAKE},
    {"acl_local", E::ACL_LOCAL},
    {"eap", E::EAP},
    {"tls", E::TLS},
    {"8021x_unspecified", E::IEEE_8021X_UNSPECIFIED},
    {"unspecified", E::UNSPECIFIED},
}};
static_assert(wlccw::detail::rows_in_value_order(client_fail_auth_step_ipc_names));

constexpr auto netconf_str_to_client_fail_auth_step =
    wlccw::detail::make_dictionary(client_fail_auth_step_netconf_names);
constexpr auto ipc_str_to_client_fail_auth_step =
    wlccw::detail::make_dictionary(client_fail_auth_step_ipc_names);

} // namespace

std::optional<ClientFailAuthStep> client_fail_auth_step_from_netconf_str(std::string_view text) {
  return netconf_str_to_client_fail_auth_step.find(text);
}

ClientFailAuthStep client_fail_auth_step_from_ipc_str(std::string_view text) {
  // A step that cannot be read is an unspecified step, never one of the named ones.
  return ipc_str_to_client_fail_auth_step.find(text).value_or(E::UNSPECIFIED);
}

std::string convert_to_ipc_str(ClientFailAuthStep step) {
  return wlccw::detail::text_or_empty(client_fail_auth_step_ipc_names, step);
}
