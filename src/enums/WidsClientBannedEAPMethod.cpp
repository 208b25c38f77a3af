#include <wlccw/enums/WidsClientBannedEAPMethod.hpp>

#include "detail/Dictionary.hpp"

#include <algorithm>

namespace WidsClientBannedEAPMethod {
namespace {

using wlccw::detail::Row;

// In ascending order of the codes, so a code is found by binary search.
constexpr std::array<Row<Type>, 27> eap_type_names{{
    {"none", Type::NONE},
    {"identity", Type::IDENTITY},
    {"notification", Type::NOTIFICATION},
    {"nak", Type::NAK},
    {"md5", Type::MD5},
    {"otp", Type::OTP},
    {"gtc", Type::GTC},
    {"tls", Type::TLS},
    {"leap", Type::LEAP},
    {"sim", Type::SIM},
    {"ttls", Type::TTLS},
    {"aka", Type::AKA},
    {"peap", Type::PEAP},
    {"mschapv2", Type::MSCHAPV2},
    {"tlv", Type::TLV},
    {"tnc", Type::TNC},
    {"fast", Type::FAST},
    {"pax", Type::PAX},
    {"psk", Type::PSK},
    {"sake", Type::SAKE},
    {"ikev2", Type::IKEV2},
    {"aka_prime", Type::AKA_PRIME},
    {"gpsk", Type::GPSK},
    {"pwd", Type::PWD},
    {"eke", Type::EKE},
    {"teap", Type::TEAP},
    {"expanded", Type::EXPANDED},
}};
static_assert(std::is_sorted(eap_type_names.begin(), eap_type_names.end(),
                             [](Row<Type> const& a, Row<Type> const& b) {
                               return a.second < b.second;
                             }));

constexpr auto str_to_eap_type = wlccw::detail::make_dictionary(eap_type_names);

/// The row of a code, or null.
Row<Type> const* row_of(std::uint32_t code) noexcept {
  auto const it = std::lower_bound(eap_type_names.begin(), eap_type_names.end(), code,
                                   [](Row<Type> const& row, std::uint32_t c) {
                                     return static_cast<std::uint32_t>(row.second) < c;
                                   });
  if (it == eap_type_names.end() || static_cast<std::uint32_t>(it->second) != code) {
    return nullptr;
  }
  return &*it;
}

} // namespace

Type netconf_deserialize(unsigned int code) {
  Row<Type> const* row = row_of(code);
  return row != nullptr ? row->second : Type::NONE;
}

Type ipc_deserialize(std::string const& text) {
  return str_to_eap_type.find(text).value_or(Type::NONE);
}

std::string to_str(Type method) {
  Row<Type> const* row = row_of(static_cast<std::uint32_t>(method));
  return row != nullptr ? std::string(row->first) : std::string();
}

std::string ipc_serialize(Type method) {
  return to_str(method);
}

} // namespace WidsClientBannedEAPMethod
