#include "cli/io.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>

namespace wlccw::tool {

/// text made safe for one line of a message: control and non-ASCII bytes written as \xNN.
std::string printable(std::string_view text) {
  static constexpr char digits[] = "0123456789abcdef";
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    auto const byte = static_cast<unsigned char>(c);
    if (byte < 0x20U || byte >= 0x7fU || c == '\\') {
      out += "\\x";
      out += digits[byte >> 4U];
      out += digits[byte & 0x0fU];
    } else {
      out += c;
    }
  }
  return out;
}

/// Prints "wlccw: <command>: <reason>" on stderr and gives the bad-input exit status.
int fail(std::string_view command, std::string_view reason) {
  std::cerr << "wlccw: " << command << ": " << reason << '\n';
  return kExitBadInput;
}

bool is_object(lcw_data_t const* node) {
  if (node == nullptr) {
    return false;
  }
  // Only an object yields a member iterator.
  wlccw::cfg::ObjectIterator const members(cfg_alloc_iterator(node));
  return members != nullptr;
}

bool is_array(lcw_data_t const* node) {
  if (node == nullptr) {
    return false;
  }
  wlccw::cfg::ArrayIterator const elements(cfg_alloc_array_iterator(node));
  return elements != nullptr;
}

int usage_error(std::string_view command, std::string_view reason) {
  std::cerr << "wlccw: " << command << ": " << reason << " (run 'wlccw " << command
            << " --help' for usage)\n";
  return kExitUsage;
}

/// The whole content of a file, or of standard input for "-". On failure, an empty optional and
/// the reason in error.
std::optional<std::string> read_input(std::string const& path, std::string& error) {
  bool const is_stdin = path == "-";
  std::FILE* file = is_stdin ? stdin : std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    error = std::string("cannot open: ") + std::strerror(errno);
    return std::nullopt;
  }
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> const owner(
      is_stdin ? nullptr : file, [](std::FILE* f) { return std::fclose(f); });
  std::string text;
  char buffer[65536];
  std::size_t n = 0;
  while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
    text.append(buffer, n);
  }
  if (std::ferror(file) != 0) {
    error = std::string("cannot read: ") + std::strerror(errno);
    return std::nullopt;
  }
  return text;
}

/// Why text is no JSON object, or an empty optional when it is one. The library's readers accept
/// anything, so the tool checks the text itself before handing it over.
std::optional<std::string> why_not_json_object(std::string const& text) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
    return "empty input; expected a JSON object";
  }
  if (text.find('\0') != std::string::npos) {
    return "contains a NUL byte; expected a JSON object";
  }
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return "not valid JSON; expected a JSON object";
  }
  // Only an object yields a member iterator.
  wlccw::cfg::ObjectIterator const members(cfg_alloc_iterator(root.get()));
  if (!members) {
    return "not a JSON object";
  }
  return std::nullopt;
}

/// Why text is no MAC address (length, separator, digit), for a text MacAddr::from_str refused.
std::string why_not_mac(std::string_view text) {
  if (text.size() != 17 && text.size() != 12) {
    return "has " + std::to_string(text.size()) +
           " characters; expected 17 (aa:bb:cc:dd:ee:ff) or 12 (aabbccddeeff)";
  }
  auto const at = [text](std::size_t i) {
    return "character " + std::to_string(i + 1) + " ('" + printable(text.substr(i, 1)) + "')";
  };
  bool const colons = text.size() == 17;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char const c = text[i];
    if (colons && i % 3 == 2) {
      if (c != ':') {
        return at(i) + " should be ':'";
      }
    } else if (!((c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'))) {
      return at(i) + " is not a hexadecimal digit";
    }
  }
  return "not a MAC address";
}

std::string input_name(std::string const& path) {
  return path == "-" ? std::string("<stdin>") : printable(path);
}

std::optional<std::string> why_not_json(std::string const& text) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
    return "empty input; expected JSON";
  }
  if (text.find('\0') != std::string::npos) {
    return "contains a NUL byte; expected JSON";
  }
  if (!wlccw::cfg::parse(text)) {
    return "not valid JSON";
  }
  return std::nullopt;
}

} // namespace wlccw::tool
