/// \file
/// The security class of the WLAN on which the intrusion detection banned a client.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string>

/// The security class of the WLAN on which the intrusion detection banned a client, with its texts.
namespace WidsClientBannedAuthMethod {

/// The security class; the values are the numbers an AP reports.
enum class Type : std::int32_t {
  OPEN = 0,
  PERSONAL = 1,
  ENTERPRISE = 2,
  OWE = 3,
};

/// The class of the number an AP reports: 1, 2 and 3 give the same value; any other number
/// (0 included) gives OPEN.
WLCCW_EXPORT Type netconf_deserialize(unsigned int code);
/// The class of an IPC text ("open", "personal", "enterprise", "owe", exactly); OPEN for any other.
WLCCW_EXPORT Type ipc_deserialize(std::string const& text);
/// The text of the class; "" for a value outside the table.
WLCCW_EXPORT std::string to_str(Type type);
/// The IPC text of the class: the same as to_str.
WLCCW_EXPORT std::string ipc_serialize(Type type);

} // namespace WidsClientBannedAuthMethod
