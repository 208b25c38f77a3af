// ClientMacAuthEventType: the outcome of MAC authentication: "fail" in IPC, "failed" in NETCONF;
// an IPC text that cannot be read is a failure, never a success.
#include <wlccw/enums/ClientMacAuthEventType.hpp>

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
using E = ClientMacAuthEventType;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 2> rows{{
    {E::SUCCESS, "success", "success"},
    {E::FAIL, "fail", "failed"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(
    std::is_same_v<decltype(client_mac_auth_event_type_from_netconf_str(std::string_view())),
                   std::optional<E>>);
static_assert(
    std::is_same_v<decltype(client_mac_auth_event_type_from_ipc_str(std::string_view())), E>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(E{})), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_mac_auth_event_type_from_netconf_str(text);
}
E from_ipc(std::string_view text) {
  return client_mac_auth_event_type_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(value);
}

TEST(ClientMacAuthEventType, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientMacAuthEventType, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientMacAuthEventType, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthEventType, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthEventType, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthEventType, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientMacAuthEventType, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientMacAuthEventType, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientMacAuthEventType, IpcParserGivesFailForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, E::FAIL);
}

TEST(ClientMacAuthEventType, IpcParserGivesFailForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, E::FAIL);
}

TEST(ClientMacAuthEventType, IpcParserGivesFailForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, E::FAIL);
}

TEST(ClientMacAuthEventType, IpcParserGivesFailForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, E::FAIL);
}

TEST(ClientMacAuthEventType, IpcParserGivesFailForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, E::FAIL);
}

TEST(ClientMacAuthEventType, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientMacAuthEventType, ConverterWritesEmptyTextForValuesOutsideTheTable) {
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(value), "") << number(value);
  }
}

TEST(ClientMacAuthEventType, FailIsTheIpcTextAndFailedTheNetconfText) {
  EXPECT_EQ(client_mac_auth_event_type_from_netconf_str("fail"), std::nullopt);
  EXPECT_EQ(client_mac_auth_event_type_from_netconf_str("failed"), E::FAIL);
  EXPECT_EQ(client_mac_auth_event_type_from_ipc_str("fail"), E::FAIL);
  EXPECT_EQ(convert_to_ipc_str(E::FAIL), "fail");
}

// "failed" is no IPC text: it gives FAIL only because every unknown text does, as an empty or a
// made-up text shows.
TEST(ClientMacAuthEventType, IpcParserGivesFailForFailedOnlyThroughTheDefault) {
  EXPECT_EQ(client_mac_auth_event_type_from_ipc_str("failed"), E::FAIL);
  EXPECT_EQ(number(client_mac_auth_event_type_from_ipc_str("failed")), 1);
  EXPECT_EQ(client_mac_auth_event_type_from_ipc_str(""), E::FAIL);
  EXPECT_EQ(client_mac_auth_event_type_from_ipc_str("made-up"), E::FAIL);
  EXPECT_NE(convert_to_ipc_str(E::FAIL), "failed");
}

TEST(ClientMacAuthEventType, UnreadableOutcomeIsAFailureNeverASuccess) {
  for (std::string_view text :
       {"", "Success", "SUCCESS", " success", "success ", "succeeded", "ok"}) {
    EXPECT_EQ(client_mac_auth_event_type_from_ipc_str(text), E::FAIL) << text;
  }
  EXPECT_EQ(client_mac_auth_event_type_from_ipc_str("success"), E::SUCCESS);
}

} // namespace
