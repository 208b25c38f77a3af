// Per-antenna signal readings of an AP's NETCONF client object.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/AntennaSignalMetrics.hpp>
#include <wlccw/client/radio_signal.hpp>

#include "detail/signal_readings.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

using radio::signal::parse_numbered_parameters_from_netconf;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;

std::vector<int> read(char const* json, char const* name) {
  Tree const client = parse(json);
  EXPECT_TRUE(client) << json;
  return parse_numbered_parameters_from_netconf(client.get(), name);
}

TEST(ParseNumberedParameters, ReadsNumberedMembersInOrder) {
  EXPECT_EQ(read(R"({"rssi-1":-40,"rssi-2":-55,"rssi-3":"-61"})", "rssi"),
            (std::vector<int>{-40, -55, -61}));
}

TEST(ParseNumberedParameters, AtMostEightAreRead) {
  EXPECT_EQ(read(R"({"snr-1":1,"snr-2":2,"snr-3":3,"snr-4":4,"snr-5":5,"snr-6":6,"snr-7":7,)"
                 R"("snr-8":8,"snr-9":9})",
                 "snr"),
            (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(ParseNumberedParameters, AGapEndsTheScan) {
  EXPECT_EQ(read(R"({"rssi-1":-40,"rssi-3":-50})", "rssi"), (std::vector<int>{-40}));
  EXPECT_EQ(read(R"({"rssi-2":-40,"rssi":-70})", "rssi"), (std::vector<int>{-70}));
}

TEST(ParseNumberedParameters, ThePlainMemberOnlyWithoutNumberedOnes) {
  EXPECT_EQ(read(R"({"rssi":-70})", "rssi"), (std::vector<int>{-70}));
  EXPECT_EQ(read(R"({"rssi":-70,"rssi-1":-40})", "rssi"), (std::vector<int>{-40}));
}

TEST(ParseNumberedParameters, NothingGivesAnEmptyList) {
  EXPECT_TRUE(read(R"({"snr":3})", "rssi").empty());
  EXPECT_TRUE(read("{}", "rssi").empty());
  EXPECT_TRUE(parse_numbered_parameters_from_netconf(nullptr, "rssi").empty());
  EXPECT_TRUE(read(R"({"rssi":1})", nullptr).empty());
}

TEST(ParseNumberedParameters, NamesOfAnyLengthAreNumbered) {
  // Short names and long ones (beyond what the reader keeps on its stack) read alike.
  for (std::size_t length = 1; length <= 80; ++length) {
    std::string const name(length, 'm');
    std::string const json = R"({")" + name + R"(-1":-40,")" + name + R"(-2":-55,")" + name +
                             R"(":-70,")" + name + R"(x-3":-61})";
    EXPECT_EQ(read(json.c_str(), name.c_str()), (std::vector<int>{-40, -55})) << length;
  }
}

TEST(ParseNumberedParameters, AMemberThatIsNoIntegerReadsAsZero) {
  // Present members are read with the int reader, which gives 0 for a text that is no number.
  EXPECT_EQ(read(R"({"rssi-1":"weak","rssi-2":-50})", "rssi"), (std::vector<int>{0, -50}));
}

// ---- Feeding readings to a metric

using Metric = AntennaSignalMetrics<std::greater<int>, std::less<int>>;

Metric metric_with_floor(int floor) {
  Metric metric;
  metric.floor = floor;
  return metric;
}

TEST(AddReadings, EachReadingIsAddedInOrderAndRaisedToTheFloor) {
  Metric metric = metric_with_floor(-127);
  wlccw::detail::add_readings(metric, std::vector<int>{-40, -140, -127, -128, 3});
  EXPECT_EQ(metric.values, (std::vector<int>{-40, -127, -127, -127, 3}));
  EXPECT_FALSE(metric.reported);
  EXPECT_EQ(metric.get_signal(), -127);
}

TEST(AddReadings, NoReadingLeavesTheMetricEmpty) {
  Metric metric = metric_with_floor(0);
  wlccw::detail::add_readings(metric, std::vector<int>{});
  EXPECT_TRUE(metric.values.empty());
  EXPECT_EQ(metric.get_signal(), 0);
}

TEST(AddReadings, ReadingsFollowThoseTheMetricHasAlready) {
  Metric metric = metric_with_floor(0);
  metric.add(7);
  wlccw::detail::add_readings(metric, std::vector<int>{-5, 9});
  EXPECT_EQ(metric.values, (std::vector<int>{7, 0, 9}));
}

TEST(AddReadings, MoreReadingsThanAnApReportsAreAllAdded) {
  Metric metric = metric_with_floor(0);
  std::vector<int> readings;
  for (int i = -2; i < 10; ++i) {
    readings.push_back(i);
  }
  wlccw::detail::add_readings(metric, std::move(readings));
  EXPECT_EQ(metric.values, (std::vector<int>{0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

} // namespace
