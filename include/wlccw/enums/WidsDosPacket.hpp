/// \file
/// The 802.11 frame type and subtype used in a denial-of-service attack, in the order of the frame
/// subtypes: management, then control, then data. Reserved subtypes and the timing advertisement
/// have no value.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>
#include <string>

/// The 802.11 frame used in a denial-of-service attack, with its texts.
namespace WidsDosPacket {

/// The frame type and subtype, in the order of the frame subtypes; each text is the name in lower
/// case, except NULL_DATA, whose text is "null".
enum class Packet : std::int32_t {
  ASSOC_REQ = 0,
  ASSOC_RESP = 1,
  REASSOC_REQ = 2,
  REASSOC_RESP = 3,
  PROBE_REQ = 4,
  PROBE_RESP = 5,
  BEACON = 6,
  ATIM = 7,
  DISASSOC = 8,
  AUTH = 9,
  DEAUTH = 10,
  ACTION = 11,
  ACTION_NOACK = 12,
  NDPA = 13,
  CONTROL_WRAPPER = 14,
  BLOCK_ACK_REQ = 15,
  BLOCK_ACK = 16,
  PS_POLL = 17,
  RTS = 18,
  CTS = 19,
  ACK = 20,
  CF_END = 21,
  CF_END_ACK = 22,
  DATA = 23,
  DATA_CF_ACK = 24,
  DATA_CF_POLL = 25,
  DATA_CF_ACK_POLL = 26,
  NULL_DATA = 27, // text "null": the data frame without data (NULL itself is a macro)
  CF_ACK = 28,
  CF_POLL = 29,
  CF_ACK_POLL = 30,
  QOS_DATA = 31,
  QOS_DATA_CF_ACK = 32,
  QOS_DATA_CF_POLL = 33,
  QOS_DATA_CF_ACK_POLL = 34,
  QOS_NULL = 35,
};

/// The frame of an AP's text ("assoc_req" ... "qos_null", exactly); ASSOC_REQ for any other text.
WLCCW_EXPORT Packet netconf_deserialize(std::string const& text);
/// The frame of an IPC text: the same texts and fallback as netconf_deserialize.
WLCCW_EXPORT Packet ipc_deserialize(std::string const& text);
/// The text of the frame; "" for a value outside the table.
WLCCW_EXPORT std::string to_str(Packet packet);
/// The IPC text of the frame: the same as to_str.
WLCCW_EXPORT std::string ipc_serialize(Packet packet);

} // namespace WidsDosPacket
