// Fuzzes the readers of the APs under denial-of-service attack: the scan of an AP's free text
// (parse_attacked_aps, WidsAttackedAps::netconf_deserialize) and the IPC array reader. The only
// exceptions allowed are those of std::stoi that the readers pass on: std::out_of_range from the
// text scan, std::invalid_argument and std::out_of_range from the IPC reader. What is read,
// written as IPC text and read back, gives the same text again.
#include "fuzz_support.hpp"

#include <wlccw/ipc/WidsAttackedAps.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

using wlccw::fuzz::check;
using wlccw::fuzz::check_same;

/// The record's IPC text read back gives the same text and an equal record (addresses compare by
/// their octets, so a default address equals the all-zero one it is read back as).
void ipc_round_trip(WidsAttackedAps const& record) {
  std::string const text = record.to_str();
  check_same(record.ipc_serialize(), text);
  WidsAttackedAps const again = WidsAttackedAps::ipc_deserialize(text);
  check_same(again.to_str(), text);
  check(again == record);
}

/// The reports of the text scan, written again as one report per line, scan to the same list.
void text_round_trip(WidsAttackedAps const& record) {
  std::string text;
  for (auto const& [mac, channel] : record.attacked_aps) {
    check(mac.valid);
    check(channel >= 0);
    char address[18];
    mac.format(address);
    text += "ap ";
    text += address;
    text += " at channel ";
    text += std::to_string(channel);
    text += '\n';
  }
  check(WidsAttackedAps::netconf_deserialize(text) == record);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);

  std::optional<WidsAttackedAps> scanned;
  try {
    scanned = WidsAttackedAps::netconf_deserialize(text);
  } catch (std::out_of_range const&) {
    // A channel too large for an int, as std::stoi reports it.
  }
  if (scanned) {
    // Checked outside the handler, so that an exception of the round trips is not taken for the
    // scan's own.
    check(parse_attacked_aps(text) == scanned->attacked_aps);
    text_round_trip(*scanned);
    ipc_round_trip(*scanned);
  }

  std::optional<WidsAttackedAps> read;
  try {
    read = WidsAttackedAps::ipc_deserialize(text);
  } catch (std::invalid_argument const&) {
    // A missing or non-numeric channel, or an element that is not an object.
  } catch (std::out_of_range const&) {
    // A channel too large for an int.
  }
  if (read) {
    ipc_round_trip(*read);
  }
  return 0;
}
