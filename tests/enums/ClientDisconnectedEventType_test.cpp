// ClientDisconnectedEventType: the event that disconnected a client: a plain value, an IPC parser
// that defaults to SEND_DISASSOC, a NETCONF parser that returns an optional.
#include <wlccw/enums/ClientDisconnectedEventType.hpp>

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
using E = ClientDisconnectedEventType;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 10> rows{{
    {E::SEND_DISASSOC, "send_disassoc", "send-disassoc"},
    {E::RECV_DISASSOC, "recv_disassoc", "recv-disassoc"},
    {E::SEND_DEAUTH, "send_deauth", "send-deauth"},
    {E::RECV_DEAUTH, "recv_deauth", "recv-deauth"},
    {E::WDS_SEND_DISCONNECT, "wds_send_disconnect", "wds-send-disconnect"},
    {E::WDS_RECV_DISCONNECT, "wds_recv_disconnect", "wds-recv-disconnect"},
    {E::POLLING_EVENT, "polling_event", "polling-event"},
    {E::POLLING_STA_EVENT, "polling_sta_event", "polling-sta-event"},
    {E::REASSOC, "reassoc", "reassoc"},
    {E::DISASSOC, "disassoc", "disassoc"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(
    std::is_same_v<decltype(client_disconnected_event_type_from_netconf_str(std::string_view())),
                   std::optional<E>>);
static_assert(
    std::is_same_v<decltype(client_disconnected_event_type_from_ipc_str(std::string_view())), E>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(E{})), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_disconnected_event_type_from_netconf_str(text);
}
E from_ipc(std::string_view text) {
  return client_disconnected_event_type_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(value);
}

TEST(ClientDisconnectedEventType, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientDisconnectedEventType, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientDisconnectedEventType, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientDisconnectedEventType, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientDisconnectedEventType, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientDisconnectedEventType, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientDisconnectedEventType, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientDisconnectedEventType, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientDisconnectedEventType, IpcParserGivesSendDisassocForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientDisconnectedEventType, IpcParserGivesSendDisassocForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientDisconnectedEventType, IpcParserGivesSendDisassocForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientDisconnectedEventType, IpcParserGivesSendDisassocForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientDisconnectedEventType, IpcParserGivesSendDisassocForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc,
                       E::SEND_DISASSOC);
}

TEST(ClientDisconnectedEventType, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientDisconnectedEventType, ConverterWritesEmptyTextForValuesOutsideTheTable) {
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(value), "") << number(value);
  }
}

} // namespace
