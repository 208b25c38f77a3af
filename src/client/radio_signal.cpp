#include <wlccw/client/radio_signal.hpp>

#include <array>
#include <cstring>
#include <string>

namespace radio::signal {

std::vector<int> parse_numbered_parameters_from_netconf(lcw_data_t const* node, char const* name) {
  std::vector<int> values;
  if (name == nullptr) {
    return values;
  }
  // The names "name-1" to "name-8" differ in their last character only: they are built once, in a
  // buffer on the stack for the usual short names, and only that character changes.
  std::size_t const stem = std::strlen(name);
  std::array<char, 48> small{};
  std::string large;
  char* key = small.data();
  if (stem + 3 > small.size()) {
    large.resize(stem + 3);
    key = large.data();
  }
  std::memcpy(key, name, stem);
  key[stem] = '-';
  key[stem + 2] = '\0';
  for (int n = 1; n <= 8; ++n) {
    key[stem + 1] = static_cast<char>('0' + n);
    // One lookup per member: the member node is read as an int where it is one, else as 0.
    lcw_data_t const* const member = cfg_get_subtree(node, key);
    if (member == nullptr) {
      break; // a gap ends the numbered readings
    }
    if (values.empty()) {
      values.reserve(8); // one allocation for every antenna an AP can report
    }
    values.push_back(cfg_object_to_int_opt(member).value_or(0));
  }
  if (values.empty()) {
    if (lcw_data_t const* const member = cfg_get_subtree(node, name)) {
      values.push_back(cfg_object_to_int_opt(member).value_or(0));
    }
  }
  return values;
}

} // namespace radio::signal
