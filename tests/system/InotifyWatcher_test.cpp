// Watching real temporary directories with inotify.
#include <wlccw/system/InotifyWatcher.hpp>

#include "system/system_support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

using wlccw::test::TempDir;
using wlccw::test::write_file;
using namespace std::chrono_literals;

static_assert(std::is_abstract_v<InotifyObserver>);
static_assert(!std::has_virtual_destructor_v<InotifyObserver>);
static_assert(!std::is_destructible_v<InotifyObserver>); // not through the interface
static_assert(!std::is_copy_constructible_v<InotifyWatcher>);
static_assert(!std::is_copy_assignable_v<InotifyWatcher>);
static_assert(std::is_nothrow_move_constructible_v<InotifyWatcher>);
static_assert(std::is_nothrow_move_assignable_v<InotifyWatcher>);
static_assert(InotifyWatcher::event_mask == 0xEC8U);
static_assert(InotifyWatcher::event_mask == (IN_CLOSE_WRITE | IN_MOVED_FROM | IN_MOVED_TO |
                                             IN_DELETE | IN_DELETE_SELF | IN_MOVE_SELF));
static_assert(std::is_same_v<decltype(InotifyWatcher::directory), std::string>);
static_assert(std::is_same_v<decltype(InotifyWatcher::fd), int>);
static_assert(std::is_same_v<decltype(InotifyWatcher::wd), int>);

namespace {

/// One event as an observer saw it.
struct Seen {
  std::uint32_t mask;
  std::uint32_t length;
  std::string name;
};

/// Keeps every event it is given.
class Recorder final : public InotifyObserver {
public:
  void inotify_event(struct inotify_event* event) override {
    // The name is NUL-padded to len bytes.
    seen.push_back(Seen{event->mask, event->len, std::string(event->name)});
  }

  [[nodiscard]] bool saw(std::string const& name, std::uint32_t mask) const {
    return std::any_of(seen.begin(), seen.end(),
                       [&](Seen const& s) { return s.name == name && (s.mask & mask) != 0; });
  }
  [[nodiscard]] bool saw_name(std::string const& name) const {
    return std::any_of(seen.begin(), seen.end(), [&](Seen const& s) { return s.name == name; });
  }

  std::vector<Seen> seen;
};

/// Calls watch until the recorder saw an event of that mask about that name (up to 5 s).
bool watch_for(InotifyWatcher& watcher, Recorder& recorder, std::string const& name,
               std::uint32_t mask) {
  return wlccw::test::poll_until([&] { return recorder.saw(name, mask); },
                                 [&] { watcher.watch(recorder); });
}

/// Whether descriptor fd has input waiting, after waiting at most timeout_ms.
bool readable(int fd, int timeout_ms) {
  pollfd request{fd, POLLIN, 0};
  return poll(&request, 1, timeout_ms) > 0 && (request.revents & POLLIN) != 0;
}

class Inotify : public ::testing::Test {
protected:
  void SetUp() override {
    ASSERT_FALSE(dir.path().empty()) << "mkdtemp failed";
    ASSERT_FALSE(other.path().empty()) << "mkdtemp failed";
  }

  TempDir dir;
  TempDir other;
  Recorder recorder;
};

} // namespace

// ---------------------------------------------------------------------------------------------
// States.

TEST(InotifyWatcherState, DefaultBuiltIsInactiveAndWatchReturnsAtOnce) {
  InotifyWatcher watcher;
  EXPECT_EQ(watcher.directory, "");
  EXPECT_EQ(watcher.fd, -1);
  EXPECT_EQ(watcher.wd, -1);
  Recorder recorder;
  auto const before = std::chrono::steady_clock::now();
  for (int i = 0; i < 200; ++i) {
    watcher.watch(recorder);
  }
  // A poll of 10 ms per call would take two seconds.
  EXPECT_LT(std::chrono::steady_clock::now() - before, 1s);
  EXPECT_TRUE(recorder.seen.empty());
  EXPECT_EQ(watcher.fd, -1);
}

TEST_F(Inotify, ConstructorStartsWatchingTheDirectoryWithTheMask) {
  InotifyWatcher const watcher(dir.path());
  EXPECT_EQ(watcher.directory, dir.path());
  ASSERT_GE(watcher.fd, 0);
  EXPECT_GE(watcher.wd, 0);
  std::vector<std::string> const lines = wlccw::test::watch_lines(watcher.fd);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_NE(lines[0].find(" mask:ec8 "), std::string::npos) << lines[0];
}

TEST_F(Inotify, WatchWaitsAboutTenMillisecondsWhenNothingHappens) {
  InotifyWatcher watcher(dir.path());
  ASSERT_GE(watcher.fd, 0);
  auto const before = std::chrono::steady_clock::now();
  watcher.watch(recorder);
  auto const took = std::chrono::steady_clock::now() - before;
  EXPECT_GE(took, 9ms);
  EXPECT_LT(took, 5s);
  EXPECT_TRUE(recorder.seen.empty());
}

// ---------------------------------------------------------------------------------------------
// What is delivered.

TEST_F(Inotify, FileWrittenAndClosedIsDeliveredWithItsName) {
  InotifyWatcher watcher(dir.path());
  ASSERT_TRUE(write_file(dir.file("written"), "x"));
  ASSERT_TRUE(watch_for(watcher, recorder, "written", IN_CLOSE_WRITE));
  for (Seen const& s : recorder.seen) {
    EXPECT_EQ(s.name, "written");
    EXPECT_EQ(s.mask, static_cast<std::uint32_t>(IN_CLOSE_WRITE));
    EXPECT_GT(s.length, 0U);
  }
}

TEST_F(Inotify, CreationAloneIsNotDelivered) {
  InotifyWatcher watcher(dir.path());
  int const created = open(dir.file("created").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  ASSERT_GE(created, 0);
  // Events arrive in order: once the later file is seen, a creation event would have come first.
  ASSERT_TRUE(write_file(dir.file("later"), "x"));
  ASSERT_TRUE(watch_for(watcher, recorder, "later", IN_CLOSE_WRITE));
  EXPECT_FALSE(recorder.saw_name("created"));
  // Closing it after writing is what counts.
  ASSERT_EQ(close(created), 0);
  EXPECT_TRUE(watch_for(watcher, recorder, "created", IN_CLOSE_WRITE));
}

TEST_F(Inotify, ReadingChangingAttributesAndMakingDirectoriesAreNotDelivered) {
  ASSERT_TRUE(write_file(dir.file("existing"), "x"));
  InotifyWatcher watcher(dir.path());
  {
    int const reader = open(dir.file("existing").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    char byte = 0;
    EXPECT_EQ(read(reader, &byte, 1), 1);
    close(reader);
  }
  ASSERT_EQ(chmod(dir.file("existing").c_str(), 0644), 0);
  ASSERT_EQ(mkdir(dir.file("subdirectory").c_str(), 0700), 0);
  ASSERT_TRUE(write_file(dir.file("later"), "x"));
  ASSERT_TRUE(watch_for(watcher, recorder, "later", IN_CLOSE_WRITE));
  EXPECT_FALSE(recorder.saw_name("existing"));
  EXPECT_FALSE(recorder.saw_name("subdirectory"));
}

TEST_F(Inotify, FilesMovedInAndOutAndDeletedAreDelivered) {
  ASSERT_TRUE(write_file(other.file("outside"), "x"));
  InotifyWatcher watcher(dir.path());
  ASSERT_EQ(rename(other.file("outside").c_str(), dir.file("moved-in").c_str()), 0);
  EXPECT_TRUE(watch_for(watcher, recorder, "moved-in", IN_MOVED_TO));
  ASSERT_EQ(rename(dir.file("moved-in").c_str(), other.file("moved-out").c_str()), 0);
  EXPECT_TRUE(watch_for(watcher, recorder, "moved-in", IN_MOVED_FROM));
  ASSERT_TRUE(write_file(dir.file("deleted"), "x"));
  ASSERT_EQ(unlink(dir.file("deleted").c_str()), 0);
  EXPECT_TRUE(watch_for(watcher, recorder, "deleted", IN_DELETE));
}

TEST_F(Inotify, DeletionOfTheWatchedDirectoryItselfIsNotDelivered) {
  TempDir const watched(dir.path(), "watched-");
  ASSERT_FALSE(watched.path().empty());
  InotifyWatcher watcher(watched.path());
  ASSERT_TRUE(write_file(watched.file("last"), "x"));
  ASSERT_EQ(unlink(watched.file("last").c_str()), 0);
  ASSERT_TRUE(watch_for(watcher, recorder, "last", IN_DELETE));
  std::size_t const named = recorder.seen.size();

  ASSERT_EQ(rmdir(watched.path().c_str()), 0);
  // The deletion is reported on the instance...
  ASSERT_TRUE(readable(watcher.fd, 2000));
  // ...and read by watch, which hands nothing of it on.
  EXPECT_TRUE(wlccw::test::poll_until([&] { return !readable(watcher.fd, 0); },
                                      [&] { watcher.watch(recorder); }));
  EXPECT_EQ(recorder.seen.size(), named);
  for (Seen const& s : recorder.seen) {
    EXPECT_GT(s.length, 0U);
    EXPECT_EQ(s.mask & static_cast<std::uint32_t>(IN_DELETE_SELF | IN_IGNORED), 0U);
  }
}

TEST_F(Inotify, MoveOfTheWatchedDirectoryItselfIsNotDelivered) {
  TempDir const watched(dir.path(), "watched-");
  ASSERT_FALSE(watched.path().empty());
  InotifyWatcher watcher(watched.path());
  ASSERT_EQ(rename(watched.path().c_str(), dir.file("renamed").c_str()), 0);
  ASSERT_TRUE(readable(watcher.fd, 2000));
  EXPECT_TRUE(wlccw::test::poll_until([&] { return !readable(watcher.fd, 0); },
                                      [&] { watcher.watch(recorder); }));
  EXPECT_TRUE(recorder.seen.empty());
  // Files in the moved directory are still watched.
  ASSERT_TRUE(write_file(dir.file("renamed") + "/inside", "x"));
  EXPECT_TRUE(watch_for(watcher, recorder, "inside", IN_CLOSE_WRITE));
}

TEST_F(Inotify, OneCallReadsAtMostOneBufferOfEvents) {
  // Each event with a 200-byte name takes 16 + 208 bytes: a 32768-byte buffer holds 146.
  constexpr int files = 300;
  constexpr std::size_t per_buffer = 32768 / (16 + 208);
  InotifyWatcher watcher(dir.path());
  std::vector<std::string> names;
  for (int i = 0; i < files; ++i) {
    std::string name = std::to_string(i);
    name.insert(0, 200 - name.size(), 'n');
    ASSERT_TRUE(write_file(dir.file(name), ""));
    names.push_back(std::move(name));
  }
  ASSERT_TRUE(readable(watcher.fd, 2000));
  watcher.watch(recorder);
  EXPECT_GE(recorder.seen.size(), 1U);
  EXPECT_LE(recorder.seen.size(), per_buffer);
  // The rest wait for later calls.
  ASSERT_TRUE(wlccw::test::poll_until(
      [&] { return recorder.seen.size() >= static_cast<std::size_t>(files); },
      [&] { watcher.watch(recorder); }));
  ASSERT_EQ(recorder.seen.size(), static_cast<std::size_t>(files));
  for (int i = 0; i < files; ++i) {
    EXPECT_EQ(recorder.seen[static_cast<std::size_t>(i)].name, names[static_cast<std::size_t>(i)]);
  }
}

// ---------------------------------------------------------------------------------------------
// Starting and stopping.

TEST_F(Inotify, DeinitTwiceIsHarmless) {
  InotifyWatcher watcher(dir.path());
  int const old_fd = watcher.fd;
  ASSERT_GE(old_fd, 0);
  watcher.deinit();
  EXPECT_EQ(watcher.fd, -1);
  EXPECT_EQ(watcher.wd, -1);
  errno = 0;
  EXPECT_EQ(fcntl(old_fd, F_GETFD), -1); // closed
  EXPECT_EQ(errno, EBADF);
  watcher.deinit();
  EXPECT_EQ(watcher.fd, -1);
  EXPECT_EQ(watcher.wd, -1);
  EXPECT_EQ(watcher.directory, dir.path());
  // Inactive again: nothing is delivered.
  ASSERT_TRUE(write_file(dir.file("after"), "x"));
  for (int i = 0; i < 20; ++i) {
    watcher.watch(recorder);
  }
  EXPECT_TRUE(recorder.seen.empty());
}

TEST_F(Inotify, SetDirectoryReplacesTheWatch) {
  InotifyWatcher watcher(dir.path());
  watcher.set_directory(other.path());
  EXPECT_EQ(watcher.directory, other.path());
  ASSERT_GE(watcher.fd, 0);
  EXPECT_EQ(wlccw::test::watch_lines(watcher.fd).size(), 1U);
  ASSERT_TRUE(write_file(dir.file("in-old"), "x"));
  ASSERT_TRUE(write_file(other.file("in-new"), "x"));
  ASSERT_TRUE(watch_for(watcher, recorder, "in-new", IN_CLOSE_WRITE));
  EXPECT_FALSE(recorder.saw_name("in-old"));
}

TEST_F(Inotify, SetDirectoryStartsADefaultBuiltWatcher) {
  InotifyWatcher watcher;
  watcher.set_directory(dir.path());
  EXPECT_EQ(watcher.directory, dir.path());
  ASSERT_TRUE(write_file(dir.file("file"), "x"));
  EXPECT_TRUE(watch_for(watcher, recorder, "file", IN_CLOSE_WRITE));
}

TEST_F(Inotify, DirectoryThatCannotBeWatchedGivesASilentInstance) {
  std::string const missing = dir.file("missing");
  wlccw::test::StderrCapture capture(other.file("stderr"));
  ASSERT_TRUE(capture.active());
  InotifyWatcher watcher(missing);
  std::string const printed = capture.finish();
  EXPECT_EQ(printed, "");
  EXPECT_EQ(watcher.directory, missing);
  EXPECT_GE(watcher.fd, 0);
  EXPECT_EQ(watcher.wd, -1);
  EXPECT_TRUE(wlccw::test::watch_lines(watcher.fd).empty());
  ASSERT_EQ(mkdir(missing.c_str(), 0700), 0); // made afterwards: still not watched
  ASSERT_TRUE(write_file(missing + "/file", "x"));
  for (int i = 0; i < 20; ++i) {
    watcher.watch(recorder);
  }
  EXPECT_TRUE(recorder.seen.empty());
  watcher.deinit();
  EXPECT_EQ(watcher.fd, -1);
}

TEST_F(Inotify, FailedInitIsReportedAndLeavesTheWatcherInactive) {
  InotifyWatcher watcher(dir.path());
  ASSERT_GE(watcher.fd, 0);
  std::string printed;
  {
    wlccw::test::StderrCapture capture(other.file("stderr"));
    ASSERT_TRUE(capture.active());
    {
      // No descriptor can be opened now.
      wlccw::test::ScopedSoftLimit const no_files(RLIMIT_NOFILE, 0);
      ASSERT_TRUE(no_files.applied());
      watcher.set_directory(other.path());
    }
    printed = capture.finish();
  }
  EXPECT_EQ(printed, std::string("inotify_init: ") + std::strerror(EMFILE) + "\n");
  EXPECT_EQ(watcher.directory, other.path());
  EXPECT_EQ(watcher.fd, -1); // the old watch is gone too
  EXPECT_EQ(watcher.wd, -1);
  ASSERT_TRUE(write_file(other.file("file"), "x"));
  ASSERT_TRUE(write_file(dir.file("file"), "x"));
  auto const before = std::chrono::steady_clock::now();
  for (int i = 0; i < 200; ++i) {
    watcher.watch(recorder);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - before, 1s);
  EXPECT_TRUE(recorder.seen.empty());
}

// ---------------------------------------------------------------------------------------------
// Moves.

TEST_F(Inotify, MoveConstructionHandsTheWatchOver) {
  auto source = std::make_unique<InotifyWatcher>(dir.path());
  int const fd = source->fd;
  int const wd = source->wd;
  InotifyWatcher target(std::move(*source));
  EXPECT_EQ(target.fd, fd);
  EXPECT_EQ(target.wd, wd);
  EXPECT_EQ(target.directory, dir.path());
  EXPECT_EQ(source->fd, -1);
  EXPECT_EQ(source->wd, -1);
  EXPECT_EQ(source->directory, "");
  source.reset(); // must not close what it handed over
  ASSERT_TRUE(write_file(dir.file("file"), "x"));
  EXPECT_TRUE(watch_for(target, recorder, "file", IN_CLOSE_WRITE));
}

TEST_F(Inotify, MoveAssignmentDropsTheOldWatchAndTakesTheOther) {
  InotifyWatcher target(dir.path());
  int const old_fd = target.fd;
  auto source = std::make_unique<InotifyWatcher>(other.path());
  int const fd = source->fd;
  ASSERT_GE(old_fd, 0);
  ASSERT_NE(old_fd, fd);
  target = std::move(*source);
  errno = 0;
  EXPECT_EQ(fcntl(old_fd, F_GETFD), -1); // the old instance is closed
  EXPECT_EQ(errno, EBADF);
  EXPECT_EQ(target.fd, fd);
  EXPECT_EQ(target.directory, other.path());
  EXPECT_EQ(source->fd, -1);
  EXPECT_EQ(source->wd, -1);
  source.reset();
  ASSERT_TRUE(write_file(dir.file("in-old"), "x"));
  ASSERT_TRUE(write_file(other.file("in-new"), "x"));
  ASSERT_TRUE(watch_for(target, recorder, "in-new", IN_CLOSE_WRITE));
  EXPECT_FALSE(recorder.saw_name("in-old"));
}

TEST_F(Inotify, MoveAssignmentToItselfKeepsTheWatch) {
  InotifyWatcher watcher(dir.path());
  int const fd = watcher.fd;
  InotifyWatcher& same = watcher;
  watcher = std::move(same);
  EXPECT_EQ(watcher.fd, fd);
  EXPECT_EQ(watcher.directory, dir.path());
  ASSERT_TRUE(write_file(dir.file("file"), "x"));
  EXPECT_TRUE(watch_for(watcher, recorder, "file", IN_CLOSE_WRITE));
}

// ---------------------------------------------------------------------------------------------
// Reading: interrupted polls and bytes that are not a whole stream of events.

namespace {

volatile std::sig_atomic_t alarms = 0;
constexpr int alarms_wanted = 5;

void on_alarm(int /*signal*/) {
  alarms = alarms + 1;
  if (alarms >= alarms_wanted) {
    itimerval const stop{};
    setitimer(ITIMER_REAL, &stop, nullptr);
  }
}

} // namespace

TEST_F(Inotify, InterruptedPollIsRepeated) {
  InotifyWatcher watcher(dir.path());
  ASSERT_GE(watcher.fd, 0);
  struct sigaction action {};
  action.sa_handler = &on_alarm;
  sigemptyset(&action.sa_mask);
  action.sa_flags = 0; // no restart: poll fails with EINTR
  struct sigaction previous {};
  ASSERT_EQ(sigaction(SIGALRM, &action, &previous), 0);
  alarms = 0;
  // An alarm every millisecond, five times: each interrupts the 10 ms poll, which starts over, so
  // the call cannot end before the last one.
  itimerval const every_ms{{0, 1000}, {0, 1000}};
  ASSERT_EQ(setitimer(ITIMER_REAL, &every_ms, nullptr), 0);
  watcher.watch(recorder);
  int const seen_alarms = alarms;
  itimerval const stop{};
  setitimer(ITIMER_REAL, &stop, nullptr);
  sigaction(SIGALRM, &previous, nullptr);
  EXPECT_EQ(seen_alarms, alarms_wanted);
  EXPECT_TRUE(recorder.seen.empty());
}

namespace {

/// A pipe whose read end stands in for the watcher's instance, so that any bytes can be fed to
/// watch.
class FakeInstance {
public:
  FakeInstance() { ok_ = pipe(ends_) == 0; }
  ~FakeInstance() {
    if (ok_) {
      close(ends_[0]);
      close(ends_[1]);
    }
  }
  FakeInstance(FakeInstance const&) = delete;
  FakeInstance& operator=(FakeInstance const&) = delete;

  [[nodiscard]] bool ok() const { return ok_; }
  [[nodiscard]] int read_end() const { return ends_[0]; }
  bool feed(std::vector<unsigned char> const& bytes) const {
    return write(ends_[1], bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
  }

private:
  int ends_[2] = {-1, -1};
  bool ok_ = false;
};

void put32(std::vector<unsigned char>& bytes, std::uint32_t value) {
  for (int i = 0; i < 4; ++i) {
    bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
  }
}

/// An event as the kernel writes it: header, then the name padded with NULs to len bytes.
std::vector<unsigned char> event_bytes(std::uint32_t mask, std::string const& name,
                                       std::uint32_t len) {
  std::vector<unsigned char> bytes;
  put32(bytes, 1);    // wd
  put32(bytes, mask); // mask
  put32(bytes, 0);    // cookie
  put32(bytes, len);  // len
  bytes.insert(bytes.end(), name.begin(), name.end());
  bytes.resize(16 + len, 0);
  return bytes;
}

/// Feeds bytes to a watcher through a fake instance and returns what the observer got.
std::vector<Seen> deliver(std::vector<unsigned char> const& bytes) {
  FakeInstance fake;
  EXPECT_TRUE(fake.ok());
  EXPECT_TRUE(fake.feed(bytes));
  InotifyWatcher watcher;
  watcher.fd = fake.read_end();
  Recorder recorder;
  watcher.watch(recorder);
  watcher.fd = -1; // the fake closes its own ends
  return recorder.seen;
}

} // namespace

TEST(InotifyWatcherRead, EveryNamedEventIsDeliveredAndNamelessOnesAreSkipped) {
  std::vector<unsigned char> bytes = event_bytes(IN_CLOSE_WRITE, "first", 16);
  std::vector<unsigned char> const nameless = event_bytes(IN_DELETE_SELF, "", 0);
  std::vector<unsigned char> const second = event_bytes(IN_MOVED_TO, "second", 32);
  bytes.insert(bytes.end(), nameless.begin(), nameless.end());
  bytes.insert(bytes.end(), second.begin(), second.end());
  std::vector<Seen> const seen = deliver(bytes);
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0].name, "first");
  EXPECT_EQ(seen[0].mask, static_cast<std::uint32_t>(IN_CLOSE_WRITE));
  EXPECT_EQ(seen[0].length, 16U);
  EXPECT_EQ(seen[1].name, "second");
  EXPECT_EQ(seen[1].mask, static_cast<std::uint32_t>(IN_MOVED_TO));
}

TEST(InotifyWatcherRead, EventThatRunsPastTheBytesReadIsNotDelivered) {
  std::vector<unsigned char> bytes = event_bytes(IN_CLOSE_WRITE, "whole", 16);
  std::vector<unsigned char> truncated = event_bytes(IN_CLOSE_WRITE, "cut", 4096);
  truncated.resize(40);
  bytes.insert(bytes.end(), truncated.begin(), truncated.end());
  std::vector<Seen> const seen = deliver(bytes);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].name, "whole");
}

TEST(InotifyWatcherRead, PartialHeaderIsNotDelivered) {
  std::vector<unsigned char> bytes = event_bytes(IN_CLOSE_WRITE, "whole", 16);
  bytes.resize(bytes.size() + 10, 0xFF);
  std::vector<Seen> const seen = deliver(bytes);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].name, "whole");
  EXPECT_TRUE(deliver(std::vector<unsigned char>(15, 0x01)).empty());
}

TEST(InotifyWatcherRead, MisalignedEventEndsTheWalk) {
  std::vector<unsigned char> bytes = event_bytes(IN_CLOSE_WRITE, "od", 3);
  std::vector<unsigned char> const next = event_bytes(IN_CLOSE_WRITE, "next", 16);
  bytes.insert(bytes.end(), next.begin(), next.end());
  std::vector<Seen> const seen = deliver(bytes);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].name, "od");
}

TEST(InotifyWatcherRead, EndOfInputDeliversNothing) {
  // A pipe whose writer is gone reads as end of input at once.
  int ends[2] = {-1, -1};
  ASSERT_EQ(pipe(ends), 0);
  close(ends[1]);
  InotifyWatcher watcher;
  watcher.fd = ends[0];
  Recorder recorder;
  watcher.watch(recorder);
  watcher.fd = -1;
  close(ends[0]);
  EXPECT_TRUE(recorder.seen.empty());
}

TEST(InotifyWatcherRead, DescriptorThatIsNotOpenDeliversNothing) {
  int ends[2] = {-1, -1};
  ASSERT_EQ(pipe(ends), 0);
  close(ends[0]);
  close(ends[1]);
  InotifyWatcher watcher;
  watcher.fd = ends[0]; // closed: poll reports it as invalid
  Recorder recorder;
  watcher.watch(recorder);
  watcher.fd = -1;
  EXPECT_TRUE(recorder.seen.empty());
}
