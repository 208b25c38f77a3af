// The two IPC directions of every client enumeration agree: the text a value converts to parses
// back to that value, every value of the table has a text of its own, and no value past the table
// has one. AuthPortalClientStatus, which the controller only reads from an AP, has no IPC form.
#include <wlccw/enums/AuthPortalClientStatus.hpp>
#include <wlccw/enums/ClientAuthAlgorithm.hpp>
#include <wlccw/enums/ClientConnectedEventType.hpp>
#include <wlccw/enums/ClientCportalEventType.hpp>
#include <wlccw/enums/ClientDisconnectedEventType.hpp>
#include <wlccw/enums/ClientEapMethod.hpp>
#include <wlccw/enums/ClientFailAuthStep.hpp>
#include <wlccw/enums/ClientFailEventType.hpp>
#include <wlccw/enums/ClientIpChangedEventType.hpp>
#include <wlccw/enums/ClientMacAuthEventType.hpp>
#include <wlccw/enums/ClientMacAuthReason.hpp>
#include <wlccw/enums/ClientMacAuthStatus.hpp>
#include <wlccw/enums/ClientPortalAuthStatus.hpp>
#include <wlccw/enums/ClientRoamingEventType.hpp>
#include <wlccw/enums/ClientWirelessMode.hpp>
#include <wlccw/enums/ClientWlanAuthMethod.hpp>
#include <wlccw/enums/ClientWlanAuthStatus.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

template <typename E> std::optional<std::int32_t> number(E value) {
  return static_cast<std::int32_t>(value);
}
template <typename E> std::optional<std::int32_t> number(std::optional<E> const& value) {
  if (!value) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(*value);
}

/// The text of a converter's result: itself, or "" for an empty optional.
std::string text_of(std::string const& text) {
  return text;
}
std::string text_of(std::optional<std::string> const& text) {
  return text.value_or("");
}

/// The IPC text of a value through the overload that takes it: the value itself for the event
/// types, an optional of it for the others.
template <typename E> std::string ipc_text(E value) {
  if constexpr (std::is_same_v<decltype(convert_to_ipc_str(value)), std::string>) {
    return text_of(convert_to_ipc_str(value));
  } else {
    return text_of(convert_to_ipc_str(std::optional<E>(value)));
  }
}

/// For the n values of a table: each converts to a non-empty text of its own, that text parses
/// back to the value, and the value parsed converts back to the same text; the value past the
/// table converts to no text.
template <typename E, typename Parse> void expect_round_trip(std::size_t n, Parse parse) {
  std::set<std::string> texts;
  for (std::size_t i = 0; i < n; ++i) {
    auto const value = static_cast<E>(i);
    std::string const text = ipc_text(value);
    ASSERT_FALSE(text.empty()) << "value " << i;
    EXPECT_TRUE(texts.insert(text).second) << "two values write " << text;
    auto const parsed = parse(std::string_view(text));
    EXPECT_EQ(number(parsed), number(value)) << text;
    if (number(parsed) == number(value)) {
      EXPECT_EQ(ipc_text(static_cast<E>(*number(parsed))), text);
    }
  }
  EXPECT_EQ(ipc_text(static_cast<E>(n)), "") << "value " << n;
}

/// A text with a blank before or after it is not the text: the parser gives its fallback.
template <typename E, typename Parse, typename Fallback>
void expect_blank_padded_text_unknown(std::size_t n, Parse parse, Fallback fallback) {
  for (std::size_t i = 0; i < n; ++i) {
    std::string const text = ipc_text(static_cast<E>(i));
    for (std::string const& padded : {" " + text, text + " "}) {
      EXPECT_EQ(number(parse(std::string_view(padded))), number(fallback)) << '"' << padded << '"';
    }
  }
}

/// Whether a value of T can be converted to an IPC text, directly or as an optional.
template <typename T>
concept HasIpcConverter = requires(T value) {
  convert_to_ipc_str(value);
}
|| requires(std::optional<T> value) {
  convert_to_ipc_str(value);
};

std::optional<ClientWirelessMode> wireless_mode_from_ipc(std::string_view text) {
  return client_wireless_mode_from_ipc_str(std::string(text));
}

TEST(ClientEnumsIpcRoundTrip, ClientAuthAlgorithm) {
  expect_round_trip<ClientAuthAlgorithm>(8, client_auth_algorithm_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientConnectedEventType) {
  expect_round_trip<ClientConnectedEventType>(4, client_connected_event_type_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientCportalEventType) {
  expect_round_trip<ClientCportalEventType>(4, client_cportal_event_type_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientDisconnectedEventType) {
  expect_round_trip<ClientDisconnectedEventType>(10, client_disconnected_event_type_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientEapMethod) {
  expect_round_trip<ClientEapMethod>(22, client_eap_method_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientFailAuthStep) {
  expect_round_trip<ClientFailAuthStep>(12, client_fail_auth_step_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientFailEventType) {
  expect_round_trip<ClientFailEventType>(13, client_fail_event_type_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientIpChangedEventType) {
  expect_round_trip<ClientIpChangedEventType>(4, client_ip_changed_event_type_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientMacAuthEventType) {
  expect_round_trip<ClientMacAuthEventType>(2, client_mac_auth_event_type_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientMacAuthReason) {
  expect_round_trip<ClientMacAuthReason>(3, client_mac_auth_reason_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientMacAuthStatus) {
  expect_round_trip<ClientMacAuthStatus>(4, client_mac_auth_status_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientPortalAuthStatus) {
  expect_round_trip<ClientPortalAuthStatus>(6, client_portal_auth_status_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientRoamingEventType) {
  expect_round_trip<ClientRoamingEventType>(6, client_roaming_event_type_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientWirelessMode) {
  expect_round_trip<ClientWirelessMode>(8, wireless_mode_from_ipc);
}
TEST(ClientEnumsIpcRoundTrip, ClientWlanAuthMethod) {
  expect_round_trip<ClientWlanAuthMethod>(8, client_wlan_auth_method_from_ipc_str);
}
TEST(ClientEnumsIpcRoundTrip, ClientWlanAuthStatus) {
  expect_round_trip<ClientWlanAuthStatus>(3, client_wlan_auth_status_from_ipc_str);
}

TEST(ClientEnumsIpcRoundTrip, AuthPortalClientStatusHasNoIpcForm) {
  static_assert(!HasIpcConverter<AuthPortalClientStatus>);
  // The check above would see a converter if there were one, as it sees those of the others.
  static_assert(HasIpcConverter<ClientConnectedEventType>);
  static_assert(HasIpcConverter<ClientWlanAuthStatus>);
  // Its NETCONF texts are the only ones it reads, and they name the four values in order.
  std::size_t i = 0;
  for (std::string_view text : {"success", "failed", "clientNotFound", "portalNotEnabled"}) {
    EXPECT_EQ(number(auth_portal_client_status_from_netconf_str(text)),
              static_cast<std::int32_t>(i))
        << text;
    ++i;
  }
}

// A leading or trailing blank makes any IPC text unknown, in every IPC parser.
TEST(ClientEnumsIpcRoundTrip, ALeadingOrTrailingBlankMakesAnyTextUnknown) {
  expect_blank_padded_text_unknown<ClientAuthAlgorithm>(8, client_auth_algorithm_from_ipc_str,
                                                        std::optional<ClientAuthAlgorithm>());
  expect_blank_padded_text_unknown<ClientConnectedEventType>(
      4, client_connected_event_type_from_ipc_str, ClientConnectedEventType::ASSOC);
  expect_blank_padded_text_unknown<ClientCportalEventType>(
      4, client_cportal_event_type_from_ipc_str, ClientCportalEventType::CP_AUTH);
  expect_blank_padded_text_unknown<ClientDisconnectedEventType>(
      10, client_disconnected_event_type_from_ipc_str, ClientDisconnectedEventType::SEND_DISASSOC);
  expect_blank_padded_text_unknown<ClientEapMethod>(22, client_eap_method_from_ipc_str,
                                                    std::optional<ClientEapMethod>());
  expect_blank_padded_text_unknown<ClientFailAuthStep>(12, client_fail_auth_step_from_ipc_str,
                                                       ClientFailAuthStep::UNSPECIFIED);
  expect_blank_padded_text_unknown<ClientFailEventType>(13, client_fail_event_type_from_ipc_str,
                                                        ClientFailEventType::SEND_DISASSOC);
  expect_blank_padded_text_unknown<ClientIpChangedEventType>(
      4, client_ip_changed_event_type_from_ipc_str, ClientIpChangedEventType::IP_CHANGED_IPV4);
  expect_blank_padded_text_unknown<ClientMacAuthEventType>(
      2, client_mac_auth_event_type_from_ipc_str, ClientMacAuthEventType::FAIL);
  expect_blank_padded_text_unknown<ClientMacAuthReason>(3, client_mac_auth_reason_from_ipc_str,
                                                        std::optional<ClientMacAuthReason>());
  expect_blank_padded_text_unknown<ClientMacAuthStatus>(4, client_mac_auth_status_from_ipc_str,
                                                        std::optional<ClientMacAuthStatus>());
  expect_blank_padded_text_unknown<ClientPortalAuthStatus>(
      6, client_portal_auth_status_from_ipc_str, std::optional<ClientPortalAuthStatus>());
  expect_blank_padded_text_unknown<ClientRoamingEventType>(
      6, client_roaming_event_type_from_ipc_str, ClientRoamingEventType::AUTH_FFT_AIR);
  expect_blank_padded_text_unknown<ClientWirelessMode>(8, wireless_mode_from_ipc,
                                                       std::optional<ClientWirelessMode>());
  expect_blank_padded_text_unknown<ClientWlanAuthMethod>(8, client_wlan_auth_method_from_ipc_str,
                                                         std::optional<ClientWlanAuthMethod>());
  expect_blank_padded_text_unknown<ClientWlanAuthStatus>(3, client_wlan_auth_status_from_ipc_str,
                                                         std::optional<ClientWlanAuthStatus>());
}

} // namespace
