#include <wlccw/ipc/WidsAttackedAps.hpp>

#include "support/samples.hpp"

#include "support/addresses.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <ostream>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// Failure messages show the list as its IPC text.
void PrintTo(WidsAttackedAps const& aps, std::ostream* os) {
  *os << aps.to_str();
}

namespace {

using wlccw::test::mac;

using Pairs = std::vector<std::pair<MacAddr, int>>;

// ---- The reference: the scan written with the regular expression that defines it --------------

std::regex const& report_pattern() {
  static std::regex const pattern(
      "ap (([0-9A-Fa-f]{2}[:]){5}([0-9A-Fa-f]{2})) at channel ([0-9]{1,})", std::regex::ECMAScript);
  return pattern;
}

Pairs reference_scan(std::string text) {
  Pairs found;
  std::smatch match;
  while (std::regex_search(text, match, report_pattern())) {
    std::string const address = match[1].str();
    found.emplace_back(MacAddr::from_str(address.c_str(), address.size()),
                       std::stoi(match[4].str(), nullptr, 10));
    text = match.suffix().str();
  }
  return found;
}

// What a scan gives: its pairs, or the name of what it threw.
struct Outcome {
  Pairs pairs;
  std::vector<bool> valid;
  std::string thrown;

  friend bool operator==(Outcome const&, Outcome const&) = default;
};

template <typename Scan> Outcome outcome_of(Scan scan, std::string const& text) {
  Outcome outcome;
  try {
    outcome.pairs = scan(text);
    for (auto const& pair : outcome.pairs) {
      outcome.valid.push_back(pair.first.valid);
    }
  } catch (std::out_of_range const&) {
    outcome.thrown = "out_of_range";
  } catch (std::invalid_argument const&) {
    outcome.thrown = "invalid_argument";
  }
  return outcome;
}

std::string describe(Outcome const& outcome) {
  if (!outcome.thrown.empty()) {
    return "threw " + outcome.thrown;
  }
  std::string text = "[";
  for (auto const& [address, channel] : outcome.pairs) {
    text += address.str() + "@" + std::to_string(channel) + " ";
  }
  return text + "]";
}

// Whether the scan agrees with the reference on text; counts the texts that hold a report.
::testing::AssertionResult same_as_reference(std::string const& text, std::size_t& with_reports) {
  Outcome const expected = outcome_of([](std::string const& t) { return reference_scan(t); }, text);
  Outcome const actual =
      outcome_of([](std::string const& t) { return parse_attacked_aps(t); }, text);
  if (!expected.pairs.empty() || !expected.thrown.empty()) {
    ++with_reports;
  }
  if (expected == actual) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "text \"" << text << "\": expression "
                                       << describe(expected) << ", scanner " << describe(actual);
}

// A well-formed report.
std::string const kReport = "ap 0a:1B:2c:3D:4e:5F at channel 36";

// Pieces that make up, or nearly make up, reports.
std::vector<std::string> const kPieces{
    "ap ",
    "ap",
    "a",
    "p",
    "A",
    "AP ",
    "snap ",
    " ",
    "  ",
    " at channel ",
    " at  channel ",
    "at channel ",
    " at",
    " channel ",
    " At channel ",
    "00:11:22:33:44:55",
    "AA:bb:CC:dd:EE:ff",
    "0a:1B:2c:3D:4e:5F",
    "00:11:22:33:44",
    ":55",
    "00:11:22:33:44:5",
    "00:11:22:33:44:5g",
    "aa-bb-cc-dd-ee-ff",
    "aabbccddeeff",
    "0",
    "7",
    "36",
    "149",
    "007",
    "2147483647",
    "2147483648",
    "99999999999",
    "00000000000000000000000000042",
    "f",
    "F",
    "g",
    ":",
    "-",
    ",",
    "\n",
    "\t",
    std::string(1, '\0'),
    "\xff",
    "\xe2\x80\x83",
    kReport,
    "ap ap ",
};

// A random text of pieces, sometimes with one character of it changed, dropped or doubled.
std::string random_text(std::mt19937& rng) {
  std::uniform_int_distribution<std::size_t> piece_count(1, 14);
  std::uniform_int_distribution<std::size_t> piece(0, kPieces.size() - 1);
  std::string text;
  for (std::size_t n = piece_count(rng); n > 0; --n) {
    text += kPieces[piece(rng)];
  }
  static std::string const alphabet = std::string("ap :-0fFgG9 \t", 13) + '\0';
  std::uniform_int_distribution<int> change(0, 5);
  if (!text.empty()) {
    std::uniform_int_distribution<std::size_t> at(0, text.size() - 1);
    std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
    switch (change(rng)) {
    case 0:
      text[at(rng)] = alphabet[letter(rng)];
      break;
    case 1:
      text.erase(at(rng), 1);
      break;
    case 2:
      text.insert(at(rng), 1, alphabet[letter(rng)]);
      break;
    default:
      break;
    }
  }
  return text;
}

// Every text made from the report by changing, dropping or inserting one character.
std::vector<std::string> single_edits(std::string const& report) {
  std::string const alphabet = std::string("apP :-0fFgG9x\t", 14) + '\0';
  std::vector<std::string> texts;
  for (std::size_t i = 0; i <= report.size(); ++i) {
    for (char const c : alphabet) {
      if (i < report.size()) {
        std::string changed = report;
        changed[i] = c;
        texts.push_back(changed);
      }
      std::string inserted = report;
      inserted.insert(i, 1, c);
      texts.push_back(inserted);
    }
    if (i < report.size()) {
      std::string dropped = report;
      dropped.erase(i, 1);
      texts.push_back(dropped);
    }
  }
  return texts;
}

} // namespace

// ---- The scanner against the expression ---------------------------------------------------------

TEST(WidsAttackedAps, ScannerMatchesTheExpressionOnEdgeCases) {
  std::vector<std::string> const texts{
      "",
      "ap",
      "ap ",
      kReport,
      kReport + "9",
      kReport + "abc",
      kReport + "00",
      "x" + kReport + "x",
      "ap ap 00:11:22:33:44:55 at channel 1",
      "ap ap ap 00:11:22:33:44:55 at channel 1 ap",
      "snap 00:11:22:33:44:55 at channel 1",
      "AP 00:11:22:33:44:55 at channel 1",
      "ap 00:11:22:33:44:55 At channel 1",
      "ap 00:11:22:33:44:55 at Channel 1",
      "ap  00:11:22:33:44:55 at channel 1",
      "ap 00:11:22:33:44:55  at channel 1",
      "ap 00:11:22:33:44:55 at  channel 1",
      "ap 00:11:22:33:44:55 at channel  1",
      "ap 00:11:22:33:44:55 at channel ",
      "ap 00:11:22:33:44:55 at channel",
      "ap 00:11:22:33:44:55 at channel x",
      "ap 00:11:22:33:44:55 at channel -1",
      "ap 00:11:22:33:44:55 at channel +1",
      "ap 00-11-22-33-44-55 at channel 1",
      "ap 001122334455 at channel 1",
      "ap 00:11:22:33:44:5 at channel 1",
      "ap 00:11:22:33:44:555 at channel 1",
      "ap 00:11:22:33:44:5g at channel 1",
      "ap 0:011:22:33:44:55 at channel 1",
      "ap 00:11:22:33:44:55:66 at channel 1",
      "ap\t00:11:22:33:44:55 at channel 1",
      "ap 00:11:22:33:44:55 at channel 1ap 66:77:88:99:aa:bb at channel 2",
      "ap 00:11:22:33:44:55 at channel 12345ap 66:77:88:99:aa:bb at channel 2",
      "ap 00:11:22:33:44:55 at channel 1, ap 00:11:22:33:44:55 at channel 1",
      "ap 00:11:22:33:44:55 at channel 2147483647",
      "ap 00:11:22:33:44:55 at channel 2147483648",
      "ap 00:11:22:33:44:55 at channel 99999999999",
      "ap 00:11:22:33:44:55 at channel 000000000000000000000000000000000000000006",
      "ap 00:11:22:33:44:55 at channel 1 ap 00:11:22:33:44:55 at channel 99999999999",
      "ap 00:11:22:33:44:55 at channel 99999999999 ap 00:11:22:33:44:55 at channel 1",
      std::string("ap 00:11:22:33:44:55\0at channel 1", 33),
      std::string("ap 00:11:22:33:44:55 at channel 1\0ap 00:11:22:33:44:56 at channel 2", 67),
      "ap \xff"
      "0:11:22:33:44:55 at channel 1",
      "ap 00:11:22:33:44:55 at channel \xd9\xa1",
      "ap 00:11:22:33:44:55 at channel 1" + std::string(50, '0'),
  };
  std::size_t with_reports = 0;
  for (std::string const& text : texts) {
    EXPECT_TRUE(same_as_reference(text, with_reports));
  }
  EXPECT_GT(with_reports, 15U);
}

TEST(WidsAttackedAps, ScannerMatchesTheExpressionOnEverySingleEditOfAReport) {
  std::size_t with_reports = 0;
  std::size_t count = 0;
  for (std::string const& report : {kReport, std::string("ap 00:11:22:33:44:55 at channel 6"),
                                    std::string("ap aA:Bb:cC:dD:eE:fF at channel 149")}) {
    for (std::string const& edited : single_edits(report)) {
      for (std::string const& text : {edited, "ap " + edited, edited + ", " + kReport,
                                      kReport + edited, "sn" + edited + "7"}) {
        ++count;
        ASSERT_TRUE(same_as_reference(text, with_reports));
      }
    }
  }
  EXPECT_GT(count, 10000U);
  // Many edits still leave a report somewhere in the text, but not all.
  EXPECT_GT(with_reports, count / 3);
  EXPECT_LT(with_reports, count);
}

TEST(WidsAttackedAps, ScannerMatchesTheExpressionOnGeneratedTexts) {
  std::mt19937 rng(20240514U);
  std::size_t with_reports = 0;
  std::size_t const count = 6000;
  for (std::size_t i = 0; i < count; ++i) {
    std::string const text = random_text(rng);
    ASSERT_TRUE(same_as_reference(text, with_reports));
  }
  // The pieces hit reports often enough for the comparison to mean something, and miss them too.
  EXPECT_GT(with_reports, count / 10);
  EXPECT_LT(with_reports, count - count / 10);
}

// ---- Scanning the AP's text ---------------------------------------------------------------------

TEST(WidsAttackedAps, TwoReportsSeparatedByACommaGiveTwoPairsInOrder) {
  Pairs const pairs =
      parse_attacked_aps("ap 00:11:22:33:44:55 at channel 6, ap aA:Bb:cC:dD:eE:fF at channel 149");
  ASSERT_EQ(pairs.size(), 2U);
  EXPECT_EQ(pairs[0], std::make_pair(mac("00:11:22:33:44:55"), 6));
  EXPECT_TRUE(pairs[0].first.valid);
  EXPECT_EQ(pairs[1], std::make_pair(mac("aa:bb:cc:dd:ee:ff"), 149));
  EXPECT_TRUE(pairs[1].first.valid);
}

TEST(WidsAttackedAps, HyphenatedAddressOrTwoBlanksAreNoReport) {
  EXPECT_TRUE(parse_attacked_aps("ap 00-11-22-33-44-55 at channel 6").empty());
  EXPECT_TRUE(parse_attacked_aps("ap 00:11:22:33:44:55 at  channel 6").empty());
  EXPECT_TRUE(parse_attacked_aps("ap  00:11:22:33:44:55 at channel 6").empty());
  EXPECT_TRUE(parse_attacked_aps("ap 00:11:22:33:44:55  at channel 6").empty());
  EXPECT_TRUE(parse_attacked_aps("ap 00:11:22:33:44:55 at channel  6").empty());
}

TEST(WidsAttackedAps, WordsAreCaseSensitive) {
  EXPECT_TRUE(parse_attacked_aps("AP 00:11:22:33:44:55 at channel 6").empty());
  EXPECT_TRUE(parse_attacked_aps("Ap 00:11:22:33:44:55 at channel 6").empty());
  EXPECT_TRUE(parse_attacked_aps("ap 00:11:22:33:44:55 AT CHANNEL 6").empty());
  EXPECT_TRUE(parse_attacked_aps("ap 00:11:22:33:44:55 at Channel 6").empty());
}

TEST(WidsAttackedAps, TextWithoutAReportGivesAnEmptyList) {
  for (std::string const text :
       {"", "ap", "no attack", "ap 00:11:22:33:44:55", "ap 00:11:22:33:44:55 at channel",
        "ap 00:11:22:33:44:55 at channel ", "ap 00:11:22:33:44:55 at channel x",
        "ap 00:11:22:33:44:55 at channel -6", "ap 001122334455 at channel 6",
        "ap 00:11:22:33:44:5g at channel 6", "ap 00:11:22:33:44 at channel 6"}) {
    EXPECT_TRUE(parse_attacked_aps(text).empty()) << text;
  }
}

TEST(WidsAttackedAps, ApMayEndALongerWord) {
  EXPECT_EQ(parse_attacked_aps("heatmap 00:11:22:33:44:55 at channel 6"),
            (Pairs{{mac("00:11:22:33:44:55"), 6}}));
}

TEST(WidsAttackedAps, OverlappingCandidatesFindTheReport) {
  EXPECT_EQ(parse_attacked_aps("ap ap 00:11:22:33:44:55 at channel 6"),
            (Pairs{{mac("00:11:22:33:44:55"), 6}}));
  EXPECT_EQ(parse_attacked_aps("ap 00:11:22:33:44:55 ap 66:77:88:99:aa:bb at channel 11"),
            (Pairs{{mac("66:77:88:99:aa:bb"), 11}}));
}

TEST(WidsAttackedAps, ChannelTakesEveryDigitAndTheScanGoesOnAfterIt) {
  EXPECT_EQ(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 3600"),
            (Pairs{{mac("00:11:22:33:44:55"), 3600}}));
  EXPECT_EQ(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 36abc"),
            (Pairs{{mac("00:11:22:33:44:55"), 36}}));
  EXPECT_EQ(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 0000036"),
            (Pairs{{mac("00:11:22:33:44:55"), 36}}));
  EXPECT_EQ(
      parse_attacked_aps("ap 00:11:22:33:44:55 at channel 1ap 66:77:88:99:aa:bb at channel 2"),
      (Pairs{{mac("00:11:22:33:44:55"), 1}, {mac("66:77:88:99:aa:bb"), 2}}));
}

TEST(WidsAttackedAps, DuplicatesAreKept) {
  EXPECT_EQ(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 6 ap 00:11:22:33:44:55 at "
                               "channel 6 ap 00:11:22:33:44:55 at channel 6"),
            (Pairs(3, {mac("00:11:22:33:44:55"), 6})));
}

TEST(WidsAttackedAps, ChannelTooLargeForAnIntThrowsOutOfRange) {
  EXPECT_THROW(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 99999999999"),
               std::out_of_range);
  EXPECT_THROW(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 2147483648"), std::out_of_range);
  EXPECT_EQ(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 2147483647"),
            (Pairs{{mac("00:11:22:33:44:55"), INT_MAX}}));
  // Nothing partial: the report read before the bad one is lost with it.
  EXPECT_THROW(parse_attacked_aps("ap 00:11:22:33:44:55 at channel 6, "
                                  "ap 66:77:88:99:aa:bb at channel 99999999999"),
               std::out_of_range);
  EXPECT_THROW(
      WidsAttackedAps::netconf_deserialize(
          "ap 00:11:22:33:44:55 at channel 6, ap 66:77:88:99:aa:bb at channel 99999999999"),
      std::out_of_range);
}

TEST(WidsAttackedAps, LongTextsAreScannedWithoutTrouble) {
  // Many reports in one text.
  std::string many;
  for (int i = 0; i < 100000; ++i) {
    many += "ap 00:11:22:33:44:55 at channel " + std::to_string(i % 200) + "; ";
  }
  Pairs const pairs = parse_attacked_aps(many);
  ASSERT_EQ(pairs.size(), 100000U);
  EXPECT_EQ(pairs[199].second, 199);
  EXPECT_EQ(pairs[200].second, 0);
  // Megabytes of near misses.
  std::string misses;
  while (misses.size() < 4000000) {
    misses += "ap ap 00:11:22:33:44:55 at  channel 1 ap 00:11:22:33:44:5 at channel 7 snap ";
  }
  EXPECT_TRUE(parse_attacked_aps(misses).empty());
  // A channel of a million digits.
  EXPECT_THROW(parse_attacked_aps("ap 00:11:22:33:44:55 at channel " + std::string(1000000, '9')),
               std::out_of_range);
  EXPECT_EQ(
      parse_attacked_aps("ap 00:11:22:33:44:55 at channel " + std::string(1000000, '0') + "11"),
      (Pairs{{mac("00:11:22:33:44:55"), 11}}));
}

TEST(WidsAttackedAps, SampleTextGivesEveryReportInOrder) {
  std::string const text = wlccw::test::read_sample("wids/attacked-aps.txt");
  ASSERT_FALSE(text.empty());
  Pairs const expected{
      {mac("00:1a:2b:3c:4d:5e"), 36}, {mac("0a:1b:2c:3d:4e:5f"), 149},
      {mac("a4:5e:60:c1:02:7d"), 6},  {mac("00:1a:2b:3c:4d:5e"), 36},
      {mac("f0:9f:c2:11:22:33"), 11}, {mac("0a:1b:2c:3d:4e:5f"), 149},
  };
  EXPECT_EQ(parse_attacked_aps(text), expected);
  std::size_t with_reports = 0;
  EXPECT_TRUE(same_as_reference(text, with_reports));
  WidsAttackedAps const aps = WidsAttackedAps::netconf_deserialize(text);
  EXPECT_EQ(aps.attacked_aps, expected);
  EXPECT_EQ(aps.to_str(), R"([{"mac":"00:1a:2b:3c:4d:5e","channel":"36"},)"
                          R"({"mac":"0a:1b:2c:3d:4e:5f","channel":"149"},)"
                          R"({"mac":"a4:5e:60:c1:02:7d","channel":"6"},)"
                          R"({"mac":"00:1a:2b:3c:4d:5e","channel":"36"},)"
                          R"({"mac":"f0:9f:c2:11:22:33","channel":"11"},)"
                          R"({"mac":"0a:1b:2c:3d:4e:5f","channel":"149"}])");
  EXPECT_EQ(WidsAttackedAps::ipc_deserialize(aps.to_str()), aps);
}

TEST(WidsAttackedAps, NetconfDeserializeReadsTheTextAsTheScannerDoes) {
  std::string const text = "x ap 00:11:22:33:44:55 at channel 6, ap AA:BB:CC:DD:EE:FF at channel 1";
  WidsAttackedAps const aps = WidsAttackedAps::netconf_deserialize(text);
  EXPECT_EQ(aps.attacked_aps, parse_attacked_aps(text));
  EXPECT_EQ(aps.attacked_aps.size(), 2U);
  EXPECT_TRUE(WidsAttackedAps::netconf_deserialize("").attacked_aps.empty());
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(WidsAttackedAps, EmptyListWritesAnEmptyArray) {
  WidsAttackedAps const aps;
  EXPECT_EQ(aps.to_str(), "[]");
  EXPECT_EQ(aps.ipc_serialize(), "[]");
}

TEST(WidsAttackedAps, ChannelIsWrittenAsAString) {
  WidsAttackedAps aps;
  aps.attacked_aps.emplace_back(mac("00:11:22:33:44:55"), 36);
  EXPECT_EQ(aps.to_str(), R"([{"mac":"00:11:22:33:44:55","channel":"36"}])");
  EXPECT_EQ(aps.ipc_serialize(), aps.to_str());
}

TEST(WidsAttackedAps, UpperCaseDigitsAreWrittenInLowerCase) {
  WidsAttackedAps const aps =
      WidsAttackedAps::netconf_deserialize("ap AA:BB:CC:0D:EE:FF at channel 1");
  EXPECT_EQ(aps.to_str(), R"([{"mac":"aa:bb:cc:0d:ee:ff","channel":"1"}])");
}

TEST(WidsAttackedAps, ChannelsAreWrittenAsSignedDecimals) {
  WidsAttackedAps aps;
  aps.attacked_aps = {{MacAddr{}, 0}, {MacAddr{}, -5}, {MacAddr{}, INT_MAX}, {MacAddr{}, INT_MIN}};
  EXPECT_EQ(aps.to_str(), R"([{"mac":"00:00:00:00:00:00","channel":"0"},)"
                          R"({"mac":"00:00:00:00:00:00","channel":"-5"},)"
                          R"({"mac":"00:00:00:00:00:00","channel":"2147483647"},)"
                          R"({"mac":"00:00:00:00:00:00","channel":"-2147483648"}])");
  EXPECT_EQ(WidsAttackedAps::ipc_deserialize(aps.to_str()), aps);
}

TEST(WidsAttackedAps, InvalidAddressesAreWrittenByTheirOctets) {
  WidsAttackedAps aps;
  MacAddr invalid;
  invalid.bytes = {1, 2, 3, 4, 5, 6};
  aps.attacked_aps.emplace_back(invalid, 11);
  EXPECT_EQ(aps.to_str(), R"([{"mac":"01:02:03:04:05:06","channel":"11"}])");
}

// ---- Reading the IPC form -----------------------------------------------------------------------

TEST(WidsAttackedAps, WrittenTextReadsBackToTheSameList) {
  WidsAttackedAps aps;
  aps.attacked_aps = {{mac("00:11:22:33:44:55"), 6},
                      {mac("AA:BB:CC:DD:EE:FF"), 149},
                      {mac("00:11:22:33:44:55"), 6}};
  std::string const text = aps.to_str();
  EXPECT_EQ(text, R"([{"mac":"00:11:22:33:44:55","channel":"6"},)"
                  R"({"mac":"aa:bb:cc:dd:ee:ff","channel":"149"},)"
                  R"({"mac":"00:11:22:33:44:55","channel":"6"}])");
  WidsAttackedAps const back = WidsAttackedAps::ipc_deserialize(text);
  EXPECT_EQ(back, aps);
  EXPECT_TRUE(back.attacked_aps[1].first.valid);
  EXPECT_EQ(back.to_str(), text);
  EXPECT_TRUE(WidsAttackedAps::ipc_deserialize("[]").attacked_aps.empty());
}

TEST(WidsAttackedAps, ChannelTextIsConvertedAsStoiDoes) {
  auto const channel_of = [](std::string const& value) {
    WidsAttackedAps const aps = WidsAttackedAps::ipc_deserialize(
        R"([{"mac":"00:11:22:33:44:55","channel":)" + value + "}]");
    EXPECT_EQ(aps.attacked_aps.size(), 1U) << value;
    return aps.attacked_aps.empty() ? INT_MIN : aps.attacked_aps[0].second;
  };
  EXPECT_EQ(channel_of(R"("36")"), 36);
  EXPECT_EQ(channel_of("36"), 36); // a number reads through its decimal text
  EXPECT_EQ(channel_of(R"(" 36")"), 36);
  EXPECT_EQ(channel_of(R"("36abc")"), 36);
  EXPECT_EQ(channel_of(R"("+7")"), 7);
  EXPECT_EQ(channel_of(R"("-3")"), -3);
  EXPECT_EQ(channel_of(R"("0x10")"), 0);
  EXPECT_EQ(channel_of(R"("0036")"), 36);
  EXPECT_EQ(channel_of("1.5"), 1);
}

TEST(WidsAttackedAps, ChannelThatIsNotANumberThrowsInvalidArgument) {
  for (std::string const value : {R"("abc")", R"("")", R"(" ")", R"("-")", R"("x36")", "null",
                                  "true", "[36]", R"({"a":36})"}) {
    EXPECT_THROW(
        WidsAttackedAps::ipc_deserialize(
            R"([{"mac":"00:11:22:33:44:55","channel":"6"},{"mac":"00:11:22:33:44:55","channel":)" +
            value + "}]"),
        std::invalid_argument)
        << value;
  }
}

TEST(WidsAttackedAps, MissingChannelThrowsInvalidArgument) {
  EXPECT_THROW(WidsAttackedAps::ipc_deserialize(R"([{"mac":"00:11:22:33:44:55"}])"),
               std::invalid_argument);
  EXPECT_THROW(WidsAttackedAps::ipc_deserialize(R"([{}])"), std::invalid_argument);
}

TEST(WidsAttackedAps, ElementThatIsNotAnObjectThrowsInvalidArgument) {
  for (std::string const text : {"[1]", R"(["36"])", "[null]", "[[]]", "[true]"}) {
    EXPECT_THROW(WidsAttackedAps::ipc_deserialize(text), std::invalid_argument) << text;
  }
}

TEST(WidsAttackedAps, IpcChannelTooLargeForAnIntThrowsOutOfRange) {
  EXPECT_THROW(
      WidsAttackedAps::ipc_deserialize(R"([{"mac":"00:11:22:33:44:55","channel":"99999999999"}])"),
      std::out_of_range);
  EXPECT_THROW(
      WidsAttackedAps::ipc_deserialize(R"([{"mac":"00:11:22:33:44:55","channel":99999999999}])"),
      std::out_of_range);
}

TEST(WidsAttackedAps, MissingOrMalformedMacGivesTheDefaultAddress) {
  WidsAttackedAps const aps = WidsAttackedAps::ipc_deserialize(
      R"([{"channel":"1"},{"mac":"00-11-22-33-44-55","channel":"2"},{"mac":5,"channel":"3"},)"
      R"({"mac":["00:11:22:33:44:55"],"channel":"4"},{"mac":"AABBCCDDEEFF","channel":"5"}])");
  ASSERT_EQ(aps.attacked_aps.size(), 5U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(aps.attacked_aps[i].first, MacAddr{}) << i;
    EXPECT_FALSE(aps.attacked_aps[i].first.valid) << i;
    EXPECT_EQ(aps.attacked_aps[i].second, static_cast<int>(i) + 1);
  }
  EXPECT_EQ(aps.attacked_aps[4].first, mac("aa:bb:cc:dd:ee:ff"));
  EXPECT_TRUE(aps.attacked_aps[4].first.valid);
}

TEST(WidsAttackedAps, TextThatIsNotJsonGivesAnEmptyList) {
  for (std::string const& text : std::vector<std::string>{
           "", " ", "ap 00:11:22:33:44:55 at channel 6", "[", R"([{"mac":"00:11:22:33:44:55")",
           R"([{"channel":"1"}]x)", "[][]", std::string(100000, '[')}) {
    WidsAttackedAps aps;
    EXPECT_NO_THROW(aps = WidsAttackedAps::ipc_deserialize(text)) << text.substr(0, 40);
    EXPECT_TRUE(aps.attacked_aps.empty()) << text.substr(0, 40);
  }
}

TEST(WidsAttackedAps, RootThatIsNotAnArrayGivesAnEmptyList) {
  for (std::string const text :
       {R"({"mac":"00:11:22:33:44:55","channel":"6"})", "{}", R"("[]")", "6", "null", "true"}) {
    WidsAttackedAps aps;
    EXPECT_NO_THROW(aps = WidsAttackedAps::ipc_deserialize(text)) << text;
    EXPECT_TRUE(aps.attacked_aps.empty()) << text;
  }
}

TEST(WidsAttackedAps, OtherMembersAreIgnored) {
  WidsAttackedAps const aps = WidsAttackedAps::ipc_deserialize(
      R"([{"x":1,"channel":"11","MAC":"ff:ff:ff:ff:ff:ff","mac":"00:11:22:33:44:55"}])");
  EXPECT_EQ(aps.attacked_aps, (Pairs{{mac("00:11:22:33:44:55"), 11}}));
}
