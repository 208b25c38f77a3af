#include "workload.hpp"

#include <array>
#include <cstdio>
#include <string_view>

namespace wlccw::workload {
namespace {

// splitmix64: the same sequence from the same seed on every platform and standard library, which
// the distributions of <random> do not promise.
class Rng {
public:
  explicit Rng(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    std::uint64_t z = (state_ += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
  }
  /// A number in [0, n).
  std::uint64_t below(std::uint64_t n) { return next() % n; }
  /// A number in [low, high].
  long between(long low, long high) {
    return low + static_cast<long>(below(static_cast<std::uint64_t>(high - low) + 1));
  }
  /// True in `percent` cases out of a hundred.
  bool chance(unsigned percent) { return below(100) < percent; }
  template <typename T, std::size_t N> T const& pick(std::array<T, N> const& items) {
    return items[below(N)];
  }

private:
  std::uint64_t state_;
};

// A compact JSON text written member by member; the caller keeps the structure well formed.
class Writer {
public:
  explicit Writer(std::size_t reserve) { out_.reserve(reserve); }

  Writer& open(char bracket) {
    comma();
    out_ += bracket;
    first_ = true;
    return *this;
  }
  Writer& close(char bracket) {
    out_ += bracket;
    first_ = false;
    return *this;
  }
  Writer& key(std::string_view name) {
    comma();
    string_body(name);
    out_ += ':';
    first_ = true; // the value follows without a comma
    return *this;
  }
  Writer& string(std::string_view text) {
    comma();
    string_body(text);
    return *this;
  }
  Writer& number(long value) {
    comma();
    out_ += std::to_string(value);
    return *this;
  }
  Writer& boolean(bool value) {
    comma();
    out_ += value ? "true" : "false";
    return *this;
  }
  /// An integer the way an RFC 7951 encoder may send it: as a JSON string in `string_percent`
  /// cases out of a hundred, as a JSON number otherwise.
  Writer& integer(Rng& rng, long value, unsigned string_percent) {
    if (rng.chance(string_percent)) {
      return string(std::to_string(value));
    }
    return number(value);
  }

  std::string take() { return std::move(out_); }

private:
  void comma() {
    if (!first_) {
      out_ += ',';
    }
    first_ = false;
  }
  void string_body(std::string_view text) {
    out_ += '"';
    for (char const c : text) {
      if (c == '"' || c == '\\') {
        out_ += '\\';
      }
      out_ += c;
    }
    out_ += '"';
  }

  std::string out_;
  bool first_ = true;
};

std::string mac_text(std::array<unsigned, 6> const& octets, bool upper, bool bare) {
  char buf[18];
  char const* const format = bare
                                 ? (upper ? "%02X%02X%02X%02X%02X%02X" : "%02x%02x%02x%02x%02x%02x")
                             : upper ? "%02X:%02X:%02X:%02X:%02X:%02X"
                                     : "%02x:%02x:%02x:%02x:%02x:%02x";
  std::snprintf(buf, sizeof buf, format, octets[0], octets[1], octets[2], octets[3], octets[4],
                octets[5]);
  return buf;
}

// ---- Clients ------------------------------------------------------------------------------------

struct Radio {
  char const* band; // the multi-link band digit
  unsigned first_channel;
  unsigned channel_step;
  unsigned channels;
  unsigned base_frequency; // MHz of channel 0
};

constexpr std::array<Radio, 3> radios{{
    {"2", 1, 1, 11, 2407},
    {"5", 36, 4, 8, 5000},
    {"6", 1, 4, 24, 5950},
}};

constexpr std::array<char const*, 4> ssids{
    {"Corp&#x2d;WiFi", "Guest &amp; Visitors", "Caf\xc3\xa9 Libre", "iot-sensors"}};

constexpr std::array<char const*, 8> hostnames{
    {"laptop-%04u", "iPhone&#x20;de&#x20;Marie-%u", "DESKTOP-%04X", "android-%08x", "printer-%u",
     "MacBook-Pro-%u", "sensor&#x2d;%u", "Gal\xc3\xa1xia-%u"}};

constexpr std::array<char const*, 8> tx_rates{{"HE-MCS 11 NSS 2 1201.0", "VHT-MCS 9 NSS 2 866.7",
                                               "HT-MCS 7 NSS 1 72.2", "EHT-MCS 13 NSS 2 2882.4",
                                               "HE-MCS 5 NSS 1 286.8", "VHT-MCS 4 NSS 1 175.5",
                                               "HT-MCS 0 0.0", "54M"}};

constexpr std::array<char const*, 5> bandwidths{{"20MHz", "40MHz", "80MHz", "160MHz", "320MHz"}};
constexpr std::array<char const*, 6> wireless_modes{{"n", "ac", "ax", "be", "g", "bg"}};
constexpr std::array<char const*, 4> link_quality_words{{"good", "fair", "poor", "excellent"}};
constexpr std::array<char const*, 6> eap_methods{
    {"EAP-PEAP", "EAP-TLS", "EAP-TTLS", "EAP-FAST", "EAP-PWD", "EAP-SIM"}};
constexpr std::array<char const*, 4> mac_auth_states{
    {"authorized", "unauthorized", "pending", "not-required"}};
constexpr std::array<char const*, 6> portal_states{
    {"authorized", "reauthenticate", "unauthorized", "pending", "expired", "not-required"}};
constexpr std::array<char const*, 4> ciphers{{"CCMP", "GCMP-256", "CCMP-256", "TKIP"}};

enum class Security { Open, Personal, Enterprise, Owe };

void write_rate(Writer& w, Rng& rng, char const* dir) {
  std::string const prefix(dir);
  w.key(prefix + "-rate").string(rng.pick(tx_rates));
  w.key(prefix + "-bw").string(rng.pick(bandwidths));
  if (rng.chance(30)) {
    w.key(prefix + "-rate-numeric").string(std::to_string(rng.between(6, 2882)));
  }
  w.key("actual-" + prefix + "-rate").integer(rng, rng.between(1, 2400), 25);
}

void write_antennas(Writer& w, Rng& rng, char const* base, unsigned antennas, long low, long high,
                    bool summary) {
  for (unsigned a = 1; a <= antennas; ++a) {
    w.key(std::string(base) + "-" + std::to_string(a)).integer(rng, rng.between(low, high), 10);
  }
  if (summary) {
    w.key(base).number(rng.between(low, high));
  }
}

void write_mlo(Writer& w, Rng& rng, std::array<unsigned, 6> mac) {
  w.key("mlo-enabled").string("yes");
  std::array<unsigned, 6> mld{0x02, 0x1b, 0x2c, mac[3], mac[4], 0x50};
  w.key("mld-mac-ap").string(mac_text(mld, true, false));
  unsigned const links = rng.chance(70) ? 2 : 3;
  for (unsigned n = 1; n <= links; ++n) {
    std::string const link = "mlo-link-" + std::to_string(n) + "-";
    std::array<unsigned, 6> link_mac = mac;
    link_mac[0] = 0x02 | (n << 4);
    w.key(link + "mac").string(mac_text(link_mac, false, false));
    w.key(link + "band").string(radios[(n - 1) % radios.size()].band);
    w.key(link + "bandwidth").string(rng.pick(bandwidths));
    unsigned const antennas = static_cast<unsigned>(rng.between(1, 2));
    write_antennas(w, rng, (link + "rssi").c_str(), antennas, -90, -35, false);
    write_antennas(w, rng, (link + "snr").c_str(), antennas, 5, 55, false);
    for (char const* dir : {"tx", "rx"}) {
      w.key(link + dir + "-rate").string(rng.pick(tx_rates));
      w.key(link + "bytes-" + dir).integer(rng, rng.between(0, 2000000000), 50);
      w.key(link + "packets-" + dir).integer(rng, rng.between(0, 20000000), 50);
    }
  }
}

void write_client(Writer& w, Rng& rng, std::size_t index, std::uint64_t seed) {
  // Distinct addresses: the low three octets are the index scrambled by a seed-chosen constant
  // (an exclusive or is a bijection), the OUI one of a few vendors.
  constexpr std::array<std::array<unsigned, 3>, 4> ouis{
      {{0xa4, 0x5e, 0x60}, {0x3c, 0x22, 0xfb}, {0xf0, 0x18, 0x98}, {0x8c, 0x85, 0x90}}};
  auto const low = static_cast<unsigned>((index ^ (seed * 0x9e3779b9ULL)) & 0xffffff);
  auto const& oui = ouis[index % ouis.size()];
  std::array<unsigned, 6> const mac{
      oui[0], oui[1], oui[2], (low >> 16) & 0xff, (low >> 8) & 0xff, low & 0xff};
  Radio const& radio = radios[rng.below(radios.size())];
  unsigned const vap = static_cast<unsigned>(rng.below(ssids.size()));
  auto const security = static_cast<Security>(vap == 0   ? 2
                                              : vap == 1 ? 0
                                              : vap == 2 ? (rng.chance(50) ? 1 : 3)
                                                         : 1);

  w.open('{');
  w.key("hw-addr").string(mac_text(mac, rng.chance(80), false));
  w.key("interface")
      .string("wlan" + std::to_string(&radio - radios.data()) + "-vap" + std::to_string(vap));
  w.key("ssid").string(ssids[vap]);
  if (rng.chance(97)) {
    w.key("ip-addr").string("10." + std::to_string(rng.between(0, 255)) + "." +
                            std::to_string(rng.between(0, 255)) + "." +
                            std::to_string(rng.between(1, 254)));
  }
  w.key("vlan-id").integer(rng, 100 + static_cast<long>(vap) * 10, 30);
  if (rng.chance(90)) {
    char host[64];
    std::snprintf(host, sizeof host, rng.pick(hostnames), static_cast<unsigned>(rng.next()));
    w.key("hostname").string(host);
  }
  if (security == Security::Enterprise) {
    w.key("username").string("user" + std::to_string(rng.between(1, 99999)));
    w.key("domain").string("corp.example");
  }
  unsigned const channel =
      radio.first_channel + radio.channel_step * static_cast<unsigned>(rng.below(radio.channels));
  w.key("frequency").integer(rng, radio.base_frequency + 5 * channel, 20);
  w.key("channel").integer(rng, channel, 20);
  char uptime[48];
  if (rng.chance(40)) {
    std::snprintf(uptime, sizeof uptime, "%ld d %02ld:%02ld:%02ld", rng.between(1, 40),
                  rng.between(0, 23), rng.between(0, 59), rng.between(0, 59));
  } else {
    std::snprintf(uptime, sizeof uptime, "%ld:%02ld:%02ld", rng.between(0, 23), rng.between(0, 59),
                  rng.between(0, 59));
  }
  w.key("uptime").string(uptime);
  unsigned const antennas = static_cast<unsigned>(rng.between(1, 4));
  write_antennas(w, rng, "rssi", antennas, -95, -30, rng.chance(50));
  write_antennas(w, rng, "snr", antennas, 0, 60, rng.chance(50));
  w.key("authorized").string(rng.chance(95) ? "yes" : "no");
  w.key("wireless-mode").string(rng.pick(wireless_modes));
  w.key("link-quality").string(std::to_string(rng.between(10, 100)) + "%");
  w.key("link-quality-common").string(rng.pick(link_quality_words));
  write_rate(w, rng, "tx");
  write_rate(w, rng, "rx");
  w.key("statistics").open('{');
  for (char const* dir : {"tx", "rx"}) {
    w.key(dir).open('{');
    // One counter in fifty has passed 2^31, beyond what the reader keeps.
    long const bytes =
        rng.chance(2) ? rng.between(2200000000L, 9000000000L) : rng.between(0, 2000000000L);
    w.key("bytes").integer(rng, bytes, 40);
    w.key("packets").integer(rng, rng.between(0, 30000000), 40);
    w.close('}');
  }
  w.close('}');
  if (security == Security::Enterprise) {
    w.key("eap-method").string(rng.pick(eap_methods));
  }
  w.key("radius-mac-auth").string(rng.pick(mac_auth_states));
  w.key("radius-mac-auth-time").integer(rng, rng.between(0, 86400), 30);
  w.key("portal-auth")
      .string(security == Security::Open ? rng.pick(portal_states) : "not-required");
  w.key("portal-auth-time").integer(rng, rng.between(0, 86400), 30);
  w.key("wlan-auth-status")
      .string(rng.chance(90)   ? "authorized"
              : rng.chance(50) ? "pending"
                               : "unauthorized");
  char const* method = "Open";
  char const* algorithm = "open-system";
  switch (security) {
  case Security::Open:
    break;
  case Security::Personal:
    method = rng.chance(50) ? "WPA2" : "WPA3";
    algorithm = method[3] == '3' ? "sae" : "open-system";
    break;
  case Security::Enterprise:
    method = rng.chance(70) ? "WPA2-Enterprise" : "WPA3-Enterprise";
    algorithm = rng.chance(20) ? "fast-bss-transition" : "open-system";
    break;
  case Security::Owe:
    method = "OWE";
    break;
  }
  w.key("wlan-auth-type").string(method);
  w.key("wlan-auth-time").integer(rng, rng.between(0, 86400), 30);
  w.key("auth-algorithm").string(algorithm);
  w.key("encryption-cipher").string(security == Security::Open ? "no-cipher" : rng.pick(ciphers));
  w.key("encryption-group-cipher")
      .string(security == Security::Open ? "no-cipher" : rng.pick(ciphers));
  if (radio.band[0] != '2' && rng.chance(15)) {
    write_mlo(w, rng, mac);
  } else if (rng.chance(30)) {
    w.key("mlo-enabled").string("no");
  }
  w.close('}');
}

// ---- Monitoring ---------------------------------------------------------------------------------

constexpr std::array<char const*, 5> operstates{{"up", "down", "lowerlayerdown", "unknown", "up"}};
constexpr std::array<char const*, 4> duplexes{{"full", "half", "unavailable", "full"}};
constexpr std::array<char const*, 6> neighbour_ssids{
    {"printer&#x27;s net", "guest", "Caf&#xe9; Libre", "corp-wifi", "Hotel &amp; Spa", "IoT"}};

void write_information(Writer& w, Rng& rng) {
  w.key("information").open('{');
  char uptime[48];
  std::snprintf(uptime, sizeof uptime, "%ld days, %02ld:%02ld:%02ld", rng.between(0, 400),
                rng.between(0, 23), rng.between(0, 59), rng.between(0, 59));
  w.key("uptime").string(uptime);
  w.key("hostname").string("ap-floor" + std::to_string(rng.between(1, 30)) + "-east");
  w.key("secondary-software-version").string("4.12.3-rc2");
  w.key("boot-version").string("2.1.7");
  w.key("hw-platform").string("WAP-6E-4x4");
  w.key("factory-serial-number").string("WX2351A" + std::to_string(rng.between(10000, 99999)));
  w.key("hw-revision").string("B2");
  w.key("power-supply").string(rng.chance(80) ? "PoE+" : "PoE++");
  w.key("last-reboot-reason").string("firmware upgrade");
  w.key("is-default-config").boolean(false);
  w.close('}');
}

void write_radios(Writer& w, Rng& rng, std::size_t count) {
  constexpr std::array<char const*, 3> bands{{"2.4GHz", "5GHz", "6GHz"}};
  w.key("radio-interface").open('[');
  for (std::size_t i = 0; i < count; ++i) {
    w.open('{');
    w.key("name").string("wifi" + std::to_string(i));
    w.key("band").string(bands[i % bands.size()]);
    w.key("hwaddr").string(
        mac_text({0xa4, 0x5d, 0x36, 0x10, 0x20, unsigned(0x30 + i) & 0xff}, rng.chance(30), false));
    w.key("status").string(rng.chance(90) ? "up" : "down");
    w.key("tx-power").integer(rng, rng.between(5, 23), 60);
    w.key("eirp").integer(rng, rng.between(8, 30), 30);
    w.key("channel").integer(rng, rng.between(1, 165), 60);
    w.key("bandwidth").integer(rng, 20 << rng.below(4), 60);
    w.key("frequency").integer(rng, rng.between(2412, 7115), 50);
    w.key("noise-level").number(rng.between(-100, -80));
    unsigned const chains = static_cast<unsigned>(rng.between(2, 4));
    for (unsigned c = 1; c <= chains; ++c) {
      w.key("noise-" + std::to_string(c)).number(rng.between(-100, -80));
    }
    w.key("utilization").integer(rng, rng.between(0, 100), 20);
    w.key("rx-utilization").integer(rng, rng.between(0, 50), 20);
    w.key("tx-utilization").integer(rng, rng.between(0, 50), 20);
    w.key("non-wifi-interference").number(rng.between(0, 30));
    w.key("ap-interference-ratio").number(rng.between(0, 30));
    w.key("co-channel-interference").number(rng.between(0, 30));
    w.key("packet-error-rate").number(rng.between(0, 10));
    w.close('}');
  }
  w.close(']');
}

void write_interfaces(Writer& w, Rng& rng, std::size_t count) {
  constexpr std::array<char const*, 5> names{{"eth", "br-lan", "wlan", "gre", "vlan"}};
  w.key("interface").open('[');
  for (std::size_t i = 0; i < count; ++i) {
    w.open('{');
    w.key("name").string(names[i % names.size()] + std::to_string(i));
    w.key("hwaddr").string(
        mac_text({0xa4, 0x5d, 0x36, 0x10, unsigned(i >> 8) & 0xff, unsigned(i) & 0xff},
                 rng.chance(30), rng.chance(20)));
    w.key("operstate").string(rng.pick(operstates));
    w.key("speed").number(rng.chance(50) ? 1000 : 0);
    w.key("duplex").string(rng.pick(duplexes));
    w.key("tx-actual-rate").number(rng.between(0, 1000000));
    w.key("rx-actual-rate").number(rng.between(0, 1000000));
    for (char const* counter : {"tx-bytes", "rx-bytes", "tx-packets", "rx-packets"}) {
      w.key(counter).integer(rng, rng.between(0, 500000000000L), 50);
    }
    for (char const* counter : {"tx-errors", "rx-errors", "tx-drop", "rx-drop"}) {
      w.key(counter).number(rng.between(0, 1000));
    }
    w.close('}');
  }
  w.close(']');
}

void write_ports(Writer& w, Rng& rng, std::size_t count) {
  constexpr std::array<char const*, 3> duplex_words{{"enabled", "disabled", "full"}};
  w.key("ethernet-ports").open('[');
  for (std::size_t i = 0; i < count; ++i) {
    w.open('{');
    w.key("name").string((i % 4 == 3 ? "SFP" : "LAN") + std::to_string(i + 1));
    w.key("logical-interface").string(i % 4 == 3 ? "uplink" : "br-lan");
    w.key("mac-address")
        .string(mac_text({0xa4, 0x5d, 0x36, 0x10, 0x21, unsigned(i) & 0xff}, rng.chance(30),
                         rng.chance(20)));
    w.key("link").string(rng.pick(operstates));
    w.key("speed").number(rng.chance(80) ? 1000 : 10000);
    w.key("duplex").string(rng.pick(duplex_words));
    w.key("media-type").string(i % 4 == 3 ? "fiber" : "copper");
    w.key("uptime").number(rng.between(0, 5000000));
    for (char const* counter : {"rx-bytes", "rx-packets", "tx-bytes", "tx-packets"}) {
      w.key(counter).integer(rng, rng.between(0, 4000000000L), 50);
    }
    w.close('}');
  }
  w.close(']');
}

void write_neighbours(Writer& w, Rng& rng, std::size_t count) {
  w.key("neighbor-ap").open('[');
  for (std::size_t i = 0; i < count; ++i) {
    w.open('{');
    w.key("bssid").string(
        mac_text({0x10 + (unsigned(i) & 0x3f), unsigned(rng.below(256)), unsigned(rng.below(256)),
                  unsigned(rng.below(256)), unsigned(rng.below(256)), unsigned(i) & 0xff},
                 rng.chance(20), rng.chance(10)));
    w.key("ssid").string(rng.pick(neighbour_ssids));
    w.key("channel").integer(rng, rng.between(1, 165), 20);
    w.key("signal-level").number(rng.between(-95, -40));
    w.key("privacy").boolean(rng.chance(80));
    w.key("bandwidth").number(20 << rng.below(4));
    w.key("last-seen").number(rng.between(0, 600));
    if (rng.chance(50)) {
      w.key("controlled-by-wlc").boolean(rng.chance(50));
    }
    w.close('}');
  }
  w.close(']');
}

} // namespace

std::string client_reply(std::size_t clients, std::uint64_t seed) {
  Rng rng(seed);
  Writer w(clients * 1600 + 64);
  w.open('{');
  w.key("error").boolean(false);
  w.key("rpc-reply").open('{').key("data").open('{').key("clients").open('[');
  for (std::size_t i = 0; i < clients; ++i) {
    write_client(w, rng, i, seed);
  }
  w.close(']').close('}').close('}').close('}');
  return w.take();
}

std::string monitoring_reply(MonitoringShape const& shape, std::uint64_t seed) {
  Rng rng(seed);
  Writer w(4096 + shape.radios * 600 + shape.interfaces * 400 + shape.ports * 300 +
           shape.neighbours * 200);
  w.open('{');
  w.key("error").boolean(false);
  w.key("rpc-reply").open('{').key("data").open('{').key("monitoring").open('{');
  write_information(w, rng);
  write_radios(w, rng, shape.radios);
  write_interfaces(w, rng, shape.interfaces);
  write_ports(w, rng, shape.ports);
  write_neighbours(w, rng, shape.neighbours);
  w.close('}').close('}').close('}').close('}');
  return w.take();
}

} // namespace wlccw::workload
