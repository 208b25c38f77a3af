// The IPC readers of a client record on arbitrary text: APClientData::from_json_str refuses only
// with its documented errors, and an accepted record's text read back and written again is the
// same text. The multi-link readers (IPC and NETCONF forms) of the parsed input likewise: what
// they read, written, reads back to the same text.
#include "fuzz_support.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/Mlo.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

/// The IPC text of multi-link data: a client object holding only its "mlo" member.
std::string mlo_text(Mlo const& mlo) {
  wlccw::cfg::Tree const object = wlccw::cfg::make_object();
  wlccw::fuzz::check(object != nullptr);
  mlo.to_json(*object);
  return wlccw::cfg::compact(object.get());
}

/// Written, read back and written again, the multi-link data gives the same text.
void check_mlo_round_trip(Mlo const& mlo) {
  std::string const first = mlo_text(mlo);
  wlccw::cfg::Tree const parsed = wlccw::cfg::parse(first);
  wlccw::fuzz::check(parsed != nullptr);
  std::optional<Mlo> const again = Mlo::from_json(*parsed);
  // Every stored link has a valid MAC address and a known band, so the data reads back.
  wlccw::fuzz::check(again.has_value());
  wlccw::fuzz::check_same(first, mlo_text(*again));
}

void check_client(std::string const& text) {
  std::optional<APClientData> client;
  try {
    client.emplace(APClientData::from_json_str(text));
  } catch (std::invalid_argument const& error) {
    if (!wlccw::fuzz::is_client_reader_error(error)) {
      throw;
    }
    return;
  }
  std::string const first = client->to_json_str();
  APClientData const again = APClientData::from_json_str(first);
  wlccw::fuzz::check_same(first, again.to_json_str());
  if (client->mlo) {
    check_mlo_round_trip(*client->mlo);
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);
  check_client(text);

  wlccw::cfg::Tree const tree = wlccw::cfg::parse(text);
  if (!tree) {
    return 0;
  }
  if (std::optional<Mlo> const mlo = Mlo::from_json(*tree)) {
    check_mlo_round_trip(*mlo);
  }
  if (std::optional<Mlo> const mlo = Mlo::from_netconf_json(*tree)) {
    wlccw::fuzz::check(!mlo->links.empty());
    check_mlo_round_trip(*mlo);
  }
  return 0;
}
