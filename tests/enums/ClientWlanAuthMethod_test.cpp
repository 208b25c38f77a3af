// ClientWlanAuthMethod: the security of the client's WLAN: lower case in IPC, capitalised in
// NETCONF and on the command line; optional in every direction.
#include <wlccw/enums/ClientWlanAuthMethod.hpp>

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
using E = ClientWlanAuthMethod;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 8> rows{{
    {E::OPEN, "open", "Open"},
    {E::WPA, "wpa", "WPA"},
    {E::WPA2, "wpa2", "WPA2"},
    {E::WPA3, "wpa3", "WPA3"},
    {E::WPA_ENTERPRISE, "wpa_enterprise", "WPA-Enterprise"},
    {E::WPA2_ENTERPRISE, "wpa2_enterprise", "WPA2-Enterprise"},
    {E::WPA3_ENTERPRISE, "wpa3_enterprise", "WPA3-Enterprise"},
    {E::OWE, "owe", "OWE"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_wlan_auth_method_from_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(client_wlan_auth_method_from_ipc_str(std::string_view())),
                             std::optional<E>>);
static_assert(
    std::is_same_v<decltype(convert_to_ipc_str(std::optional<E>())), std::optional<std::string>>);

std::optional<E> from_netconf(std::string_view text) {
  return client_wlan_auth_method_from_netconf_str(text);
}
std::optional<E> from_ipc(std::string_view text) {
  return client_wlan_auth_method_from_ipc_str(text);
}
std::optional<std::string> to_ipc(E value) {
  return convert_to_ipc_str(std::optional<E>(value));
}

TEST(ClientWlanAuthMethod, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientWlanAuthMethod, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientWlanAuthMethod, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthMethod, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthMethod, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthMethod, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientWlanAuthMethod, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientWlanAuthMethod, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientWlanAuthMethod, IpcParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthMethod, IpcParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthMethod, IpcParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthMethod, IpcParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthMethod, IpcParserGivesNothingForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientWlanAuthMethod, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), std::optional<std::string>(row.ipc));
  }
}

TEST(ClientWlanAuthMethod, ConverterGivesNothingForNoValueOrAValueOutsideTheTable) {
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>()), std::nullopt);
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(std::optional<E>(value)), std::nullopt) << number(value);
  }
}

TEST(ClientWlanAuthMethod, CommandLineNameIsTheNetconfTextOfEveryRow) {
  static_assert(std::is_same_v<decltype(convert_to_clish_str(std::optional<E>())), std::string>);
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(convert_to_clish_str(row.value), row.netconf);
  }
}

TEST(ClientWlanAuthMethod, CommandLineNameOfFiveIsWpa2Enterprise) {
  EXPECT_EQ(convert_to_clish_str(static_cast<E>(5)), "WPA2-Enterprise");
}

TEST(ClientWlanAuthMethod, CommandLineNameOfNoValueOrAValueOutsideTheTableIsEmpty) {
  EXPECT_EQ(convert_to_clish_str(std::nullopt), "");
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_clish_str(value), "") << number(value);
  }
}

} // namespace
