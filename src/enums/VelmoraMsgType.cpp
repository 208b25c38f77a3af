#include <wlccw/enums/VelmoraMsgType.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 9> VelmoraMsgType_names{
    "get_common",         "get_sessions",     "rem_sessions",
    "get_rrm_group_stat", "get_roaming_stat", "get_ap_info",
    "start_optimization", "get_reports",      "UNKNOWN",
};
static_assert(VelmoraMsgType_names.size() == static_cast<std::size_t>(VelmoraMsgType::UNKNOWN) + 1);

constexpr auto VelmoraMsgType_dictionary =
    wlccw::detail::make_name_dictionary<VelmoraMsgType>(VelmoraMsgType_names);

} // namespace

VelmoraMsgType VelmoraMsgTypeFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(VelmoraMsgType_dictionary, text, VelmoraMsgType::UNKNOWN);
}

char const* VelmoraMsgTypeToStrX(VelmoraMsgType value) {
  return wlccw::detail::x_to_str(VelmoraMsgType_names, value);
}
