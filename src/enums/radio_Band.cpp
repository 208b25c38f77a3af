#include <wlccw/enums/radio_Band.hpp>

#include "detail/Dictionary.hpp"

#include <stdexcept>

namespace radio::band {
namespace {

using wlccw::detail::Row;

constexpr std::array<Row<Band>, 3> band_names{{
    {"2G", Band::BAND_2G},
    {"5G", Band::BAND_5G},
    {"6G", Band::BAND_6G},
}};
static_assert(wlccw::detail::rows_in_value_order(band_names));

constexpr auto str_to_band = wlccw::detail::make_dictionary(band_names);

} // namespace

std::optional<Band> from_str_opt(std::string_view text) {
  return str_to_band.find(text);
}

std::optional<std::string_view> to_str_opt(Band value) {
  return wlccw::detail::text_of(band_names, value);
}

std::string_view to_str(Band value) {
  std::optional<std::string_view> const text = wlccw::detail::text_of(band_names, value);
  if (!text) {
    throw std::invalid_argument("APClientData: band_to_str unknown band");
  }
  return *text;
}

} // namespace radio::band
