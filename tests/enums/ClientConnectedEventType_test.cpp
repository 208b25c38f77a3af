// ClientConnectedEventType: the event that connected a client: a plain value, an IPC parser that
// defaults to ASSOC, a NETCONF parser that returns an optional.
#include <wlccw/enums/ClientConnectedEventType.hpp>

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
using E = ClientConnectedEventType;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 4> rows{{
    {E::ASSOC, "assoc", "assoc"},
    {E::AUTH, "auth", "auth"},
    {E::WDS_CONNECTED, "wds_connected", "wds-connected"},
    {E::IEEE_8021X_SUCCESS, "8021x_success", "8021x-success"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(
    std::is_same_v<decltype(client_connected_event_type_from_netconf_str(std::string_view())),
                   std::optional<E>>);
static_assert(
    std::is_same_v<decltype(client_connected_event_type_from_ipc_str(std::string_view())), E>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(E{})), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_connected_event_type_from_netconf_str(text);
}
E from_ipc(std::string_view text) {
  return client_connected_event_type_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(value);
}

TEST(ClientConnectedEventType, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientConnectedEventType, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientConnectedEventType, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientConnectedEventType, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientConnectedEventType, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientConnectedEventType, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientConnectedEventType, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientConnectedEventType, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientConnectedEventType, IpcParserGivesAssocForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, E::ASSOC);
}

TEST(ClientConnectedEventType, IpcParserGivesAssocForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, E::ASSOC);
}

TEST(ClientConnectedEventType, IpcParserGivesAssocForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, E::ASSOC);
}

TEST(ClientConnectedEventType, IpcParserGivesAssocForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, E::ASSOC);
}

TEST(ClientConnectedEventType, IpcParserGivesAssocForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, E::ASSOC);
}

TEST(ClientConnectedEventType, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientConnectedEventType, ConverterWritesEmptyTextForValuesOutsideTheTable) {
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(value), "") << number(value);
  }
}

TEST(ClientConnectedEventType, IpcParserGivesAssocForAnyUnknownText) {
  for (std::string_view text : {"", "bogus", "connected", "AUTH", " auth", "wds-connected",
                                "8021x-success", "8021x_fail"}) {
    EXPECT_EQ(client_connected_event_type_from_ipc_str(text), E::ASSOC) << text;
  }
  EXPECT_EQ(number(E::ASSOC), 0);
  // Known texts are not swallowed by the default.
  EXPECT_EQ(client_connected_event_type_from_ipc_str("auth"), E::AUTH);
}

TEST(ClientConnectedEventType, ValueCastFromFourConvertsToEmptyText) {
  EXPECT_EQ(convert_to_ipc_str(static_cast<E>(4)), "");
}

} // namespace
