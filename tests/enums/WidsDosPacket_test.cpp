// The frame of a denial-of-service attack: 36 dense values with texts both ways, ASSOC_REQ or ""
// for anything else.
#include <wlccw/enums/WidsDosPacket.hpp>

#include "WidsChecks.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

using WidsDosPacket::Packet;

// The frame texts in value order (value i is texts[i]), written out here independently of the
// library's table: management, control, then data subtypes.
constexpr char const* texts[] = {
    "assoc_req",
    "assoc_resp",
    "reassoc_req",
    "reassoc_resp",
    "probe_req",
    "probe_resp",
    "beacon",
    "atim",
    "disassoc",
    "auth",
    "deauth",
    "action",
    "action_noack",
    "ndpa",
    "control_wrapper",
    "block_ack_req",
    "block_ack",
    "ps_poll",
    "rts",
    "cts",
    "ack",
    "cf_end",
    "cf_end_ack",
    "data",
    "data_cf_ack",
    "data_cf_poll",
    "data_cf_ack_poll",
    "null",
    "cf_ack",
    "cf_poll",
    "cf_ack_poll",
    "qos_data",
    "qos_data_cf_ack",
    "qos_data_cf_poll",
    "qos_data_cf_ack_poll",
    "qos_null",
};
constexpr std::int32_t count = 36;
static_assert(std::size(texts) == count);

Packet packet_of(std::int32_t value) {
  return static_cast<Packet>(value);
}

// Both parsers must give the same answer; this checks that and returns it.
constexpr auto parse_both =
    &wids_checks::parse_both<WidsDosPacket::netconf_deserialize, WidsDosPacket::ipc_deserialize>;

TEST(WidsDosPacket, EnumeratorsAreDenseInSubtypeOrder) {
  EXPECT_EQ(static_cast<std::int32_t>(Packet::ASSOC_REQ), 0);
  EXPECT_EQ(static_cast<std::int32_t>(Packet::ACTION_NOACK), 12);
  EXPECT_EQ(static_cast<std::int32_t>(Packet::BLOCK_ACK_REQ), 15);
  EXPECT_EQ(static_cast<std::int32_t>(Packet::DATA), 23);
  EXPECT_EQ(static_cast<std::int32_t>(Packet::NULL_DATA), 27);
  EXPECT_EQ(static_cast<std::int32_t>(Packet::QOS_NULL), 35);
}

TEST(WidsDosPacket, EveryRowInEveryDirection) {
  for (std::int32_t value = 0; value < count; ++value) {
    std::string const text = texts[value];
    EXPECT_EQ(WidsDosPacket::netconf_deserialize(text), packet_of(value)) << text;
    EXPECT_EQ(WidsDosPacket::ipc_deserialize(text), packet_of(value)) << text;
    EXPECT_EQ(WidsDosPacket::to_str(packet_of(value)), text) << value;
    EXPECT_EQ(WidsDosPacket::ipc_serialize(packet_of(value)), text) << value;
  }
}

TEST(WidsDosPacket, TimingAdvertisementNamedAnyWayIsAssocReq) {
  for (std::string const text :
       {"timing_advertisement", "timing-advertisement", "timing_adv", "timing", "timingadv",
        "TIMING_ADVERTISEMENT", "Timing Advertisement", "timing advertisement", "ta"}) {
    EXPECT_EQ(WidsDosPacket::netconf_deserialize(text), Packet::ASSOC_REQ) << text;
    EXPECT_EQ(WidsDosPacket::netconf_deserialize(text),
              WidsDosPacket::netconf_deserialize("assoc_req"))
        << text;
    EXPECT_EQ(static_cast<std::int32_t>(WidsDosPacket::netconf_deserialize(text)), 0) << text;
  }
}

TEST(WidsDosPacket, UnknownAndEmptyTextsAreAssocReq) {
  wids_checks::expect_all_fall_back({"", "unknown", "reserved", "assoc", "assoc_request", "probe",
                                     "qos", "qos_null_data", "cf_end_cf_ack", "beacons", "0", "27",
                                     "NULL", "nul", "nulll", "trigger", "beamforming"},
                                    parse_both, Packet::ASSOC_REQ);
}

TEST(WidsDosPacket, HyphenatedTextsAreAssocReq) {
  wids_checks::expect_swapped_separator_texts_fall_back(texts, parse_both, Packet::ASSOC_REQ);
}

TEST(WidsDosPacket, CaseChangedTextsAreAssocReq) {
  wids_checks::expect_case_changed_texts_fall_back(texts, parse_both, Packet::ASSOC_REQ);
}

TEST(WidsDosPacket, BlankPaddedTextsAreAssocReq) {
  wids_checks::expect_blank_padded_texts_fall_back(texts, parse_both, Packet::ASSOC_REQ);
}

TEST(WidsDosPacket, TextIsComparedWholeIncludingNulBytes) {
  wids_checks::expect_texts_compared_whole(texts, parse_both, Packet::ASSOC_REQ);
}

TEST(WidsDosPacket, ValuesOutsideTheTableHaveNoText) {
  for (std::int32_t value : {count, count + 1, 200, 255, -1, -36, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(WidsDosPacket::to_str(packet_of(value)), "") << value;
    EXPECT_EQ(WidsDosPacket::ipc_serialize(packet_of(value)), "") << value;
  }
}

} // namespace
