#include "cli/family.hpp"

namespace wlccw::tool {

void add_monitoring_families(std::vector<Family>& /*out*/) {}

} // namespace wlccw::tool
