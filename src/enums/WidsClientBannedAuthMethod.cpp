#include <wlccw/enums/WidsClientBannedAuthMethod.hpp>

#include "detail/Dictionary.hpp"

namespace WidsClientBannedAuthMethod {
namespace {

using wlccw::detail::Row;

constexpr std::array<Row<Type>, 4> auth_type_names{{
    {"open", Type::OPEN},
    {"personal", Type::PERSONAL},
    {"enterprise", Type::ENTERPRISE},
    {"owe", Type::OWE},
}};
static_assert(wlccw::detail::rows_in_value_order(auth_type_names));

constexpr auto str_to_auth_type = wlccw::detail::make_dictionary(auth_type_names);

} // namespace

Type netconf_deserialize(unsigned int code) {
  // The AP numbers the classes as the table does; a number past it counts as an open WLAN.
  return code < auth_type_names.size() ? static_cast<Type>(code) : Type::OPEN;
}

Type ipc_deserialize(std::string const& text) {
  // A ban always has a class: an unknown text counts as an open WLAN.
  return str_to_auth_type.find(text).value_or(Type::OPEN);
}

std::string to_str(Type type) {
  return wlccw::detail::text_or_empty(auth_type_names, type);
}

std::string ipc_serialize(Type type) {
  return to_str(type);
}

} // namespace WidsClientBannedAuthMethod
