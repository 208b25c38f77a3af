// Hexadecimal digits, shared by the parsers of MAC addresses and of NETCONF byte escapes.
#pragma once

namespace wlccw::detail {

/// The value of one hexadecimal digit of either case, or -1 for any other character.
constexpr int hex_value(char c) noexcept {
  if (c >= '0' && c <= '9') {
    return c - '0';
  }
  if (c >= 'a' && c <= 'f') {
    return c - 'a' + 10;
  }
  if (c >= 'A' && c <= 'F') {
    return c - 'A' + 10;
  }
  return -1;
}

} // namespace wlccw::detail
