#include <wlccw/enums/ApSaStage.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 4> ApSaStage_names{
    "REGISTER",
    "READY",
    "UPGRADE",
    "UNKNOWN",
};
static_assert(ApSaStage_names.size() == static_cast<std::size_t>(ApSaStage::UNKNOWN) + 1);

constexpr auto ApSaStage_dictionary =
    wlccw::detail::make_name_dictionary<ApSaStage>(ApSaStage_names);

} // namespace

ApSaStage ApSaStageFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(ApSaStage_dictionary, text, ApSaStage::UNKNOWN);
}

char const* ApSaStageToStrX(ApSaStage value) {
  return wlccw::detail::x_to_str(ApSaStage_names, value);
}
