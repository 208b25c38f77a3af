/// \file
/// The Dynamic Authorization Server (DAS) proxy settings of the access points: where each access
/// point listens for relayed RADIUS Disconnect and CoA requests and with which shared secret.
///
/// The shared secret travels in clear inside the IPC text. The records have no stream operator and
/// no text form other than that IPC text, so nothing in the library prints or logs a secret.
#pragma once

#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// The DAS proxy settings of several access points, one entry per access point, in insertion
/// order.
///
/// IPC form: a compact JSON array, one object per entry:
/// [{"mac":"00:11:22:33:44:55","ip":"10.0.0.1","key":"secret","port":3799,"enabled":true}].
class WLCCW_EXPORT IpcDasProxyConfig {
public:
  /// One access point's DAS proxy setting.
  struct Config {
    /// The access point.
    MacAddr mac;
    /// The IPv4 address of the access point's DAS proxy.
    IpAddr ip;
    /// The RADIUS shared secret that protects the relayed requests.
    std::string key;
    /// The UDP port of the proxy.
    std::uint16_t port = 0;
    /// Whether the proxy is enabled.
    bool enabled = false;

    /// Default addresses, empty secret, port 0, disabled.
    Config() = default;
    /// An entry holding the given values.
    Config(MacAddr mac_, IpAddr ip_, std::string key_, std::uint16_t port_, bool enabled_);
    /// Copies every field.
    Config(Config const&) = default;
    /// Moves the secret and copies the other fields.
    Config(Config&& other) noexcept;
    /// Copies every field.
    Config& operator=(Config const&) = default;
    /// Moves the secret and copies the other fields.
    Config& operator=(Config&&) noexcept = default;
    ~Config() = default;

    /// A hash of every field: the seed starts as `enabled` (0 or 1); tools::hash_combine then
    /// mixes in the texts of `mac` and `ip` and the secret, in that order; last `port` itself is
    /// mixed in by the same formula (seed ^= port + 0x9e3779b9 + (seed << 6) + (seed >> 2)).
    std::size_t get_hash() const;

    /// Equal when every field is equal.
    friend bool operator==(Config const&, Config const&) = default;
  };

  /// The entries in insertion order.
  std::vector<Config> configs;

  /// Appends one entry at the end, moving it in.
  void append_ap_cfg(Config&& cfg);

  /// The compact IPC array: per entry "mac", "ip", "key", "port" (a JSON number) and "enabled",
  /// in that order; "[]" for no entries.
  std::string ipc_serialize() const;
  /// The entries of an IPC array. Never throws on bad text: text that is not JSON or whose root is
  /// not an array gives no entries. Every element gives an entry: a missing or malformed "mac" or
  /// "ip" leaves the default address, a missing "key" the empty secret, a missing "enabled" false;
  /// "port" is read as an unsigned 32-bit number and keeps its low 16 bits (65537 gives 1), and a
  /// missing, negative or larger port gives 0.
  static IpcDasProxyConfig ipc_deserialize(std::string const& text);
  /// std::hash<std::string> of ipc_serialize(): the same entries in another order hash apart.
  std::size_t get_hash() const;

  /// Equal when both hold equal entries in the same order.
  friend bool operator==(IpcDasProxyConfig const&, IpcDasProxyConfig const&) = default;
};
