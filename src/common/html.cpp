#include <wlccw/common/html.hpp>

#include "detail/hex.hpp"
#include "detail/html.hpp"

#include <string>
#include <string_view>
#include <utility>

namespace wlccw::detail {
namespace {

/// First step of the cleaner: copies the text, except that a byte escape "&#x" + one or two
/// hexadecimal digits + ";" becomes the one byte it names. An escape is only looked for where at
/// least five characters remain. Anything else starting with "&#x" (no digit, no ";" right after
/// the digits, a third digit, the end of the text) keeps its "&" as text and scanning goes on from
/// the next character. The result is never longer than the text.
std::string decode_html_bytes(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  std::size_t const size = text.size();
  std::size_t i = 0;
  while (i < size) {
    // Everything up to the next "&" is copied as it stands.
    std::size_t const amp = text.find('&', i);
    if (amp == std::string_view::npos) {
      out.append(text.substr(i));
      break;
    }
    out.append(text.substr(i, amp - i));
    i = amp;
    if (size - i >= 5 && text[i + 1] == '#' && text[i + 2] == 'x') {
      int value = 0;
      std::size_t digits_end = i + 3;
      while (digits_end < i + 5) {
        int const digit = hex_value(text[digits_end]);
        if (digit < 0) {
          break;
        }
        value = value * 16 + digit; // two digits at most: 255 at most
        ++digits_end;
      }
      if (digits_end > i + 3 && digits_end < size && text[digits_end] == ';') {
        out.push_back(static_cast<char>(static_cast<unsigned char>(value)));
        i = digits_end + 1;
        continue;
      }
    }
    out.push_back(text[i]);
    ++i;
  }
  return out;
}

/// Second step of the cleaner, in place: the control bytes 0x00 to 0x1F and 0x7F become "."; every
/// other byte, 0x80 and up included (multi-byte UTF-8), stays.
std::string replace_control_characters(std::string&& text) {
  for (char& byte : text) {
    auto const u = static_cast<unsigned char>(byte);
    if (u < 0x20 || u == 0x7F) {
      byte = '.';
    }
  }
  return std::move(text);
}

} // namespace

void decode_html_safe_in_place(std::optional<std::string>& text) {
  if (!text) {
    return;
  }
  if (text->find('&') == std::string::npos) {
    *text = replace_control_characters(std::move(*text));
  } else {
    *text = replace_control_characters(decode_html_bytes(*text));
  }
}

} // namespace wlccw::detail

namespace external_data::ap {

std::string decode_html_safe(std::string_view text) {
  // Decoding runs first, so an escaped control byte (such as "&#x0a;") ends up as "." too. The
  // second step works in the first one's buffer: one allocation in all.
  return wlccw::detail::replace_control_characters(wlccw::detail::decode_html_bytes(text));
}

std::string decode_html_safe(char const* text) {
  if (text == nullptr) {
    return {};
  }
  return decode_html_safe(std::string_view(text));
}

std::optional<std::string> decode_html_safe_opt(std::optional<std::string> const& text) {
  if (!text) {
    return std::nullopt;
  }
  return decode_html_safe(std::string_view(*text));
}

} // namespace external_data::ap
