// Address values from their texts, for building expected records in tests.
#pragma once

#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>

namespace wlccw::test {

/// The MAC address of a text, by MacAddr::from_str.
inline MacAddr mac(char const* text) {
  return MacAddr::from_str(text);
}

/// The IPv4 address of a text, by IpAddr's text assignment.
inline IpAddr ip(char const* text) {
  IpAddr address;
  address = text;
  return address;
}

} // namespace wlccw::test
