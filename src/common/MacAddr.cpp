#include <wlccw/common/MacAddr.hpp>

#include "detail/hex.hpp"

#include <boost/json/value.hpp>
#include <boost/json/value_from.hpp>
#include <boost/json/value_to.hpp>

#include <cstring>

namespace {

constexpr unsigned long kColonLength = 17; // "aa:bb:cc:dd:ee:ff"
constexpr unsigned long kBareLength = 12;  // "aabbccddeeff"

using wlccw::detail::hex_value;

/// Writes the 17-character text form (no terminator) into out.
void write_text(std::array<unsigned char, 6> const& bytes, char* out) noexcept {
  static constexpr char digits[] = "0123456789abcdef";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i > 0) {
      *out++ = ':';
    }
    *out++ = digits[bytes[i] >> 4U];
    *out++ = digits[bytes[i] & 0x0FU];
  }
}

} // namespace

MacAddr MacAddr::from_str(char const* text) noexcept {
  if (text == nullptr) {
    return MacAddr{};
  }
  return from_str(text, std::strlen(text));
}

MacAddr MacAddr::from_str(char const* text, unsigned long length) noexcept {
  MacAddr result;
  if (text == nullptr || (length != kColonLength && length != kBareLength)) {
    return result;
  }
  bool const colons = length == kColonLength;
  // The octets are collected aside, so a failure part way leaves the result all zero.
  std::array<unsigned char, 6> octets{};
  char const* p = text;
  for (std::size_t i = 0; i < octets.size(); ++i) {
    if (colons && i > 0) {
      if (*p != ':') {
        return result;
      }
      ++p;
    }
    int const high = hex_value(p[0]);
    if (high < 0) {
      return result;
    }
    int const low = hex_value(p[1]);
    if (low < 0) {
      return result;
    }
    octets[i] = static_cast<unsigned char>((high << 4) | low);
    p += 2;
  }
  result.bytes = octets;
  result.valid = true;
  return result;
}

std::string MacAddr::str() const {
  char text[kColonLength];
  write_text(bytes, text);
  return std::string(text, kColonLength);
}

void MacAddr::format(char (&out)[18]) const noexcept {
  write_text(bytes, out);
  out[kColonLength] = '\0';
}

void tag_invoke(boost::json::value_from_tag, boost::json::value& jv, MacAddr const& mac) {
  char text[kColonLength];
  write_text(mac.bytes, text);
  jv.emplace_string().assign(text, kColonLength);
}

MacAddr tag_invoke(boost::json::value_to_tag<MacAddr>, boost::json::value const& jv) {
  if (boost::json::string const* text = jv.if_string()) {
    return MacAddr::from_str(text->data(), text->size());
  }
  // Not a string: Boost.JSON's own string conversion raises its conversion error.
  std::string const text = boost::json::value_to<std::string>(jv);
  return MacAddr::from_str(text.data(), text.size());
}
