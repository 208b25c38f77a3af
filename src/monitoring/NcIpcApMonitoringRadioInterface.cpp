// The radios of an access point: read from its NETCONF monitoring reply and from IPC JSON, written
// as IPC JSON.
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/radio_signal.hpp>

#include <string>

std::optional<std::int32_t> average_vector_opt(std::vector<std::int32_t> const& values) {
  if (values.empty()) {
    return std::nullopt;
  }
  // The sum wraps in 64-bit two's complement and is then divided as an unsigned number, so a
  // negative sum is divided as a huge positive one. Every daemon computes noise levels with this
  // arithmetic and compares them, so it is kept exactly rather than replaced by a signed mean.
  std::uint64_t sum = 0;
  for (std::int32_t const value : values) {
    sum += static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
  }
  std::uint64_t const quotient = sum / static_cast<std::uint64_t>(values.size());
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(quotient));
}

namespace {

/// The value that stands for a measurement the AP did not report.
constexpr signed char not_reported = -1;

std::optional<std::int8_t> measurement(lcw_data_t const* radio, char const* key) {
  return cfg_get_int8_param_with_custom_default(radio, key, not_reported);
}

/// The noise level the AP reported, else the average of its numbered noise samples cut to 16 bits,
/// else none.
std::optional<std::int16_t> noise_level(lcw_data_t const* radio) {
  if (std::optional<short> const level = cfg_get_int16_param_opt(radio, "noise-level")) {
    return *level;
  }
  std::optional<std::int32_t> const average =
      average_vector_opt(radio::signal::parse_numbered_parameters_from_netconf(radio, "noise"));
  if (!average) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(*average));
}

NcIpcApMonitoringRadioInterface::RadioParams read_radio(lcw_data_t const* radio) {
  NcIpcApMonitoringRadioInterface::RadioParams params;
  params.name = cfg_get_param(radio, "name");
  params.band = cfg_get_param(radio, "band");
  params.hwaddr = cfg_get_param(radio, "hwaddr");
  params.status = cfg_get_param(radio, "status");
  params.tx_power = cfg_get_param_opt(radio, "tx-power");
  params.eirp = cfg_get_param_opt(radio, "eirp");
  params.channel = cfg_get_param_opt(radio, "channel");
  params.bandwidth = cfg_get_param_opt(radio, "bandwidth");
  params.frequency = cfg_get_param_opt(radio, "frequency");
  params.utilization = measurement(radio, "utilization");
  params.rx_utilization = measurement(radio, "rx-utilization");
  params.tx_utilization = measurement(radio, "tx-utilization");
  params.non_wifi_interference = measurement(radio, "non-wifi-interference");
  params.ap_interference_ratio = measurement(radio, "ap-interference-ratio");
  params.co_channel_interference = measurement(radio, "co-channel-interference");
  params.noise_level = noise_level(radio);
  params.packet_error_rate = measurement(radio, "packet-error-rate");
  return params;
}

/// Appends every element of an array node as one radio; nothing for null or a node that is not an
/// array.
void read_radios(std::vector<NcIpcApMonitoringRadioInterface::RadioParams>& radios,
                 lcw_data_t const* array) {
  wlccw::cfg::for_each_element(
      array, [&radios](lcw_data_t& radio) { radios.push_back(read_radio(&radio)); });
}

} // namespace

void NcIpcApMonitoringRadioInterface::RadioParams::to_json(lcw_data_t& object) const {
  lcw_data_t* const node = &object;
  cfg_set_param(node, "name", name.c_str());
  cfg_set_param(node, "band", band.c_str());
  cfg_set_param(node, "hwaddr", hwaddr.c_str());
  cfg_set_param(node, "status", status.c_str());
  // Wire order: channel and bandwidth come before the power texts.
  cfg_set_param_opt(node, "channel", channel);
  cfg_set_param_opt(node, "bandwidth", bandwidth);
  cfg_set_param_opt(node, "tx-power", tx_power);
  cfg_set_param_opt(node, "eirp", eirp);
  cfg_set_param_opt(node, "frequency", frequency);
  cfg_set_int16_param_opt(node, "noise-level", noise_level);
  cfg_set_int8_param_opt(node, "utilization", utilization);
  cfg_set_int8_param_opt(node, "rx-utilization", rx_utilization);
  cfg_set_int8_param_opt(node, "tx-utilization", tx_utilization);
  cfg_set_int8_param_opt(node, "non-wifi-interference", non_wifi_interference);
  cfg_set_int8_param_opt(node, "ap-interference-ratio", ap_interference_ratio);
  cfg_set_int8_param_opt(node, "co-channel-interference", co_channel_interference);
  cfg_set_int8_param_opt(node, "packet-error-rate", packet_error_rate);
}

NcIpcApMonitoringRadioInterface::NcIpcApMonitoringRadioInterface(std::string_view text) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(std::string(text));
  // The root itself is the array of radios; not JSON or not an array gives none.
  read_radios(radios, root.get());
}

NcIpcApMonitoringRadioInterface
NcIpcApMonitoringRadioInterface::from_netconf(std::string const& reply) {
  NcIpcApMonitoringRadioInterface record;
  wlccw::cfg::Tree const root = wlccw::cfg::parse(reply);
  if (!root) {
    return record;
  }
  // A reply the AP marked as failed is rejected whole, whatever data it carries.
  if (cfg_get_boolean_param(root.get(), "error") != 0) {
    return record;
  }
  if (lcw_data_t const* const monitoring =
          cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring")) {
    read_radios(record.radios, cfg_get_subtree(monitoring, "radio-interface"));
  }
  return record;
}

NcIpcApMonitoringRadioInterface
NcIpcApMonitoringRadioInterface::from_json(lcw_data_t const* array) {
  NcIpcApMonitoringRadioInterface record;
  read_radios(record.radios, array);
  return record;
}

lcw_data_t* NcIpcApMonitoringRadioInterface::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root) {
    return nullptr;
  }
  if (radios.empty()) {
    return root.release(); // no "radio-interface" key at all
  }
  lcw_data_t* const array = cfg_insert_empty_array(root.get(), "radio-interface");
  if (array == nullptr) {
    return root.release();
  }
  for (RadioParams const& radio : radios) {
    lcw_data_t* const object = cfg_insert_empty_subtree(array, nullptr);
    if (object == nullptr) {
      continue; // a radio whose element cannot be added is left out
    }
    radio.to_json(*object);
  }
  return root.release();
}

std::string NcIpcApMonitoringRadioInterface::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}
