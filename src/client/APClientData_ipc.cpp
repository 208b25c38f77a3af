// The client record's IPC form (writer and reader), the merge of a newer record into an older one
// and the command-line summary of how the client authenticated.
#include <wlccw/client/APClientData.hpp>

#include "detail/client_enum_texts.hpp"
#include "detail/client_ipc.hpp"
#include "detail/tree_extensions.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/errors.hpp>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace {

using Statistic = APClientData::Statistics::Statistic;
using Metrics = AntennaSignalMetrics<std::greater<int>, std::less<int>>;

// ---- Writing --------------------------------------------------------------------------------

/// Writes a signal metric as the list of its readings under list_key and its representative value
/// under value_key; nothing at all when there is no reading (a reported value alone is not sent).
template <typename Sink>
void write_signal(Sink& object, wlccw::detail::Key list_key, wlccw::detail::Key value_key,
                  Metrics const& metrics) {
  if (metrics.values.empty()) {
    return;
  }
  if (Sink list = object.array_or_existing(list_key)) {
    for (int const value : metrics.values) {
      list.append_int(value);
    }
  }
  object.set_int(value_key, metrics.get_signal());
}

/// Writes one direction of the traffic counters into the object key of statistics (reused if it is
/// there); skipped when that object cannot be made.
template <typename Sink>
void write_statistic(Sink& statistics, wlccw::detail::Key key, Statistic const& statistic) {
  Sink direction = statistics.object_or_existing(key);
  if (!direction) {
    return;
  }
  direction.set_param_opt("rate", statistic.rate);
  direction.set_param_opt("bandwidth", statistic.bandwidth);
  direction.set_param_opt("modulation", statistic.modulation);
  direction.set_param_opt("rate-numeric", statistic.rate_numeric);
  direction.set_int32("actual-rate", statistic.actual_rate);
  direction.set_int32("bytes", statistic.bytes);
  direction.set_int32("packets", statistic.packets);
}

// ---- Reading --------------------------------------------------------------------------------

/// One direction ("tx" or "rx") of the counters of an IPC object: empty without the object
/// "/statistics/<dir>"; otherwise its texts where present and its numbers, 0 where missing.
std::optional<Statistic> get_statistic(lcw_data_t& object, std::string const& dir) {
  std::string path = "/statistics/";
  path += dir;
  lcw_data_t const* const direction = cfg_get_subtree_from_path(&object, path.c_str());
  if (direction == nullptr) {
    return std::nullopt;
  }
  Statistic statistic;
  statistic.rate = cfg_get_param_opt(direction, "rate");
  statistic.bandwidth = cfg_get_param_opt(direction, "bandwidth");
  statistic.modulation = cfg_get_param_opt(direction, "modulation");
  statistic.rate_numeric = cfg_get_param_opt(direction, "rate-numeric");
  statistic.actual_rate = cfg_get_int_param(direction, "actual-rate");
  statistic.bytes = cfg_get_int_param(direction, "bytes");
  statistic.packets = cfg_get_int_param(direction, "packets");
  return statistic;
}

/// An authentication uptime sent as text (or as a number, read as its text): a signed decimal long
/// with leading white space and a sign allowed and trailing characters ignored, of which the low
/// 32 bits are kept. Empty for an empty text, a text without digits or a number outside the range
/// of long. Never throws.
std::optional<std::uint32_t> auth_uptime_from_netconf_str(std::optional<std::string> const& text) {
  if (!text) {
    return std::nullopt;
  }
  char const* const begin = text->c_str();
  char* end = nullptr;
  int const saved_errno = errno;
  errno = 0;
  long const value = std::strtol(begin, &end, 10);
  bool const out_of_range = errno == ERANGE;
  errno = saved_errno;
  if (end == begin || out_of_range) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(static_cast<unsigned long>(value));
}

/// Adds the integer elements of an IPC signal list in order; other elements are left out, and a
/// missing list or one that is no array adds nothing.
void read_signal(lcw_data_t const* object, char const* list_key, char const* value_key,
                 Metrics& metrics) {
  wlccw::cfg::for_each_element(
      cfg_get_subtree(object, list_key), [&metrics](lcw_data_t const& element) {
        if (std::optional<int> const value = cfg_object_to_int_opt(&element)) {
          metrics.add(*value);
        }
      });
  metrics.reported = cfg_get_int32_param_opt(object, value_key);
}

// ---- Authentication summary -----------------------------------------------------------------

/// One cell of the summary of a WLAN-authenticated client: what follows the method's name for this
/// MAC and portal authentication state; no suffix where the combination shows nothing.
struct AuthCell {
  ClientMacAuthStatus mac;
  ClientPortalAuthStatus portal;
  std::optional<std::string_view> suffix;
};

using Mac = ClientMacAuthStatus;
using Portal = ClientPortalAuthStatus;

/// Every combination of MAC and portal state, cell by cell. The table is irregular on purpose: a
/// MAC-unauthenticated client that the portal let in shows as authenticated by the portal, and a
/// pending MAC authentication with an expired portal session shows nothing.
constexpr std::array<AuthCell, 24> auth_cells{{
    {Mac::AUTHENTICATED, Portal::AUTHENTICATED, "+MAB+Portal/Authenticated-by-MAB"},
    {Mac::AUTHENTICATED, Portal::REAUTHENTICATE, "+MAB+Portal/Authenticated-by-portal"},
    {Mac::AUTHENTICATED, Portal::UNAUTHENTICATED, "+MAB+Portal/Pending-portal"},
    {Mac::AUTHENTICATED, Portal::PENDING, "+MAB+Portal/Pending-portal"},
    {Mac::AUTHENTICATED, Portal::EXPIRED, "+MAB+Portal/Pending-portal"},
    {Mac::AUTHENTICATED, Portal::NOT_REQUIRED, "+MAB/Authenticated-by-MAB"},

    {Mac::UNAUTHENTICATED, Portal::AUTHENTICATED, "+MAB+Portal/Authenticated-by-portal"},
    {Mac::UNAUTHENTICATED, Portal::REAUTHENTICATE, "+MAB+Portal/Authenticated-by-portal"},
    {Mac::UNAUTHENTICATED, Portal::UNAUTHENTICATED, "+MAB+Portal/Pending-portal"},
    {Mac::UNAUTHENTICATED, Portal::PENDING, "+MAB+Portal/Pending-portal"},
    {Mac::UNAUTHENTICATED, Portal::EXPIRED, "+MAB+Portal/Pending-portal"},
    {Mac::UNAUTHENTICATED, Portal::NOT_REQUIRED, std::nullopt},

    {Mac::PENDING, Portal::AUTHENTICATED, std::nullopt},
    {Mac::PENDING, Portal::REAUTHENTICATE, std::nullopt},
    {Mac::PENDING, Portal::UNAUTHENTICATED, "+MAB+Portal/Pending-MAB"},
    {Mac::PENDING, Portal::PENDING, "+MAB+Portal/Pending-MAB"},
    {Mac::PENDING, Portal::EXPIRED, std::nullopt},
    {Mac::PENDING, Portal::NOT_REQUIRED, "+MAB/Pending-MAB"},

    {Mac::NOT_REQUIRED, Portal::AUTHENTICATED, "+Portal/Authenticated-by-portal"},
    {Mac::NOT_REQUIRED, Portal::REAUTHENTICATE, std::nullopt},
    {Mac::NOT_REQUIRED, Portal::UNAUTHENTICATED, "+Portal/Pending-portal"},
    {Mac::NOT_REQUIRED, Portal::PENDING, "+Portal/Pending-portal"},
    {Mac::NOT_REQUIRED, Portal::EXPIRED, std::nullopt},
    {Mac::NOT_REQUIRED, Portal::NOT_REQUIRED, "/Authenticated"},
}};

/// The suffix of a combination; empty where the table shows nothing or for a state outside it.
std::optional<std::string_view> auth_suffix(Mac mac, Portal portal) {
  auto const cell =
      std::find_if(auth_cells.begin(), auth_cells.end(),
                   [mac, portal](AuthCell const& c) { return c.mac == mac && c.portal == portal; });
  if (cell == auth_cells.end()) {
    return std::nullopt;
  }
  return cell->suffix;
}

} // namespace

namespace wlccw::detail {

template <typename Sink> void write_client_ipc(Sink& object, APClientData const& client) {
  char mac_text[18];
  client.mac.format(mac_text);
  object.set_param("mac", mac_text);
  object.set_param("interface", client.interface.c_str());
  object.set_param("ssid", client.ssid.c_str());

  // Only the three known bands have a text; a value forced in from outside is left out rather
  // than thrown, so writing never fails on content.
  if (client.band) {
    if (std::optional<std::string_view> const text = radio::band::to_str_opt(*client.band)) {
      object.set_param("band", std::string(*text).c_str());
    }
  }
  if (client.ip.valid) {
    char ip_text[16]; // "255.255.255.255"
    client.ip.format(ip_text);
    object.set_param("ip", ip_text);
  }

  object.set_uint32_opt("vlan-id", client.vlan_id);
  object.set_param_opt("hostname", client.hostname);
  object.set_param_opt("username", client.username);
  object.set_param_opt("domain", client.domain);
  object.set_param_opt("ap-hostname", client.ap_hostname);
  object.set_param_opt("ap-location", client.ap_location);
  object.set_uint32_opt("uptime", client.uptime);
  object.set_uint32_opt("frequency", client.frequency);
  object.set_uint32_opt("channel", client.channel);

  write_signal(object, "rssi-list", "rssi", client.rssi);
  write_signal(object, "snr-list", "snr", client.snr);

  object.set_boolean_opt("authorized", client.authorized);
  object.set_text_opt("wireless-mode", ipc_text(client.wireless_mode));
  object.set_param_opt("link-quality", client.link_quality);
  object.set_param_opt("link-quality-common", client.link_quality_common);

  // A record without statistics carries nothing more: no authentication, multi-link or cipher
  // keys. Receivers rely on this shape, so the cut-off stays.
  if (!client.statistics) {
    return;
  }
  {
    Sink statistics = object.object_or_existing("statistics");
    if (!statistics) {
      return;
    }
    write_statistic(statistics, "tx", client.statistics->tx);
    write_statistic(statistics, "rx", client.statistics->rx);
  }

  object.set_text_opt("eap-method", ipc_text(client.eap_method));
  object.set_text_opt("mac-auth-status", ipc_text(client.mac_auth_status));
  object.set_text_opt("portal-auth-status", ipc_text(client.portal_auth_status));
  object.set_text_opt("wlan-auth-status", ipc_text(client.wlan_auth_status));
  object.set_text_opt("wlan-auth-method", ipc_text(client.wlan_auth_method));
  object.set_text_opt("auth-algorithm", ipc_text(client.auth_algorithm));

  object.set_uint32_opt("wlan-auth-uptime", client.wlan_auth_uptime);
  object.set_uint32_opt("mac-auth-uptime", client.mac_auth_uptime);
  object.set_uint32_opt("portal-auth-uptime", client.portal_auth_uptime);

  if (client.mlo) {
    write_mlo_ipc(object, *client.mlo);
  }

  object.set_param_opt("encryption-cipher", client.encryption_cipher);
  object.set_param_opt("encryption-group-cipher", client.encryption_group_cipher);
}

template void write_client_ipc<TreeSink>(TreeSink&, APClientData const&);
template void write_client_ipc<TextSink>(TextSink&, APClientData const&);

} // namespace wlccw::detail

void APClientData::to_json(lcw_data_t* object) const {
  if (object == nullptr) {
    return;
  }
  wlccw::detail::TreeSink sink(object);
  wlccw::detail::write_client_ipc(sink, *this);
}

std::string APClientData::to_json_str() const {
  if (wlccw::detail::bundled_tree()) {
    wlccw::detail::JsonTextWriter text;
    wlccw::detail::TextSink root(text);
    wlccw::detail::write_client_ipc(root, *this);
    return text.take();
  }
  // Another backend: the text is that backend's serialisation of the tree.
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  if (!root) {
    return {};
  }
  to_json(root.get());
  return wlccw::cfg::compact(root.get());
}

APClientData APClientData::from_json(lcw_data_t* object) {
  if (object == nullptr) {
    throw wlccw::InvalidJsonPointer();
  }
  if (cfg_is_empty(object) != 0) {
    throw wlccw::EmptyJson();
  }

  // Texts returned by the tree live only until its next operation: each is copied or parsed
  // before the next read.
  MacAddr const client_mac = MacAddr::from_str(cfg_get_param(object, "mac"));
  std::string const client_interface = cfg_get_param(object, "interface");
  std::string const client_ssid = cfg_get_param(object, "ssid");
  APClientData client(client_mac, client_interface, client_ssid);

  client.band = radio::band::from_str_opt(cfg_get_param(object, "band"));
  client.ip = cfg_get_param(object, "ip");

  client.vlan_id = cfg_get_uint32_param_opt(object, "vlan-id");
  client.hostname = cfg_get_param_opt(object, "hostname");
  client.username = cfg_get_param_opt(object, "username");
  client.domain = cfg_get_param_opt(object, "domain");
  client.ap_hostname = cfg_get_param_opt(object, "ap-hostname");
  client.ap_location = cfg_get_param_opt(object, "ap-location");
  client.uptime = cfg_get_uint32_param_opt(object, "uptime");
  client.frequency = cfg_get_uint32_param_opt(object, "frequency");
  client.channel = cfg_get_uint32_param_opt(object, "channel");

  read_signal(object, "rssi-list", "rssi", client.rssi);
  read_signal(object, "snr-list", "snr", client.snr);

  client.authorized = cfg_get_boolean_param_opt(object, "authorized");
  client.wireless_mode =
      client_wireless_mode_from_ipc_str(cfg_get_param_opt(object, "wireless-mode"));
  client.link_quality = cfg_get_param_opt(object, "link-quality");
  client.link_quality_common = cfg_get_param_opt(object, "link-quality-common");

  client.statistics = get_tx_rx_statistics(*object, get_statistic);

  client.eap_method = client_eap_method_from_ipc_str(cfg_get_param(object, "eap-method"));
  client.mac_auth_status =
      client_mac_auth_status_from_ipc_str(cfg_get_param(object, "mac-auth-status"));
  client.portal_auth_status =
      client_portal_auth_status_from_ipc_str(cfg_get_param(object, "portal-auth-status"));
  client.wlan_auth_status =
      client_wlan_auth_status_from_ipc_str(cfg_get_param(object, "wlan-auth-status"));
  client.wlan_auth_method =
      client_wlan_auth_method_from_ipc_str(cfg_get_param(object, "wlan-auth-method"));
  client.auth_algorithm =
      client_auth_algorithm_from_ipc_str(cfg_get_param(object, "auth-algorithm"));

  client.wlan_auth_uptime =
      auth_uptime_from_netconf_str(cfg_get_param_opt(object, "wlan-auth-uptime"));
  client.mac_auth_uptime =
      auth_uptime_from_netconf_str(cfg_get_param_opt(object, "mac-auth-uptime"));
  client.portal_auth_uptime =
      auth_uptime_from_netconf_str(cfg_get_param_opt(object, "portal-auth-uptime"));

  client.mlo = Mlo::from_json(*object);

  client.encryption_cipher = cfg_get_param_opt(object, "encryption-cipher");
  client.encryption_group_cipher = cfg_get_param_opt(object, "encryption-group-cipher");
  return client;
}

APClientData APClientData::from_json_str(std::string const& text) {
  // The owner releases the parsed tree whether from_json returns or throws.
  wlccw::cfg::Tree const tree = wlccw::cfg::parse(text);
  return from_json(tree.get());
}

void APClientData::fill_optional_data(APClientData const& other) {
  // The identity, the channel, its frequency and the ciphers stay as this record has them.
  ip = other.ip;
  band = other.band;
  vlan_id = other.vlan_id;
  hostname = other.hostname;
  username = other.username;
  domain = other.domain;
  ap_hostname = other.ap_hostname;
  ap_location = other.ap_location;
  uptime = other.uptime;
  rssi = other.rssi;
  snr = other.snr;
  authorized = other.authorized;
  wireless_mode = other.wireless_mode;
  link_quality = other.link_quality;
  link_quality_common = other.link_quality_common;
  statistics = other.statistics;
  wlan_auth_uptime = other.wlan_auth_uptime;
  mac_auth_uptime = other.mac_auth_uptime;
  portal_auth_uptime = other.portal_auth_uptime;
  eap_method = other.eap_method;
  mac_auth_status = other.mac_auth_status;
  portal_auth_status = other.portal_auth_status;
  wlan_auth_status = other.wlan_auth_status;
  wlan_auth_method = other.wlan_auth_method;
  auth_algorithm = other.auth_algorithm;
  mlo = other.mlo;
}

std::optional<std::string> APClientData::get_auth_description() const {
  if (!wlan_auth_status) {
    return std::nullopt;
  }
  switch (*wlan_auth_status) {
  case ClientWlanAuthStatus::PENDING:
    return convert_to_clish_str(wlan_auth_method) + "/Pending";
  case ClientWlanAuthStatus::AUTHENTICATED: {
    if (!mac_auth_status || !portal_auth_status) {
      return std::nullopt;
    }
    std::optional<std::string_view> const suffix =
        auth_suffix(*mac_auth_status, *portal_auth_status);
    if (!suffix) {
      return std::nullopt;
    }
    std::string description = convert_to_clish_str(wlan_auth_method);
    description.append(*suffix);
    return description;
  }
  case ClientWlanAuthStatus::UNAUTHENTICATED:
    return std::nullopt;
  }
  return std::nullopt; // a state cast from a number outside the enumeration
}
