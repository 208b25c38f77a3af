// Which tree backend the library's calls reach, decided once per process.
#include "detail/tree_extensions.hpp"

#include <dlfcn.h>

// A weak reference: null when no loaded object defines the extension, that is when the bundled
// backend is not in the process.
#pragma weak cfg_parse_array_elements

namespace wlccw::detail {
namespace {

/// The shared object that holds code at address; null when none is known.
void const* object_of(void const* address) noexcept {
  Dl_info info{};
  if (address == nullptr || dladdr(address, &info) == 0) {
    return nullptr;
  }
  return info.dli_fbase;
}

bool detect_bundled_tree() noexcept {
  // Function addresses as data: what dladdr takes. Both conversions are the platform's own.
  auto const extension = reinterpret_cast<void const*>(&cfg_parse_array_elements);
  if (extension == nullptr) {
    return false;
  }
  void const* const serialiser = object_of(reinterpret_cast<void const*>(&cfg_serialize_compact));
  return serialiser != nullptr && serialiser == object_of(extension);
}

} // namespace

bool bundled_tree() noexcept {
  static bool const bundled = detect_bundled_tree();
  return bundled;
}

bool parse_array_elements(char const* text, char const* path,
                          void (*fn)(lcw_data_t* element, void* ctx), void* ctx) {
  return cfg_parse_array_elements(text, path, fn, ctx);
}

} // namespace wlccw::detail
