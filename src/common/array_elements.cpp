#include <wlccw/cfg/elements.hpp>

#include <wlccw/cfg/owned.hpp>

#if WLCCW_BUNDLED_TREE
#include "detail/tree_extensions.hpp"
#endif

namespace wlccw::cfg {

bool for_each_array_element(char const* text, char const* path,
                            std::function<void(lcw_data_t&)> const& fn) {
  if (!fn) {
    throw std::bad_function_call();
  }
  if (text == nullptr || path == nullptr) {
    return false;
  }
#if WLCCW_BUNDLED_TREE
  using Fn = std::function<void(lcw_data_t&)>;
  return cfg_parse_array_elements(
      text, path, [](lcw_data_t* element, void* ctx) { (*static_cast<Fn const*>(ctx))(*element); },
      const_cast<Fn*>(&fn));
#else
  Tree const root = parse(text);
  if (!root) {
    return false;
  }
  for_each_element(cfg_get_subtree_from_path(root.get(), path), fn);
  return true;
#endif
}

} // namespace wlccw::cfg
