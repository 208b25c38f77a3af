// ClientAuthAlgorithm: the 802.11 authentication algorithm: optional in every direction; the
// NETCONF parser keeps its irregular name client_auth_algorithm_netconf_str.
#include <wlccw/enums/ClientAuthAlgorithm.hpp>

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
using E = ClientAuthAlgorithm;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 8> rows{{
    {E::OPEN_SYSTEM, "open_system", "open-system"},
    {E::SHARED_KEY, "shared_key", "shared-key"},
    {E::FAST_BSS_TRANSITION, "fast_bss_transition", "fast-bss-transition"},
    {E::SAE, "sae", "sae"},
    {E::FILS_SHARED_KEY_WITHOUT_PFS, "fils_shared_key_without_pfs", "fils-shared-key-without-pfs"},
    {E::FILS_SHARED_KEY_WITH_PFS, "fils_shared_key_with_pfs", "fils-shared-key-with-pfs"},
    {E::FILS_PUBLIC_KEY, "fils_public_key", "fils-public-key"},
    {E::VENDOR_SPECIFIC, "vendor_specific", "vendor-specific"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_auth_algorithm_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(client_auth_algorithm_from_ipc_str(std::string_view())),
                             std::optional<E>>);
static_assert(
    std::is_same_v<decltype(convert_to_ipc_str(std::optional<E>())), std::optional<std::string>>);

std::optional<E> from_netconf(std::string_view text) {
  return client_auth_algorithm_netconf_str(text);
}
std::optional<E> from_ipc(std::string_view text) {
  return client_auth_algorithm_from_ipc_str(text);
}
std::optional<std::string> to_ipc(E value) {
  return convert_to_ipc_str(std::optional<E>(value));
}

TEST(ClientAuthAlgorithm, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientAuthAlgorithm, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientAuthAlgorithm, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientAuthAlgorithm, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientAuthAlgorithm, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientAuthAlgorithm, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientAuthAlgorithm, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientAuthAlgorithm, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientAuthAlgorithm, IpcParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientAuthAlgorithm, IpcParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientAuthAlgorithm, IpcParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientAuthAlgorithm, IpcParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientAuthAlgorithm, IpcParserGivesNothingForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientAuthAlgorithm, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), std::optional<std::string>(row.ipc));
  }
}

TEST(ClientAuthAlgorithm, ConverterGivesNothingForNoValueOrAValueOutsideTheTable) {
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>()), std::nullopt);
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(std::optional<E>(value)), std::nullopt) << number(value);
  }
}

TEST(ClientAuthAlgorithm, NetconfParserHasNoFromInItsName) {
  EXPECT_EQ(client_auth_algorithm_netconf_str("sae"), E::SAE);
  EXPECT_EQ(client_auth_algorithm_netconf_str("fils-shared-key-without-pfs"),
            E::FILS_SHARED_KEY_WITHOUT_PFS);
  EXPECT_EQ(client_auth_algorithm_netconf_str("fils-shared-key-with-pfs"),
            E::FILS_SHARED_KEY_WITH_PFS);
}

} // namespace
