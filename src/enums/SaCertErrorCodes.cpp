#include <wlccw/enums/SaCertErrorCodes.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 4> SaCertErrorCodes_names{
    "SUCCESS",
    "CLIENT_ERROR",
    "GEN_AP_CERT_ERROR",
    "UNKNOWN",
};
static_assert(SaCertErrorCodes_names.size() ==
              static_cast<std::size_t>(SaCertErrorCodes::UNKNOWN) + 1);

constexpr auto SaCertErrorCodes_dictionary =
    wlccw::detail::make_name_dictionary<SaCertErrorCodes>(SaCertErrorCodes_names);

} // namespace

SaCertErrorCodes SaCertErrorCodesFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(SaCertErrorCodes_dictionary, text, SaCertErrorCodes::UNKNOWN);
}

char const* SaCertErrorCodesToStrX(SaCertErrorCodes value) {
  return wlccw::detail::x_to_str(SaCertErrorCodes_names, value);
}
