// The generic dictionary behind every enumeration: rows of (text, value) in, exact lookups out.
//
// A dictionary is an open-addressing hash table built from its rows at compile time, so it exists
// before any code of the process runs, is never written afterwards and may be read from any number
// of threads. A lookup hashes the exact bytes of the text (its length and at most sixteen of its
// bytes), probes a few slots and compares the one candidate of the same length byte for byte: no
// allocation, no case folding, no trimming.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace wlccw::detail {

/// One row of a dictionary: a text and the value it stands for.
template <typename V> using Row = std::pair<std::string_view, V>;

/// The hash of a text: its length, its first eight and its last eight bytes, mixed. Texts that
/// differ only in their middle collide, which costs a probe, never a wrong answer.
constexpr std::uint64_t text_hash(std::string_view text) noexcept {
  auto load = [&text](std::size_t from, std::size_t count) {
    std::uint64_t v = 0;
    for (std::size_t i = 0; i < count; ++i) {
      v |= std::uint64_t{static_cast<unsigned char>(text[from + i])} << (8U * i);
    }
    return v;
  };
  std::size_t const n = text.size();
  std::size_t const head = n < 8 ? n : 8;
  std::uint64_t h = load(0, head) * 0x9E3779B97F4A7C15ULL;
  h ^= (n > 8 ? load(n - 8, 8) : 0) * 0xC2B2AE3D27D4EB4FULL;
  h ^= n * 0x165667B19E3779F9ULL;
  h ^= h >> 29U;
  h *= 0xBF58476D1CE4E5B9ULL;
  h ^= h >> 32U;
  return h;
}

/// The number of slots for n rows: a power of two, at least twice n, so probes stay short.
constexpr std::size_t dictionary_slots(std::size_t rows) noexcept {
  std::size_t slots = 4;
  while (slots < rows * 2) {
    slots *= 2;
  }
  return slots;
}

template <typename V, std::size_t Slots> class Dictionary {
  static_assert((Slots & (Slots - 1)) == 0, "the slot count is a power of two");

public:
  /// Builds the table from rows; of rows with the same text, the first one stays.
  template <std::size_t N>
  constexpr explicit Dictionary(std::array<Row<V>, N> const& rows) : slots_{}, used_{} {
    static_assert(N * 2 <= Slots, "a dictionary keeps half of its slots free");
    for (Row<V> const& row : rows) {
      std::size_t i = index(row.first);
      while (used_[i] && slots_[i].first != row.first) {
        i = (i + 1) & (Slots - 1);
      }
      if (!used_[i]) {
        slots_[i] = row;
        used_[i] = true;
      }
    }
  }

  /// The value of the row whose text equals text exactly; empty when there is none.
  constexpr std::optional<V> find(std::string_view text) const noexcept {
    for (std::size_t i = index(text); used_[i]; i = (i + 1) & (Slots - 1)) {
      if (slots_[i].first == text) {
        return slots_[i].second;
      }
    }
    return std::nullopt;
  }

private:
  static constexpr std::size_t index(std::string_view text) noexcept {
    return static_cast<std::size_t>(text_hash(text)) & (Slots - 1);
  }

  std::array<Row<V>, Slots> slots_;
  std::array<bool, Slots> used_;
};

/// A dictionary of the given rows, built at compile time.
template <typename V, std::size_t N>
constexpr Dictionary<V, dictionary_slots(N)> make_dictionary(std::array<Row<V>, N> const& rows) {
  return Dictionary<V, dictionary_slots(N)>(rows);
}

/// Whether rows list the values 0, 1, 2, ... in order, so a value is the index of its row.
template <typename V, std::size_t N>
constexpr bool rows_in_value_order(std::array<Row<V>, N> const& rows) noexcept {
  for (std::size_t i = 0; i < N; ++i) {
    if (static_cast<std::size_t>(rows[i].second) != i) {
      return false;
    }
  }
  return true;
}

/// The text of a value whose row is at the index of the value; empty for any value past the rows
/// (compared as unsigned, so a value cast from a negative number is past them too).
template <typename V, std::size_t N>
constexpr std::optional<std::string_view> text_of(std::array<Row<V>, N> const& rows,
                                                  V value) noexcept {
  auto const index = static_cast<std::uint64_t>(static_cast<std::uint32_t>(value));
  if (index >= N) {
    return std::nullopt;
  }
  return rows[index].first;
}

/// The text of a value as a string; "" for a value past the rows.
template <typename V, std::size_t N>
std::string text_or_empty(std::array<Row<V>, N> const& rows, V value) {
  return std::string(text_of(rows, value).value_or(""));
}

/// The text of an optional value, viewed in the rows; empty for no value or a value past the rows.
template <typename V, std::size_t N>
constexpr std::optional<std::string_view>
optional_text_view(std::array<Row<V>, N> const& rows, std::optional<V> const& value) noexcept {
  if (!value) {
    return std::nullopt;
  }
  return text_of(rows, *value);
}

/// The text of an optional value as an optional string; empty for no value or a value past the
/// rows.
template <typename V, std::size_t N>
std::optional<std::string> optional_text(std::array<Row<V>, N> const& rows,
                                         std::optional<V> const& value) {
  std::optional<std::string_view> const text = optional_text_view(rows, value);
  if (!text) {
    return std::nullopt;
  }
  return std::string(*text);
}

} // namespace wlccw::detail
