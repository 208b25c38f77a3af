// `convert` and `hash`: every record family read from its NETCONF or IPC form and written as its
// normalised IPC text (JSON Lines), indented, with its change hash, or as a summary table.

#include "cli/family.hpp"
#include "cli/io.hpp"
#include "cli/output.hpp"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace wlccw::tool {

std::vector<Converted> convert_input(Family const& family, bool from_ipc, std::string const& text,
                                     NetconfOptions const& options) {
  try {
    if (from_ipc) {
      std::vector<Converted> out;
      out.push_back(family.from_ipc(text));
      return out;
    }
    return family.from_netconf(text, options);
  } catch (Rejected const&) {
    throw;
  } catch (std::exception const& e) {
    throw Rejected(e.what());
  }
}

namespace {

/// The options convert and hash share.
struct Request {
  std::string kind;
  std::string from;
  std::string to = "ipc";
  bool pretty = false;
  bool hash = false;
  std::string path;
  std::vector<std::string> files;
};

/// A comma-separated list of every KIND, for --help.
std::string kinds() {
  std::string out;
  for (Family const& family : families()) {
    if (!out.empty()) {
      out += ", ";
    }
    out += family.name;
  }
  return out;
}

/// The KIND words with their help lines and forms, for the end of --help.
std::string kinds_footer() {
  std::string out = "Kinds (forms they read):\n";
  for (Family const& family : families()) {
    std::string line = "  " + std::string(family.name);
    line.append(line.size() < 26 ? 26 - line.size() : 1, ' ');
    line += std::string(family.help) + " (";
    line += family.from_netconf ? (family.from_ipc ? "netconf, ipc" : "netconf") : "ipc";
    out += line + ")\n";
  }
  return out;
}

/// The records of one input converted; the reason in error when it was refused.
std::optional<std::vector<Converted>> read_records(Family const& family, bool from_ipc,
                                                   std::string const& path,
                                                   NetconfOptions const& options,
                                                   std::string& error) {
  std::optional<std::string> const text = read_input(path, error);
  if (!text) {
    return std::nullopt;
  }
  if (!family.free_text) {
    if (std::optional<std::string> const reason = why_not_json(*text)) {
      error = *reason;
      return std::nullopt;
    }
  }
  try {
    return convert_input(family, from_ipc, *text, options);
  } catch (Rejected const& e) {
    error = printable(e.what());
    return std::nullopt;
  }
}

/// Runs convert (hash_only false) or hash (hash_only true) over every input.
int run(Request const& request, bool hash_only) {
  std::string_view const command = hash_only ? "hash" : "convert";
  Family const* const family = find_family(request.kind);
  if (family == nullptr) {
    return usage_error(command, "unknown KIND '" + printable(request.kind) + "'");
  }
  bool from_ipc = false;
  if (request.from.empty()) {
    from_ipc = !family->from_netconf;
  } else {
    from_ipc = request.from == "ipc";
  }
  if (from_ipc && !family->from_ipc) {
    return usage_error(command, request.kind + " has no IPC form");
  }
  if (!from_ipc && !family->from_netconf) {
    return usage_error(command, request.kind + " has no NETCONF form");
  }
  if (from_ipc && !request.path.empty()) {
    return usage_error(command, "--path applies only to NETCONF input");
  }
  bool const summary = request.to == "summary";
  if (summary && (request.hash || request.pretty)) {
    return usage_error(command, "--to summary takes neither --hash nor --pretty");
  }

  std::vector<std::string> const files =
      request.files.empty() ? std::vector<std::string>{"-"} : request.files;
  NetconfOptions const options{request.path};
  Progress progress(files.size(), files.size() > 4 && stderr_is_terminal());
  bool failed = false;
  bool first_table = true;
  for (std::size_t i = 0; i < files.size(); ++i) {
    std::string const& path = files[i];
    std::string const name = input_name(path);
    std::string error;
    std::optional<std::vector<Converted>> const records =
        read_records(*family, from_ipc, path, options, error);
    // The bar leaves the line before anything else is written there.
    progress.clear();
    if (!records) {
      fail(command, name + ": " + error);
      failed = true;
      progress.update(i + 1);
      continue;
    }
    if (hash_only || request.hash) {
      for (Converted const& record : *records) {
        if (!record.hash) {
          return usage_error(command, request.kind + " has no change hash");
        }
      }
    }
    if (hash_only) {
      for (Converted const& record : *records) {
        std::cout << *record.hash << '\n';
      }
    } else if (summary) {
      Table table;
      for (Converted const& record : *records) {
        if (table.header.empty()) {
          table.header = record.summary.header;
        }
        table.rows.insert(table.rows.end(), record.summary.rows.begin(), record.summary.rows.end());
      }
      if (files.size() > 1) {
        std::cout << (first_table ? "" : "\n") << "== " << name << " ==\n";
      }
      first_table = false;
      print_table(std::cout, table);
    } else {
      for (Converted const& record : *records) {
        std::string line = record.ipc;
        if (request.hash) {
          line = "{\"file\":" + json_string(name) + ",\"hash\":" + std::to_string(*record.hash) +
                 ",\"ipc\":" + record.ipc + "}";
        }
        std::cout << (request.pretty ? pretty_json(line) : line) << '\n';
      }
    }
    progress.update(i + 1);
  }
  return failed ? kExitBadInput : kExitOk;
}

/// The options both subcommands declare.
void add_common(CLI::App* app, Request& request) {
  app->add_option("KIND", request.kind, "The record family: " + kinds())->required();
  app->add_option("--from", request.from,
                  "The form of the input; netconf by default when the family has one, else ipc")
      ->check(CLI::IsMember({"netconf", "ipc"}));
  app->footer(kinds_footer());
  app->add_option("--path", request.path,
                  "Where the records stand in a NETCONF reply (such as /rpc-reply/data/clients); "
                  "by default the family looks for them");
}

} // namespace

Subcommand add_convert(CLI::App& tool) {
  auto request = std::make_shared<Request>();
  CLI::App* app = tool.add_subcommand(
      "convert", "Read records of one family and print their normalised IPC text, one line per "
                 "record, or a summary table per input");
  add_common(app, *request);
  app->add_option("--to", request->to, "What to print: ipc (default) or summary")
      ->check(CLI::IsMember({"ipc", "summary"}));
  app->add_flag("--pretty", request->pretty, "Indent the JSON by two spaces");
  app->add_flag("--hash", request->hash,
                "Print {\"file\":NAME,\"hash\":N,\"ipc\":IPC} for each record");
  app->add_option("FILE", request->files, "Input files, or - for standard input (the default)");
  return {app, [request] { return run(*request, false); }};
}

Subcommand add_hash(CLI::App& tool) {
  auto request = std::make_shared<Request>();
  CLI::App* app =
      tool.add_subcommand("hash", "Print the change hash (decimal) of each record, one per line");
  add_common(app, *request);
  app->add_option("FILE", request->files, "Input files, or - for standard input")->required();
  return {app, [request] { return run(*request, true); }};
}

} // namespace wlccw::tool
