// wlccw::cfg::for_each_array_element on arbitrary text: for several paths, the elements read one
// at a time and the text's validity are those of the whole parsed text followed along the path.
#include "fuzz_support.hpp"

#include <wlccw/cfg/elements.hpp>
#include <wlccw/cfg/owned.hpp>

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

// The elements' compact texts, one per line.
std::string streamed(std::string const& text, char const* path, bool& whole) {
  std::string out;
  whole = wlccw::cfg::for_each_array_element(text.c_str(), path, [&out](lcw_data_t& element) {
    out += wlccw::cfg::compact(&element);
    out += '\n';
  });
  return out;
}

std::string from_whole_tree(lcw_data_t const* root, char const* path) {
  std::string out;
  wlccw::cfg::for_each_element(cfg_get_subtree_from_path(root, path), [&out](lcw_data_t& element) {
    out += wlccw::cfg::compact(&element);
    out += '\n';
  });
  return out;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const text = wlccw::fuzz::to_string(data, size);
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  for (char const* path : {"", "/a", "/a/b", "/clients", "/rpc-reply/data/clients"}) {
    bool whole = false;
    std::string const elements = streamed(text, path, whole);
    wlccw::fuzz::check(whole == (root != nullptr));
    if (root) {
      wlccw::fuzz::check_same(elements, from_whole_tree(root.get(), path));
    }
  }
  return 0;
}
