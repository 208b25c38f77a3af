// ClientMacAuthReason: why MAC authentication did not succeed: optional parsers, and a converter
// that takes an optional and gives a plain text, "" when there is none.
#include <wlccw/enums/ClientMacAuthReason.hpp>
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
using E = ClientMacAuthReason;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 3> rows{{
    {E::RADIUS_REJECT, "radius_reject", "radius-reject"},
    {E::RADIUS_TIMED_OUT, "radius_timed_out", "radius-timed-out"},
    {E::RADIUS_REDIRECT, "radius_redirect", "radius-redirect"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_mac_auth_reason_from_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(client_mac_auth_reason_from_ipc_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(std::optional<E>())), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_mac_auth_reason_from_netconf_str(text);
}
std::optional<E> from_ipc(std::string_view text) {
  return client_mac_auth_reason_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(std::optional<E>(value));
}

TEST(ClientMacAuthReason, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientMacAuthReason, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientMacAuthReason, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthReason, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthReason, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthReason, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthReason, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientMacAuthReason, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientMacAuthReason, IpcParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthReason, IpcParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthReason, IpcParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthReason, IpcParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthReason, IpcParserGivesNothingForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientMacAuthReason, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientMacAuthReason, ConverterWritesEmptyTextForNoValueOrAValueOutsideTheTable) {
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>()), "");
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(std::optional<E>(value)), "") << number(value);
  }
}

TEST(ClientMacAuthReason, EmptyOptionalConvertsToEmptyTextWhereAStatusGivesAnEmptyOptional) {
  std::string const reason = convert_to_ipc_str(std::optional<E>());
  EXPECT_EQ(reason, "");
  std::optional<std::string> const status =
      convert_to_ipc_str(std::optional<ClientMacAuthStatus>());
  EXPECT_FALSE(status.has_value());
}

} // namespace
