// How the two directions of a client's statistics make one Statistics: shared by
// get_tx_rx_statistics and the NETCONF import, which reads both directions without a std::function.
#pragma once

#include <wlccw/client/APClientData.hpp>

#include <optional>
#include <utility>

namespace wlccw::detail {

/// Empty when both directions are empty; otherwise a direction that is missing is a default
/// (zeroed) Statistic, not an absent one.
inline std::optional<APClientData::Statistics>
combine_statistics(std::optional<APClientData::Statistics::Statistic>&& tx,
                   std::optional<APClientData::Statistics::Statistic>&& rx) {
  if (!tx && !rx) {
    return std::nullopt;
  }
  std::optional<APClientData::Statistics> statistics(std::in_place);
  if (tx) {
    statistics->tx = std::move(*tx);
  }
  if (rx) {
    statistics->rx = std::move(*rx);
  }
  return statistics;
}

} // namespace wlccw::detail
