#include <wlccw/enums/mfp_Mode.hpp>

#include "detail/Dictionary.hpp"

namespace mfp {
namespace {

using wlccw::detail::Row;

// The controller and the AP use the same words.
constexpr std::array<Row<Mode>, 4> mfp_mode_names{{
    {"auto", Mode::AUTO},
    {"off", Mode::OFF},
    {"capable", Mode::CAPABLE},
    {"required", Mode::REQUIRED},
}};
static_assert(wlccw::detail::rows_in_value_order(mfp_mode_names));

constexpr auto str_to_mfp_mode = wlccw::detail::make_dictionary(mfp_mode_names);

} // namespace

std::optional<Mode> from_wlc_config(std::string_view text) {
  return str_to_mfp_mode.find(text);
}

std::string to_ap_config(Mode mode) {
  // Lower case, like the words of the table.
  return std::string(wlccw::detail::text_of(mfp_mode_names, mode).value_or("unknown"));
}

} // namespace mfp
