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
    if (cfg_contain_param(node, key.c_str()) == 0) {
      break; // a gap ends the numbered readings
    }
    values.push_back(cfg_get_int_param(node, key.c_str()));
  }
  if (values.empty() && cfg_contain_param(node, name) != 0) {
    values.push_back(cfg_get_int_param(node, name));
  }
  return values;
}

} // namespace radio::signal
