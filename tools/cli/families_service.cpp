#include "cli/family.hpp"

namespace wlccw::tool {

void add_service_families(std::vector<Family>& /*out*/) {}

} // namespace wlccw::tool
