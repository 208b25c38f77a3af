// Running real programs: the argument recorder started by every function of the exec_cmd family.
#include <wlccw/system/exec_cmd.hpp>

#include "detail/exec.hpp"
#include "system/system_support.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iterator>
#include <optional>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <sys/resource.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

using wlccw::test::monotonic_ns;
using wlccw::test::ScopedEnv;
using wlccw::test::TempDir;

static_assert(std::is_aggregate_v<ExecCmdParams>);
static_assert(std::is_same_v<decltype(ExecCmdParams::delay_us), std::uint32_t>);
static_assert(std::is_same_v<decltype(ExecCmdParams::quoted), bool>);

namespace {

char const* const recorder = WLCCW_ARGV_RECORDER;
using Args = std::vector<std::string>;
constexpr std::int64_t ns_per_ms = 1'000'000;

/// What the recorder wrote: when it started and its arguments, argv[0] first.
struct Record {
  std::int64_t started_ns = 0;
  long pid = 0;
  long group = 0;
  Args args;
};

std::optional<Record> read_record(std::string const& path) {
  if (access(path.c_str(), F_OK) != 0) {
    return std::nullopt;
  }
  std::string const bytes = wlccw::test::read_file(path);
  std::vector<std::string> fields;
  std::size_t begin = 0;
  for (std::size_t end = bytes.find('\0'); end != std::string::npos;
       end = bytes.find('\0', begin)) {
    fields.push_back(bytes.substr(begin, end - begin));
    begin = end + 1;
  }
  if (fields.size() < 3) {
    return std::nullopt;
  }
  Record record;
  record.started_ns = std::stoll(fields[0]);
  record.pid = std::stol(fields[1]);
  record.group = std::stol(fields[2]);
  record.args.assign(fields.begin() + 3, fields.end());
  return record;
}

/// Waits for a child of this process and returns its raw status; -1 when there was none.
int reap(pid_t pid) {
  int status = 0;
  pid_t result = 0;
  do {
    result = waitpid(pid, &status, 0);
  } while (result < 0 && errno == EINTR);
  return result == pid ? status : -1;
}

class ExecCmd : public ::testing::Test {
protected:
  void SetUp() override {
    ASSERT_FALSE(dir.path().empty()) << "mkdtemp failed";
    // The tests write these paths into command lines, which split at spaces.
    ASSERT_EQ(std::string(recorder).find(' '), std::string::npos) << recorder;
    ASSERT_EQ(dir.path().find(' '), std::string::npos) << dir.path();
    ASSERT_TRUE(wlccw::test::no_child_left());
  }

  void TearDown() override {
    // Every background child started by a test has been reaped by it.
    EXPECT_TRUE(wlccw::test::no_child_left());
  }

  /// The record of the last run; fails the test when there is none.
  Record last_record() {
    std::optional<Record> record = read_record(record_path);
    EXPECT_TRUE(record.has_value()) << "the program did not run";
    return record.value_or(Record{});
  }

  /// Args of a recorder run: the recorder's path, then the given arguments.
  static Args recorded(Args const& rest) {
    Args args{recorder};
    args.insert(args.end(), rest.begin(), rest.end());
    return args;
  }

  TempDir dir;
  std::string record_path = dir.file("record");
  ScopedEnv record_env{"WLCCW_ARGV_RECORD", record_path};
  ScopedEnv exit_env{"WLCCW_ARGV_EXIT", std::nullopt};
  ScopedEnv hold_env{"WLCCW_ARGV_HOLD", std::nullopt};
};

/// A background start function under test, with the arguments it passes after the program.
struct BackgroundStart {
  char const* name;
  int (*start)(char const* recorder_path);
  Args args;
};

void PrintTo(BackgroundStart const& form, std::ostream* out) {
  *out << form.name;
}

} // namespace

// ---------------------------------------------------------------------------------------------
// Arguments as the program receives them.

TEST_F(ExecCmd, PlainArgumentsArriveSplitAtRunsOfSpaces) {
  EXPECT_EQ(exec_cmd("%s a  b   c", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"a", "b", "c"}));
}

TEST_F(ExecCmd, PlainLeadingTrailingSpacesIgnoredTabsKept) {
  EXPECT_EQ(exec_cmd("   %s a\tb   ", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"a\tb"}));
}

TEST_F(ExecCmd, PlainQuotesArriveAsOrdinaryCharacters) {
  EXPECT_EQ(exec_cmd("%s \"a b\"", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"\"a", "b\""}));
}

TEST_F(ExecCmd, FormatArgumentsAreFormattedIntoTheLine) {
  EXPECT_EQ(exec_cmd("%s %d %s %05.1f", recorder, 42, "x", 2.5), 0);
  EXPECT_EQ(last_record().args, recorded({"42", "x", "002.5"}));
}

TEST_F(ExecCmd, QuotedGroupArrivesAsOneArgument) {
  EXPECT_EQ(exec_cmd_quoted("%s \"a b\" c", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"a b", "c"}));
}

TEST_F(ExecCmd, QuotedEmptyPairIsNotPassed) {
  EXPECT_EQ(exec_cmd_quoted("%s \"\" x", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"x"}));
}

TEST_F(ExecCmd, QuotedGroupAfterGroupArrivesSplitWithItsQuotes) {
  EXPECT_EQ(exec_cmd_quoted("%s \"a b\" \"c d\"", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"a b", "\"c", "d\""}));
}

TEST_F(ExecCmd, QuotedQuoteInsideAWordIsOrdinary) {
  EXPECT_EQ(exec_cmd_quoted("%s a\"b c\"", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"a\"b", "c\""}));
}

TEST_F(ExecCmd, QuotedUnterminatedGroupRunsToTheEnd) {
  EXPECT_EQ(exec_cmd_quoted("%s \"a b", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"a b"}));
}

TEST_F(ExecCmd, ParametrizedSplitsAsItsParametersSay) {
  EXPECT_EQ(exec_cmd_parametrized(ExecCmdParams{0, true}, "%s \"a b\" c", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"a b", "c"}));
  EXPECT_EQ(exec_cmd_parametrized(ExecCmdParams{0, false}, "%s \"a b\" c", recorder), 0);
  EXPECT_EQ(last_record().args, recorded({"\"a", "b\"", "c"}));
}

TEST_F(ExecCmd, ShellSyntaxArrivesVerbatim) {
  std::string const made_by_redirect = dir.file("redirected");
  std::string const made_by_substitution = dir.file("substituted");
  std::string const made_by_backticks = dir.file("backticked");
  EXPECT_EQ(exec_cmd("%s a;b ; $(touch %s) `touch %s` | cat > %s $HOME * ~ && x", recorder,
                     made_by_substitution.c_str(), made_by_backticks.c_str(),
                     made_by_redirect.c_str()),
            0);
  EXPECT_EQ(last_record().args, recorded({"a;b", ";", "$(touch", made_by_substitution + ")",
                                          "`touch", made_by_backticks + "`", "|", "cat", ">",
                                          made_by_redirect, "$HOME", "*", "~", "&&", "x"}));
  EXPECT_FALSE(wlccw::test::exists(made_by_redirect));
  EXPECT_FALSE(wlccw::test::exists(made_by_substitution));
  EXPECT_FALSE(wlccw::test::exists(made_by_backticks));
}

TEST_F(ExecCmd, QuotedShellSyntaxArrivesVerbatim) {
  std::string const made_by_redirect = dir.file("redirected");
  EXPECT_EQ(exec_cmd_quoted("%s \"a; b | c > %s $(id) `id`\"", recorder, made_by_redirect.c_str()),
            0);
  EXPECT_EQ(last_record().args, recorded({"a; b | c > " + made_by_redirect + " $(id) `id`"}));
  EXPECT_FALSE(wlccw::test::exists(made_by_redirect));
}

// ---------------------------------------------------------------------------------------------
// Exit codes of waited runs.

TEST_F(ExecCmd, WaitedRunsReturnTheExitCode) {
  {
    ScopedEnv const code("WLCCW_ARGV_EXIT", "3");
    EXPECT_EQ(exec_cmd("%s", recorder), 3);
    EXPECT_EQ(exec_cmd_quoted("%s \"x y\"", recorder), 3);
    EXPECT_EQ(exec_cmd_parametrized(ExecCmdParams{0, true}, "%s", recorder), 3);
    EXPECT_EQ(exec_cmd_parametrized(ExecCmdParams{0, false}, "%s", recorder), 3);
  }
  {
    ScopedEnv const code("WLCCW_ARGV_EXIT", "255");
    EXPECT_EQ(exec_cmd("%s", recorder), 255);
  }
  {
    ScopedEnv const code("WLCCW_ARGV_EXIT", "0");
    EXPECT_EQ(exec_cmd("%s", recorder), 0);
  }
}

TEST_F(ExecCmd, WaitedRunOfAMissingProgramReturnsZeroAfterTheChildAborts) {
  // The child aborts; keep it from leaving a core file behind.
  wlccw::test::ScopedSoftLimit const no_core(RLIMIT_CORE, 0);
  std::string const missing = dir.file("no-such-program");
  wlccw::test::StderrCapture capture(dir.file("stderr"));
  ASSERT_TRUE(capture.active());
  int const by_path = exec_cmd("%s x", missing.c_str());
  int const by_search =
      exec_cmd_quoted("wlccw-no-such-program-%d \"x y\"", static_cast<int>(getpid()));
  std::string const printed = capture.finish();
  EXPECT_EQ(by_path, 0);
  EXPECT_EQ(by_search, 0);
  std::string const message = std::string("execvp: ") + std::strerror(ENOENT) + "\n";
  EXPECT_EQ(printed, message + message);
}

TEST_F(ExecCmd, BackgroundChildOfAMissingProgramIsAborted) {
  wlccw::test::ScopedSoftLimit const no_core(RLIMIT_CORE, 0);
  wlccw::test::StderrCapture capture(dir.file("stderr"));
  ASSERT_TRUE(capture.active());
  int const pid = exec_cmd_bg("%s", dir.file("no-such-program").c_str());
  ASSERT_GT(pid, 0);
  int const status = reap(pid);
  std::string const printed = capture.finish();
  ASSERT_TRUE(WIFSIGNALED(status)) << status;
  EXPECT_EQ(WTERMSIG(status), SIGABRT);
  EXPECT_EQ(printed, std::string("execvp: ") + std::strerror(ENOENT) + "\n");
}

// ---------------------------------------------------------------------------------------------
// Command lines that hold nothing to run.

TEST_F(ExecCmd, EmptyOrBlankLineReturnsMinusOneWithoutForking) {
  for (char const* line : {"", " ", "     "}) {
    EXPECT_EQ(exec_cmd("%s", line), -1);
    EXPECT_EQ(exec_cmd_quoted("%s", line), -1);
    EXPECT_EQ(exec_cmd_parametrized(ExecCmdParams{0, true}, "%s", line), -1);
    EXPECT_EQ(exec_cmd_bg("%s", line), -1);
    EXPECT_EQ(exec_cmd_bg_quoted("%s", line), -1);
    EXPECT_EQ(exec_cmd_bg_parametrized(ExecCmdParams{1000, false}, "%s", line), -1);
    EXPECT_EQ(exec_cmd_delayed(1000, "%s", line), -1);
    EXPECT_EQ(exec_cmd_delayed_quoted(1000, "%s", line), -1);
    // Had any of them forked, the background ones would have left a child here.
    EXPECT_TRUE(wlccw::test::no_child_left());
  }
}

TEST_F(ExecCmd, UnformattableLineReturnsMinusOneWithoutForking) {
  // No multibyte form exists for this wide character, so the formatting fails.
  wchar_t const unencodable[] = {static_cast<wchar_t>(0x110000), L'\0'};
  EXPECT_EQ(exec_cmd("%s %ls", recorder, unencodable), -1);
  EXPECT_EQ(exec_cmd_quoted("%s %ls", recorder, unencodable), -1);
  EXPECT_EQ(exec_cmd_parametrized(ExecCmdParams{0, false}, "%s %ls", recorder, unencodable), -1);
  EXPECT_EQ(exec_cmd_bg("%s %ls", recorder, unencodable), -1);
  EXPECT_EQ(exec_cmd_bg_quoted("%s %ls", recorder, unencodable), -1);
  EXPECT_EQ(exec_cmd_bg_parametrized(ExecCmdParams{0, true}, "%s %ls", recorder, unencodable), -1);
  EXPECT_EQ(exec_cmd_delayed(0, "%s %ls", recorder, unencodable), -1);
  EXPECT_EQ(exec_cmd_delayed_quoted(0, "%s %ls", recorder, unencodable), -1);
  EXPECT_TRUE(wlccw::test::no_child_left());
  EXPECT_FALSE(wlccw::test::exists(record_path));
}

TEST_F(ExecCmd, ForkFailureReturnsMinusOneAndPidMinusOne) {
  // Run in a child of the test, where the process limit can be dropped to nothing without
  // harming the rest of the suite; a privileged child first becomes an unprivileged user, since
  // the limit does not bind the privileged. The child reports through its exit code.
  constexpr int passed = 0;
  constexpr int failed = 1;
  constexpr int cannot_drop = 2;
  pid_t const tester = fork();
  ASSERT_GE(tester, 0);
  if (tester == 0) {
    if (getuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) {
      _exit(cannot_drop);
    }
    rlimit const none{0, 0};
    if (setrlimit(RLIMIT_NPROC, &none) != 0) {
      _exit(cannot_drop);
    }
    int pid = 12345;
    int const worker = wlccw::detail::_exec_cmd("true", 0, pid, 0, false);
    int const waited = exec_cmd("%s", "true");
    int const background = exec_cmd_bg("%s", "true");
    int const delayed = exec_cmd_delayed(10, "%s", "true");
    bool const ok = worker == -1 && pid == -1 && waited == -1 && background == -1 && delayed == -1;
    while (waitpid(-1, nullptr, 0) > 0) {
      // should a fork have succeeded after all, leave nothing behind
    }
    _exit(ok ? passed : failed);
  }
  int const status = reap(tester);
  ASSERT_TRUE(WIFEXITED(status)) << status;
  if (WEXITSTATUS(status) == cannot_drop) {
    GTEST_SKIP() << "cannot limit the number of processes here";
  }
  EXPECT_EQ(WEXITSTATUS(status), passed);
}

namespace {

/// A reallocation function that fails after a given number of successful calls; set in a child
/// of the test before it is used there.
int reallocations_left = 0;

void* limited_realloc(void* block, std::size_t size) {
  if (reallocations_left <= 0) {
    return nullptr;
  }
  --reallocations_left;
  return std::realloc(block, size);
}

/// Runs the child's side of a start in a child of the test, with an argument list ["true"] that
/// may grow allowed_reallocations times in all, and returns that child's raw status.
int run_child_with(int allowed_reallocations) {
  pid_t const child = fork();
  if (child == 0) {
    reallocations_left = allowed_reallocations;
    char program[] = "true";
    wlccw::detail::ArgumentList args(&limited_realloc);
    if (!args.append(program)) {
      _exit(99);
    }
    wlccw::detail::run_child(args, true, 0);
  }
  return child < 0 ? -1 : reap(child);
}

} // namespace

TEST_F(ExecCmd, ChildWithoutMemoryForTheListTerminatorAborts) {
  wlccw::test::ScopedSoftLimit const no_core(RLIMIT_CORE, 0);
  int const status = run_child_with(1);
  ASSERT_TRUE(WIFSIGNALED(status)) << status;
  EXPECT_EQ(WTERMSIG(status), SIGABRT);
  // With the memory, the same list starts the program.
  int const started = run_child_with(2);
  ASSERT_TRUE(WIFEXITED(started)) << started;
  EXPECT_EQ(WEXITSTATUS(started), 0);
}

// ---------------------------------------------------------------------------------------------
// Background runs.

namespace {

int start_bg(char const* path) {
  return exec_cmd_bg("%s bg", path);
}
int start_bg_quoted(char const* path) {
  return exec_cmd_bg_quoted("%s \"bg quoted\"", path);
}
int start_bg_parametrized(char const* path) {
  return exec_cmd_bg_parametrized(ExecCmdParams{1000, true}, "%s \"bg parametrized\"", path);
}
int start_delayed(char const* path) {
  return exec_cmd_delayed(1000, "%s delayed", path);
}
int start_delayed_quoted(char const* path) {
  return exec_cmd_delayed_quoted(1000, "%s \"delayed quoted\"", path);
}

} // namespace

class ExecCmdBackground : public ExecCmd, public ::testing::WithParamInterface<BackgroundStart> {};

TEST_P(ExecCmdBackground, ReturnsAtOnceWithAChildLeadingItsOwnProcessGroup) {
  auto const& [name, start, expected_args] = GetParam();
  ScopedEnv const hold("WLCCW_ARGV_HOLD", "1"); // the program stays until it is signalled
  auto const before = std::chrono::steady_clock::now();
  int const pid = start(recorder);
  auto const took = std::chrono::steady_clock::now() - before;
  ASSERT_GT(pid, 0);
  EXPECT_LT(took, std::chrono::seconds(20)); // the program holds for a minute

  // Once the program runs, the child has set its group.
  bool const ran = wlccw::test::wait_for_file(record_path);
  EXPECT_TRUE(ran);
  pid_t const group = getpgid(pid);
  EXPECT_EQ(group, pid);
  EXPECT_NE(group, getpgrp());
  if (ran) {
    Record const record = last_record();
    EXPECT_EQ(record.args, recorded(expected_args));
    EXPECT_EQ(record.pid, pid);
    EXPECT_EQ(record.group, pid);
  }

  // The whole group is signalled by the child's id.
  int const signalled = killpg(pid, SIGTERM);
  EXPECT_EQ(signalled, 0);
  if (signalled != 0) {
    kill(pid, SIGTERM); // not a group of its own: end it anyway rather than wait a minute
  }
  int const status = reap(pid);
  ASSERT_TRUE(WIFSIGNALED(status)) << status;
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

INSTANTIATE_TEST_SUITE_P(
    EveryForm, ExecCmdBackground,
    ::testing::Values(BackgroundStart{"exec_cmd_bg", &start_bg, Args{"bg"}},
                      BackgroundStart{"exec_cmd_bg_quoted", &start_bg_quoted, Args{"bg quoted"}},
                      BackgroundStart{"exec_cmd_bg_parametrized", &start_bg_parametrized,
                                      Args{"bg parametrized"}},
                      BackgroundStart{"exec_cmd_delayed", &start_delayed, Args{"delayed"}},
                      BackgroundStart{"exec_cmd_delayed_quoted", &start_delayed_quoted,
                                      Args{"delayed quoted"}}),
    [](::testing::TestParamInfo<BackgroundStart> const& instance) {
      return std::string(instance.param.name);
    });

TEST_F(ExecCmd, BackgroundReturnsThePidNotTheExitCode) {
  ScopedEnv const code("WLCCW_ARGV_EXIT", "3");
  int const pid = exec_cmd_bg("%s", recorder);
  ASSERT_GT(pid, 0);
  int const status = reap(pid);
  ASSERT_TRUE(WIFEXITED(status)) << status;
  EXPECT_EQ(WEXITSTATUS(status), 3);
}

TEST_F(ExecCmd, WaitedChildAlsoLeadsItsOwnProcessGroup) {
  EXPECT_EQ(exec_cmd("%s", recorder), 0);
  Record const record = last_record();
  EXPECT_GT(record.pid, 0);
  EXPECT_EQ(record.group, record.pid);
  EXPECT_NE(record.group, getpgrp());
}

// ---------------------------------------------------------------------------------------------
// Delays.

namespace {

constexpr unsigned int long_delay_us = 1'500'000;
constexpr std::int64_t long_delay_ns = std::int64_t{long_delay_us} * 1000;

} // namespace

/// Starts the recorder through start, a delayed start, and checks that the caller got the child's
/// id back well before the delay ended, and that the program started no earlier than the delay.
void expect_delayed_start(std::function<int()> const& start, std::string const& record_path) {
  std::int64_t const before = monotonic_ns();
  int const pid = start();
  std::int64_t const returned = monotonic_ns();
  ASSERT_GT(pid, 0);
  EXPECT_LT(returned - before, long_delay_ns - 500 * ns_per_ms);
  int const status = reap(pid);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  std::optional<Record> const record = read_record(record_path);
  ASSERT_TRUE(record.has_value()) << "the program did not run";
  EXPECT_GE(record->started_ns, before + long_delay_ns);
  EXPECT_LT(record->started_ns, before + long_delay_ns + 20'000 * ns_per_ms);
  EXPECT_EQ(record->pid, pid);
}

TEST_F(ExecCmd, DelayedStartsTheProgramAfterTheDelayWhileTheCallerHasReturned) {
  expect_delayed_start([] { return exec_cmd_delayed(long_delay_us, "%s", recorder); }, record_path);
  EXPECT_EQ(last_record().args, recorded({}));
}

TEST_F(ExecCmd, DelayedHalfASecond) {
  std::int64_t const before = monotonic_ns();
  int const pid = exec_cmd_delayed(500000, "%s x", recorder);
  ASSERT_GT(pid, 0);
  reap(pid);
  Record const record = last_record();
  EXPECT_GE(record.started_ns, before + 500 * ns_per_ms);
  EXPECT_EQ(record.args, recorded({"x"}));
}

TEST_F(ExecCmd, DelayedQuotedStartsTheProgramAfterTheDelay) {
  expect_delayed_start(
      [] { return exec_cmd_delayed_quoted(long_delay_us, "%s \"a b\"", recorder); }, record_path);
  EXPECT_EQ(last_record().args, recorded({"a b"}));
}

TEST_F(ExecCmd, BackgroundParametrizedHonoursTheDelay) {
  expect_delayed_start(
      [] {
        return exec_cmd_bg_parametrized(ExecCmdParams{long_delay_us, false}, "%s \"a b\"",
                                        recorder);
      },
      record_path);
  EXPECT_EQ(last_record().args, recorded({"\"a", "b\""}));
  expect_delayed_start(
      [] {
        return exec_cmd_bg_parametrized(ExecCmdParams{long_delay_us, true}, "%s \"a b\"", recorder);
      },
      record_path);
  EXPECT_EQ(last_record().args, recorded({"a b"}));
}

TEST_F(ExecCmd, WaitedParametrizedRunIgnoresTheDelay) {
  constexpr std::uint32_t delay_us = 10'000'000;
  std::int64_t const before = monotonic_ns();
  EXPECT_EQ(exec_cmd_parametrized(ExecCmdParams{delay_us, true}, "%s \"a b\"", recorder), 0);
  std::int64_t const returned = monotonic_ns();
  EXPECT_LT(returned - before, std::int64_t{delay_us} * 1000 / 2);
  Record const record = last_record();
  EXPECT_LT(record.started_ns, before + std::int64_t{delay_us} * 1000 / 2);
  EXPECT_EQ(record.args, recorded({"a b"}));
}

TEST_F(ExecCmd, BackgroundWithoutDelayStartsAtOnce) {
  std::int64_t const before = monotonic_ns();
  int const pid = exec_cmd_bg_parametrized(ExecCmdParams{0, false}, "%s", recorder);
  ASSERT_GT(pid, 0);
  reap(pid);
  // Far below the delays above: nothing waits before the program.
  EXPECT_LT(last_record().started_ns, before + 1000 * ns_per_ms);
}
