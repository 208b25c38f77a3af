#include <wlccw/common/MacAddr.hpp>

#include <boost/json.hpp>
#include <boost/system/system_error.hpp>
#include <gtest/gtest.h>

#include <array>
#include <compare>
#include <cstdio>
#include <cstring>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

using Bytes = std::array<unsigned char, 6>;

MacAddr make(Bytes const& bytes, bool valid = true) {
  MacAddr mac;
  mac.bytes = bytes;
  mac.valid = valid;
  return mac;
}

void expect_refused(char const* text) {
  MacAddr const mac = MacAddr::from_str(text);
  EXPECT_FALSE(mac.valid) << text;
  EXPECT_EQ(mac.bytes, Bytes{}) << text;
}

// The text form written independently of the library, for comparison.
std::string reference_text(Bytes const& b) {
  char text[32];
  std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", unsigned{b[0]}, unsigned{b[1]},
                unsigned{b[2]}, unsigned{b[3]}, unsigned{b[4]}, unsigned{b[5]});
  return text;
}

bool is_hex_digit(int c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

} // namespace

// ---- The value type -----------------------------------------------------------------------------

TEST(MacAddr, IsASmallTriviallyCopyableValue) {
  static_assert(std::is_trivially_copyable_v<MacAddr>);
  static_assert(std::is_nothrow_default_constructible_v<MacAddr>);
  static_assert(std::is_same_v<decltype(MacAddr::bytes), std::array<unsigned char, 6>>);
  static_assert(std::is_same_v<decltype(MacAddr::valid), bool>);
  EXPECT_LE(sizeof(MacAddr), 8U);
}

TEST(MacAddr, DefaultValueIsInvalidAndAllZero) {
  MacAddr const mac;
  EXPECT_FALSE(mac.valid);
  EXPECT_EQ(mac.bytes, Bytes{});
}

TEST(MacAddr, DefaultValuePrintsAllZero) {
  EXPECT_EQ(MacAddr{}.str(), "00:00:00:00:00:00");
}

TEST(MacAddr, CopiesCarryBothFields) {
  MacAddr const original = MacAddr::from_str("01:02:03:04:05:06");
  MacAddr copy;
  copy = original;
  EXPECT_TRUE(copy.valid);
  EXPECT_EQ(copy.bytes, (Bytes{1, 2, 3, 4, 5, 6}));
}

// ---- Parsing ------------------------------------------------------------------------------------

TEST(MacAddr, MixedCaseColonFormIsAcceptedAndPrintsLowerCase) {
  MacAddr const mac = MacAddr::from_str("AA:bb:0C:dd:0e:FF");
  EXPECT_TRUE(mac.valid);
  EXPECT_EQ(mac.bytes, (Bytes{0xaa, 0xbb, 0x0c, 0xdd, 0x0e, 0xff}));
  EXPECT_EQ(mac.str(), "aa:bb:0c:dd:0e:ff");
}

TEST(MacAddr, BareTwelveDigitFormIsAccepted) {
  MacAddr const mac = MacAddr::from_str("aabbccddeeff");
  EXPECT_TRUE(mac.valid);
  EXPECT_EQ(mac.bytes, (Bytes{0xaa, 0xbb, 0xcc, 0xdd, 0xee, 0xff}));
  EXPECT_EQ(mac.str(), "aa:bb:cc:dd:ee:ff");

  MacAddr const upper = MacAddr::from_str("0A1B2C3D4E5F");
  EXPECT_TRUE(upper.valid);
  EXPECT_EQ(upper.bytes, (Bytes{0x0a, 0x1b, 0x2c, 0x3d, 0x4e, 0x5f}));
  EXPECT_EQ(upper.str(), "0a:1b:2c:3d:4e:5f");
}

TEST(MacAddr, BytesAreInTransmissionOrderHighDigitFirst) {
  MacAddr const mac = MacAddr::from_str("01:23:45:67:89:ab");
  EXPECT_EQ(mac.bytes, (Bytes{0x01, 0x23, 0x45, 0x67, 0x89, 0xab}));
}

TEST(MacAddr, OtherSeparatorsAreRefused) {
  expect_refused("aa-bb-cc-dd-ee-ff");
  expect_refused("aa.bb.cc.dd.ee.ff");
  expect_refused("aa bb cc dd ee ff");
  expect_refused("aa:bb:cc-dd:ee:ff");
  expect_refused("aa:bb:cc:dd:ee.ff");
}

TEST(MacAddr, WrongLengthsAreRefused) {
  expect_refused("aa:bb:cc:dd:ee:f");   // 16
  expect_refused("aa:bb:cc:dd:ee:ff:"); // 18
  expect_refused("");
  expect_refused("a");
  expect_refused("aabbccddeef");   // 11
  expect_refused("aabbccddeeff0"); // 13
  expect_refused("aa:bb:cc:dd:ee:ff:00");
  expect_refused("aabb.ccdd.eeff"); // 14
}

TEST(MacAddr, EveryLengthButTwelveAndSeventeenFails) {
  std::string const digits(40, 'a');
  for (unsigned long length = 0; length <= digits.size(); ++length) {
    MacAddr const mac = MacAddr::from_str(digits.c_str(), length);
    EXPECT_EQ(mac.valid, length == 12) << length;
  }
  // Seventeen characters need the colons: all-digit text of that length fails too.
  std::string const colon = "aa:aa:aa:aa:aa:aa";
  for (unsigned long length = 0; length <= colon.size(); ++length) {
    MacAddr const mac = MacAddr::from_str(colon.c_str(), length);
    EXPECT_EQ(mac.valid, length == 17) << length;
  }
}

TEST(MacAddr, BadDigitLeavesAllOctetsZeroNotTheOnesRead) {
  MacAddr const mac = MacAddr::from_str("aa:bb:cc:dd:ee:fg");
  EXPECT_FALSE(mac.valid);
  EXPECT_EQ(mac.bytes, Bytes{});
  expect_refused("aabbccddeefg");
  expect_refused("aa:bb:cc:dd:ee:gf");
}

TEST(MacAddr, NullPointerGivesTheDefaultValue) {
  expect_refused(nullptr);
  MacAddr const mac = MacAddr::from_str(nullptr, 12);
  EXPECT_FALSE(mac.valid);
  EXPECT_EQ(mac.bytes, Bytes{});
}

TEST(MacAddr, EachColonPositionMustHoldAColon) {
  std::string const good = "12:34:56:78:9a:bc";
  ASSERT_TRUE(MacAddr::from_str(good.c_str()).valid);
  for (std::size_t pos : {2U, 5U, 8U, 11U, 14U}) {
    for (char c : {'-', '.', ' ', '0', 'a', ';', '\0'}) {
      std::string text = good;
      text[pos] = c;
      MacAddr const mac = MacAddr::from_str(text.data(), text.size());
      EXPECT_FALSE(mac.valid) << pos << " " << int{c};
      EXPECT_EQ(mac.bytes, Bytes{});
    }
  }
}

TEST(MacAddr, EveryCharacterAtEveryDigitPositionIsCheckedForBothForms) {
  std::string const colon = "12:34:56:78:9a:bc";
  std::string const bare = "123456789abc";
  for (std::string const& good : {colon, bare}) {
    for (std::size_t pos = 0; pos < good.size(); ++pos) {
      if (good[pos] == ':') {
        continue;
      }
      for (int c = 0; c < 256; ++c) {
        std::string text = good;
        text[pos] = static_cast<char>(c);
        MacAddr const mac = MacAddr::from_str(text.data(), text.size());
        ASSERT_EQ(mac.valid, is_hex_digit(c)) << good << " pos " << pos << " char " << c;
        if (!mac.valid) {
          ASSERT_EQ(mac.bytes, Bytes{});
        }
      }
    }
  }
}

TEST(MacAddr, EveryOctetValueOfEitherCaseReadsBack) {
  for (unsigned v = 0; v < 256; ++v) {
    auto const octet = static_cast<unsigned char>(v);
    Bytes const bytes{octet, 0, octet, 0xff, octet, octet};
    std::string const lower = reference_text(bytes);
    std::string upper = lower;
    for (char& c : upper) {
      if (c >= 'a' && c <= 'f') {
        c = static_cast<char>(c - 'a' + 'A');
      }
    }
    std::string bare;
    for (char c : upper) {
      if (c != ':') {
        bare += c;
      }
    }
    for (std::string const& text : {lower, upper, bare}) {
      MacAddr const mac = MacAddr::from_str(text.c_str());
      ASSERT_TRUE(mac.valid) << text;
      ASSERT_EQ(mac.bytes, bytes) << text;
      ASSERT_EQ(mac.str(), lower);
    }
  }
}

TEST(MacAddr, ExplicitLengthReadsOnlyThatManyCharacters) {
  char const longer[] = "aabbccddeeff0011";
  MacAddr const bare = MacAddr::from_str(longer, 12);
  EXPECT_TRUE(bare.valid);
  EXPECT_EQ(bare.str(), "aa:bb:cc:dd:ee:ff");

  char const colon[] = "aa:bb:cc:dd:ee:ff:00:11";
  MacAddr const colons = MacAddr::from_str(colon, 17);
  EXPECT_TRUE(colons.valid);
  EXPECT_EQ(colons.str(), "aa:bb:cc:dd:ee:ff");

  // The NUL-terminated overload sees the whole longer text and refuses it.
  expect_refused(longer);
}

TEST(MacAddr, ExplicitLengthNeedsNoTerminator) {
  // Exactly twelve characters, no NUL after them.
  std::array<char, 12> const buffer{'0', '0', '1', '1', '2', '2', '3', '3', '4', '4', '5', '5'};
  MacAddr const mac = MacAddr::from_str(buffer.data(), buffer.size());
  EXPECT_TRUE(mac.valid);
  EXPECT_EQ(mac.str(), "00:11:22:33:44:55");
}

TEST(MacAddr, ExplicitLengthShorterThanTheTextFailsForAnyOtherLength) {
  EXPECT_FALSE(MacAddr::from_str("aabbccddeeff", 11).valid);
  EXPECT_FALSE(MacAddr::from_str("aa:bb:cc:dd:ee:ff", 16).valid);
  EXPECT_FALSE(MacAddr::from_str("aa:bb:cc:dd:ee:ff", 0).valid);
}

TEST(MacAddr, EmbeddedNulIsNotADigit) {
  char const text[] = "aabbcc\0deeff0";
  EXPECT_FALSE(MacAddr::from_str(text, 12).valid);
}

TEST(MacAddr, ParsedAllZeroIsValidUnlikeTheDefault) {
  MacAddr const zero = MacAddr::from_str("00:00:00:00:00:00");
  EXPECT_TRUE(zero.valid);
  EXPECT_EQ(zero.bytes, Bytes{});
}

// ---- Text form ----------------------------------------------------------------------------------

TEST(MacAddr, TextFormIgnoresTheValidFlag) {
  MacAddr const mac = make({0xde, 0xad, 0xbe, 0xef, 0x00, 0x01}, false);
  EXPECT_EQ(mac.str(), "de:ad:be:ef:00:01");
  EXPECT_EQ(make({0xff, 0xff, 0xff, 0xff, 0xff, 0xff}).str(), "ff:ff:ff:ff:ff:ff");
}

TEST(MacAddr, TextFormMatchesAReferenceFormatterOnRandomValues) {
  std::mt19937 rng(12345);
  std::uniform_int_distribution<unsigned> octet(0, 255);
  for (int i = 0; i < 2000; ++i) {
    Bytes bytes{};
    for (auto& b : bytes) {
      b = static_cast<unsigned char>(octet(rng));
    }
    MacAddr const mac = make(bytes, (i % 2) == 0);
    std::string const text = mac.str();
    ASSERT_EQ(text, reference_text(bytes));
    ASSERT_EQ(text.size(), 17U);
    char buffer[18];
    mac.format(buffer);
    ASSERT_STREQ(buffer, text.c_str());
  }
}

TEST(MacAddr, FormatWritesTheTextAndATerminator) {
  char buffer[18];
  std::memset(buffer, 'x', sizeof buffer);
  MacAddr::from_str("0A:0b:0C:0d:0E:0f").format(buffer);
  EXPECT_EQ(std::string(buffer, sizeof buffer), std::string("0a:0b:0c:0d:0e:0f\0", 18));
}

// ---- Equality, ordering, hash -------------------------------------------------------------------

TEST(MacAddr, EqualityComparesTheOctetsOnly) {
  MacAddr const a = MacAddr::from_str("00:11:22:33:44:55");
  MacAddr const b = make({0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, false);
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(a != b);
  EXPECT_TRUE(std::equal_to<MacAddr>{}(a, b));
  EXPECT_FALSE(a == MacAddr::from_str("00:11:22:33:44:56"));
  EXPECT_TRUE(a != MacAddr::from_str("01:11:22:33:44:55"));
}

TEST(MacAddr, DefaultValueEqualsParsedAllZero) {
  EXPECT_EQ(MacAddr{}, MacAddr::from_str("00:00:00:00:00:00"));
  EXPECT_EQ(MacAddr{}, MacAddr::from_str("000000000000"));
}

TEST(MacAddr, OrderingIsLexicographicOverTheOctets) {
  MacAddr const low = MacAddr::from_str("00:ff:ff:ff:ff:ff");
  MacAddr const high = MacAddr::from_str("01:00:00:00:00:00");
  EXPECT_TRUE(low < high);
  EXPECT_TRUE(std::less<MacAddr>{}(low, high));
  EXPECT_FALSE(std::less<MacAddr>{}(high, low));
  EXPECT_TRUE(high > low);
  EXPECT_TRUE(low <= high);
  EXPECT_TRUE((low <=> high) == std::strong_ordering::less);
  EXPECT_TRUE((high <=> low) == std::strong_ordering::greater);
  EXPECT_TRUE((MacAddr::from_str("aa:bb:cc:dd:ee:fe") < MacAddr::from_str("aa:bb:cc:dd:ee:ff")));
}

TEST(MacAddr, OrderingIgnoresTheValidFlag) {
  MacAddr const parsed = MacAddr::from_str("00:00:00:00:00:00");
  MacAddr const fallback;
  EXPECT_FALSE(parsed < fallback);
  EXPECT_FALSE(fallback < parsed);
  EXPECT_TRUE((parsed <=> fallback) == std::strong_ordering::equal);
}

TEST(MacAddr, OrderingAgreesWithArrayComparisonOnRandomPairs) {
  std::mt19937 rng(777);
  // A small octet range makes equal prefixes common.
  std::uniform_int_distribution<unsigned> octet(0, 3);
  for (int i = 0; i < 5000; ++i) {
    Bytes a{};
    Bytes b{};
    for (std::size_t k = 0; k < 6; ++k) {
      a[k] = static_cast<unsigned char>(octet(rng));
      b[k] = static_cast<unsigned char>(octet(rng));
    }
    MacAddr const x = make(a, (i & 1) != 0);
    MacAddr const y = make(b, (i & 2) != 0);
    ASSERT_EQ(x < y, a < b);
    ASSERT_EQ(x == y, a == b);
    ASSERT_EQ(std::less<MacAddr>{}(x, y), a < b);
    ASSERT_TRUE((x <=> y) == (a <=> b));
  }
}

TEST(MacAddr, HashIsTheBigEndianFortyEightBitValue) {
  EXPECT_EQ(std::hash<MacAddr>{}(MacAddr::from_str("00:11:22:33:44:55")), 0x001122334455U);
  EXPECT_EQ(std::hash<MacAddr>{}(MacAddr::from_str("ff:ff:ff:ff:ff:ff")), 0xffffffffffffU);
  EXPECT_EQ(std::hash<MacAddr>{}(MacAddr::from_str("80:00:00:00:00:01")), 0x800000000001U);
  EXPECT_EQ(std::hash<MacAddr>{}(MacAddr{}), 0U);
}

TEST(MacAddr, HashIgnoresTheValidFlag) {
  Bytes const bytes{0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc};
  EXPECT_EQ(std::hash<MacAddr>{}(make(bytes, true)), std::hash<MacAddr>{}(make(bytes, false)));
  EXPECT_EQ(std::hash<MacAddr>{}(MacAddr{}),
            std::hash<MacAddr>{}(MacAddr::from_str("00:00:00:00:00:00")));
}

TEST(MacAddr, HashMatchesAReferenceOnRandomValues) {
  std::mt19937_64 rng(99);
  for (int i = 0; i < 1000; ++i) {
    std::uint64_t const value = rng() & 0xffffffffffffU;
    Bytes bytes{};
    for (std::size_t k = 0; k < 6; ++k) {
      bytes[k] = static_cast<unsigned char>((value >> (8U * (5U - k))) & 0xffU);
    }
    ASSERT_EQ(std::hash<MacAddr>{}(make(bytes)), value);
  }
}

// ---- Containers ---------------------------------------------------------------------------------

TEST(MacAddr, UnorderedSetHoldingTheDefaultRefusesParsedAllZero) {
  std::unordered_set<MacAddr> set;
  EXPECT_TRUE(set.insert(MacAddr{}).second);
  EXPECT_FALSE(set.insert(MacAddr::from_str("00:00:00:00:00:00")).second);
  EXPECT_EQ(set.size(), 1U);
  EXPECT_FALSE(set.begin()->valid); // the first one stays
}

TEST(MacAddr, UnorderedSetHoldsEachAddressOnceWhateverItsSpelling) {
  std::unordered_set<MacAddr> set;
  set.insert(MacAddr::from_str("AA:BB:CC:DD:EE:FF"));
  set.insert(MacAddr::from_str("aabbccddeeff"));
  set.insert(MacAddr::from_str("aa:bb:cc:dd:ee:ff"));
  set.insert(MacAddr::from_str("aa:bb:cc:dd:ee:fe"));
  EXPECT_EQ(set.size(), 2U);
  EXPECT_EQ(set.count(MacAddr::from_str("AABBCCDDEEFF")), 1U);
}

TEST(MacAddr, OrderedContainersSortByOctets) {
  std::set<MacAddr> set{MacAddr::from_str("02:00:00:00:00:00"),
                        MacAddr::from_str("01:ff:00:00:00:00"),
                        MacAddr::from_str("01:00:00:00:00:00"), MacAddr{}};
  std::vector<std::string> texts;
  for (MacAddr const& mac : set) {
    texts.push_back(mac.str());
  }
  EXPECT_EQ(texts, (std::vector<std::string>{"00:00:00:00:00:00", "01:00:00:00:00:00",
                                             "01:ff:00:00:00:00", "02:00:00:00:00:00"}));
  EXPECT_FALSE(set.insert(MacAddr::from_str("000000000000")).second);
}

TEST(MacAddr, WorksAsAMapKey) {
  std::unordered_map<MacAddr, int> hashed;
  std::map<MacAddr, int> ordered;
  hashed[MacAddr::from_str("00:11:22:33:44:55")] = 1;
  ordered[MacAddr::from_str("00:11:22:33:44:55")] = 1;
  hashed[MacAddr::from_str("001122334455")] += 1;
  ordered[MacAddr::from_str("001122334455")] += 1;
  EXPECT_EQ(hashed.size(), 1U);
  EXPECT_EQ(ordered.size(), 1U);
  EXPECT_EQ(hashed.begin()->second, 2);
  EXPECT_EQ(ordered.begin()->second, 2);
}

// ---- JSON conversions ---------------------------------------------------------------------------

TEST(MacAddr, JsonWriterStoresTheTextForm) {
  boost::json::value const jv = boost::json::value_from(MacAddr::from_str("AA:bb:0C:dd:0e:FF"));
  ASSERT_TRUE(jv.is_string());
  EXPECT_EQ(jv.as_string(), "aa:bb:0c:dd:0e:ff");
  EXPECT_EQ(boost::json::serialize(jv), "\"aa:bb:0c:dd:0e:ff\"");
}

TEST(MacAddr, JsonWriterIgnoresTheValidFlag) {
  boost::json::value const jv = boost::json::value_from(MacAddr{});
  ASSERT_TRUE(jv.is_string());
  EXPECT_EQ(jv.as_string(), "00:00:00:00:00:00");
}

TEST(MacAddr, JsonWriterWorksInsideContainers) {
  std::vector<MacAddr> const macs{MacAddr::from_str("00:11:22:33:44:55"),
                                  MacAddr::from_str("66778899AABB")};
  EXPECT_EQ(boost::json::serialize(boost::json::value_from(macs)),
            R"(["00:11:22:33:44:55","66:77:88:99:aa:bb"])");
  auto const back = boost::json::value_to<std::vector<MacAddr>>(boost::json::value_from(macs));
  EXPECT_EQ(back, macs);
}

TEST(MacAddr, JsonReaderParsesAString) {
  MacAddr const colon = boost::json::value_to<MacAddr>(boost::json::value("AA:bb:0C:dd:0e:FF"));
  EXPECT_TRUE(colon.valid);
  EXPECT_EQ(colon.str(), "aa:bb:0c:dd:0e:ff");
  MacAddr const bare = boost::json::value_to<MacAddr>(boost::json::value("001122334455"));
  EXPECT_TRUE(bare.valid);
  EXPECT_EQ(bare.str(), "00:11:22:33:44:55");
}

TEST(MacAddr, JsonReaderGivesTheDefaultForABadString) {
  for (char const* text : {"garbage", "", "aa-bb-cc-dd-ee-ff", "aa:bb:cc:dd:ee:fg"}) {
    MacAddr mac;
    EXPECT_NO_THROW(mac = boost::json::value_to<MacAddr>(boost::json::value(text))) << text;
    EXPECT_FALSE(mac.valid) << text;
    EXPECT_EQ(mac.bytes, Bytes{}) << text;
  }
}

TEST(MacAddr, JsonReaderReadsTheWholeStringLength) {
  // A JSON string may hold a NUL; the reader uses the string's length, not a terminator.
  boost::json::value const jv(boost::json::string_view("aabbccddeeff\0", 13));
  EXPECT_FALSE(boost::json::value_to<MacAddr>(jv).valid);
}

TEST(MacAddr, JsonReaderThrowsForAValueThatIsNotAString) {
  EXPECT_THROW((void)boost::json::value_to<MacAddr>(boost::json::value(42)),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<MacAddr>(boost::json::value(1.5)),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<MacAddr>(boost::json::value(true)),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<MacAddr>(boost::json::value(nullptr)),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<MacAddr>(boost::json::parse(R"(["aabbccddeeff"])")),
               boost::system::system_error);
  EXPECT_THROW((void)boost::json::value_to<MacAddr>(boost::json::parse(R"({"a":1})")),
               boost::system::system_error);
}
