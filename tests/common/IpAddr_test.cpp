#include <wlccw/common/IpAddr.hpp>

#include <boost/json.hpp>
#include <boost/system/system_error.hpp>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using Octets = std::array<std::uint8_t, 4>;

IpAddr parsed(char const* text) {
  IpAddr ip;
  ip = text;
  return ip;
}

void expect_refused(char const* text) {
  IpAddr const ip = parsed(text);
  EXPECT_FALSE(ip.valid) << (text != nullptr ? text : "(null)");
  EXPECT_EQ(ip.octets, Octets{}) << (text != nullptr ? text : "(null)");
}

void expect_accepted(char const* text, Octets const& octets) {
  IpAddr const ip = parsed(text);
  EXPECT_TRUE(ip.valid) << text;
  EXPECT_EQ(ip.octets, octets) << text;
}

// The reading rules written out directly over the C library, as the reference for the parser.
IpAddr reference(char const* text) {
  IpAddr ip;
  if (text == nullptr || std::strchr(text, '-') != nullptr || std::strchr(text, '.') == nullptr ||
      std::strlen(text) > 15) {
    return ip;
  }
  short n[4] = {};
  if (std::sscanf(text, "%hi.%hi.%hi.%hi", &n[0], &n[1], &n[2], &n[3]) != 4) {
    return ip;
  }
  if (n[0] > 255 || n[1] > 255 || n[2] > 255 || n[3] > 255) {
    return ip;
  }
  for (std::size_t i = 0; i < 4; ++i) {
    ip.octets[i] = static_cast<std::uint8_t>(n[i] & 0xff);
  }
  ip.valid = true;
  return ip;
}

} // namespace

// ---- The value type -----------------------------------------------------------------------------

TEST(IpAddr, IsASmallTriviallyCopyableValue) {
  static_assert(std::is_trivially_copyable_v<IpAddr>);
  static_assert(std::is_same_v<decltype(IpAddr::octets), std::array<std::uint8_t, 4>>);
  static_assert(std::is_same_v<decltype(IpAddr::valid), bool>);
  EXPECT_LE(sizeof(IpAddr), 8U);
}

TEST(IpAddr, DefaultValueIsInvalidAndAllZero) {
  IpAddr const ip;
  EXPECT_FALSE(ip.valid);
  EXPECT_EQ(ip.octets, Octets{});
}

TEST(IpAddr, DefaultValuePrintsAllZero) {
  EXPECT_EQ(IpAddr{}.str(), "0.0.0.0");
}

// The text form is "%u.%u.%u.%u" of the octets; str() and format() write it for every value an
// octet can take, at every place.
TEST(IpAddr, TextFormIsTheDecimalOctetsJoinedByDots) {
  for (unsigned value = 0; value <= 255; ++value) {
    for (std::size_t place = 0; place < 4; ++place) {
      IpAddr ip;
      ip.octets = {1, 22, 133, 4};
      ip.octets[place] = static_cast<std::uint8_t>(value);
      char expected[64];
      std::snprintf(expected, sizeof expected, "%u.%u.%u.%u", unsigned{ip.octets[0]},
                    unsigned{ip.octets[1]}, unsigned{ip.octets[2]}, unsigned{ip.octets[3]});
      EXPECT_EQ(ip.str(), expected);
      char formatted[16];
      ip.format(formatted);
      EXPECT_STREQ(formatted, expected);
    }
  }
  IpAddr widest;
  widest.octets = {255, 255, 255, 255};
  char formatted[16];
  widest.format(formatted);
  EXPECT_STREQ(formatted, "255.255.255.255");
  IpAddr{}.format(formatted);
  EXPECT_STREQ(formatted, "0.0.0.0");
}

TEST(IpAddr, EqualityComparesBothFields) {
  EXPECT_EQ(parsed("10.1.2.3"), parsed("10.1.2.3"));
  EXPECT_NE(parsed("10.1.2.3"), parsed("10.1.2.4"));
  // A parsed 0.0.0.0 is valid, the default value is not.
  EXPECT_NE(parsed("0.0.0.0"), IpAddr{});
  EXPECT_EQ(parsed("garbage"), IpAddr{});
}

// ---- Parsing ------------------------------------------------------------------------------------

TEST(IpAddr, DottedQuadIsAccepted) {
  expect_accepted("192.168.1.1", {192, 168, 1, 1});
  expect_accepted("0.0.0.0", {0, 0, 0, 0});
  expect_accepted("255.255.255.255", {255, 255, 255, 255});
  expect_accepted("1.2.3.4", {1, 2, 3, 4});
}

TEST(IpAddr, AssignmentReturnsItself) {
  IpAddr ip;
  IpAddr& same = (ip = "10.0.0.1");
  EXPECT_EQ(&same, &ip);
}

TEST(IpAddr, NumberAbove255IsRefused) {
  expect_refused("192.168.1.256");
  expect_refused("256.1.1.1");
  expect_refused("1.999.1.1");
  expect_refused("1.1.1.300");
}

TEST(IpAddr, FewerThanFourNumbersAreRefused) {
  expect_refused("1.2.3");
  expect_refused("1.2.3.");
  expect_refused("1..2.3");
  expect_refused(".1.2.3");
  expect_refused("1.2.3.x");
  expect_refused(".");
}

TEST(IpAddr, DashAnywhereIsRefused) {
  expect_refused("-1.2.3.4");
  expect_refused("1.2.3.-4");
  expect_refused("1.2.3.4-"); // even in the trailing text that is otherwise ignored
  expect_refused("1.2.3.4 -");
}

TEST(IpAddr, TextWithoutADotIsRefused) {
  expect_refused("1921681");
  expect_refused("");
  expect_refused("0x01020304");
}

TEST(IpAddr, TextLongerThanFifteenCharactersIsRefused) {
  expect_refused("192.168.100.100.1");              // 17 characters
  expect_refused("1.2.3.4         ");               // 16 characters
  expect_accepted("1.2.3.4        ", {1, 2, 3, 4}); // 15 characters
  expect_refused("001.002.003.0044");
  expect_accepted("01.02.03.004abc", {1, 2, 3, 4});
}

TEST(IpAddr, NullIsRefused) {
  expect_refused(nullptr);
}

TEST(IpAddr, LeadingZeroReadsOctal) {
  expect_accepted("010.0.0.1", {8, 0, 0, 1});
  expect_accepted("0377.0.0.01", {255, 0, 0, 1});
  expect_refused("0400.0.0.1"); // 256
  // 8 is no octal digit: the first number ends at "0" and the "." is missing.
  expect_refused("08.1.1.1");
}

TEST(IpAddr, LeadingZeroXReadsHexadecimal) {
  expect_accepted("0x10.1.1.1", {16, 1, 1, 1});
  expect_accepted("0xff.0XFF.0xA.1", {255, 255, 10, 1});
  expect_refused("0x100.1.1.1"); // 256
}

TEST(IpAddr, SpacesBeforeANumberAreSkipped) {
  expect_accepted(" 1. 2. 3. 4", {1, 2, 3, 4});
  expect_accepted("\t1.2.3.4", {1, 2, 3, 4});
  expect_refused("1 .2.3.4"); // the "." must follow the number
}

TEST(IpAddr, PlusSignIsAccepted) {
  expect_accepted("+1.2.3.+4", {1, 2, 3, 4});
}

TEST(IpAddr, TrailingTextIsIgnored) {
  expect_accepted("1.2.3.4junk", {1, 2, 3, 4});
  expect_accepted("1.2.3.4.5", {1, 2, 3, 4});
  expect_accepted("10.0.0.1/24", {10, 0, 0, 1});
}

TEST(IpAddr, AssignmentResetsBeforeParsing) {
  IpAddr ip;
  ip = "10.20.30.40";
  ASSERT_TRUE(ip.valid);
  ip = "garbage";
  EXPECT_FALSE(ip.valid);
  EXPECT_EQ(ip.octets, Octets{});
  ip = "10.20.30.40";
  ip = static_cast<char const*>(nullptr);
  EXPECT_FALSE(ip.valid);
  EXPECT_EQ(ip.octets, Octets{});
  ip = "10.20.30.40";
  ip = "1.2.3.256";
  EXPECT_FALSE(ip.valid);
  EXPECT_EQ(ip.octets, Octets{});
}

TEST(IpAddr, AgreesWithTheCLibraryReadingOnStructuredInputs) {
  std::vector<std::string> parts{
      "0",    "1",   "9",     "10",    "007",   "010",    "08",     "0x",     "0xg", "0x1f",
      "0XFF", "255", "256",   "0377",  "0400",  "65535",  "+5",     " 12",    "12 ", "",
      "a",    "1e2", "99999", "32767", "32768", "0x7fff", "0x8000", "0xffff", "1x",  "00"};
  std::size_t checked = 0;
  for (std::string const& a : parts) {
    for (std::string const& b : {std::string("1"), std::string("0x10"), std::string("256")}) {
      for (std::string const& d : parts) {
        std::string const text = a + "." + b + ".3." + d;
        IpAddr const ip = parsed(text.c_str());
        IpAddr const ref = reference(text.c_str());
        ASSERT_EQ(ip.valid, ref.valid) << text;
        ASSERT_EQ(ip.octets, ref.octets) << text;
        ++checked;
      }
    }
  }
  EXPECT_GT(checked, 2000U);
}

TEST(IpAddr, AgreesWithTheCLibraryReadingOnRandomInputs) {
  // Half the inputs are random characters; the other half are four random number-like tokens
  // joined by dots with random decoration, so that the accepting path is reached often.
  static constexpr char alphabet[] = "0123456789.........xX-+ afAF";
  static constexpr char const* prefixes[] = {"", "", "", "0", "0x", "0X", " ", "+", "-", "00"};
  static constexpr char const* suffixes[] = {"", "", "", "", "junk", ".", " ", "-", "/8", "x"};
  std::mt19937 rng(2024);
  std::uniform_int_distribution<std::size_t> pick(0, sizeof alphabet - 2);
  std::uniform_int_distribution<std::size_t> length(0, 20);
  std::uniform_int_distribution<std::size_t> decoration(0, 9);
  std::uniform_int_distribution<unsigned> number(0, 300);
  std::size_t accepted = 0;
  std::size_t refused = 0;
  for (int i = 0; i < 100000; ++i) {
    std::string text;
    if (i % 2 == 0) {
      text.assign(length(rng), ' ');
      for (char& c : text) {
        c = alphabet[pick(rng)];
      }
    } else {
      for (int k = 0; k < 4; ++k) {
        if (k > 0) {
          text += '.';
        }
        char const* prefix = prefixes[decoration(rng)];
        unsigned const n = number(rng);
        text += prefix;
        text += std::string_view(prefix).find('x') != std::string_view::npos ||
                        std::string_view(prefix).find('X') != std::string_view::npos
                    ? (std::ostringstream() << std::hex << n).str()
                    : std::to_string(n);
      }
      text += suffixes[decoration(rng)];
    }
    IpAddr const ip = parsed(text.c_str());
    IpAddr const ref = reference(text.c_str());
    ASSERT_EQ(ip.valid, ref.valid) << '"' << text << '"';
    ASSERT_EQ(ip.octets, ref.octets) << '"' << text << '"';
    (ip.valid ? accepted : refused) += 1;
  }
  // Both paths are exercised in earnest.
  EXPECT_GT(accepted, 1000U);
  EXPECT_GT(refused, 5000U);
}

// ---- Text form ----------------------------------------------------------------------------------

TEST(IpAddr, TextFormIsFourUnsignedDecimals) {
  EXPECT_EQ(parsed("192.168.1.1").str(), "192.168.1.1");
  EXPECT_EQ(parsed("010.0x10.0.255").str(), "8.16.0.255");
  EXPECT_EQ(parsed("255.255.255.255").str(), "255.255.255.255");
}

TEST(IpAddr, TextFormIgnoresTheValidFlag) {
  IpAddr ip;
  ip.octets = {172, 16, 0, 254};
  EXPECT_FALSE(ip.valid);
  EXPECT_EQ(ip.str(), "172.16.0.254");
}

TEST(IpAddr, TextFormReadsBackForEveryOctetValue) {
  for (unsigned v = 0; v < 256; ++v) {
    IpAddr ip;
    auto const o = static_cast<std::uint8_t>(v);
    ip.octets = {o, static_cast<std::uint8_t>(255 - v), 0, o};
    std::string const text = ip.str();
    char expected[64];
    std::snprintf(expected, sizeof expected, "%u.%u.0.%u", v, 255 - v, v);
    ASSERT_EQ(text, expected);
    IpAddr const back = parsed(text.c_str());
    ASSERT_TRUE(back.valid);
    ASSERT_EQ(back.octets, ip.octets);
  }
}

// ---- JSON conversions ---------------------------------------------------------------------------

TEST(IpAddr, JsonWriterStoresTheTextForm) {
  boost::json::value const jv = boost::json::value_from(parsed("10.0.0.1"));
  ASSERT_TRUE(jv.is_string());
  EXPECT_EQ(jv.as_string(), "10.0.0.1");
  boost::json::value const def = boost::json::value_from(IpAddr{});
  ASSERT_TRUE(def.is_string());
  EXPECT_EQ(def.as_string(), "0.0.0.0");
}

TEST(IpAddr, JsonReaderParsesByTheSameRules) {
  IpAddr const ip = boost::json::value_to<IpAddr>(boost::json::value("010.0.0.1"));
  EXPECT_TRUE(ip.valid);
  EXPECT_EQ(ip.octets, (Octets{8, 0, 0, 1}));
  IpAddr const trailing = boost::json::value_to<IpAddr>(boost::json::value("1.2.3.4junk"));
  EXPECT_TRUE(trailing.valid);
  EXPECT_EQ(trailing.octets, (Octets{1, 2, 3, 4}));
}

TEST(IpAddr, JsonRoundTripsInsideContainers) {
  std::vector<IpAddr> const ips{parsed("1.2.3.4"), parsed("192.168.0.1")};
  boost::json::value const jv = boost::json::value_from(ips);
  EXPECT_EQ(boost::json::serialize(jv), R"(["1.2.3.4","192.168.0.1"])");
  EXPECT_EQ(boost::json::value_to<std::vector<IpAddr>>(jv), ips);
}

TEST(IpAddr, JsonReaderGivesTheDefaultForABadString) {
  for (char const* text : {"garbage", "", "1.2.3", "-1.2.3.4", "192.168.1.256"}) {
    IpAddr ip;
    EXPECT_NO_THROW(ip = boost::json::value_to<IpAddr>(boost::json::value(text))) << text;
    EXPECT_FALSE(ip.valid) << text;
    EXPECT_EQ(ip.octets, Octets{}) << text;
  }
}

TEST(IpAddr, JsonReaderThrowsForAValueThatIsNotAString) {
  EXPECT_THROW((void)boost::json::value_to<IpAddr>(boost::json::value(42)),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<IpAddr>(boost::json::value(false)),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<IpAddr>(boost::json::value(nullptr)),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<IpAddr>(boost::json::parse(R"(["1.2.3.4"])")),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<IpAddr>(boost::json::parse(R"({"ip":"1.2.3.4"})")),
               boost::system::system_error);
}
