// HTML-safe decoding of a text the caller already owns.
#pragma once

#include <optional>
#include <string>

namespace wlccw::detail {

/// Replaces a present text by its decode_html_safe form, reusing the text's own buffer when it
/// holds no "&" (nothing to decode, only control bytes to replace). An empty optional stays empty.
void decode_html_safe_in_place(std::optional<std::string>& text);

} // namespace wlccw::detail
