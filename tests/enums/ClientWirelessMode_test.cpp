// ClientWirelessMode: the 802.11 generation of a client, in its fixed non-chronological order;
// both parsers take an optional text, and an empty one is no mode.
#include <wlccw/enums/ClientWirelessMode.hpp>

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
using E = ClientWirelessMode;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 8> rows{{
    {E::AX, "ax", "ax"},
    {E::AC, "ac", "ac"},
    {E::N, "n", "n"},
    {E::G, "g", "g"},
    {E::A, "a", "a"},
    {E::B, "b", "b"},
    {E::BG, "bg", "bg"},
    {E::BE, "be", "be"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(
    std::is_same_v<decltype(client_wireless_mode_from_netconf_str(std::optional<std::string>())),
                   std::optional<E>>);
static_assert(
    std::is_same_v<decltype(client_wireless_mode_from_ipc_str(std::optional<std::string>())),
                   std::optional<E>>);
static_assert(
    std::is_same_v<decltype(convert_to_ipc_str(std::optional<E>())), std::optional<std::string>>);
// Both parsers take the optional text by value.
static_assert(std::is_same_v<decltype(client_wireless_mode_from_netconf_str),
                             std::optional<E>(std::optional<std::string>)>);
static_assert(std::is_same_v<decltype(client_wireless_mode_from_ipc_str),
                             std::optional<E>(std::optional<std::string>)>);

std::optional<E> from_netconf(std::string_view text) {
  return client_wireless_mode_from_netconf_str(std::string(text));
}
std::optional<E> from_ipc(std::string_view text) {
  return client_wireless_mode_from_ipc_str(std::string(text));
}
std::optional<std::string> to_ipc(E value) {
  return convert_to_ipc_str(std::optional<E>(value));
}

TEST(ClientWirelessMode, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientWirelessMode, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientWirelessMode, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWirelessMode, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWirelessMode, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWirelessMode, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWirelessMode, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientWirelessMode, IpcParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWirelessMode, IpcParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWirelessMode, IpcParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWirelessMode, IpcParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWirelessMode, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), std::optional<std::string>(row.ipc));
  }
}

TEST(ClientWirelessMode, ConverterGivesNothingForNoValueOrAValueOutsideTheTable) {
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>()), std::nullopt);
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(std::optional<E>(value)), std::nullopt) << number(value);
  }
}

TEST(ClientWirelessMode, EmptyOptionalGivesEmptyOptionalInBothParsers) {
  EXPECT_EQ(client_wireless_mode_from_ipc_str(std::nullopt), std::nullopt);
  EXPECT_EQ(client_wireless_mode_from_netconf_str(std::nullopt), std::nullopt);
  EXPECT_EQ(client_wireless_mode_from_ipc_str(std::optional<std::string>()), std::nullopt);
}

TEST(ClientWirelessMode, OptionalHoldingEmptyTextIsNoMode) {
  EXPECT_EQ(client_wireless_mode_from_ipc_str(std::optional<std::string>("")), std::nullopt);
  EXPECT_EQ(client_wireless_mode_from_netconf_str(std::optional<std::string>("")), std::nullopt);
}

TEST(ClientWirelessMode, BeIsSevenAndItsUpperCaseIsUnknown) {
  std::optional<E> const mode = client_wireless_mode_from_ipc_str(std::string("be"));
  EXPECT_EQ(mode, E::BE);
  EXPECT_EQ(number(mode), std::optional<std::int32_t>(7));
  EXPECT_EQ(client_wireless_mode_from_ipc_str(std::string("BE")), std::nullopt);
  EXPECT_EQ(client_wireless_mode_from_ipc_str(std::string("Be")), std::nullopt);
  EXPECT_EQ(client_wireless_mode_from_netconf_str(std::string("BE")), std::nullopt);
}

// The order is not that of the generations: ax is 0, ac 1, n 2, and be, the newest, is last.
TEST(ClientWirelessMode, OrderIsFixedAndNotChronological) {
  EXPECT_EQ(number(E::AX), 0);
  EXPECT_EQ(number(E::AC), 1);
  EXPECT_EQ(number(E::N), 2);
  EXPECT_EQ(number(E::BG), 6);
  EXPECT_EQ(number(E::BE), 7);
  EXPECT_EQ(to_ipc(static_cast<E>(0)), "ax");
  EXPECT_EQ(to_ipc(static_cast<E>(7)), "be");
}

} // namespace
