#include <wlccw/enums/VelmoraRespStatus.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 3> VelmoraRespStatus_names{
    "success",
    "failure",
    "UNKNOWN",
};
static_assert(VelmoraRespStatus_names.size() ==
              static_cast<std::size_t>(VelmoraRespStatus::UNKNOWN) + 1);

constexpr auto VelmoraRespStatus_dictionary =
    wlccw::detail::make_name_dictionary<VelmoraRespStatus>(VelmoraRespStatus_names);

} // namespace

VelmoraRespStatus VelmoraRespStatusFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(VelmoraRespStatus_dictionary, text, VelmoraRespStatus::UNKNOWN);
}

char const* VelmoraRespStatusToStrX(VelmoraRespStatus value) {
  return wlccw::detail::x_to_str(VelmoraRespStatus_names, value);
}
