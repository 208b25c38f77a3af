#include <wlccw/client/radio_signal.hpp>

#include <string>

namespace radio::signal {

std::vector<int> parse_numbered_parameters_from_netconf(lcw_data_t const* node, char const* name) {
  std::vector<int> values;
  if (name == nullptr) {
    return values;
  }
  std::string key(name);
  key += '-';
  std::size_t const stem = key.size();
  for (int n = 1; n <= 8; ++n) {
    key.resize(stem);
    key += static_cast<char>('0' + n);
    // One lookup per member: the member node is read as an int where it is one, else as 0.
    lcw_data_t const* const member = cfg_get_subtree(node, key.c_str());
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
