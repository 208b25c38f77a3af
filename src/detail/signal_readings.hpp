// Feeding the per-antenna readings an AP reports
// (radio::signal::parse_numbered_parameters_from_netconf) to a signal metric, reading by reading
// through its add().
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace wlccw::detail {

/// Adds the readings in order with metric.add(). A reply carries at most eight numbered readings or
/// one plain one: they are added from a copy into the list they were read in, which becomes the
/// metric's, so that no allocation is made beyond the read's.
template <typename Metric> void add_readings(Metric& metric, std::vector<int>&& readings) {
  std::array<int, 8> copy{};
  if (!metric.values.empty() || readings.size() > copy.size()) {
    for (int const reading : readings) {
      metric.add(reading);
    }
    return;
  }
  std::size_t const count = readings.size();
  std::copy_n(readings.begin(), count, copy.begin());
  readings.clear();
  metric.values = std::move(readings);
  std::for_each_n(copy.begin(), count, [&metric](int reading) { metric.add(reading); });
}

} // namespace wlccw::detail
