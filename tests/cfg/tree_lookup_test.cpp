// Finding members by name in objects of every size and history: objects parsed from text, objects
// written member by member (which filter their names), objects that outgrow a scan (which get a
// hash index), and objects that are written and read in turns. Each case is checked against a
// plain model of the object: a list of (name, value) pairs in document order.
#include "support/random.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace {

using wlccw::cfg::compact;
using wlccw::cfg::make_object;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;

using Model = std::vector<std::pair<std::string, int>>;

std::string text_of(Model const& model) {
  std::string out = "{";
  for (auto const& [name, value] : model) {
    if (out.size() > 1) {
      out += ',';
    }
    out += '"' + name + "\":" + std::to_string(value);
  }
  return out + "}";
}

void set(Model& model, std::string const& name, int value) {
  auto const it = std::find_if(model.begin(), model.end(),
                               [&name](auto const& member) { return member.first == name; });
  if (it != model.end()) {
    it->second = value;
  } else {
    model.emplace_back(name, value);
  }
}

int const* get(Model const& model, std::string const& name) {
  auto const it = std::find_if(model.begin(), model.end(),
                               [&name](auto const& member) { return member.first == name; });
  return it != model.end() ? &it->second : nullptr;
}

// Names that are alike where a quick comparison looks: the same length, the same first and last
// eight bytes, differing only in the middle, and names that are prefixes of each other.
std::vector<std::string> alike_names() {
  std::vector<std::string> names;
  for (int link = 1; link <= 9; ++link) {
    for (char const* field : {"-tx-rate", "-rx-rate", "-bytes-tx", "-bytes-rx", "-rssi-1"}) {
      names.push_back("mlo-link-" + std::to_string(link) + field);
    }
  }
  for (std::size_t length = 0; length <= 30; ++length) {
    names.emplace_back(length, 'k');
  }
  for (int i = 0; i < 40; ++i) {
    names.push_back("client-" + std::to_string(i) + "-name-that-is-long");
  }
  return names;
}

void expect_same(lcw_data_t* object, Model const& model, std::string const& context) {
  ASSERT_EQ(compact(object), text_of(model)) << context;
}

void expect_reads(lcw_data_t* object, Model const& model, std::vector<std::string> const& names,
                  std::string const& context) {
  for (std::string const& name : names) {
    int const* expected = get(model, name);
    EXPECT_EQ(cfg_contain_param(object, name.c_str()) != 0, expected != nullptr)
        << context << ": " << name;
    if (expected != nullptr) {
      EXPECT_EQ(cfg_get_int_param(object, name.c_str()), *expected) << context << ": " << name;
    }
  }
}

// Writes names[first], names[first + 2], ... with their index as value, into the object and the
// model.
void write_every_other(lcw_data_t* object, Model& model, std::vector<std::string> const& names,
                       std::size_t first) {
  for (std::size_t i = first; i < names.size(); i += 2) {
    cfg_set_int_param(object, names[i].c_str(), static_cast<int>(i));
    set(model, names[i], static_cast<int>(i));
  }
}

TEST(CfgLookup, WrittenObjectsOfEverySizeFindEveryNameInAnyOrder) {
  for (std::size_t size : {1U, 2U, 7U, 31U, 63U, 64U, 65U, 130U, 1000U}) {
    std::string const context = "size " + std::to_string(size);
    Tree root = make_object();
    ASSERT_TRUE(root);
    Model model;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < size; ++i) {
      names.push_back("member-" + std::to_string(i * 7919 % 100003));
      cfg_set_int_param(root.get(), names.back().c_str(), static_cast<int>(i));
      set(model, names.back(), static_cast<int>(i));
    }
    expect_same(root.get(), model, context);
    std::vector<std::string> absent{"", "member", "member-", "member-x", "absent-name"};
    expect_reads(root.get(), model, absent, context + " absent first");
    std::vector<std::string> backwards(names.rbegin(), names.rend());
    expect_reads(root.get(), model, backwards, context + " backwards");
    expect_reads(root.get(), model, names, context + " forwards");
    expect_reads(root.get(), model, absent, context + " absent after reads");
    // Writing after reading: a present name is replaced in place, a new one is appended.
    cfg_set_int_param(root.get(), names.front().c_str(), -1);
    set(model, names.front(), -1);
    cfg_set_int_param(root.get(), "appended", -2);
    set(model, "appended", -2);
    expect_same(root.get(), model, context + " written after reads");
  }
}

TEST(CfgLookup, NamesAlikeInLengthAndEndsAreTold) {
  std::vector<std::string> const names = alike_names();
  Tree root = make_object();
  ASSERT_TRUE(root);
  Model model;
  write_every_other(root.get(), model, names, 0);
  expect_same(root.get(), model, "every other name written");
  expect_reads(root.get(), model, names, "written");
  write_every_other(root.get(), model, names, 1);
  expect_same(root.get(), model, "all names written");
  Tree parsed = parse(text_of(model));
  ASSERT_TRUE(parsed);
  expect_reads(parsed.get(), model, names, "parsed");
}

// Names of one length that differ in one byte, at every position, for every length a lookup
// compares in its own way (a few bytes, one or two words, words and the bytes between them): each
// name finds its own member and no other, in written and in parsed objects.
TEST(CfgLookup, NamesDifferingInOneByteAtAnyPositionAreTold) {
  for (std::size_t length = 1; length <= 40; ++length) {
    std::vector<std::string> names;
    for (std::size_t at = 0; at < length; ++at) {
      std::string name(length, 'n');
      name[at] = 'm';
      names.push_back(name);
    }
    std::string const context = "length " + std::to_string(length);
    Tree root = make_object();
    ASSERT_TRUE(root);
    Model model;
    write_every_other(root.get(), model, names, 0);
    std::vector<std::string> asked = names;
    asked.emplace_back(length, 'n'); // differs from every name in one byte, never written
    expect_reads(root.get(), model, asked, context + " written");
    Tree parsed = parse(text_of(model));
    ASSERT_TRUE(parsed);
    expect_reads(parsed.get(), model, asked, context + " parsed");
    std::vector<std::string> backwards(asked.rbegin(), asked.rend());
    expect_reads(parsed.get(), model, backwards, context + " parsed, read backwards");
  }
}

// Random turns of writing new names, rewriting present ones, reading present and absent ones and
// reusing members as objects, on written and on parsed objects: the tree always matches the model.
TEST(CfgLookup, ObjectsWrittenAndReadInTurnsMatchTheirModel) {
  std::vector<std::string> const names = alike_names();
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    wlccw::test::Random random(seed);
    std::string const context = "seed " + std::to_string(seed);
    Model model;
    Tree root = make_object();
    ASSERT_TRUE(root);
    if (random.coin()) {
      // Start from a parsed object instead, which looks names up from its last hit.
      for (int i = 0; i < random.integer(0, 20); ++i) {
        set(model, names[random.integer<std::size_t>(0, names.size() - 1)], i);
      }
      root = parse(text_of(model));
      ASSERT_TRUE(root) << context;
    }
    for (int step = 0; step < 400; ++step) {
      std::string const& name = names[random.integer<std::size_t>(0, names.size() - 1)];
      switch (random.integer(0, 3)) {
      case 0:
      case 1:
        cfg_set_int_param(root.get(), name.c_str(), step);
        set(model, name, step);
        break;
      case 2:
        expect_reads(root.get(), model, {name}, context + " step " + std::to_string(step));
        break;
      default:
        if (get(model, name) == nullptr) {
          // A new member made by insert-or-reuse, then given a value.
          lcw_data_t* const made = cfg_insert_empty_subtree_or_exists(root.get(), name.c_str());
          ASSERT_NE(made, nullptr) << context;
          cfg_set_int_param(root.get(), name.c_str(), step);
          set(model, name, step);
        } else {
          EXPECT_EQ(cfg_insert_empty_subtree_or_exists(root.get(), name.c_str()),
                    cfg_get_subtree(root.get(), name.c_str()))
              << context << ": " << name;
        }
      }
    }
    expect_same(root.get(), model, context);
    expect_reads(root.get(), model, names, context + " at the end");
  }
}

} // namespace
