/// \file
/// A signal metric measured per antenna (RSSI, SNR): the readings of every antenna, an overall
/// value the source may report instead, and the floor below which no reading is stored.
#pragma once

#include <algorithm>
#include <optional>
#include <vector>

/// The readings of one signal metric over a client's antennas.
///
/// Store compares a new reading with the floor (std::greater: the floor wins when it is greater);
/// Select picks the representative reading (std::less: the smallest, i.e. the weakest antenna).
template <typename Store, typename Select> class AntennaSignalMetrics {
public:
  /// One reading per antenna (or reported chain), in the order added.
  std::vector<int> values;
  /// A single overall value supplied by the source; wins over values.
  std::optional<int> reported;
  /// The lowest storable reading, and the value when nothing is known.
  int floor = 0;

  /// Appends a reading, raised to the floor if it lies below it (with Store = std::greater).
  void add(int reading) { values.push_back(Store{}(floor, reading) ? floor : reading); }

  /// The reported value if there is one; otherwise the selected reading (the first of equal
  /// ones), or the floor when there is none.
  int get_signal() const {
    if (reported) {
      return *reported;
    }
    if (values.empty()) {
      return floor;
    }
    return *std::min_element(values.begin(), values.end(), Select{});
  }

  /// Equal when the readings (in order), the reported values and the floors are equal.
  friend bool operator==(AntennaSignalMetrics const& a, AntennaSignalMetrics const& b) {
    return a.values == b.values && a.reported == b.reported && a.floor == b.floor;
  }
};
