// Small helpers shared by the fuzz targets: the fuzzer's bytes as the text a reader takes, and the
// check that reports a finding.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

namespace wlccw::fuzz {

/// The input bytes as a std::string; embedded NUL bytes are kept. A std::string is always
/// NUL-terminated, so c_str() serves readers of char const* (which see the text up to the first
/// NUL).
inline std::string to_string(std::uint8_t const* data, std::size_t size) {
  if (size == 0) {
    return {};
  }
  return std::string(reinterpret_cast<char const*>(data), size);
}

/// Reports a finding (libFuzzer records the input) unless the condition holds.
inline void check(bool condition) {
  if (!condition) {
    std::abort();
  }
}

/// Reports a finding unless the two texts are equal.
inline void check_same(std::string const& first, std::string const& second) {
  check(first == second);
}

/// Whether an exception from an APClientData reader is one the reader documents: a null or empty
/// node, or one of the three identity errors of the record's constructor.
inline bool is_client_reader_error(std::invalid_argument const& error) {
  std::string_view const what = error.what();
  return what == "JSON pointer is null" || what == "JSON data is empty" ||
         what == "parameter 'mac' is not valid" || what == "parameter 'interface' is empty" ||
         what == "parameter 'ssid' is empty";
}

} // namespace wlccw::fuzz
