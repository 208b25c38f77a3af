#include <wlccw/enums/WidsDosAttack.hpp>

#include "detail/Dictionary.hpp"

namespace WidsDosAttack {
namespace {

using wlccw::detail::Row;

constexpr std::array<Row<Type>, 3> dos_attack_type_names{{
    {"many-packets-over-period", Type::MANY_PACKETS_OVER_PERIOD},
    {"packets-leap-too-big", Type::PACKETS_LEAP_TOO_BIG},
    {"unknown", Type::UNKNOWN},
}};
static_assert(wlccw::detail::rows_in_value_order(dos_attack_type_names));

constexpr auto str_to_dos_attack_type = wlccw::detail::make_dictionary(dos_attack_type_names);

} // namespace

Type netconf_deserialize(std::string const& text) {
  // An attack the table does not name is reported as one of unknown kind.
  return str_to_dos_attack_type.find(text).value_or(Type::UNKNOWN);
}

Type ipc_deserialize(std::string const& text) {
  // The IPC texts are the AP's texts; the same fallback applies.
  return str_to_dos_attack_type.find(text).value_or(Type::UNKNOWN);
}

std::string ipc_serialize(Type type) {
  return wlccw::detail::text_or_empty(dos_attack_type_names, type);
}

} // namespace WidsDosAttack
