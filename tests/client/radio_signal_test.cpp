// Per-antenna signal readings of an AP's NETCONF client object.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/radio_signal.hpp>

#include <gtest/gtest.h>

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

TEST(ParseNumberedParameters, AMemberThatIsNoIntegerReadsAsZero) {
  // Present members are read with the int reader, which gives 0 for a text that is no number.
  EXPECT_EQ(read(R"({"rssi-1":"weak","rssi-2":-50})", "rssi"), (std::vector<int>{0, -50}));
}

} // namespace
