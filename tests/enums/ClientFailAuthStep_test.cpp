// ClientFailAuthStep: the step at which authentication failed: a plain value, an IPC parser that
// defaults to UNSPECIFIED (11), not to the first step.
#include <wlccw/enums/ClientFailAuthStep.hpp>

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
using E = ClientFailAuthStep;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 12> rows{{
    {E::OPEN_SYS_AUTH, "open_sys_auth", "open-sys-auth"},
    {E::ASSOCIATION, "association", "association"},
    {E::RE_ASSOCIATION, "re_association", "re-association"},
    {E::ACL_RADIUS, "acl_radius", "acl-radius"},
    {E::FOUR_WAY_HANDSHAKE, "4_way_handshake", "4-way-handshake"},
    {E::SAE_HANDSHAKE, "sae_handshake", "sae-handshake"},
    {E::ROAMING_HANDSHAKE, "roaming_handshake", "roaming-handshake"},
    {E::ACL_LOCAL, "acl_local", "acl-local"},
    {E::EAP, "eap", "eap"},
    {E::TLS, "tls", "tls"},
    {E::IEEE_8021X_UNSPECIFIED, "8021x_unspecified", "8021x-unspecified"},
    {E::UNSPECIFIED, "unspecified", "unspecified"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_fail_auth_step_from_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(std::is_same_v<decltype(client_fail_auth_step_from_ipc_str(std::string_view())), E>);
static_assert(std::is_same_v<decltype(convert_to_ipc_str(E{})), std::string>);

std::optional<E> from_netconf(std::string_view text) {
  return client_fail_auth_step_from_netconf_str(text);
}
E from_ipc(std::string_view text) {
  return client_fail_auth_step_from_ipc_str(text);
}
std::string to_ipc(E value) {
  return convert_to_ipc_str(value);
}

TEST(ClientFailAuthStep, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientFailAuthStep, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientFailAuthStep, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailAuthStep, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailAuthStep, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailAuthStep, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientFailAuthStep, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientFailAuthStep, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientFailAuthStep, IpcParserGivesUnspecifiedForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, E::UNSPECIFIED);
}

TEST(ClientFailAuthStep, IpcParserGivesUnspecifiedForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, E::UNSPECIFIED);
}

TEST(ClientFailAuthStep, IpcParserGivesUnspecifiedForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, E::UNSPECIFIED);
}

TEST(ClientFailAuthStep, IpcParserGivesUnspecifiedForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, E::UNSPECIFIED);
}

TEST(ClientFailAuthStep, IpcParserGivesUnspecifiedForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc,
                       E::UNSPECIFIED);
}

TEST(ClientFailAuthStep, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), row.ipc);
  }
}

TEST(ClientFailAuthStep, ConverterWritesEmptyTextForValuesOutsideTheTable) {
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(value), "") << number(value);
  }
}

TEST(ClientFailAuthStep, IpcParserGivesUnspecifiedElevenForEmptyText) {
  E const step = client_fail_auth_step_from_ipc_str("");
  EXPECT_EQ(step, E::UNSPECIFIED);
  EXPECT_EQ(number(step), 11);
}

TEST(ClientFailAuthStep, UnreadableStepIsUnspecifiedNeverTheFirstStep) {
  EXPECT_NE(client_fail_auth_step_from_ipc_str("bogus"), E::OPEN_SYS_AUTH);
  EXPECT_EQ(client_fail_auth_step_from_ipc_str("bogus"), E::UNSPECIFIED);
  EXPECT_EQ(client_fail_auth_step_from_ipc_str("open_sys_auth"), E::OPEN_SYS_AUTH);
  // The 802.1X step of its own is not the general one.
  EXPECT_EQ(client_fail_auth_step_from_ipc_str("8021x_unspecified"), E::IEEE_8021X_UNSPECIFIED);
  EXPECT_EQ(client_fail_auth_step_from_ipc_str("4_way_handshake"), E::FOUR_WAY_HANDSHAKE);
}

} // namespace
