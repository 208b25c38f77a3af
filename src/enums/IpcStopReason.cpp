#include <wlccw/enums/IpcStopReason.hpp>

#include "detail/NameTable.hpp"

// One proper name only, so the two texts are written where they are used rather than in a table.

IpcStopReason IpcStopReasonFromStrX(std::string_view text) {
  // Like the other state words, the text ends at its first NUL.
  return wlccw::detail::until_nul(text) == "REBOOT" ? IpcStopReason::REBOOT
                                                    : IpcStopReason::UNKNOWN;
}

char const* IpcStopReasonToStrX(IpcStopReason value) {
  // Every value but REBOOT, negative ones and those past UNKNOWN included, is unknown.
  return value == IpcStopReason::REBOOT ? "REBOOT" : "UNKNOWN";
}
