// decode_html_safe on arbitrary bytes: the result holds no control byte, and the three overloads
// agree.
#include "fuzz_support.hpp"

#include <wlccw/common/html.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace {

bool has_control_byte(std::string const& text) {
  for (char const c : text) {
    auto const byte = static_cast<unsigned char>(c);
    if (byte < 0x20U || byte == 0x7FU) {
      return true;
    }
  }
  return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);

  std::string const decoded = external_data::ap::decode_html_safe(std::string_view(text));
  wlccw::fuzz::check(!has_control_byte(decoded));
  // An escape of one or two digits takes at least four characters and yields one byte, so the
  // result is never longer than the text.
  wlccw::fuzz::check(decoded.size() <= text.size());

  // Without an escape, only the control bytes change: each becomes ".".
  if (text.find('&') == std::string::npos) {
    std::string expected = text;
    for (char& c : expected) {
      auto const byte = static_cast<unsigned char>(c);
      if (byte < 0x20U || byte == 0x7FU) {
        c = '.';
      }
    }
    wlccw::fuzz::check_same(decoded, expected);
  }

  // The NUL-terminated overload reads the text up to its first NUL.
  std::string const prefix(text.c_str());
  wlccw::fuzz::check_same(external_data::ap::decode_html_safe(text.c_str()),
                          external_data::ap::decode_html_safe(std::string_view(prefix)));

  std::optional<std::string> const cleaned =
      external_data::ap::decode_html_safe_opt(std::optional<std::string>(text));
  wlccw::fuzz::check(cleaned.has_value());
  wlccw::fuzz::check_same(*cleaned, decoded);
  return 0;
}
