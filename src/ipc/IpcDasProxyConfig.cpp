#include <wlccw/ipc/IpcDasProxyConfig.hpp>

#include <wlccw/common/containers.hpp>
#include <wlccw/common/hash.hpp>

#include <functional>
#include <optional>
#include <utility>

namespace {

using Configs = std::vector<IpcDasProxyConfig::Config>;

/// Writes one entry into its object, keys in wire order.
void write_config(lcw_data_t& object, IpcDasProxyConfig::Config const& cfg) {
  char mac[18];
  cfg.mac.format(mac);
  cfg_set_param(&object, "mac", mac);
  cfg_set_param(&object, "ip", cfg.ip.str().c_str());
  cfg_set_param(&object, "key", cfg.key.c_str());
  cfg_set_uint32_param(&object, "port", cfg.port);
  cfg_set_boolean_param(&object, "enabled", cfg.enabled);
}

/// Reads one element. Never rejects: whatever is missing or malformed keeps its default.
std::optional<IpcDasProxyConfig::Config> read_config(lcw_data_t& element) {
  std::optional<IpcDasProxyConfig::Config> cfg(std::in_place);
  cfg->mac = MacAddr::from_str(cfg_get_param(&element, "mac"));
  cfg->ip = cfg_get_param(&element, "ip");
  cfg->key = cfg_get_param(&element, "key");
  // The port travels as a 32-bit number; only its low 16 bits are a port.
  cfg->port = static_cast<std::uint16_t>(cfg_get_uint32_param(&element, "port"));
  cfg->enabled = cfg_get_boolean_param(&element, "enabled") != 0;
  return cfg;
}

} // namespace

IpcDasProxyConfig::Config::Config(MacAddr mac_, IpAddr ip_, std::string key_, std::uint16_t port_,
                                  bool enabled_)
    : mac(mac_), ip(ip_), key(std::move(key_)), port(port_), enabled(enabled_) {}

IpcDasProxyConfig::Config::Config(Config&& other) noexcept
    : mac(other.mac), ip(other.ip), key(std::move(other.key)), port(other.port),
      enabled(other.enabled) {}

std::size_t IpcDasProxyConfig::Config::get_hash() const {
  std::size_t seed = enabled ? 1U : 0U;
  tools::hash_combine(seed, mac.str());
  tools::hash_combine(seed, ip.str());
  tools::hash_combine(seed, key);
  // The port is mixed in as it is, not through std::hash.
  std::uint64_t s = seed;
  s ^= std::uint64_t{port} + std::uint64_t{0x9e3779b9U} + (s << 6U) + (s >> 2U);
  return static_cast<std::size_t>(s);
}

void IpcDasProxyConfig::append_ap_cfg(Config&& cfg) {
  configs.push_back(std::move(cfg));
}

std::string IpcDasProxyConfig::ipc_serialize() const {
  return cfg_serialize_container_to_array_compact<Configs>(configs, write_config);
}

IpcDasProxyConfig IpcDasProxyConfig::ipc_deserialize(std::string const& text) {
  IpcDasProxyConfig result;
  std::optional<Configs> read = cfg_deserialize_container<Configs>(text, read_config);
  if (read) {
    result.configs = std::move(*read);
  }
  return result;
}

std::size_t IpcDasProxyConfig::get_hash() const {
  return std::hash<std::string>{}(ipc_serialize());
}
