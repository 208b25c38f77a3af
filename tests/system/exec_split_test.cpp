// Splitting command lines into argument lists, without running anything.
#include "detail/exec.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

using wlccw::detail::ArgumentList;
using wlccw::detail::put_token;
using wlccw::detail::split_command;
using wlccw::detail::split_plain;
using wlccw::detail::split_quoted;

namespace {

/// The outcome of splitting one text.
struct Split {
  bool ok = false;
  std::vector<std::string> args;
};

/// Splits a private copy of text and checks that every token points into that copy.
Split split(std::string const& text, bool quoted) {
  std::vector<char> buffer(text.begin(), text.end());
  buffer.push_back('\0');
  ArgumentList list;
  Split result;
  result.ok = split_command(buffer.data(), quoted, list);
  for (int i = 0; i < list.size() && list.data() != nullptr; ++i) {
    char const* token = list.data()[i];
    EXPECT_GE(token, buffer.data());
    EXPECT_LT(token, buffer.data() + buffer.size());
    result.args.emplace_back(token);
  }
  return result;
}

using Args = std::vector<std::string>;

// ---------------------------------------------------------------------------------------------
// A reallocation function that fails once a given number of calls has succeeded.
int reallocations_left = 0;
int reallocations_made = 0;

void* limited_realloc(void* block, std::size_t size) {
  if (reallocations_left <= 0) {
    return nullptr;
  }
  --reallocations_left;
  ++reallocations_made;
  return std::realloc(block, size);
}

void allow_reallocations(int count) {
  reallocations_left = count;
  reallocations_made = 0;
}

} // namespace

// ---------------------------------------------------------------------------------------------
// Plain splitting.

TEST(SplitPlain, RunsOfSpacesSeparateArguments) {
  Split const s = split("a  b   c", false);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"a", "b", "c"}));
}

TEST(SplitPlain, LeadingAndTrailingSpacesAreIgnored) {
  Split const s = split("   echo x   ", false);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "x"}));
}

TEST(SplitPlain, TabsAndOtherWhiteSpaceAreOrdinaryCharacters) {
  Split const s = split("echo a\tb\nc\rd e", false);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a\tb\nc\rd", "e"}));
}

TEST(SplitPlain, QuotesAreOrdinaryCharacters) {
  Split const s = split("echo \"a b\" \"\" c", false);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "\"a", "b\"", "\"\"", "c"}));
}

TEST(SplitPlain, OneWordIsTheProgramAlone) {
  Split const s = split("true", false);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"true"}));
}

TEST(SplitPlain, EmptyTextOrOnlySpacesHasNoArgument) {
  EXPECT_FALSE(split("", false).ok);
  EXPECT_TRUE(split("", false).args.empty());
  EXPECT_FALSE(split("     ", false).ok);
  EXPECT_TRUE(split(" ", false).args.empty());
}

TEST(SplitPlain, CallableDirectly) {
  char text[] = " x  y ";
  ArgumentList list;
  ASSERT_TRUE(split_plain(text, list));
  ASSERT_EQ(list.size(), 2);
  EXPECT_STREQ(list.data()[0], "x");
  EXPECT_STREQ(list.data()[1], "y");
}

// ---------------------------------------------------------------------------------------------
// Quoted splitting.

TEST(SplitQuoted, QuotedWordsAreOneArgument) {
  Split const s = split("echo \"a b\" c", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a b", "c"}));
}

TEST(SplitQuoted, EmptyPairOfQuotesIsDropped) {
  Split const s = split("echo \"\" x", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "x"}));
}

TEST(SplitQuoted, EmptyPairAtTheEndIsDropped) {
  Split const s = split("echo \"\"", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo"}));
}

TEST(SplitQuoted, GroupAfterGroupIsSplitAtSpacesAndKeepsItsQuotes) {
  Split const s = split("echo \"a b\" \"c d\"", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a b", "\"c", "d\""}));
}

TEST(SplitQuoted, GroupAfterEmptyPairIsSplitAtSpacesAndKeepsItsQuotes) {
  Split const s = split("echo \"\"  \"a b\"", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "\"a", "b\""}));
}

TEST(SplitQuoted, QuoteInsideAWordIsOrdinary) {
  Split const s = split("echo a\"b c\"", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a\"b", "c\""}));
}

TEST(SplitQuoted, UnterminatedQuoteRunsToTheEnd) {
  Split const s = split("echo \"a b", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a b"}));
}

TEST(SplitQuoted, LoneQuoteAtTheEndGivesNoArgument) {
  Split const s = split("echo \"", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo"}));
}

TEST(SplitQuoted, ProgramNameCannotBeQuoted) {
  Split const s = split("\"my prog\" x", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"\"my", "prog\"", "x"}));
}

TEST(SplitQuoted, WordRightAfterAClosingQuoteStartsTheNextArgument) {
  Split const s = split("echo \"a b\"c d", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a b", "c", "d"}));
}

TEST(SplitQuoted, QuoteRightAfterAClosingQuoteIsOrdinary) {
  Split const s = split("echo \"a\"\"b\" c", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a", "\"b\"", "c"}));
}

TEST(SplitQuoted, SpacesInsideAGroupAreKept) {
  Split const s = split("echo \"  a  b  \" c", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "  a  b  ", "c"}));
}

TEST(SplitQuoted, LeadingTrailingAndRepeatedSpacesAreIgnored) {
  Split const s = split("   echo   x    y   ", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "x", "y"}));
}

TEST(SplitQuoted, OnlyTheSpaceSeparatesWords) {
  Split const s = split("echo a\tb \"c\td\"", true);
  EXPECT_TRUE(s.ok);
  EXPECT_EQ(s.args, (Args{"echo", "a\tb", "c\td"}));
}

TEST(SplitQuoted, EmptyTextOrOnlySpacesHasNoArgument) {
  EXPECT_FALSE(split("", true).ok);
  EXPECT_TRUE(split("", true).args.empty());
  EXPECT_FALSE(split("    ", true).ok);
  EXPECT_TRUE(split("    ", true).args.empty());
}

TEST(SplitQuoted, CallableDirectly) {
  char text[] = "prog \"one two\" three";
  ArgumentList list;
  ASSERT_TRUE(split_quoted(text, list));
  ASSERT_EQ(list.size(), 3);
  EXPECT_STREQ(list.data()[0], "prog");
  EXPECT_STREQ(list.data()[1], "one two");
  EXPECT_STREQ(list.data()[2], "three");
}

TEST(SplitCommand, QuotedFlagChoosesTheSplitter) {
  EXPECT_EQ(split("x \"a b\"", false).args, (Args{"x", "\"a", "b\""}));
  EXPECT_EQ(split("x \"a b\"", true).args, (Args{"x", "a b"}));
}

// ---------------------------------------------------------------------------------------------
// The argument list and its growth.

TEST(PutToken, GrowsTheListByOnePointerAndStoresTheTokenLast) {
  char a[] = "a";
  char b[] = "b";
  char** list = put_token(nullptr, a, 0);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list[0], a);
  char** const grown = put_token(list, b, 1);
  ASSERT_NE(grown, nullptr);
  list = grown;
  EXPECT_EQ(list[0], a);
  EXPECT_EQ(list[1], b);
  char** const terminated = put_token(list, nullptr, 2);
  ASSERT_NE(terminated, nullptr);
  list = terminated;
  EXPECT_EQ(list[2], nullptr);
  std::free(list);
}

TEST(PutToken, FailedReallocationGivesNullAndLeavesTheListAlone) {
  char a[] = "a";
  char b[] = "b";
  char** list = put_token(nullptr, a, 0);
  ASSERT_NE(list, nullptr);
  allow_reallocations(0);
  EXPECT_EQ(put_token(list, b, 1, &limited_realloc), nullptr);
  EXPECT_EQ(list[0], a); // still readable, still the caller's to free
  std::free(list);
}

TEST(PutToken, NegativeCountGivesNull) {
  char a[] = "a";
  EXPECT_EQ(put_token(nullptr, a, -1), nullptr);
}

TEST(ArgumentList, AppendsInOrderAndCountsTheTerminator) {
  char a[] = "a";
  char b[] = "b";
  ArgumentList list;
  EXPECT_EQ(list.data(), nullptr);
  EXPECT_EQ(list.size(), 0);
  EXPECT_TRUE(list.append(a));
  EXPECT_TRUE(list.append(b));
  EXPECT_TRUE(list.append(nullptr));
  ASSERT_EQ(list.size(), 3);
  EXPECT_EQ(list.data()[0], a);
  EXPECT_EQ(list.data()[1], b);
  EXPECT_EQ(list.data()[2], nullptr);
  EXPECT_FALSE(list.failed());
}

TEST(ArgumentList, GrowsOnePointerAtATime) {
  char a[] = "a";
  allow_reallocations(100);
  ArgumentList list(&limited_realloc);
  for (int i = 0; i < 5; ++i) {
    ASSERT_TRUE(list.append(a));
  }
  EXPECT_EQ(reallocations_made, 5);
}

TEST(ArgumentList, FailedAppendLosesTheListAndKeepsTheCount) {
  char a[] = "a";
  allow_reallocations(2);
  ArgumentList list(&limited_realloc);
  EXPECT_TRUE(list.append(a));
  EXPECT_TRUE(list.append(a));
  EXPECT_FALSE(list.append(a));
  EXPECT_TRUE(list.failed());
  EXPECT_EQ(list.data(), nullptr);
  EXPECT_EQ(list.size(), 2);
  allow_reallocations(10);
  EXPECT_FALSE(list.append(a)); // a list with a hole is never built
  EXPECT_EQ(list.data(), nullptr);
  EXPECT_EQ(reallocations_made, 0);
}

TEST(ArgumentList, MemoryRunningOutMidwayFailsBothSplitters) {
  for (bool const quoted : {false, true}) {
    char text[] = "prog one two three";
    allow_reallocations(2);
    ArgumentList list(&limited_realloc);
    EXPECT_FALSE(split_command(text, quoted, list)) << quoted;
    EXPECT_TRUE(list.failed());
    EXPECT_EQ(list.data(), nullptr);
  }
}

TEST(ArgumentList, MemoryRunningOutAtTheLastTokenFailsBothSplitters) {
  for (bool const quoted : {false, true}) {
    char text[] = "prog one \"two\"";
    allow_reallocations(2);
    ArgumentList list(&limited_realloc);
    EXPECT_FALSE(split_command(text, quoted, list)) << quoted;
    EXPECT_EQ(list.size(), 2);
    EXPECT_EQ(list.data(), nullptr);
  }
}

TEST(ArgumentList, NoMemoryAtAllFailsBothSplitters) {
  for (bool const quoted : {false, true}) {
    char text[] = "prog";
    allow_reallocations(0);
    ArgumentList list(&limited_realloc);
    EXPECT_FALSE(split_command(text, quoted, list)) << quoted;
    EXPECT_EQ(list.size(), 0);
  }
}

TEST(ExecWorker, NullCommandGivesMinusOne) {
  int pid = 12345;
  EXPECT_EQ(wlccw::detail::_exec_cmd(nullptr, 1, pid, 0, false), -1);
  EXPECT_EQ(pid, 12345); // nothing was started
}

TEST(ExecWorker, CommandWithoutArgumentGivesMinusOneAndStartsNothing) {
  for (bool const quoted : {false, true}) {
    for (int const wait : {0, 1}) {
      int pid = 12345;
      EXPECT_EQ(wlccw::detail::_exec_cmd("   ", wait, pid, 0, quoted), -1);
      EXPECT_EQ(pid, 12345);
    }
  }
}
