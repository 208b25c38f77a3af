/// \file
/// Where a RADIUS CoA request for one client must be relayed: nowhere known (the client is bound to
/// no access point), to an access point without DAS proxy configuration, or to a full proxy
/// endpoint with its shared secret.
///
/// The shared secret travels in clear inside the IPC text. The record has no stream operator and no
/// text form other than that IPC text, so nothing in the library prints or logs a secret.
#pragma once

#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <cstdint>
#include <optional>
#include <string>

/// The CoA proxy answer for one client. Build it with no_bind, no_config or with_data.
///
/// IPC form, a compact JSON object: "state" ("no-bind", "no-config" or "has-data"),
/// "client-mac", then for has-data "ip", "port", "password" and "enabled", then for no-config and
/// has-data "ap-mac".
class WLCCW_EXPORT ClientCoaProxyInfo {
public:
  /// Which of the three answers the record is.
  enum class State : std::int32_t {
    no_bind = 0,   ///< the client is bound to no access point
    no_config = 1, ///< bound, but its access point has no DAS proxy configuration
    has_data = 2,  ///< the full proxy endpoint is known
  };

  /// Which answer this is.
  State state = State::no_bind;
  /// The client.
  MacAddr client_mac;
  /// The access point serving the client (meaningful in no_config and has_data).
  MacAddr ap_mac;
  /// The proxy address (has_data only).
  IpAddr ip;
  /// The proxy port (has_data only).
  std::uint16_t port = 0;
  /// The RADIUS shared secret of the proxy (has_data only).
  std::string password;
  /// Whether the proxy is enabled (has_data only).
  bool enabled = false;

  /// The client is bound to no access point.
  static ClientCoaProxyInfo no_bind(MacAddr const& client);
  /// The client is served by ap, which has no DAS proxy configuration.
  static ClientCoaProxyInfo no_config(MacAddr const& client, MacAddr const& ap);
  /// The client is served by ap, whose proxy listens at ip and port with the given secret.
  static ClientCoaProxyInfo with_data(MacAddr const& client, MacAddr const& ap, IpAddr const& ip,
                                      unsigned short port, std::string const& password,
                                      bool enabled);

  /// The state.
  State get_state() const;
  /// The client's address; always engaged.
  std::optional<MacAddr> get_client_mac() const;
  /// The access point's address in no_config and has_data; empty otherwise.
  std::optional<MacAddr> get_ap_mac() const;
  /// The proxy address in has_data; empty otherwise.
  std::optional<IpAddr> get_ip() const;
  /// The proxy port in has_data; empty otherwise.
  std::optional<unsigned short> get_port() const;
  /// A copy of the shared secret in has_data; empty otherwise.
  std::optional<std::string> get_password() const;
  /// Whether the proxy is enabled, in has_data; empty otherwise.
  std::optional<bool> get_enabled() const;

  /// The compact IPC text of info; "" when no root can be made. A state outside the three is
  /// written as "no-bind", with the client's address only.
  static std::string to_ipc(ClientCoaProxyInfo const& info);
  /// The record of an IPC text. Never throws on bad text: text that is not JSON gives the default
  /// record; a missing or unknown "state" (such as "no_config") gives no_bind, of which only
  /// "client-mac" is read; a malformed address leaves the default address; a missing or out of
  /// range "port" gives 0 and a missing or non-boolean "enabled" false.
  static ClientCoaProxyInfo from_ipc(std::string const& text);

  /// Equal when every member is equal, those the state does not use included (MAC addresses by
  /// their octets).
  friend bool operator==(ClientCoaProxyInfo const&, ClientCoaProxyInfo const&) = default;
};
