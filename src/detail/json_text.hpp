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

/// The largest text copy_short and short_needs_escape take.
inline constexpr std::size_t short_text_limit = 32;

/// Copies n bytes, n at most short_text_limit, in a few overlapping word moves instead of a call:
/// most names and values of the IPC texts, MAC addresses and rate texts included, are that short.
inline void copy_short(char* out, char const* p, std::size_t n) noexcept {
  auto const move8 = [](char* to, char const* from) {
    std::uint64_t v;
    std::memcpy(&v, from, 8);
    std::memcpy(to, &v, 8);
  };
  if (n >= 8) {
    move8(out, p);
    if (n > 16) {
      move8(out + 8, p + 8);
      if (n > 24) {
        move8(out + 16, p + 16);
      }
    }
    move8(out + n - 8, p + n - 8);
  } else if (n >= 4) {
    std::uint32_t head;
    std::uint32_t tail;
    std::memcpy(&head, p, 4);
    std::memcpy(&tail, p + n - 4, 4);
    std::memcpy(out, &head, 4);
    std::memcpy(out + n - 4, &tail, 4);
  } else {
    for (std::size_t i = 0; i < n; ++i) {
      out[i] = p[i];
    }
  }
}

/// Whether any of the n bytes at p, n at most short_text_limit, needs an escape; read in words.
inline bool short_needs_escape(char const* p, std::size_t n) noexcept {
  auto const load8 = [](char const* from) {
    std::uint64_t v;
    std::memcpy(&v, from, 8);
    return v;
  };
  if (n >= 8) {
    // The first and last words, and between them the words a longer text has: as copy_short.
    return json_needs_escape(load8(p)) || json_needs_escape(load8(p + n - 8)) ||
           (n > 16 && json_needs_escape(load8(p + 8))) ||
           (n > 24 && json_needs_escape(load8(p + 16)));
  }
  if (n >= 4) {
    std::uint32_t head;
    std::uint32_t tail;
    std::memcpy(&head, p, 4);
    std::memcpy(&tail, p + n - 4, 4);
    return json_needs_escape(head | (std::uint64_t{tail} << 32U));
  }
  for (std::size_t i = 0; i < n; ++i) {
    if (json_escape_table[static_cast<unsigned char>(p[i])] != 0) {
      return true;
    }
  }
  return false;
}

/// Writes the n bytes at p as a JSON string, quotes included.
template <typename Out> void write_json_string(Out& out, char const* p, std::size_t n) {
  static constexpr char hex[] = "0123456789abcdef";
  // The common case, a text without anything to escape, costs one room check and one copy.
  char* base = out.room(n + 2);
  char* o = base;
  *o++ = '"';
  if (n <= short_text_limit && !short_needs_escape(p, n)) {
    copy_short(o, p, n);
    o[n] = '"';
    out.advance(n + 2);
    return;
  }
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

/// Room enough for the decimal text of any integer of up to 64 bits.
inline constexpr std::size_t json_integer_room = 24;

/// The decimal text of an integer, written at out, which has json_integer_room bytes; returns the
/// number of characters written.
template <typename T> std::size_t json_integer_text(char* out, T value) noexcept {
  auto const r = std::to_chars(out, out + json_integer_room, value);
  return static_cast<std::size_t>(r.ptr - out);
}

} // namespace wlccw::detail
