#include <wlccw/enums/FwVersionChecked.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 6> FwVersionChecked_names{
    "UNKNOWN_BOARD_TYPE",
    "FW_INVALID_FILE_ABSENT",
    "FW_INVALID_FILE_PRESENT",
    "FW_SUPPORTED_FILE_PRESENT",
    "FW_VALID",
    "UNKNOWN",
};
static_assert(FwVersionChecked_names.size() ==
              static_cast<std::size_t>(FwVersionChecked::UNKNOWN) + 1);

constexpr auto FwVersionChecked_dictionary =
    wlccw::detail::make_name_dictionary<FwVersionChecked>(FwVersionChecked_names);

} // namespace

FwVersionChecked FwVersionCheckedFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(FwVersionChecked_dictionary, text, FwVersionChecked::UNKNOWN);
}

char const* FwVersionCheckedToStrX(FwVersionChecked value) {
  return wlccw::detail::x_to_str(FwVersionChecked_names, value);
}
