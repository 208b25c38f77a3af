// The monitoring families: an AP's device information, radios, network interfaces, Ethernet ports
// and neighbouring APs, each read from a whole monitoring reply or from the node that holds it, and
// from the IPC forms the records write.

#include "cli/family.hpp"
#include "cli/io.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>
#include <wlccw/enums/PowerSupply.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace wlccw::tool {

namespace {

// ---- Finding the monitoring node of a NETCONF input --------------------------------------------

/// Rejected unless every element of the array is an object.
void require_objects(lcw_data_t const* array, char const* key) {
  cfg::for_each_element(array, [key](lcw_data_t& element) {
    if (!is_object(&element)) {
      throw Rejected(std::string("an element of the \"") + key + "\" array is not an object");
    }
  });
}

/// The parsed NETCONF input and the node that holds the monitoring members: the node at --path,
/// else /rpc-reply/data/monitoring when the input is a whole reply, else the root itself.
struct MonitoringInput {
  cfg::Tree root;
  lcw_data_t* node = nullptr;
};

/// The monitoring node of a NETCONF input, which must hold member (an object when object is true,
/// else an array). Rejected for an "error" reply and for a node without that member.
MonitoringInput monitoring_node(std::string const& text, NetconfOptions const& options,
                                char const* member, bool object) {
  MonitoringInput input{cfg::parse(text), nullptr};
  lcw_data_t* const root = input.root.get();
  reject_error_reply(root);
  std::string where;
  if (!options.path.empty()) {
    where = " at " + printable(options.path);
    input.node = cfg_get_subtree_from_path(root, options.path.c_str());
    if (input.node == nullptr) {
      throw Rejected("nothing" + where);
    }
  } else {
    input.node = cfg_get_subtree_from_path(root, "/rpc-reply/data/monitoring");
    if (input.node == nullptr) {
      input.node = root;
    }
  }
  lcw_data_t const* const held =
      is_object(input.node) ? cfg_get_subtree(input.node, member) : nullptr;
  if (object ? !is_object(held) : !is_array(held)) {
    throw Rejected(std::string("no \"") + member + "\" " + (object ? "object" : "array") + where);
  }
  if (!object) {
    require_objects(held, member);
  }
  return input;
}

/// The reply text around a monitoring node, for the readers that take a whole reply.
std::string as_reply(lcw_data_t const* node) {
  return "{\"rpc-reply\":{\"data\":{\"monitoring\":" + cfg::compact(node) + "}}}";
}

/// The array of an IPC list input: the root itself when it is an array, else the member key of
/// an object root. Rejected otherwise.
lcw_data_t* ipc_array(cfg::Tree const& root, char const* key) {
  if (is_array(root.get())) {
    require_objects(root.get(), key);
    return root.get();
  }
  lcw_data_t* const member = is_object(root.get()) ? cfg_get_subtree(root.get(), key) : nullptr;
  if (!is_array(member)) {
    throw Rejected(std::string("not a JSON array and no \"") + key + "\" array");
  }
  require_objects(member, key);
  return member;
}

/// The text of a member in an object holding only the array, for the readers that take a node.
cfg::Tree wrap_array(lcw_data_t const* array, char const* key) {
  cfg::Tree wrapper = cfg::parse("{\"" + std::string(key) + "\":" + cfg::compact(array) + "}");
  if (!wrapper) {
    throw Rejected("cannot rebuild the list");
  }
  return wrapper;
}

// ---- Summaries --------------------------------------------------------------------------------

/// A measurement, "-" when it is missing or -1 (not reported by the AP).
template <typename T> std::string measured(std::optional<T> const& value) {
  return value && *value != -1 ? std::to_string(*value) : std::string("-");
}

std::vector<Converted> one(Converted converted) {
  std::vector<Converted> out;
  out.push_back(std::move(converted));
  return out;
}

// ---- info -------------------------------------------------------------------------------------

Converted convert_info(NcIpcApMonitoringInformation const& info) {
  Converted out{info.to_str(), info.get_hash(), {{"FIELD", "VALUE"}, {}}};
  auto const row = [&out](char const* field, std::string value) {
    out.summary.rows.push_back({field, std::move(value)});
  };
  if (info.error) {
    row("error", "true");
    return out;
  }
  row("hostname", or_dash(info.hostname));
  row("hw-platform", or_dash(info.hw_platform));
  row("hw-revision", or_dash(info.hw_revision));
  row("serial-number", or_dash(info.factory_serial_number));
  row("software", or_dash(info.secondary_software_version));
  row("boot-version", or_dash(info.boot_version));
  row("uptime", or_dash(info.uptime));
  row("power-supply", or_dash(power_supply_to_str(info.power_supply)));
  row("last-reboot", or_dash(info.last_reboot_reason));
  row("default-config", info.is_default_config ? "yes" : "no");
  return out;
}

std::vector<Converted> info_from_netconf(std::string const& text, NetconfOptions const& options) {
  MonitoringInput const input = monitoring_node(text, options, "information", true);
  NcIpcApMonitoringInformation const info =
      NcIpcApMonitoringInformation::from_netconf(as_reply(input.node));
  if (info.error) {
    throw Rejected("no device information read");
  }
  return one(convert_info(info));
}

Converted info_from_ipc(std::string const& text) {
  cfg::Tree const root = cfg::parse(text);
  if (!is_object(root.get()) || cfg_contain_param(root.get(), "error") == 0) {
    throw Rejected("not a device information message (no \"error\" member)");
  }
  return convert_info(NcIpcApMonitoringInformation::from_json(root.get()));
}

// ---- radios -----------------------------------------------------------------------------------

Converted convert_radios(NcIpcApMonitoringRadioInterface const& list) {
  Converted out{list.to_str(),
                std::nullopt,
                {{"NAME", "BAND", "STATUS", "CHANNEL", "NOISE", "UTILISATION"}, {}}};
  for (NcIpcApMonitoringRadioInterface::RadioParams const& radio : list.radios) {
    out.summary.rows.push_back({or_dash(radio.name), or_dash(radio.band), or_dash(radio.status),
                                or_dash(radio.channel), measured(radio.noise_level),
                                measured(radio.utilization)});
  }
  return out;
}

std::vector<Converted> radios_from_netconf(std::string const& text, NetconfOptions const& options) {
  MonitoringInput const input = monitoring_node(text, options, "radio-interface", false);
  return one(convert_radios(NcIpcApMonitoringRadioInterface::from_netconf(as_reply(input.node))));
}

Converted radios_from_ipc(std::string const& text) {
  cfg::Tree const root = cfg::parse(text);
  if (!is_object(root.get())) {
    throw Rejected("not a JSON object; expected a radio-interface message");
  }
  lcw_data_t const* const array = cfg_get_subtree(root.get(), "radio-interface");
  if (array == nullptr && cfg_is_empty(root.get()) == 0) {
    throw Rejected("no \"radio-interface\" array");
  }
  if (array != nullptr && !is_array(array)) {
    throw Rejected("\"radio-interface\" is not an array");
  }
  require_objects(array, "radio-interface");
  return convert_radios(NcIpcApMonitoringRadioInterface::from_json(array));
}

// ---- interfaces -------------------------------------------------------------------------------

Converted convert_interfaces(std::shared_ptr<NcIpcApMonitoringInterfaces> const& list) {
  if (!list) {
    throw Rejected("no \"interface\" array");
  }
  Converted out{list->to_ipc(),
                std::nullopt,
                {{"NAME", "MAC", "STATE", "SPEED", "DUPLEX", "TX-BYTES", "RX-BYTES"}, {}}};
  // The state and duplex words as the record wrote them ("" outside its tables).
  std::vector<std::string> const states = texts_in(out.ipc, nullptr, "operstate");
  std::vector<std::string> const duplexes = texts_in(out.ipc, nullptr, "duplex");
  for (std::size_t i = 0; i < list->interfaces.size(); ++i) {
    NcIpcApMonitoringInterfaces::ApInterfaceInfo const& interface = list->interfaces[i];
    out.summary.rows.push_back({or_dash(interface.name), interface.hwaddr.str(),
                                or_dash(states.at(i)), std::to_string(interface.speed),
                                or_dash(duplexes.at(i)), std::to_string(interface.tx_bytes),
                                std::to_string(interface.rx_bytes)});
  }
  return out;
}

std::vector<Converted> interfaces_from_netconf(std::string const& text,
                                               NetconfOptions const& options) {
  MonitoringInput const input = monitoring_node(text, options, "interface", false);
  return one(convert_interfaces(NcIpcApMonitoringInterfaces::from_netconf(*input.node)));
}

Converted interfaces_from_ipc(std::string const& text) {
  cfg::Tree const root = cfg::parse(text);
  cfg::Tree const wrapper = wrap_array(ipc_array(root, "interface"), "interface");
  return convert_interfaces(NcIpcApMonitoringInterfaces::from_ipc(*wrapper));
}

// ---- ports ------------------------------------------------------------------------------------

Converted convert_ports(std::shared_ptr<NcIpcApMonitoringEthernetPorts> const& list) {
  if (!list) {
    throw Rejected("no \"ethernet-ports\" array");
  }
  Converted out{list->to_ipc(),
                std::nullopt,
                {{"NAME", "INTERFACE", "MAC", "LINK", "SPEED", "DUPLEX", "MEDIA"}, {}}};
  // The link and duplex words as the record wrote them ("" outside its tables).
  std::vector<std::string> const links = texts_in(out.ipc, nullptr, "link");
  std::vector<std::string> const duplexes = texts_in(out.ipc, nullptr, "duplex");
  for (std::size_t i = 0; i < list->ethernet_ports.size(); ++i) {
    NcIpcApMonitoringEthernetPorts::ApEthernetPortInfo const& port = list->ethernet_ports[i];
    out.summary.rows.push_back({or_dash(port.name), or_dash(port.logical_interface),
                                port.mac_address.str(), or_dash(links.at(i)),
                                std::to_string(port.speed), or_dash(duplexes.at(i)),
                                or_dash(port.media_type)});
  }
  return out;
}

std::vector<Converted> ports_from_netconf(std::string const& text, NetconfOptions const& options) {
  MonitoringInput const input = monitoring_node(text, options, "ethernet-ports", false);
  return one(convert_ports(NcIpcApMonitoringEthernetPorts::from_netconf(*input.node)));
}

Converted ports_from_ipc(std::string const& text) {
  cfg::Tree const root = cfg::parse(text);
  cfg::Tree const wrapper = wrap_array(ipc_array(root, "ethernet-ports"), "ethernet-ports");
  return convert_ports(NcIpcApMonitoringEthernetPorts::from_ipc(*wrapper));
}

// ---- neighbours -------------------------------------------------------------------------------

Converted convert_neighbours(std::shared_ptr<NcIpcApMonitoringApNeighbours> const& list) {
  if (!list) {
    throw Rejected("no neighbour array");
  }
  Converted out{list->to_ipc(),
                std::nullopt,
                {{"BSSID", "SSID", "CHANNEL", "SIGNAL", "PRIVACY", "MANAGED"}, {}}};
  for (NcIpcApMonitoringApNeighbours::ApNeighbourInfo const& neighbour : list->neighbours) {
    out.summary.rows.push_back(
        {neighbour.bssid.str(), or_dash(neighbour.ssid), std::to_string(neighbour.channel),
         std::to_string(neighbour.signal_level), neighbour.privacy ? "yes" : "no",
         neighbour.controlled_by_wlc ? (*neighbour.controlled_by_wlc ? "yes" : "no") : "-"});
  }
  return out;
}

std::vector<Converted> neighbours_from_netconf(std::string const& text,
                                               NetconfOptions const& options) {
  MonitoringInput const input = monitoring_node(text, options, "neighbor-ap", false);
  return one(convert_neighbours(NcIpcApMonitoringApNeighbours::from_netconf(*input.node)));
}

Converted neighbours_from_ipc(std::string const& text) {
  cfg::Tree const root = cfg::parse(text);
  cfg::Tree const wrapper = wrap_array(ipc_array(root, "ap-neighbours"), "ap-neighbours");
  return convert_neighbours(NcIpcApMonitoringApNeighbours::from_ipc(*wrapper));
}

} // namespace

void add_monitoring_families(std::vector<Family>& out) {
  out.push_back(
      {"info", "An AP's device information (has a change hash)", info_from_netconf, info_from_ipc});
  out.push_back({"radios", "An AP's radios", radios_from_netconf, radios_from_ipc});
  out.push_back(
      {"interfaces", "An AP's network interfaces", interfaces_from_netconf, interfaces_from_ipc});
  out.push_back({"ports", "An AP's Ethernet ports", ports_from_netconf, ports_from_ipc});
  out.push_back({"neighbours", "The APs an AP hears over the air", neighbours_from_netconf,
                 neighbours_from_ipc});
}

} // namespace wlccw::tool
