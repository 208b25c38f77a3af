/// \file
/// The EAP method a client banned by the intrusion detection used; the values are the EAP type
/// codes carried in EAP packets.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string>

/// The EAP method of a client banned by the intrusion detection, with its texts.
namespace WidsClientBannedEAPMethod {

/// An EAP method, valued by its EAP type code; NONE also stands for a code not in the table.
enum class Type : std::int32_t {
  NONE = 0,
  IDENTITY = 1,
  NOTIFICATION = 2,
  NAK = 3,
  MD5 = 4,
  OTP = 5,
  GTC = 6,
  TLS = 13,
  LEAP = 17,
  SIM = 18,
  TTLS = 21,
  AKA = 23,
  PEAP = 25,
  MSCHAPV2 = 26,
  TLV = 33,
  TNC = 38,
  FAST = 43,
  PAX = 46,
  PSK = 47,
  SAKE = 48,
  IKEV2 = 49,
  AKA_PRIME = 50,
  GPSK = 51,
  PWD = 52,
  EKE = 53,
  TEAP = 55,
  EXPANDED = 254,
};

/// The method of the EAP type code an AP reports: a code of the table gives the same value; any
/// other code gives NONE.
WLCCW_EXPORT Type netconf_deserialize(unsigned int code);
/// The method of an IPC text ("none", "md5", ... "expanded", exactly); NONE for any other text.
WLCCW_EXPORT Type ipc_deserialize(std::string const& text);
/// The text of the method; "" for a number that is not in the table.
WLCCW_EXPORT std::string to_str(Type method);
/// The IPC text of the method: the same as to_str.
WLCCW_EXPORT std::string ipc_serialize(Type method);

} // namespace WidsClientBannedEAPMethod
