#include "cli/family.hpp"

namespace wlccw::tool {

void add_client_families(std::vector<Family>& /*out*/) {}

} // namespace wlccw::tool
