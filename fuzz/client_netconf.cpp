// APClientData::from_netconf_json on the parsed input: it refuses a record only with the
// documented identity errors; an accepted record's IPC text, read back and written again, is the
// same text.
#include "fuzz_support.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);
  // Text that is not JSON gives a null node, which the reader refuses too.
  wlccw::cfg::Tree const tree = wlccw::cfg::parse(text);

  std::optional<APClientData> client;
  try {
    client.emplace(APClientData::from_netconf_json(tree.get()));
  } catch (std::invalid_argument const& error) {
    if (!wlccw::fuzz::is_client_reader_error(error)) {
      throw;
    }
    return 0;
  }
  wlccw::fuzz::check(tree != nullptr);

  std::string const first = client->to_json_str();
  APClientData const again = APClientData::from_json_str(first);
  std::string const second = again.to_json_str();
  wlccw::fuzz::check_same(first, second);
  return 0;
}
