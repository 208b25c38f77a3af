// The cost of one enumeration conversion in each family: a text parsed when it names a value (hit)
// and when it names none (miss), and a value written as text. Each loop cycles through eight
// inputs held in memory, so no result can be computed ahead of the loop. Each reports its heap
// allocations per call (allocs/op): a lookup makes none.
#include <wlccw/enums/APState.hpp>
#include <wlccw/enums/ClientConnectedEventType.hpp>
#include <wlccw/enums/ClientEapMethod.hpp>
#include <wlccw/enums/WidsClientBannedEAPMethod.hpp>
#include <wlccw/enums/WidsDosPacket.hpp>

#include "support/cycle.hpp"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t input_count = 8;

template <typename T> using Inputs = std::array<T, input_count>;

using wlccw::bench::cycle;

// ---- client family: optionals, two text forms ------------------------------------------------

Inputs<std::string_view> const eap_netconf_hits{"EAP-MD5",  "EAP-TLS",      "EAP-PEAP",
                                                "EAP-TTLS", "EAP-FAST",     "EAP-MSCHAPV2",
                                                "EAP-PWD",  "EAP-AKA-PRIME"};
Inputs<std::string_view> const eap_netconf_misses{
    "eap_md5", "EAP-tls", "EAP-PEAP ", "EAP_TTLS", "EAP-FASTX", "EAP-MSCHAPv2", "", "EAP-AKA'"};
Inputs<std::string_view> const eap_ipc_hits{"eap_md5",  "eap_tls",      "eap_peap",
                                            "eap_ttls", "eap_fast",     "eap_mschapv2",
                                            "eap_pwd",  "eap_aka_prime"};
Inputs<std::string_view> const eap_ipc_misses{
    "EAP-MD5", "eap_TLS", " eap_peap", "eap-ttls", "eap_fastx", "eap_mschap", "", "eap_aka_primes"};
Inputs<std::optional<ClientEapMethod>> const eap_values{
    ClientEapMethod::EAP_MD5,  ClientEapMethod::EAP_TLS,      ClientEapMethod::EAP_PEAP,
    ClientEapMethod::EAP_TTLS, ClientEapMethod::EAP_FAST,     ClientEapMethod::EAP_MSCHAPV2,
    ClientEapMethod::EAP_PWD,  ClientEapMethod::EAP_AKA_PRIME};
Inputs<std::string_view> const event_ipc_hits{"assoc", "auth", "wds_connected", "8021x_success",
                                              "assoc", "auth", "wds_connected", "8021x_success"};
Inputs<std::string_view> const event_ipc_misses{
    "wds-connected", "8021x-success", "Assoc", "AUTH", "", " assoc", "auth ", "roam"};

void BM_ClientEapMethod_NetconfParse_Hit(benchmark::State& state) {
  cycle(state, eap_netconf_hits, client_eap_method_from_netconf_str);
}
void BM_ClientEapMethod_NetconfParse_Miss(benchmark::State& state) {
  cycle(state, eap_netconf_misses, client_eap_method_from_netconf_str);
}
void BM_ClientEapMethod_IpcParse_Hit(benchmark::State& state) {
  cycle(state, eap_ipc_hits, client_eap_method_from_ipc_str);
}
void BM_ClientEapMethod_IpcParse_Miss(benchmark::State& state) {
  cycle(state, eap_ipc_misses, client_eap_method_from_ipc_str);
}
void BM_ClientEapMethod_ToIpcStr(benchmark::State& state) {
  cycle(state, eap_values,
        [](std::optional<ClientEapMethod> const& m) { return convert_to_ipc_str(m); });
}
void BM_ClientConnectedEventType_IpcParse_Hit(benchmark::State& state) {
  cycle(state, event_ipc_hits, client_connected_event_type_from_ipc_str);
}
void BM_ClientConnectedEventType_IpcParse_Miss(benchmark::State& state) {
  cycle(state, event_ipc_misses, client_connected_event_type_from_ipc_str);
}

BENCHMARK(BM_ClientEapMethod_NetconfParse_Hit);
BENCHMARK(BM_ClientEapMethod_NetconfParse_Miss);
BENCHMARK(BM_ClientEapMethod_IpcParse_Hit);
BENCHMARK(BM_ClientEapMethod_IpcParse_Miss);
BENCHMARK(BM_ClientEapMethod_ToIpcStr);
BENCHMARK(BM_ClientConnectedEventType_IpcParse_Hit);
BENCHMARK(BM_ClientConnectedEventType_IpcParse_Miss);

// ---- controller state ("X") family: UNKNOWN for an unknown name ------------------------------

Inputs<std::string_view> const ap_state_hits{"Start",  "Ready",     "Active", "Upgrading FW",
                                             "Failed", "Rebooting", "Lost",   "Updating creds"};
Inputs<std::string_view> const ap_state_misses{"start",   "READY",     "Active ", "Upgrading_FW",
                                               "Failed!", "rebooting", "",        "Updating"};
Inputs<APState> const ap_state_values{APState::START,        APState::READY,  APState::ACTIVE,
                                      APState::UPGRADING_FW, APState::FAILED, APState::REBOOTING,
                                      APState::LOST,         APState::UNKNOWN};

void BM_APStateFromStrX_Hit(benchmark::State& state) {
  cycle(state, ap_state_hits, APStateFromStrX);
}
void BM_APStateFromStrX_Miss(benchmark::State& state) {
  cycle(state, ap_state_misses, APStateFromStrX);
}
void BM_APStateToStrX(benchmark::State& state) {
  cycle(state, ap_state_values, APStateToStrX);
}

BENCHMARK(BM_APStateFromStrX_Hit);
BENCHMARK(BM_APStateFromStrX_Miss);
BENCHMARK(BM_APStateToStrX);

// ---- WIDS family: a fallback value of its own per enumeration --------------------------------

Inputs<std::string> const dos_packet_hits{
    "assoc_req", "beacon",   "deauth", "probe_req",
    "block_ack", "qos_data", "null",   "qos_data_cf_ack_poll"};
Inputs<std::string> const dos_packet_misses{
    "ASSOC_REQ", "beacon ", "de-auth", "probe", "blockack", "qos-data", "", "timing_advertisement"};
Inputs<WidsDosPacket::Packet> const dos_packet_values{
    WidsDosPacket::Packet::ASSOC_REQ, WidsDosPacket::Packet::BEACON,
    WidsDosPacket::Packet::DEAUTH,    WidsDosPacket::Packet::PROBE_REQ,
    WidsDosPacket::Packet::BLOCK_ACK, WidsDosPacket::Packet::QOS_DATA,
    WidsDosPacket::Packet::NULL_DATA, WidsDosPacket::Packet::QOS_DATA_CF_ACK_POLL};
Inputs<unsigned int> const eap_code_hits{0, 4, 13, 21, 25, 26, 48, 254};
Inputs<unsigned int> const eap_code_misses{7, 14, 22, 54, 56, 100, 255, 4096};
Inputs<WidsClientBannedEAPMethod::Type> const eap_type_values{
    WidsClientBannedEAPMethod::Type::NONE, WidsClientBannedEAPMethod::Type::MD5,
    WidsClientBannedEAPMethod::Type::TLS,  WidsClientBannedEAPMethod::Type::TTLS,
    WidsClientBannedEAPMethod::Type::PEAP, WidsClientBannedEAPMethod::Type::MSCHAPV2,
    WidsClientBannedEAPMethod::Type::SAKE, WidsClientBannedEAPMethod::Type::EXPANDED};

void BM_WidsDosPacket_IpcDeserialize_Hit(benchmark::State& state) {
  cycle(state, dos_packet_hits, WidsDosPacket::ipc_deserialize);
}
void BM_WidsDosPacket_IpcDeserialize_Miss(benchmark::State& state) {
  cycle(state, dos_packet_misses, WidsDosPacket::ipc_deserialize);
}
void BM_WidsDosPacket_ToStr(benchmark::State& state) {
  cycle(state, dos_packet_values, WidsDosPacket::to_str);
}
void BM_WidsClientBannedEAPMethod_NetconfDeserialize_Hit(benchmark::State& state) {
  cycle(state, eap_code_hits, WidsClientBannedEAPMethod::netconf_deserialize);
}
void BM_WidsClientBannedEAPMethod_NetconfDeserialize_Miss(benchmark::State& state) {
  cycle(state, eap_code_misses, WidsClientBannedEAPMethod::netconf_deserialize);
}
void BM_WidsClientBannedEAPMethod_ToStr(benchmark::State& state) {
  cycle(state, eap_type_values, WidsClientBannedEAPMethod::to_str);
}

BENCHMARK(BM_WidsDosPacket_IpcDeserialize_Hit);
BENCHMARK(BM_WidsDosPacket_IpcDeserialize_Miss);
BENCHMARK(BM_WidsDosPacket_ToStr);
BENCHMARK(BM_WidsClientBannedEAPMethod_NetconfDeserialize_Hit);
BENCHMARK(BM_WidsClientBannedEAPMethod_NetconfDeserialize_Miss);
BENCHMARK(BM_WidsClientBannedEAPMethod_ToStr);

} // namespace
