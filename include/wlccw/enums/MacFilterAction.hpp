/// \file
/// An operation on a MAC address filter.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// An operation on a MAC address filter. UNKNOWN is what any other text reads as.
enum class MacFilterAction : std::int32_t {
  ENABLE,
  DISABLE,
  ADD,
  REMOVE,
  STATUS,
  SHOW,
  CLEAR,
  UNKNOWN,
};

/// The action named by the text ("enable" ... "clear", "UNKNOWN", exactly, up to the first NUL);
/// UNKNOWN for any other text.
WLCCW_EXPORT MacFilterAction MacFilterActionFromStrX(std::string_view text);
/// The name of the action; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* MacFilterActionToStrX(MacFilterAction value);
