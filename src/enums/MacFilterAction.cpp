#include <wlccw/enums/MacFilterAction.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 8> MacFilterAction_names{
    "enable", "disable", "add", "remove", "status", "show", "clear", "UNKNOWN",
};
static_assert(MacFilterAction_names.size() ==
              static_cast<std::size_t>(MacFilterAction::UNKNOWN) + 1);

constexpr auto MacFilterAction_dictionary =
    wlccw::detail::make_name_dictionary<MacFilterAction>(MacFilterAction_names);

} // namespace

MacFilterAction MacFilterActionFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(MacFilterAction_dictionary, text, MacFilterAction::UNKNOWN);
}

char const* MacFilterActionToStrX(MacFilterAction value) {
  return wlccw::detail::x_to_str(MacFilterAction_names, value);
}
