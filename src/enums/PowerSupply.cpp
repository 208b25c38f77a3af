#include <wlccw/enums/PowerSupply.hpp>

#include "detail/Dictionary.hpp"

namespace {

using wlccw::detail::Row;
using E = PowerSupply;

// UNKNOWN has no text: it stands for a supply the AP did not name.
constexpr std::array<Row<E>, 3> power_supply_names{{
    {"PoE/Unclassified", E::POE_UNCLASSIFIED},
    {"PoE+", E::POE_PLUS},
    {"PoE++", E::POE_PLUS_PLUS},
}};
static_assert(wlccw::detail::rows_in_value_order(power_supply_names));

constexpr auto str_to_power_supply = wlccw::detail::make_dictionary(power_supply_names);

} // namespace

PowerSupply power_supply_from_str(std::string_view text) {
  return str_to_power_supply.find(text).value_or(E::UNKNOWN);
}

std::string power_supply_to_str(PowerSupply supply) {
  return wlccw::detail::text_or_empty(power_supply_names, supply);
}
