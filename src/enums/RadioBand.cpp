#include <wlccw/enums/RadioBand.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 4> RadioBand_names{
    "2g",
    "5g",
    "6g",
    "UNKNOWN",
};
static_assert(RadioBand_names.size() == static_cast<std::size_t>(RadioBand::UNKNOWN) + 1);

constexpr auto RadioBand_dictionary =
    wlccw::detail::make_name_dictionary<RadioBand>(RadioBand_names);

} // namespace

RadioBand RadioBandFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(RadioBand_dictionary, text, RadioBand::UNKNOWN);
}

char const* RadioBandToStrX(RadioBand value) {
  return wlccw::detail::x_to_str(RadioBand_names, value);
}
