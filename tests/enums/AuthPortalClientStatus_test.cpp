// AuthPortalClientStatus: the AP's answer to a captive-portal query: camel-case NETCONF texts
// only, read into an optional.
#include <wlccw/enums/AuthPortalClientStatus.hpp>

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
using E = AuthPortalClientStatus;

// The table, written out here independently of the library's: value, IPC text, NETCONF text.
constexpr std::array<TableRow<E>, 4> rows{{
    {E::SUCCESS, "", "success"},
    {E::FAILED, "", "failed"},
    {E::CLIENT_NOT_FOUND, "", "clientNotFound"},
    {E::PORTAL_NOT_ENABLED, "", "portalNotEnabled"},
}};

// The shapes of the functions: what each takes and what it gives.
static_assert(
    std::is_same_v<decltype(auth_portal_client_status_from_netconf_str(std::string_view())),
                   std::optional<E>>);

std::optional<E> from_netconf(std::string_view text) {
  return auth_portal_client_status_from_netconf_str(text);
}

TEST(AuthPortalClientStatus, ValuesAreNumberedFromZeroInTableOrder) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(rows[i].value), static_cast<std::int32_t>(i)) << rows[i].netconf;
  }
}

TEST(AuthPortalClientStatus, NetconfParserReadsEveryRow) {
  expect_parses(netconf_column(rows), from_netconf);
}

TEST(AuthPortalClientStatus, NetconfParserGivesNothingForUnknownAndEmptyText) {
  expect_all_fall_back(unknown_texts(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(AuthPortalClientStatus, NetconfParserGivesNothingForCaseChangedText) {
  expect_all_fall_back(case_changed(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(AuthPortalClientStatus, NetconfParserGivesNothingForBlankPaddedText) {
  expect_all_fall_back(blank_padded(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(AuthPortalClientStatus, NetconfParserGivesNothingForShortenedOrLengthenedText) {
  expect_all_fall_back(altered(netconf_column(rows)), from_netconf, std::nullopt);
}

TEST(AuthPortalClientStatus, OtherSpellingsOfTheCamelCaseTextsAreUnknown) {
  for (std::string_view text : {"client_not_found", "client-not-found", "clientnotfound",
                                "ClientNotFound", "CLIENTNOTFOUND", "portal_not_enabled",
                                "portal-not-enabled", "PortalNotEnabled", "fail", "Success"}) {
    EXPECT_EQ(auth_portal_client_status_from_netconf_str(text), std::nullopt) << text;
  }
}

} // namespace
