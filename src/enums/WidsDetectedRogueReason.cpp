#include <wlccw/enums/WidsDetectedRogueReason.hpp>

#include "detail/Dictionary.hpp"

namespace WidsDetectedRogueReason {
namespace {

using wlccw::detail::Row;

constexpr std::array<Row<Reason>, 4> detected_rogue_reason_names{{
    {"fake-ssid-rogue", Reason::FAKE_SSID_ROGUE},
    {"fake-mac-rogue", Reason::FAKE_MAC_ROGUE},
    {"unspecified", Reason::UNSPECIFIED},
    {"reserved", Reason::RESERVED},
}};
static_assert(wlccw::detail::rows_in_value_order(detected_rogue_reason_names));

constexpr auto str_to_detected_rogue_reason =
    wlccw::detail::make_dictionary(detected_rogue_reason_names);

/// The reason of a text in either form (they coincide); empty for an unknown text, which is no
/// reason at all rather than a guessed one.
std::optional<Reason> from_string(std::string const& text) noexcept {
  return str_to_detected_rogue_reason.find(text);
}

} // namespace

std::optional<Reason> netconf_deserialize(std::string const& text) {
  return from_string(text);
}

std::optional<Reason> ipc_deserialize(std::string const& text) {
  return from_string(text);
}

std::string to_str(Reason reason) {
  return wlccw::detail::text_or_empty(detected_rogue_reason_names, reason);
}

std::string ipc_serialize(Reason reason) {
  return to_str(reason);
}

} // namespace WidsDetectedRogueReason
