#include <wlccw/common/IpAddr.hpp>

#include <boost/json/value.hpp>
#include <boost/json/value_from.hpp>
#include <boost/json/value_to.hpp>

#include <cstdio>

namespace {

constexpr std::size_t kMaxLength = 15; // "255.255.255.255"

/// The common case read by hand: the whole text is four decimal numbers of one to three digits
/// joined by dots, none but a lone 0 starting with 0 (which "%hi" would read as octal). For such a
/// text the numbers are those "%hi.%hi.%hi.%hi" reads; any other text is left to that format.
bool read_plain_dotted(char const* text, short (&numbers)[4]) noexcept {
  char const* p = text;
  for (std::size_t i = 0; i < 4; ++i) {
    if (i != 0 && *p++ != '.') {
      return false;
    }
    if (*p < '0' || *p > '9' || (*p == '0' && p[1] >= '0' && p[1] <= '9')) {
      return false;
    }
    short value = 0;
    std::size_t digits = 0;
    for (; *p >= '0' && *p <= '9'; ++p, ++digits) {
      if (digits == 3) {
        return false;
      }
      value = static_cast<short>(value * 10 + (*p - '0'));
    }
    numbers[i] = value;
  }
  return *p == '\0';
}

/// Parses text into ip, which holds the default value; leaves it untouched when the text is
/// refused.
void parse(char const* text, IpAddr& ip) noexcept {
  if (text == nullptr) {
    return;
  }
  // One pass over at most kMaxLength + 1 characters: a longer text is refused whatever it holds.
  bool has_dot = false;
  std::size_t length = 0;
  for (; length <= kMaxLength && text[length] != '\0'; ++length) {
    if (text[length] == '-') {
      return;
    }
    if (text[length] == '.') {
      has_dot = true;
    }
  }
  if (length > kMaxLength || !has_dot) {
    return;
  }
  short numbers[4] = {};
  if (!read_plain_dotted(text, numbers) &&
      std::sscanf(text, "%hi.%hi.%hi.%hi", &numbers[0], &numbers[1], &numbers[2], &numbers[3]) !=
          4) {
    return;
  }
  for (short const n : numbers) {
    if (n > 255) {
      return;
    }
  }
  for (std::size_t i = 0; i < ip.octets.size(); ++i) {
    ip.octets[i] = static_cast<std::uint8_t>(static_cast<unsigned short>(numbers[i]) & 0xFFU);
  }
  ip.valid = true;
}

/// Writes the octets as "%u.%u.%u.%u" would, decimal numbers joined by dots, into out (at least
/// 15 characters); returns the length written. No terminating NUL.
std::size_t write_text(std::array<std::uint8_t, 4> const& octets, char* out) noexcept {
  char* o = out;
  for (std::size_t i = 0; i < octets.size(); ++i) {
    if (i != 0) {
      *o++ = '.';
    }
    unsigned const v = octets[i];
    if (v >= 100) {
      *o++ = static_cast<char>('0' + v / 100);
    }
    if (v >= 10) {
      *o++ = static_cast<char>('0' + v / 10 % 10);
    }
    *o++ = static_cast<char>('0' + v % 10);
  }
  return static_cast<std::size_t>(o - out);
}

} // namespace

IpAddr& IpAddr::operator=(char const* text) noexcept {
  *this = IpAddr{};
  parse(text, *this);
  return *this;
}

std::string IpAddr::str() const {
  char text[16];
  return std::string(text, write_text(octets, text));
}

void IpAddr::format(char (&out)[16]) const noexcept {
  out[write_text(octets, out)] = '\0';
}

void tag_invoke(boost::json::value_from_tag, boost::json::value& jv, IpAddr const& ip) {
  char text[16];
  std::size_t const length = write_text(ip.octets, text);
  jv.emplace_string().assign(text, length);
}

IpAddr tag_invoke(boost::json::value_to_tag<IpAddr>, boost::json::value const& jv) {
  IpAddr ip;
  if (boost::json::string const* text = jv.if_string()) {
    ip = text->c_str();
    return ip;
  }
  // Not a string: Boost.JSON's own string conversion raises its conversion error.
  std::string const text = boost::json::value_to<std::string>(jv);
  ip = text.c_str();
  return ip;
}
