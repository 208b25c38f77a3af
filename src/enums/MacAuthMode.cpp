#include <wlccw/enums/MacAuthMode.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = MacAuthMode;

constexpr std::array<Row<E>, 2> mac_auth_mode_ap_config_names{{
    {"local", E::LOCAL},
    {"radius", E::RADIUS},
}};
static_assert(wlccw::detail::rows_in_value_order(mac_auth_mode_ap_config_names));

// The controller's configuration names RADIUS only; every other word means local checking.
constexpr std::array<Row<E>, 1> mac_auth_mode_wlc_config_names{{
    {"radius", E::RADIUS},
}};

constexpr auto wlc_config_str_to_mac_auth_mode =
    wlccw::detail::make_dictionary(mac_auth_mode_wlc_config_names);

} // namespace

MacAuthMode MacAuthMode_from_wlc_config(std::string_view text) {
  // Anything but "radius", the empty text included, is local mode.
  return wlc_config_str_to_mac_auth_mode.find(text).value_or(E::LOCAL);
}

std::string MacAuthMode_to_ap_config(MacAuthMode mode) {
  return wlccw::detail::text_or_empty(mac_auth_mode_ap_config_names, mode);
}
