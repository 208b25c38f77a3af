// Reads every dictionary of the library once and counts the answers that are wrong: the workload
// of the concurrent tests, each thread with its own DictionaryReader.
#pragma once

#include <wlccw/wlccw.hpp>

#include <cstddef>
#include <optional>
#include <string>

namespace wlccw::test {

class DictionaryReader {
public:
  std::size_t wrong = 0;
  void expect(bool ok) { wrong += ok ? 0U : 1U; }

  // A client enumeration whose IPC converter takes and gives optionals.
  template <typename E, typename Parse> void optional_form(int count, Parse parse) {
    for (int v = 0; v < count; ++v) {
      auto const e = static_cast<E>(v);
      std::optional<std::string> const text = convert_to_ipc_str(std::optional<E>(e));
      expect(text.has_value() && parse(*text) == e);
    }
  }
  // A client event type: plain value, defaulting IPC parser.
  template <typename E, typename Parse> void plain_form(int count, Parse parse) {
    for (int v = 0; v < count; ++v) {
      auto const e = static_cast<E>(v);
      expect(parse(convert_to_ipc_str(e)) == e);
    }
  }
  // A controller state word: name to value and back, UNKNOWN included.
  template <typename E, typename From, typename To> void x_family(int count, From from, To to) {
    for (int v = 0; v < count; ++v) {
      auto const e = static_cast<E>(v);
      expect(from(to(e)) == e);
    }
  }
};

inline void read_every_dictionary(DictionaryReader& r) {
  // Client enumerations.
  r.optional_form<ClientAuthAlgorithm>(8, client_auth_algorithm_from_ipc_str);
  r.optional_form<ClientEapMethod>(22, client_eap_method_from_ipc_str);
  r.optional_form<ClientMacAuthStatus>(4, client_mac_auth_status_from_ipc_str);
  r.optional_form<ClientPortalAuthStatus>(6, client_portal_auth_status_from_ipc_str);
  r.optional_form<ClientWlanAuthMethod>(8, client_wlan_auth_method_from_ipc_str);
  r.optional_form<ClientWlanAuthStatus>(3, client_wlan_auth_status_from_ipc_str);
  r.optional_form<ClientWirelessMode>(
      8, [](std::string const& s) { return client_wireless_mode_from_ipc_str(s); });
  r.plain_form<ClientConnectedEventType>(4, client_connected_event_type_from_ipc_str);
  r.plain_form<ClientCportalEventType>(4, client_cportal_event_type_from_ipc_str);
  r.plain_form<ClientDisconnectedEventType>(10, client_disconnected_event_type_from_ipc_str);
  r.plain_form<ClientFailEventType>(13, client_fail_event_type_from_ipc_str);
  r.plain_form<ClientFailAuthStep>(12, client_fail_auth_step_from_ipc_str);
  r.plain_form<ClientIpChangedEventType>(4, client_ip_changed_event_type_from_ipc_str);
  r.plain_form<ClientMacAuthEventType>(2, client_mac_auth_event_type_from_ipc_str);
  r.plain_form<ClientRoamingEventType>(6, client_roaming_event_type_from_ipc_str);
  for (int v = 0; v < 3; ++v) {
    auto const e = static_cast<ClientMacAuthReason>(v);
    r.expect(client_mac_auth_reason_from_ipc_str(
                 convert_to_ipc_str(std::optional<ClientMacAuthReason>(e))) == e);
  }
  r.expect(client_eap_method_from_netconf_str("EAP-TEAP") == ClientEapMethod::EAP_TEAP);
  r.expect(client_auth_algorithm_netconf_str("sae") == ClientAuthAlgorithm::SAE);
  r.expect(client_mac_auth_status_from_netconf_str("authorized") ==
           ClientMacAuthStatus::AUTHENTICATED);
  r.expect(client_wlan_auth_method_from_netconf_str(convert_to_clish_str(
               ClientWlanAuthMethod::WPA2_ENTERPRISE)) == ClientWlanAuthMethod::WPA2_ENTERPRISE);
  r.expect(auth_portal_client_status_from_netconf_str("clientNotFound") ==
           AuthPortalClientStatus::CLIENT_NOT_FOUND);

  // Controller state words.
  r.x_family<APState>(16, APStateFromStrX, APStateToStrX);
  r.x_family<VelmoraMsgType>(9, VelmoraMsgTypeFromStrX, VelmoraMsgTypeToStrX);
  r.x_family<VelmoraRespStatus>(3, VelmoraRespStatusFromStrX, VelmoraRespStatusToStrX);
  r.x_family<ApIndicationAction>(3, ApIndicationActionFromStrX, ApIndicationActionToStrX);
  r.x_family<ApSaStage>(4, ApSaStageFromStrX, ApSaStageToStrX);
  r.x_family<FwVersionChecked>(6, FwVersionCheckedFromStrX, FwVersionCheckedToStrX);
  r.x_family<IncomingConnections>(3, IncomingConnectionsFromStrX, IncomingConnectionsToStrX);
  r.x_family<IpcMsgCfgState>(4, IpcMsgCfgStateFromStrX, IpcMsgCfgStateToStrX);
  r.x_family<IpcMsgCheckApVerdict>(9, IpcMsgCheckApVerdictFromStrX, IpcMsgCheckApVerdictToStrX);
  r.x_family<IpcMsgStatus>(3, IpcMsgStatusFromStrX, IpcMsgStatusToStrX);
  r.x_family<IpcStopReason>(2, IpcStopReasonFromStrX, IpcStopReasonToStrX);
  r.x_family<MacFilterAction>(8, MacFilterActionFromStrX, MacFilterActionToStrX);
  r.x_family<RadioBand>(4, RadioBandFromStrX, RadioBandToStrX);
  r.x_family<SaCertErrorCodes>(4, SaCertErrorCodesFromStrX, SaCertErrorCodesToStrX);
  r.x_family<SecurityMode>(13, SecurityModeFromStrX, SecurityModeToStrX);
  r.x_family<VrrpRole>(4, VrrpRoleFromStrX, VrrpRoleToStrX);

  // Configuration words.
  r.expect(MacAuthMode_from_wlc_config(MacAuthMode_to_ap_config(MacAuthMode::RADIUS)) ==
           MacAuthMode::RADIUS);
  for (int v = 0; v < 4; ++v) {
    auto const m = static_cast<mfp::Mode>(v);
    r.expect(mfp::from_wlc_config(mfp::to_ap_config(m)) == m);
  }
  for (int v = 0; v < 3; ++v) {
    auto const p = static_cast<PowerSupply>(v);
    r.expect(power_supply_from_str(power_supply_to_str(p)) == p);
    auto const b = static_cast<radio::Band>(v);
    r.expect(radio::band::from_str_opt(radio::band::to_str(b)) == b);
  }

  // WIDS reports.
  for (unsigned code = 0; code < 256; ++code) {
    auto const t = WidsClientBannedEAPMethod::netconf_deserialize(code);
    r.expect(WidsClientBannedEAPMethod::ipc_deserialize(WidsClientBannedEAPMethod::to_str(t)) == t);
  }
  for (unsigned code = 0; code < 4; ++code) {
    auto const t = WidsClientBannedAuthMethod::netconf_deserialize(code);
    r.expect(WidsClientBannedAuthMethod::ipc_deserialize(WidsClientBannedAuthMethod::to_str(t)) ==
             t);
  }
  for (int v = 0; v < 4; ++v) {
    auto const reason = static_cast<WidsDetectedRogueReason::Reason>(v);
    r.expect(WidsDetectedRogueReason::ipc_deserialize(WidsDetectedRogueReason::to_str(reason)) ==
             reason);
  }
  for (int v = 0; v < 3; ++v) {
    auto const t = static_cast<WidsDosAttack::Type>(v);
    r.expect(WidsDosAttack::netconf_deserialize(WidsDosAttack::ipc_serialize(t)) == t);
  }
  for (int v = 0; v < 36; ++v) {
    auto const p = static_cast<WidsDosPacket::Packet>(v);
    r.expect(WidsDosPacket::netconf_deserialize(WidsDosPacket::to_str(p)) == p);
  }
}

} // namespace wlccw::test
