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

/// The address of a MAC text the test knows to be valid.
inline MacAddr mac_of(char const* text) {
  MacAddr const mac = MacAddr::from_str(text);
  EXPECT_TRUE(mac.valid) << text;
  return mac;
}

/// Multi-link data of two links with readings, rates and counters.
inline Mlo make_mlo() {
  Mlo mlo;
  mlo.mld_mac_ap = mac_of("02:00:00:00:00:01");

  Mlo::Link first;
  first.id = 1;
  first.mac = mac_of("02:00:00:00:00:11");
  first.band = radio::Band::BAND_2G;
  first.bandwidth = "20MHz";
  first.rssi.add(-50);
  first.rssi.add(-55);
  first.snr.add(20);
  first.tx.rate = "144M";
  first.tx.bytes = 10;
  first.tx.packets = 1;
  first.rx.bytes = 20;

  Mlo::Link second;
  second.id = 2;
  second.mac = mac_of("02:00:00:00:00:12");
  second.band = radio::Band::BAND_5G;
  second.rx.packets = 3;

  mlo.links = {first, second};
  return mlo;
}

/// A record with every member set, several readings per metric, both directions of statistics,
/// two links and both ciphers.
inline APClientData full_record() {
  APClientData client(mac_of("0A:1B:2C:3D:4E:5F"), "wlan1-2", "Office \"A\"");
  client.ip = "192.168.1.20";
  client.band = radio::Band::BAND_5G;
  client.vlan_id = 100;
  client.hostname = "laptop";
  client.username = "alice";
  client.domain = "corp";
  client.ap_hostname = "ap-hall";
  client.ap_location = "Hall 2";
  client.uptime = 3600;
  client.frequency = 5180;
  client.channel = 36;
  client.rssi.add(-60);
  client.rssi.add(-75);
  client.rssi.add(-40);
  client.snr.add(30);
  client.snr.add(25);
  client.authorized = true;
  client.wireless_mode = ClientWirelessMode::AX;
  client.link_quality = "good";
  client.link_quality_common = "fair";
  client.statistics = APClientData::Statistics{
      make_statistic(866, "VHT-MCS 9 NSS 2 866.7", "VHT-MCS 9 NSS 2", "866.7", "80MHz", 123456,
                     789),
      make_statistic(0, "54M", std::nullopt, std::nullopt, std::nullopt, 1000, 10)};
  client.mlo = make_mlo();
  client.wlan_auth_uptime = 120;
  client.mac_auth_uptime = 60;
  client.portal_auth_uptime = 30;
  client.eap_method = ClientEapMethod::EAP_PEAP;
  client.mac_auth_status = ClientMacAuthStatus::NOT_REQUIRED;
  client.portal_auth_status = ClientPortalAuthStatus::AUTHENTICATED;
  client.wlan_auth_status = ClientWlanAuthStatus::AUTHENTICATED;
  client.wlan_auth_method = ClientWlanAuthMethod::WPA2_ENTERPRISE;
  client.auth_algorithm = ClientAuthAlgorithm::SAE;
  client.encryption_cipher = "CCMP";
  client.encryption_group_cipher = "TKIP";
  return client;
}

} // namespace wlccw::test
