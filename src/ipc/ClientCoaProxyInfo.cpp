#include <wlccw/ipc/ClientCoaProxyInfo.hpp>

#include <wlccw/cfg/owned.hpp>

#include "detail/Dictionary.hpp"

#include <array>
#include <string_view>

namespace {

using State = ClientCoaProxyInfo::State;
using wlccw::detail::Row;

constexpr std::array<Row<State>, 3> state_rows{{
    {"no-bind", State::no_bind},
    {"no-config", State::no_config},
    {"has-data", State::has_data},
}};
static_assert(wlccw::detail::rows_in_value_order(state_rows));

constexpr auto state_dictionary = wlccw::detail::make_dictionary(state_rows);

/// The IPC text of a state; "no-bind" for a value outside the three.
char const* state_text(State state) {
  // Every row text is a literal, so its view is NUL-terminated.
  return wlccw::detail::text_of(state_rows, state).value_or(state_rows[0].first).data();
}

bool knows_ap(State state) {
  return state == State::no_config || state == State::has_data;
}

} // namespace

ClientCoaProxyInfo ClientCoaProxyInfo::no_bind(MacAddr const& client) {
  ClientCoaProxyInfo info;
  info.state = State::no_bind;
  info.client_mac = client;
  return info;
}

ClientCoaProxyInfo ClientCoaProxyInfo::no_config(MacAddr const& client, MacAddr const& ap) {
  ClientCoaProxyInfo info;
  info.state = State::no_config;
  info.client_mac = client;
  info.ap_mac = ap;
  return info;
}

ClientCoaProxyInfo ClientCoaProxyInfo::with_data(MacAddr const& client, MacAddr const& ap,
                                                 IpAddr const& ip, unsigned short port,
                                                 std::string const& password, bool enabled) {
  ClientCoaProxyInfo info;
  info.state = State::has_data;
  info.client_mac = client;
  info.ap_mac = ap;
  info.ip = ip;
  info.port = port;
  info.password = password;
  info.enabled = enabled;
  return info;
}

ClientCoaProxyInfo::State ClientCoaProxyInfo::get_state() const {
  return state;
}

std::optional<MacAddr> ClientCoaProxyInfo::get_client_mac() const {
  return client_mac;
}

std::optional<MacAddr> ClientCoaProxyInfo::get_ap_mac() const {
  if (!knows_ap(state)) {
    return std::nullopt;
  }
  return ap_mac;
}

std::optional<IpAddr> ClientCoaProxyInfo::get_ip() const {
  if (state != State::has_data) {
    return std::nullopt;
  }
  return ip;
}

std::optional<unsigned short> ClientCoaProxyInfo::get_port() const {
  if (state != State::has_data) {
    return std::nullopt;
  }
  return port;
}

std::optional<std::string> ClientCoaProxyInfo::get_password() const {
  if (state != State::has_data) {
    return std::nullopt;
  }
  return password;
}

std::optional<bool> ClientCoaProxyInfo::get_enabled() const {
  if (state != State::has_data) {
    return std::nullopt;
  }
  return enabled;
}

std::string ClientCoaProxyInfo::to_ipc(ClientCoaProxyInfo const& info) {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  if (!root) {
    return {};
  }
  lcw_data_t* const node = root.get();
  cfg_set_param(node, "state", state_text(info.state));
  char mac[18];
  info.client_mac.format(mac);
  cfg_set_param(node, "client-mac", mac);
  if (info.state == State::has_data) {
    cfg_set_param(node, "ip", info.ip.str().c_str());
    cfg_set_uint16_param(node, "port", info.port);
    cfg_set_param(node, "password", info.password.c_str());
    cfg_set_boolean_param(node, "enabled", info.enabled);
  }
  if (knows_ap(info.state)) {
    info.ap_mac.format(mac);
    cfg_set_param(node, "ap-mac", mac);
  }
  return wlccw::cfg::compact(node);
}

ClientCoaProxyInfo ClientCoaProxyInfo::from_ipc(std::string const& text) {
  ClientCoaProxyInfo info;
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return info;
  }
  lcw_data_t const* const node = root.get();
  info.state = state_dictionary.find(cfg_get_param(node, "state")).value_or(State::no_bind);
  info.client_mac = MacAddr::from_str(cfg_get_param(node, "client-mac"));
  if (info.state == State::has_data) {
    info.ip = cfg_get_param(node, "ip");
    info.port = cfg_get_uint16_param(node, "port");
    info.password = cfg_get_param(node, "password");
    info.enabled = cfg_get_boolean_param(node, "enabled") != 0;
  }
  if (knows_ap(info.state)) {
    info.ap_mac = MacAddr::from_str(cfg_get_param(node, "ap-mac"));
  }
  return info;
}
