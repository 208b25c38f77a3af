/// \file
/// The result code of a standalone access point's certificate request.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The result code of a standalone access point's certificate request. UNKNOWN is what any other
/// text reads as.
enum class SaCertErrorCodes : std::int32_t {
  SUCCESS,
  CLIENT_ERROR,
  GEN_AP_CERT_ERROR,
  UNKNOWN,
};

/// The outcome named by the text ("SUCCESS", "CLIENT_ERROR", "GEN_AP_CERT_ERROR", "UNKNOWN",
/// exactly, up to the first NUL); UNKNOWN for any other text.
WLCCW_EXPORT SaCertErrorCodes SaCertErrorCodesFromStrX(std::string_view text);
/// The name of the outcome; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative
/// ones included. Never null; static storage.
WLCCW_EXPORT char const* SaCertErrorCodesToStrX(SaCertErrorCodes value);
