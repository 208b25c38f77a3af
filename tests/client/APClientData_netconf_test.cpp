// The client record read from an AP's NETCONF client object: identity checks, every member's
// conversion and fallback, uptime texts, signal readings, statistics, the rate-text splitter
// (compared with the regular expression it replaces) and the cipher names.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/common/errors.hpp>

#include "detail/modulation.hpp"
#include "support/texts.hpp"

#include "client_support.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <functional>
#include <iterator>
#include <optional>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using wlccw::test::make_statistic;
using wlccw::test::parse_json;
using wlccw::test::read_client_sample;

using Statistic = APClientData::Statistics::Statistic;
using wlccw::cfg::Tree;
using wlccw::detail::cipher_from_netconf;
using wlccw::detail::ModulationPart;
using wlccw::detail::parse_modulation_data_string;

APClientData read_client(std::string const& json) {
  Tree const client = parse_json(json);
  if (!client) {
    throw std::runtime_error("test JSON does not parse");
  }
  return APClientData::from_netconf_json(client.get());
}

/// A client object with a valid identity and the given further members (JSON member text).
std::string client_with(std::string const& members) {
  std::string json = R"({"hw-addr":"a4:5e:60:c2:19:7b","interface":"wlan0-vap1","ssid":"Corp")";
  if (!members.empty()) {
    json += ",";
    json += members;
  }
  json += "}";
  return json;
}

APClientData read_client_with(std::string const& members) {
  return read_client(client_with(members));
}

/// The message of the std::invalid_argument that importing json throws; "" when none is thrown.
std::string read_client_error(std::string const& json) {
  try {
    (void)read_client(json);
  } catch (std::invalid_argument const& error) {
    return error.what();
  }
  return {};
}

std::optional<Statistic> statistic_of(std::string const& json, std::string const& direction) {
  Tree const node = parse_json(json);
  if (!node) {
    return std::nullopt;
  }
  return get_statistic_from_netconf(*node, direction);
}

// ---- Whole samples
// -------------------------------------------------------------------------------

TEST(APClientDataNetconf, FullSampleFillsEveryMember) {
  APClientData const client = read_client(read_client_sample("netconf-full.json"));

  EXPECT_EQ(client.mac.str(), "a4:5e:60:c2:19:7b");
  EXPECT_EQ(client.interface, "wlan1-vap2");
  EXPECT_EQ(client.ssid, "Corp-WiFi");
  EXPECT_TRUE(client.ip.valid);
  EXPECT_EQ(client.ip.str(), "192.168.10.57");
  EXPECT_FALSE(client.band);
  EXPECT_EQ(client.vlan_id, 210U);
  EXPECT_EQ(client.hostname, "mdupont-laptop");
  EXPECT_EQ(client.username, "mdupont");
  EXPECT_EQ(client.domain, "corp.example");
  EXPECT_FALSE(client.ap_hostname);
  EXPECT_FALSE(client.ap_location);
  EXPECT_EQ(client.uptime, 183845U);
  EXPECT_EQ(client.frequency, 5180U);
  EXPECT_EQ(client.channel, 36U);

  EXPECT_EQ(client.rssi.values, (std::vector<int>{-52, -61, -127}));
  EXPECT_EQ(client.rssi.reported, -58);
  EXPECT_EQ(client.rssi.get_signal(), -58);
  EXPECT_EQ(client.snr.values, (std::vector<int>{40, 31, 0}));
  EXPECT_EQ(client.snr.reported, 35);
  EXPECT_EQ(client.snr.get_signal(), 35);

  EXPECT_EQ(client.authorized, true);
  EXPECT_EQ(client.wireless_mode, ClientWirelessMode::BE);
  EXPECT_EQ(client.link_quality, "87%");
  EXPECT_EQ(client.link_quality_common, "good");

  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx,
            make_statistic(2400, "EHT-MCS 11 NSS 2 2882.4", "EHT-MCS 11 NSS 2", "2882.4", "160MHz",
                           18273645, 20311));
  EXPECT_EQ(client.statistics->rx, make_statistic(1800, "EHT-MCS 9 NSS 2 2161.8", "EHT-MCS 9 NSS 2",
                                                  "2161", "160MHz", 9182736, 15022));

  EXPECT_EQ(client.eap_method, ClientEapMethod::EAP_PEAP);
  EXPECT_EQ(client.mac_auth_status, ClientMacAuthStatus::AUTHENTICATED);
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::NOT_REQUIRED);
  EXPECT_EQ(client.wlan_auth_status, ClientWlanAuthStatus::AUTHENTICATED);
  EXPECT_EQ(client.wlan_auth_method, ClientWlanAuthMethod::WPA2_ENTERPRISE);
  EXPECT_EQ(client.auth_algorithm, ClientAuthAlgorithm::OPEN_SYSTEM);
  EXPECT_EQ(client.wlan_auth_uptime, 3590U);
  EXPECT_EQ(client.mac_auth_uptime, 3600U);
  EXPECT_EQ(client.portal_auth_uptime, 0U);

  ASSERT_TRUE(client.mlo);
  EXPECT_EQ(client.mlo->mld_mac_ap.str(), "02:1b:2c:3d:4e:50");
  ASSERT_EQ(client.mlo->links.size(), 2U);
  EXPECT_EQ(client.mlo->links[0].id, 1);
  EXPECT_EQ(client.mlo->links[0].mac.str(), "a4:5e:60:c2:19:7c");
  EXPECT_EQ(client.mlo->links[0].band, radio::Band::BAND_5G);
  EXPECT_EQ(client.mlo->links[0].tx.bytes, 12000000);
  EXPECT_EQ(client.mlo->links[1].id, 2);
  EXPECT_EQ(client.mlo->links[1].band, radio::Band::BAND_6G);
  EXPECT_EQ(client.mlo->links[1].rx.packets, 7000);

  EXPECT_EQ(client.encryption_cipher, "CCMP");
  EXPECT_FALSE(client.encryption_group_cipher); // "no-cipher"
}

TEST(APClientDataNetconf, MinimalSampleHasIdentityOnly) {
  APClientData const client = read_client(read_client_sample("netconf-minimal.json"));
  APClientData const expected(MacAddr::from_str("00:1a:2b:3c:4d:5e"), "wlan0-vap0", "Guest");
  EXPECT_EQ(client, expected);
  // Members outside the comparison, and the rest one by one.
  EXPECT_FALSE(client.ip.valid);
  EXPECT_FALSE(client.frequency);
  EXPECT_FALSE(client.channel);
  EXPECT_FALSE(client.encryption_cipher);
  EXPECT_FALSE(client.encryption_group_cipher);
  EXPECT_FALSE(client.vlan_id);
  EXPECT_FALSE(client.hostname);
  EXPECT_FALSE(client.username);
  EXPECT_FALSE(client.domain);
  EXPECT_FALSE(client.uptime);
  EXPECT_TRUE(client.rssi.values.empty());
  EXPECT_FALSE(client.rssi.reported);
  EXPECT_EQ(client.rssi.get_signal(), -127);
  EXPECT_TRUE(client.snr.values.empty());
  EXPECT_FALSE(client.snr.reported);
  EXPECT_EQ(client.snr.get_signal(), 0);
  EXPECT_FALSE(client.authorized);
  EXPECT_FALSE(client.wireless_mode);
  EXPECT_FALSE(client.link_quality);
  EXPECT_FALSE(client.link_quality_common);
  EXPECT_FALSE(client.statistics);
  EXPECT_FALSE(client.mlo);
  EXPECT_FALSE(client.eap_method);
  EXPECT_FALSE(client.mac_auth_status);
  EXPECT_FALSE(client.portal_auth_status);
  EXPECT_FALSE(client.wlan_auth_status);
  EXPECT_FALSE(client.wlan_auth_method);
  EXPECT_FALSE(client.auth_algorithm);
  EXPECT_FALSE(client.wlan_auth_uptime);
  EXPECT_FALSE(client.mac_auth_uptime);
  EXPECT_FALSE(client.portal_auth_uptime);
  EXPECT_FALSE(client.band);
}

TEST(APClientDataNetconf, CountersWrittenAsStringsAreRead) {
  APClientData const client = read_client(read_client_sample("netconf-rfc7951-strings.json"));
  EXPECT_EQ(client.vlan_id, 4094U);
  EXPECT_EQ(client.frequency, 2437U);
  EXPECT_EQ(client.channel, 6U);
  EXPECT_EQ(client.uptime, 59U);
  EXPECT_EQ(client.rssi.values, (std::vector<int>{-45, -49}));
  EXPECT_FALSE(client.rssi.reported);
  EXPECT_EQ(client.rssi.get_signal(), -49);
  EXPECT_EQ(client.snr.values, (std::vector<int>{50, 46}));
  EXPECT_EQ(client.snr.get_signal(), 46);
  EXPECT_EQ(client.authorized, true);
  EXPECT_EQ(client.wireless_mode, ClientWirelessMode::N);
  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx, make_statistic(65, "HT-MCS 7 NSS 1 72.2", "HT-MCS 7 NSS 1",
                                                  "72.2", "20MHz", 2147483647, 1048576));
  EXPECT_EQ(client.statistics->rx, make_statistic(6, "HT-MCS 0 0.0", "HT-MCS 0", std::nullopt,
                                                  std::nullopt, 987654, 4321));
  EXPECT_EQ(client.wlan_auth_status, ClientWlanAuthStatus::AUTHENTICATED);
  EXPECT_EQ(client.wlan_auth_method, ClientWlanAuthMethod::WPA2);
  EXPECT_EQ(client.wlan_auth_uptime, 7200U);
  EXPECT_EQ(client.mac_auth_status, ClientMacAuthStatus::PENDING);
  EXPECT_EQ(client.mac_auth_uptime, 15U);
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::EXPIRED);
  EXPECT_EQ(client.portal_auth_uptime, 86400U);
  EXPECT_EQ(client.auth_algorithm, ClientAuthAlgorithm::SAE);
  EXPECT_EQ(client.encryption_cipher, "TKIP");
  EXPECT_EQ(client.encryption_group_cipher, "CCMP");
  EXPECT_FALSE(client.mlo);
}

TEST(APClientDataNetconf, HtmlEscapesAreDecodedInSsidHostnameUsernameDomain) {
  APClientData const client = read_client(read_client_sample("netconf-html-escapes.json"));
  EXPECT_EQ(client.ssid, "Caf\xe9 Guest\xff");   // bytes kept, not UTF-8
  EXPECT_EQ(client.hostname, "John's MacBook."); // a control byte becomes "."
  EXPECT_EQ(client.username, "jdoe@corp");
  EXPECT_EQ(client.domain, "CORP\\sales");
  EXPECT_EQ(client.interface, "wlan2-vap0");
  EXPECT_EQ(client.link_quality, "a&#x20;b"); // kept verbatim
}

TEST(APClientDataNetconf, SsidOfOneNonUtf8Byte) {
  APClientData const client = read_client(R"({"hw-addr":"a4:5e:60:c2:19:7b","interface":"wlan0",)"
                                          R"("ssid":"&#xff;"})");
  EXPECT_EQ(client.ssid, std::string(1, '\xff'));
}

// ---- Identity and the exceptions
// -----------------------------------------------------------------

TEST(APClientDataNetconf, NullClientThrowsInvalidJsonPointer) {
  try {
    (void)APClientData::from_netconf_json(nullptr);
    FAIL() << "no exception";
  } catch (wlccw::InvalidJsonPointer const& error) {
    EXPECT_STREQ(error.what(), "JSON pointer is null");
  }
}

TEST(APClientDataNetconf, EmptyClientThrowsEmptyJson) {
  for (char const* json : {"{}", "[]", "5", "\"text\"", "null"}) {
    Tree const client = parse_json(json);
    ASSERT_TRUE(client);
    try {
      (void)APClientData::from_netconf_json(client.get());
      ADD_FAILURE() << json << ": no exception";
    } catch (wlccw::EmptyJson const& error) {
      EXPECT_STREQ(error.what(), "JSON data is empty") << json;
    }
  }
}

TEST(APClientDataNetconf, BadHwAddrThrows) {
  for (char const* members :
       {R"("interface":"wlan0","ssid":"Corp")", R"("hw-addr":"","interface":"wlan0","ssid":"Corp")",
        R"("hw-addr":"zz:5e:60:c2:19:7b","interface":"wlan0","ssid":"Corp")",
        R"("hw-addr":"a4:5e:60:c2:19","interface":"wlan0","ssid":"Corp")",
        R"("hw-addr":12,"interface":"wlan0","ssid":"Corp")",
        R"("hw-addr":{"a":1},"interface":"wlan0","ssid":"Corp")"}) {
    EXPECT_EQ(read_client_error(std::string("{") + members + "}"), "parameter 'mac' is not valid")
        << members;
  }
}

TEST(APClientDataNetconf, HwAddrOfEitherCaseIsRead) {
  EXPECT_EQ(read_client(R"({"hw-addr":"A4:5E:60:C2:19:7B","interface":"w","ssid":"s"})").mac.str(),
            "a4:5e:60:c2:19:7b");
}

TEST(APClientDataNetconf, MissingOrEmptyInterfaceThrows) {
  for (char const* members :
       {R"("hw-addr":"a4:5e:60:c2:19:7b","ssid":"Corp")",
        R"("hw-addr":"a4:5e:60:c2:19:7b","interface":"","ssid":"Corp")",
        R"("hw-addr":"a4:5e:60:c2:19:7b","interface":null,"ssid":"Corp")",
        R"("hw-addr":"a4:5e:60:c2:19:7b","interface":["wlan0"],"ssid":"Corp")"}) {
    EXPECT_EQ(read_client_error(std::string("{") + members + "}"), "parameter 'interface' is empty")
        << members;
  }
}

TEST(APClientDataNetconf, InterfaceIsKeptAsItStands) {
  APClientData const client =
      read_client(R"({"hw-addr":"a4:5e:60:c2:19:7b","interface":" wlan0&#x2d;vap1 ","ssid":"s"})");
  EXPECT_EQ(client.interface, " wlan0&#x2d;vap1 ");
}

TEST(APClientDataNetconf, SsidThatDecodesToEmptyThrows) {
  for (char const* members :
       {R"("hw-addr":"a4:5e:60:c2:19:7b","interface":"wlan0")",
        R"("hw-addr":"a4:5e:60:c2:19:7b","interface":"wlan0","ssid":"")",
        R"("hw-addr":"a4:5e:60:c2:19:7b","interface":"wlan0","ssid":null)",
        R"("hw-addr":"a4:5e:60:c2:19:7b","interface":"wlan0","ssid":{"x":"y"})"}) {
    EXPECT_EQ(read_client_error(std::string("{") + members + "}"), "parameter 'ssid' is empty")
        << members;
  }
}

TEST(APClientDataNetconf, IdentityIsCheckedMacThenInterfaceThenSsid) {
  EXPECT_EQ(read_client_error(R"({"hw-addr":"bad","other":1})"), "parameter 'mac' is not valid");
  EXPECT_EQ(read_client_error(R"({"hw-addr":"bad","ssid":"Corp"})"),
            "parameter 'mac' is not valid");
  EXPECT_EQ(read_client_error(R"({"hw-addr":"a4:5e:60:c2:19:7b","other":1})"),
            "parameter 'interface' is empty");
  EXPECT_EQ(read_client_error(R"({"hw-addr":"a4:5e:60:c2:19:7b","interface":"w"})"),
            "parameter 'ssid' is empty");
}

TEST(APClientDataNetconf, ControlBytesInSsidAreNotEmpty) {
  EXPECT_EQ(read_client(R"({"hw-addr":"a4:5e:60:c2:19:7b","interface":"w","ssid":"&#x0;"})").ssid,
            ".");
}

// ---- Address, numbers and texts -----------------------------------------------------------------

TEST(APClientDataNetconf, IpAddrIsParsed) {
  APClientData const client = read_client_with(R"("ip-addr":"10.0.0.5")");
  EXPECT_TRUE(client.ip.valid);
  EXPECT_EQ(client.ip.str(), "10.0.0.5");
}

TEST(APClientDataNetconf, BadOrMissingIpAddrLeavesIpInvalid) {
  for (char const* members :
       {"", R"("ip-addr":"")", R"("ip-addr":"not-an-ip")", R"("ip-addr":"300.1.1.1")",
        R"("ip-addr":"10.0.0")", R"("ip-addr":null)", R"("ip-addr":{"v":"10.0.0.1"})"}) {
    APClientData const client = read_client_with(members);
    EXPECT_FALSE(client.ip.valid) << members;
    EXPECT_EQ(client.ip.str(), "0.0.0.0") << members;
  }
}

TEST(APClientDataNetconf, VlanIdIsUnsigned32) {
  EXPECT_EQ(read_client_with(R"("vlan-id":120)").vlan_id, 120U);
  EXPECT_EQ(read_client_with(R"("vlan-id":"120")").vlan_id, 120U);
  EXPECT_EQ(read_client_with(R"("vlan-id":4294967295)").vlan_id, 4294967295U);
  for (char const* members :
       {"", R"("vlan-id":-1)", R"("vlan-id":4294967296)", R"("vlan-id":"abc")",
        R"("vlan-id":"12abc")", R"("vlan-id":1.5)", R"("vlan-id":true)", R"("vlan-id":null)"}) {
    EXPECT_FALSE(read_client_with(members).vlan_id) << members;
  }
}

TEST(APClientDataNetconf, HostnameUsernameDomainAreDecodedOrEmpty) {
  APClientData const client =
      read_client_with(R"("hostname":"pc&#x2d;01","username":"a&#x40;b","domain":"d&#x2e;e")");
  EXPECT_EQ(client.hostname, "pc-01");
  EXPECT_EQ(client.username, "a@b");
  EXPECT_EQ(client.domain, "d.e");

  APClientData const empty_texts = read_client_with(R"("hostname":"","username":"","domain":"")");
  EXPECT_EQ(empty_texts.hostname, "");
  EXPECT_EQ(empty_texts.username, "");
  EXPECT_EQ(empty_texts.domain, "");

  APClientData const missing = read_client_with(R"("hostname":null,"username":{},"domain":[1])");
  EXPECT_FALSE(missing.hostname);
  EXPECT_FALSE(missing.username);
  EXPECT_FALSE(missing.domain);
}

TEST(APClientDataNetconf, ControlBytesOfHostnameUsernameDomainBecomeDotsWithOrWithoutEscapes) {
  // Texts without any "&" and texts with escapes take different ways through the decoder.
  APClientData const plain = read_client_with(
      R"("hostname":"a\u0001b-long-enough-for-the-heap","username":"tab\there","domain":"x\u007f")");
  EXPECT_EQ(plain.hostname, "a.b-long-enough-for-the-heap");
  EXPECT_EQ(plain.username, "tab.here");
  EXPECT_EQ(plain.domain, "x.");

  APClientData const escaped = read_client_with(
      R"("hostname":"a\u0001b&#x0a;c","username":"&#x41;\u001f","domain":"&amp;\u0002")");
  EXPECT_EQ(escaped.hostname, "a.b.c");
  EXPECT_EQ(escaped.username, "A.");
  EXPECT_EQ(escaped.domain, "&amp;.");

  APClientData const untouched =
      read_client_with(R"("hostname":"caf\u00e9-\u00fc-host-name","username":"u","domain":"d")");
  EXPECT_EQ(untouched.hostname, "caf\xc3\xa9-\xc3\xbc-host-name");
}

TEST(APClientDataNetconf, FrequencyAndChannelAreUnsigned32) {
  APClientData const client = read_client_with(R"("frequency":5745,"channel":"149")");
  EXPECT_EQ(client.frequency, 5745U);
  EXPECT_EQ(client.channel, 149U);
  APClientData const bad = read_client_with(R"("frequency":"5.7GHz","channel":-36)");
  EXPECT_FALSE(bad.frequency);
  EXPECT_FALSE(bad.channel);
}

// ---- Uptime
// --------------------------------------------------------------------------------------

std::optional<std::uint32_t> uptime_of(std::string const& text) {
  return read_client_with(R"("uptime":")" + text + "\"").uptime;
}

TEST(APClientDataNetconf, UptimeClockForms) {
  EXPECT_EQ(uptime_of("03:04:05"), 11045U);
  EXPECT_EQ(uptime_of("2 d 03:04:05"), 183845U);
  EXPECT_EQ(uptime_of("0:00:59"), 59U);
  EXPECT_EQ(uptime_of("1 d 0:0:0"), 86400U);
  EXPECT_EQ(uptime_of("0:0:0"), 0U);
  EXPECT_EQ(uptime_of("0:61:70"), 3730U); // fields are not range-checked
}

TEST(APClientDataNetconf, UptimeAsScanfReadsIt) {
  EXPECT_EQ(uptime_of("1:2:3xyz"), 3723U);      // text after the third number is ignored
  EXPECT_EQ(uptime_of(" 1:2:3"), 3723U);        // white space before a number is skipped
  EXPECT_EQ(uptime_of("1: 2: 3"), 3723U);       // before every number
  EXPECT_EQ(uptime_of("+1:0:0"), 3600U);        // a sign is accepted
  EXPECT_EQ(uptime_of("-1:0:0"), 4294963696U);  // -1 reads as 4294967295; times 3600 wraps
  EXPECT_EQ(uptime_of("1:2:3 d"), 3723U);       // the clock form wins
  EXPECT_EQ(uptime_of("1d2:3:4"), 93784U);      // " d " matches any white space, none included
  EXPECT_EQ(uptime_of("1  d\\t2:3:4"), 93784U); // a tab, escaped in the JSON text
  EXPECT_EQ(uptime_of("3 d 0:0:1 extra"), 259201U);
}

// The uptime as the two scanf formats read it, the way the import is defined.
std::optional<std::uint32_t> uptime_by_scanf(std::string const& text) {
  unsigned int hours = 0;
  unsigned int minutes = 0;
  unsigned int seconds = 0;
  if (std::sscanf(text.c_str(), "%u:%u:%u", &hours, &minutes, &seconds) == 3) {
    return hours * 3600U + minutes * 60U + seconds;
  }
  unsigned int days = 0;
  if (std::sscanf(text.c_str(), "%u d %u:%u:%u", &days, &hours, &minutes, &seconds) == 4) {
    return days * 86400U + hours * 3600U + minutes * 60U + seconds;
  }
  return std::nullopt;
}

// The import reads the common shapes by hand; on texts put together from the pieces of both
// shapes, signs, white space, long digit runs and junk, it reads what the formats read.
TEST(APClientDataNetconf, UptimeAgreesWithTheScanfFormatsOnManyTexts) {
  static constexpr char const* pieces[] = {
      "0",   "1",         "7",          "59",         "00",
      "007", "123456789", "1234567890", "4294967296", "99999999999999999999",
      "+",   "-",         " ",          ":",          ":",
      ":",   " d ",       "d",          "  d ",       "x",
      ".",   "d "};
  std::mt19937 engine(7);
  std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
  std::uniform_int_distribution<int> count(1, 9);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (int n = count(engine); n > 0; --n) {
      text += pieces[piece(engine)];
    }
    EXPECT_EQ(uptime_of(text), uptime_by_scanf(text)) << '"' << text << '"';
  }
  for (char const* text : {"1:2:3", "12 d 23:59:59", "999999999:0:0", "1 d 999999999:1:1",
                           "0000000001:0:0", "1 d 2:3:4 rest", "1:2:3:4"}) {
    EXPECT_EQ(uptime_of(text), uptime_by_scanf(text)) << text;
  }
}

TEST(APClientDataNetconf, UptimeWrapsAsUnsigned32) {
  EXPECT_EQ(uptime_of("1193047:0:0"), 1904U);       // 4294969200 mod 2^32
  EXPECT_EQ(uptime_of("50000 d 0:0:0"), 25032704U); // 4320000000 mod 2^32
  EXPECT_EQ(uptime_of("0:0:4294967295"), 4294967295U);
  EXPECT_EQ(uptime_of("0:1:4294967295"), 59U);
}

TEST(APClientDataNetconf, UptimeThatMatchesNeitherFormIsEmpty) {
  for (char const* text : {"59s", "", "59", "1:2", "1:2:", "1 d 2:3", "1 day 2:3:4", "a:b:c", "1 d",
                           "d 1:2:3", ":1:2:3"}) {
    EXPECT_FALSE(uptime_of(text)) << text;
  }
  EXPECT_FALSE(read_client_with("").uptime);
  EXPECT_FALSE(read_client_with(R"("uptime":59)").uptime);
  EXPECT_FALSE(read_client_with(R"("uptime":null)").uptime);
}

// ---- Signal
// --------------------------------------------------------------------------------------

TEST(APClientDataNetconf, NumberedRssiIsRaisedToTheFloor) {
  APClientData const client = read_client_with(R"("rssi-1":-40,"rssi-2":-140)");
  EXPECT_EQ(client.rssi.values, (std::vector<int>{-40, -127}));
  EXPECT_FALSE(client.rssi.reported);
  EXPECT_EQ(client.rssi.get_signal(), -127);
}

TEST(APClientDataNetconf, PlainRssiOnlyIsValueAndReported) {
  APClientData const client = read_client_with(R"("rssi":-55)");
  EXPECT_EQ(client.rssi.values, (std::vector<int>{-55}));
  EXPECT_EQ(client.rssi.reported, -55);
  EXPECT_EQ(client.rssi.get_signal(), -55);
}

TEST(APClientDataNetconf, PlainRssiWinsOverNumbered) {
  APClientData const client = read_client_with(R"("rssi-1":-40,"rssi-2":-70,"rssi":-50)");
  EXPECT_EQ(client.rssi.values, (std::vector<int>{-40, -70}));
  EXPECT_EQ(client.rssi.reported, -50);
  EXPECT_EQ(client.rssi.get_signal(), -50);
}

TEST(APClientDataNetconf, NumberedSignalStopsAtAGapAndAtEight) {
  EXPECT_EQ(read_client_with(R"("rssi-1":-40,"rssi-3":-60)").rssi.values, (std::vector<int>{-40}));
  APClientData const nine = read_client_with(
      R"("rssi-1":-41,"rssi-2":-42,"rssi-3":-43,"rssi-4":-44,"rssi-5":-45,"rssi-6":-46,)"
      R"("rssi-7":-47,"rssi-8":-48,"rssi-9":-49)");
  EXPECT_EQ(nine.rssi.values, (std::vector<int>{-41, -42, -43, -44, -45, -46, -47, -48}));
  EXPECT_EQ(nine.rssi.get_signal(), -48);
}

TEST(APClientDataNetconf, SnrHasFloorZero) {
  APClientData const client = read_client_with(R"("snr-1":30,"snr-2":-5)");
  EXPECT_EQ(client.snr.values, (std::vector<int>{30, 0}));
  EXPECT_FALSE(client.snr.reported);
  EXPECT_EQ(client.snr.get_signal(), 0);

  APClientData const plain = read_client_with(R"("snr":25)");
  EXPECT_EQ(plain.snr.values, (std::vector<int>{25}));
  EXPECT_EQ(plain.snr.reported, 25);
  EXPECT_EQ(plain.snr.get_signal(), 25);
}

TEST(APClientDataNetconf, SignalWrittenAsStringsIsRead) {
  APClientData const client = read_client_with(R"("rssi":"-61","snr":"33")");
  EXPECT_EQ(client.rssi.values, (std::vector<int>{-61}));
  EXPECT_EQ(client.rssi.reported, -61);
  EXPECT_EQ(client.snr.reported, 33);
}

TEST(APClientDataNetconf, MalformedPlainSignalIsNotReported) {
  // The member is there, so the per-antenna reading takes the int reader's 0 for it; the reported
  // value stays empty. RSSI 0 is above the floor, SNR 0 is the floor.
  APClientData const client = read_client_with(R"("rssi":"weak","snr":{"a":1})");
  EXPECT_EQ(client.rssi.values, (std::vector<int>{0}));
  EXPECT_FALSE(client.rssi.reported);
  EXPECT_EQ(client.snr.values, (std::vector<int>{0}));
  EXPECT_FALSE(client.snr.reported);
}

// ---- Authorization, mode, link quality
// -----------------------------------------------------------

TEST(APClientDataNetconf, AuthorizedIsExactYesOrTrue) {
  EXPECT_EQ(read_client_with(R"("authorized":"yes")").authorized, true);
  EXPECT_EQ(read_client_with(R"("authorized":"true")").authorized, true);
  EXPECT_EQ(read_client_with(R"("authorized":true)").authorized, true);
  for (char const* members :
       {R"("authorized":"True")", R"("authorized":"YES")", R"("authorized":"no")",
        R"("authorized":"")", R"("authorized":"yes ")", R"("authorized":false)",
        R"("authorized":1)"}) {
    EXPECT_EQ(read_client_with(members).authorized, false) << members;
  }
  EXPECT_FALSE(read_client_with("").authorized);
  EXPECT_FALSE(read_client_with(R"("authorized":null)").authorized);
}

TEST(APClientDataNetconf, WirelessModeThroughNetconfNames) {
  EXPECT_EQ(read_client_with(R"("wireless-mode":"ax")").wireless_mode, ClientWirelessMode::AX);
  EXPECT_EQ(read_client_with(R"("wireless-mode":"bg")").wireless_mode, ClientWirelessMode::BG);
  for (char const* members :
       {"", R"("wireless-mode":"AX")", R"("wireless-mode":"11ax")", R"("wireless-mode":"")"}) {
    EXPECT_FALSE(read_client_with(members).wireless_mode) << members;
  }
}

TEST(APClientDataNetconf, LinkQualityTextsAreVerbatim) {
  APClientData const client =
      read_client_with(R"("link-quality":" 70 &#x25; ","link-quality-common":"")");
  EXPECT_EQ(client.link_quality, " 70 &#x25; ");
  EXPECT_EQ(client.link_quality_common, "");
  APClientData const numbers = read_client_with(R"("link-quality":70,"link-quality-common":null)");
  EXPECT_EQ(numbers.link_quality, "70");
  EXPECT_FALSE(numbers.link_quality_common);
}

// ---- Authentication
// ------------------------------------------------------------------------------

TEST(APClientDataNetconf, AuthenticationThroughNetconfNames) {
  APClientData const client = read_client_with(
      R"("eap-method":"EAP-TLS","radius-mac-auth":"unauthorized","portal-auth":"reauthenticate",)"
      R"("wlan-auth-status":"pending","wlan-auth-type":"OWE","auth-algorithm":"fils-public-key")");
  EXPECT_EQ(client.eap_method, ClientEapMethod::EAP_TLS);
  EXPECT_EQ(client.mac_auth_status, ClientMacAuthStatus::UNAUTHENTICATED);
  EXPECT_EQ(client.portal_auth_status, ClientPortalAuthStatus::REAUTHENTICATE);
  EXPECT_EQ(client.wlan_auth_status, ClientWlanAuthStatus::PENDING);
  EXPECT_EQ(client.wlan_auth_method, ClientWlanAuthMethod::OWE);
  EXPECT_EQ(client.auth_algorithm, ClientAuthAlgorithm::FILS_PUBLIC_KEY);
}

TEST(APClientDataNetconf, AuthenticationIpcNamesAndUnknownTextsAreEmpty) {
  // IPC spellings, other case, empty texts and wrong types: none is a NETCONF name.
  for (
      char const* members :
      {R"("eap-method":"eap_tls","radius-mac-auth":"authenticated","portal-auth":"not_required",)"
       R"("wlan-auth-status":"authenticated","wlan-auth-type":"wpa2","auth-algorithm":"open_system")",
       R"("eap-method":"eap-tls","radius-mac-auth":"Authorized","portal-auth":"EXPIRED",)"
       R"("wlan-auth-status":"Authorized","wlan-auth-type":"open","auth-algorithm":"SAE")",
       R"("eap-method":"","radius-mac-auth":"","portal-auth":"",)"
       R"("wlan-auth-status":"","wlan-auth-type":"","auth-algorithm":"")",
       R"("eap-method":1,"radius-mac-auth":null,"portal-auth":{},)"
       R"("wlan-auth-status":[],"wlan-auth-type":true,"auth-algorithm":0)"}) {
    APClientData const client = read_client_with(members);
    EXPECT_FALSE(client.eap_method) << members;
    EXPECT_FALSE(client.mac_auth_status) << members;
    EXPECT_FALSE(client.portal_auth_status) << members;
    EXPECT_FALSE(client.wlan_auth_status) << members;
    EXPECT_FALSE(client.wlan_auth_method) << members;
    EXPECT_FALSE(client.auth_algorithm) << members;
  }
}

TEST(APClientDataNetconf, AuthenticationTimesAreUnsigned32) {
  APClientData const client =
      read_client_with(R"("wlan-auth-time":120,"radius-mac-auth-time":"300","portal-auth-time":0)");
  EXPECT_EQ(client.wlan_auth_uptime, 120U);
  EXPECT_EQ(client.mac_auth_uptime, 300U);
  EXPECT_EQ(client.portal_auth_uptime, 0U);

  APClientData const bad = read_client_with(
      R"("wlan-auth-time":"0:02:00","radius-mac-auth-time":-5,"portal-auth-time":"1e3")");
  EXPECT_FALSE(bad.wlan_auth_uptime);
  EXPECT_FALSE(bad.mac_auth_uptime);
  EXPECT_FALSE(bad.portal_auth_uptime);
}

// ---- Multi-link, ciphers, members the controller fills
// -------------------------------------------

TEST(APClientDataNetconf, MloIsReadFromTheSameObject) {
  APClientData const client =
      read_client_with(R"("mlo-enabled":"yes","mld-mac-ap":"02:00:00:00:00:01",)"
                       R"("mlo-link-3-mac":"02:00:00:00:00:33","mlo-link-3-band":"6")");
  ASSERT_TRUE(client.mlo);
  ASSERT_EQ(client.mlo->links.size(), 1U);
  EXPECT_EQ(client.mlo->links[0].id, 3);
  EXPECT_EQ(client.mlo->links[0].band, radio::Band::BAND_6G);
  EXPECT_EQ(client.mlo->mld_mac_ap.str(), "02:00:00:00:00:01");
}

TEST(APClientDataNetconf, NoMloWithoutMultiLinkData) {
  EXPECT_FALSE(read_client_with(R"("mlo-enabled":"no","mlo-link-1-mac":"02:00:00:00:00:11",)"
                                R"("mlo-link-1-band":"5")")
                   .mlo);
  EXPECT_FALSE(read_client_with(R"("mlo-enabled":"yes")").mlo);
  EXPECT_FALSE(
      read_client_with(R"("mlo-enabled":"yes","mlo-link-1-mac":"bad","mlo-link-1-band":"5")").mlo);
}

TEST(APClientDataNetconf, CiphersNoCipherIsEmpty) {
  APClientData const client =
      read_client_with(R"("encryption-cipher":"no-cipher","encryption-group-cipher":"CCMP")");
  EXPECT_FALSE(client.encryption_cipher);
  EXPECT_EQ(client.encryption_group_cipher, "CCMP");

  APClientData const other =
      read_client_with(R"("encryption-cipher":"CCMP","encryption-group-cipher":"No-Cipher")");
  EXPECT_EQ(other.encryption_cipher, "CCMP");
  EXPECT_EQ(other.encryption_group_cipher, "No-Cipher");

  APClientData const missing = read_client_with(R"("encryption-group-cipher":null)");
  EXPECT_FALSE(missing.encryption_cipher);
  EXPECT_FALSE(missing.encryption_group_cipher);
}

TEST(APClientDataNetconf, BandAndApFieldsAreNotRead) {
  APClientData const client = read_client_with(
      R"("band":"5G","ap-hostname":"ap-01","ap-location":"floor 2","ap_hostname":"ap-02")");
  EXPECT_FALSE(client.band);
  EXPECT_FALSE(client.ap_hostname);
  EXPECT_FALSE(client.ap_location);
}

TEST(APClientDataNetconf, SameObjectGivesEqualRecords) {
  std::string const json = read_client_sample("netconf-full.json");
  EXPECT_EQ(read_client(json), read_client(json));
  EXPECT_NE(read_client(json), read_client(read_client_sample("netconf-rfc7951-strings.json")));
}

// ---- Statistics within the record
// ----------------------------------------------------------------

TEST(APClientDataNetconf, OnlyRxBwGivesDefaultTxAndRxWithBandwidth) {
  APClientData const client = read_client_with(R"("rx-bw":"40MHz")");
  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx, Statistic{});
  EXPECT_EQ(client.statistics->rx,
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, "40MHz", 0, 0));
}

TEST(APClientDataNetconf, RateNumericAloneMakesNoStatistics) {
  EXPECT_FALSE(read_client_with(R"("tx-rate-numeric":"866.7","rx-rate-numeric":"650")").statistics);
  // With the other direction present, tx is the default, so its numeric rate is not there.
  APClientData const client = read_client_with(R"("tx-rate-numeric":"866.7","rx-rate":"OFDM 54")");
  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx, Statistic{});
  EXPECT_EQ(client.statistics->rx, make_statistic(0, "OFDM 54", "OFDM", "54", std::nullopt, 0, 0));
}

TEST(APClientDataNetconf, NoStatisticsKeysGiveNoStatistics) {
  EXPECT_FALSE(read_client_with(R"("statistics":{"other":{"bytes":1}})").statistics);
  EXPECT_FALSE(read_client_with(R"("actual-tx-rate":"fast","actual-rx-rate":-1)").statistics);
}

TEST(APClientDataNetconf, CountersAloneGiveStatistics) {
  APClientData const client = read_client_with(R"("statistics":{"tx":{"bytes":100,"packets":2}})");
  ASSERT_TRUE(client.statistics);
  EXPECT_EQ(client.statistics->tx,
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 100, 2));
  EXPECT_EQ(client.statistics->rx, Statistic{});
}

// ---- get_statistic_from_netconf
// ------------------------------------------------------------------

TEST(GetStatisticFromNetconf, NothingGivesEmpty) {
  EXPECT_FALSE(statistic_of("{}", "tx"));
  EXPECT_FALSE(statistic_of(R"({"rx-rate":"OFDM 54","rx-bw":"20MHz"})", "tx"));
}

TEST(GetStatisticFromNetconf, RateNumericAloneGivesEmpty) {
  EXPECT_FALSE(statistic_of(R"({"tx-rate-numeric":"866.7"})", "tx"));
}

TEST(GetStatisticFromNetconf, RateTextIsSplit) {
  EXPECT_EQ(
      statistic_of(R"({"tx-rate":"VHT-MCS 9 NSS 2 866.7"})", "tx"),
      make_statistic(0, "VHT-MCS 9 NSS 2 866.7", "VHT-MCS 9 NSS 2", "866.7", std::nullopt, 0, 0));
  EXPECT_EQ(statistic_of(R"({"tx-rate":"HT-MCS 0 0.0"})", "tx"),
            make_statistic(0, "HT-MCS 0 0.0", "HT-MCS 0", std::nullopt, std::nullopt, 0, 0));
  EXPECT_EQ(statistic_of(R"({"tx-rate":"54M"})", "tx"),
            make_statistic(0, "54M", std::nullopt, std::nullopt, std::nullopt, 0, 0));
  EXPECT_EQ(statistic_of(R"({"tx-rate":""})", "tx"),
            make_statistic(0, "", std::nullopt, std::nullopt, std::nullopt, 0, 0));
}

TEST(GetStatisticFromNetconf, RateNumericKeyWinsOverTheRateText) {
  EXPECT_EQ(
      statistic_of(R"({"rx-rate":"VHT-MCS 9 NSS 2 866.7","rx-rate-numeric":"866"})", "rx"),
      make_statistic(0, "VHT-MCS 9 NSS 2 866.7", "VHT-MCS 9 NSS 2", "866", std::nullopt, 0, 0));
  EXPECT_EQ(statistic_of(R"({"rx-rate":"54M","rx-rate-numeric":"54"})", "rx"),
            make_statistic(0, "54M", std::nullopt, "54", std::nullopt, 0, 0));
}

TEST(GetStatisticFromNetconf, BandwidthAlone) {
  EXPECT_EQ(statistic_of(R"({"tx-bw":"80MHz"})", "tx"),
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, "80MHz", 0, 0));
}

TEST(GetStatisticFromNetconf, RateNumericWithoutRateTextIsNotUsed) {
  EXPECT_EQ(statistic_of(R"({"tx-bw":"40MHz","tx-rate-numeric":"300"})", "tx"),
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, "40MHz", 0, 0));
  EXPECT_EQ(
      statistic_of(R"({"statistics":{"tx":{"bytes":1,"packets":1}},"tx-rate-numeric":"3"})", "tx"),
      make_statistic(0, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 1, 1));
}

TEST(GetStatisticFromNetconf, ActualRateAlone) {
  EXPECT_EQ(statistic_of(R"({"actual-rx-rate":585})", "rx"),
            make_statistic(585, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 0, 0));
  EXPECT_EQ(statistic_of(R"({"actual-rx-rate":"585"})", "rx"),
            make_statistic(585, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 0, 0));
  EXPECT_FALSE(statistic_of(R"({"actual-rx-rate":-1})", "rx"));
  EXPECT_FALSE(statistic_of(R"({"actual-rx-rate":"585M"})", "rx"));
}

TEST(GetStatisticFromNetconf, CountersAloneGiveBytesAndPackets) {
  EXPECT_EQ(statistic_of(R"({"statistics":{"tx":{"bytes":1234,"packets":56}}})", "tx"),
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 1234, 56));
  EXPECT_EQ(statistic_of(R"({"statistics":{"tx":{"bytes":"1234","packets":"56"}}})", "tx"),
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 1234, 56));
  EXPECT_FALSE(statistic_of(R"({"statistics":{"tx":{"bytes":1234}}})", "rx"));
}

TEST(GetStatisticFromNetconf, MalformedCountersReadAsZero) {
  EXPECT_EQ(statistic_of(R"({"statistics":{"rx":{"bytes":"many","packets":2147483648}}})", "rx"),
            Statistic{});
  EXPECT_EQ(statistic_of(R"({"statistics":{"rx":{}}})", "rx"), Statistic{});
  // The path exists even when it is no object; its members read as missing.
  EXPECT_EQ(statistic_of(R"({"statistics":{"rx":"n/a"}})", "rx"), Statistic{});
  EXPECT_FALSE(statistic_of(R"({"statistics":"n/a"})", "rx"));
}

TEST(GetStatisticFromNetconf, RateAndCountersTogether) {
  EXPECT_EQ(
      statistic_of(R"({"tx-rate":"HE-MCS 11 NSS 2 1201.0","tx-bw":"80MHz",)"
                   R"("actual-tx-rate":1100,"statistics":{"tx":{"bytes":9,"packets":1}}})",
                   "tx"),
      make_statistic(1100, "HE-MCS 11 NSS 2 1201.0", "HE-MCS 11 NSS 2", "1201.0", "80MHz", 9, 1));
}

TEST(GetStatisticFromNetconf, DirectionSelectsTheKeys) {
  std::string const json = R"({"tx-rate":"OFDM 54","rx-rate":"CCK 11","tx-bw":"20MHz",)"
                           R"("actual-rx-rate":11,"statistics":{"tx":{"bytes":1,"packets":2},)"
                           R"("rx":{"bytes":3,"packets":4}}})";
  EXPECT_EQ(statistic_of(json, "tx"), make_statistic(0, "OFDM 54", "OFDM", "54", "20MHz", 1, 2));
  EXPECT_EQ(statistic_of(json, "rx"),
            make_statistic(11, "CCK 11", "CCK", "11", std::nullopt, 3, 4));
}

// The keys are formed from any direction name, not only from the two an AP writes.
TEST(GetStatisticFromNetconf, AnyDirectionNameFormsItsKeys) {
  std::string const json = R"({"tx-rate":"OFDM 54","uplink-rate":"HE-MCS 5 NSS 1 286.8",)"
                           R"("uplink-bw":"80MHz","uplink-rate-numeric":"290",)"
                           R"("actual-uplink-rate":280,)"
                           R"("statistics":{"uplink":{"bytes":5,"packets":6}}})";
  EXPECT_EQ(statistic_of(json, "uplink"),
            make_statistic(280, "HE-MCS 5 NSS 1 286.8", "HE-MCS 5 NSS 1", "290", "80MHz", 5, 6));
  EXPECT_FALSE(statistic_of(json, "t"));
  // An empty direction names no rate keys, and its counter path "/statistics/" is the object
  // "statistics" itself, which holds no "bytes" or "packets": zero counters.
  EXPECT_EQ(statistic_of(json, ""),
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 0, 0));
}

// ---- get_tx_rx_statistics
// ------------------------------------------------------------------------

TEST(GetTxRxStatistics, EmptyReaderThrowsBadFunctionCall) {
  Tree const node = parse_json(R"({"tx-bw":"20MHz"})");
  ASSERT_TRUE(node);
  std::function<std::optional<Statistic>(lcw_data_t&, std::string const&)> const empty;
  EXPECT_THROW((void)get_tx_rx_statistics(*node, empty), std::bad_function_call);
}

TEST(GetTxRxStatistics, ReadsTxThenRx) {
  Tree const node = parse_json(R"({"a":1})");
  ASSERT_TRUE(node);
  std::vector<std::string> calls;
  auto const reader = [&calls](lcw_data_t&, std::string const& direction) {
    calls.push_back(direction);
    return std::optional<Statistic>{};
  };
  EXPECT_FALSE(get_tx_rx_statistics(*node, reader));
  EXPECT_EQ(calls, (std::vector<std::string>{"tx", "rx"}));
}

TEST(GetTxRxStatistics, MissingDirectionIsDefault) {
  Tree const node = parse_json(R"({"a":1})");
  ASSERT_TRUE(node);
  Statistic const given = make_statistic(7, "r", "m", "n", "b", 8, 9);
  auto const tx_only = [&given](lcw_data_t&, std::string const& direction) {
    return direction == "tx" ? std::optional<Statistic>(given) : std::nullopt;
  };
  std::optional<APClientData::Statistics> const tx = get_tx_rx_statistics(*node, tx_only);
  ASSERT_TRUE(tx);
  EXPECT_EQ(tx->tx, given);
  EXPECT_EQ(tx->rx, Statistic{});

  auto const rx_only = [&given](lcw_data_t&, std::string const& direction) {
    return direction == "rx" ? std::optional<Statistic>(given) : std::nullopt;
  };
  std::optional<APClientData::Statistics> const rx = get_tx_rx_statistics(*node, rx_only);
  ASSERT_TRUE(rx);
  EXPECT_EQ(rx->tx, Statistic{});
  EXPECT_EQ(rx->rx, given);
}

TEST(GetTxRxStatistics, WithTheNetconfReader) {
  Tree const only_rx_bw = parse_json(R"({"rx-bw":"20MHz"})");
  ASSERT_TRUE(only_rx_bw);
  std::optional<APClientData::Statistics> const statistics =
      get_tx_rx_statistics(*only_rx_bw, get_statistic_from_netconf);
  ASSERT_TRUE(statistics);
  EXPECT_EQ(statistics->tx, Statistic{});
  EXPECT_EQ(statistics->rx,
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, "20MHz", 0, 0));

  Tree const only_numeric = parse_json(R"({"tx-rate-numeric":"1"})");
  ASSERT_TRUE(only_numeric);
  EXPECT_FALSE(get_tx_rx_statistics(*only_numeric, get_statistic_from_netconf));

  Tree const only_tx_counters = parse_json(R"({"statistics":{"tx":{"bytes":5,"packets":1}}})");
  ASSERT_TRUE(only_tx_counters);
  std::optional<APClientData::Statistics> const counters =
      get_tx_rx_statistics(*only_tx_counters, get_statistic_from_netconf);
  ASSERT_TRUE(counters);
  EXPECT_EQ(counters->tx,
            make_statistic(0, std::nullopt, std::nullopt, std::nullopt, std::nullopt, 5, 1));
  EXPECT_EQ(counters->rx, Statistic{});
}

// ---- Rate text split
// -----------------------------------------------------------------------------

static_assert(static_cast<int>(ModulationPart::MODULATION) == 1);
static_assert(static_cast<int>(ModulationPart::NUMERIC_RATE) == 2);

TEST(ParseModulationDataString, Examples) {
  std::optional<std::string> const vht = "VHT-MCS 9 NSS 2 866.7";
  EXPECT_EQ(parse_modulation_data_string(vht, ModulationPart::MODULATION), "VHT-MCS 9 NSS 2");
  EXPECT_EQ(parse_modulation_data_string(vht, ModulationPart::NUMERIC_RATE), "866.7");
  std::optional<std::string> const ht0 = "HT-MCS 0 0.0";
  EXPECT_EQ(parse_modulation_data_string(ht0, ModulationPart::MODULATION), "HT-MCS 0");
  EXPECT_FALSE(parse_modulation_data_string(ht0, ModulationPart::NUMERIC_RATE));
  std::optional<std::string> const legacy = "54M";
  EXPECT_FALSE(parse_modulation_data_string(legacy, ModulationPart::MODULATION));
  EXPECT_FALSE(parse_modulation_data_string(legacy, ModulationPart::NUMERIC_RATE));
}

TEST(ParseModulationDataString, EmptyTextGivesEmpty) {
  EXPECT_FALSE(parse_modulation_data_string(std::nullopt, ModulationPart::MODULATION));
  EXPECT_FALSE(parse_modulation_data_string(std::nullopt, ModulationPart::NUMERIC_RATE));
  EXPECT_FALSE(parse_modulation_data_string(std::string(), ModulationPart::MODULATION));
}

TEST(ParseModulationDataString, SplitsAtTheLastWhiteSpaceRun) {
  std::optional<std::string> const text = "OFDM  6 \t 6.0";
  EXPECT_EQ(parse_modulation_data_string(text, ModulationPart::MODULATION), "OFDM  6");
  EXPECT_EQ(parse_modulation_data_string(text, ModulationPart::NUMERIC_RATE), "6.0");
  // White space at the start: the first group keeps its first character.
  std::optional<std::string> const leading = "   12";
  EXPECT_EQ(parse_modulation_data_string(leading, ModulationPart::MODULATION), " ");
  EXPECT_EQ(parse_modulation_data_string(leading, ModulationPart::NUMERIC_RATE), "12");
  // A line break may separate, but not stand in the first group.
  EXPECT_EQ(parse_modulation_data_string(std::string("MCS\n7"), ModulationPart::MODULATION), "MCS");
  EXPECT_FALSE(parse_modulation_data_string(std::string("A\nB 7"), ModulationPart::MODULATION));
  EXPECT_FALSE(parse_modulation_data_string(std::string("\r 7"), ModulationPart::MODULATION));
  EXPECT_FALSE(parse_modulation_data_string(std::string(" 7"), ModulationPart::MODULATION));
  EXPECT_FALSE(parse_modulation_data_string(std::string("MCS 7 "), ModulationPart::MODULATION));
  EXPECT_FALSE(parse_modulation_data_string(std::string("MCS 7M"), ModulationPart::NUMERIC_RATE));
}

TEST(ParseModulationDataString, NumericRateFollowsIntConversion) {
  auto const numeric = [](char const* text) {
    return parse_modulation_data_string(std::string(text), ModulationPart::NUMERIC_RATE);
  };
  EXPECT_EQ(numeric("MCS 866.7"), "866.7");
  EXPECT_EQ(numeric("MCS 007"), "007");
  EXPECT_EQ(numeric("MCS 1..2."), "1..2.");
  EXPECT_EQ(numeric("MCS 2147483647"), "2147483647");
  EXPECT_FALSE(numeric("MCS 2147483648"));           // beyond int
  EXPECT_FALSE(numeric("MCS 99999999999999999999")); // far beyond
  EXPECT_FALSE(numeric("MCS .5"));                   // no leading digit
  EXPECT_FALSE(numeric("MCS 0"));
  EXPECT_FALSE(numeric("MCS 000.9"));
  EXPECT_EQ(parse_modulation_data_string(std::string("MCS .5"), ModulationPart::MODULATION), "MCS");
}

TEST(ParseModulationDataString, UnknownPartGivesEmpty) {
  EXPECT_FALSE(
      parse_modulation_data_string(std::string("MCS 7 65.0"), static_cast<ModulationPart>(3)));
}

/// What the rate pattern and the int conversion give for one text and one part.
std::optional<std::string> reference_split(std::regex const& pattern, std::string const& text,
                                           ModulationPart part) {
  std::smatch match;
  if (!std::regex_match(text, match, pattern)) {
    return std::nullopt;
  }
  if (part == ModulationPart::MODULATION) {
    return match[1].str();
  }
  std::string number = match[2].str();
  try {
    if (std::stoi(number) == 0) {
      return std::nullopt;
    }
  } catch (std::exception const&) {
    return std::nullopt;
  }
  return number;
}

void expect_same_as_pattern(std::regex const& pattern, std::string const& text) {
  for (ModulationPart const part : {ModulationPart::MODULATION, ModulationPart::NUMERIC_RATE}) {
    std::optional<std::string> const expected = reference_split(pattern, text, part);
    std::optional<std::string> const actual = parse_modulation_data_string(text, part);
    ASSERT_EQ(actual, expected) << "text \"" << text << "\" part " << static_cast<int>(part);
  }
}

std::regex const& rate_pattern() {
  static std::regex const pattern(R"(^(.+?)\s+([\d.]+)$)",
                                  std::regex::ECMAScript | std::regex::icase);
  return pattern;
}

TEST(ParseModulationDataString, SameAsThePatternOnEveryShortText) {
  std::regex const& pattern = rate_pattern();
  std::vector<std::string> const texts = wlccw::test::all_texts("a9. \t\n\r-0", 6);
  ASSERT_GT(texts.size(), 500000U);
  for (std::string const& text : texts) {
    expect_same_as_pattern(pattern, text);
    if (HasFatalFailure()) {
      return;
    }
  }
}

TEST(ParseModulationDataString, SameAsThePatternOnOtherWhiteSpaceAndBytes) {
  std::regex const& pattern = rate_pattern();
  for (std::string const& text : wlccw::test::all_texts(std::string("x1\v\f\xff\0", 6), 5)) {
    expect_same_as_pattern(pattern, text);
    if (HasFatalFailure()) {
      return;
    }
  }
}

TEST(ParseModulationDataString, SameAsThePatternOnRateTexts) {
  std::regex const& pattern = rate_pattern();
  std::vector<std::string> const modulations{
      "VHT-MCS", "HT-MCS", "HE-MCS", "EHT-MCS", "OFDM", "CCK", "DSSS", "legacy", "", "MCS-", "a"};
  std::vector<std::string> const numbers{"0",
                                         "1",
                                         "7",
                                         "9",
                                         "11",
                                         "54",
                                         "0.0",
                                         "866.7",
                                         "72.2",
                                         ".5",
                                         "1.",
                                         "00",
                                         "2882.4",
                                         "6.5",
                                         "1..2",
                                         "2147483647",
                                         "2147483648",
                                         "4294967296",
                                         "0000000000001",
                                         "..",
                                         "."};
  std::vector<std::string> const spaces{" ", "  ", "\t", " \t ", "\n", "\r\n", "\v", "\f", ""};
  std::vector<std::string> const tails{"", "", "", "M", "Mbps", " ", "\n", "x"};
  std::mt19937 random(20240611U);
  auto const pick = [&random](std::vector<std::string> const& from) -> std::string const& {
    std::uniform_int_distribution<std::size_t> index(0, from.size() - 1);
    return from[index(random)];
  };
  for (int i = 0; i < 6000; ++i) {
    std::string text = i % 7 == 0 ? pick(spaces) : std::string();
    text += pick(modulations);
    if (i % 2 == 0) {
      text += pick(spaces) + pick(numbers) + pick(spaces) + "NSS" + pick(spaces) + pick(numbers);
    }
    text += pick(spaces) + pick(numbers) + pick(tails);
    expect_same_as_pattern(pattern, text);
    if (HasFatalFailure()) {
      return;
    }
  }
}

// ---- Cipher names
// --------------------------------------------------------------------------------

TEST(CipherFromNetconf, NoCipherIsEmptyOthersKept) {
  EXPECT_FALSE(cipher_from_netconf(std::nullopt));
  EXPECT_FALSE(cipher_from_netconf(std::string("no-cipher")));
  EXPECT_EQ(cipher_from_netconf(std::string("CCMP")), "CCMP");
  EXPECT_EQ(cipher_from_netconf(std::string("")), "");
  EXPECT_EQ(cipher_from_netconf(std::string("no-cipher ")), "no-cipher ");
  EXPECT_EQ(cipher_from_netconf(std::string("NO-CIPHER")), "NO-CIPHER");
}

} // namespace

namespace {

// Every sample client object of an AP, imported and written in IPC form, gives the IPC text kept
// beside it (reviewed by hand: key order, fallbacks of hostile values, decoded texts), and that
// text read back and written again gives the same text.
TEST(ClientSamples, EachSampleGivesItsExpectedIpcTextAndKeepsIt) {
  for (char const* name :
       {"netconf-full", "netconf-minimal", "netconf-rfc7951-strings", "netconf-html-escapes",
        "netconf-hostile", "mlo-ap-client-three-links"}) {
    wlccw::cfg::Tree const reply =
        parse_json(read_client_sample((std::string(name) + ".json").c_str()));
    std::string expected = read_client_sample((std::string(name) + ".ipc.json").c_str());
    ASSERT_FALSE(expected.empty()) << name;
    expected.pop_back(); // the file ends with a line break
    APClientData const client = APClientData::from_netconf_json(reply.get());
    std::string const ipc = client.to_json_str();
    EXPECT_EQ(ipc, expected) << name;
    EXPECT_EQ(APClientData::from_json_str(ipc).to_json_str(), ipc) << name;
  }
}

} // namespace
