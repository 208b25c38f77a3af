#include <wlccw/cfg/elements.hpp>

#include <wlccw/cfg/owned.hpp>

#include "detail/tree_extensions.hpp"

namespace wlccw::cfg {

bool for_each_array_element(char const* text, char const* path,
                            std::function<void(lcw_data_t&)> const& fn) {
  if (!fn) {
    throw std::bad_function_call();
  }
  if (text == nullptr || path == nullptr) {
    return false;
  }
  if (wlccw::detail::bundled_tree()) {
    using Fn = std::function<void(lcw_data_t&)>;
    return wlccw::detail::parse_array_elements(
        text, path,
        [](lcw_data_t* element, void* ctx) { (*static_cast<Fn const*>(ctx))(*element); },
        const_cast<Fn*>(&fn));
  }
  // Another backend: the whole text is parsed and the array read from the tree.
  Tree const root = parse(text);
  if (!root) {
    return false;
  }
  for_each_element(cfg_get_subtree_from_path(root.get(), path), fn);
  return true;
}

} // namespace wlccw::cfg
