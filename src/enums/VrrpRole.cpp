#include <wlccw/enums/VrrpRole.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 4> VrrpRole_names{
    "NO_VRRP",
    "MASTER",
    "STANDBY",
    "UNKNOWN",
};
static_assert(VrrpRole_names.size() == static_cast<std::size_t>(VrrpRole::UNKNOWN) + 1);

constexpr auto VrrpRole_dictionary = wlccw::detail::make_name_dictionary<VrrpRole>(VrrpRole_names);

} // namespace

VrrpRole VrrpRoleFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(VrrpRole_dictionary, text, VrrpRole::UNKNOWN);
}

char const* VrrpRoleToStrX(VrrpRole value) {
  return wlccw::detail::x_to_str(VrrpRole_names, value);
}
