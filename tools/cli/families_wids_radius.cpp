// The WIDS and RADIUS families: DAS proxy configuration, CoA proxy answers, standalone APs, AP
// locations, the WIDS MAC lists (also as the two NETCONF arrays an AP is given) and the APs under
// attack (also from an AP's free-text report). Summaries never show a RADIUS secret, only its
// length.

#include "cli/family.hpp"
#include "cli/io.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>
#include <wlccw/ipc/ApLocationsData.hpp>
#include <wlccw/ipc/ApWidsMacLists.hpp>
#include <wlccw/ipc/ClientCoaProxyInfo.hpp>
#include <wlccw/ipc/IpcDasProxyConfig.hpp>
#include <wlccw/ipc/SaApsInfo.hpp>
#include <wlccw/ipc/WidsAttackedAps.hpp>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace wlccw::tool {

namespace {

/// What a summary shows for a RADIUS secret: its length, never its text.
std::string secret_cell(std::string const& secret) {
  return secret.empty() ? std::string("(none)")
                        : "(secret, " + std::to_string(secret.size()) + " chars)";
}

// ---- das-proxy ----------------------------------------------------------------------------------

Converted das_from_ipc(std::string const& text) {
  array_input(text);
  IpcDasProxyConfig const config = IpcDasProxyConfig::ipc_deserialize(text);
  Table table{{"AP", "IP", "PORT", "ENABLED", "KEY"}, {}};
  for (IpcDasProxyConfig::Config const& entry : config.configs) {
    table.rows.push_back({entry.mac.str(), entry.ip.str(), std::to_string(entry.port),
                          yes_no(entry.enabled), secret_cell(entry.key)});
  }
  return {config.ipc_serialize(), config.get_hash(), table};
}

// ---- coa-proxy ----------------------------------------------------------------------------------

Converted coa_from_ipc(std::string const& text) {
  object_input(text);
  ClientCoaProxyInfo const info = ClientCoaProxyInfo::from_ipc(text);
  std::string const ipc = ClientCoaProxyInfo::to_ipc(info);
  cfg::Tree const written = cfg::parse(ipc);
  auto const or_dash = [](auto const& value, auto&& show) {
    return value ? show(*value) : std::string("-");
  };
  std::optional<std::string> const password = info.get_password();
  Table table{
      {"STATE", "CLIENT", "AP", "IP", "PORT", "ENABLED", "PASSWORD"},
      {{printable(cfg_get_param_opt(written.get(), "state").value_or("")), info.client_mac.str(),
        or_dash(info.get_ap_mac(), [](MacAddr const& mac) { return mac.str(); }),
        or_dash(info.get_ip(), [](IpAddr const& ip) { return ip.str(); }),
        or_dash(info.get_port(), [](unsigned short port) { return std::to_string(port); }),
        or_dash(info.get_enabled(), yes_no),
        password ? secret_cell(*password) : std::string("-")}}};
  return {ipc, std::nullopt, table};
}

// ---- sa-aps -------------------------------------------------------------------------------------

Converted sa_aps_from_ipc(std::string const& text) {
  object_input(text);
  SaApsInfo const info = SaApsInfo::ipc_deserialize(text);
  std::string const ipc = SaApsInfo::ipc_serialize(info);
  std::vector<std::string> const stages = texts_in(ipc, "sa-aps", "status");
  Table table{{"AP", "IP", "BOARD TYPE", "SW VERSION", "HW VERSION", "SERIAL", "STATUS"}, {}};
  for (std::size_t i = 0; i < info.sa_aps.size(); ++i) {
    SaApsInfo::ApInfo const& ap = info.sa_aps[i];
    std::string const stage = i < stages.size() && !stages[i].empty() ? stages[i] : "-";
    table.rows.push_back({ap.ap_mac.str(), ap.ip.str(), printable(ap.board_type),
                          printable(ap.sw_version), printable(ap.hw_version), printable(ap.serial),
                          stage});
  }
  return {ipc, std::nullopt, table};
}

// ---- ap-locations -------------------------------------------------------------------------------

Converted ap_locations_from_ipc(std::string const& text) {
  object_input(text);
  ApLocationsData const data(text);
  Table table{{"ID", "TIME ZONE"}, {}};
  for (ApLocationsData::ApLocation const& location : data.locations()) {
    table.rows.push_back({printable(location.id), printable(location.time_zone)});
  }
  return {data.to_str(), data.get_hash(), table};
}

// ---- wids-lists ---------------------------------------------------------------------------------

Converted wids_lists_converted(ApWidsMacLists const& lists) {
  Table table{{"LIST", "MAC"}, {}};
  std::vector<std::vector<std::string>> rows;
  for (MacAddr const& mac : lists.white_list) {
    rows.push_back({"white", mac.str()});
  }
  for (MacAddr const& mac : lists.black_list) {
    rows.push_back({"black", mac.str()});
  }
  // The sets have no order of their own: white first, then black, each by address.
  std::sort(rows.begin(), rows.end(), [](auto const& a, auto const& b) {
    return a[0] != b[0] ? a[0] == "white" : a[1] < b[1];
  });
  table.rows = std::move(rows);
  return {lists.ipc_serialize(), lists.get_hash(), table};
}

Converted wids_lists_from_ipc(std::string const& text) {
  object_input(text);
  return wids_lists_converted(ApWidsMacLists::ipc_deserialize(text));
}

/// The NETCONF form is the pair of arrays an AP is given: an object holding "white-list" and
/// "black-list" arrays of address texts (either may be missing: an empty list), found at --path,
/// else at the root or, depth first, in the first object that holds one of them.
lcw_data_t const* find_lists_holder(lcw_data_t const* node) {
  if (!is_object(node)) {
    return nullptr;
  }
  if (is_array(cfg_get_subtree(node, "white-list")) ||
      is_array(cfg_get_subtree(node, "black-list"))) {
    return node;
  }
  lcw_data_t const* found = nullptr;
  cfg::for_each_member(node, [&found](char const* /*key*/, lcw_data_t& child) {
    if (found == nullptr) {
      found = find_lists_holder(&child);
    }
  });
  return found;
}

std::vector<Converted> wids_lists_from_netconf(std::string const& text,
                                               NetconfOptions const& options) {
  cfg::Tree const root = cfg::parse(text);
  reject_error_reply(root.get());
  lcw_data_t const* holder = nullptr;
  if (!options.path.empty()) {
    holder = cfg_get_subtree_from_path(root.get(), options.path.c_str());
    if (!is_object(holder)) {
      throw Rejected("no object at " + printable(options.path));
    }
  } else {
    holder = find_lists_holder(root.get());
    if (holder == nullptr) {
      throw Rejected("no \"white-list\" or \"black-list\" array found");
    }
  }
  // Both arrays, as they stand, make the IPC message the library reads.
  std::string message = "{";
  for (char const* key : {"white-list", "black-list"}) {
    lcw_data_t const* const array = cfg_get_subtree(holder, key);
    if (array != nullptr && !is_array(array)) {
      throw Rejected(std::string("\"") + key + "\" is not an array");
    }
    message += std::string(message.size() > 1 ? "," : "") + "\"" + key +
               "\":" + (array != nullptr ? cfg::compact(array) : std::string("[]"));
  }
  message += "}";
  return {wids_lists_converted(ApWidsMacLists::ipc_deserialize(message))};
}

// ---- attacked-aps -------------------------------------------------------------------------------

Converted attacked_converted(WidsAttackedAps const& aps) {
  Table table{{"AP", "CHANNEL"}, {}};
  for (auto const& [mac, channel] : aps.attacked_aps) {
    table.rows.push_back({mac.str(), std::to_string(channel)});
  }
  return {aps.ipc_serialize(), std::nullopt, table};
}

std::vector<Converted> attacked_from_netconf(std::string const& text,
                                             NetconfOptions const& /*options*/) {
  // A report without any attack is an empty list; no report at all is no input.
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
    throw Rejected("empty input; expected the AP's WIDS report text");
  }
  try {
    return {attacked_converted(WidsAttackedAps::netconf_deserialize(text))};
  } catch (std::out_of_range const&) {
    throw Rejected("a channel number too large");
  }
}

Converted attacked_from_ipc(std::string const& text) {
  // The family reads free text from NETCONF, so the JSON check of the IPC form is done here.
  if (std::optional<std::string> const reason = why_not_json(text)) {
    throw Rejected(*reason);
  }
  array_input(text);
  try {
    return attacked_converted(WidsAttackedAps::ipc_deserialize(text));
  } catch (std::invalid_argument const&) {
    throw Rejected("a \"channel\" that is missing or not a number");
  } catch (std::out_of_range const&) {
    throw Rejected("a channel number too large");
  }
}

} // namespace

void add_wids_radius_families(std::vector<Family>& out) {
  out.push_back({"das-proxy", "DAS proxy settings of the APs (IPC array)", {}, das_from_ipc});
  out.push_back({"coa-proxy", "Where a client's CoA request is relayed (IPC)", {}, coa_from_ipc});
  out.push_back({"sa-aps", "Standalone APs and their stage (IPC)", {}, sa_aps_from_ipc});
  out.push_back(
      {"ap-locations", "AP locations and their time zones (IPC)", {}, ap_locations_from_ipc});
  out.push_back({"wids-lists",
                 "WIDS white and black MAC lists: the AP's two NETCONF arrays, or the IPC message",
                 wids_lists_from_netconf, wids_lists_from_ipc});
  Family attacked{"attacked-aps",
                  "APs under attack: the AP's free-text WIDS report, or the IPC array",
                  attacked_from_netconf, attacked_from_ipc};
  attacked.free_text = true;
  out.push_back(std::move(attacked));
}

} // namespace wlccw::tool
