// What every subcommand of the wlccw tool shares: exit statuses, the subcommand record main
// dispatches on, reading an input, one-line failure messages and the checks of input text.
#pragma once

#include <CLI/CLI.hpp>

#include <wlccw/cfg/tree.hpp>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wlccw::tool {

constexpr int kExitOk = 0;
constexpr int kExitBadInput = 1;
constexpr int kExitUsage = 2;

/// A subcommand as main sees it: its parser and the function that runs it once it was chosen.
struct Subcommand {
  CLI::App* app;
  std::function<int()> run;
};

/// text made safe for one line of a message: control and non-ASCII bytes written as \xNN.
std::string printable(std::string_view text);

/// Prints "wlccw: <command>: <reason>" on stderr and gives the bad-input exit status.
int fail(std::string_view command, std::string_view reason);

/// The name of an input in messages: "<stdin>" for "-", else the path made printable.
std::string input_name(std::string const& path);

/// The whole content of a file, or of standard input for "-". On failure, an empty optional and
/// the reason in error.
std::optional<std::string> read_input(std::string const& path, std::string& error);

/// Why text is no JSON object, or an empty optional when it is one. The library's readers accept
/// anything, so the tool checks the text itself before handing it over.
std::optional<std::string> why_not_json_object(std::string const& text);

/// Why text is not one whole JSON text (object, array or scalar), or an empty optional when it is.
std::optional<std::string> why_not_json(std::string const& text);

/// Why text is no MAC address (length, separator, digit), for a text MacAddr::from_str refused.
std::string why_not_mac(std::string_view text);

/// Whether the node is a JSON object (null: no).
bool is_object(lcw_data_t const* node);

/// Whether the node is a JSON array (null: no).
bool is_array(lcw_data_t const* node);

/// Prints "wlccw: <command>: <reason> (run 'wlccw <command> --help' for usage)" on stderr and
/// gives the usage exit status.
int usage_error(std::string_view command, std::string_view reason);

// The subcommands that live in cli/: each declares its options on the tool and returns the
// function that runs it.
Subcommand add_convert(CLI::App& tool);
Subcommand add_hash(CLI::App& tool);
Subcommand add_demo(CLI::App& tool);

} // namespace wlccw::tool
