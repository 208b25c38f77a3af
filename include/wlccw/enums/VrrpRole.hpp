/// \file
/// The VRRP role of this controller in a redundant pair.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

/// The VRRP role of this controller: no redundancy (NO_VRRP), MASTER or STANDBY. UNKNOWN is what
/// any other text reads as.
enum class VrrpRole : std::int32_t {
  NO_VRRP,
  MASTER,
  STANDBY,
  UNKNOWN,
};

/// The role named by the text ("NO_VRRP", "MASTER", "STANDBY", "UNKNOWN", exactly, up to the first
/// NUL); UNKNOWN for any other text.
WLCCW_EXPORT VrrpRole VrrpRoleFromStrX(std::string_view text);
/// The name of the role; "UNKNOWN" for UNKNOWN and any value outside the enumeration, negative ones
/// included. Never null; static storage.
WLCCW_EXPORT char const* VrrpRoleToStrX(VrrpRole value);
