/// \file
/// Making free text that an access point reports in its NETCONF replies safe for display.
#pragma once

#include <wlccw/export.hpp>

#include <optional>
#include <string>
#include <string_view>

/// Cleaning of texts that come from access points.
namespace external_data::ap {

/// Decodes the byte escapes `&#xH;` and `&#xHH;` (one or two hexadecimal digits, either case)
/// into the byte they name and then replaces every control byte (0x00 to 0x1F and 0x7F) with ".",
/// so an escaped control byte becomes "." too. Everything else, bytes from 0x80 up included, is
/// kept; a malformed escape (no digit, three digits, no ";") is kept as text. The result is never
/// longer than the text.
WLCCW_EXPORT std::string decode_html_safe(std::string_view text);

/// decode_html_safe() of a NUL-terminated text; the empty text for a null pointer.
WLCCW_EXPORT std::string decode_html_safe(char const* text);

/// An empty optional stays empty; otherwise the text cleaned by decode_html_safe().
WLCCW_EXPORT std::optional<std::string>
decode_html_safe_opt(std::optional<std::string> const& text);

} // namespace external_data::ap
