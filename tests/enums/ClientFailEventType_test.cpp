// ClientFailEventType: the event with which a connection failed: the ten disconnection events
// and three failures; a plain value, an IPC parser that defaults to SEND_DISASSOC.
#include <wlccw/enums/ClientDisconnectedEventType.hpp>
#include <wlccw/enums/ClientFailEventType.hpp>

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
using E = ClientFailEventType;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 13> rows{{
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
    {E::ASSOC_FAIL, "assoc_fail", "assoc-fail"},
    {E::AUTH_FAIL, "auth_fail", "auth-fail"},
    {E::IEEE_8021X_FAIL, "8021x_fail", "8021x-fail"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_fail_event_type_from_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(client_fail_event_type_from_ipc_str(std::string_view())), E>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(E{})), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_fail_event_type_from_netconf_str(text);
}
E from_ipc(std::string_view text) {
  return client_fail_event_type_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(value);
}

TEST(ClientFailEventType, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientFailEventType, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientFailEventType, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailEventType, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailEventType, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailEventType, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailEventType, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientFailEventType, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientFailEventType, IpcParserGivesSendDisassocForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientFailEventType, IpcParserGivesSendDisassocForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientFailEventType, IpcParserGivesSendDisassocForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientFailEventType, IpcParserGivesSendDisassocForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, E::SEND_DISASSOC);
}

TEST(ClientFailEventType, IpcParserGivesSendDisassocForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc,
                       E::SEND_DISASSOC);
}

TEST(ClientFailEventType, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientFailEventType, ConverterWritesEmptyTextForValuesOutsideTheTable) {
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(value), "") << number(value);
  }
}

TEST(ClientFailEventType, FirstTenRowsAreThoseOfTheDisconnectionEvents) {
  for (std::int32_t v = 0; v < 10; ++v) {
    std::string const text = convert_to_ipc_str(static_cast<ClientDisconnectedEventType>(v));
    ASSERT_FALSE(text.empty()) << v;
    EXPECT_EQ(convert_to_ipc_str(static_cast<E>(v)), text) << v;
    EXPECT_EQ(number(client_fail_event_type_from_ipc_str(text)), v) << text;
  }
  EXPECT_EQ(number(E::ASSOC_FAIL), 10);
  EXPECT_EQ(client_disconnected_event_type_from_ipc_str("assoc_fail"),
            ClientDisconnectedEventType::SEND_DISASSOC);
}

} // namespace
