#include "cli/output.hpp"

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <ostream>

namespace wlccw::tool {

void print_table(std::ostream& out, Table const& table) {
  std::vector<std::size_t> widths(table.header.size(), 0);
  auto const measure = [&widths](std::vector<std::string> const& row) {
    if (widths.size() < row.size()) {
      widths.resize(row.size(), 0);
    }
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], row[i].size());
    }
  };
  measure(table.header);
  for (std::vector<std::string> const& row : table.rows) {
    measure(row);
  }
  auto const print = [&out, &widths](std::vector<std::string> const& row) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) {
        line += "  ";
      }
      line += row[i];
      if (i + 1 < row.size()) {
        line.append(widths[i] - row[i].size(), ' ');
      }
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  };
  print(table.header);
  for (std::vector<std::string> const& row : table.rows) {
    print(row);
  }
}

std::string pretty_json(std::string_view compact) {
  std::string out;
  out.reserve(compact.size() * 2);
  std::size_t depth = 0;
  bool in_string = false;
  auto const newline = [&out, &depth] {
    out += '\n';
    out.append(depth * 2, ' ');
  };
  for (std::size_t i = 0; i < compact.size(); ++i) {
    char const c = compact[i];
    if (in_string) {
      out += c;
      if (c == '\\' && i + 1 < compact.size()) {
        out += compact[++i];
      } else if (c == '"') {
        in_string = false;
      }
      continue;
    }
    switch (c) {
    case '"':
      in_string = true;
      out += c;
      break;
    case '{':
    case '[':
      out += c;
      // An empty object or array stays on its line.
      if (i + 1 < compact.size() && (compact[i + 1] == '}' || compact[i + 1] == ']')) {
        out += compact[++i];
      } else {
        ++depth;
        newline();
      }
      break;
    case '}':
    case ']':
      depth = depth > 0 ? depth - 1 : 0;
      newline();
      out += c;
      break;
    case ',':
      out += c;
      newline();
      break;
    case ':':
      out += ": ";
      break;
    case ' ':
    case '\t':
    case '\r':
    case '\n':
      break;
    default:
      out += c;
      break;
    }
  }
  return out;
}

std::string json_string(std::string_view text) {
  static constexpr char digits[] = "0123456789abcdef";
  std::string out = "\"";
  for (char c : text) {
    auto const byte = static_cast<unsigned char>(c);
    switch (c) {
    case '"':
      out += "\\\"";
      break;
    case '\\':
      out += "\\\\";
      break;
    case '\n':
      out += "\\n";
      break;
    case '\t':
      out += "\\t";
      break;
    case '\r':
      out += "\\r";
      break;
    default:
      if (byte < 0x20U) {
        out += "\\u00";
        out += digits[byte >> 4U];
        out += digits[byte & 0x0fU];
      } else {
        out += c;
      }
      break;
    }
  }
  out += '"';
  return out;
}

Progress::Progress(std::size_t total, bool shown) : total_(total), shown_(shown) {}

Progress::~Progress() {
  clear();
}

void Progress::update(std::size_t done) {
  if (!shown_ || total_ == 0) {
    return;
  }
  constexpr std::size_t width = 30;
  std::size_t const filled = std::min(done, total_) * width / total_;
  std::string bar = "\r[";
  bar.append(filled, '#');
  bar.append(width - filled, ' ');
  bar += "] " + std::to_string(done) + "/" + std::to_string(total_);
  std::cerr << bar << std::flush;
  drawn_ = true;
}

void Progress::clear() {
  if (!drawn_) {
    return;
  }
  std::cerr << '\r' << std::string(48, ' ') << '\r' << std::flush;
  drawn_ = false;
}

bool stderr_is_terminal() {
  return isatty(STDERR_FILENO) == 1;
}

} // namespace wlccw::tool
