// The container templates over the tree interface: reading arrays into containers (from a node or
// from text), filling arrays from containers and writing containers as compact array text.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/containers.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace {

using wlccw::cfg::compact;
using wlccw::cfg::make_array;
using wlccw::cfg::make_object;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;

using IntConvert = std::function<std::optional<int>(lcw_data_t&)>;
using StringConvert = std::function<std::optional<std::string>(lcw_data_t&)>;

std::optional<int> to_int(lcw_data_t& node) {
  return cfg_object_to_int_opt(&node);
}

// Strings only: a number or an object is rejected.
std::optional<std::string> to_string_element(lcw_data_t& node) {
  std::string const text = compact(&node);
  if (text.empty() || text.front() != '"') {
    return std::nullopt;
  }
  return std::string(cfg_object_to_string(&node));
}

// ---- Reading an array node into a container
// ------------------------------------------------------

TEST(CfgDeserializeContainer, NullNodeGivesEmptyOptional) {
  int calls = 0;
  IntConvert const convert = [&](lcw_data_t& node) {
    ++calls;
    return to_int(node);
  };
  EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(nullptr, convert), std::nullopt);
  EXPECT_EQ(calls, 0);
}

TEST(CfgDeserializeContainer, EmptyArrayGivesEngagedEmptyContainer) {
  Tree root = make_array();
  ASSERT_TRUE(root);
  auto const result = cfg_deserialize_container<std::vector<int>>(root.get(), to_int);
  ASSERT_TRUE(result.has_value());
  EXPECT_TRUE(result->empty());
}

TEST(CfgDeserializeContainer, NodesThatAreNotArraysGiveEmptyOptional) {
  for (char const* text : {"{}", R"({"a":1})", "1", "\"s\"", "null"}) {
    Tree root = parse(text);
    ASSERT_TRUE(root) << text;
    EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(root.get(), to_int), std::nullopt)
        << text;
  }
}

TEST(CfgDeserializeContainer, MissingMemberLookedUpWithGetSubtreeGivesEmptyOptional) {
  Tree root = parse(R"({"list":[1,2]})");
  ASSERT_TRUE(root);
  EXPECT_EQ(
      cfg_deserialize_container<std::vector<int>>(cfg_get_subtree(root.get(), "other"), to_int),
      std::nullopt);
  EXPECT_EQ(
      cfg_deserialize_container<std::vector<int>>(cfg_get_subtree(root.get(), "list"), to_int),
      (std::vector<int>{1, 2}));
}

TEST(CfgDeserializeContainer, VectorKeepsArrayOrder) {
  Tree root = parse(R"([5,3,"9",-1,3])");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(root.get(), to_int),
            (std::vector<int>{5, 3, 9, -1, 3}));
}

TEST(CfgDeserializeContainer, RejectedElementsAreSkippedOneByOne) {
  Tree root = parse(R"([1,"x",2,{},3,null,[4],5])");
  ASSERT_TRUE(root);
  std::vector<std::string> seen;
  IntConvert const convert = [&](lcw_data_t& node) {
    seen.push_back(compact(&node));
    return to_int(node);
  };
  EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(root.get(), convert),
            (std::vector<int>{1, 2, 3, 5}));
  EXPECT_EQ(seen, (std::vector<std::string>{"1", "\"x\"", "2", "{}", "3", "null", "[4]", "5"}));
}

TEST(CfgDeserializeContainer, ConverterRejectingEveryElementGivesEngagedEmptyContainer) {
  Tree root = parse(R"([1,2,3])");
  ASSERT_TRUE(root);
  int calls = 0;
  IntConvert const reject = [&](lcw_data_t&) -> std::optional<int> {
    ++calls;
    return std::nullopt;
  };
  auto const result = cfg_deserialize_container<std::vector<int>>(root.get(), reject);
  ASSERT_TRUE(result.has_value());
  EXPECT_TRUE(result->empty());
  EXPECT_EQ(calls, 3);
}

TEST(CfgDeserializeContainer, DuplicatesIntoASetKeepTwoIntoAVectorThreeInOrder) {
  Tree root = parse(R"(["a","b","a"])");
  ASSERT_TRUE(root);
  auto const as_set =
      cfg_deserialize_container<std::set<std::string>>(root.get(), to_string_element);
  ASSERT_TRUE(as_set.has_value());
  EXPECT_EQ(*as_set, (std::set<std::string>{"a", "b"}));
  auto const as_vector =
      cfg_deserialize_container<std::vector<std::string>>(root.get(), to_string_element);
  EXPECT_EQ(as_vector, (std::vector<std::string>{"a", "b", "a"}));
  auto const as_hash_set =
      cfg_deserialize_container<std::unordered_set<std::string>>(root.get(), to_string_element);
  ASSERT_TRUE(as_hash_set.has_value());
  EXPECT_EQ(*as_hash_set, (std::unordered_set<std::string>{"a", "b"}));
}

TEST(CfgDeserializeContainer, MapKeepsTheFirstOfEqualKeys) {
  Tree root = parse(R"([{"k":"a","v":1},{"k":"b","v":2},{"k":"a","v":3},{"v":4}])");
  ASSERT_TRUE(root);
  using Map = std::unordered_map<std::string, int>;
  std::function<std::optional<Map::value_type>(lcw_data_t&)> const convert =
      [](lcw_data_t& node) -> std::optional<Map::value_type> {
    auto key = cfg_get_param_opt(&node, "k");
    auto value = cfg_get_int32_param_opt(&node, "v");
    if (!key || !value) {
      return std::nullopt;
    }
    return Map::value_type(*key, *value);
  };
  auto const result = cfg_deserialize_container<Map>(root.get(), convert);
  EXPECT_EQ(result, (Map{{"a", 1}, {"b", 2}}));

  using Ordered = std::map<std::string, int>;
  std::function<std::optional<Ordered::value_type>(lcw_data_t&)> const convert_ordered =
      [&](lcw_data_t& node) -> std::optional<Ordered::value_type> {
    auto pair = convert(node);
    if (!pair) {
      return std::nullopt;
    }
    return Ordered::value_type(pair->first, pair->second);
  };
  EXPECT_EQ(cfg_deserialize_container<Ordered>(root.get(), convert_ordered),
            (Ordered{{"a", 1}, {"b", 2}}));
}

TEST(CfgDeserializeContainer, VectorOfPairs) {
  Tree root = parse(R"([{"k":"x","v":1},{"k":"y","v":2}])");
  ASSERT_TRUE(root);
  using Pairs = std::vector<std::pair<std::string, int>>;
  std::function<std::optional<Pairs::value_type>(lcw_data_t&)> const convert =
      [](lcw_data_t& node) -> std::optional<Pairs::value_type> {
    return Pairs::value_type(cfg_get_param(&node, "k"), cfg_get_int_param(&node, "v"));
  };
  EXPECT_EQ(cfg_deserialize_container<Pairs>(root.get(), convert), (Pairs{{"x", 1}, {"y", 2}}));
}

TEST(CfgDeserializeContainer, EmptyConverterThrowsWhenThereIsAnElement) {
  Tree one = parse("[1]");
  ASSERT_TRUE(one);
  IntConvert const empty;
  EXPECT_THROW(cfg_deserialize_container<std::vector<int>>(one.get(), empty),
               std::bad_function_call);
}

TEST(CfgDeserializeContainer, EmptyConverterWithoutElementsThrowsNothing) {
  IntConvert const empty;
  Tree none = make_array();
  ASSERT_TRUE(none);
  std::optional<std::vector<int>> result;
  EXPECT_NO_THROW(result = cfg_deserialize_container<std::vector<int>>(none.get(), empty));
  ASSERT_TRUE(result.has_value());
  EXPECT_TRUE(result->empty());
  EXPECT_NO_THROW(result = cfg_deserialize_container<std::vector<int>>(nullptr, empty));
  EXPECT_FALSE(result.has_value());
}

// ---- Reading a container from text --------------------------------------------------------------

TEST(CfgDeserializeContainerText, EmptyTextGivesEmptyOptional) {
  EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(std::string(), to_int), std::nullopt);
}

TEST(CfgDeserializeContainerText, TextThatIsNotJsonGivesEmptyOptional) {
  for (std::string const text : {"not json", "[1,", "[1,]", "[1] [2]", "   "}) {
    EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(text, to_int), std::nullopt) << text;
  }
}

TEST(CfgDeserializeContainerText, EmptyArrayTextGivesEngagedEmptyContainer) {
  auto const result = cfg_deserialize_container<std::vector<int>>(std::string("[]"), to_int);
  ASSERT_TRUE(result.has_value());
  EXPECT_TRUE(result->empty());
}

TEST(CfgDeserializeContainerText, RootIsTheArray) {
  EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(std::string(R"([7,"x",8])"), to_int),
            (std::vector<int>{7, 8}));
  EXPECT_EQ(cfg_deserialize_container<std::set<std::string>>(std::string(R"(["b","a","b",1])"),
                                                             to_string_element),
            (std::set<std::string>{"a", "b"}));
  // A root that is not an array cannot be iterated.
  EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(std::string(R"({"a":[1]})"), to_int),
            std::nullopt);
}

TEST(CfgDeserializeContainerText, ConverterRejectingEveryElementGivesEngagedEmptyContainer) {
  StringConvert const reject = [](lcw_data_t&) -> std::optional<std::string> {
    return std::nullopt;
  };
  auto const result =
      cfg_deserialize_container<std::vector<std::string>>(std::string(R"(["a","b"])"), reject);
  ASSERT_TRUE(result.has_value());
  EXPECT_TRUE(result->empty());
}

TEST(CfgDeserializeContainerText, EmptyConverterThrowsWhenThereIsAnElement) {
  IntConvert const empty;
  EXPECT_THROW(cfg_deserialize_container<std::vector<int>>(std::string("[1]"), empty),
               std::bad_function_call);
  EXPECT_NO_THROW(cfg_deserialize_container<std::vector<int>>(std::string("[]"), empty));
}

// ---- Filling an array from a container ----------------------------------------------------------

using IntFill = std::function<void(lcw_data_t&, int const&)>;

void fill_int(lcw_data_t& object, int const& value) {
  cfg_set_int_param(&object, "v", value);
}

TEST(CfgFillArrayWithContainer, OneObjectPerElementInOrder) {
  Tree array = make_array();
  ASSERT_TRUE(array);
  cfg_fill_array_with_container<std::vector<int>>(array.get(), {3, 1, 2}, fill_int);
  EXPECT_EQ(compact(array.get()), R"([{"v":3},{"v":1},{"v":2}])");
}

TEST(CfgFillArrayWithContainer, AppendsAfterExistingElements) {
  Tree root = parse(R"({"list":["old"]})");
  ASSERT_TRUE(root);
  cfg_fill_array_with_container<std::vector<int>>(cfg_get_subtree(root.get(), "list"), {1},
                                                  fill_int);
  EXPECT_EQ(compact(root.get()), R"({"list":["old",{"v":1}]})");
}

TEST(CfgFillArrayWithContainer, EmptyContainerAddsNothing) {
  Tree array = make_array();
  ASSERT_TRUE(array);
  cfg_fill_array_with_container<std::vector<int>>(array.get(), {}, fill_int);
  EXPECT_EQ(compact(array.get()), "[]");
}

TEST(CfgFillArrayWithContainer, NullArrayDoesNothingEvenWithAnEmptyFill) {
  int calls = 0;
  IntFill const counting = [&](lcw_data_t&, int const&) { ++calls; };
  EXPECT_NO_THROW(cfg_fill_array_with_container<std::vector<int>>(nullptr, {1, 2}, counting));
  EXPECT_EQ(calls, 0);
  IntFill const empty;
  EXPECT_NO_THROW(cfg_fill_array_with_container<std::vector<int>>(nullptr, {1, 2}, empty));
}

TEST(CfgFillArrayWithContainer, EmptyFillThrowsOnlyWhenThereIsAnElement) {
  IntFill const empty;
  Tree array = make_array();
  ASSERT_TRUE(array);
  EXPECT_NO_THROW(cfg_fill_array_with_container<std::vector<int>>(array.get(), {}, empty));
  EXPECT_EQ(compact(array.get()), "[]");
  EXPECT_THROW(cfg_fill_array_with_container<std::vector<int>>(array.get(), {1}, empty),
               std::bad_function_call);
  // The element's object was appended before the fill was found empty.
  EXPECT_EQ(compact(array.get()), "[{}]");
}

TEST(CfgFillArrayWithContainer, ElementsWhoseObjectCannotBeAppendedAreSkipped) {
  // An object node takes no appended element, so no element gets an object and fill is never
  // called, not even an empty one.
  Tree object = make_object();
  ASSERT_TRUE(object);
  int calls = 0;
  IntFill const counting = [&](lcw_data_t&, int const&) { ++calls; };
  EXPECT_NO_THROW(cfg_fill_array_with_container<std::vector<int>>(object.get(), {1, 2}, counting));
  EXPECT_EQ(calls, 0);
  IntFill const empty;
  EXPECT_NO_THROW(cfg_fill_array_with_container<std::vector<int>>(object.get(), {1, 2}, empty));
  EXPECT_EQ(compact(object.get()), "{}");
}

TEST(CfgFillArrayWithContainer, UnorderedMapInItsOwnIterationOrder) {
  using Map = std::unordered_map<std::string, int>;
  Map const map = {{"a", 1}, {"b", 2}, {"c", 3}, {"d", 4}};
  std::string expected = "[";
  for (auto const& [key, value] : map) {
    expected += (expected.size() > 1 ? "," : "") + std::string(R"({"k":")") + key + R"(","v":)" +
                std::to_string(value) + "}";
  }
  expected += "]";
  std::function<void(lcw_data_t&, Map::value_type const&)> const fill =
      [](lcw_data_t& object, Map::value_type const& entry) {
        cfg_set_param(&object, "k", entry.first.c_str());
        cfg_set_int_param(&object, "v", entry.second);
      };
  Tree array = make_array();
  ASSERT_TRUE(array);
  cfg_fill_array_with_container<Map>(array.get(), map, fill);
  EXPECT_EQ(compact(array.get()), expected);
  EXPECT_EQ(cfg_serialize_container_to_array_compact<Map>(map, fill), expected);

  // Reading it back gives the same map.
  std::function<std::optional<Map::value_type>(lcw_data_t&)> const convert =
      [](lcw_data_t& node) -> std::optional<Map::value_type> {
    return Map::value_type(cfg_get_param(&node, "k"), cfg_get_int_param(&node, "v"));
  };
  EXPECT_EQ(cfg_deserialize_container<Map>(expected, convert), map);
}

// ---- Writing a container as compact array text -------------------------------------------------

TEST(CfgSerializeContainerToArrayCompact, EmptyContainerGivesEmptyArrayText) {
  EXPECT_EQ(cfg_serialize_container_to_array_compact<std::vector<int>>({}, fill_int), "[]");
  IntFill const empty;
  EXPECT_EQ(cfg_serialize_container_to_array_compact<std::vector<int>>({}, empty), "[]");
}

TEST(CfgSerializeContainerToArrayCompact, OneObjectPerElementInIndexOrder) {
  EXPECT_EQ(cfg_serialize_container_to_array_compact<std::vector<int>>({2, -1, 2}, fill_int),
            R"([{"v":2},{"v":-1},{"v":2}])");
}

TEST(CfgSerializeContainerToArrayCompact, SetInItsOwnOrder) {
  std::function<void(lcw_data_t&, std::string const&)> const fill = [](lcw_data_t& object,
                                                                       std::string const& value) {
    cfg_set_param(&object, "name", value.c_str());
  };
  EXPECT_EQ(cfg_serialize_container_to_array_compact<std::set<std::string>>({"b", "a"}, fill),
            R"([{"name":"a"},{"name":"b"}])");
}

TEST(CfgSerializeContainerToArrayCompact, FillThatWritesNothingLeavesEmptyObjects) {
  IntFill const nothing = [](lcw_data_t&, int const&) {};
  EXPECT_EQ(cfg_serialize_container_to_array_compact<std::vector<int>>({1, 2}, nothing), "[{},{}]");
}

TEST(CfgSerializeContainerToArrayCompact, EmptyFillThrowsWhenThereIsAnElement) {
  IntFill const empty;
  EXPECT_THROW(cfg_serialize_container_to_array_compact<std::vector<int>>({1}, empty),
               std::bad_function_call);
}

TEST(CfgSerializeContainerToArrayCompact, TextReadsBackIntoTheSameContainer) {
  std::vector<int> const values = {4, 0, -7, 2147483647};
  std::string const text =
      cfg_serialize_container_to_array_compact<std::vector<int>>(values, fill_int);
  IntConvert const convert = [](lcw_data_t& node) { return cfg_get_int32_param_opt(&node, "v"); };
  EXPECT_EQ(cfg_deserialize_container<std::vector<int>>(text, convert), values);
}

} // namespace
