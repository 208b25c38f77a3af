#include "cli/family.hpp"

namespace wlccw::tool {

std::vector<Family> const& families() {
  static std::vector<Family> const all = [] {
    std::vector<Family> out;
    add_client_families(out);
    add_monitoring_families(out);
    add_service_families(out);
    add_wids_radius_families(out);
    return out;
  }();
  return all;
}

Family const* find_family(std::string_view name) {
  for (Family const& family : families()) {
    if (family.name == name) {
      return &family;
    }
  }
  return nullptr;
}

} // namespace wlccw::tool
