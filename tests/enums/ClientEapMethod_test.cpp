// ClientEapMethod: the EAP method of a client: optional in every direction; "eap_md5" in IPC,
// "EAP-MD5" in NETCONF.
#include <wlccw/enums/ClientEapMethod.hpp>

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
using E = ClientEapMethod;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 22> rows{{
    {E::EAP_MD5, "eap_md5", "EAP-MD5"},       {E::EAP_OTP, "eap_otp", "EAP-OTP"},
    {E::EAP_GTC, "eap_gtc", "EAP-GTC"},       {E::EAP_TLS, "eap_tls", "EAP-TLS"},
    {E::EAP_LEAP, "eap_leap", "EAP-LEAP"},    {E::EAP_SIM, "eap_sim", "EAP-SIM"},
    {E::EAP_TTLS, "eap_ttls", "EAP-TTLS"},    {E::EAP_AKA, "eap_aka", "EAP-AKA"},
    {E::EAP_PEAP, "eap_peap", "EAP-PEAP"},    {E::EAP_MSCHAPV2, "eap_mschapv2", "EAP-MSCHAPV2"},
    {E::EAP_TLV, "eap_tlv", "EAP-TLV"},       {E::EAP_TNC, "eap_tnc", "EAP-TNC"},
    {E::EAP_FAST, "eap_fast", "EAP-FAST"},    {E::EAP_PAX, "eap_pax", "EAP-PAX"},
    {E::EAP_PSK, "eap_psk", "EAP-PSK"},       {E::EAP_SAKE, "eap_sake", "EAP-SAKE"},
    {E::EAP_IKEV2, "eap_ikev2", "EAP-IKEV2"}, {E::EAP_AKA_PRIME, "eap_aka_prime", "EAP-AKA-PRIME"},
    {E::EAP_GPSK, "eap_gpsk", "EAP-GPSK"},    {E::EAP_PWD, "eap_pwd", "EAP-PWD"},
    {E::EAP_EKE, "eap_eke", "EAP-EKE"},       {E::EAP_TEAP, "eap_teap", "EAP-TEAP"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(std::is_same_v<decltype(client_eap_method_from_netconf_str(std::string_view())),
                             std::optional<E>>);
static_assert(
    std::is_same_v<decltype(client_eap_method_from_ipc_str(std::string_view())), std::optional<E>>);
static_assert(
    std::is_same_v<decltype(convert_to_ipc_str(std::optional<E>())), std::optional<std::string>>);

std::optional<E> from_netconf(std::string_view text) {
  return client_eap_method_from_netconf_str(text);
}
std::optional<E> from_ipc(std::string_view text) {
  return client_eap_method_from_ipc_str(text);
}
std::optional<std::string> to_ipc(E value) {
  return convert_to_ipc_str(std::optional<E>(value));
}

TEST(ClientEapMethod, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(ClientEapMethod, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(ClientEapMethod, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientEapMethod, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientEapMethod, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientEapMethod, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(ClientEapMethod, NetconfParserGivesNothingForIpcText) {
  expect_all_fall_back(other_form(netconf_column(rows), ipc_column(rows)), from_netconf,
                       std::nullopt);
}

TEST(ClientEapMethod, IpcParserReadsEveryRow) {
  expect_parses(ipc_column(rows), from_ipc);
}

TEST(ClientEapMethod, IpcParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientEapMethod, IpcParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientEapMethod, IpcParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientEapMethod, IpcParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(ipc_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientEapMethod, IpcParserGivesNothingForNetconfText) {
  expect_all_fall_back(other_form(ipc_column(rows), netconf_column(rows)), from_ipc, std::nullopt);
}

TEST(ClientEapMethod, ConverterWritesTheIpcTextOfEveryRow) {
  for (TableRow<E> const& row : rows) {
    EXPECT_EQ(to_ipc(row.value), std::optional<std::string>(row.ipc));
  }
}

TEST(ClientEapMethod, ConverterGivesNothingForNoValueOrAValueOutsideTheTable) {
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>()), std::nullopt);
  for (E value : out_of_range<E>(rows.size())) {
    EXPECT_EQ(convert_to_ipc_str(std::optional<E>(value)), std::nullopt) << number(value);
  }
}

TEST(ClientEapMethod, NetconfTextParsesInItsExactCaseAndOnlyThroughTheNetconfParser) {
  EXPECT_EQ(client_eap_method_from_netconf_str("EAP-MD5"), E::EAP_MD5);
  EXPECT_EQ(number(E::EAP_MD5), 0);
  for (std::string_view text : {"eap-md5", "Eap-Md5", "EAP_MD5", "eap_md5", "EAP-md5", "EAPMD5"}) {
    EXPECT_EQ(client_eap_method_from_netconf_str(text), std::nullopt) << text;
  }
  EXPECT_EQ(client_eap_method_from_ipc_str("eap_md5"), E::EAP_MD5);
  EXPECT_EQ(client_eap_method_from_ipc_str("EAP-MD5"), std::nullopt);
}

TEST(ClientEapMethod, AkaPrimeKeepsItsUnderscoreInIpcAndItsHyphenInNetconf) {
  EXPECT_EQ(client_eap_method_from_ipc_str("eap_aka_prime"), E::EAP_AKA_PRIME);
  EXPECT_EQ(client_eap_method_from_netconf_str("EAP-AKA-PRIME"), E::EAP_AKA_PRIME);
  EXPECT_EQ(client_eap_method_from_netconf_str("EAP-AKA_PRIME"), std::nullopt);
  EXPECT_EQ(client_eap_method_from_ipc_str("eap_aka-prime"), std::nullopt);
  EXPECT_EQ(convert_to_ipc_str(std::optional<E>(E::EAP_AKA_PRIME)), "eap_aka_prime");
}

} // namespace
