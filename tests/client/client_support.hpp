// Helpers shared by the client record tests: sample files and small builders.
#pragma once

#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>

#include <support/samples.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace wlccw::test {

/// The bytes of a sample file under tests/data/client/.
inline std::string read_client_sample(char const* name) {
  return read_sample(std::string("client/") + name);
}

/// A client-level Statistic with every member given.
inline APClientData::Statistics::Statistic
make_statistic(std::int32_t actual_rate, std::optional<std::string> rate,
               std::optional<std::string> modulation, std::optional<std::string> rate_numeric,
               std::optional<std::string> bandwidth, std::int32_t bytes, std::int32_t packets) {
  APClientData::Statistics::Statistic statistic;
  statistic.actual_rate = actual_rate;
  statistic.rate = std::move(rate);
  statistic.modulation = std::move(modulation);
  statistic.rate_numeric = std::move(rate_numeric);
  statistic.bandwidth = std::move(bandwidth);
  statistic.bytes = bytes;
  statistic.packets = packets;
  return statistic;
}

} // namespace wlccw::test
