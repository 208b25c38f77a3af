// Bad input texts built from a good one: changed in case, padded with blanks, with hyphens and
// underscores swapped, cut short, lengthened, or holding a NUL byte. Tests of text parsers feed
// them to a parser that must read the whole text exactly and check its fallback.
#pragma once

#include <algorithm>
#include <cctype>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace wlccw::test {

/// The text with every letter upper-cased ("eap_md5" -> "EAP_MD5").
inline std::string upper(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  return out;
}

/// The text with every letter lower-cased ("Upgrading FW" -> "upgrading fw").
inline std::string lower(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return out;
}

/// The text with its first character upper-cased ("owe" -> "Owe"); the empty text stays empty.
inline std::string capitalised(std::string_view text) {
  std::string out(text);
  if (!out.empty()) {
    out[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(out[0])));
  }
  return out;
}

/// The case of the first letter flipped ("eap_md5" -> "Eap_md5", "Open" -> "open").
inline std::string first_letter_flipped(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    auto const u = static_cast<unsigned char>(c);
    if (std::isalpha(u) != 0) {
      c = static_cast<char>(std::isupper(u) != 0 ? std::tolower(u) : std::toupper(u));
      break;
    }
  }
  return out;
}

/// The texts of candidates that differ from text, each once, in the order given.
inline std::vector<std::string> distinct_changes(std::string_view text,
                                                 std::initializer_list<std::string> candidates) {
  std::vector<std::string> kept;
  for (std::string const& candidate : candidates) {
    if (candidate != text && std::find(kept.begin(), kept.end(), candidate) == kept.end()) {
      kept.push_back(candidate);
    }
  }
  return kept;
}

/// The distinct texts that differ from text only in case: upper-cased, lower-cased, capitalised
/// and with its first letter's case flipped, wherever that changes it.
inline std::vector<std::string> case_variants(std::string_view text) {
  return distinct_changes(
      text, {upper(text), lower(text), capitalised(text), first_letter_flipped(text)});
}

/// The text with every hyphen an underscore and every underscore a hyphen
/// ("fake-ssid-rogue" -> "fake_ssid_rogue", "aka_prime" -> "aka-prime").
inline std::string swap_hyphens_and_underscores(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c == '-') {
      c = '_';
    } else if (c == '_') {
      c = '-';
    }
  }
  return out;
}

/// The text with a leading blank, a trailing blank, both, a leading tab and a trailing newline.
inline std::vector<std::string> padded_variants(std::string_view text) {
  std::string const t(text);
  return {" " + t, t + " ", " " + t + " ", "\t" + t, t + "\n"};
}

/// The text without its last byte and without its first byte; none for the empty text.
inline std::vector<std::string> cut_short_variants(std::string_view text) {
  if (text.empty()) {
    return {};
  }
  return {std::string(text.substr(0, text.size() - 1)), std::string(text.substr(1))};
}

/// The text with one byte more: an "x" after it, an "x" before it, and its last byte doubled.
inline std::vector<std::string> lengthened_variants(std::string_view text) {
  std::string const t(text);
  std::vector<std::string> texts{t + "x", "x" + t};
  if (!t.empty()) {
    texts.push_back(t + t.back());
  }
  return texts;
}

/// The text followed by a NUL byte, followed by a NUL byte and an "x", and preceded by a NUL byte.
inline std::vector<std::string> embedded_nul_variants(std::string_view text) {
  std::string const t(text);
  return {t + '\0', t + std::string("\0x", 2), '\0' + t};
}

/// The texts that the builders make from the texts of a table, each once, less the table's own
/// texts (a change that happens to give another row's text is no bad input).
template <typename... Build>
std::vector<std::string> variants_of(std::vector<std::string_view> const& table, Build... build) {
  std::vector<std::string> kept;
  auto const keep = [&table, &kept](std::vector<std::string> const& variants) {
    for (std::string const& text : variants) {
      if (std::find(table.begin(), table.end(), text) == table.end() &&
          std::find(kept.begin(), kept.end(), text) == kept.end()) {
        kept.push_back(text);
      }
    }
  };
  for (std::string_view const text : table) {
    (keep(build(text)), ...);
  }
  return kept;
}

} // namespace wlccw::test
