// The client record read from one client object of an AP's NETCONF monitoring reply.
#include <wlccw/client/APClientData.hpp>

#include <wlccw/client/radio_signal.hpp>
#include <wlccw/common/errors.hpp>
#include <wlccw/common/html.hpp>

#include "detail/client_statistics.hpp"
#include "detail/html.hpp"
#include "detail/modulation.hpp"
#include "detail/signal_readings.hpp"

#include <cstdio>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace std::string_view_literals;

/// Reads a run of one to nine decimal digits at p (none of the signs or white space sscanf's %u
/// would also take); false when p holds no such run.
bool read_digits(char const*& p, unsigned int& value) noexcept {
  char const* const start = p;
  unsigned int v = 0;
  for (; *p >= '0' && *p <= '9'; ++p) {
    if (p - start == 9) {
      return false;
    }
    v = v * 10U + static_cast<unsigned int>(*p - '0');
  }
  value = v;
  return p != start;
}

/// The two shapes an AP writes, "H:M:S" and "D d H:M:S", read by hand when every number is plain
/// digits: for such a text the numbers are the ones the sscanf formats below read. Any other text
/// is left to those formats.
bool read_plain_uptime(char const* text, std::optional<std::uint32_t>& uptime) noexcept {
  char const* p = text;
  unsigned int first = 0;
  unsigned int hours = 0;
  unsigned int minutes = 0;
  unsigned int seconds = 0;
  if (!read_digits(p, first)) {
    return false;
  }
  if (*p == ':') {
    ++p;
    if (read_digits(p, minutes) && *p == ':' && read_digits(++p, seconds)) {
      uptime = static_cast<std::uint32_t>(first * 3600U + minutes * 60U + seconds);
      return true;
    }
    return false;
  }
  if (p[0] == ' ' && p[1] == 'd' && p[2] == ' ') {
    p += 3;
    if (read_digits(p, hours) && *p == ':' && read_digits(++p, minutes) && *p == ':' &&
        read_digits(++p, seconds)) {
      uptime = static_cast<std::uint32_t>(first * 86400U + hours * 3600U + minutes * 60U + seconds);
      return true;
    }
  }
  return false;
}

/// Seconds of an AP's uptime text: "H:M:S", or "D d H:M:S" (each number as sscanf's %u reads it,
/// text after the last number ignored); empty for anything else. The arithmetic wraps as unsigned
/// 32-bit, as the AP's own counters do.
std::optional<std::uint32_t> uptime_from_netconf(char const* text) {
  if (std::optional<std::uint32_t> uptime; read_plain_uptime(text, uptime)) {
    return uptime;
  }
  unsigned int hours = 0;
  unsigned int minutes = 0;
  unsigned int seconds = 0;
  if (std::sscanf(text, "%u:%u:%u", &hours, &minutes, &seconds) == 3) {
    return static_cast<std::uint32_t>(hours * 3600U + minutes * 60U + seconds);
  }
  unsigned int days = 0;
  if (std::sscanf(text, "%u d %u:%u:%u", &days, &hours, &minutes, &seconds) == 4) {
    return static_cast<std::uint32_t>(days * 86400U + hours * 3600U + minutes * 60U + seconds);
  }
  return std::nullopt;
}

/// Feeds the per-antenna readings of a signal metric (name-1 ... name-8, or name alone) to the
/// accumulator, then takes the overall reading name as the reported value.
void read_signal(lcw_data_t const* client, char const* name,
                 AntennaSignalMetrics<std::greater<int>, std::less<int>>& metric) {
  wlccw::detail::add_readings(metric,
                              radio::signal::parse_numbered_parameters_from_netconf(client, name));
  metric.reported = cfg_get_int32_param_opt(client, name);
}

/// The names one direction of a client's statistics is read from.
struct DirectionKeys {
  char const* rate;         // "tx-rate"
  char const* bandwidth;    // "tx-bw"
  char const* rate_numeric; // "tx-rate-numeric"
  char const* actual_rate;  // "actual-tx-rate"
  char const* counters;     // "/statistics/tx", the path of the counter object
};

constexpr DirectionKeys tx_keys{"tx-rate", "tx-bw", "tx-rate-numeric", "actual-tx-rate",
                                "/statistics/tx"};
constexpr DirectionKeys rx_keys{"rx-rate", "rx-bw", "rx-rate-numeric", "actual-rx-rate",
                                "/statistics/rx"};

/// The rate facts of one direction of a client's statistics, read under the given names: empty
/// when the AP gave none of the rate text, the bandwidth and the actual rate.
std::optional<APClientData::Statistics::Statistic> read_rates(lcw_data_t& node,
                                                              DirectionKeys const& keys) {
  using wlccw::detail::ModulationPart;
  using wlccw::detail::parse_modulation_data_string;

  std::optional<std::string> rate = cfg_get_param_opt(&node, keys.rate);
  std::optional<std::string> bandwidth = cfg_get_param_opt(&node, keys.bandwidth);
  std::optional<std::string> rate_numeric = cfg_get_param_opt(&node, keys.rate_numeric);
  std::optional<std::uint32_t> const actual_rate =
      cfg_get_uint32_param_opt(&node, keys.actual_rate);

  std::optional<APClientData::Statistics::Statistic> statistic;
  // The numeric rate only completes a rate text; by itself it makes no statistic.
  if (rate || bandwidth || actual_rate) {
    statistic.emplace();
    if (actual_rate) {
      statistic->actual_rate = static_cast<std::int32_t>(*actual_rate);
    }
    if (rate) {
      statistic->modulation = parse_modulation_data_string(rate, ModulationPart::MODULATION);
      statistic->rate_numeric =
          rate_numeric ? std::move(rate_numeric)
                       : parse_modulation_data_string(rate, ModulationPart::NUMERIC_RATE);
      statistic->rate = std::move(rate);
    }
    if (bandwidth) {
      statistic->bandwidth = std::move(bandwidth);
    }
  }
  return statistic;
}

/// Adds the byte and packet counters of one direction to its statistic, which they make when the
/// rates made none; nothing when the AP gave no counter object for the direction.
void read_counters(lcw_data_t& node, DirectionKeys const& keys,
                   std::optional<APClientData::Statistics::Statistic>& statistic) {
  if (lcw_data_t const* const counters = cfg_get_subtree_from_path(&node, keys.counters)) {
    if (!statistic) {
      statistic.emplace();
    }
    statistic->bytes = cfg_get_int_param(counters, "bytes");
    statistic->packets = cfg_get_int_param(counters, "packets");
  }
}

/// One direction of a client's statistics, read under the given names.
std::optional<APClientData::Statistics::Statistic> read_statistic(lcw_data_t& node,
                                                                  DirectionKeys const& keys) {
  std::optional<APClientData::Statistics::Statistic> statistic = read_rates(node, keys);
  read_counters(node, keys, statistic);
  return statistic;
}

} // namespace

APClientData APClientData::from_netconf_json(lcw_data_t* client) {
  if (client == nullptr) {
    throw wlccw::InvalidJsonPointer();
  }
  if (cfg_is_empty(client) != 0) {
    throw wlccw::EmptyJson();
  }

  // Identity. Each text is used or copied before the next read: a text the tree returns lives
  // only until the next operation on it.
  MacAddr const client_mac = MacAddr::from_str(cfg_get_param(client, "hw-addr"));
  std::string const client_interface = cfg_get_param(client, "interface");
  std::string const client_ssid =
      external_data::ap::decode_html_safe(cfg_get_param(client, "ssid"));
  APClientData data(client_mac, client_interface, client_ssid);

  data.ip = cfg_get_param(client, "ip-addr");
  data.vlan_id = cfg_get_uint32_param_opt(client, "vlan-id");
  data.hostname = cfg_get_param_opt(client, "hostname");
  wlccw::detail::decode_html_safe_in_place(data.hostname);
  data.username = cfg_get_param_opt(client, "username");
  wlccw::detail::decode_html_safe_in_place(data.username);
  data.domain = cfg_get_param_opt(client, "domain");
  wlccw::detail::decode_html_safe_in_place(data.domain);
  data.frequency = cfg_get_uint32_param_opt(client, "frequency");
  data.channel = cfg_get_uint32_param_opt(client, "channel");
  data.uptime = uptime_from_netconf(cfg_get_param(client, "uptime"));

  read_signal(client, "rssi", data.rssi);
  read_signal(client, "snr", data.snr);

  if (std::optional<std::string> const authorized = cfg_get_param_opt(client, "authorized")) {
    data.authorized = *authorized == "yes"sv || *authorized == "true"sv;
  }
  data.wireless_mode =
      client_wireless_mode_from_netconf_str(cfg_get_param_opt(client, "wireless-mode"));
  data.link_quality = cfg_get_param_opt(client, "link-quality");
  data.link_quality_common = cfg_get_param_opt(client, "link-quality-common");

  // get_tx_rx_statistics(client, get_statistic_from_netconf), without building names or calling
  // through a std::function. The reads follow the order APs write the keys in (the rates of both
  // directions, then the counter object), so that most find the member next to the one before.
  std::optional<APClientData::Statistics::Statistic> tx = read_rates(*client, tx_keys);
  std::optional<APClientData::Statistics::Statistic> rx = read_rates(*client, rx_keys);
  read_counters(*client, tx_keys, tx);
  read_counters(*client, rx_keys, rx);
  data.statistics = wlccw::detail::combine_statistics(std::move(tx), std::move(rx));

  // Each authentication state beside its time, as APs write them.
  data.eap_method = client_eap_method_from_netconf_str(cfg_get_param(client, "eap-method"));
  data.mac_auth_status =
      client_mac_auth_status_from_netconf_str(cfg_get_param(client, "radius-mac-auth"));
  data.mac_auth_uptime = cfg_get_uint32_param_opt(client, "radius-mac-auth-time");
  data.portal_auth_status =
      client_portal_auth_status_from_netconf_str(cfg_get_param(client, "portal-auth"));
  data.portal_auth_uptime = cfg_get_uint32_param_opt(client, "portal-auth-time");
  data.wlan_auth_status =
      client_wlan_auth_status_from_netconf_str(cfg_get_param(client, "wlan-auth-status"));
  data.wlan_auth_method =
      client_wlan_auth_method_from_netconf_str(cfg_get_param(client, "wlan-auth-type"));
  data.wlan_auth_uptime = cfg_get_uint32_param_opt(client, "wlan-auth-time");
  data.auth_algorithm = client_auth_algorithm_netconf_str(cfg_get_param(client, "auth-algorithm"));

  data.mlo = Mlo::from_netconf_json(*client);

  data.encryption_cipher =
      wlccw::detail::cipher_from_netconf(cfg_get_param_opt(client, "encryption-cipher"));
  data.encryption_group_cipher =
      wlccw::detail::cipher_from_netconf(cfg_get_param_opt(client, "encryption-group-cipher"));

  // band, ap_hostname and ap_location are the controller's to fill.
  return data;
}

std::optional<APClientData::Statistics::Statistic>
get_statistic_from_netconf(lcw_data_t& node, std::string const& direction) {
  if (direction == "tx"sv) {
    return read_statistic(node, tx_keys);
  }
  if (direction == "rx"sv) {
    return read_statistic(node, rx_keys);
  }
  std::string const rate = direction + "-rate";
  std::string const bandwidth = direction + "-bw";
  std::string const rate_numeric = direction + "-rate-numeric";
  std::string const actual_rate = "actual-" + direction + "-rate";
  std::string const counters = "/statistics/" + direction;
  return read_statistic(node, {rate.c_str(), bandwidth.c_str(), rate_numeric.c_str(),
                               actual_rate.c_str(), counters.c_str()});
}
