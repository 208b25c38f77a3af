/// \file
/// Why the intrusion detection classified an access point as rogue.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>

/// Why the intrusion detection classified an access point as rogue, with its texts.
namespace WidsDetectedRogueReason {

/// The reason an access point was classified as rogue.
enum class Reason : std::int32_t {
  FAKE_SSID_ROGUE = 0,
  FAKE_MAC_ROGUE = 1,
  UNSPECIFIED = 2,
  RESERVED = 3,
};

/// The reason of an AP's text ("fake-ssid-rogue", "fake-mac-rogue", "unspecified", "reserved",
/// exactly); empty for any other text.
WLCCW_EXPORT std::optional<Reason> netconf_deserialize(std::string const& text);
/// The reason of an IPC text: the same texts and result as netconf_deserialize.
WLCCW_EXPORT std::optional<Reason> ipc_deserialize(std::string const& text);
/// The text of the reason; "" for a value outside the table.
WLCCW_EXPORT std::string to_str(Reason reason);
/// The IPC text of the reason: the same as to_str.
WLCCW_EXPORT std::string ipc_serialize(Reason reason);

} // namespace WidsDetectedRogueReason
