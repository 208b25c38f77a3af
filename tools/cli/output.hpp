// How the wlccw tool prints what it converted: aligned summary tables, indented JSON, JSON string
// literals for names, and a progress bar on stderr for long runs.
#pragma once

#include "cli/family.hpp"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace wlccw::tool {

/// Prints the table: every column as wide as its widest cell, columns two spaces apart, the last
/// column unpadded, no trailing blanks.
void print_table(std::ostream& out, Table const& table);

/// The JSON text indented by two spaces, one member or element per line, "key": value; empty
/// objects and arrays stay "{}" and "[]". Expects compact JSON as the library writes it.
std::string pretty_json(std::string_view compact);

/// text as a JSON string literal, quotes included.
std::string json_string(std::string_view text);

/// A progress bar on stderr, drawn only when asked for; clear() removes it before a message.
class Progress {
public:
  Progress(std::size_t total, bool shown);
  Progress(Progress const&) = delete;
  Progress& operator=(Progress const&) = delete;
  ~Progress();
  /// Shows that done of the total inputs are finished.
  void update(std::size_t done);
  /// Removes the bar from the line, so a message can be printed.
  void clear();

private:
  std::size_t total_;
  bool shown_;
  bool drawn_ = false;
};

/// Whether stderr is a terminal, where a progress bar makes sense.
bool stderr_is_terminal();

} // namespace wlccw::tool
