// Reading the elements of one array of a text one at a time: every element, in order, exactly as
// parsing the whole text and following the path gives them; the text's validity as the result;
// the path followed the way cfg_get_subtree_from_path follows it.
#include "support/random.hpp"

#include <wlccw/cfg/elements.hpp>
#include <wlccw/cfg/owned.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using wlccw::cfg::compact;
using wlccw::cfg::for_each_array_element;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;
using wlccw::test::Random;

/// The compact texts of the elements read one at a time, and the result.
struct Streamed {
  bool whole = false;
  std::vector<std::string> elements;
};

Streamed streamed(std::string const& text, char const* path) {
  Streamed out;
  out.whole = for_each_array_element(text.c_str(), path, [&out](lcw_data_t& element) {
    out.elements.push_back(compact(&element));
  });
  return out;
}

/// The same from the whole parsed text: empty when the text does not parse.
std::optional<std::vector<std::string>> from_whole_tree(std::string const& text, char const* path) {
  Tree const root = parse(text);
  if (!root) {
    return std::nullopt;
  }
  std::vector<std::string> elements;
  wlccw::cfg::for_each_element(
      cfg_get_subtree_from_path(root.get(), path),
      [&elements](lcw_data_t& element) { elements.push_back(compact(&element)); });
  return elements;
}

void expect_as_whole_tree(std::string const& text, char const* path) {
  Streamed const got = streamed(text, path);
  std::optional<std::vector<std::string>> const expected = from_whole_tree(text, path);
  ASSERT_EQ(got.whole, expected.has_value()) << text << " at " << path;
  if (expected) {
    EXPECT_EQ(got.elements, *expected) << text << " at " << path;
  }
}

TEST(ArrayElements, ClientsOfAReplyOneByOne) {
  std::string const reply =
      R"({"error":false,"rpc-reply":{"data":{"other":[9],"clients":[{"hw-addr":"a"},)"
      R"({"hw-addr":"b","statistics":{"tx":{"bytes":1}}},3,"x",null,[1,[2]],{}]}}})";
  Streamed const got = streamed(reply, "/rpc-reply/data/clients");
  EXPECT_TRUE(got.whole);
  EXPECT_EQ(got.elements,
            (std::vector<std::string>{R"({"hw-addr":"a"})",
                                      R"({"hw-addr":"b","statistics":{"tx":{"bytes":1}}})", "3",
                                      R"("x")", "null", "[1,[2]]", "{}"}));
  expect_as_whole_tree(reply, "/rpc-reply/data/clients");
}

TEST(ArrayElements, PathsAreFollowedAsInTheWholeTree) {
  std::string const text = R"({"a":{"b":[1,2]},"c":[3],"d":5,"e":{"f":{"g":[4]}}})";
  EXPECT_EQ(streamed(text, "/a/b").elements, (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(streamed(text, "a//b/").elements, (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(streamed(text, "/c").elements, (std::vector<std::string>{"3"}));
  EXPECT_EQ(streamed(text, "/e/f/g").elements, (std::vector<std::string>{"4"}));
  for (char const* nowhere : {"/a", "/d", "/x", "/a/b/c", "/e/f", "/a/x", ""}) {
    Streamed const got = streamed(text, nowhere);
    EXPECT_TRUE(got.whole) << nowhere;
    EXPECT_TRUE(got.elements.empty()) << nowhere;
    expect_as_whole_tree(text, nowhere);
  }
  // No name at all: the root itself, when it is an array.
  EXPECT_EQ(streamed("[1,{\"a\":2}]", "").elements, (std::vector<std::string>{"1", "{\"a\":2}"}));
  EXPECT_EQ(streamed("[1,2]", "/").elements, (std::vector<std::string>{"1", "2"}));
  EXPECT_TRUE(streamed("7", "").elements.empty());
}

TEST(ArrayElements, TheFirstMemberOfANameIsFollowed) {
  EXPECT_EQ(streamed(R"({"a":[1],"a":[2]})", "/a").elements, (std::vector<std::string>{"1"}));
  EXPECT_TRUE(streamed(R"({"a":5,"a":[2]})", "/a").elements.empty());
  EXPECT_EQ(streamed(R"({"a":{"b":[1]},"a":{"b":[2]}})", "/a/b").elements,
            (std::vector<std::string>{"1"}));
  EXPECT_TRUE(streamed(R"({"a":{"c":[1]},"a":{"b":[2]}})", "/a/b").elements.empty());
  for (char const* text :
       {R"({"a":[1],"a":[2]})", R"({"a":5,"a":[2]})", R"({"a":{"b":[1]},"a":{"b":[2]}})",
        R"({"a":{"c":[1]},"a":{"b":[2]}})"}) {
    expect_as_whole_tree(text, "/a");
    expect_as_whole_tree(text, "/a/b");
  }
}

TEST(ArrayElements, EscapedNamesAndTextsAreDecoded) {
  std::string const text = R"({"a\u0062":[{"k\"ey":"v\u00e9\n"}],"x":["\\"]})";
  EXPECT_EQ(streamed(text, "/ab").elements,
            (std::vector<std::string>{"{\"k\\\"ey\":\"v\xc3\xa9\\n\"}"}));
  expect_as_whole_tree(text, "/ab");
  expect_as_whole_tree(text, "/x");
}

TEST(ArrayElements, AnInvalidTextIsFalseAfterTheElementsBeforeTheFault) {
  Streamed const cut = streamed(R"({"a":[1,{"b":2},"c")", "/a");
  EXPECT_FALSE(cut.whole);
  EXPECT_EQ(cut.elements, (std::vector<std::string>{"1", "{\"b\":2}", "\"c\""}));
  Streamed const trailing = streamed(R"({"a":[1]} x)", "/a");
  EXPECT_FALSE(trailing.whole);
  for (char const* text : {"", "{", "[1,]", "{\"a\":[1]", "{\"a\":[1]}}", "nul"}) {
    EXPECT_FALSE(streamed(text, "/a").whole) << text;
    EXPECT_FALSE(streamed(text, "").whole) << text;
  }
}

TEST(ArrayElements, NullTextOrPathIsFalseAndAnEmptyFunctionThrows) {
  auto const ignore = [](lcw_data_t&) {};
  EXPECT_FALSE(for_each_array_element(nullptr, "/a", ignore));
  EXPECT_FALSE(for_each_array_element("{\"a\":[1]}", nullptr, ignore));
  EXPECT_THROW(for_each_array_element("{\"a\":[1]}", "/a", {}), std::bad_function_call);
}

TEST(ArrayElements, AnExceptionFromTheFunctionStopsTheReadingAndPropagates) {
  int calls = 0;
  EXPECT_THROW(for_each_array_element(R"({"a":[{"x":1},{"x":2},{"x":3}]})", "/a",
                                      [&calls](lcw_data_t& element) {
                                        ++calls;
                                        if (cfg_get_int_param(&element, "x") == 2) {
                                          throw std::runtime_error("stop");
                                        }
                                      }),
               std::runtime_error);
  EXPECT_EQ(calls, 2);
}

// The elements are built one after the other in the same storage: large ones after small ones
// and small ones after large ones each come out whole, with nothing of the one before.
TEST(ArrayElements, ElementsOfEverySizeFollowingEachOtherComeOutWhole) {
  std::string text = "[";
  std::vector<std::string> expected;
  for (std::size_t size : {1U, 1000U, 100000U, 3U, 50000U, 0U, 20U}) {
    std::string element = "{\"k" + std::to_string(size) + "\":\"" + std::string(size, 'x') + "\"";
    for (std::size_t i = 0; i < size / 1000; ++i) {
      element += ",\"m" + std::to_string(i) + "\":[" + std::to_string(i) + "]";
    }
    element += "}";
    if (text.size() > 1) {
      text += ',';
    }
    text += element;
    expected.push_back(element);
  }
  text += "]";
  Streamed const got = streamed(text, "");
  EXPECT_TRUE(got.whole);
  EXPECT_EQ(got.elements, expected);
  // A member of one element is not found in the next one.
  std::vector<bool> found;
  for_each_array_element(R"([{"a":1},{"b":2},{"a":3}])", "", [&found](lcw_data_t& element) {
    found.push_back(cfg_contain_param(&element, "a") != 0);
  });
  EXPECT_EQ(found, (std::vector<bool>{true, false, true}));
}

TEST(ArrayElements, NestingBeyondTheLimitIsRefused) {
  std::string deep = "{\"a\":[";
  deep += std::string(600, '[') + std::string(600, ']') + "]}";
  EXPECT_FALSE(streamed(deep, "/a").whole);
  expect_as_whole_tree(deep, "/a");
}

// ---- Generated texts ---------------------------------------------------------------------------

/// A random JSON value with names from a small set, so that paths find members, names repeat and
/// arrays stand at many places.
void random_value(Random& random, std::string& out, int depth) {
  static constexpr char const* names[] = {"a", "b", "c", "clients", "d\\u0061ta", "a"};
  int const kind = depth >= 5 ? random.integer(0, 3) : random.integer(0, 7);
  switch (kind) {
  case 0:
    out += std::to_string(random.integer(-1000, 1000));
    break;
  case 1:
    out += random.coin() ? "\"text\"" : "\"t\\\"e\\u00e9\"";
    break;
  case 2:
    out += random.coin() ? "true" : "null";
    break;
  case 3:
    out += "1.5e3";
    break;
  case 4:
  case 5: {
    out += '{';
    int const count = random.integer(0, 4);
    for (int i = 0; i < count; ++i) {
      if (i != 0) {
        out += ',';
      }
      out += '"';
      out += names[random.integer<std::size_t>(0, std::size(names) - 1)];
      out += "\":";
      random_value(random, out, depth + 1);
    }
    out += '}';
    break;
  }
  default: {
    out += '[';
    int const count = random.integer(0, 4);
    for (int i = 0; i < count; ++i) {
      if (i != 0) {
        out += ',';
      }
      random_value(random, out, depth + 1);
    }
    out += ']';
  }
  }
}

TEST(ArrayElements, GeneratedTextsGiveTheElementsOfTheWholeTree) {
  static constexpr char const* paths[] = {"",       "/a",         "/b",           "/clients",
                                          "/a/a",   "/a/b",       "/c/clients",   "/data",
                                          "/a/b/c", "/clients/a", "/b/a/clients", "/a/a/a"};
  for (std::uint64_t seed = 1; seed <= 1500; ++seed) {
    Random random(seed);
    std::string text;
    random_value(random, text, 0);
    if (random.chance(0.1) && !text.empty()) {
      text.resize(random.integer<std::size_t>(0, text.size() - 1)); // cut: invalid
    }
    for (char const* path : paths) {
      expect_as_whole_tree(text, path);
    }
    if (HasFailure()) {
      ADD_FAILURE() << "seed " << seed;
      return;
    }
  }
}

} // namespace
