// ClientMacAuthStatus: the state of MAC authentication: "authenticated" in IPC is "authorized"
// in NETCONF; optional in every direction.
#include <wlccw/enums/ClientMacAuthStatus.hpp>

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
using E = ClientMacAuthStatus;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 4> rows{{
    {E::AUTHENTICATED, "authenticated", "authorized"},
    {E::UNAUTHENTICATED, "unauthenticated", "unauthorized"},
    {E::PENDING, "pending", "pending"},
    {E::NOT_REQUIRED, "not_required", "not-required"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_mac_auth_status_from_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(client_mac_auth_status_from_ipc_str(std::string_view())),
                             std::optional<E>>);
static_assert(
    std::is_same_v<decltype(convert_to_ipc_str(std::optional<E>())), std::optional<std::string>>);

std::optional<E> from_netconf(std::string_view text) {
  return client_mac_auth_status_from_netconf_str(text);
}
std::optional<E> from_ipc(std::string_view text) {
  return client_mac_auth_status_from_ipc_str(text);
}
std::optional<std::string> to_ipc(E value) {
  return convert_to_ipc_str(std::optional<E>(value));
}

TEST(ClientMacAuthStatus, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientMacAuthStatus, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientMacAuthStatus, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthStatus, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthStatus, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthStatus, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthStatus, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientMacAuthStatus, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientMacAuthStatus, IpcParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthStatus, IpcParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthStatus, IpcParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthStatus, IpcParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthStatus, IpcParserGivesNothingForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthStatus, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), std::optional<std::string>(row.ipc));
  }
}

TEST(ClientMacAuthStatus, ConverterGivesNothingForNoValueOrAValueOutsideTheTable) {
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>()), std::nullopt);
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(std::optional<E>(value)), std::nullopt) << number(value);
  }
}

TEST(ClientMacAuthStatus, AuthorizedIsTheNetconfTextAndAuthenticatedTheIpcTextOfValueZero) {
  EXPECT_EQ(number(E::AUTHENTICATED), 0);
  EXPECT_EQ(client_mac_auth_status_from_netconf_str("authorized"), E::AUTHENTICATED);
  EXPECT_EQ(client_mac_auth_status_from_ipc_str("authenticated"), E::AUTHENTICATED);
  EXPECT_EQ(client_mac_auth_status_from_ipc_str("authorized"), std::nullopt);
  EXPECT_EQ(client_mac_auth_status_from_netconf_str("authenticated"), std::nullopt);
  EXPECT_EQ(client_mac_auth_status_from_netconf_str("unauthorized"), E::UNAUTHENTICATED);
  EXPECT_EQ(client_mac_auth_status_from_ipc_str("unauthorized"), std::nullopt);
  EXPECT_EQ(client_mac_auth_status_from_netconf_str("unauthenticated"), std::nullopt);
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>(E::AUTHENTICATED)), "authenticated");
}

TEST(ClientMacAuthStatus, EmptyOptionalConvertsToEmptyOptionalNotToEmptyText) {
  std::optional<std::string> const text = convert_to_ipc_str(std::optional<E>());
  EXPECT_FALSE(text.has_value());
}

} // namespace
