// The peer of the poll benchmark, written the plain way on nlohmann::json: read each value where it
// is needed, map names through small tables, build the controller's objects as ordered_json (the
// hash is taken over the text, so key order matters), group in std::map, dump compactly.
//
// Helper choices, as a team would make them without thinking about speed: the uptime clock and the
// IPv4 text are read with sscanf, the MAC address and the HTML byte escapes with small loops, and
// the rate text is split with one std::regex, compiled once.
#include "nlohmann_peer.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <optional>
#include <regex>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wlccw::peer {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;
using Mac = std::array<std::uint8_t, 6>;
using NameTable = std::unordered_map<std::string, std::string>;

// ---- Name tables: the AP's NETCONF word to the controller's IPC word ----------------------------

NameTable const wireless_modes{{"ax", "ax"}, {"ac", "ac"}, {"n", "n"},   {"g", "g"},
                               {"a", "a"},   {"b", "b"},   {"bg", "bg"}, {"be", "be"}};

NameTable const eap_methods{{"EAP-MD5", "eap_md5"},     {"EAP-OTP", "eap_otp"},
                            {"EAP-GTC", "eap_gtc"},     {"EAP-TLS", "eap_tls"},
                            {"EAP-LEAP", "eap_leap"},   {"EAP-SIM", "eap_sim"},
                            {"EAP-TTLS", "eap_ttls"},   {"EAP-AKA", "eap_aka"},
                            {"EAP-PEAP", "eap_peap"},   {"EAP-MSCHAPV2", "eap_mschapv2"},
                            {"EAP-TLV", "eap_tlv"},     {"EAP-TNC", "eap_tnc"},
                            {"EAP-FAST", "eap_fast"},   {"EAP-PAX", "eap_pax"},
                            {"EAP-PSK", "eap_psk"},     {"EAP-SAKE", "eap_sake"},
                            {"EAP-IKEV2", "eap_ikev2"}, {"EAP-AKA-PRIME", "eap_aka_prime"},
                            {"EAP-GPSK", "eap_gpsk"},   {"EAP-PWD", "eap_pwd"},
                            {"EAP-EKE", "eap_eke"},     {"EAP-TEAP", "eap_teap"}};

NameTable const mac_auth_states{{"authorized", "authenticated"},
                                {"unauthorized", "unauthenticated"},
                                {"pending", "pending"},
                                {"not-required", "not_required"}};

NameTable const portal_auth_states{{"authorized", "authenticated"},
                                   {"reauthenticate", "reauthenticate"},
                                   {"unauthorized", "unauthenticated"},
                                   {"pending", "pending"},
                                   {"expired", "expired"},
                                   {"not-required", "not_required"}};

NameTable const wlan_auth_states{
    {"authorized", "authenticated"}, {"unauthorized", "unauthenticated"}, {"pending", "pending"}};

NameTable const wlan_auth_methods{{"Open", "open"},
                                  {"WPA", "wpa"},
                                  {"WPA2", "wpa2"},
                                  {"WPA3", "wpa3"},
                                  {"WPA-Enterprise", "wpa_enterprise"},
                                  {"WPA2-Enterprise", "wpa2_enterprise"},
                                  {"WPA3-Enterprise", "wpa3_enterprise"},
                                  {"OWE", "owe"}};

NameTable const auth_algorithms{{"open-system", "open_system"},
                                {"shared-key", "shared_key"},
                                {"fast-bss-transition", "fast_bss_transition"},
                                {"sae", "sae"},
                                {"fils-shared-key-without-pfs", "fils_shared_key_without_pfs"},
                                {"fils-shared-key-with-pfs", "fils_shared_key_with_pfs"},
                                {"fils-public-key", "fils_public_key"},
                                {"vendor-specific", "vendor_specific"}};

/// Multi-link band digits of the AP to the controller's band names.
NameTable const link_bands{{"2", "2G"}, {"5", "5G"}, {"6", "6G"}};

// ---- Reading members of a client object
// -----------------------------------------------------------

/// The member key of an object, or null when it is missing.
json const* member(json const& object, std::string const& key) {
  if (!object.is_object()) {
    return nullptr;
  }
  auto const it = object.find(key);
  return it == object.end() ? nullptr : &*it;
}

/// A member as text: a string as it is, a number or a boolean as JSON prints it; empty for a
/// missing member, null, an object or an array.
std::optional<std::string> text_opt(json const& object, std::string const& key) {
  json const* const value = member(object, key);
  if (value == nullptr) {
    return std::nullopt;
  }
  if (value->is_string()) {
    return value->get<std::string>();
  }
  if (value->is_number() || value->is_boolean()) {
    return value->dump();
  }
  return std::nullopt;
}

/// A member as text, "" where text_opt has none.
std::string text(json const& object, std::string const& key) {
  return text_opt(object, key).value_or(std::string());
}

/// An integer value: a JSON integer, or (RFC 7951) a string whose whole text is a decimal integer
/// with an optional leading "-". Empty for anything else and for a value T cannot hold.
template <typename T> std::optional<T> integer_value(json const* value) {
  if (value == nullptr) {
    return std::nullopt;
  }
  if (value->is_number_unsigned()) {
    auto const n = value->get<std::uint64_t>();
    return std::in_range<T>(n) ? std::optional<T>(static_cast<T>(n)) : std::nullopt;
  }
  if (value->is_number_integer()) {
    auto const n = value->get<std::int64_t>();
    return std::in_range<T>(n) ? std::optional<T>(static_cast<T>(n)) : std::nullopt;
  }
  if (value->is_string()) {
    std::string const& s = value->get_ref<std::string const&>();
    long long n = 0;
    auto const [end, error] = std::from_chars(s.data(), s.data() + s.size(), n);
    if (s.empty() || error != std::errc() || end != s.data() + s.size()) {
      return std::nullopt;
    }
    return std::in_range<T>(n) ? std::optional<T>(static_cast<T>(n)) : std::nullopt;
  }
  return std::nullopt;
}

template <typename T> std::optional<T> integer_opt(json const& object, std::string const& key) {
  return integer_value<T>(member(object, key));
}

/// The IPC word for the AP's word in a table, empty when the table does not know it.
std::optional<std::string> lookup(NameTable const& table, std::optional<std::string> const& word) {
  if (!word) {
    return std::nullopt;
  }
  auto const it = table.find(*word);
  if (it == table.end()) {
    return std::nullopt;
  }
  return it->second;
}

// ---- Small parsers ------------------------------------------------------------------------------

int hex_digit(char c) {
  if (c >= '0' && c <= '9') {
    return c - '0';
  }
  if (c >= 'a' && c <= 'f') {
    return c - 'a' + 10;
  }
  if (c >= 'A' && c <= 'F') {
    return c - 'A' + 10;
  }
  return -1;
}

/// "aa:bb:cc:dd:ee:ff" or "aabbccddeeff", either case; empty for anything else.
std::optional<Mac> parse_mac(std::string const& s) {
  bool const colons = s.size() == 17;
  if (!colons && s.size() != 12) {
    return std::nullopt;
  }
  Mac mac{};
  std::size_t pos = 0;
  for (std::size_t i = 0; i < mac.size(); ++i) {
    if (colons && i > 0) {
      if (s[pos] != ':') {
        return std::nullopt;
      }
      ++pos;
    }
    int const high = hex_digit(s[pos]);
    int const low = hex_digit(s[pos + 1]);
    if (high < 0 || low < 0) {
      return std::nullopt;
    }
    mac[i] = static_cast<std::uint8_t>(high * 16 + low);
    pos += 2;
  }
  return mac;
}

std::string mac_text(Mac const& mac) {
  char buf[18];
  std::snprintf(buf, sizeof buf, "%02x:%02x:%02x:%02x:%02x:%02x", mac[0], mac[1], mac[2], mac[3],
                mac[4], mac[5]);
  return buf;
}

/// The dotted text of an IPv4 address as the controller writes it; empty when the AP's text is not
/// one (a "-" anywhere, no ".", longer than 15 characters, not four numbers, a number above 255).
std::optional<std::string> ipv4_text(std::string const& s) {
  if (s.size() > 15 || s.find('-') != std::string::npos || s.find('.') == std::string::npos) {
    return std::nullopt;
  }
  short n[4] = {};
  if (std::sscanf(s.c_str(), "%hi.%hi.%hi.%hi", &n[0], &n[1], &n[2], &n[3]) != 4) {
    return std::nullopt;
  }
  if (std::any_of(std::begin(n), std::end(n), [](short v) { return v > 255; })) {
    return std::nullopt;
  }
  char buf[16];
  std::snprintf(buf, sizeof buf, "%u.%u.%u.%u", static_cast<unsigned>(n[0]) & 0xFFU,
                static_cast<unsigned>(n[1]) & 0xFFU, static_cast<unsigned>(n[2]) & 0xFFU,
                static_cast<unsigned>(n[3]) & 0xFFU);
  return std::string(buf);
}

/// AP text made safe for display: "&#x" + one or two hex digits + ";" becomes that byte, then
/// every control byte (0x00-0x1F, 0x7F) becomes ".".
std::string decode_html(std::string const& s) {
  std::string out;
  out.reserve(s.size());
  std::size_t i = 0;
  while (i < s.size()) {
    if (s.size() - i >= 5 && s.compare(i, 3, "&#x") == 0) {
      std::size_t end = i + 3;
      int value = 0;
      while (end < i + 5 && hex_digit(s[end]) >= 0) {
        value = value * 16 + hex_digit(s[end]);
        ++end;
      }
      if (end > i + 3 && end < s.size() && s[end] == ';') {
        out += static_cast<char>(value);
        i = end + 1;
        continue;
      }
    }
    out += s[i];
    ++i;
  }
  for (char& c : out) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
      c = '.';
    }
  }
  return out;
}

std::optional<std::string> decode_html(std::optional<std::string> const& s) {
  if (!s) {
    return std::nullopt;
  }
  return decode_html(*s);
}

/// Seconds of the AP's uptime clock, "H:M:S" or "D d H:M:S".
std::optional<std::uint32_t> uptime_seconds(std::string const& s) {
  unsigned d = 0;
  unsigned h = 0;
  unsigned m = 0;
  unsigned sec = 0;
  if (std::sscanf(s.c_str(), "%u:%u:%u", &h, &m, &sec) == 3) {
    return h * 3600U + m * 60U + sec;
  }
  if (std::sscanf(s.c_str(), "%u d %u:%u:%u", &d, &h, &m, &sec) == 4) {
    return d * 86400U + h * 3600U + m * 60U + sec;
  }
  return std::nullopt;
}

/// The AP's rate text split into modulation and numeric rate: "VHT-MCS 9 NSS 2 866.7" gives
/// "VHT-MCS 9 NSS 2" and "866.7". The numeric rate is left out when its whole part reads as 0.
struct RateParts {
  std::optional<std::string> modulation;
  std::optional<std::string> numeric;
};

RateParts split_rate(std::string const& rate) {
  static std::regex const pattern(R"(^(.+?)\s+([\d.]+)$)");
  std::smatch match;
  if (!std::regex_match(rate, match, pattern)) {
    return {};
  }
  RateParts parts;
  parts.modulation = match[1].str();
  try {
    if (std::stoi(match[2].str()) != 0) {
      parts.numeric = match[2].str();
    }
  } catch (std::logic_error const&) { // ".5" or a number beyond int: no numeric rate
  }
  return parts;
}

// ---- One client
// -----------------------------------------------------------------------------------

/// Per-antenna readings of a signal: base-1 ... base-8 up to the first gap, or base alone; each
/// raised to the floor.
std::vector<int> antenna_readings(json const& client, std::string const& base, int floor) {
  std::vector<int> values;
  for (int n = 1; n <= 8; ++n) {
    json const* const value = member(client, base + "-" + std::to_string(n));
    if (value == nullptr) {
      break;
    }
    values.push_back(std::max(floor, integer_value<int>(value).value_or(0)));
  }
  if (values.empty()) {
    if (json const* const value = member(client, base)) {
      values.push_back(std::max(floor, integer_value<int>(value).value_or(0)));
    }
  }
  return values;
}

/// "rssi-list" and "rssi" (or the snr pair): the readings and the weakest of them, unless the AP
/// also sent an overall value, which wins. Nothing without readings.
void write_signal(ordered_json& out, json const& client, std::string const& base, int floor) {
  std::vector<int> const values = antenna_readings(client, base, floor);
  if (values.empty()) {
    return;
  }
  std::optional<int> const overall = integer_opt<int>(client, base);
  out[base + "-list"] = values;
  out[base] = overall ? *overall : *std::min_element(values.begin(), values.end());
}

/// One direction of the traffic statistics in the IPC form; empty when the AP sent nothing for it.
std::optional<ordered_json> statistic(json const& client, std::string const& dir) {
  std::optional<std::string> const rate = text_opt(client, dir + "-rate");
  std::optional<std::string> const bandwidth = text_opt(client, dir + "-bw");
  std::optional<std::string> const rate_numeric = text_opt(client, dir + "-rate-numeric");
  std::optional<std::uint32_t> const actual_rate =
      integer_opt<std::uint32_t>(client, "actual-" + dir + "-rate");
  json const* const statistics = member(client, "statistics");
  json const* const counters = statistics != nullptr ? member(*statistics, dir) : nullptr;
  if (!rate && !bandwidth && !actual_rate && counters == nullptr) {
    return std::nullopt;
  }

  ordered_json out = ordered_json::object();
  if (rate) {
    out["rate"] = *rate;
  }
  if (bandwidth) {
    out["bandwidth"] = *bandwidth;
  }
  if (rate) {
    RateParts parts = split_rate(*rate);
    if (parts.modulation) {
      out["modulation"] = *parts.modulation;
    }
    if (rate_numeric) {
      out["rate-numeric"] = *rate_numeric;
    } else if (parts.numeric) {
      out["rate-numeric"] = *parts.numeric;
    }
  }
  out["actual-rate"] = static_cast<std::int32_t>(actual_rate.value_or(0));
  int bytes = 0;
  int packets = 0;
  if (counters != nullptr) {
    bytes = integer_opt<int>(*counters, "bytes").value_or(0);
    packets = integer_opt<int>(*counters, "packets").value_or(0);
  }
  out["bytes"] = bytes;
  out["packets"] = packets;
  return out;
}

ordered_json empty_statistic() {
  return ordered_json{{"actual-rate", 0}, {"bytes", 0}, {"packets", 0}};
}

/// The "mlo" object of a multi-link client: links 1 to 3, each with a valid MAC address and a known
/// band; empty when "mlo-enabled" is not "yes" or no link is left.
std::optional<ordered_json> multi_link(json const& client) {
  if (text(client, "mlo-enabled") != "yes") {
    return std::nullopt;
  }
  ordered_json links = ordered_json::array();
  for (int n = 1; n <= 3; ++n) {
    std::string const prefix = "mlo-link-" + std::to_string(n) + "-";
    std::optional<Mac> const mac = parse_mac(text(client, prefix + "mac"));
    std::optional<std::string> const band = lookup(link_bands, text(client, prefix + "band"));
    if (!mac || !band) {
      continue;
    }
    ordered_json link = ordered_json::object();
    link["mac"] = mac_text(*mac);
    link["band"] = *band;
    link["id"] = n;
    if (std::optional<std::string> bandwidth = text_opt(client, prefix + "bandwidth")) {
      link["bandwidth"] = *bandwidth;
    }
    std::vector<int> const rssi = antenna_readings(client, prefix + "rssi", -127);
    if (!rssi.empty()) {
      link["rssi-list"] = rssi;
    }
    std::vector<int> const snr = antenna_readings(client, prefix + "snr", 0);
    if (!snr.empty()) {
      link["snr-list"] = snr;
    }
    for (std::string const dir : {"tx", "rx"}) {
      ordered_json direction = ordered_json::object();
      if (std::optional<std::string> rate = text_opt(client, prefix + dir + "-rate")) {
        direction["rate"] = *rate;
      }
      if (std::optional<int> bytes = integer_opt<int>(client, prefix + "bytes-" + dir)) {
        direction["bytes"] = *bytes;
      }
      if (std::optional<int> packets = integer_opt<int>(client, prefix + "packets-" + dir)) {
        direction["packets"] = *packets;
      }
      link[dir] = std::move(direction);
    }
    links.push_back(std::move(link));
  }
  if (links.empty()) {
    return std::nullopt;
  }
  ordered_json mlo = ordered_json::object();
  if (std::optional<Mac> const mld = parse_mac(text(client, "mld-mac-ap"))) {
    mlo["mld-mac-ap"] = mac_text(*mld);
  }
  mlo["links"] = std::move(links);
  return mlo;
}

void set_if(ordered_json& out, char const* key, std::optional<std::string> const& value) {
  if (value) {
    out[key] = *value;
  }
}

void set_if(ordered_json& out, char const* key, std::optional<std::uint32_t> const& value) {
  if (value) {
    out[key] = *value;
  }
}

/// One client as the controller keeps it.
struct Client {
  Mac mac{};
  std::string interface;
  std::string ssid;
  ordered_json ipc;
};

/// Maps one NETCONF client object to its IPC object; empty for a client without a valid MAC
/// address, without an interface or with an empty SSID.
std::optional<Client> import_client(json const& ap) {
  if (!ap.is_object()) {
    return std::nullopt;
  }
  std::optional<Mac> const mac = parse_mac(text(ap, "hw-addr"));
  std::string interface = text(ap, "interface");
  std::string ssid = decode_html(text(ap, "ssid"));
  if (!mac || interface.empty() || ssid.empty()) {
    return std::nullopt;
  }

  Client client;
  client.mac = *mac;
  ordered_json& out = client.ipc;
  out["mac"] = mac_text(*mac);
  out["interface"] = interface;
  out["ssid"] = ssid;
  client.interface = std::move(interface);
  client.ssid = std::move(ssid);

  set_if(out, "ip", ipv4_text(text(ap, "ip-addr")));
  set_if(out, "vlan-id", integer_opt<std::uint32_t>(ap, "vlan-id"));
  set_if(out, "hostname", decode_html(text_opt(ap, "hostname")));
  set_if(out, "username", decode_html(text_opt(ap, "username")));
  set_if(out, "domain", decode_html(text_opt(ap, "domain")));
  set_if(out, "uptime", uptime_seconds(text(ap, "uptime")));
  set_if(out, "frequency", integer_opt<std::uint32_t>(ap, "frequency"));
  set_if(out, "channel", integer_opt<std::uint32_t>(ap, "channel"));
  write_signal(out, ap, "rssi", -127);
  write_signal(out, ap, "snr", 0);
  if (std::optional<std::string> const authorized = text_opt(ap, "authorized")) {
    out["authorized"] = *authorized == "yes" || *authorized == "true";
  }
  set_if(out, "wireless-mode", lookup(wireless_modes, text_opt(ap, "wireless-mode")));
  set_if(out, "link-quality", text_opt(ap, "link-quality"));
  set_if(out, "link-quality-common", text_opt(ap, "link-quality-common"));

  // The controller's form carries authentication, multi-link and cipher keys only for a client
  // with statistics.
  std::optional<ordered_json> tx = statistic(ap, "tx");
  std::optional<ordered_json> rx = statistic(ap, "rx");
  if (!tx && !rx) {
    return client;
  }
  ordered_json& statistics = out["statistics"];
  statistics["tx"] = tx ? std::move(*tx) : empty_statistic();
  statistics["rx"] = rx ? std::move(*rx) : empty_statistic();

  set_if(out, "eap-method", lookup(eap_methods, text(ap, "eap-method")));
  set_if(out, "mac-auth-status", lookup(mac_auth_states, text(ap, "radius-mac-auth")));
  set_if(out, "portal-auth-status", lookup(portal_auth_states, text(ap, "portal-auth")));
  set_if(out, "wlan-auth-status", lookup(wlan_auth_states, text(ap, "wlan-auth-status")));
  set_if(out, "wlan-auth-method", lookup(wlan_auth_methods, text(ap, "wlan-auth-type")));
  set_if(out, "auth-algorithm", lookup(auth_algorithms, text(ap, "auth-algorithm")));
  set_if(out, "wlan-auth-uptime", integer_opt<std::uint32_t>(ap, "wlan-auth-time"));
  set_if(out, "mac-auth-uptime", integer_opt<std::uint32_t>(ap, "radius-mac-auth-time"));
  set_if(out, "portal-auth-uptime", integer_opt<std::uint32_t>(ap, "portal-auth-time"));
  if (std::optional<ordered_json> mlo = multi_link(ap)) {
    out["mlo"] = std::move(*mlo);
  }
  for (char const* key : {"encryption-cipher", "encryption-group-cipher"}) {
    std::optional<std::string> const cipher = text_opt(ap, key);
    if (cipher && *cipher != "no-cipher") {
      out[key] = *cipher;
    }
  }
  return client;
}

// ---- The list -----------------------------------------------------------------------------------

/// The clients of one interface; the interface keeps the SSID of its first client.
struct Interface {
  std::string ssid;
  std::map<Mac, ordered_json> clients;
};

} // namespace

PollResult poll(std::string const& reply) {
  json const doc = json::parse(reply);

  std::map<std::string, Interface> interfaces;
  json::json_pointer const path("/rpc-reply/data/clients");
  if (doc.contains(path) && doc.at(path).is_array()) {
    for (json const& ap : doc.at(path)) {
      std::optional<Client> client = import_client(ap);
      if (!client) {
        continue;
      }
      auto const [entry, added] = interfaces.try_emplace(client->interface);
      if (added) {
        entry->second.ssid = client->ssid;
      }
      entry->second.clients[client->mac] = std::move(client->ipc);
    }
  }

  PollResult result;
  ordered_json root = ordered_json::object();
  for (auto& [name, interface] : interfaces) {
    ordered_json clients = ordered_json::object();
    for (auto& [mac, ipc] : interface.clients) {
      clients[mac_text(mac)] = std::move(ipc);
    }
    result.clients += interface.clients.size();
    ordered_json& entry = root[name];
    entry["ssid"] = interface.ssid;
    entry["client"] = std::move(clients);
  }
  result.ipc_text = root.dump();
  result.hash = std::hash<std::string>{}(result.ipc_text);
  return result;
}

} // namespace wlccw::peer
