/// \file
/// How an access point is powered.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string>
#include <string_view>

/// How an access point is powered; UNKNOWN, which has no text, stands for a supply the AP did not
/// name.
enum class PowerSupply : std::int32_t {
  POE_UNCLASSIFIED = 0,
  POE_PLUS = 1,
  POE_PLUS_PLUS = 2,
  UNKNOWN = 3,
};

/// The supply named by the AP's text ("PoE/Unclassified", "PoE+", "PoE++", exactly); UNKNOWN for
/// any other text.
WLCCW_EXPORT PowerSupply power_supply_from_str(std::string_view text);
/// The text of the supply ("PoE/Unclassified", "PoE+", "PoE++"); "" for UNKNOWN and any other
/// value.
WLCCW_EXPORT std::string power_supply_to_str(PowerSupply supply);
