/// \file
/// The EAP method a client authenticated with.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The EAP method a client authenticated with.
enum class ClientEapMethod : std::int32_t {
  EAP_MD5,
  EAP_OTP,
  EAP_GTC,
  EAP_TLS,
  EAP_LEAP,
  EAP_SIM,
  EAP_TTLS,
  EAP_AKA,
  EAP_PEAP,
  EAP_MSCHAPV2,
  EAP_TLV,
  EAP_TNC,
  EAP_FAST,
  EAP_PAX,
  EAP_PSK,
  EAP_SAKE,
  EAP_IKEV2,
  EAP_AKA_PRIME,
  EAP_GPSK,
  EAP_PWD,
  EAP_EKE,
  EAP_TEAP,
};

/// The method of an AP's NETCONF text ("EAP-MD5" ... "EAP-TEAP", exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientEapMethod>
client_eap_method_from_netconf_str(std::string_view text);
/// The method of an IPC text ("eap_md5" ... "eap_teap", exactly); empty for any other.
WLCCW_EXPORT std::optional<ClientEapMethod> client_eap_method_from_ipc_str(std::string_view text);
/// The IPC text of the method; empty for an empty argument or a value outside the table.
WLCCW_EXPORT std::optional<std::string>
convert_to_ipc_str(std::optional<ClientEapMethod> const& method);
