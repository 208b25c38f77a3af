// The radios of an AP: the noise average with its fixed unsigned arithmetic, reading radio objects
// from the NETCONF reply, from an array node and from array text, the -1 marker of unreported
// measurements, the exact IPC text in the writer's key order, and the fallbacks for bad input.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include "support/samples.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace {

using Radio = NcIpcApMonitoringRadioInterface::RadioParams;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;
using wlccw::test::read_sample;

// The IPC text of the radio list of monitoring/reply-full.json, worked out by hand:
// - every radio writes name, band, hwaddr, status, then channel, bandwidth, tx-power, eirp and
//   frequency (those present, always as strings: "eirp":20 and "frequency":2437 become "20" and
//   "2437"), then noise-level, then the seven measurements in writer order;
// - wifi0 has "noise-level" -92, which wins over its samples -90/-91; "tx-utilization":"9" is 9;
// - wifi1 has no "noise-level": samples -95 and -96 sum to -191, divided as an unsigned 64-bit
//   number by 2 that is 2^63 - 96 (rounded down), whose low 32 bits are -96;
// - wifi2 has no "eirp" and three samples of -95: (2^64 - 285) / 3 = 0x55555555555554F6, low
//   32 bits 1431655670 (0x555554F6), low 16 bits 0x54F6 = 21750; its four missing measurements
//   are -1;
// - wifi3 has only name, band, hwaddr and status: no optional texts, no noise level, and all seven
//   measurements -1.
constexpr char const* wifi0_text =
    R"({"name":"wifi0","band":"2.4GHz","hwaddr":"A4:5D:36:10:20:30","status":"up",)"
    R"("channel":"6","bandwidth":"20","tx-power":"17","eirp":"20","frequency":"2437",)"
    R"("noise-level":-92,"utilization":43,"rx-utilization":21,"tx-utilization":9,)"
    R"("non-wifi-interference":3,"ap-interference-ratio":12,"co-channel-interference":18,)"
    R"("packet-error-rate":2})";
constexpr char const* wifi1_text =
    R"({"name":"wifi1","band":"5GHz","hwaddr":"a4:5d:36:10:20:40","status":"up",)"
    R"("channel":"36","bandwidth":"80","tx-power":"23","eirp":"26","frequency":"5180",)"
    R"("noise-level":-96,"utilization":17,"rx-utilization":8,"tx-utilization":6,)"
    R"("non-wifi-interference":0,"ap-interference-ratio":4,"co-channel-interference":5,)"
    R"("packet-error-rate":1})";
constexpr char const* wifi2_text =
    R"({"name":"wifi2","band":"6GHz","hwaddr":"a4:5d:36:10:20:50","status":"up",)"
    R"("channel":"37","bandwidth":"160","tx-power":"21","frequency":"6135",)"
    R"("noise-level":21750,"utilization":4,"rx-utilization":2,"tx-utilization":1,)"
    R"("non-wifi-interference":-1,"ap-interference-ratio":-1,"co-channel-interference":-1,)"
    R"("packet-error-rate":-1})";
constexpr char const* wifi3_text =
    R"({"name":"wifi3","band":"5GHz","hwaddr":"a4:5d:36:10:20:60","status":"down",)"
    R"("utilization":-1,"rx-utilization":-1,"tx-utilization":-1,"non-wifi-interference":-1,)"
    R"("ap-interference-ratio":-1,"co-channel-interference":-1,"packet-error-rate":-1})";

std::string full_array_text() {
  return std::string("[") + wifi0_text + "," + wifi1_text + "," + wifi2_text + "," + wifi3_text +
         "]";
}
std::string full_text() {
  return R"({"radio-interface":)" + full_array_text() + "}";
}

/// The radios of reply-full.json as they should be read, field by field.
std::vector<Radio> full_radios() {
  Radio wifi0;
  wifi0.name = "wifi0";
  wifi0.band = "2.4GHz";
  wifi0.status = "up";
  wifi0.hwaddr = "A4:5D:36:10:20:30";
  wifi0.tx_power = "17";
  wifi0.eirp = "20";
  wifi0.channel = "6";
  wifi0.bandwidth = "20";
  wifi0.frequency = "2437";
  wifi0.noise_level = -92;
  wifi0.utilization = 43;
  wifi0.rx_utilization = 21;
  wifi0.tx_utilization = 9;
  wifi0.non_wifi_interference = 3;
  wifi0.ap_interference_ratio = 12;
  wifi0.co_channel_interference = 18;
  wifi0.packet_error_rate = 2;

  Radio wifi1;
  wifi1.name = "wifi1";
  wifi1.band = "5GHz";
  wifi1.status = "up";
  wifi1.hwaddr = "a4:5d:36:10:20:40";
  wifi1.tx_power = "23";
  wifi1.eirp = "26";
  wifi1.channel = "36";
  wifi1.bandwidth = "80";
  wifi1.frequency = "5180";
  wifi1.noise_level = -96;
  wifi1.utilization = 17;
  wifi1.rx_utilization = 8;
  wifi1.tx_utilization = 6;
  wifi1.non_wifi_interference = 0;
  wifi1.ap_interference_ratio = 4;
  wifi1.co_channel_interference = 5;
  wifi1.packet_error_rate = 1;

  Radio wifi2;
  wifi2.name = "wifi2";
  wifi2.band = "6GHz";
  wifi2.status = "up";
  wifi2.hwaddr = "a4:5d:36:10:20:50";
  wifi2.tx_power = "21";
  wifi2.channel = "37";
  wifi2.bandwidth = "160";
  wifi2.frequency = "6135";
  wifi2.noise_level = 21750;
  wifi2.utilization = 4;
  wifi2.rx_utilization = 2;
  wifi2.tx_utilization = 1;
  wifi2.non_wifi_interference = -1;
  wifi2.ap_interference_ratio = -1;
  wifi2.co_channel_interference = -1;
  wifi2.packet_error_rate = -1;

  Radio wifi3;
  wifi3.name = "wifi3";
  wifi3.band = "5GHz";
  wifi3.status = "down";
  wifi3.hwaddr = "a4:5d:36:10:20:60";
  wifi3.utilization = -1;
  wifi3.rx_utilization = -1;
  wifi3.tx_utilization = -1;
  wifi3.non_wifi_interference = -1;
  wifi3.ap_interference_ratio = -1;
  wifi3.co_channel_interference = -1;
  wifi3.packet_error_rate = -1;

  return {wifi0, wifi1, wifi2, wifi3};
}

/// A radio as every reader gives it for an object without any key: empty texts, no optional text,
/// no noise level, all seven measurements -1.
Radio unreported_radio() {
  Radio radio;
  radio.utilization = -1;
  radio.rx_utilization = -1;
  radio.tx_utilization = -1;
  radio.non_wifi_interference = -1;
  radio.ap_interference_ratio = -1;
  radio.co_channel_interference = -1;
  radio.packet_error_rate = -1;
  return radio;
}

/// A NETCONF reply with "error" false whose monitoring object holds "radio-interface": value.
std::string reply_with_radios(std::string const& value) {
  return R"({"error":false,"rpc-reply":{"data":{"monitoring":{"radio-interface":)" + value + "}}}}";
}

/// The one radio read from the array text [{members}]; fails the test unless there is one.
Radio read_one(std::string const& members) {
  NcIpcApMonitoringRadioInterface const record(std::string("[{") + members + "}]");
  EXPECT_EQ(record.radios.size(), 1U) << members;
  return record.radios.empty() ? Radio() : record.radios.front();
}

/// The compact text that RadioParams::to_json writes into an empty object.
std::string radio_text(Radio const& radio) {
  Tree const object = wlccw::cfg::make_object();
  EXPECT_TRUE(object);
  radio.to_json(*object);
  return wlccw::cfg::compact(object.get());
}

NcIpcApMonitoringRadioInterface from_json_text(std::string const& json) {
  Tree const root = parse(json);
  EXPECT_TRUE(root) << json;
  return NcIpcApMonitoringRadioInterface::from_json(root.get());
}

// ---- average_vector_opt -----------------------------------------------------------------------

TEST(AverageVectorOpt, EmptyListGivesNoValue) {
  EXPECT_EQ(average_vector_opt({}), std::nullopt);
}

TEST(AverageVectorOpt, NonNegativeSumIsTheMeanRoundedDown) {
  EXPECT_EQ(average_vector_opt({10, 21}), 15);
  EXPECT_EQ(average_vector_opt({7}), 7);
  EXPECT_EQ(average_vector_opt({0, 0, 1}), 0);
  EXPECT_EQ(average_vector_opt({-5, 10}), 2); // sum 5
  int32_t const max = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(average_vector_opt({max, max, max}), max); // the sum does not overflow 64 bits
}

TEST(AverageVectorOpt, NegativeSumOverAPowerOfTwoRoundsTowardsMinusInfinity) {
  EXPECT_EQ(average_vector_opt({-95, -96}), -96);
  EXPECT_EQ(average_vector_opt({-90, -91, -92, -93}), -92);
  EXPECT_EQ(average_vector_opt({-7}), -7);
  EXPECT_EQ(average_vector_opt({-1, 0}), -1);
  int32_t const min = std::numeric_limits<std::int32_t>::min();
  // -2^32 as unsigned, halved: 2^63 - 2^31 = 0x7FFFFFFF80000000, low 32 bits 0x80000000.
  EXPECT_EQ(average_vector_opt({min, min}), min);
}

TEST(AverageVectorOpt, NegativeSumOverOtherCountsIsALargePositiveNumber) {
  EXPECT_EQ(average_vector_opt({-95, -95, -95}), 1431655670);
}

TEST(AverageVectorOpt, QuotientIsTruncatedToItsLow32Bits) {
  // (2^64 - 1) / 3 = 0x5555555555555555: the result is the low half, 0x55555555, not the signed
  // mean 0 nor anything saturated.
  EXPECT_EQ(average_vector_opt({-1, 0, 0}), 0x55555555);
  // (2^64 - 10) / 5 = 0x3333333333333331, low half 0x33333331.
  EXPECT_EQ(average_vector_opt({-2, -2, -2, -2, -2}), 0x33333331);
  // (2^64 - 3) / 3 = 0x5555555555555554, low half 0x55555554.
  EXPECT_EQ(average_vector_opt({-1, -1, -1}), 0x55555554);
  // (2^64 - 6) / 6 = 0x2AAAAAAAAAAAAAA9, low half 0xAAAAAAA9: above 2^31, so negative as int32.
  EXPECT_EQ(average_vector_opt({-1, -1, -1, -1, -1, -1}),
            static_cast<std::int32_t>(static_cast<std::uint32_t>(0xAAAAAAA9U)));
}

// ---- reading the NETCONF reply
// -------------------------------------------------------------------

TEST(NcIpcApMonitoringRadioInterfaceNetconf, FullSampleReadsEveryRadio) {
  NcIpcApMonitoringRadioInterface const record =
      NcIpcApMonitoringRadioInterface::from_netconf(read_sample("monitoring/reply-full.json"));
  std::vector<Radio> const expected = full_radios();
  ASSERT_EQ(record.radios.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    SCOPED_TRACE(expected[i].name);
    EXPECT_EQ(record.radios[i], expected[i]);
  }
}

TEST(NcIpcApMonitoringRadioInterfaceNetconf, FullSampleGivesExactIpcText) {
  NcIpcApMonitoringRadioInterface const record =
      NcIpcApMonitoringRadioInterface::from_netconf(read_sample("monitoring/reply-full.json"));
  EXPECT_EQ(record.to_str(), full_text());
  Tree const tree(record.get_json());
  ASSERT_TRUE(tree);
  EXPECT_EQ(wlccw::cfg::compact(tree.get()), full_text());
}

TEST(NcIpcApMonitoringRadioInterfaceNetconf, ErrorSampleGivesNoRadios) {
  NcIpcApMonitoringRadioInterface const record =
      NcIpcApMonitoringRadioInterface::from_netconf(read_sample("monitoring/reply-error.json"));
  EXPECT_TRUE(record.radios.empty());
  EXPECT_EQ(record.to_str(), "{}");
}

TEST(NcIpcApMonitoringRadioInterfaceNetconf, ErrorReplyGivesNoRadiosEvenWithData) {
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface::from_netconf(
                  R"({"error":true,"rpc-reply":{"data":{"monitoring":{"radio-interface":)"
                  R"([{"name":"wifi0","noise-level":-92}]}}}})")
                  .radios.empty());
}

TEST(NcIpcApMonitoringRadioInterfaceNetconf, ErrorThatIsNotABooleanTrueDoesNotReject) {
  for (char const* error : {R"("error":false,)", "", R"("error":"true",)", R"("error":1,)"}) {
    SCOPED_TRACE(error);
    NcIpcApMonitoringRadioInterface const record = NcIpcApMonitoringRadioInterface::from_netconf(
        std::string("{") + error +
        R"("rpc-reply":{"data":{"monitoring":{"radio-interface":[{"name":"wifi0"}]}}}})");
    ASSERT_EQ(record.radios.size(), 1U);
    EXPECT_EQ(record.radios[0].name, "wifi0");
  }
}

TEST(NcIpcApMonitoringRadioInterfaceNetconf, UnusableTextGivesNoRadios) {
  std::vector<std::string> const texts = {
      "",
      "not json",
      "{",
      R"({"error":false,"rpc-reply":)",
      reply_with_radios("[{}]") + "x",
      // roots that are not objects
      "[]",
      R"([{"name":"wifi0"}])",
      "1",
      "true",
      "null",
      R"("radio-interface")",
      // a missing path or array
      "{}",
      R"({"error":false})",
      R"({"error":false,"rpc-reply":{"data":{}}})",
      R"({"error":false,"rpc-reply":{"data":{"monitoring":{}}}})",
      R"({"error":false,"rpc-reply":{"data":{"monitoring":{"interface":[{"name":"eth0"}]}}}})",
      R"({"error":false,"radio-interface":[{"name":"wifi0"}]})",
      R"({"error":false,"rpc-reply":{"data":{"radio-interface":[{"name":"wifi0"}]}}})",
      // a "radio-interface" that is not an array
      reply_with_radios(R"({"name":"wifi0","band":"5GHz"})"),
      reply_with_radios(R"({"0":{"name":"wifi0"}})"),
      reply_with_radios(R"("wifi0")"),
      reply_with_radios("5"),
      reply_with_radios("true"),
      reply_with_radios("null"),
      reply_with_radios("[]"),
      // a monitoring node that is not an object
      R"({"error":false,"rpc-reply":{"data":{"monitoring":[{"radio-interface":[{}]}]}}})",
      R"({"error":false,"rpc-reply":{"data":{"monitoring":"radio-interface"}}})",
      std::string(100000, '[') + std::string(100000, ']'),
  };
  for (std::string const& text : texts) {
    SCOPED_TRACE(text.substr(0, 120));
    NcIpcApMonitoringRadioInterface record;
    EXPECT_NO_THROW(record = NcIpcApMonitoringRadioInterface::from_netconf(text));
    EXPECT_TRUE(record.radios.empty());
    EXPECT_EQ(record.to_str(), "{}");
  }
}

TEST(NcIpcApMonitoringRadioInterfaceNetconf, RadiosKeepArrayOrder) {
  NcIpcApMonitoringRadioInterface const record = NcIpcApMonitoringRadioInterface::from_netconf(
      reply_with_radios(R"([{"name":"c"},{"name":"a"},{"name":"b"},{"name":"a"}])"));
  ASSERT_EQ(record.radios.size(), 4U);
  EXPECT_EQ(record.radios[0].name, "c");
  EXPECT_EQ(record.radios[1].name, "a");
  EXPECT_EQ(record.radios[2].name, "b");
  EXPECT_EQ(record.radios[3].name, "a");
}

// ---- reading one radio object
// --------------------------------------------------------------------

TEST(NcIpcApMonitoringRadioInterfaceRead, EmptyObjectReadsEveryKeyAsMissing) {
  Radio const radio = read_one("");
  EXPECT_EQ(radio, unreported_radio());
  EXPECT_EQ(radio.name, "");
  EXPECT_FALSE(radio.tx_power.has_value());
  EXPECT_FALSE(radio.noise_level.has_value());
  ASSERT_TRUE(radio.utilization.has_value());
  EXPECT_EQ(*radio.utilization, -1);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, TextKeysAreReadAsTheyStand) {
  Radio const radio =
      read_one(R"("name":" wifi0 ","band":"2.4GHz","hwaddr":"not a mac","status":"UP")");
  EXPECT_EQ(radio.name, " wifi0 ");
  EXPECT_EQ(radio.band, "2.4GHz");
  EXPECT_EQ(radio.hwaddr, "not a mac"); // kept as text, not parsed
  EXPECT_EQ(radio.status, "UP");
}

TEST(NcIpcApMonitoringRadioInterfaceRead, TextKeysOfOtherTypes) {
  Radio const radio = read_one(R"("name":5,"band":true,"hwaddr":{"a":1},"status":null)");
  EXPECT_EQ(radio.name, "5");
  EXPECT_EQ(radio.band, "true");
  EXPECT_EQ(radio.hwaddr, "");
  EXPECT_EQ(radio.status, "");
}

TEST(NcIpcApMonitoringRadioInterfaceRead, OptionalTextsPresentOrAbsent) {
  Radio const present = read_one(
      R"("tx-power":"17","eirp":"","channel":"36+40","bandwidth":"80MHz","frequency":"5180")");
  EXPECT_EQ(present.tx_power, "17");
  EXPECT_EQ(present.eirp, ""); // present though empty
  EXPECT_EQ(present.channel, "36+40");
  EXPECT_EQ(present.bandwidth, "80MHz");
  EXPECT_EQ(present.frequency, "5180");
  Radio const absent = read_one(R"("name":"wifi0")");
  EXPECT_FALSE(absent.tx_power.has_value());
  EXPECT_FALSE(absent.eirp.has_value());
  EXPECT_FALSE(absent.channel.has_value());
  EXPECT_FALSE(absent.bandwidth.has_value());
  EXPECT_FALSE(absent.frequency.has_value());
}

TEST(NcIpcApMonitoringRadioInterfaceRead, OptionalTextsOfOtherTypes) {
  // Numbers read as their text, booleans as "true"/"false", containers and null as absent.
  Radio const radio =
      read_one(R"("tx-power":17,"eirp":-1.5,"channel":false,"bandwidth":[80],"frequency":{"f":1})");
  EXPECT_EQ(radio.tx_power, "17");
  EXPECT_EQ(radio.eirp, "-1.5");
  EXPECT_EQ(radio.channel, "false");
  EXPECT_FALSE(radio.bandwidth.has_value());
  EXPECT_FALSE(radio.frequency.has_value());
  EXPECT_FALSE(read_one(R"("channel":null)").channel.has_value());
  EXPECT_EQ(read_one(R"("frequency":123456789012345678901234567890)").frequency,
            "123456789012345678901234567890");
}

TEST(NcIpcApMonitoringRadioInterfaceRead, MeasurementsReadAsSigned8Bit) {
  Radio const radio = read_one(
      R"("utilization":100,"rx-utilization":0,"tx-utilization":127,"non-wifi-interference":-128,)"
      R"("ap-interference-ratio":-1,"co-channel-interference":55,"packet-error-rate":99)");
  EXPECT_EQ(radio.utilization, 100);
  EXPECT_EQ(radio.rx_utilization, 0);
  EXPECT_EQ(radio.tx_utilization, 127);
  EXPECT_EQ(radio.non_wifi_interference, -128);
  EXPECT_EQ(radio.ap_interference_ratio, -1);
  EXPECT_EQ(radio.co_channel_interference, 55);
  EXPECT_EQ(radio.packet_error_rate, 99);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, MeasurementsAsIntegerStrings) {
  // Integers written as strings, the way RFC 7951 writes some integers, read as the integer.
  Radio const radio = read_one(
      R"("utilization":"43","rx-utilization":"-5","tx-utilization":"0","non-wifi-interference":"127",)"
      R"("ap-interference-ratio":"-128","co-channel-interference":"7","packet-error-rate":"2")");
  EXPECT_EQ(radio.utilization, 43);
  EXPECT_EQ(radio.rx_utilization, -5);
  EXPECT_EQ(radio.tx_utilization, 0);
  EXPECT_EQ(radio.non_wifi_interference, 127);
  EXPECT_EQ(radio.ap_interference_ratio, -128);
  EXPECT_EQ(radio.co_channel_interference, 7);
  EXPECT_EQ(radio.packet_error_rate, 2);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, MissingOrUnreadableMeasurementIsMinusOne) {
  char const* const keys[] = {"utilization",           "rx-utilization",
                              "tx-utilization",        "non-wifi-interference",
                              "ap-interference-ratio", "co-channel-interference",
                              "packet-error-rate"};
  char const* const values[] = {"128",
                                "-129",
                                "255",
                                "1000",
                                "99999999999999999999",
                                "-9223372036854775809",
                                "1.5",
                                "1e2",
                                R"("43%")",
                                R"(" 43")",
                                R"("4 3")",
                                R"("")",
                                "true",
                                "false",
                                "null",
                                "[43]",
                                R"({"v":43})",
                                R"("0x10")"};
  for (char const* key : keys) {
    for (char const* value : values) {
      SCOPED_TRACE(std::string(key) + ":" + value);
      Radio const radio = read_one(std::string("\"") + key + "\":" + value);
      EXPECT_EQ(radio, unreported_radio());
    }
  }
  EXPECT_EQ(read_one(R"("name":"wifi0")").utilization, -1);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, NoiseLevelWinsOverSamples) {
  EXPECT_EQ(read_one(R"("noise-level":-92,"noise-1":-10,"noise-2":-20)").noise_level, -92);
  EXPECT_EQ(read_one(R"("noise-1":-10,"noise-level":-92,"noise":-50)").noise_level, -92);
  EXPECT_EQ(read_one(R"("noise-level":-92)").noise_level, -92);
  EXPECT_EQ(read_one(R"("noise-level":"-92")").noise_level, -92);
  EXPECT_EQ(read_one(R"("noise-level":0)").noise_level, 0);
  EXPECT_EQ(read_one(R"("noise-level":32767)").noise_level, 32767);
  EXPECT_EQ(read_one(R"("noise-level":-32768)").noise_level, -32768);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, SamplesAreAveragedWithoutANoiseLevel) {
  EXPECT_EQ(read_one(R"("noise-1":-95,"noise-2":-96)").noise_level, -96);
  EXPECT_EQ(read_one(R"("noise-1":-90,"noise-2":-91,"noise-3":-92,"noise-4":-93)").noise_level,
            -92);
  EXPECT_EQ(read_one(R"("noise-1":"-95","noise-2":"-96")").noise_level, -96);
  EXPECT_EQ(read_one(R"("noise-1":10,"noise-2":21)").noise_level, 15);
  // A single plain "noise" is used when there is no numbered one.
  EXPECT_EQ(read_one(R"("noise":-88)").noise_level, -88);
  // A gap ends the samples: only noise-1 counts.
  EXPECT_EQ(read_one(R"("noise-1":-90,"noise-3":-10)").noise_level, -90);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, AverageIsTruncatedTo16Bits) {
  // Three samples of -95 average to 1431655670 = 0x555554F6; the low 16 bits are 0x54F6.
  EXPECT_EQ(read_one(R"("noise-1":-95,"noise-2":-95,"noise-3":-95)").noise_level, 21750);
  // -40000 does not fit 16 bits: -40000 + 65536 = 25536.
  EXPECT_EQ(read_one(R"("noise-1":-40000)").noise_level, 25536);
  // 70000 - 65536 = 4464.
  EXPECT_EQ(read_one(R"("noise":70000)").noise_level, 4464);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, NoSamplesAndNoNoiseLevelLeaveItEmpty) {
  Radio const radio = read_one(R"("name":"wifi0","noise-2":-90)");
  EXPECT_FALSE(radio.noise_level.has_value());
  EXPECT_EQ(radio_text(radio).find("noise-level"), std::string::npos);
}

TEST(NcIpcApMonitoringRadioInterfaceRead, UnreadableNoiseLevelFallsBackToSamples) {
  for (char const* value : {"32768", "-32769", "99999999999999999999", "-1.5", R"("abc")", R"("")",
                            "true", "null", "[-92]", R"({"v":-92})"}) {
    SCOPED_TRACE(value);
    EXPECT_EQ(read_one(std::string(R"("noise-level":)") + value + R"(,"noise-1":-95,"noise-2":-96)")
                  .noise_level,
              -96);
    EXPECT_FALSE(read_one(std::string(R"("noise-level":)") + value).noise_level.has_value());
  }
}

// ---- from_json and the text constructor
// ----------------------------------------------------------

TEST(NcIpcApMonitoringRadioInterfaceFromJson, NullGivesNoRadios) {
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface::from_json(nullptr).radios.empty());
}

TEST(NcIpcApMonitoringRadioInterfaceFromJson, NodeThatIsNotAnArrayGivesNoRadios) {
  std::vector<std::string> const texts = {
      R"({"name":"wifi0"})", "{}", full_text(), R"("wifi0")", "7", "true", "null"};
  for (std::string const& json : texts) {
    SCOPED_TRACE(json);
    NcIpcApMonitoringRadioInterface record;
    EXPECT_NO_THROW(record = from_json_text(json));
    EXPECT_TRUE(record.radios.empty());
  }
}

TEST(NcIpcApMonitoringRadioInterfaceFromJson, ReadsTheArrayNode) {
  EXPECT_EQ(from_json_text(full_array_text()).radios, full_radios());
  EXPECT_TRUE(from_json_text("[]").radios.empty());
}

TEST(NcIpcApMonitoringRadioInterfaceFromJson, ReadsTheArrayOfGetJson) {
  NcIpcApMonitoringRadioInterface original;
  original.radios = full_radios();
  Tree const tree(original.get_json());
  ASSERT_TRUE(tree);
  NcIpcApMonitoringRadioInterface const back =
      NcIpcApMonitoringRadioInterface::from_json(cfg_get_subtree(tree.get(), "radio-interface"));
  EXPECT_EQ(back, original);
}

TEST(NcIpcApMonitoringRadioInterfaceFromJson, EveryElementIsReadAsARadio) {
  // Elements that are not objects have none of the keys, so they read as unreported radios.
  NcIpcApMonitoringRadioInterface const record =
      from_json_text(R"([1,"wifi0",null,[{"name":"x"}],{"name":"wifi1"}])");
  ASSERT_EQ(record.radios.size(), 5U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(record.radios[i], unreported_radio()) << i;
  }
  EXPECT_EQ(record.radios[4].name, "wifi1");
}

TEST(NcIpcApMonitoringRadioInterfaceText, ReadsTheArrayAtTheRoot) {
  NcIpcApMonitoringRadioInterface const record(full_array_text());
  EXPECT_EQ(record.radios, full_radios());
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface(std::string_view("[]")).radios.empty());
}

TEST(NcIpcApMonitoringRadioInterfaceText, ReadsOnlyTheViewedCharacters) {
  std::string const buffer = full_array_text() + "]]garbage";
  std::string_view const view(buffer.data(), buffer.size() - 9);
  EXPECT_EQ(NcIpcApMonitoringRadioInterface(view).radios, full_radios());
}

TEST(NcIpcApMonitoringRadioInterfaceText, ToStrTextItselfIsNotAnArray) {
  // to_str writes an object holding "radio-interface"; the constructor wants the array itself.
  EXPECT_TRUE(NcIpcApMonitoringRadioInterface(full_text()).radios.empty());
}

TEST(NcIpcApMonitoringRadioInterfaceText, UnusableTextGivesNoRadios) {
  std::vector<std::string> const texts = {
      "",
      "not json",
      "[",
      "[{}]x",
      R"([{"name":"wifi0"},])",
      "{}",
      R"({"radio-interface":[{"name":"wifi0"}]})",
      "1",
      "-1",
      "123456789012345678901234567890",
      "false",
      "null",
      R"("[{}]")",
      std::string(100000, '[') + std::string(100000, ']'),
  };
  for (std::string const& text : texts) {
    SCOPED_TRACE(text.substr(0, 120));
    NcIpcApMonitoringRadioInterface record;
    EXPECT_NO_THROW(record = NcIpcApMonitoringRadioInterface(text));
    EXPECT_TRUE(record.radios.empty());
  }
}

// ---- writing
// -------------------------------------------------------------------------------------

TEST(NcIpcApMonitoringRadioInterfaceWrite, NoRadiosGiveAnEmptyObject) {
  NcIpcApMonitoringRadioInterface const record;
  EXPECT_EQ(record.to_str(), "{}");
  Tree const tree(record.get_json());
  ASSERT_TRUE(tree);
  EXPECT_EQ(cfg_contain_param(tree.get(), "radio-interface"), 0);
  EXPECT_NE(cfg_is_empty(tree.get()), 0);
}

TEST(NcIpcApMonitoringRadioInterfaceWrite, RadioTextsInWriterOrder) {
  std::vector<Radio> const radios = full_radios();
  EXPECT_EQ(radio_text(radios[0]), wifi0_text);
  EXPECT_EQ(radio_text(radios[1]), wifi1_text);
  EXPECT_EQ(radio_text(radios[2]), wifi2_text);
  EXPECT_EQ(radio_text(radios[3]), wifi3_text);
}

TEST(NcIpcApMonitoringRadioInterfaceWrite, EmptyOptionalsAreLeftOut) {
  Radio radio;
  radio.name = "wifi9";
  EXPECT_EQ(radio_text(radio), R"({"name":"wifi9","band":"","hwaddr":"","status":""})");
  radio.eirp = "";
  radio.packet_error_rate = 0;
  EXPECT_EQ(
      radio_text(radio),
      R"({"name":"wifi9","band":"","hwaddr":"","status":"","eirp":"","packet-error-rate":0})");
}

TEST(NcIpcApMonitoringRadioInterfaceWrite, EveryKeyInOrder) {
  Radio radio;
  radio.name = "n";
  radio.band = "b";
  radio.status = "s";
  radio.hwaddr = "h";
  radio.tx_power = "p";
  radio.eirp = "e";
  radio.channel = "c";
  radio.bandwidth = "w";
  radio.frequency = "f";
  radio.noise_level = -32768;
  radio.utilization = 1;
  radio.rx_utilization = 2;
  radio.tx_utilization = 3;
  radio.non_wifi_interference = 4;
  radio.ap_interference_ratio = 5;
  radio.co_channel_interference = 6;
  radio.packet_error_rate = -128;
  EXPECT_EQ(radio_text(radio),
            R"({"name":"n","band":"b","hwaddr":"h","status":"s","channel":"c","bandwidth":"w",)"
            R"("tx-power":"p","eirp":"e","frequency":"f","noise-level":-32768,"utilization":1,)"
            R"("rx-utilization":2,"tx-utilization":3,"non-wifi-interference":4,)"
            R"("ap-interference-ratio":5,"co-channel-interference":6,"packet-error-rate":-128})");
}

TEST(NcIpcApMonitoringRadioInterfaceWrite, MissingUtilizationIsWrittenAsMinusOne) {
  NcIpcApMonitoringRadioInterface const record(std::string(R"([{"name":"wifi0"}])"));
  EXPECT_EQ(record.to_str(),
            R"({"radio-interface":[{"name":"wifi0","band":"","hwaddr":"","status":"",)"
            R"("utilization":-1,"rx-utilization":-1,"tx-utilization":-1,)"
            R"("non-wifi-interference":-1,"ap-interference-ratio":-1,)"
            R"("co-channel-interference":-1,"packet-error-rate":-1}]})");
}

TEST(NcIpcApMonitoringRadioInterfaceWrite, TextsAreEscapedAndReadBack) {
  Radio radio = unreported_radio();
  radio.name = "wifi \"0\"";
  radio.band = "back\\slash/";
  radio.status = "tab\there";
  radio.hwaddr = "Caf\xc3\xa9";
  NcIpcApMonitoringRadioInterface record;
  record.radios = {radio};
  std::string const text = record.to_str();
  EXPECT_EQ(text, "{\"radio-interface\":[{\"name\":\"wifi \\\"0\\\"\",\"band\":\"back\\\\slash/\","
                  "\"hwaddr\":\"Caf\xc3\xa9\",\"status\":\"tab\\there\",\"utilization\":-1,"
                  "\"rx-utilization\":-1,\"tx-utilization\":-1,\"non-wifi-interference\":-1,"
                  "\"ap-interference-ratio\":-1,\"co-channel-interference\":-1,"
                  "\"packet-error-rate\":-1}]}");
  Tree const tree = parse(text);
  ASSERT_TRUE(tree);
  EXPECT_EQ(
      NcIpcApMonitoringRadioInterface::from_json(cfg_get_subtree(tree.get(), "radio-interface")),
      record);
}

// ---- round trips
// ---------------------------------------------------------------------------------

TEST(NcIpcApMonitoringRadioInterfaceRoundTrip, ArrayTextReadBackGivesTheSameText) {
  NcIpcApMonitoringRadioInterface const record =
      NcIpcApMonitoringRadioInterface::from_netconf(read_sample("monitoring/reply-full.json"));
  std::string const text = record.to_str();
  // The constructor takes the bare array: the "radio-interface" member of the written text.
  Tree const tree = parse(text);
  ASSERT_TRUE(tree);
  std::string const array_text =
      wlccw::cfg::compact(cfg_get_subtree(tree.get(), "radio-interface"));
  EXPECT_EQ(array_text, full_array_text());
  NcIpcApMonitoringRadioInterface const back(array_text);
  EXPECT_EQ(back, record);
  EXPECT_EQ(back.to_str(), text);
}

TEST(NcIpcApMonitoringRadioInterfaceRoundTrip, UnsetMeasurementsComeBackAsMinusOne) {
  // A radio built by hand leaves its empty measurements out; a reader then fills them with -1.
  Radio radio;
  radio.name = "wifi0";
  radio.noise_level = -90;
  NcIpcApMonitoringRadioInterface record;
  record.radios = {radio};
  Tree const tree(record.get_json());
  ASSERT_TRUE(tree);
  NcIpcApMonitoringRadioInterface const back =
      NcIpcApMonitoringRadioInterface::from_json(cfg_get_subtree(tree.get(), "radio-interface"));
  Radio expected = unreported_radio();
  expected.name = "wifi0";
  expected.noise_level = -90;
  ASSERT_EQ(back.radios.size(), 1U);
  EXPECT_EQ(back.radios[0], expected);
  EXPECT_NE(back, record);
}

TEST(NcIpcApMonitoringRadioInterfaceRoundTrip, ComparisonSeesEveryField) {
  std::vector<Radio> const radios = full_radios();
  NcIpcApMonitoringRadioInterface first;
  first.radios = radios;
  NcIpcApMonitoringRadioInterface second = first;
  EXPECT_EQ(first, second);
  second.radios[2].noise_level.reset();
  EXPECT_NE(first, second);
  second = first;
  second.radios.pop_back();
  EXPECT_NE(first, second);
}

} // namespace
