/// \file
/// The band of a radio, with upper-case texts "2G", "5G", "6G". The lower-case words daemons use
/// in their messages belong to the distinct type RadioBand.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string_view>

/// Radio bands with their upper-case texts.
namespace radio {

/// The band of a radio: 2.4 GHz, 5 GHz or 6 GHz.
enum class Band : std::int32_t {
  BAND_2G = 0, // 2.4 GHz
  BAND_5G = 1,
  BAND_6G = 2,
};

/// The texts of radio::Band.
namespace band {

/// The band of the text ("2G", "5G", "6G", exactly); empty for any other text.
WLCCW_EXPORT std::optional<Band> from_str_opt(std::string_view text);
/// The text of the band ("2G", "5G", "6G"), a view of static storage; empty for any other value.
WLCCW_EXPORT std::optional<std::string_view> to_str_opt(Band value);
/// The text of the band ("2G", "5G", "6G"), a view of static storage. Throws std::invalid_argument
/// with the message "APClientData: band_to_str unknown band" for any other value.
WLCCW_EXPORT std::string_view to_str(Band value);

} // namespace band
} // namespace radio
