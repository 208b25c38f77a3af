// Reading the sample messages under tests/data/ and the JSON texts of tests.
#pragma once

#include <wlccw/cfg/owned.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace wlccw::test {

/// The parsed tree of a JSON text; a failure to parse fails the calling test.
inline cfg::Tree parse_json(std::string const& json) {
  cfg::Tree tree = cfg::parse(json);
  EXPECT_TRUE(tree) << json;
  return tree;
}

/// The bytes of a sample file, named by its path under tests/data/ ("monitoring/reply-full.json");
/// a missing file fails the calling test and gives "".
inline std::string read_sample(std::string const& path) {
  std::ifstream in(std::string(WLCCW_TEST_DATA_DIR) + "/" + path, std::ios::binary);
  EXPECT_TRUE(in) << path;
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

} // namespace wlccw::test
