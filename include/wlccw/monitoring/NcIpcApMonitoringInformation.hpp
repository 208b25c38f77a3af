/// \file
/// An access point's identity and health as it reports them in its NETCONF monitoring reply:
/// uptime, host name, firmware and boot versions, hardware platform and revision, serial number,
/// last reboot reason, power supply and whether it runs its default configuration.
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
  /// True until a reply was read successfully ("error").
  bool error = true;
  std::string uptime;                              ///< "uptime", text as the AP sent it
  std::string hostname;                            ///< "hostname"
  std::string secondary_software_version;          ///< "secondary-software-version"
  std::string boot_version;                        ///< "boot-version"
  std::string hw_platform;                         ///< "hw-platform"
  std::string factory_serial_number;               ///< "factory-serial-number"
  std::string hw_revision;                         ///< "hw-revision"
  PowerSupply power_supply = PowerSupply::UNKNOWN; ///< "power-supply", written "" when UNKNOWN
  std::string last_reboot_reason;                  ///< "last-reboot-reason"
  bool is_default_config = false;                  ///< "is-default-config", true only for JSON true

  /// All defaults: error true.
  NcIpcApMonitoringInformation() = default;
  /// Reads the compact IPC text that to_str writes, as from_json reads its tree; text that is not
  /// JSON leaves the defaults (error true). Never throws on bad input.
  explicit NcIpcApMonitoringInformation(std::string_view text);

  /// Reads an AP's NETCONF reply text: the keys under "/rpc-reply/data/monitoring/information".
  /// Text that is not JSON, a reply whose root "error" is JSON true and a reply without that path
  /// give the default record (error true). Otherwise error is false; a text key reads as "" when
  /// missing or not a scalar (a number as its decimal text), an unknown "power-supply" as UNKNOWN,
  /// and "is-default-config" is true only for JSON true. Never throws on bad input.
  static NcIpcApMonitoringInformation from_netconf(std::string const& reply);
  /// Reads the IPC tree, the keys at its root. A null tree gives the default record. error is true
  /// only for a JSON true "error", and then nothing else is read; a missing or non-boolean "error"
  /// reads as false and the other keys are read as from_netconf reads them. Never throws on bad
  /// input.
  static NcIpcApMonitoringInformation from_json(lcw_data_t const* tree);

  /// The IPC tree, owned by the caller (release it with cfg_release); null when no tree can be
  /// made. Holds only "error" while error is true; otherwise "error" and then the ten keys in wire
  /// order ("last-reboot-reason" before "hw-revision").
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made.
  std::string to_str() const;
  /// The standard string hash of to_str().
  std::size_t get_hash() const;

  /// Equal when every member is equal, error included.
  friend bool operator==(NcIpcApMonitoringInformation const&,
                         NcIpcApMonitoringInformation const&) = default;
};
