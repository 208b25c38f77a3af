// Generated input texts for tests that compare a parser with a reference on many inputs.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace wlccw::test {

/// Every text of length up to max_length over the alphabet, the empty text first.
inline std::vector<std::string> all_texts(std::string const& alphabet, std::size_t max_length) {
  std::vector<std::string> texts{""};
  std::size_t level_begin = 0;
  for (std::size_t length = 1; length <= max_length; ++length) {
    std::size_t const level_end = texts.size();
    for (std::size_t i = level_begin; i < level_end; ++i) {
      for (char const c : alphabet) {
        texts.push_back(texts[i] + c);
      }
    }
    level_begin = level_end;
  }
  return texts;
}

} // namespace wlccw::test
