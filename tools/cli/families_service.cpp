// The service families: RRM AP info, the SSID-to-VAP map, VAPs (also from an AP's NETCONF data),
// full VAPs, the optimisation service's request and response, GRE tunnel data and VRRP board
// types. Each reads its IPC message and writes it back normalised, with a short summary table.

#include "cli/family.hpp"
#include "cli/io.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>
#include <wlccw/enums/SecurityMode.hpp>
#include <wlccw/enums/VelmoraMsgType.hpp>
#include <wlccw/enums/VelmoraRespStatus.hpp>
#include <wlccw/ipc/FullVapData.hpp>
#include <wlccw/ipc/IpcMsgGreData.hpp>
#include <wlccw/ipc/IpcMsgRrmApInfo.hpp>
#include <wlccw/ipc/IpcMsgVelmoraRequest.hpp>
#include <wlccw/ipc/IpcMsgVelmoraResponse.hpp>
#include <wlccw/ipc/IpcMsgVrrpUpdateBoardTypes.hpp>
#include <wlccw/ipc/Ssid2VapInfo.hpp>
#include <wlccw/ipc/Vap.hpp>

#include <arpa/inet.h>

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace wlccw::tool {

namespace {

std::string ipv4_text(in_addr address) {
  char buffer[INET_ADDRSTRLEN] = {};
  return inet_ntop(AF_INET, &address, buffer, sizeof buffer) != nullptr ? buffer : "?";
}

// ---- rrm-ap-info --------------------------------------------------------------------------------

Table rrm_summary(IpcMsgRrmApInfo const& info, std::string const& mac = {}) {
  Table table;
  if (!mac.empty()) {
    table.header.emplace_back("AP");
  }
  for (char const* column :
       {"TYPE", "IP", "LOCATION", "INTERFACE", "SSID", "BAND", "RADIO", "VAP"}) {
    table.header.emplace_back(column);
  }
  auto row_of = [&](std::vector<std::string> rest) {
    std::vector<std::string> row;
    if (!mac.empty()) {
      row.push_back(mac);
    }
    row.insert(row.end(), {printable(info.type), info.ip.valid ? info.ip.str() : "-",
                           printable(info.location)});
    row.insert(row.end(), rest.begin(), rest.end());
    return row;
  };
  for (auto const& [name, vap] : info.interfaces) {
    table.rows.push_back(
        row_of({printable(name), printable(vap.ssid), IpcMsgRrmApInfo::str_from_band(vap.band),
                std::to_string(vap.radio_id), std::to_string(vap.vap_id)}));
  }
  if (info.interfaces.empty()) {
    table.rows.push_back(row_of({"-", "-", "-", "-", "-"}));
  }
  return table;
}

Converted rrm_from_ipc(std::string const& text) {
  object_input(text);
  IpcMsgRrmApInfo const info(text);
  return {info.to_str(), info.get_hash(), rrm_summary(info)};
}

// ---- ssid2vap -----------------------------------------------------------------------------------

Converted ssid2vap_from_ipc(std::string const& text) {
  object_input(text);
  Ssid2VapInfo const info(text);
  Table table;
  for (auto const& [mac, rrm] : info.get_ssid2vap_info_pack()) {
    Table const one = rrm_summary(rrm, mac.str());
    table.header = one.header;
    table.rows.insert(table.rows.end(), one.rows.begin(), one.rows.end());
  }
  if (table.header.empty()) {
    table = rrm_summary(IpcMsgRrmApInfo(), "-");
    table.rows.clear();
  }
  return {info.to_str(), std::nullopt, table};
}

// ---- vaps and full-vap --------------------------------------------------------------------------

std::vector<std::string> vap_row(Vap const& vap) {
  auto or_dash = [](bool has, std::string text) { return has ? text : std::string("-"); };
  return {
      std::to_string(vap.rfid),
      std::to_string(vap.wid),
      printable(vap.interface),
      printable(vap.radio),
      or_dash(!vap.band_bridge_serialize().empty(), vap.band_bridge_serialize()),
      yes_no(vap.enabled),
      or_dash(vap.ssid.has_value(), printable(vap.ssid.value_or(""))),
      or_dash(vap.bssid.has_value(), vap.bssid ? vap.bssid->str() : ""),
      or_dash(vap.auth_type.has_value(), vap.auth_type ? SecurityModeToStrX(*vap.auth_type) : ""),
      std::to_string(vap.client_count)};
}

std::vector<std::string> vap_header() {
  return {"RFID",    "WID",  "INTERFACE", "RADIO", "BAND",
          "ENABLED", "SSID", "BSSID",     "AUTH",  "CLIENTS"};
}

Converted vap_converted(Vap const& vap) {
  cfg::Tree const object = cfg::make_object();
  vap.to_json(*object);
  return {cfg::compact(object.get()), std::nullopt, {vap_header(), {vap_row(vap)}}};
}

/// Whether the array holds a VAP object (an object that carries "rfid"); its other elements are
/// rejected one by one when it is read.
bool is_vap_array(lcw_data_t const* node) {
  if (!is_array(node)) {
    return false;
  }
  bool any = false;
  cfg::for_each_element(node, [&any](lcw_data_t& element) {
    any = any || (is_object(&element) && cfg_get_subtree(&element, "rfid") != nullptr);
  });
  return any;
}

/// The first array of VAP objects under node, depth first.
lcw_data_t* find_vap_array(lcw_data_t* node) {
  if (is_vap_array(node)) {
    return node;
  }
  lcw_data_t* found = nullptr;
  auto visit = [&found](lcw_data_t& child) {
    if (found == nullptr) {
      found = find_vap_array(&child);
    }
  };
  if (is_object(node)) {
    cfg::for_each_member(node, [&visit](char const* /*key*/, lcw_data_t& child) { visit(child); });
  } else if (is_array(node)) {
    cfg::for_each_element(node, visit);
  }
  return found;
}

std::vector<Converted> vaps_from_netconf(std::string const& text, NetconfOptions const& options) {
  cfg::Tree const root = cfg::parse(text);
  reject_error_reply(root.get());
  lcw_data_t* array = nullptr;
  if (!options.path.empty()) {
    array = cfg_get_subtree_from_path(root.get(), options.path.c_str());
    if (!is_array(array)) {
      throw Rejected("no array at " + printable(options.path));
    }
  } else {
    array = find_vap_array(root.get());
    if (array == nullptr) {
      throw Rejected("no array of VAP objects (objects with \"rfid\") found");
    }
  }
  std::vector<Converted> out;
  std::size_t index = 0;
  cfg::for_each_element(array, [&](lcw_data_t& element) {
    ++index;
    std::optional<Vap> const vap =
        is_object(&element) ? Vap::from_netconf_json(element) : std::nullopt;
    if (vap) {
      out.push_back(vap_converted(*vap));
      return;
    }
    std::optional<std::string> const name =
        is_object(&element) ? cfg_get_param_opt(&element, "name") : std::nullopt;
    std::cerr << "wlccw: convert: vaps: VAP " << index
              << (name ? " (" + printable(*name) + ")" : std::string()) << " rejected\n";
  });
  if (out.empty()) {
    throw Rejected(index == 0 ? "the VAP array is empty" : "no VAP accepted");
  }
  return out;
}

Converted vap_from_ipc(std::string const& text) {
  cfg::Tree const root = object_input(text);
  std::optional<Vap> const vap = Vap::from_json(*root);
  if (!vap) {
    throw Rejected("an enabled VAP without a known \"auth-type\"");
  }
  return vap_converted(*vap);
}

Converted full_vap_from_ipc(std::string const& text) {
  cfg::Tree const root = object_input(text);
  std::optional<FullVapData> const vap = FullVapData::from_full_json(*root);
  if (!vap) {
    throw Rejected("an enabled VAP without a known \"auth-type\"");
  }
  cfg::Tree const object = cfg::make_object();
  vap->to_json(*object);
  std::vector<std::string> header{"AP", "HOSTNAME", "LOCATION"};
  std::vector<std::string> row{vap->ap_mac.str(), printable(vap->ap_hostname),
                               printable(vap->ap_location)};
  std::vector<std::string> const more_header = vap_header();
  std::vector<std::string> const more_row = vap_row(*vap);
  header.insert(header.end(), more_header.begin(), more_header.end());
  row.insert(row.end(), more_row.begin(), more_row.end());
  return {cfg::compact(object.get()), std::nullopt, {header, {row}}};
}

// ---- velmora-request and velmora-response -------------------------------------------------------

Converted velmora_request_from_ipc(std::string const& text) {
  object_input(text);
  IpcMsgVelmoraRequest const request(text);
  bool mac_valid = false;
  bool band_valid = false;
  std::optional<MacAddr> const mac = request.get_mac(mac_valid);
  std::optional<std::string> const band = request.get_band(band_valid);
  std::optional<unsigned> const days = request.get_days();
  std::optional<std::string> const location = request.get_location();
  Table table{
      {"TYPE", "MAC", "BAND", "DAYS", "LOCATION"},
      {{VelmoraMsgTypeToStrX(request.type), mac ? mac->str() : "-", band ? printable(*band) : "-",
        days ? std::to_string(*days) : "-", location ? printable(*location) : "-"}}};
  return {request.to_str(), std::nullopt, table};
}

Converted velmora_response_from_ipc(std::string const& text) {
  object_input(text);
  IpcMsgVelmoraResponse const response(text);
  Table table{{"TYPE", "STATUS", "CAUSE", "DATA"},
              {{VelmoraMsgTypeToStrX(response.type), VelmoraRespStatusToStrX(response.status),
                response.cause.empty() ? "-" : printable(response.cause),
                std::to_string(response.data.size()) + " bytes"}}};
  return {response.to_str(), std::nullopt, table};
}

// ---- gre ----------------------------------------------------------------------------------------

Converted gre_from_ipc(std::string const& text) {
  object_input(text);
  IpcMsgGreData const gre(text);
  Table table{{"KIND", "NAME", "OFFICE", "DETAIL"}, {}};
  for (std::string const& office : gre.offices) {
    table.rows.push_back({"office", printable(office), "-", "-"});
  }
  for (auto const& mac : gre.macs) {
    if (mac) {
      table.rows.push_back({"mac", mac->mac.str(), printable(mac->office), "-"});
    }
  }
  for (auto const& pool : gre.ip_pools) {
    if (pool) {
      table.rows.push_back({"ip-pool", printable(pool->name), printable(pool->office),
                            ipv4_text(pool->network) + "/" + ipv4_text(pool->netmask)});
    }
  }
  return {gre.to_str(), gre.get_hash(), table};
}

// ---- vrrp-board-types ---------------------------------------------------------------------------

Converted vrrp_from_ipc(std::string const& text) {
  std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> const types =
      IpcMsgVrrpUpdateBoardTypes::from_str(text);
  if (!types) {
    throw Rejected("not a JSON array");
  }
  Table table{{"AP", "BOARD TYPE", "SW VERSION"}, {}};
  for (auto const& [mac, desc] : types->aps) {
    table.rows.push_back({mac.str(), printable(desc.board_type), printable(desc.sw_version)});
  }
  // The map has no order of its own; the table reads better by address.
  std::sort(table.rows.begin(), table.rows.end());
  return {types->to_str(), std::nullopt, table};
}

} // namespace

void add_service_families(std::vector<Family>& out) {
  out.push_back({"rrm-ap-info", "RRM description of one AP (IPC)", {}, rrm_from_ipc});
  out.push_back(
      {"ssid2vap", "RRM descriptions of several APs by AP address (IPC)", {}, ssid2vap_from_ipc});
  out.push_back({"vaps", "VAPs: the AP's NETCONF VAP array, or one IPC VAP object",
                 vaps_from_netconf, vap_from_ipc});
  out.push_back({"full-vap",
                 "A VAP with its AP's address, host name and location (IPC)",
                 {},
                 full_vap_from_ipc});
  out.push_back({"velmora-request",
                 "A request to the optimisation service (IPC)",
                 {},
                 velmora_request_from_ipc});
  out.push_back({"velmora-response",
                 "A response of the optimisation service (IPC)",
                 {},
                 velmora_response_from_ipc});
  out.push_back(
      {"gre", "GRE tunnel data: offices, client addresses, address pools (IPC)", {}, gre_from_ipc});
  out.push_back({"vrrp-board-types",
                 "Board type and software version per AP (IPC array)",
                 {},
                 vrrp_from_ipc});
}

} // namespace wlccw::tool
