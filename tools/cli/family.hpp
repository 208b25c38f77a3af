// The record families the wlccw tool converts: for each, how to read it from an AP's NETCONF
// reply and from an IPC message, what its normalised IPC text is, its change hash where it has one,
// and a short human table of what it holds.
#pragma once

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

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

/// What one input of a family became, read from its NETCONF form (from_ipc false) or its IPC form:
/// the records in input order. Throws Rejected for input the family refuses, with the reason; any
/// other exception of a reader comes out as Rejected with its text. The text must already be JSON
/// unless the family reads free text.
std::vector<Converted> convert_input(Family const& family, bool from_ipc, std::string const& text,
                                     NetconfOptions const& options);

// ---- Helpers of the family readers ----------------------------------------------------------

/// Throws Rejected("an \"error\" reply[: <error-message>]") when root is an object whose "error"
/// is true; an AP marks a failed reply so.
void reject_error_reply(lcw_data_t const* root);

/// The parsed input, Rejected ("not a JSON object[; expected WHAT]") unless it is a JSON object.
cfg::Tree object_input(std::string const& text, std::string_view what = {});

/// The parsed input, Rejected ("not a JSON array") unless it is a JSON array.
cfg::Tree array_input(std::string const& text);

/// A summary cell: the printable text, "-" when it is empty or missing.
std::string or_dash(std::string const& text);
std::string or_dash(std::optional<std::string> const& text);

/// The text members key of each object of an array in written IPC text (the array at array_key of
/// the root object, or the root itself for a null array_key), made printable: the library's own
/// words for values (stage, state) that the records keep as numbers.
std::vector<std::string> texts_in(std::string const& ipc, char const* array_key, char const* key);

/// A summary cell for a flag: "yes" or "no".
std::string yes_no(bool value);

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
