#include <wlccw/common/tools.hpp>

#include "support/texts.hpp"
#include <gmock/gmock.h>

#include <gtest/gtest.h>

#include <arpa/inet.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::string_literals;

namespace {

// What a string stream read piece by piece with std::getline yields.
std::vector<std::string> getline_pieces(std::string const& text, char delimiter) {
  std::vector<std::string> pieces;
  std::istringstream stream(text);
  std::string piece;
  while (std::getline(stream, piece, delimiter)) {
    pieces.push_back(piece);
  }
  return pieces;
}

using wlccw::test::all_texts;

std::string random_text(std::mt19937& rng, std::string const& alphabet, std::size_t max_length) {
  std::uniform_int_distribution<std::size_t> length(0, max_length);
  std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
  std::string text(length(rng), ' ');
  for (char& c : text) {
    c = alphabet[pick(rng)];
  }
  return text;
}

// The result of a call of string_to_ints, or the exception it threw.
struct IntsOutcome {
  std::vector<int> values;
  std::string error; // "invalid_argument: <what>", "out_of_range: <what>" or empty
  bool operator==(IntsOutcome const&) const = default;
};

template <typename F> IntsOutcome ints_outcome(F&& f) {
  IntsOutcome outcome;
  try {
    outcome.values = f();
  } catch (std::invalid_argument const& e) {
    outcome.error = "invalid_argument: "s + e.what();
  } catch (std::out_of_range const& e) {
    outcome.error = "out_of_range: "s + e.what();
  }
  return outcome;
}

// Splitting with getline and converting every piece with std::stoi.
std::vector<int> stoi_pieces(std::string const& text, char delimiter) {
  std::vector<int> values;
  for (std::string const& piece : getline_pieces(text, delimiter)) {
    values.push_back(std::stoi(piece));
  }
  return values;
}

std::vector<std::string> mac_texts(std::vector<MacAddr> const& macs) {
  std::vector<std::string> texts;
  for (MacAddr const& mac : macs) {
    EXPECT_TRUE(mac.valid);
    texts.push_back(mac.str());
  }
  return texts;
}

} // namespace

// ---------------------------------------------------------------------------------------------
// split_str

TEST(SplitStr, KeepsEmptyPiecesBetweenDelimitersButNoTrailingOne) {
  EXPECT_THAT(tools::split_str("a,,b,", ','), ElementsAre("a", "", "b"));
}

TEST(SplitStr, EmptyTextGivesNothing) {
  EXPECT_THAT(tools::split_str("", ','), IsEmpty());
}

TEST(SplitStr, SingleDelimiterGivesOneEmptyPiece) {
  EXPECT_THAT(tools::split_str(",", ','), ElementsAre(""));
}

TEST(SplitStr, LeadingDelimiterGivesLeadingEmptyPiece) {
  EXPECT_THAT(tools::split_str(",a", ','), ElementsAre("", "a"));
  EXPECT_THAT(tools::split_str(",,", ','), ElementsAre("", ""));
}

TEST(SplitStr, TextWithoutDelimiterIsOnePiece) {
  EXPECT_THAT(tools::split_str("abc", ','), ElementsAre("abc"));
}

TEST(SplitStr, SpacesAreNotTrimmed) {
  EXPECT_THAT(tools::split_str(" a , b ", ','), ElementsAre(" a ", " b "));
}

TEST(SplitStr, OtherDelimitersAndBytesAreKept) {
  EXPECT_THAT(tools::split_str("a,b;c", ';'), ElementsAre("a,b", "c"));
  EXPECT_THAT(tools::split_str("x\0y\0"s, '\0'), ElementsAre("x", "y"));
  EXPECT_THAT(tools::split_str("x\0y"s, ','), ElementsAre("x\0y"s));
  EXPECT_THAT(tools::split_str("a\nb", '\n'), ElementsAre("a", "b"));
}

TEST(SplitStr, MatchesGetlineOnEveryShortText) {
  std::string const alphabet{"a,; \0\n\xff"s};
  for (std::string const& text : all_texts(alphabet, 6)) {
    for (char const delimiter : {',', ';', '\0', '\xff'}) {
      ASSERT_EQ(tools::split_str(text, delimiter), getline_pieces(text, delimiter))
          << "text of " << text.size() << " bytes, delimiter " << int{delimiter};
    }
  }
}

TEST(SplitStr, MatchesGetlineOnRandomLongerTexts) {
  std::mt19937 rng(12345);
  std::string const alphabet{"ab,,, \t"};
  for (int i = 0; i < 20000; ++i) {
    std::string const text = random_text(rng, alphabet, 40);
    ASSERT_EQ(tools::split_str(text, ','), getline_pieces(text, ',')) << text;
  }
  std::string const long_text(100000, ',');
  EXPECT_EQ(tools::split_str(long_text, ','), getline_pieces(long_text, ','));
}

// ---------------------------------------------------------------------------------------------
// string_to_ints

TEST(StringToInts, SkipsLeadingSpaceAndIgnoresTrailingCharacters) {
  EXPECT_THAT(tools::string_to_ints("1, 2,3x", ','), ElementsAre(1, 2, 3));
}

TEST(StringToInts, EmptyTextGivesNothing) {
  EXPECT_THAT(tools::string_to_ints("", ','), IsEmpty());
}

TEST(StringToInts, TrailingDelimiterAddsNoPiece) {
  EXPECT_THAT(tools::string_to_ints("4,5,", ','), ElementsAre(4, 5));
}

TEST(StringToInts, SignsAndLimitsOfInt) {
  EXPECT_THAT(tools::string_to_ints("-7;+8;\t 9;2147483647;-2147483648;0010", ';'),
              ElementsAre(-7, 8, 9, INT_MAX, INT_MIN, 10));
}

TEST(StringToInts, EmptyPieceThrowsInvalidArgument) {
  try {
    (void)tools::string_to_ints("1,,2", ',');
    FAIL() << "no exception";
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "stoi");
  }
  EXPECT_THROW((void)tools::string_to_ints(",1", ','), std::invalid_argument);
  EXPECT_THROW((void)tools::string_to_ints(",", ','), std::invalid_argument);
}

TEST(StringToInts, PieceWithoutDigitsThrowsInvalidArgument) {
  for (char const* text : {"abc", "1,x2", "-", "+,1", " ", "1,x", "1,- 2"}) {
    try {
      (void)tools::string_to_ints(text, ',');
      ADD_FAILURE() << "no exception for " << text;
    } catch (std::invalid_argument const& e) {
      EXPECT_STREQ(e.what(), "stoi") << text;
    }
  }
}

TEST(StringToInts, ValueOutsideIntThrowsOutOfRange) {
  for (char const* text :
       {"99999999999", "2147483648", "-2147483649", "1,99999999999999999999999"}) {
    try {
      (void)tools::string_to_ints(text, ',');
      ADD_FAILURE() << "no exception for " << text;
    } catch (std::out_of_range const& e) {
      EXPECT_STREQ(e.what(), "stoi") << text;
    }
  }
}

TEST(StringToInts, FirstBadPieceDecidesTheException) {
  EXPECT_THROW((void)tools::string_to_ints("99999999999,x", ','), std::out_of_range);
  EXPECT_THROW((void)tools::string_to_ints("x,99999999999", ','), std::invalid_argument);
}

TEST(StringToInts, MatchesGetlineAndStoiOnManyTexts) {
  std::string const alphabet{"1-, x9"};
  for (std::string const& text : all_texts(alphabet, 5)) {
    ASSERT_EQ(ints_outcome([&] { return tools::string_to_ints(text, ','); }),
              ints_outcome([&] { return stoi_pieces(text, ','); }))
        << text;
  }
  std::mt19937 rng(777);
  std::string const number_alphabet{"0123456789999,,-+ \t\n\0a"s};
  for (int i = 0; i < 20000; ++i) {
    std::string const text = random_text(rng, number_alphabet, 30);
    ASSERT_EQ(ints_outcome([&] { return tools::string_to_ints(text, ','); }),
              ints_outcome([&] { return stoi_pieces(text, ','); }))
        << text;
  }
}

// ---------------------------------------------------------------------------------------------
// string_to_macs

TEST(StringToMacs, KeepsValidPiecesAndDropsBadOnes) {
  EXPECT_THAT(mac_texts(tools::string_to_macs("aa:bb:cc:dd:ee:ff;bad;001122334455", ';')),
              ElementsAre("aa:bb:cc:dd:ee:ff", "00:11:22:33:44:55"));
}

TEST(StringToMacs, EmptyTextGivesNothing) {
  EXPECT_THAT(tools::string_to_macs("", ','), IsEmpty());
  EXPECT_THAT(tools::string_to_macs(",,,", ','), IsEmpty());
}

TEST(StringToMacs, KeepsOrderAndDuplicatesAndAcceptsEitherCase) {
  EXPECT_THAT(mac_texts(tools::string_to_macs(
                  "00:00:00:00:00:02,AABBCCDDEEFF,00:00:00:00:00:02,00:00:00:00:00:01", ',')),
              ElementsAre("00:00:00:00:00:02", "aa:bb:cc:dd:ee:ff", "00:00:00:00:00:02",
                          "00:00:00:00:00:01"));
}

TEST(StringToMacs, EachPieceIsParsedWithItsOwnLength) {
  // Two addresses with no delimiter between them make one piece of 29 characters: dropped.
  EXPECT_THAT(tools::string_to_macs("001122334455aa:bb:cc:dd:ee:ff", ','), IsEmpty());
  // A piece one character longer or shorter than an address is dropped.
  EXPECT_THAT(tools::string_to_macs("0011223344556,00112233445,aa:bb:cc:dd:ee:ff ", ','),
              IsEmpty());
  // The piece ends at the delimiter even though more text follows it.
  EXPECT_THAT(mac_texts(tools::string_to_macs("001122334455,aa:bb:cc:dd:ee:ff,x", ',')),
              ElementsAre("00:11:22:33:44:55", "aa:bb:cc:dd:ee:ff"));
}

TEST(StringToMacs, OtherSeparatorsAreBadPieces) {
  EXPECT_THAT(tools::string_to_macs("aa-bb-cc-dd-ee-ff;aabb.ccdd.eeff;gg:bb:cc:dd:ee:ff", ';'),
              IsEmpty());
}

TEST(StringToMacs, MatchesParsingEveryGetlinePiece) {
  std::mt19937 rng(99);
  std::string const alphabet{"0a:F,;"};
  for (int i = 0; i < 5000; ++i) {
    std::string text;
    std::uniform_int_distribution<int> kind(0, 3);
    std::uniform_int_distribution<int> pieces(0, 4);
    for (int p = pieces(rng); p > 0; --p) {
      switch (kind(rng)) {
      case 0:
        text += "0a:1B:2c:3D:4e:5F";
        break;
      case 1:
        text += "0a1B2c3D4e5F";
        break;
      case 2:
        text += random_text(rng, alphabet, 18);
        break;
      default:
        break;
      }
      text += ',';
    }
    std::vector<std::string> expected;
    for (std::string const& piece : getline_pieces(text, ',')) {
      MacAddr const mac = MacAddr::from_str(piece.data(), piece.size());
      if (mac.valid) {
        expected.push_back(mac.str());
      }
    }
    ASSERT_EQ(mac_texts(tools::string_to_macs(text, ',')), expected) << text;
  }
}

// ---------------------------------------------------------------------------------------------
// to_str_at_time_zone

TEST(ToStrAtTimeZone, TimeZeroGivesEmptyText) {
  EXPECT_EQ(tools::to_str_at_time_zone(0, 0), "");
  EXPECT_EQ(tools::to_str_at_time_zone(0, 3600), "");
  EXPECT_EQ(tools::to_str_at_time_zone(0, LONG_MIN), "");
}

TEST(ToStrAtTimeZone, OneDayAfterTheEpoch) {
  EXPECT_EQ(tools::to_str_at_time_zone(86400, 0), "1970-01-02T00:00:00+00:00");
}

TEST(ToStrAtTimeZone, ClockFieldsAreUtcAndOnlyTheSuffixFollowsTheOffset) {
  EXPECT_EQ(tools::to_str_at_time_zone(1700000000, 3600), "2023-11-14T22:13:20+01:00");
  EXPECT_EQ(tools::to_str_at_time_zone(1700000000, -19800), "2023-11-14T22:13:20-05:30");
  EXPECT_EQ(tools::to_str_at_time_zone(1700000000, 19800), "2023-11-14T22:13:20+05:30");
  EXPECT_EQ(tools::to_str_at_time_zone(1700000000, 0), "2023-11-14T22:13:20+00:00");
}

TEST(ToStrAtTimeZone, ProcessTimeZoneDoesNotMatter) {
  char const* old = std::getenv("TZ");
  std::string const saved = old != nullptr ? old : "";
  ::setenv("TZ", "XYZ-5:30", 1);
  ::tzset();
  std::string const text = tools::to_str_at_time_zone(1700000000, 0);
  if (old != nullptr) {
    ::setenv("TZ", saved.c_str(), 1);
  } else {
    ::unsetenv("TZ");
  }
  ::tzset();
  EXPECT_EQ(text, "2023-11-14T22:13:20+00:00");
}

TEST(ToStrAtTimeZone, LeftoverSecondsOfTheOffsetAreDropped) {
  EXPECT_EQ(tools::to_str_at_time_zone(86400, 59), "1970-01-02T00:00:00+00:00");
  EXPECT_EQ(tools::to_str_at_time_zone(86400, 3659), "1970-01-02T00:00:00+01:00");
  EXPECT_EQ(tools::to_str_at_time_zone(86400, -61), "1970-01-02T00:00:00-00:01");
}

TEST(ToStrAtTimeZone, NegativeOffsetBelowOneMinuteKeepsItsSign) {
  EXPECT_EQ(tools::to_str_at_time_zone(86400, -59), "1970-01-02T00:00:00-00:00");
}

TEST(ToStrAtTimeZone, OffsetHoursGrowBeyondTwoDigits) {
  EXPECT_EQ(tools::to_str_at_time_zone(86400, 100 * 3600 + 5 * 60), "1970-01-02T00:00:00+100:05");
}

TEST(ToStrAtTimeZone, ExtremeOffsets) {
  EXPECT_EQ(tools::to_str_at_time_zone(86400, LONG_MIN), "1970-01-02T00:00:00-2562047788015215:30");
  EXPECT_EQ(tools::to_str_at_time_zone(86400, LONG_MAX), "1970-01-02T00:00:00+2562047788015215:30");
  EXPECT_EQ(tools::to_str_at_time_zone(86400, LONG_MIN + 1),
            "1970-01-02T00:00:00-2562047788015215:30");
}

TEST(ToStrAtTimeZone, FieldsArePaddedButTheYearIsNot) {
  EXPECT_EQ(tools::to_str_at_time_zone(-62003983911L, 0), "5-03-04T07:08:09+00:00");
  EXPECT_EQ(tools::to_str_at_time_zone(-30610224000L, 0), "1000-01-01T00:00:00+00:00");
  EXPECT_EQ(tools::to_str_at_time_zone(253402300800L, 0), "10000-01-01T00:00:00+00:00");
}

TEST(ToStrAtTimeZone, TimesBeforeTheEpoch) {
  EXPECT_EQ(tools::to_str_at_time_zone(-1, 0), "1969-12-31T23:59:59+00:00");
  EXPECT_EQ(tools::to_str_at_time_zone(-62167219200L, 0), "0-01-01T00:00:00+00:00");
  EXPECT_EQ(tools::to_str_at_time_zone(-62167219201L, 0), "-1-12-31T23:59:59+00:00");
}

TEST(ToStrAtTimeZone, LargestAndSmallestCalendarYears) {
  // The year of the broken-down time is an int counted from 1900; at its ends the year itself
  // no longer fits an int.
  EXPECT_EQ(tools::to_str_at_time_zone(67768036191676799L, 0), "2147485547-12-31T23:59:59+00:00");
  EXPECT_EQ(tools::to_str_at_time_zone(-67768040609740800L, -60),
            "-2147481748-01-01T00:00:00-00:01");
}

TEST(ToStrAtTimeZone, TimesOutsideTheCalendarGiveEmptyText) {
  EXPECT_EQ(tools::to_str_at_time_zone(67768036191676800L, 0), "");
  EXPECT_EQ(tools::to_str_at_time_zone(-67768040609740801L, 0), "");
  EXPECT_EQ(tools::to_str_at_time_zone(LONG_MAX, 0), "");
  EXPECT_EQ(tools::to_str_at_time_zone(LONG_MIN, LONG_MIN), "");
}

// ---------------------------------------------------------------------------------------------
// uint32_to_ipv4_str

TEST(Uint32ToIpv4Str, BytesInMemoryOrder) {
  EXPECT_EQ(tools::uint32_to_ipv4_str(htonl(0xC0A80101U)), "192.168.1.1");
  unsigned char const bytes[4] = {10, 0, 20, 255};
  unsigned int address = 0;
  std::memcpy(&address, bytes, sizeof address);
  EXPECT_EQ(tools::uint32_to_ipv4_str(address), "10.0.20.255");
}

TEST(Uint32ToIpv4Str, ExtremeValues) {
  EXPECT_EQ(tools::uint32_to_ipv4_str(0), "0.0.0.0");
  EXPECT_EQ(tools::uint32_to_ipv4_str(0xFFFFFFFFU), "255.255.255.255");
}
