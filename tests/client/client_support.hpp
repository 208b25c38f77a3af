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

/// Empties the members that a record without statistics does not carry in its IPC form:
/// authentication states and uptimes, multi-link data and ciphers.
inline void drop_members_cut_off_without_statistics(APClientData& record) {
  record.eap_method.reset();
  record.mac_auth_status.reset();
  record.portal_auth_status.reset();
  record.wlan_auth_status.reset();
  record.wlan_auth_method.reset();
  record.auth_algorithm.reset();
  record.wlan_auth_uptime.reset();
  record.mac_auth_uptime.reset();
  record.portal_auth_uptime.reset();
  record.mlo.reset();
  record.encryption_cipher.reset();
  record.encryption_group_cipher.reset();
}

} // namespace wlccw::test
