#include <wlccw/enums/WidsDosPacket.hpp>

#include "detail/Dictionary.hpp"

namespace WidsDosPacket {
namespace {

using wlccw::detail::Row;

constexpr std::array<Row<Packet>, 36> dos_packet_names{{
    {"assoc_req", Packet::ASSOC_REQ},
    {"assoc_resp", Packet::ASSOC_RESP},
    {"reassoc_req", Packet::REASSOC_REQ},
    {"reassoc_resp", Packet::REASSOC_RESP},
    {"probe_req", Packet::PROBE_REQ},
    {"probe_resp", Packet::PROBE_RESP},
    {"beacon", Packet::BEACON},
    {"atim", Packet::ATIM},
    {"disassoc", Packet::DISASSOC},
    {"auth", Packet::AUTH},
    {"deauth", Packet::DEAUTH},
    {"action", Packet::ACTION},
    {"action_noack", Packet::ACTION_NOACK},
    {"ndpa", Packet::NDPA},
    {"control_wrapper", Packet::CONTROL_WRAPPER},
    {"block_ack_req", Packet::BLOCK_ACK_REQ},
    {"block_ack", Packet::BLOCK_ACK},
    {"ps_poll", Packet::PS_POLL},
    {"rts", Packet::RTS},
    {"cts", Packet::CTS},
    {"ack", Packet::ACK},
    {"cf_end", Packet::CF_END},
    {"cf_end_ack", Packet::CF_END_ACK},
    {"data", Packet::DATA},
    {"data_cf_ack", Packet::DATA_CF_ACK},
    {"data_cf_poll", Packet::DATA_CF_POLL},
    {"data_cf_ack_poll", Packet::DATA_CF_ACK_POLL},
    {"null", Packet::NULL_DATA},
    {"cf_ack", Packet::CF_ACK},
    {"cf_poll", Packet::CF_POLL},
    {"cf_ack_poll", Packet::CF_ACK_POLL},
    {"qos_data", Packet::QOS_DATA},
    {"qos_data_cf_ack", Packet::QOS_DATA_CF_ACK},
    {"qos_data_cf_poll", Packet::QOS_DATA_CF_POLL},
    {"qos_data_cf_ack_poll", Packet::QOS_DATA_CF_ACK_POLL},
    {"qos_null", Packet::QOS_NULL},
}};
static_assert(wlccw::detail::rows_in_value_order(dos_packet_names));

constexpr auto dos_packet_type_map = wlccw::detail::make_dictionary(dos_packet_names);

} // namespace

Packet netconf_deserialize(std::string const& text) {
  // There is no value for an unknown frame: it counts as the first subtype, an association
  // request.
  return dos_packet_type_map.find(text).value_or(Packet::ASSOC_REQ);
}

Packet ipc_deserialize(std::string const& text) {
  // The IPC texts are the AP's texts; the same fallback applies.
  return dos_packet_type_map.find(text).value_or(Packet::ASSOC_REQ);
}

std::string to_str(Packet packet) {
  return wlccw::detail::text_or_empty(dos_packet_names, packet);
}

std::string ipc_serialize(Packet packet) {
  return to_str(packet);
}

} // namespace WidsDosPacket
