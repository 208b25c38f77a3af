// The VRRP role of this controller in a redundant pair.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string_view>

enum class VrrpRole : std::int32_t {
  NO_VRRP,
  MASTER,
  STANDBY,
  UNKNOWN,
};

/// The role named by the text ("NO_VRRP", "MASTER", "STANDBY", "UNKNOWN", exactly, up to the first
/// NUL); UNKNOWN for any other text.
WLCCW_EXPORT VrrpRole VrrpRoleFromStrX(std::string_view text);
/// The name of the role; "UNKNOWN" for UNKNOWN and any value past it. Never null; static storage.
WLCCW_EXPORT char const* VrrpRoleToStrX(VrrpRole value);
