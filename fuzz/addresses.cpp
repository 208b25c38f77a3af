// The MAC address parsers (NUL-terminated and counted text) and the IPv4 text assignment: a text
// either gives the default value or a valid address whose text form reads back as the same
// address.
#include "fuzz_support.hpp"

#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

void check_mac(MacAddr const& mac, std::size_t length) {
  if (!mac.valid) {
    // A refused text gives the default value.
    wlccw::fuzz::check(mac == MacAddr{});
    return;
  }
  // Only the two text forms are accepted.
  wlccw::fuzz::check(length == 12 || length == 17);
  std::string const text = mac.str();
  wlccw::fuzz::check(text.size() == 17);
  MacAddr const again = MacAddr::from_str(text.c_str());
  wlccw::fuzz::check(again.valid && again == mac);
  MacAddr const counted = MacAddr::from_str(text.data(), text.size());
  wlccw::fuzz::check(counted.valid && counted == mac);
  char formatted[18];
  mac.format(formatted);
  wlccw::fuzz::check_same(std::string(formatted), text);
}

void check_ip(std::string const& input) {
  IpAddr ip;
  ip = input.c_str();
  if (!ip.valid) {
    wlccw::fuzz::check(ip == IpAddr{});
    return;
  }
  // An accepted text is at most 15 characters, holds a "." and no "-".
  std::string const accepted(input.c_str());
  wlccw::fuzz::check(accepted.size() <= 15);
  wlccw::fuzz::check(accepted.find('.') != std::string::npos);
  wlccw::fuzz::check(accepted.find('-') == std::string::npos);
  std::string const text = ip.str();
  IpAddr again;
  again = text.c_str();
  wlccw::fuzz::check(again.valid && again == ip);
  wlccw::fuzz::check_same(again.str(), text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);

  MacAddr const terminated = MacAddr::from_str(text.c_str());
  check_mac(terminated, std::strlen(text.c_str()));
  MacAddr const counted = MacAddr::from_str(text.data(), text.size());
  check_mac(counted, text.size());
  // Without an embedded NUL both overloads read the same characters.
  if (text.find('\0') == std::string::npos) {
    wlccw::fuzz::check(terminated.valid == counted.valid && terminated == counted);
  }

  check_ip(text);
  return 0;
}
