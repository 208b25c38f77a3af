#include <wlccw/ipc/ApLocationsData.hpp>

#include <wlccw/cfg/owned.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

// Failure messages show every location in list order.
void PrintTo(ApLocationsData const& data, std::ostream* os) {
  for (ApLocationsData::ApLocation const& location : data.locations()) {
    *os << "[" << location.id << " " << location.time_zone << "]";
  }
}

namespace {

using Location = ApLocationsData::ApLocation;
using Pairs = std::vector<std::pair<std::string, std::string>>;

// Every (id, time zone) that for_each visits, in order.
Pairs visited(ApLocationsData const& data) {
  Pairs seen;
  data.for_each([&seen](std::string const& id, std::string const& time_zone) {
    seen.emplace_back(id, time_zone);
    return false;
  });
  return seen;
}

ApLocationsData three_locations() {
  ApLocationsData data;
  data.add("hq", "Europe/Berlin");
  data.add("branch-1", "America/New_York");
  data.add("lab", "UTC");
  return data;
}

constexpr char const* kThree = R"({"hq":{"id":"hq","timezone":"Europe/Berlin"},)"
                               R"("branch-1":{"id":"branch-1","timezone":"America/New_York"},)"
                               R"("lab":{"id":"lab","timezone":"UTC"}})";

} // namespace

// ---- The record ---------------------------------------------------------------------------------

TEST(ApLocationsData, LocationIsBuiltFromItsIdAndTimeZone) {
  Location const location("hq", "Europe/Berlin");
  EXPECT_EQ(location.id, "hq");
  EXPECT_EQ(location.time_zone, "Europe/Berlin");
  EXPECT_EQ(location, Location("hq", "Europe/Berlin"));
  EXPECT_NE(location, Location("hq", "UTC"));
  EXPECT_NE(location, Location("HQ", "Europe/Berlin"));
}

TEST(ApLocationsData, NewObjectHoldsNoLocations) {
  ApLocationsData const data;
  EXPECT_TRUE(data.locations().empty());
  EXPECT_TRUE(visited(data).empty());
}

// ---- add ----------------------------------------------------------------------------------------

TEST(ApLocationsData, AddAppendsInInsertionOrder) {
  ApLocationsData const data = three_locations();
  EXPECT_EQ(visited(data),
            (Pairs{{"hq", "Europe/Berlin"}, {"branch-1", "America/New_York"}, {"lab", "UTC"}}));
  EXPECT_EQ(data.locations(),
            (std::vector<Location>{
                {"hq", "Europe/Berlin"}, {"branch-1", "America/New_York"}, {"lab", "UTC"}}));
}

TEST(ApLocationsData, AddingAnIdAgainReplacesItsTimeZoneAndMovesItToTheEnd) {
  ApLocationsData data;
  data.add("a", "UTC");
  data.add("b", "Europe/Paris");
  data.add("a", "Asia/Tokyo");
  EXPECT_EQ(visited(data), (Pairs{{"b", "Europe/Paris"}, {"a", "Asia/Tokyo"}}));
  EXPECT_EQ(data.to_str(), R"({"b":{"id":"b","timezone":"Europe/Paris"},)"
                           R"("a":{"id":"a","timezone":"Asia/Tokyo"}})");
}

TEST(ApLocationsData, AddingTheLastIdAgainKeepsTheOrder) {
  ApLocationsData data = three_locations();
  data.add("lab", "Etc/GMT-3");
  EXPECT_EQ(
      visited(data),
      (Pairs{{"hq", "Europe/Berlin"}, {"branch-1", "America/New_York"}, {"lab", "Etc/GMT-3"}}));
  data.add("branch-1", "America/New_York");
  EXPECT_EQ(
      visited(data),
      (Pairs{{"hq", "Europe/Berlin"}, {"lab", "Etc/GMT-3"}, {"branch-1", "America/New_York"}}));
}

TEST(ApLocationsData, AddRemovesEveryLocationOfTheId) {
  // Text may hold one id under several members; add leaves one location of it.
  ApLocationsData data(R"({"x":{"id":"a","timezone":"1"},"y":{"id":"b","timezone":"2"},)"
                       R"("z":{"id":"a","timezone":"3"},"w":{"id":"c","timezone":"4"}})");
  ASSERT_EQ(data.locations().size(), 4U);
  data.add("a", "5");
  EXPECT_EQ(visited(data), (Pairs{{"b", "2"}, {"c", "4"}, {"a", "5"}}));
}

TEST(ApLocationsData, IdsAreComparedExactly) {
  ApLocationsData data;
  data.add("hq", "UTC");
  data.add("HQ", "UTC");
  data.add("hq ", "UTC");
  data.add("", "UTC");
  EXPECT_EQ(data.locations().size(), 4U);
  data.add("", "Europe/Rome");
  EXPECT_EQ(visited(data),
            (Pairs{{"hq", "UTC"}, {"HQ", "UTC"}, {"hq ", "UTC"}, {"", "Europe/Rome"}}));
}

// ---- for_each -----------------------------------------------------------------------------------

TEST(ApLocationsData, ForEachStopsAtTheFirstTrue) {
  ApLocationsData const data = three_locations();
  Pairs seen;
  data.for_each([&seen](std::string const& id, std::string const& time_zone) {
    seen.emplace_back(id, time_zone);
    return true;
  });
  EXPECT_EQ(seen, (Pairs{{"hq", "Europe/Berlin"}}));

  seen.clear();
  data.for_each([&seen](std::string const& id, std::string const& time_zone) {
    seen.emplace_back(id, time_zone);
    return id == "branch-1";
  });
  EXPECT_EQ(seen, (Pairs{{"hq", "Europe/Berlin"}, {"branch-1", "America/New_York"}}));
}

TEST(ApLocationsData, ForEachVisitsEveryLocationWhileTheFunctionReturnsFalse) {
  ApLocationsData const data = three_locations();
  int calls = 0;
  data.for_each([&calls](std::string const&, std::string const&) {
    ++calls;
    return false;
  });
  EXPECT_EQ(calls, 3);
}

TEST(ApLocationsData, ForEachWithAnEmptyFunctionDoesNothing) {
  ApLocationsData const data = three_locations();
  std::function<bool(std::string const&, std::string const&)> const empty;
  EXPECT_NO_THROW(data.for_each(empty));
  EXPECT_NO_THROW(data.for_each(nullptr));
  EXPECT_NO_THROW(ApLocationsData{}.for_each(empty));
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(ApLocationsData, NoLocationsWriteAnEmptyObject) {
  ApLocationsData const data;
  EXPECT_EQ(data.to_str(), "{}");
  wlccw::cfg::Tree const tree(data.get_json());
  ASSERT_TRUE(tree);
  EXPECT_EQ(wlccw::cfg::compact(tree.get()), "{}");
}

TEST(ApLocationsData, LocationsWriteOneMemberPerIdInListOrder) {
  EXPECT_EQ(three_locations().to_str(), kThree);
}

TEST(ApLocationsData, GetJsonGivesACallerOwnedTreeOfTheIpcForm) {
  ApLocationsData const data = three_locations();
  wlccw::cfg::Tree const tree(data.get_json());
  ASSERT_TRUE(tree);
  EXPECT_EQ(wlccw::cfg::compact(tree.get()), kThree);
  lcw_data_t const* const hq = cfg_get_subtree(tree.get(), "hq");
  ASSERT_NE(hq, nullptr);
  EXPECT_STREQ(cfg_get_param(hq, "id"), "hq");
  EXPECT_STREQ(cfg_get_param(hq, "timezone"), "Europe/Berlin");
  // Each call makes a new tree.
  wlccw::cfg::Tree const other(data.get_json());
  EXPECT_NE(other.get(), tree.get());
  EXPECT_EQ(wlccw::cfg::compact(other.get()), kThree);
}

TEST(ApLocationsData, LocationsOfTheSameIdShareOneMemberFilledByTheLast) {
  ApLocationsData const data(R"({"x":{"id":"a","timezone":"1"},"y":{"id":"b","timezone":"2"},)"
                             R"("z":{"id":"a","timezone":"3"}})");
  EXPECT_EQ(data.to_str(), R"({"a":{"id":"a","timezone":"3"},"b":{"id":"b","timezone":"2"}})");
}

TEST(ApLocationsData, TextsAreWrittenWithJsonEscapes) {
  ApLocationsData data;
  data.add("site \"A\"\\1", "Etc/GMT+5");
  std::string const text = data.to_str();
  EXPECT_EQ(text, R"({"site \"A\"\\1":{"id":"site \"A\"\\1","timezone":"Etc/GMT+5"}})");
  EXPECT_EQ(ApLocationsData(text), data);
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(ApLocationsData, WrittenTextReadsBackToTheSameLocations) {
  ApLocationsData const data = three_locations();
  ApLocationsData const back(data.to_str());
  EXPECT_EQ(back, data);
  EXPECT_EQ(back.to_str(), kThree);
  EXPECT_EQ(back.get_hash(), data.get_hash());
  ApLocationsData const empty(ApLocationsData{}.to_str());
  EXPECT_TRUE(empty.locations().empty());
  EXPECT_EQ(empty.to_str(), "{}");
}

TEST(ApLocationsData, LocationsAreReadByTheIdInsideEachMember) {
  ApLocationsData const data(R"({"first":{"id":"hq","timezone":"Europe/Berlin"},)"
                             R"("second":{"timezone":"UTC","id":"lab"}})");
  EXPECT_EQ(visited(data), (Pairs{{"hq", "Europe/Berlin"}, {"lab", "UTC"}}));
  EXPECT_EQ(data.to_str(), R"({"hq":{"id":"hq","timezone":"Europe/Berlin"},)"
                           R"("lab":{"id":"lab","timezone":"UTC"}})");
}

TEST(ApLocationsData, MissingTextsReadAsEmpty) {
  ApLocationsData const data(
      R"({"a":{"timezone":"UTC"},"b":{"id":"b"},"c":{},"d":{"id":5,"timezone":null},)"
      R"("e":{"id":["e"],"timezone":{"tz":"UTC"}},"f":{"id":true,"timezone":123456789012345678901234567890}})");
  EXPECT_EQ(visited(data), (Pairs{{"", "UTC"},
                                  {"b", ""},
                                  {"", ""},
                                  {"5", ""},
                                  {"", ""},
                                  {"true", "123456789012345678901234567890"}}));
}

TEST(ApLocationsData, MemberThatIsNotAnObjectReadsAsEmptyTexts) {
  ApLocationsData const data(
      R"({"a":"UTC","b":1,"c":null,"d":["x"],"e":{"id":"e","timezone":"Z"}})");
  EXPECT_EQ(visited(data), (Pairs{{"", ""}, {"", ""}, {"", ""}, {"", ""}, {"e", "Z"}}));
}

TEST(ApLocationsData, TextThatIsNotJsonReadsAsNoLocations) {
  for (std::string const& text :
       std::vector<std::string>{"", " ", "hq", "{", R"({"a":{"id":"a"})", R"({"a":{}}x)", "{}{}",
                                R"({"a":)" + std::string(100000, '{')}) {
    EXPECT_TRUE(ApLocationsData(text).locations().empty()) << text.substr(0, 40);
  }
}

TEST(ApLocationsData, RootThatIsNotAnObjectReadsAsNoLocations) {
  for (std::string const text :
       {R"([{"id":"a","timezone":"UTC"}])", "[]", R"("a")", "1", "true", "null", "{}"}) {
    EXPECT_TRUE(ApLocationsData(text).locations().empty()) << text;
  }
}

TEST(ApLocationsData, OtherMembersInsideALocationAreIgnored) {
  ApLocationsData const data(R"({"a":{"x":[1],"id":"a","floor":3,"timezone":"UTC","ID":"b"}})");
  EXPECT_EQ(visited(data), (Pairs{{"a", "UTC"}}));
}

TEST(ApLocationsData, ManyLocationsReadBackInOrder) {
  ApLocationsData data;
  for (int i = 0; i < 1000; ++i) {
    data.add("site-" + std::to_string(i), "Etc/GMT+" + std::to_string(i % 12));
  }
  ApLocationsData const back(data.to_str());
  EXPECT_EQ(back, data);
}

// ---- Hash ---------------------------------------------------------------------------------------

TEST(ApLocationsData, HashIsTheStringHashOfTheText) {
  EXPECT_EQ(ApLocationsData{}.get_hash(), std::hash<std::string>{}("{}"));
  EXPECT_EQ(three_locations().get_hash(), std::hash<std::string>{}(kThree));
}

TEST(ApLocationsData, HashFollowsContentAndOrder) {
  ApLocationsData a;
  a.add("x", "UTC");
  a.add("y", "UTC");
  ApLocationsData b;
  b.add("y", "UTC");
  b.add("x", "UTC");
  EXPECT_NE(a.get_hash(), b.get_hash());
  b.add("y", "UTC"); // now x, y
  EXPECT_EQ(a.get_hash(), b.get_hash());
  b.add("y", "Europe/Oslo");
  EXPECT_NE(a.get_hash(), b.get_hash());
}
