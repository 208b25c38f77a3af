// cfg_parse_buffer on arbitrary text: whatever it accepts is written compactly, the compact text
// is parsed again, and writing that tree gives the same compact text.
#include "fuzz_support.hpp"

#include <wlccw/cfg/owned.hpp>

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);
  wlccw::cfg::Tree const first = wlccw::cfg::parse(text);
  if (!first) {
    return 0;
  }
  std::string const first_text = wlccw::cfg::compact(first.get());
  wlccw::cfg::Tree const second = wlccw::cfg::parse(first_text);
  // The compact text of an accepted tree is one whole JSON text itself.
  wlccw::fuzz::check(second != nullptr);
  std::string const second_text = wlccw::cfg::compact(second.get());
  wlccw::fuzz::check_same(first_text, second_text);
  // Writing the same tree twice gives the same text.
  wlccw::fuzz::check_same(first_text, wlccw::cfg::compact(first.get()));
  return 0;
}
