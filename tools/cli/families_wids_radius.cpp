#include "cli/family.hpp"

namespace wlccw::tool {

void add_wids_radius_families(std::vector<Family>& /*out*/) {}

} // namespace wlccw::tool
