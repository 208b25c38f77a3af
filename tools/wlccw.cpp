// wlccw: the command-line tool over the library. Each subcommand is one add_<name> function that
// declares its options and returns the function that runs it; main only parses and dispatches.
//
// Exit status: 0 on success, 1 for input that cannot be used (with a one-line reason on stderr),
// 2 for a usage error.

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/ipc/ApWidsMacLists.hpp>
#include <wlccw/version.hpp>

#include <CLI/CLI.hpp>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr int kExitOk = 0;
constexpr int kExitBadInput = 1;
constexpr int kExitUsage = 2;

/// A subcommand as main sees it: its parser and the function that runs it once it was chosen.
struct Subcommand {
  CLI::App* app;
  std::function<int()> run;
};

// ---- Helpers shared by the subcommands ----------------------------------------------------------

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

// ---- wids-lists FILE|- --------------------------------------------------------------------------

int run_wids_lists(std::string const& path) {
  std::string const name = path == "-" ? std::string("<stdin>") : printable(path);
  std::string error;
  std::optional<std::string> const text = read_input(path, error);
  if (!text) {
    return fail("wids-lists", name + ": " + error);
  }
  if (std::optional<std::string> const reason = why_not_json_object(*text)) {
    return fail("wids-lists", name + ": " + *reason);
  }
  ApWidsMacLists const lists = ApWidsMacLists::ipc_deserialize(*text);
  std::string const ipc = lists.ipc_serialize();
  std::cout << "ipc: " << ipc << '\n'
            << "netconf white-list: " << lists.netconf_serialize_white_list() << '\n'
            << "netconf black-list: " << lists.netconf_serialize_black_list() << '\n'
            << "hash: " << std::hash<std::string>{}(ipc) << '\n';
  return kExitOk;
}

Subcommand add_wids_lists(CLI::App& tool) {
  auto path = std::make_shared<std::string>();
  CLI::App* app = tool.add_subcommand(
      "wids-lists", "Read an IPC WIDS MAC-lists message and print its normalised IPC text, its "
                    "two NETCONF arrays and its hash");
  app->add_option("FILE", *path, "The message file, or - for standard input")->required();
  return {app, [path] { return run_wids_lists(*path); }};
}

// ---- mac TEXT -----------------------------------------------------------------------------------

int run_mac(std::string const& text) {
  MacAddr const mac = MacAddr::from_str(text.data(), text.size());
  if (!mac.valid) {
    return fail("mac", "'" + printable(text) + "' is not a MAC address: " + why_not_mac(text));
  }
  std::cout << mac.str() << '\n';
  return kExitOk;
}

Subcommand add_mac(CLI::App& tool) {
  auto text = std::make_shared<std::string>();
  CLI::App* app = tool.add_subcommand(
      "mac", "Parse a MAC address (aa:bb:cc:dd:ee:ff or aabbccddeeff, either case) and print it "
             "in normal form");
  app->add_option("TEXT", *text, "The address text")->required();
  return {app, [text] { return run_mac(*text); }};
}

// ---- The tool -----------------------------------------------------------------------------------

/// One line for a usage error, pointing at --help.
std::string usage_failure(CLI::App const* /*app*/, CLI::Error const& e) {
  return "wlccw: " + printable(e.what()) + " (run 'wlccw --help' for usage)\n";
}

} // namespace

int main(int argc, char** argv) {
  CLI::App tool("Inspect and convert the messages of the wireless LAN controller's daemons",
                "wlccw");
  tool.set_version_flag("--version", WLCCW_VERSION_STRING, "Print the version and exit");
  tool.failure_message(usage_failure); // set before the subcommands, which inherit it
  tool.require_subcommand(1);

  std::vector<Subcommand> const subcommands{add_wids_lists(tool), add_mac(tool)};

  try {
    tool.parse(argc, argv);
  } catch (CLI::ParseError const& e) {
    // A first word that names no subcommand reads better as such than as a missing subcommand.
    if (argc > 1 && argv[1][0] != '-' && tool.get_subcommands().empty()) {
      std::cerr << "wlccw: unknown subcommand '" << printable(argv[1])
                << "' (run 'wlccw --help' for usage)\n";
      return kExitUsage;
    }
    return tool.exit(e) == 0 ? kExitOk : kExitUsage;
  }

  try {
    for (Subcommand const& subcommand : subcommands) {
      if (subcommand.app->parsed()) {
        int const status = subcommand.run();
        std::cout.flush();
        if (!std::cout) {
          std::cerr << "wlccw: cannot write the output\n";
          return kExitBadInput;
        }
        return status;
      }
    }
  } catch (std::exception const& e) {
    std::cerr << "wlccw: " << printable(e.what()) << '\n';
    return kExitBadInput;
  }
  return kExitUsage;
}
