// The rows of the link-state and duplex texts that the interface and Ethernet port records read and
// write. Each record's source builds its own lookup from these rows.
#pragma once

#include "detail/Dictionary.hpp"

#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>

#include <array>

namespace wlccw::detail {

inline constexpr std::array<Row<WLCBT_OPERSTATE>, 7> operstate_rows{{
    {"up", WLCBT_OPERSTATE::UP},
    {"down", WLCBT_OPERSTATE::DOWN},
    {"unknown", WLCBT_OPERSTATE::UNKNOWN},
    {"notpresent", WLCBT_OPERSTATE::NOTPRESENT},
    {"lowerlayerdown", WLCBT_OPERSTATE::LOWERLAYERDOWN},
    {"testing", WLCBT_OPERSTATE::TESTING},
    {"dormant", WLCBT_OPERSTATE::DORMANT},
}};
static_assert(rows_in_value_order(operstate_rows));

inline constexpr std::array<Row<WLCBT_DUPLEX_MODE>, 3> duplex_rows{{
    {"half", WLCBT_DUPLEX_MODE::HALF},
    {"full", WLCBT_DUPLEX_MODE::FULL},
    {"unavailable", WLCBT_DUPLEX_MODE::UNAVAILABLE},
}};
static_assert(rows_in_value_order(duplex_rows));

} // namespace wlccw::detail
