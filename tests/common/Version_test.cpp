#include <wlccw/common/Version.hpp>

#include "support/texts.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <variant>

using namespace std::string_literals;
using Args = VersionRaw::Args;

namespace {

// The message of the std::invalid_argument that f throws, or "" when it throws nothing.
template <typename F> std::string invalid_argument_message(F&& f) {
  try {
    (void)f();
  } catch (std::invalid_argument const& e) {
    return e.what();
  }
  return "";
}

// What std::invalid_argument reports for a message (what() ends at a NUL byte of the message).
std::string reported(std::string const& message) {
  return std::invalid_argument(message).what();
}

// The outcome of a parse: the three numbers or the message of the std::invalid_argument.
using Outcome = std::variant<Args, std::string>;

Outcome parse_outcome(std::string const& text) {
  try {
    return VersionRaw::parse_args(text);
  } catch (std::invalid_argument const& e) {
    return std::string(e.what());
  }
}

// Parsing done with the regular expression and the standard string-to-long-long conversion, step
// by step; the hand-written matcher must agree with it everywhere.
Outcome reference_outcome(std::string const& text) {
  static std::regex const pattern(R"(^(\d+)\.(\d+)\.(\d+).*$)");
  std::smatch match;
  if (!std::regex_match(text, match, pattern)) {
    return reported("Invalid version format: '" + text + "'");
  }
  long long values[3] = {};
  for (std::size_t i = 0; i < 3; ++i) {
    try {
      values[i] = std::stoll(match[i + 1].str(), nullptr, 10);
    } catch (std::invalid_argument const&) {
      return reported("Invalid version format (non-numeric): '" + text + "'");
    } catch (std::out_of_range const&) {
      return reported("Version number too large: '" + text + "'");
    }
  }
  for (long long const v : values) {
    if (v < 0) {
      return reported("Version numbers cannot be negative: '" + text + "'");
    }
  }
  for (long long const v : values) {
    if (v > 4294967295LL) {
      return reported("Version number exceeds 4294967295: '" + text + "'");
    }
  }
  return Args{static_cast<std::uint32_t>(values[0]), static_cast<std::uint32_t>(values[1]),
              static_cast<std::uint32_t>(values[2])};
}

std::string show(std::string const& text) {
  std::string shown;
  for (char const c : text) {
    auto const u = static_cast<unsigned char>(c);
    if (u < 0x20 || u >= 0x7F) {
      shown += "\\x" + std::to_string(u);
    } else {
      shown += c;
    }
  }
  return shown;
}

} // namespace

// ---------------------------------------------------------------------------------------------
// Parsing

TEST(VersionRaw, ParsesAndPrintsBack) {
  VersionRaw const v = VersionRaw::parse("6.4.12");
  EXPECT_EQ(v.major, 6U);
  EXPECT_EQ(v.minor, 4U);
  EXPECT_EQ(v.patch, 12U);
  EXPECT_EQ(v.to_string(), "6.4.12");
  EXPECT_EQ(VersionRaw::parse_args("6.4.12"), (Args{6, 4, 12}));
}

TEST(VersionRaw, DefaultIsZero) {
  VersionRaw const v;
  EXPECT_EQ(v.major, 0U);
  EXPECT_EQ(v.minor, 0U);
  EXPECT_EQ(v.patch, 0U);
  EXPECT_EQ(v.to_string(), "0.0.0");
}

TEST(VersionRaw, ConstructorFromText) {
  VersionRaw const v("1.22.333");
  EXPECT_EQ(v, VersionRaw(1, 22, 333));
  EXPECT_EQ(invalid_argument_message([] { return VersionRaw("1.2"); }),
            "Invalid version format: '1.2'");
}

TEST(VersionRaw, TwoNumbersAreAnInvalidFormat) {
  EXPECT_EQ(invalid_argument_message([] { return VersionRaw::parse_args("1.2"); }),
            "Invalid version format: '1.2'");
}

TEST(VersionRaw, LeadingLetterIsAnInvalidFormat) {
  EXPECT_EQ(invalid_argument_message([] { return VersionRaw::parse("v1.2.3"); }),
            "Invalid version format: 'v1.2.3'");
}

TEST(VersionRaw, OtherInvalidFormats) {
  for (std::string const& text :
       {""s, "1"s, "1.2."s, "1..2.3"s, ".1.2.3"s, " 1.2.3"s, "1 .2.3"s, "1.2 .3"s, "1,2,3"s,
        "a.b.c"s, "1.2.a"s, "\n1.2.3"s, "1.2.3\n"s, "1.2.3\r"s, "1.2.3-rc\n1"s, "1.2.3\r\n"s,
        "\xef\xbc\x91.2.3"s, "1.2\0.3"s}) {
    EXPECT_EQ(invalid_argument_message([&] { return VersionRaw::parse_args(text); }),
              reported("Invalid version format: '" + text + "'"))
        << show(text);
  }
}

TEST(VersionRaw, SignsAreAnInvalidFormatNotANegativeNumber) {
  for (std::string const& text : {"-1.2.3"s, "1.-2.3"s, "1.2.-3"s, "+1.2.3"s}) {
    EXPECT_EQ(invalid_argument_message([&] { return VersionRaw::parse_args(text); }),
              "Invalid version format: '" + text + "'");
  }
}

TEST(VersionRaw, RestAfterTheThirdNumberIsIgnored) {
  for (std::string const& text : {"1.2.3-rc1"s, "1.2.3.4"s, "1.2.3 beta"s, "1.2.3."s, "1.2.3\t"s,
                                  "1.2.3\0tail"s, "1.2.3\xff"s}) {
    EXPECT_EQ(VersionRaw::parse_args(text), (Args{1, 2, 3})) << show(text);
  }
}

TEST(VersionRaw, ThirdNumberTakesEveryDigit) {
  EXPECT_EQ(VersionRaw::parse_args("1.2.345abc"), (Args{1, 2, 345}));
}

TEST(VersionRaw, LeadingZerosAreAllowed) {
  EXPECT_EQ(VersionRaw::parse_args("01.002.3"), (Args{1, 2, 3}));
  EXPECT_EQ(VersionRaw::parse_args("0000000000000000000000000000004294967295.0.00"),
            (Args{4294967295U, 0, 0}));
}

TEST(VersionRaw, LargestNumberIsAccepted) {
  EXPECT_EQ(VersionRaw::parse_args("4294967295.0.0"), (Args{4294967295U, 0, 0}));
  EXPECT_EQ(VersionRaw::parse_args("0.4294967295.4294967295"), (Args{0, 4294967295U, 4294967295U}));
}

TEST(VersionRaw, NumberAbove32BitsExceedsTheLimit) {
  EXPECT_EQ(invalid_argument_message([] { return VersionRaw::parse_args("4294967296.0.0"); }),
            "Version number exceeds 4294967295: '4294967296.0.0'");
  EXPECT_EQ(invalid_argument_message([] { return VersionRaw::parse_args("1.2.4294967296"); }),
            "Version number exceeds 4294967295: '1.2.4294967296'");
  EXPECT_EQ(
      invalid_argument_message([] { return VersionRaw::parse_args("9223372036854775807.0.0"); }),
      "Version number exceeds 4294967295: '9223372036854775807.0.0'");
}

TEST(VersionRaw, NumberAbove64BitsIsTooLarge) {
  EXPECT_EQ(
      invalid_argument_message([] { return VersionRaw::parse_args("99999999999999999999.1.1"); }),
      "Version number too large: '99999999999999999999.1.1'");
  EXPECT_EQ(
      invalid_argument_message([] { return VersionRaw::parse_args("9223372036854775808.0.0"); }),
      "Version number too large: '9223372036854775808.0.0'");
  EXPECT_EQ(
      invalid_argument_message([] { return VersionRaw::parse_args("1.1.99999999999999999999"); }),
      "Version number too large: '1.1.99999999999999999999'");
}

TEST(VersionRaw, EveryNumberIsConvertedBeforeTheLimitIsChecked) {
  // The first number exceeds 32 bits, the second 64 bits: the conversion error wins.
  EXPECT_EQ(invalid_argument_message(
                [] { return VersionRaw::parse_args("4294967296.99999999999999999999.1"); }),
            "Version number too large: '4294967296.99999999999999999999.1'");
}

TEST(VersionRaw, MessageQuotesTheWholeText) {
  EXPECT_EQ(invalid_argument_message([] { return VersionRaw::parse_args("1.2.99999999999x y"); }),
            "Version number exceeds 4294967295: '1.2.99999999999x y'");
}

TEST(VersionRaw, TryFormsGiveEmptyOptionalsInsteadOfThrowing) {
  EXPECT_EQ(VersionRaw::try_parse_args("1.2.3"), std::optional<Args>(Args{1, 2, 3}));
  EXPECT_EQ(VersionRaw::try_parse_args("1.2"), std::nullopt);
  EXPECT_EQ(VersionRaw::try_parse_args("4294967296.0.0"), std::nullopt);
  EXPECT_EQ(VersionRaw::try_parse_args("99999999999999999999.1.1"), std::nullopt);
  EXPECT_EQ(VersionRaw::try_parse("1.2.3"), std::optional<VersionRaw>(VersionRaw(1, 2, 3)));
  EXPECT_EQ(VersionRaw::try_parse(""), std::nullopt);
  EXPECT_EQ(VersionRaw::try_parse("4294967296.0.0"), std::nullopt);
  std::string const empty;
  static_assert(noexcept(VersionRaw::try_parse_args(empty)));
  static_assert(noexcept(VersionRaw::try_parse(empty)));
}

TEST(VersionRaw, LongTextsParseWithoutDeepRecursion) {
  std::string const long_rest = "1.2.3" + std::string(1'000'000, 'x');
  EXPECT_EQ(VersionRaw::parse_args(long_rest), (Args{1, 2, 3}));
  std::string const long_number = std::string(1'000'000, '7') + ".0.0";
  EXPECT_EQ(invalid_argument_message([&] { return VersionRaw::parse_args(long_number); }),
            "Version number too large: '" + long_number + "'");
  std::string const long_zeros = std::string(1'000'000, '0') + "5.6.7";
  EXPECT_EQ(VersionRaw::parse_args(long_zeros), (Args{5, 6, 7}));
  std::string const no_dots(1'000'000, '1');
  EXPECT_EQ(VersionRaw::try_parse_args(no_dots), std::nullopt);
  std::string const line_break_at_end = "1.2.3" + std::string(1'000'000, 'x') + "\n";
  EXPECT_EQ(VersionRaw::try_parse_args(line_break_at_end), std::nullopt);
}

TEST(VersionRaw, MatchesTheRegularExpressionOnEveryShortText) {
  std::string const alphabet{"019.\n\r\0 -+a"s};
  std::vector<std::string> const texts = wlccw::test::all_texts(alphabet, 5);
  for (std::string const& text : texts) {
    ASSERT_EQ(parse_outcome(text), reference_outcome(text)) << show(text);
  }
}

TEST(VersionRaw, MatchesTheRegularExpressionOnGeneratedVersions) {
  std::mt19937 rng(4242);
  std::string const digits{"0123456789"};
  std::string const others{"..\n\r\0 -+xv\t\xff"s};
  std::uniform_int_distribution<int> small(0, 3);
  std::uniform_int_distribution<int> group_length(0, 22);
  std::uniform_int_distribution<std::size_t> pick_digit(0, digits.size() - 1);
  std::uniform_int_distribution<std::size_t> pick_other(0, others.size() - 1);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    int const groups = small(rng) + 1;
    for (int g = 0; g < groups; ++g) {
      // Mostly digit groups joined by dots, now and then another character in between.
      int const length = group_length(rng) < 18 ? small(rng) + 1 : group_length(rng);
      for (int d = 0; d < length; ++d) {
        text += digits[pick_digit(rng)];
      }
      text += small(rng) == 0 ? others[pick_other(rng)] : '.';
    }
    for (int r = small(rng); r > 0; --r) {
      text += small(rng) == 0 ? others[pick_other(rng)] : digits[pick_digit(rng)];
    }
    ASSERT_EQ(parse_outcome(text), reference_outcome(text)) << show(text);
  }
}

// ---------------------------------------------------------------------------------------------
// Version

TEST(Version, KeepsTheWholeText) {
  Version const v("1.2.3 beta");
  EXPECT_EQ(v.major, 1U);
  EXPECT_EQ(v.minor, 2U);
  EXPECT_EQ(v.patch, 3U);
  EXPECT_EQ(v.text(), "1.2.3 beta");
  EXPECT_EQ(v.to_string(), "1.2.3");
  EXPECT_EQ(v.numbers(), VersionRaw(1, 2, 3));
}

TEST(Version, TextIsKeptExactlyAsReceived) {
  std::string const text = "007.08.9-build.42\0x"s;
  EXPECT_EQ(Version(text).text(), text);
  EXPECT_EQ(Version(text).numbers(), VersionRaw(7, 8, 9));
}

TEST(Version, ParseThrowsOnEmptyTextAndTryParseGivesNothing) {
  EXPECT_EQ(invalid_argument_message([] { return Version::parse(""); }),
            "Invalid version format: ''");
  EXPECT_EQ(Version::try_parse(""), std::nullopt);
  std::string const empty;
  static_assert(noexcept(Version::try_parse(empty)));
}

TEST(Version, ParseAndTryParse) {
  EXPECT_EQ(Version::parse("6.4.12").text(), "6.4.12");
  std::optional<Version> const v = Version::try_parse("6.4.12-rc1");
  ASSERT_TRUE(v.has_value());
  EXPECT_EQ(v->numbers(), VersionRaw(6, 4, 12));
  EXPECT_EQ(v->text(), "6.4.12-rc1");
}

TEST(Version, ConstructorThrowsEveryMessageOfTheParser) {
  EXPECT_EQ(invalid_argument_message([] { return Version("v1.2.3"); }),
            "Invalid version format: 'v1.2.3'");
  EXPECT_EQ(invalid_argument_message([] { return Version("4294967296.0.0"); }),
            "Version number exceeds 4294967295: '4294967296.0.0'");
  EXPECT_EQ(invalid_argument_message([] { return Version::parse("99999999999999999999.1.1"); }),
            "Version number too large: '99999999999999999999.1.1'");
  EXPECT_EQ(Version::try_parse("99999999999999999999.1.1"), std::nullopt);
  EXPECT_EQ(Version::try_parse("4294967296.0.0"), std::nullopt);
}

// ---------------------------------------------------------------------------------------------
// Comparison

TEST(VersionRaw, OrdersByMajorThenMinorThenPatch) {
  EXPECT_LT(VersionRaw::parse("1.2.3"), VersionRaw::parse("1.10.0")); // numbers, not text
  EXPECT_LT(VersionRaw::parse("1.99.99"), VersionRaw::parse("2.0.0"));
  EXPECT_LT(VersionRaw::parse("1.2.3"), VersionRaw::parse("1.2.4"));
  EXPECT_GT(VersionRaw::parse("4294967295.0.0"), VersionRaw::parse("4294967294.4294967295.0"));
  EXPECT_EQ(VersionRaw::parse("01.2.3"), VersionRaw::parse("1.2.3-x"));
  EXPECT_NE(VersionRaw::parse("1.2.3"), VersionRaw::parse("1.3.2"));
}

TEST(Version, EqualWhenNumbersAndTextAreEqual) {
  EXPECT_EQ(Version("1.2.3"), Version("1.2.3"));
  EXPECT_NE(Version("1.2.3"), Version("1.2.3-rc1"));
  EXPECT_NE(Version("01.2.3"), Version("1.2.3"));
}

TEST(Version, OrdersByNumbersFirstThenByText) {
  EXPECT_LT(Version("1.9.9-zzz"), Version("1.10.0"));
  EXPECT_LT(Version("1.2.3"), Version("1.2.3-rc1"));
  EXPECT_GT(Version("2.0.0-a"), Version("1.99.99-z"));
}

TEST(Version, ComparedWithVersionRawComparesTheNumbersAlone) {
  EXPECT_EQ(Version("1.2.3-rc1"), VersionRaw(1, 2, 3));
  EXPECT_GE(Version("6.4.12 build 7"), VersionRaw(6, 4, 0));
  EXPECT_LT(VersionRaw(6, 4, 12), Version("6.5.0-beta"));
}

static_assert(std::is_base_of_v<VersionRaw, Version>);
static_assert(!std::is_convertible_v<std::string, VersionRaw>, "parsing text is explicit");
static_assert(!std::is_convertible_v<std::string, Version>, "parsing text is explicit");
