#include <wlccw/enums/APState.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 16> APState_names{
    "Start",        "Pre-configured", "Reconnecting", "Registering",
    "Upgrading FW", "Ready",          "Applying cfg", "Sandboxed",
    "Active",       "Failed",         "Cfg failed",   "Updating creds",
    "Rebooting",    "Lost",           "Finish",       "UNKNOWN",
};

constexpr auto APState_dictionary = wlccw::detail::make_name_dictionary<APState>(APState_names);

} // namespace

APState APStateFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(APState_dictionary, text, APState::UNKNOWN);
}

char const* APStateToStrX(APState value) {
  return wlccw::detail::x_to_str(APState_names, value);
}
