// An access point's identity and health as it reports them in its NETCONF monitoring reply: uptime,
// host name, firmware and boot versions, hardware platform and revision, serial number, last reboot
// reason, power supply and whether it runs its default configuration.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/enums/PowerSupply.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <string>
#include <string_view>

/// The device information of one AP. `error` is true until a reply was read successfully; while it
/// is true the other members hold their defaults and the IPC form is {"error":true}.
class WLCCW_EXPORT NcIpcApMonitoringInformation {
public:
  bool error = true;
  std::string uptime;                              ///< "uptime", text as the AP sent it
  std::string hostname;                            ///< "hostname"
  std::string secondary_software_version;          ///< "secondary-software-version"
  std::string boot_version;                        ///< "boot-version"
  std::string hw_platform;                         ///< "hw-platform"
  std::string factory_serial_number;               ///< "factory-serial-number"
  std::string hw_revision;                         ///< "hw-revision"
  PowerSupply power_supply = PowerSupply::UNKNOWN; ///< "power-supply"
  std::string last_reboot_reason;                  ///< "last-reboot-reason"
  bool is_default_config = false;                  ///< "is-default-config"

  /// All defaults: error true.
  NcIpcApMonitoringInformation() = default;
  /// Reads the compact IPC text that to_str writes; text that is not JSON leaves the defaults.
  explicit NcIpcApMonitoringInformation(std::string_view text);

  /// Reads an AP's NETCONF reply text: the keys under "/rpc-reply/data/monitoring/information".
  /// Text that is not JSON, a reply whose root "error" is true and a reply without that subtree
  /// give the default record (error true). Never throws on bad input.
  static NcIpcApMonitoringInformation from_netconf(std::string const& reply);
  /// Reads the IPC tree (the keys at its root); a null tree gives the default record.
  static NcIpcApMonitoringInformation from_json(lcw_data_t const* tree);

  /// The IPC tree, owned by the caller (release it with cfg_release); null when no tree can be
  /// made. Holds only "error" while error is true.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made.
  std::string to_str() const;
  /// The standard string hash of to_str().
  std::size_t get_hash() const;

  friend bool operator==(NcIpcApMonitoringInformation const&,
                         NcIpcApMonitoringInformation const&) = default;
};
