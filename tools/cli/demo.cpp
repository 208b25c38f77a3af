// `demo`: the bundled sample AP replies through every form, NETCONF -> record -> IPC -> record ->
// IPC, with each IPC text, its change hash and its summary, checking that reading the IPC text back
// gives the same text.

#include "cli/family.hpp"
#include "cli/io.hpp"
#include "cli/output.hpp"

#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace wlccw::tool {

namespace {

/// One step of the tour: a family and a sample under the data folder.
struct Sample {
  char const* kind;
  char const* file;
};

constexpr Sample kSamples[] = {
    {"client", "client/netconf-full.json"},
    {"client", "client/mlo-ap-client-three-links.json"},
    {"clients", "client/netconf-full.json"},
    {"authenticated-clients", "client/netconf-full.json"},
    {"clients-by-auth-type", "client/netconf-full.json"},
    {"info", "monitoring/reply-full.json"},
    {"radios", "monitoring/reply-full.json"},
    {"interfaces", "monitoring/reply-full.json"},
    {"ports", "monitoring/reply-full.json"},
    {"neighbours", "monitoring/reply-full.json"},
    {"vaps", "vaps/netconf-vaps.json"},
    {"wids-lists", "wids/mixed.json"},
    {"attacked-aps", "wids/attacked-aps.txt"},
};

/// Rejected inputs the tour shows with their reasons.
constexpr Sample kRejected[] = {
    {"radios", "monitoring/reply-error.json"},
    {"client", "monitoring/reply-full.json"},
};

/// The text of a sample, or a reason on stderr.
std::optional<std::string> sample_text(std::string const& path) {
  std::string error;
  std::optional<std::string> text = read_input(path, error);
  if (!text) {
    fail("demo", input_name(path) + ": " + error);
  }
  return text;
}

/// One sample through every form; false when a step failed or the texts differ.
bool tour(Family const& family, std::string const& path) {
  std::cout << "== " << family.name << ": " << input_name(path) << " ==\n";
  std::optional<std::string> const text = sample_text(path);
  if (!text) {
    return false;
  }
  NetconfOptions const options;
  bool same = true;
  try {
    std::vector<Converted> const records = convert_input(family, false, *text, options);
    for (Converted const& record : records) {
      std::cout << "NETCONF -> record -> IPC:\n  " << record.ipc << '\n';
      std::cout << "hash: "
                << (record.hash ? std::to_string(*record.hash) : std::string("none for this kind"))
                << '\n';
      std::vector<Converted> const again = convert_input(family, true, record.ipc, options);
      bool const equal = again.size() == 1 && again.front().ipc == record.ipc;
      same = same && equal;
      std::cout << "IPC -> record -> IPC: "
                << (equal ? "the same text" : "DIFFERS: " + again.front().ipc) << '\n';
      print_table(std::cout, record.summary);
    }
  } catch (Rejected const& e) {
    std::cout << "rejected: " << printable(e.what()) << '\n';
    same = false;
  }
  std::cout << '\n';
  return same;
}

int run_demo(std::string const& data) {
  std::error_code error;
  if (!std::filesystem::is_directory(data, error)) {
    return fail("demo", "no sample folder '" + printable(data) + "'");
  }
  bool ok = true;
  std::size_t shown = 0;
  for (Sample const& sample : kSamples) {
    Family const* const family = find_family(sample.kind);
    if (family == nullptr) {
      continue;
    }
    ok = tour(*family, data + "/" + sample.file) && ok;
    ++shown;
  }
  std::cout << "Inputs the tool refuses, with the reason it gives:\n";
  for (Sample const& sample : kRejected) {
    Family const* const family = find_family(sample.kind);
    std::string const path = data + "/" + sample.file;
    std::optional<std::string> const text = sample_text(path);
    if (family == nullptr || !text) {
      ok = false;
      continue;
    }
    try {
      convert_input(*family, false, *text, NetconfOptions{});
      std::cout << "  " << sample.kind << " " << input_name(path) << ": accepted (unexpected)\n";
      ok = false;
    } catch (Rejected const& e) {
      std::cout << "  " << sample.kind << " " << input_name(path) << ": " << printable(e.what())
                << '\n';
    }
  }
  std::cout << '\n'
            << shown << " samples: "
            << (ok ? "every second IPC text equals the first" : "some step failed (see above)")
            << '\n';
  return ok ? kExitOk : kExitBadInput;
}

} // namespace

Subcommand add_demo(CLI::App& tool) {
  auto data = std::make_shared<std::string>("tests/data");
  CLI::App* app = tool.add_subcommand(
      "demo", "Take the bundled sample AP replies through every form: NETCONF -> record -> IPC -> "
              "record -> IPC, with each IPC text, its hash and a summary");
  app->add_option("--data", *data, "The folder of the samples (default tests/data)");
  return {app, [data] { return run_demo(*data); }};
}

} // namespace wlccw::tool
