// An access point's device information: read from its NETCONF monitoring reply, written and read
// as IPC JSON, hashed over the compact IPC text.
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>

#include <wlccw/cfg/owned.hpp>

#include <functional>
#include <string>

namespace {

constexpr char const* reply_information_path = "/rpc-reply/data/monitoring/information";

/// Reads the ten information keys of node into record, in the AP's order. The same keys and
/// conversions serve the NETCONF reply (below its information path) and the IPC form (at the root).
void read_fields(NcIpcApMonitoringInformation& record, lcw_data_t const* node) {
  record.uptime = cfg_get_param(node, "uptime");
  record.hostname = cfg_get_param(node, "hostname");
  record.secondary_software_version = cfg_get_param(node, "secondary-software-version");
  record.boot_version = cfg_get_param(node, "boot-version");
  record.hw_platform = cfg_get_param(node, "hw-platform");
  record.factory_serial_number = cfg_get_param(node, "factory-serial-number");
  record.hw_revision = cfg_get_param(node, "hw-revision");
  // A missing supply reads as "" and so as UNKNOWN.
  record.power_supply = power_supply_from_str(cfg_get_param(node, "power-supply"));
  record.last_reboot_reason = cfg_get_param(node, "last-reboot-reason");
  record.is_default_config = cfg_get_boolean_param(node, "is-default-config") != 0;
}

/// The IPC reading of a tree: "error" true leaves every other field at its default.
void read_ipc(NcIpcApMonitoringInformation& record, lcw_data_t const* tree) {
  record.error = cfg_get_boolean_param(tree, "error") != 0;
  if (record.error) {
    return;
  }
  read_fields(record, tree);
}

} // namespace

NcIpcApMonitoringInformation::NcIpcApMonitoringInformation(std::string_view text) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(std::string(text));
  if (!root) {
    return; // not JSON: error stays true
  }
  read_ipc(*this, root.get());
}

NcIpcApMonitoringInformation NcIpcApMonitoringInformation::from_netconf(std::string const& reply) {
  NcIpcApMonitoringInformation record;
  wlccw::cfg::Tree const root = wlccw::cfg::parse(reply);
  if (!root) {
    return record;
  }
  // A reply the AP marked as failed is rejected whole, whatever data it carries.
  if (cfg_get_boolean_param(root.get(), "error") != 0) {
    return record;
  }
  lcw_data_t const* const information =
      cfg_get_subtree_from_path(root.get(), reply_information_path);
  if (information == nullptr) {
    return record;
  }
  record.error = false;
  read_fields(record, information);
  return record;
}

NcIpcApMonitoringInformation NcIpcApMonitoringInformation::from_json(lcw_data_t const* tree) {
  NcIpcApMonitoringInformation record;
  if (tree == nullptr) {
    return record;
  }
  read_ipc(record, tree);
  return record;
}

lcw_data_t* NcIpcApMonitoringInformation::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root) {
    return nullptr;
  }
  lcw_data_t* const node = root.get();
  cfg_set_boolean_param(node, "error", error);
  if (error) {
    return root.release();
  }
  // Wire order, which the hash depends on: the reboot reason goes before the hardware revision.
  cfg_insert_child_string(node, "uptime", uptime.c_str());
  cfg_insert_child_string(node, "hostname", hostname.c_str());
  cfg_insert_child_string(node, "secondary-software-version", secondary_software_version.c_str());
  cfg_insert_child_string(node, "boot-version", boot_version.c_str());
  cfg_insert_child_string(node, "hw-platform", hw_platform.c_str());
  cfg_insert_child_string(node, "factory-serial-number", factory_serial_number.c_str());
  cfg_insert_child_string(node, "last-reboot-reason", last_reboot_reason.c_str());
  cfg_insert_child_string(node, "hw-revision", hw_revision.c_str());
  cfg_insert_child_string(node, "power-supply", power_supply_to_str(power_supply).c_str());
  cfg_set_boolean_param(node, "is-default-config", is_default_config);
  return root.release();
}

std::string NcIpcApMonitoringInformation::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}

std::size_t NcIpcApMonitoringInformation::get_hash() const {
  return std::hash<std::string>{}(to_str());
}
