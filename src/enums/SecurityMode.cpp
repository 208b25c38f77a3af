#include <wlccw/enums/SecurityMode.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 13> SecurityMode_names{
    "off",      "WPA",         "WPA_1X",    "WPA2",         "WPA2_1X", "WPA3",    "WPA3_1X",
    "WPA_WPA2", "WPA_WPA2_1X", "WPA2_WPA3", "WPA2_WPA3_1X", "OWE",     "UNKNOWN",
};
static_assert(SecurityMode_names.size() == static_cast<std::size_t>(SecurityMode::UNKNOWN) + 1);

constexpr auto SecurityMode_dictionary =
    wlccw::detail::make_name_dictionary<SecurityMode>(SecurityMode_names);

} // namespace

SecurityMode SecurityModeFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(SecurityMode_dictionary, text, SecurityMode::UNKNOWN);
}

char const* SecurityModeToStrX(SecurityMode value) {
  return wlccw::detail::x_to_str(SecurityMode_names, value);
}
