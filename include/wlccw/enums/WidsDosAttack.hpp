/// \file
/// The kind of denial-of-service attack the intrusion detection reports.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string>

/// The kind of denial-of-service attack the intrusion detection reports, with its texts.
namespace WidsDosAttack {

/// The kind of attack; UNKNOWN (text "unknown") is also what any other text reads as.
enum class Type : std::int32_t {
  MANY_PACKETS_OVER_PERIOD = 0,
  PACKETS_LEAP_TOO_BIG = 1,
  UNKNOWN = 2,
};

/// The attack of an AP's text ("many-packets-over-period", "packets-leap-too-big", "unknown",
/// exactly); UNKNOWN for any other text.
WLCCW_EXPORT Type netconf_deserialize(std::string const& text);
/// The attack of an IPC text: the same texts and fallback as netconf_deserialize.
WLCCW_EXPORT Type ipc_deserialize(std::string const& text);
/// The IPC text of the attack; "" for a value outside the table.
WLCCW_EXPORT std::string ipc_serialize(Type type);

} // namespace WidsDosAttack
