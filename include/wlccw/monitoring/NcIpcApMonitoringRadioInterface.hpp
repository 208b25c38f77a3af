/// \file
/// The radios of an access point as it reports them in its NETCONF monitoring data: name, band,
/// address, status, channel settings, transmit power and the measurements that radio-resource
/// management works with (noise, utilisation, interference, packet error rate).
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The mean of samples by the controller's fixed arithmetic: an empty list gives no value; else
/// the 64-bit two's-complement sum, divided as an unsigned number by the count, truncated to its
/// low 32 bits. For a sum that is not negative this is the mean rounded down; a negative sum gives
/// the mean rounded towards minus infinity when the count is a power of two, otherwise a large
/// positive number (three samples of -95 give 1431655670).
WLCCW_EXPORT std::optional<std::int32_t>
average_vector_opt(std::vector<std::int32_t> const& values);

/// The radio list of one AP. There is no error flag: a failed reading gives an empty list.
class WLCCW_EXPORT NcIpcApMonitoringRadioInterface {
public:
  /// One radio. The seven int8 measurements are filled by every reader, -1 standing for a
  /// measurement the AP did not report (or one that does not fit); an empty one (a record built
  /// by hand) is left out of the IPC form. The noise level is "noise-level" when it reads as a
  /// 16-bit integer, else the average_vector_opt of the samples "noise-1" to "noise-8" (up to the
  /// first missing one; "noise" when there is none) cut to 16 bits, else empty.
  struct WLCCW_EXPORT RadioParams {
    std::string name;                                   ///< "name"
    std::string band;                                   ///< "band"
    std::string status;                                 ///< "status"
    std::string hwaddr;                                 ///< "hwaddr", text as the AP sent it
    std::optional<std::string> tx_power;                ///< "tx-power"
    std::optional<std::string> eirp;                    ///< "eirp"
    std::optional<std::string> channel;                 ///< "channel"
    std::optional<std::string> bandwidth;               ///< "bandwidth"
    std::optional<std::string> frequency;               ///< "frequency"
    std::optional<std::int16_t> noise_level;            ///< "noise-level", else the noise samples
    std::optional<std::int8_t> utilization;             ///< "utilization"
    std::optional<std::int8_t> rx_utilization;          ///< "rx-utilization"
    std::optional<std::int8_t> tx_utilization;          ///< "tx-utilization"
    std::optional<std::int8_t> non_wifi_interference;   ///< "non-wifi-interference"
    std::optional<std::int8_t> ap_interference_ratio;   ///< "ap-interference-ratio"
    std::optional<std::int8_t> co_channel_interference; ///< "co-channel-interference"
    std::optional<std::int8_t> packet_error_rate;       ///< "packet-error-rate"

    /// Writes the radio into object, keys in wire order (channel and bandwidth before the power);
    /// empty optional members are left out.
    void to_json(lcw_data_t& object) const;

    /// Equal when every member is equal.
    friend bool operator==(RadioParams const&, RadioParams const&) = default;
  };

  /// The radios in the order of the JSON array.
  std::vector<RadioParams> radios;

  /// No radios.
  NcIpcApMonitoringRadioInterface() = default;
  /// Reads text whose root is the array of radio objects (the "radio-interface" member of to_str's
  /// text, not to_str's text itself), one radio per element; text that is not JSON or not an array
  /// gives no radios. Never throws on bad input.
  explicit NcIpcApMonitoringRadioInterface(std::string_view text);

  /// Reads an AP's NETCONF reply text: the "radio-interface" array under
  /// "/rpc-reply/data/monitoring". Text that is not JSON, a reply whose root "error" is true and a
  /// reply without that array give no radios. Never throws on bad input.
  static NcIpcApMonitoringRadioInterface from_netconf(std::string const& reply);
  /// Reads an array node of radio objects, one radio per element; null or a node that is not an
  /// array gives no radios.
  static NcIpcApMonitoringRadioInterface from_json(lcw_data_t const* array);

  /// The IPC tree, owned by the caller (release it with cfg_release): an object with the array
  /// "radio-interface", or an empty object when there are no radios; null when no tree can be made.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made.
  std::string to_str() const;

  /// Equal when both lists hold equal radios in the same order.
  friend bool operator==(NcIpcApMonitoringRadioInterface const&,
                         NcIpcApMonitoringRadioInterface const&) = default;
};
