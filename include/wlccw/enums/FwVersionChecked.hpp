/// \file
/// The result of checking an access point's firmware version against the firmware
/// files the controller holds for its board type.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The result of checking an access point's firmware version against the firmware files the
/// controller holds for its board type. UNKNOWN is what any other text reads as.
enum class FwVersionChecked : std::int32_t {
  UNKNOWN_BOARD_TYPE,
  FW_INVALID_FILE_ABSENT,
  FW_INVALID_FILE_PRESENT,
  FW_SUPPORTED_FILE_PRESENT,
  FW_VALID,
  UNKNOWN,
};

/// The result named by the text ("UNKNOWN_BOARD_TYPE" ... "FW_VALID", "UNKNOWN", exactly, up to the
/// first NUL); UNKNOWN for any other text.
WLCCW_EXPORT FwVersionChecked FwVersionCheckedFromStrX(std::string_view text);
/// The name of the result; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* FwVersionCheckedToStrX(FwVersionChecked value);
