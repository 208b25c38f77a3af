// The compact JSON text of strings and integers as the bundled tree backend writes it: shared by
// its serialiser and by the library's writers that produce the same text without building a tree,
// so that both give the same bytes.
//
// Strings escape only what JSON requires: the quote, the backslash and the control characters,
// with the short escapes JSON has (\b \f \n \r \t) and \u00xx with lower-case digits for the
// rest. Every other byte, multi-byte UTF-8 and 0x7f included, is written as it is. Integers are
// written in decimal by std::to_chars.
//
// An output is any type with `char* room(std::size_t n)` (at least n bytes writable at the end)
// and `void advance(std::size_t n)` (n of them written).
#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace wlccw::detail {

/// For each byte, 0 when it is written as it is, otherwise the letter of its short escape or 'u'.
inline constexpr std::array<char, 256> json_escape_table = [] {
  std::array<char, 256> t{};
  for (int ch = 0; ch < 0x20; ++ch) {
    t[static_cast<std::size_t>(ch)] = 'u';
  }
  t['"'] = '"';
  t['\\'] = '\\';
  t['\n'] = 'n';
  t['\r'] = 'r';
  t['\t'] = 't';
  t['\b'] = 'b';
  t['\f'] = 'f';
  return t;
}();

/// Whether any of the eight bytes of x needs an escape: a control character (below 0x20), a
/// quote or a backslash. Exact, with no false answer either way.
constexpr bool json_needs_escape(std::uint64_t x) noexcept {
  constexpr std::uint64_t ones = 0x0101010101010101ULL;
  constexpr std::uint64_t highs = 0x8080808080808080ULL;
  auto const has_zero = [](std::uint64_t v) { return ((v - ones) & ~v & highs) != 0; };
  bool const control = ((x - ones * 0x20U) & ~x & highs) != 0;
  return control || has_zero(x ^ (ones * '"')) || has_zero(x ^ (ones * '\\'));
}

/// Writes the n bytes at p as a JSON string, quotes included.
template <typename Out> void write_json_string(Out& out, char const* p, std::size_t n) {
  static constexpr char hex[] = "0123456789abcdef";
  // The common case, a text without anything to escape, costs one room check and one copy.
  char* base = out.room(n + 2);
  char* o = base;
  *o++ = '"';
  std::size_t done = 0;
  while (true) {
    std::size_t run = done;
    while (run + 8 <= n) {
      std::uint64_t eight;
      std::memcpy(&eight, p + run, sizeof eight);
      if (json_needs_escape(eight)) {
        break;
      }
      run += 8;
    }
    while (run < n && json_escape_table[static_cast<unsigned char>(p[run])] == 0) {
      ++run;
    }
    std::memcpy(o, p + done, run - done);
    o += run - done;
    done = run;
    if (done == n) {
      break;
    }
    // An escape is at most six characters for one byte: make room for it and the rest.
    out.advance(static_cast<std::size_t>(o - base));
    base = out.room(6 + (n - done - 1) + 1);
    o = base;
    auto const ch = static_cast<unsigned char>(p[done++]);
    char const esc = json_escape_table[ch];
    *o++ = '\\';
    if (esc != 'u') {
      *o++ = esc;
    } else {
      *o++ = 'u';
      *o++ = '0';
      *o++ = '0';
      *o++ = hex[ch >> 4U];
      *o++ = hex[ch & 0xFU];
    }
  }
  *o++ = '"';
  out.advance(static_cast<std::size_t>(o - base));
}

/// The decimal text of an integer; returns the number of characters written to buf.
template <typename T> std::size_t json_integer_text(char (&buf)[24], T value) noexcept {
  auto const r = std::to_chars(buf, buf + sizeof buf, value);
  return static_cast<std::size_t>(r.ptr - buf);
}

} // namespace wlccw::detail
