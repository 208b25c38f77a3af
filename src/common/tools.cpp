#include <wlccw/common/tools.hpp>

#include <arpa/inet.h>
#include <sys/socket.h>

#include <cstdio>
#include <ctime>
#include <limits>
#include <string_view>

namespace {

/// Calls take(piece) for every piece of text between delimiters, exactly as repeated
/// std::getline(stream, piece, delimiter) on a string stream over the text yields them: getline
/// fails only when it reaches the end without taking a character, so a trailing delimiter and the
/// empty text add no piece, while empty pieces before a delimiter are kept.
template <typename Take> void for_each_piece(std::string_view text, char delimiter, Take&& take) {
  std::size_t pos = 0;
  while (pos < text.size()) {
    std::size_t const end = text.find(delimiter, pos);
    if (end == std::string_view::npos) {
      take(text.substr(pos));
      return;
    }
    take(text.substr(pos, end - pos));
    pos = end + 1;
  }
}

} // namespace

namespace tools {

std::vector<std::string> split_str(std::string const& text, char delimiter) {
  std::vector<std::string> pieces;
  for_each_piece(text, delimiter, [&](std::string_view piece) { pieces.emplace_back(piece); });
  return pieces;
}

std::vector<int> string_to_ints(std::string const& text, char delimiter) {
  std::vector<int> values;
  std::string piece; // one buffer for every piece; std::stoi needs a terminated string
  for_each_piece(text, delimiter, [&](std::string_view p) {
    piece.assign(p);
    values.push_back(std::stoi(piece));
  });
  return values;
}

std::vector<MacAddr> string_to_macs(std::string const& text, char delimiter) {
  std::vector<MacAddr> macs;
  for_each_piece(text, delimiter, [&](std::string_view piece) {
    MacAddr mac = MacAddr::from_str(piece.data(), piece.size());
    if (mac.valid) {
      macs.push_back(mac);
    }
  });
  return macs;
}

std::string to_str_at_time_zone(long time, long offset) {
  if (time == 0) {
    return {};
  }
  if constexpr (std::numeric_limits<std::time_t>::max() < std::numeric_limits<long>::max()) {
    if (time < std::numeric_limits<std::time_t>::min() ||
        time > std::numeric_limits<std::time_t>::max()) {
      return {};
    }
  }
  std::time_t const t = static_cast<std::time_t>(time);
  std::tm fields{};
  if (gmtime_r(&t, &fields) == nullptr) {
    return {};
  }
  // The magnitude of the offset in unsigned arithmetic, so that the most negative long has one.
  unsigned long const magnitude =
      offset < 0 ? 0UL - static_cast<unsigned long>(offset) : static_cast<unsigned long>(offset);
  unsigned long const minutes_total = magnitude / 60;
  // tm_year may be as large as int allows; the year is formed in a wider type.
  long long const year = static_cast<long long>(fields.tm_year) + 1900;
  char buffer[96];
  int const length =
      std::snprintf(buffer, sizeof buffer, "%lld-%02d-%02dT%02d:%02d:%02d%c%02lu:%02lu", year,
                    fields.tm_mon + 1, fields.tm_mday, fields.tm_hour, fields.tm_min, fields.tm_sec,
                    offset < 0 ? '-' : '+', minutes_total / 60, minutes_total % 60);
  if (length < 0 || static_cast<std::size_t>(length) >= sizeof buffer) {
    return {};
  }
  return std::string(buffer, static_cast<std::size_t>(length));
}

std::string uint32_to_ipv4_str(unsigned int address) {
  static_assert(sizeof address == 4, "an IPv4 address is four bytes");
  char buffer[32] = {};
  if (inet_ntop(AF_INET, &address, buffer, sizeof buffer) == nullptr) {
    return {};
  }
  return buffer;
}

} // namespace tools
