#include <wlccw/enums/ClientAuthAlgorithm.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_enum_texts.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientAuthAlgorithm;

constexpr std::array<Row<E>, 8> client_auth_algorithm_netconf_names{{
    {"open-system", E::OPEN_SYSTEM},
    {"shared-key", E::SHARED_KEY},
    {"fast-bss-transition", E::FAST_BSS_TRANSITION},
    {"sae", E::SAE},
    {"fils-shared-key-without-pfs", E::FILS_SHARED_KEY_WITHOUT_PFS},
    {"fils-shared-key-with-pfs", E::FILS_SHARED_KEY_WITH_PFS},
    {"fils-public-key", E::FILS_PUBLIC_KEY},
    {"vendor-specific", E::VENDOR_SPECIFIC},
}};
static_assert(wlccw::detail::rows_in_value_order(client_auth_algorithm_netconf_names));

constexpr std::array<Row<E>, 8> client_auth_algorithm_ipc_names{{
    {"open_system", E::OPEN_SYSTEM},
    {"shared_key", E::SHARED_KEY},
    {"fast_bss_transition", E::FAST_BSS_TRANSITION},
    {"sae", E::SAE},
    {"fils_shared_key_without_pfs", E::FILS_SHARED_KEY_WITHOUT_PFS},
    {"fils_shared_key_with_pfs", E::FILS_SHARED_KEY_WITH_PFS},
    {"fils_public_key", E::FILS_PUBLIC_KEY},
    {"vendor_specific", E::VENDOR_SPECIFIC},
}};
static_assert(wlccw::detail::rows_in_value_order(client_auth_algorithm_ipc_names));

constexpr auto netconf_str_to_client_auth_algorithm =
    wlccw::detail::make_dictionary(client_auth_algorithm_netconf_names);
constexpr auto ipc_str_to_client_auth_algorithm =
    wlccw::detail::make_dictionary(client_auth_algorithm_ipc_names);

} // namespace

std::optional<ClientAuthAlgorithm> client_auth_algorithm_netconf_str(std::string_view text) {
  return netconf_str_to_client_auth_algorithm.find(text);
}

std::optional<ClientAuthAlgorithm> client_auth_algorithm_from_ipc_str(std::string_view text) {
  return ipc_str_to_client_auth_algorithm.find(text);
}

std::optional<std::string> convert_to_ipc_str(std::optional<ClientAuthAlgorithm> const& algorithm) {
  return wlccw::detail::optional_text(client_auth_algorithm_ipc_names, algorithm);
}

std::optional<std::string_view>
wlccw::detail::ipc_text(std::optional<ClientAuthAlgorithm> const& algorithm) noexcept {
  return optional_text_view(client_auth_algorithm_ipc_names, algorithm);
}
