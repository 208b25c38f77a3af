#include <wlccw/enums/ClientWirelessMode.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_enum_texts.hpp"

namespace {

using wlccw::detail::Row;
using E = ClientWirelessMode;

constexpr std::array<Row<E>, 8> client_wireless_mode_netconf_names{{
    {"ax", E::AX},
    {"ac", E::AC},
    {"n", E::N},
    {"g", E::G},
    {"a", E::A},
    {"b", E::B},
    {"bg", E::BG},
    {"be", E::BE},
}};
static_assert(wlccw::detail::rows_in_value_order(client_wireless_mode_netconf_names));

constexpr std::array<Row<E>, 8> client_wireless_mode_ipc_names{{
    {"ax", E::AX},
    {"ac", E::AC},
    {"n", E::N},
    {"g", E::G},
    {"a", E::A},
    {"b", E::B},
    {"bg", E::BG},
    {"be", E::BE},
}};
static_assert(wlccw::detail::rows_in_value_order(client_wireless_mode_ipc_names));

constexpr auto netconf_str_to_wireless_mode =
    wlccw::detail::make_dictionary(client_wireless_mode_netconf_names);
constexpr auto ipc_str_to_wireless_mode =
    wlccw::detail::make_dictionary(client_wireless_mode_ipc_names);

} // namespace

std::optional<ClientWirelessMode>
client_wireless_mode_from_netconf_str(std::optional<std::string> text) {
  if (!text) {
    return std::nullopt;
  }
  return netconf_str_to_wireless_mode.find(*text);
}

std::optional<ClientWirelessMode>
client_wireless_mode_from_ipc_str(std::optional<std::string> text) {
  if (!text) {
    return std::nullopt;
  }
  return ipc_str_to_wireless_mode.find(*text);
}

std::optional<std::string> convert_to_ipc_str(std::optional<ClientWirelessMode> const& mode) {
  return wlccw::detail::optional_text(client_wireless_mode_ipc_names, mode);
}

std::optional<std::string_view>
wlccw::detail::ipc_text(std::optional<ClientWirelessMode> const& mode) noexcept {
  return optional_text_view(client_wireless_mode_ipc_names, mode);
}
