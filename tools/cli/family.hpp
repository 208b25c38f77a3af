// The record families the wlccw tool converts: for each, how to read it from an AP's NETCONF
// reply and from an IPC message, what its normalised IPC text is, its change hash where it has one,
// and a short human table of what it holds.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace wlccw::tool {

/// A short human table: a header row and one row per entry, printed with aligned columns.
struct Table {
  std::vector<std::string> header;
  std::vector<std::vector<std::string>> rows;
};

/// What one input became: its IPC text in compact form, its change hash where the family has one,
/// and its summary table.
struct Converted {
  std::string ipc;
  std::optional<std::size_t> hash;
  Table summary;
};

/// Input that a family refuses, with the one-line reason the tool prints ("an \"error\" reply",
/// "no client objects found", the exact text of the exception of a rejected client).
class Rejected : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// Options of `convert` that some NETCONF readers use.
struct NetconfOptions {
  /// Where the array of objects stands in the reply (a path such as /rpc-reply/data/clients);
  /// empty to let the family look for it.
  std::string path;
};

/// One family of records. A reader gets the whole text of one input, already checked to be JSON
/// where the family reads JSON, and either returns what it became or throws Rejected.
struct Family {
  /// The KIND word of `convert`, `hash` and `demo` ("client", "radios", "gre").
  std::string_view name;
  /// One line for --help.
  std::string_view help;
  /// Reads an AP's NETCONF reply (or the node the family reads) into one record or several (one
  /// client object per record for `client`, one accepted VAP per record for `vaps`); empty when
  /// the family has no NETCONF form.
  std::function<std::vector<Converted>(std::string const& text, NetconfOptions const& options)>
      from_netconf;
  /// Reads an IPC message and writes it back normalised. It accepts exactly the `ipc` text that
  /// the family writes, so NETCONF -> IPC -> IPC gives the same text twice. Empty when the family
  /// has no IPC form.
  std::function<Converted(std::string const& text)> from_ipc;
  /// Whether the input is free text rather than JSON (the WIDS attacked-AP report).
  bool free_text = false;
};

/// Every family, in the order --help lists them.
std::vector<Family> const& families();

/// The family of a KIND word; null when there is none.
Family const* find_family(std::string_view name);

// Each group of families registers itself here; families() concatenates them in this order.
void add_client_families(std::vector<Family>& out);
void add_monitoring_families(std::vector<Family>& out);
void add_service_families(std::vector<Family>& out);
void add_wids_radius_families(std::vector<Family>& out);

} // namespace wlccw::tool
