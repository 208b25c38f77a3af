// ClientIpChangedEventType: the event through which a client's address changed: a plain value, an
// IPC parser that defaults to IP_CHANGED_IPV4.
#include <wlccw/enums/ClientIpChangedEventType.hpp>

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
using E = ClientIpChangedEventType;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 4> rows{{
    {E::IP_CHANGED_IPV4, "ip_changed_ipv4", "ip-changed-ipv4"},
    {E::IP_CHANGED_ARP, "ip_changed_arp", "ip-changed-arp"},
    {E::IP_CHANGED_DHCP, "ip_changed_dhcp", "ip-changed-dhcp"},
    {E::IP_CHANGED_ACTION, "ip_changed_action", "ip-changed-action"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(
    std::is_same_v<decltype(client_ip_changed_event_type_from_netconf_str(std::string_view())),
                   std::optional<E>>);
static_assert(
    std::is_same_v<decltype(client_ip_changed_event_type_from_ipc_str(std::string_view())), E>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(E{})), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_ip_changed_event_type_from_netconf_str(text);
}
E from_ipc(std::string_view text) {
  return client_ip_changed_event_type_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(value);
}

TEST(ClientIpChangedEventType, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientIpChangedEventType, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientIpChangedEventType, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientIpChangedEventType, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientIpChangedEventType, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientIpChangedEventType, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientIpChangedEventType, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientIpChangedEventType, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientIpChangedEventType, IpcParserGivesIpChangedIpv4ForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, E::IP_CHANGED_IPV4);
}

TEST(ClientIpChangedEventType, IpcParserGivesIpChangedIpv4ForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, E::IP_CHANGED_IPV4);
}

TEST(ClientIpChangedEventType, IpcParserGivesIpChangedIpv4ForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, E::IP_CHANGED_IPV4);
}

TEST(ClientIpChangedEventType, IpcParserGivesIpChangedIpv4ForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, E::IP_CHANGED_IPV4);
}

TEST(ClientIpChangedEventType, IpcParserGivesIpChangedIpv4ForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc,
                       E::IP_CHANGED_IPV4);
}

TEST(ClientIpChangedEventType, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientIpChangedEventType, ConverterWritesEmptyTextForValuesOutsideTheTable) {
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(value), "") << number(value);
  }
}

} // namespace
