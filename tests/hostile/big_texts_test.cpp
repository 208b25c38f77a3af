// Texts of hostile length given to the text readers: 1 MiB SSIDs, host names, MAC and version
// texts and HTML escapes, 64 MiB number and MAC lists and a 64 MiB attack report. Every one ends
// in the exact result or fallback of its reader: long texts are kept whole, a MAC text of the
// wrong length is the default address, a version keeps its suffix.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/APClientData.hpp>
#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/common/Version.hpp>
#include <wlccw/common/html.hpp>
#include <wlccw/common/tools.hpp>
#include <wlccw/ipc/Vap.hpp>
#include <wlccw/ipc/WidsAttackedAps.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>

#include <support/samples.hpp>

#include "hostile/hostile_support.hpp"
#include <boost/json.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using wlccw::test::k64MiB;
using wlccw::test::kMiB;
using wlccw::test::kUnderThreadSanitizer;

using wlccw::cfg::Tree;

/// "&#x" + two lower-case hexadecimal digits + ";": the escape of one byte.
std::string byte_escape(unsigned value) {
  char text[8];
  std::snprintf(text, sizeof text, "&#x%02x;", value & 0xFFU);
  return text;
}

/// What the cleaner makes of one byte: control bytes become ".", every other byte stays.
char cleaned(unsigned char byte) {
  return byte < 0x20 || byte == 0x7F ? '.' : static_cast<char>(byte);
}

/// The piece repeated as few times as make the text at least `size` bytes long (by doubling, so
/// that building 64 MiB takes few appends).
std::string repeated(std::string const& piece, std::size_t size) {
  std::string text = piece;
  text.reserve(size + piece.size());
  while (text.size() < size) {
    std::size_t const missing = (size - text.size() + piece.size() - 1) / piece.size();
    text.append(text, 0, std::min(text.size(), missing * piece.size()));
  }
  return text;
}

/// An SSID as an AP escapes it, and the same SSID decoded: 1 MiB of plain letters framed by an
/// escaped letter, an escaped tab and a two-byte UTF-8 character written as two escapes.
struct EscapedText {
  std::string escaped;
  std::string decoded;
};
EscapedText mebibyte_text(char fill) {
  std::string const body(kMiB, fill);
  return {"&#x41;" + body + "&#x09;&#xc3;&#xa9;", "A" + body + ".\xc3\xa9"};
}

// ---- HTML decoding ----------------------------------------------------------------------------

TEST(HostileTexts, DecodesAMebibyteOfByteEscapes) {
  std::string escaped;
  std::string expected;
  for (unsigned value = 0; escaped.size() < kMiB; value = (value + 1) % 256) {
    escaped += byte_escape(value);
    expected += cleaned(static_cast<unsigned char>(value));
  }
  EXPECT_EQ(external_data::ap::decode_html_safe(std::string_view(escaped)), expected);
  EXPECT_EQ(external_data::ap::decode_html_safe(escaped.c_str()), expected);
  EXPECT_EQ(external_data::ap::decode_html_safe_opt(escaped), expected);
}

TEST(HostileTexts, KeepsAMebibyteOfMalformedEscapesAsText) {
  for (std::string const& piece :
       {std::string("&#x041;"), std::string("&"), std::string("&#x4"), std::string("&#x;"),
        std::string("&#41;"), std::string("&amp;")}) {
    std::string const text = repeated(piece, kMiB) + "&#x41"; // ends in an escape without ";"
    EXPECT_EQ(external_data::ap::decode_html_safe(std::string_view(text)), text) << piece;
  }
}

TEST(HostileTexts, ReplacesEveryControlByteOfAMebibyte) {
  std::string text(kMiB, '\t');
  text += "\x7f"
          "end";
  EXPECT_EQ(external_data::ap::decode_html_safe(std::string_view(text)),
            std::string(kMiB + 1, '.') + "end");
}

// ---- 1 MiB SSIDs and host names ---------------------------------------------------------------

TEST(HostileTexts, NetconfClientKeepsAMebibyteSsidAndHostnameWhole) {
  EscapedText const ssid = mebibyte_text('s');
  EscapedText const hostname = mebibyte_text('h');
  std::string const reply = R"({"hw-addr":"aa:bb:cc:dd:ee:01","interface":"wlan0","ssid":")" +
                            ssid.escaped + R"(","hostname":")" + hostname.escaped +
                            R"(","username":")" + hostname.escaped + R"("})";
  Tree const root = wlccw::test::parse_json(reply);
  ASSERT_NE(root, nullptr);
  APClientData const client = APClientData::from_netconf_json(root.get());
  EXPECT_EQ(client.ssid, ssid.decoded);
  EXPECT_EQ(client.hostname, hostname.decoded);
  EXPECT_EQ(client.username, hostname.decoded);

  // The IPC form carries the decoded texts whole and reads back to an equal record.
  APClientData const back = APClientData::from_json_str(client.to_json_str());
  EXPECT_EQ(back, client);
  EXPECT_EQ(back.ssid.size(), kMiB + 4);
}

TEST(HostileTexts, IpcClientTakesAMebibyteSsidAsItStands) {
  EscapedText const ssid = mebibyte_text('s');
  APClientData const client = APClientData::from_json_str(
      R"({"mac":"aa:bb:cc:dd:ee:01","interface":"wlan0","ssid":")" + ssid.escaped + R"("})");
  EXPECT_EQ(client.ssid, ssid.escaped);
}

TEST(HostileTexts, NetconfVapDecodesAMebibyteSsidAndIpcVapKeepsIt) {
  EscapedText const ssid = mebibyte_text('v');
  Tree const netconf = wlccw::test::parse_json(
      R"({"rfid":0,"wid":1,"name":"wlan0-vap1","radio":"wifi0","enabled":true,"ssid":")" +
      ssid.escaped + R"(","bssid":"a4:5d:36:10:20:31","auth-type":"WPA2","client-count":3})");
  ASSERT_NE(netconf, nullptr);
  std::optional<Vap> const vap = Vap::from_netconf_json(*netconf);
  ASSERT_TRUE(vap.has_value());
  EXPECT_EQ(vap->ssid, ssid.decoded);

  Tree const ipc = wlccw::test::parse_json(
      R"({"rfid":0,"wid":1,"interface":"wlan0-vap1","radio":"wifi0","band":"5","enabled":true,)"
      R"("ssid":")" +
      ssid.escaped + R"(","bssid":"a4:5d:36:10:20:31","auth-type":"WPA2"})");
  ASSERT_NE(ipc, nullptr);
  std::optional<Vap> const from_ipc = Vap::from_json(*ipc);
  ASSERT_TRUE(from_ipc.has_value());
  EXPECT_EQ(from_ipc->ssid, ssid.escaped);

  // Written and read back, the decoded SSID survives whole.
  Tree const written = wlccw::cfg::make_object();
  vap->to_json(*written);
  std::optional<Vap> const back = Vap::from_json(*written);
  ASSERT_TRUE(back.has_value());
  EXPECT_EQ(back->ssid, ssid.decoded);
}

TEST(HostileTexts, NeighbourSsidsOfAMebibyteAreDecodedWhole) {
  EscapedText const first = mebibyte_text('n');
  EscapedText const second = mebibyte_text('m');
  Tree const node = wlccw::test::parse_json(
      R"({"neighbor-ap":[{"bssid":"a4:5d:36:10:20:30","ssid":")" + first.escaped +
      R"(","channel":6},{"bssid":"a4:5d:36:10:20:31","ssid":")" + second.escaped + R"("}]})");
  ASSERT_NE(node, nullptr);
  std::shared_ptr<NcIpcApMonitoringApNeighbours> const neighbours =
      NcIpcApMonitoringApNeighbours::from_netconf(*node);
  ASSERT_NE(neighbours, nullptr);
  ASSERT_EQ(neighbours->neighbours.size(), 2U);
  EXPECT_EQ(neighbours->neighbours[0].ssid, first.decoded);
  EXPECT_EQ(neighbours->neighbours[1].ssid, second.decoded);
  std::shared_ptr<NcIpcApMonitoringApNeighbours> const back =
      NcIpcApMonitoringApNeighbours::from_ipc(neighbours->to_ipc());
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(*back, *neighbours);
}

// ---- 1 MiB MAC and IPv4 texts -----------------------------------------------------------------

TEST(HostileTexts, MebibyteMacTextIsTheDefaultAddress) {
  std::string const text = repeated("aa:bb:cc:dd:ee:ff:", kMiB);
  for (MacAddr const& mac :
       {MacAddr::from_str(text.c_str()), MacAddr::from_str(text.data(), text.size()),
        boost::json::value_to<MacAddr>(boost::json::value(text))}) {
    EXPECT_FALSE(mac.valid);
    EXPECT_EQ(mac.str(), "00:00:00:00:00:00");
  }
  // An explicit length of 17 or 12 reads only that much of the long buffer.
  MacAddr const colon = MacAddr::from_str(text.data(), 17);
  EXPECT_TRUE(colon.valid);
  EXPECT_EQ(colon.str(), "aa:bb:cc:dd:ee:ff");
  std::string const digits(kMiB, 'A');
  MacAddr const bare = MacAddr::from_str(digits.data(), 12);
  EXPECT_TRUE(bare.valid);
  EXPECT_EQ(bare.str(), "aa:aa:aa:aa:aa:aa");
  EXPECT_FALSE(MacAddr::from_str(digits.c_str()).valid);
  EXPECT_TRUE(tools::string_to_macs(text, ';').empty());
}

TEST(HostileTexts, MebibyteMacTextInRecordsGivesTheirFallbacks) {
  std::string const text = repeated("AABBCCDDEEFF", kMiB);
  Tree const client =
      wlccw::test::parse_json(R"({"hw-addr":")" + text + R"(","interface":"wlan0","ssid":"Net"})");
  ASSERT_NE(client, nullptr);
  try {
    (void)APClientData::from_netconf_json(client.get());
    ADD_FAILURE() << "a client with a 1 MiB MAC text was accepted";
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "parameter 'mac' is not valid");
  }

  Tree const node = wlccw::test::parse_json(R"({"interface":[{"name":"eth0","hwaddr":")" + text +
                                            R"("}],"ethernet-ports":[{"mac-address":")" + text +
                                            R"("}],"neighbor-ap":[{"bssid":")" + text + R"("}]})");
  ASSERT_NE(node, nullptr);
  std::shared_ptr<NcIpcApMonitoringInterfaces> const interfaces =
      NcIpcApMonitoringInterfaces::from_netconf(*node);
  ASSERT_NE(interfaces, nullptr);
  ASSERT_EQ(interfaces->interfaces.size(), 1U);
  EXPECT_FALSE(interfaces->interfaces[0].hwaddr.valid);
  // Written back as the all-zero address.
  EXPECT_EQ(interfaces->to_ipc(),
            R"([{"name":"eth0","hwaddr":"00:00:00:00:00:00","operstate":"","speed":0,"duplex":"",)"
            R"("tx-actual-rate":0,"rx-actual-rate":0,"tx-bytes":0,"rx-bytes":0,"tx-packets":0,)"
            R"("rx-packets":0,"tx-errors":0,"rx-errors":0,"tx-drop":0,"rx-drop":0}])");
  std::shared_ptr<NcIpcApMonitoringEthernetPorts> const ports =
      NcIpcApMonitoringEthernetPorts::from_netconf(*node);
  ASSERT_NE(ports, nullptr);
  ASSERT_EQ(ports->ethernet_ports.size(), 1U);
  EXPECT_FALSE(ports->ethernet_ports[0].mac_address.valid);
  std::shared_ptr<NcIpcApMonitoringApNeighbours> const neighbours =
      NcIpcApMonitoringApNeighbours::from_netconf(*node);
  ASSERT_NE(neighbours, nullptr);
  ASSERT_EQ(neighbours->neighbours.size(), 1U);
  EXPECT_FALSE(neighbours->neighbours[0].bssid.valid);

  // An enabled NETCONF VAP with such a "bssid" is refused.
  Tree const vap = wlccw::test::parse_json(
      R"({"rfid":0,"wid":1,"enabled":true,"auth-type":"WPA2","bssid":")" + text + R"("})");
  ASSERT_NE(vap, nullptr);
  EXPECT_FALSE(Vap::from_netconf_json(*vap).has_value());
}

TEST(HostileTexts, MebibyteIpv4TextIsRefused) {
  std::string const text = repeated("192.168.1.1.", kMiB);
  IpAddr address;
  address = text.c_str();
  EXPECT_FALSE(address.valid);
  EXPECT_EQ(address.str(), "0.0.0.0");
  IpAddr const from_json = boost::json::value_to<IpAddr>(boost::json::value(text));
  EXPECT_FALSE(from_json.valid);
}

// ---- 1 MiB version texts ----------------------------------------------------------------------

TEST(HostileTexts, VersionWithAMebibyteSuffixKeepsItsNumbersAndText) {
  std::string const text = "6.4.12-" + std::string(kMiB, 'x');
  Version const version = Version::parse(text);
  EXPECT_EQ(version.to_string(), "6.4.12");
  std::optional<Version> const tried = Version::try_parse(text);
  ASSERT_TRUE(tried.has_value());
  EXPECT_EQ(tried->text(), text);
  EXPECT_EQ(VersionRaw::parse(text).to_string(), "6.4.12");
}

TEST(HostileTexts, VersionWithAMebibyteOfLeadingZerosParses) {
  std::string const text = std::string(kMiB, '0') + "1.2.3";
  EXPECT_EQ(VersionRaw::parse(text).to_string(), "1.2.3");
}

/// The message of the std::invalid_argument that Version::parse throws for text.
std::string version_error(std::string const& text) {
  try {
    (void)Version::parse(text);
  } catch (std::invalid_argument const& e) {
    return e.what();
  }
  return "no exception";
}

TEST(HostileTexts, MebibyteVersionTextsFailWithTheirMessages) {
  std::string const digits(kMiB, '1');
  EXPECT_EQ(version_error(digits), "Invalid version format: '" + digits + "'");
  std::string const huge = digits + ".2.3";
  EXPECT_EQ(version_error(huge), "Version number too large: '" + huge + "'");
  std::string const line_break = "1.2.3" + std::string(kMiB, ' ') + "\n";
  EXPECT_EQ(version_error(line_break), "Invalid version format: '" + line_break + "'");
  std::string const dots(kMiB, '.');
  EXPECT_EQ(version_error(dots), "Invalid version format: '" + dots + "'");
  EXPECT_FALSE(VersionRaw::try_parse(huge).has_value());
  EXPECT_FALSE(Version::try_parse(dots).has_value());
}

// ---- 64 MiB lists -----------------------------------------------------------------------------

TEST(HostileTexts, SixtyFourMebibyteListOfIntegers) {
  // Pieces of about 100 bytes: leading blanks (skipped), a signed number, sometimes trailing text
  // (ignored).
  std::string const blanks(90, ' ');
  std::string text;
  text.reserve(k64MiB + 128);
  std::vector<int> expected;
  for (int i = 0; text.size() < k64MiB; ++i) {
    int const value =
        (i % 2 == 0 ? 1 : -1) * static_cast<int>(static_cast<long long>(i) * 7919 % 2'000'000'000);
    text += blanks;
    text += std::to_string(value);
    text += i % 3 == 0 ? "x," : ",";
    expected.push_back(value);
  }
  EXPECT_EQ(tools::string_to_ints(text, ','), expected);
}

TEST(HostileTexts, SixtyFourMebibytePiecesOfIntegerText) {
  std::string const digits(k64MiB, '7');
  EXPECT_THROW((void)tools::string_to_ints(digits, ','), std::out_of_range);
  std::string const blanks = std::string(k64MiB, ' ') + "-42";
  EXPECT_EQ(tools::string_to_ints(blanks, ','), std::vector<int>{-42});
  std::string const zeros = std::string(k64MiB, '0') + "42,1";
  EXPECT_EQ(tools::string_to_ints(zeros, ','), (std::vector<int>{42, 1}));
  std::string const delimiters(k64MiB, ',');
  EXPECT_THROW((void)tools::string_to_ints(delimiters, ','), std::invalid_argument);
}

TEST(HostileTexts, SixtyFourMebibyteListOfMacAddresses) {
  // Valid addresses in both forms and cases between long pieces that are no address.
  std::string const junk(200, 'z');
  std::string text;
  text.reserve(k64MiB + 256);
  std::vector<MacAddr> expected;
  char piece[32];
  for (unsigned i = 0; text.size() < k64MiB; ++i) {
    unsigned const low = i & 0xFFFFFFU;
    if (i % 2 == 0) {
      std::snprintf(piece, sizeof piece, "02:00:5E:%02X:%02x:%02X", (low >> 16) & 0xFFU,
                    (low >> 8) & 0xFFU, low & 0xFFU);
    } else {
      std::snprintf(piece, sizeof piece, "02005e%02x%02X%02x", (low >> 16) & 0xFFU,
                    (low >> 8) & 0xFFU, low & 0xFFU);
    }
    text += piece;
    text += ';';
    text += junk;
    text += i % 3 == 0 ? ";zz:bb:cc:dd:ee:ff;" : ";"; // not hexadecimal: dropped
    expected.push_back(MacAddr::from_str(piece));
  }
  std::vector<MacAddr> const macs = tools::string_to_macs(text, ';');
  ASSERT_EQ(macs.size(), expected.size());
  EXPECT_EQ(macs, expected);
  EXPECT_TRUE(macs.back().valid);
  EXPECT_TRUE(tools::string_to_macs(std::string(k64MiB, ';'), ';').empty());
}

TEST(HostileTexts, SplitsSixtyFourMebibytesIntoPieces) {
  std::string const text = repeated(std::string(1000, 'p') + ",,", k64MiB);
  std::vector<std::string> const pieces = tools::split_str(text, ',');
  ASSERT_EQ(pieces.size(), text.size() / 1002 * 2);
  EXPECT_EQ(pieces[0], std::string(1000, 'p'));
  EXPECT_EQ(pieces[1], "");
  EXPECT_EQ(pieces.back(), ""); // the last delimiter adds no piece after it
}

// ---- 64 MiB attack reports --------------------------------------------------------------------

TEST(HostileTexts, SixtyFourMebibyteAttackReportFindsEveryReport) {
  // Reports between about 200 bytes of text that holds none: near misses (a hyphenated address,
  // two blanks, a bare "ap") and plain text.
  std::string const filler =
      ", ap 00-11-22-33-44-55 at channel 1, ap  ap 00:11:22:33:44:55 at  channel 2, map " +
      std::string(120, '.') + "; ";
  std::string text;
  text.reserve(k64MiB + 512);
  std::vector<std::pair<MacAddr, int>> expected;
  char report[64];
  for (unsigned i = 0; text.size() < k64MiB; ++i) {
    unsigned const low = i & 0xFFFFFFU;
    int const channel = static_cast<int>(i % 200);
    std::snprintf(report, sizeof report, "ap 00:1A:2b:%02x:%02X:%02x at channel %d",
                  (low >> 16) & 0xFFU, (low >> 8) & 0xFFU, low & 0xFFU, channel);
    text += report;
    text += filler;
    expected.emplace_back(MacAddr::from_str(report + 3, 17), channel);
  }
  std::vector<std::pair<MacAddr, int>> const found = parse_attacked_aps(text);
  ASSERT_EQ(found.size(), expected.size());
  EXPECT_EQ(found, expected);
  EXPECT_EQ(WidsAttackedAps::netconf_deserialize(text).attacked_aps, expected);
}

TEST(HostileTexts, SixtyFourMebibytesWithoutAReportFindNothing) {
  if (kUnderThreadSanitizer) {
    GTEST_SKIP() << "too slow under ThreadSanitizer; runs in the other builds";
  }

  EXPECT_TRUE(parse_attacked_aps(repeated("ap ", k64MiB)).empty());
  EXPECT_TRUE(parse_attacked_aps(repeated("ap 00:11:22:33:44:55 at channel x", k64MiB)).empty());
  EXPECT_TRUE(parse_attacked_aps(std::string(k64MiB, 'a')).empty());
}

TEST(HostileTexts, SixtyFourMebibyteChannelNumbers) {
  std::string const prefix = "ap 00:11:22:33:44:55 at channel ";
  EXPECT_THROW((void)parse_attacked_aps(prefix + std::string(k64MiB, '9')), std::out_of_range);
  std::vector<std::pair<MacAddr, int>> const zeros =
      parse_attacked_aps(prefix + std::string(k64MiB, '0') + "149");
  ASSERT_EQ(zeros.size(), 1U);
  EXPECT_EQ(zeros[0].first.str(), "00:11:22:33:44:55");
  EXPECT_EQ(zeros[0].second, 149);
}

} // namespace
