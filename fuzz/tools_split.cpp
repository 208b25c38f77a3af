// string_to_ints and string_to_macs on arbitrary text: the first byte is the delimiter, the rest
// the text. string_to_ints throws only the std::stoi errors and otherwise gives one number per
// piece; string_to_macs gives exactly the pieces MacAddr::from_str accepts, as valid addresses.
#include "fuzz_support.hpp"

#include <wlccw/common/MacAddr.hpp>
#include <wlccw/common/tools.hpp>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  char const delimiter = static_cast<char>(data[0]);
  std::string const text = wlccw::fuzz::to_string(data + 1, size - 1);
  std::vector<std::string> const pieces = tools::split_str(text, delimiter);

  std::vector<int> numbers;
  bool read = false;
  try {
    numbers = tools::string_to_ints(text, delimiter);
    read = true;
  } catch (std::invalid_argument const& error) {
    wlccw::fuzz::check_same(error.what(), "stoi");
  } catch (std::out_of_range const& error) {
    wlccw::fuzz::check_same(error.what(), "stoi");
  }
  if (read) {
    // Every piece was read, so std::stoi reads each of them too, to the same number.
    wlccw::fuzz::check(numbers.size() == pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      wlccw::fuzz::check(numbers[i] == std::stoi(pieces[i]));
    }
  }

  std::vector<MacAddr> const macs = tools::string_to_macs(text, delimiter);
  std::vector<MacAddr> expected;
  for (std::string const& piece : pieces) {
    MacAddr const mac = MacAddr::from_str(piece.data(), piece.size());
    if (mac.valid) {
      expected.push_back(mac);
    }
  }
  wlccw::fuzz::check(macs.size() == expected.size());
  for (std::size_t i = 0; i < macs.size(); ++i) {
    wlccw::fuzz::check(macs[i].valid && macs[i] == expected[i]);
  }
  return 0;
}
