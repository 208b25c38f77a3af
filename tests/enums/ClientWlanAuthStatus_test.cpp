// ClientWlanAuthStatus: the state of WLAN authentication: "authenticated" in IPC is "authorized"
// in NETCONF; optional in every direction.
#include <wlccw/enums/ClientWlanAuthStatus.hpp>

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
using E = ClientWlanAuthStatus;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 3> rows{{
    {E::AUTHENTICATED, "authenticated", "authorized"},
    {E::UNAUTHENTICATED, "unauthenticated", "unauthorized"},
    {E::PENDING, "pending", "pending"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_wlan_auth_status_from_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(client_wlan_auth_status_from_ipc_str(std::string_view())),
                             std::optional<E>>);
static_assert(
    std::is_same_v<decltype(convert_to_ipc_str(std::optional<E>())), std::optional<std::string>>);

std::optional<E> from_netconf(std::string_view text) {
  return client_wlan_auth_status_from_netconf_str(text);
}
std::optional<E> from_ipc(std::string_view text) {
  return client_wlan_auth_status_from_ipc_str(text);
}
std::optional<std::string> to_ipc(E value) {
  return convert_to_ipc_str(std::optional<E>(value));
}

TEST(ClientWlanAuthStatus, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientWlanAuthStatus, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientWlanAuthStatus, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthStatus, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthStatus, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthStatus, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthStatus, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientWlanAuthStatus, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientWlanAuthStatus, IpcParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthStatus, IpcParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthStatus, IpcParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthStatus, IpcParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthStatus, IpcParserGivesNothingForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthStatus, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), std::optional<std::string>(row.ipc));
  }
}

TEST(ClientWlanAuthStatus, ConverterGivesNothingForNoValueOrAValueOutsideTheTable) {
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>()), std::nullopt);
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(std::optional<E>(value)), std::nullopt) << number(value);
  }
}

TEST(ClientWlanAuthStatus, AuthorizedIsTheNetconfTextAndAuthenticatedTheIpcTextOfValueZero) {
  EXPECT_EQ(number(E::AUTHENTICATED), 0);
  EXPECT_EQ(client_wlan_auth_status_from_netconf_str("authorized"), E::AUTHENTICATED);
  EXPECT_EQ(client_wlan_auth_status_from_ipc_str("authenticated"), E::AUTHENTICATED);
  EXPECT_EQ(client_wlan_auth_status_from_ipc_str("authorized"), std::nullopt);
  EXPECT_EQ(client_wlan_auth_status_from_netconf_str("authenticated"), std::nullopt);
  EXPECT_EQ(client_wlan_auth_status_from_netconf_str("unauthorized"), E::UNAUTHENTICATED);
  EXPECT_EQ(client_wlan_auth_status_from_ipc_str("unauthorized"), std::nullopt);
  EXPECT_EQ(client_wlan_auth_status_from_netconf_str("unauthenticated"), std::nullopt);
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>(E::AUTHENTICATED)), "authenticated");
}

} // namespace
