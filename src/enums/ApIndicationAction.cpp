#include <wlccw/enums/ApIndicationAction.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 3> ApIndicationAction_names{
    "disable",
    "enable",
    "UNKNOWN",
};
static_assert(ApIndicationAction_names.size() ==
              static_cast<std::size_t>(ApIndicationAction::UNKNOWN) + 1);

constexpr auto ApIndicationAction_dictionary =
    wlccw::detail::make_name_dictionary<ApIndicationAction>(ApIndicationAction_names);

} // namespace

ApIndicationAction ApIndicationActionFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(ApIndicationAction_dictionary, text,
                                   ApIndicationAction::UNKNOWN);
}

char const* ApIndicationActionToStrX(ApIndicationAction value) {
  return wlccw::detail::x_to_str(ApIndicationAction_names, value);
}
