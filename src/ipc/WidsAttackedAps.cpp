#include <wlccw/ipc/WidsAttackedAps.hpp>

#include <wlccw/common/containers.hpp>

#include <charconv>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace {

using AttackedAps = std::vector<std::pair<MacAddr, int>>;

constexpr std::string_view kAp = "ap ";
constexpr std::string_view kAtChannel = " at channel ";
constexpr std::size_t kMacLength = 17;
// "ap ", the address and " at channel ": the fixed part of a report before its digits.
constexpr std::size_t kFixedLength = kAp.size() + kMacLength + kAtChannel.size();

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

bool is_hex(char c) {
  return is_digit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Whether text holds six hexadecimal pairs joined by ":" at from (17 characters, which the caller
/// has checked are there).
bool is_colon_mac_at(std::string_view text, std::size_t from) {
  for (std::size_t i = 0; i < kMacLength; ++i) {
    char const c = text[from + i];
    if (i % 3 == 2 ? c != ':' : !is_hex(c)) {
      return false;
    }
  }
  return true;
}

/// The length of the report starting at from ("ap " at from is known), counted up to its last
/// digit; 0 when no report starts there.
std::size_t report_length_at(std::string_view text, std::size_t from) {
  if (text.size() - from <= kFixedLength) { // room for at least one digit
    return 0;
  }
  if (!is_colon_mac_at(text, from + kAp.size()) ||
      text.substr(from + kAp.size() + kMacLength, kAtChannel.size()) != kAtChannel) {
    return 0;
  }
  std::size_t end = from + kFixedLength;
  while (end < text.size() && is_digit(text[end])) {
    ++end;
  }
  return end == from + kFixedLength ? 0 : end - from;
}

/// The channel of a report: its digits converted as std::stoi converts them, so a number too large
/// for an int throws the same std::out_of_range.
int channel_of(std::string_view digits) {
  return std::stoi(std::string(digits));
}

/// Writes one pair into its object: "mac", then "channel" as a decimal string.
void write_pair(lcw_data_t& object, std::pair<MacAddr, int> const& pair) {
  char mac[18];
  pair.first.format(mac);
  cfg_set_param(&object, "mac", mac);
  char channel[16];
  std::to_chars_result const written =
      std::to_chars(channel, channel + sizeof channel - 1, pair.second);
  *written.ptr = '\0';
  cfg_set_param(&object, "channel", channel);
}

/// Reads one element; throws what std::stoi throws for its "channel" text.
std::optional<std::pair<MacAddr, int>> read_pair(lcw_data_t& element) {
  MacAddr const mac = MacAddr::from_str(cfg_get_param(&element, "mac"));
  int const channel = std::stoi(std::string(cfg_get_param(&element, "channel")));
  return std::pair<MacAddr, int>(mac, channel);
}

} // namespace

// The reports are found by hand rather than with a regular expression: one pass over the text,
// no allocation but the result and no recursion, whatever the length of the text.
std::vector<std::pair<MacAddr, int>> parse_attacked_aps(std::string text) {
  AttackedAps found;
  std::string_view const view(text);
  std::size_t from = 0;
  while ((from = view.find(kAp, from)) != std::string_view::npos) {
    std::size_t const length = report_length_at(view, from);
    if (length == 0) {
      ++from; // "ap " cannot overlap itself, so the next candidate starts later
      continue;
    }
    MacAddr const mac = MacAddr::from_str(view.data() + from + kAp.size(), kMacLength);
    found.emplace_back(mac, channel_of(view.substr(from + kFixedLength, length - kFixedLength)));
    from += length;
  }
  return found;
}

WidsAttackedAps WidsAttackedAps::netconf_deserialize(std::string const& text) {
  return WidsAttackedAps{parse_attacked_aps(text)};
}

WidsAttackedAps WidsAttackedAps::ipc_deserialize(std::string const& text) {
  std::optional<AttackedAps> read = cfg_deserialize_container<AttackedAps>(text, read_pair);
  if (!read) {
    return {};
  }
  return WidsAttackedAps{std::move(*read)};
}

std::string WidsAttackedAps::to_str() const {
  return cfg_serialize_container_to_array_compact<AttackedAps>(attacked_aps, write_pair);
}

std::string WidsAttackedAps::ipc_serialize() const {
  return to_str();
}
