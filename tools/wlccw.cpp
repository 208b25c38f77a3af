// wlccw: the command-line tool over the library. Each subcommand is one add_<name> function that
// declares its options and returns the function that runs it; main only parses and dispatches.
//
// Exit status: 0 on success, 1 for input that cannot be used (with a one-line reason on stderr),
// 2 for a usage error.

#include "cli/io.hpp"
#include "cli/values.hpp"

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

using namespace wlccw::tool;

// ---- wids-lists FILE|- --------------------------------------------------------------------------

int run_wids_lists(std::string const& path) {
  std::string const name = input_name(path);
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
  tool.set_version_flag("--version", "wlccw " WLCCW_VERSION_STRING,
                        "Print \"wlccw VERSION\" and exit");
  tool.failure_message(usage_failure); // set before the subcommands, which inherit it
  tool.require_subcommand(1);

  std::vector<Subcommand> const subcommands{
      add_wids_lists(tool), add_mac(tool), add_convert(tool), add_hash(tool),       add_demo(tool),
      add_enum(tool),       add_ip(tool),  add_version(tool), add_html_decode(tool)};

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
