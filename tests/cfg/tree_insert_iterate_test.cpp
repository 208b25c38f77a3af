// Making, releasing, inserting into and iterating over trees of the default tree backend, and the
// stability of borrowed nodes while the tree grows.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using wlccw::cfg::compact;
using wlccw::cfg::make_array;
using wlccw::cfg::make_object;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;

// ---- Making and releasing ----------------------------------------------------------------------

TEST(CfgMake, EmptyObjectAndEmptyArray) {
  Tree object = make_object();
  ASSERT_TRUE(object);
  EXPECT_EQ(compact(object.get()), "{}");
  Tree array = make_array();
  ASSERT_TRUE(array);
  EXPECT_EQ(compact(array.get()), "[]");
  EXPECT_NE(object.get(), array.get());
}

TEST(CfgRelease, NullIsIgnored) {
  cfg_release(nullptr);
  // The tree library is still usable afterwards.
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_int_param(root.get(), "a", 1);
  EXPECT_EQ(compact(root.get()), R"({"a":1})");
}

TEST(CfgRelease, ReleasesParsedAndMadeRoots) {
  // Run under the leak checker: every root below is released exactly once.
  lcw_data_t* parsed = cfg_parse_buffer(R"({"a":[1,{"b":"c"}],"d":"e"})");
  ASSERT_NE(parsed, nullptr);
  cfg_release(parsed);
  lcw_data_t* object = cfg_get_empty();
  ASSERT_NE(object, nullptr);
  lcw_data_t* sub = cfg_insert_empty_subtree(object, "s");
  ASSERT_NE(sub, nullptr);
  cfg_set_param(sub, "k", "v");
  cfg_release(object);
  lcw_data_t* array = cfg_get_empty_array();
  ASSERT_NE(array, nullptr);
  cfg_insert_child_string(array, nullptr, "x");
  cfg_release(array);
}

// ---- cfg_is_empty ------------------------------------------------------------------------------

TEST(CfgIsEmpty, ObjectsAndArrays) {
  EXPECT_NE(cfg_is_empty(make_object().get()), 0);
  EXPECT_NE(cfg_is_empty(make_array().get()), 0);
  EXPECT_NE(cfg_is_empty(parse("{}").get()), 0);
  EXPECT_NE(cfg_is_empty(parse("[]").get()), 0);
  EXPECT_EQ(cfg_is_empty(parse(R"({"a":null})").get()), 0);
  EXPECT_EQ(cfg_is_empty(parse("[null]").get()), 0);
  EXPECT_EQ(cfg_is_empty(parse(R"({"a":{}})").get()), 0);
  EXPECT_EQ(cfg_is_empty(parse("[[]]").get()), 0);
}

TEST(CfgIsEmpty, ChangesWithInsertion) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  lcw_data_t* list = cfg_insert_empty_array(root.get(), "list");
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(cfg_is_empty(root.get()), 0);
  EXPECT_NE(cfg_is_empty(list), 0);
  cfg_insert_child_int(list, nullptr, 1);
  EXPECT_EQ(cfg_is_empty(list), 0);
}

TEST(CfgIsEmpty, ScalarsHoldNoMember) {
  for (char const* text : {"0", "1", "\"\"", "\"text\"", "true", "false", "null"}) {
    Tree root = parse(text);
    ASSERT_TRUE(root) << text;
    EXPECT_NE(cfg_is_empty(root.get()), 0) << text;
  }
  Tree array = parse(R"([1,"x",true,null])");
  ASSERT_TRUE(array);
  wlccw::cfg::for_each_element(array.get(), [](lcw_data_t& element) {
    EXPECT_NE(cfg_is_empty(&element), 0) << compact(&element);
  });
}

// ---- cfg_create_string_compact -----------------------------------------------------------------

TEST(CfgCreateStringCompact, ReturnsTheFilledRootsText) {
  int made = 0;
  int filled = 0;
  lcw_data_t* seen = nullptr;
  std::string const text = cfg_create_string_compact(
      [&]() -> lcw_data_t* {
        ++made;
        return cfg_get_empty_array();
      },
      [&](lcw_data_t& root) {
        ++filled;
        seen = &root;
        cfg_insert_child_int(&root, nullptr, 1);
        lcw_data_t* object = cfg_insert_empty_subtree(&root, nullptr);
        cfg_set_param(object, "a", "b");
      });
  EXPECT_EQ(text, R"([1,{"a":"b"}])");
  EXPECT_EQ(made, 1);
  EXPECT_EQ(filled, 1);
  EXPECT_NE(seen, nullptr);
}

TEST(CfgCreateStringCompact, ObjectRootMaker) {
  std::string const text = cfg_create_string_compact(
      cfg_get_empty, [](lcw_data_t& root) { cfg_set_uint64_param(&root, "n", 5); });
  EXPECT_EQ(text, R"({"n":5})");
}

TEST(CfgCreateStringCompact, EmptyTextWhenTheRootMakerYieldsNull) {
  bool filled = false;
  std::string const text = cfg_create_string_compact([]() -> lcw_data_t* { return nullptr; },
                                                     [&](lcw_data_t&) { filled = true; });
  EXPECT_EQ(text, "");
  EXPECT_FALSE(filled);
}

TEST(CfgCreateStringCompact, EmptyFillThrowsBadFunctionCall) {
  std::function<void(lcw_data_t&)> const empty;
  EXPECT_THROW(cfg_create_string_compact(cfg_get_empty_array, empty), std::bad_function_call);
}

TEST(CfgCreateStringCompact, RootIsReleasedWhenFillThrows) {
  // The leak checker reports the root if it is not released on the way out.
  EXPECT_THROW(cfg_create_string_compact(cfg_get_empty,
                                         [](lcw_data_t& root) {
                                           cfg_set_param(&root, "a", "b");
                                           throw std::runtime_error("fill failed");
                                         }),
               std::runtime_error);
}

// ---- Inserting ---------------------------------------------------------------------------------

TEST(CfgInsertChildString, AppendsToAnArrayWithANullKey) {
  Tree array = make_array();
  ASSERT_TRUE(array);
  lcw_data_t* first = cfg_insert_child_string(array.get(), nullptr, "a");
  lcw_data_t* second = cfg_insert_child_string(array.get(), nullptr, "b\"c");
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  EXPECT_STREQ(cfg_object_to_string(first), "a");
  EXPECT_STREQ(cfg_object_to_string(second), "b\"c");
  EXPECT_EQ(compact(array.get()), R"(["a","b\"c"])");
}

TEST(CfgInsertChildString, SetsAMemberOfAnObjectWithAKey) {
  Tree root = parse(R"({"x":1,"k":2})");
  ASSERT_TRUE(root);
  lcw_data_t* node = cfg_insert_child_string(root.get(), "name", "value");
  ASSERT_NE(node, nullptr);
  EXPECT_STREQ(cfg_object_to_string(node), "value");
  EXPECT_STREQ(cfg_get_param(root.get(), "name"), "value");
  EXPECT_EQ(compact(root.get()), R"({"x":1,"k":2,"name":"value"})");
  cfg_insert_child_string(root.get(), "k", "replaced");
  EXPECT_STREQ(cfg_get_param(root.get(), "k"), "replaced");
}

TEST(CfgInsertChildInt, AppendsToAnArrayWithANullKey) {
  Tree array = make_array();
  ASSERT_TRUE(array);
  lcw_data_t* first = cfg_insert_child_int(array.get(), nullptr, 7);
  lcw_data_t* second = cfg_insert_child_int(array.get(), nullptr, -2147483647 - 1);
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(cfg_object_to_int_opt(first), std::optional<int>(7));
  EXPECT_EQ(cfg_object_to_int_opt(second), std::optional<int>(-2147483647 - 1));
  EXPECT_EQ(compact(array.get()), "[7,-2147483648]");
}

TEST(CfgInsertChildInt, SetsAMemberOfAnObjectWithAKey) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  lcw_data_t* node = cfg_insert_child_int(root.get(), "n", 42);
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(cfg_object_to_int_opt(node), std::optional<int>(42));
  EXPECT_EQ(cfg_get_int_param(root.get(), "n"), 42);
  EXPECT_EQ(compact(root.get()), R"({"n":42})");
}

TEST(CfgInsertEmptySubtree, KeyedMemberOfAnObject) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  lcw_data_t* sub = cfg_insert_empty_subtree(root.get(), "sub");
  ASSERT_NE(sub, nullptr);
  EXPECT_NE(cfg_is_empty(sub), 0);
  cfg_set_param(sub, "k", "v");
  EXPECT_EQ(cfg_get_subtree(root.get(), "sub"), sub);
  EXPECT_EQ(compact(root.get()), R"({"sub":{"k":"v"}})");
}

TEST(CfgInsertEmptySubtree, NullKeyAppendsToAnArray) {
  Tree array = make_array();
  ASSERT_TRUE(array);
  lcw_data_t* first = cfg_insert_empty_subtree(array.get(), nullptr);
  lcw_data_t* second = cfg_insert_empty_subtree(array.get(), nullptr);
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  cfg_set_int_param(second, "i", 2);
  cfg_set_int_param(first, "i", 1);
  EXPECT_EQ(compact(array.get()), R"([{"i":1},{"i":2}])");
}

TEST(CfgInsertEmptyArray, KeyedMemberAndNullKeyAppend) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  lcw_data_t* list = cfg_insert_empty_array(root.get(), "list");
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(cfg_get_subtree(root.get(), "list"), list);
  lcw_data_t* inner = cfg_insert_empty_array(list, nullptr);
  ASSERT_NE(inner, nullptr);
  cfg_insert_child_int(inner, nullptr, 1);
  cfg_insert_child_int(list, nullptr, 2);
  EXPECT_EQ(compact(root.get()), R"({"list":[[1],2]})");
}

TEST(CfgInsert, NullKeyIntoAnObjectOrAnyInsertIntoAScalarGivesNullAndChangesNothing) {
  Tree root = parse(R"({"a":1})");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_insert_child_string(root.get(), nullptr, "x"), nullptr);
  EXPECT_EQ(cfg_insert_child_int(root.get(), nullptr, 1), nullptr);
  EXPECT_EQ(cfg_insert_empty_subtree(root.get(), nullptr), nullptr);
  EXPECT_EQ(cfg_insert_empty_array(root.get(), nullptr), nullptr);
  EXPECT_EQ(compact(root.get()), R"({"a":1})");

  Tree scalar = parse("5");
  ASSERT_TRUE(scalar);
  EXPECT_EQ(cfg_insert_child_string(scalar.get(), "k", "x"), nullptr);
  EXPECT_EQ(cfg_insert_child_int(scalar.get(), nullptr, 1), nullptr);
  EXPECT_EQ(cfg_insert_empty_subtree(scalar.get(), "k"), nullptr);
  EXPECT_EQ(cfg_insert_empty_array(scalar.get(), nullptr), nullptr);
  EXPECT_EQ(compact(scalar.get()), "5");
}

TEST(CfgInsert, KeyedInsertIntoAnArrayGivesNullAndChangesNothing) {
  Tree array = parse("[1]");
  ASSERT_TRUE(array);
  Tree child = parse(R"({"c":1})");
  ASSERT_TRUE(child);
  EXPECT_EQ(cfg_insert_child_string(array.get(), "k", "x"), nullptr);
  EXPECT_EQ(cfg_insert_child_int(array.get(), "k", 1), nullptr);
  EXPECT_EQ(cfg_insert_empty_subtree(array.get(), "k"), nullptr);
  EXPECT_EQ(cfg_insert_empty_array(array.get(), "k"), nullptr);
  EXPECT_EQ(cfg_insert_child(array.get(), "k", child.get()), nullptr);
  EXPECT_EQ(compact(array.get()), "[1]");
}

TEST(CfgInsertOrExists, ReturnsTheExistingMemberUntouched) {
  Tree root = parse(R"({"o":{"keep":1},"a":[1,2],"z":0})");
  ASSERT_TRUE(root);
  lcw_data_t* o = cfg_get_subtree(root.get(), "o");
  lcw_data_t* a = cfg_get_subtree(root.get(), "a");
  ASSERT_NE(o, nullptr);
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(cfg_insert_empty_subtree_or_exists(root.get(), "o"), o);
  EXPECT_EQ(cfg_insert_empty_array_or_exists(root.get(), "a"), a);
  EXPECT_EQ(compact(root.get()), R"({"o":{"keep":1},"a":[1,2],"z":0})");
}

TEST(CfgInsertOrExists, ExistingMemberOfTheOtherKindIsReturnedAsItIs) {
  Tree root = parse(R"({"o":{"keep":1},"a":[1,2]})");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_insert_empty_array_or_exists(root.get(), "o"), cfg_get_subtree(root.get(), "o"));
  EXPECT_EQ(cfg_insert_empty_subtree_or_exists(root.get(), "a"), cfg_get_subtree(root.get(), "a"));
  EXPECT_EQ(compact(root.get()), R"({"o":{"keep":1},"a":[1,2]})");
}

TEST(CfgInsertOrExists, MakesANewMemberWhenMissing) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  lcw_data_t* o = cfg_insert_empty_subtree_or_exists(root.get(), "o");
  ASSERT_NE(o, nullptr);
  lcw_data_t* a = cfg_insert_empty_array_or_exists(root.get(), "a");
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(compact(root.get()), R"({"o":{},"a":[]})");
  // A second call finds what the first one made.
  EXPECT_EQ(cfg_insert_empty_subtree_or_exists(root.get(), "o"), o);
  EXPECT_EQ(cfg_insert_empty_array_or_exists(root.get(), "a"), a);
  cfg_set_int_param(o, "n", 1);
  cfg_insert_child_int(a, nullptr, 2);
  EXPECT_EQ(compact(root.get()), R"({"o":{"n":1},"a":[2]})");
}

TEST(CfgInsertChild, InsertsADeepCopyUnderAKey) {
  Tree parent = parse(R"({"before":0})");
  ASSERT_TRUE(parent);
  Tree child = parse(R"({"x":{"y":1},"l":[1,"s"]})");
  ASSERT_TRUE(child);
  lcw_data_t* copy = cfg_insert_child(parent.get(), "c", child.get());
  ASSERT_NE(copy, nullptr);
  EXPECT_NE(copy, child.get());
  EXPECT_EQ(cfg_get_subtree(parent.get(), "c"), copy);
  std::string const expected = R"({"before":0,"c":{"x":{"y":1},"l":[1,"s"]}})";
  EXPECT_EQ(compact(parent.get()), expected);

  // Changing the source afterwards leaves the copy alone.
  lcw_data_t* x = cfg_get_subtree(child.get(), "x");
  ASSERT_NE(x, nullptr);
  cfg_set_int_param(x, "y", 2);
  cfg_set_param(child.get(), "added", "z");
  cfg_insert_child_int(cfg_get_subtree(child.get(), "l"), nullptr, 3);
  EXPECT_EQ(compact(parent.get()), expected);

  // Releasing the source leaves the copy alone too.
  child.reset();
  EXPECT_EQ(compact(parent.get()), expected);
  EXPECT_STREQ(cfg_get_param(cfg_get_subtree_from_path(parent.get(), "/c/x"), "y"), "1");
}

TEST(CfgInsertChild, ChangingTheCopyLeavesTheSourceAlone) {
  Tree parent = make_object();
  Tree child = parse(R"({"v":1})");
  ASSERT_TRUE(parent);
  ASSERT_TRUE(child);
  lcw_data_t* copy = cfg_insert_child(parent.get(), "c", child.get());
  ASSERT_NE(copy, nullptr);
  cfg_set_int_param(copy, "v", 9);
  EXPECT_EQ(compact(child.get()), R"({"v":1})");
  EXPECT_EQ(compact(parent.get()), R"({"c":{"v":9}})");
}

TEST(CfgInsertChild, NullKeyAppendsACopyToAnArray) {
  Tree array = make_array();
  Tree child = parse(R"(["a",{"b":2}])");
  ASSERT_TRUE(array);
  ASSERT_TRUE(child);
  ASSERT_NE(cfg_insert_child(array.get(), nullptr, child.get()), nullptr);
  ASSERT_NE(cfg_insert_child(array.get(), nullptr, child.get()), nullptr);
  child.reset();
  EXPECT_EQ(compact(array.get()), R"([["a",{"b":2}],["a",{"b":2}]])");
}

TEST(CfgInsertChild, ScalarAndSelfCopies) {
  Tree root = parse(R"({"a":[1,2]})");
  ASSERT_TRUE(root);
  Tree scalar = parse("\"s\"");
  ASSERT_TRUE(scalar);
  ASSERT_NE(cfg_insert_child(root.get(), "s", scalar.get()), nullptr);
  // A copy of a member of the same tree, inserted into that tree.
  lcw_data_t* a = cfg_get_subtree(root.get(), "a");
  ASSERT_NE(a, nullptr);
  ASSERT_NE(cfg_insert_child(root.get(), "b", a), nullptr);
  EXPECT_EQ(compact(root.get()), R"({"a":[1,2],"s":"s","b":[1,2]})");
}

TEST(CfgInsertChild, ATreeInsertedIntoItselfIsCopiedAsItWas) {
  Tree root = parse(R"({"a":[1,{"b":2}]})");
  ASSERT_TRUE(root);
  ASSERT_NE(cfg_insert_child(root.get(), "copy", root.get()), nullptr);
  EXPECT_EQ(compact(root.get()), R"({"a":[1,{"b":2}],"copy":{"a":[1,{"b":2}]}})");

  // Into a node inside the source, and over the source itself.
  lcw_data_t* a = cfg_get_subtree(root.get(), "a");
  ASSERT_NE(a, nullptr);
  ASSERT_NE(cfg_insert_child(a, nullptr, a), nullptr);
  EXPECT_EQ(compact(a), R"([1,{"b":2},[1,{"b":2}]])");
  ASSERT_NE(cfg_insert_child(root.get(), "a", a), nullptr);
  EXPECT_EQ(compact(cfg_get_subtree(root.get(), "a")), R"([1,{"b":2},[1,{"b":2}]])");
}

// ---- Iterating ---------------------------------------------------------------------------------

TEST(CfgArrayIterator, YieldsElementsInArrayOrderThenNull) {
  Tree root = parse(R"([3,"b",{"k":1},[2],true,null,1])");
  ASSERT_TRUE(root);
  wlccw::cfg::ArrayIterator it(cfg_alloc_array_iterator(root.get()));
  ASSERT_TRUE(it);
  std::vector<std::string> seen;
  while (lcw_data_t* element = cfg_next_array_iterator(it.get())) {
    seen.push_back(compact(element));
  }
  EXPECT_EQ(seen,
            (std::vector<std::string>{"3", "\"b\"", R"({"k":1})", "[2]", "true", "null", "1"}));
  EXPECT_EQ(cfg_next_array_iterator(it.get()), nullptr);
}

TEST(CfgArrayIterator, EmptyArrayYieldsNothing) {
  Tree root = make_array();
  ASSERT_TRUE(root);
  wlccw::cfg::ArrayIterator it(cfg_alloc_array_iterator(root.get()));
  ASSERT_TRUE(it);
  EXPECT_EQ(cfg_next_array_iterator(it.get()), nullptr);
}

TEST(CfgArrayIterator, NodesThatAreNotArraysGiveANullIterator) {
  for (char const* text : {"{}", R"({"a":1})", "1", "\"s\"", "true", "null"}) {
    Tree root = parse(text);
    ASSERT_TRUE(root) << text;
    lcw_array_iterator_t* it = cfg_alloc_array_iterator(root.get());
    EXPECT_EQ(it, nullptr) << text;
    if (it != nullptr) {
      cfg_release_array_iterator(it);
    }
  }
}

TEST(CfgArrayIterator, ElementsAreTheSameNodesEachTime) {
  Tree root = parse(R"([{"a":1},{"a":2}])");
  ASSERT_TRUE(root);
  std::vector<lcw_data_t*> first;
  std::vector<lcw_data_t*> second;
  wlccw::cfg::for_each_element(root.get(), [&](lcw_data_t& e) { first.push_back(&e); });
  wlccw::cfg::for_each_element(root.get(), [&](lcw_data_t& e) { second.push_back(&e); });
  ASSERT_EQ(first.size(), 2U);
  EXPECT_EQ(first, second);
  cfg_set_int_param(first[1], "b", 3);
  EXPECT_EQ(compact(root.get()), R"([{"a":1},{"a":2,"b":3}])");
}

TEST(CfgObjectIterator, YieldsMembersInDocumentOrderWithKeys) {
  Tree root = parse(R"({"z":1,"a":"x","rx-bytes":{"k":2},"m":[3],"n":null})");
  ASSERT_TRUE(root);
  wlccw::cfg::ObjectIterator it(cfg_alloc_iterator(root.get()));
  ASSERT_TRUE(it);
  std::vector<std::pair<std::string, std::string>> seen;
  char const* key = nullptr;
  while (lcw_data_t* member = cfg_next_object_iterator(it.get(), &key)) {
    ASSERT_NE(key, nullptr);
    seen.emplace_back(key, compact(member));
  }
  std::vector<std::pair<std::string, std::string>> const expected = {
      {"z", "1"}, {"a", "\"x\""}, {"rx-bytes", R"({"k":2})"}, {"m", "[3]"}, {"n", "null"}};
  EXPECT_EQ(seen, expected);
  EXPECT_EQ(cfg_next_object_iterator(it.get(), &key), nullptr);
}

TEST(CfgObjectIterator, YieldsMembersInInsertionOrderAndTheSameNodesAsLookup) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  lcw_data_t* b = cfg_insert_empty_subtree(root.get(), "b");
  cfg_set_param(root.get(), "a", "1");
  lcw_data_t* c = cfg_insert_empty_array(root.get(), "c");
  std::vector<std::string> keys;
  std::vector<lcw_data_t*> nodes;
  wlccw::cfg::for_each_member(root.get(), [&](char const* key, lcw_data_t& member) {
    keys.emplace_back(key);
    nodes.push_back(&member);
  });
  EXPECT_EQ(keys, (std::vector<std::string>{"b", "a", "c"}));
  ASSERT_EQ(nodes.size(), 3U);
  EXPECT_EQ(nodes[0], b);
  EXPECT_EQ(nodes[2], c);
  EXPECT_EQ(nodes[1], cfg_get_subtree(root.get(), "a"));
}

TEST(CfgObjectIterator, EmptyObjectYieldsNothing) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  wlccw::cfg::ObjectIterator it(cfg_alloc_iterator(root.get()));
  ASSERT_TRUE(it);
  char const* key = "untouched";
  EXPECT_EQ(cfg_next_object_iterator(it.get(), &key), nullptr);
}

TEST(CfgObjectIterator, NodesThatAreNotObjectsGiveANullIterator) {
  for (char const* text : {"[]", "[1,2]", "1", "\"s\"", "false", "null"}) {
    Tree root = parse(text);
    ASSERT_TRUE(root) << text;
    lcw_object_iterator_t* it = cfg_alloc_iterator(root.get());
    EXPECT_EQ(it, nullptr) << text;
    if (it != nullptr) {
      cfg_release_iterator(it);
    }
  }
}

struct Visit {
  std::vector<std::string> texts;
  int calls = 0;
};

void record_element(lcw_data_t const* element, void* ctx) {
  auto* visit = static_cast<Visit*>(ctx);
  ++visit->calls;
  visit->texts.push_back(compact(element));
}

TEST(CfgIterateArray, CallsOncePerElementInOrderWithTheContext) {
  Tree root = parse(R"([1,"two",{"t":3},[4]])");
  ASSERT_TRUE(root);
  Visit visit;
  cfg_iterate_array(root.get(), record_element, &visit);
  EXPECT_EQ(visit.calls, 4);
  EXPECT_EQ(visit.texts, (std::vector<std::string>{"1", "\"two\"", R"({"t":3})", "[4]"}));
}

TEST(CfgIterateArray, EmptyArrayAndNodesThatAreNotArraysCallNothing) {
  for (char const* text : {"[]", "{}", R"({"a":1,"b":2})", "1", "\"s\"", "true", "null"}) {
    Tree root = parse(text);
    ASSERT_TRUE(root) << text;
    Visit visit;
    cfg_iterate_array(root.get(), record_element, &visit);
    EXPECT_EQ(visit.calls, 0) << text;
  }
}

// ---- Borrowed nodes stay where they are while the tree grows ------------------------------------

TEST(CfgPointerStability, BorrowedNodesSurviveThousandsOfInsertionsElsewhere) {
  Tree root = parse(R"({"first":{"name":"kept","n":7},"list":[{"e":"zero"},"one",2],"s":"str"})");
  ASSERT_TRUE(root);

  // Nodes borrowed by lookup, by path and by iterator.
  lcw_data_t* first = cfg_get_subtree(root.get(), "first");
  lcw_data_t* list = cfg_get_subtree(root.get(), "list");
  lcw_data_t* s = cfg_get_subtree(root.get(), "s");
  lcw_data_t* by_path = cfg_get_subtree_from_path(root.get(), "/first");
  ASSERT_NE(first, nullptr);
  ASSERT_NE(list, nullptr);
  ASSERT_NE(s, nullptr);
  EXPECT_EQ(by_path, first);
  std::vector<lcw_data_t*> items;
  wlccw::cfg::for_each_element(list, [&](lcw_data_t& e) { items.push_back(&e); });
  ASSERT_EQ(items.size(), 3U);

  // Nodes borrowed from inserts.
  lcw_data_t* objects = cfg_insert_empty_subtree(root.get(), "objects");
  lcw_data_t* arrays = cfg_insert_empty_array(root.get(), "arrays");
  ASSERT_NE(objects, nullptr);
  ASSERT_NE(arrays, nullptr);
  lcw_data_t* early_member = cfg_insert_empty_subtree(objects, "early");
  lcw_data_t* early_element = cfg_insert_empty_subtree(arrays, nullptr);
  lcw_data_t* early_string = cfg_insert_child_string(arrays, nullptr, "early-string");
  ASSERT_NE(early_member, nullptr);
  ASSERT_NE(early_element, nullptr);
  ASSERT_NE(early_string, nullptr);
  cfg_set_param(early_member, "tag", "member");
  cfg_set_param(early_element, "tag", "element");

  // Grow every container around them: root members, sibling objects and arrays, the parsed
  // array and the parsed object that the borrowed nodes live in.
  for (int i = 0; i < 10000; ++i) {
    std::string const key = "k" + std::to_string(i);
    lcw_data_t* o = cfg_insert_empty_subtree(objects, key.c_str());
    ASSERT_NE(o, nullptr);
    cfg_set_int_param(o, "i", i);
    lcw_data_t* e = cfg_insert_empty_subtree(arrays, nullptr);
    ASSERT_NE(e, nullptr);
    cfg_insert_child_int(arrays, nullptr, i);
    cfg_insert_child_string(list, nullptr, key.c_str());
    cfg_set_int_param(first, key.c_str(), i);
    cfg_set_int_param(root.get(), key.c_str(), i);
  }

  // Every earlier pointer still reaches the same node with the same content.
  EXPECT_EQ(cfg_get_subtree(root.get(), "first"), first);
  EXPECT_EQ(cfg_get_subtree(root.get(), "list"), list);
  EXPECT_EQ(cfg_get_subtree(root.get(), "objects"), objects);
  EXPECT_EQ(cfg_get_subtree(root.get(), "arrays"), arrays);
  EXPECT_EQ(cfg_get_subtree(objects, "early"), early_member);
  EXPECT_STREQ(cfg_get_param(first, "name"), "kept");
  EXPECT_EQ(cfg_get_int_param(first, "n"), 7);
  EXPECT_EQ(cfg_get_int_param(first, "k9999"), 9999);
  EXPECT_STREQ(cfg_object_to_string(s), "str");
  EXPECT_STREQ(cfg_get_param(items[0], "e"), "zero");
  EXPECT_STREQ(cfg_object_to_string(items[1]), "one");
  EXPECT_EQ(cfg_object_to_int_opt(items[2]), std::optional<int>(2));
  EXPECT_STREQ(cfg_get_param(early_member, "tag"), "member");
  EXPECT_STREQ(cfg_get_param(early_element, "tag"), "element");
  EXPECT_STREQ(cfg_object_to_string(early_string), "early-string");

  // The earlier nodes can still be written through, and the writes land in the tree.
  cfg_set_param(early_element, "after", "yes");
  cfg_set_param(items[0], "after", "yes");
  wlccw::cfg::ArrayIterator it(cfg_alloc_array_iterator(arrays));
  ASSERT_TRUE(it);
  lcw_data_t* head = cfg_next_array_iterator(it.get());
  EXPECT_EQ(head, early_element);
  EXPECT_EQ(compact(head), R"({"tag":"element","after":"yes"})");
  wlccw::cfg::ArrayIterator list_it(cfg_alloc_array_iterator(list));
  ASSERT_TRUE(list_it);
  EXPECT_EQ(compact(cfg_next_array_iterator(list_it.get())), R"({"e":"zero","after":"yes"})");

  std::size_t count = 0;
  wlccw::cfg::for_each_element(arrays, [&](lcw_data_t&) { ++count; });
  EXPECT_EQ(count, 2U + 2U * 10000U);
}

TEST(CfgPointerStability, NodesFromAnEarlierParseSurviveGrowthOfTheSameArray) {
  // Parsed arrays and objects hold their elements in the same way as built ones: growing them
  // after the parse keeps the parsed elements in place.
  std::string text = "[";
  for (int i = 0; i < 8; ++i) {
    text += (i == 0 ? "" : ",") + std::string(R"({"i":)") + std::to_string(i) + "}";
  }
  text += "]";
  Tree root = parse(text);
  ASSERT_TRUE(root);
  std::vector<lcw_data_t*> parsed;
  wlccw::cfg::for_each_element(root.get(), [&](lcw_data_t& e) { parsed.push_back(&e); });
  ASSERT_EQ(parsed.size(), 8U);
  for (int i = 0; i < 10000; ++i) {
    ASSERT_NE(cfg_insert_empty_subtree(root.get(), nullptr), nullptr);
  }
  for (std::size_t i = 0; i < parsed.size(); ++i) {
    EXPECT_EQ(cfg_get_int_param(parsed[i], "i"), static_cast<int>(i));
  }
}

} // namespace

namespace {

// Large objects are looked up through a hash index once a scan grows long; every way of reaching
// a member must keep giving the right one.
TEST(CfgLargeObject, EveryMemberIsFoundInAnyOrderAndMissingOnesAreNot) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  constexpr int members = 3000;
  for (int i = 0; i < members; ++i) {
    cfg_set_int_param(root.get(), ("m" + std::to_string(i)).c_str(), i);
  }
  for (int i = members - 1; i >= 0; i -= 7) {
    EXPECT_EQ(cfg_get_int_param(root.get(), ("m" + std::to_string(i)).c_str()), i);
  }
  EXPECT_EQ(cfg_contain_param(root.get(), "m3000"), 0);
  EXPECT_EQ(cfg_contain_param(root.get(), ""), 0);

  // Replacing a member keeps its place; the text lists the members in insertion order.
  cfg_set_param(root.get(), "m5", "five");
  EXPECT_STREQ(cfg_get_param(root.get(), "m5"), "five");
  std::string const text = compact(root.get());
  EXPECT_EQ(text.substr(0, 36), R"({"m0":0,"m1":1,"m2":2,"m3":3,"m4":4,)");
  EXPECT_EQ(text.substr(36, 14), R"("m5":"five","m)");
  EXPECT_EQ(text.substr(text.size() - 13), R"("m2999":2999})");
}

TEST(CfgLargeObject, ParsedObjectsAreSearchedTheSameWay) {
  std::string text = "{";
  for (int i = 0; i < 500; ++i) {
    text += (i != 0 ? ",\"k" : "\"k") + std::to_string(i) + "\":" + std::to_string(i * 2);
  }
  text += "}";
  Tree root = parse(text);
  ASSERT_TRUE(root);
  for (int i = 499; i >= 0; --i) {
    ASSERT_EQ(cfg_get_int_param(root.get(), ("k" + std::to_string(i)).c_str()), i * 2) << i;
  }
  EXPECT_EQ(cfg_get_param_opt(root.get(), "k500"), std::nullopt);
  // Members appended after the index was built are found too.
  cfg_set_int_param(root.get(), "late", 7);
  EXPECT_EQ(cfg_get_int_param(root.get(), "late"), 7);
  EXPECT_EQ(compact(root.get()).substr(text.size() - 1), R"(,"late":7})");
}

} // namespace
