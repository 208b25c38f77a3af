// ClientRoamingEventType: roaming events: a plain value, an IPC parser that defaults to
// AUTH_FFT_AIR, a NETCONF parser that returns an optional.
#include <wlccw/enums/ClientRoamingEventType.hpp>

#include "ClientEnumChecks.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

using namespace client_enum_checks;
using E = ClientRoamingEventType;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 6> rows{{
    {E::AUTH_FFT_AIR, "auth_fft_air", "auth-fft-air"},
    {E::AUTH_FFT_DS, "auth_fft_ds", "auth-fft-ds"},
    {E::REQUEST_RRB, "request_rrb", "request-rrb"},
    {E::REQUEST_RRB_FAIL, "request_rrb_fail", "request-rrb-fail"},
    {E::RESPONSE_RRB, "response_rrb", "response-rrb"},
    {E::STA_80211V_ROAM_ATTEMPT, "sta_80211v_roam_attempt", "sta-80211v-roam-attempt"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(
    std::is_same_v<decltype(client_roaming_event_type_from_netconf_str(std::string_view())),
                   std::optional<E>>);
static_assert(
    std::is_same_v<decltype(client_roaming_event_type_from_ipc_str(std::string_view())), E>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(E{})), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_roaming_event_type_from_netconf_str(text);
}
E from_ipc(std::string_view text) {
  return client_roaming_event_type_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(value);
}

TEST(ClientRoamingEventType, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientRoamingEventType, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientRoamingEventType, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientRoamingEventType, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientRoamingEventType, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientRoamingEventType, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientRoamingEventType, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientRoamingEventType, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientRoamingEventType, IpcParserGivesAuthFftAirForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, E::AUTH_FFT_AIR);
}

TEST(ClientRoamingEventType, IpcParserGivesAuthFftAirForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, E::AUTH_FFT_AIR);
}

TEST(ClientRoamingEventType, IpcParserGivesAuthFftAirForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, E::AUTH_FFT_AIR);
}

TEST(ClientRoamingEventType, IpcParserGivesAuthFftAirForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, E::AUTH_FFT_AIR);
}

TEST(ClientRoamingEventType, IpcParserGivesAuthFftAirForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc,
                       E::AUTH_FFT_AIR);
}

TEST(ClientRoamingEventType, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientRoamingEventType, ConverterWritesEmptyTextForValuesOutsideTheTable) {
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(value), "") << number(value);
  }
}

} // namespace
