// Following the time zone: the local offset, and the reload when "/etc" changes.
#include <wlccw/system/TZWatcher.hpp>

#include "system/system_support.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <unistd.h>

using wlccw::test::ScopedEnv;
using wlccw::test::TempDir;

static_assert(std::is_base_of_v<InotifyObserver, TZWatcher>);
static_assert(std::is_same_v<decltype(get_wlc_tz()), std::optional<std::int64_t>>);
static_assert(std::is_same_v<decltype(TZWatcher::watcher), InotifyWatcher>);

namespace {

/// Sets TZ for the scope and loads it with tzset; puts the old zone back and loads it after.
class ScopedZone {
public:
  explicit ScopedZone(char const* zone) : env_("TZ", std::string(zone)) { tzset(); }

private:
  /// Loads the zone when destroyed, which is after env_ (declared later) has put TZ back.
  struct ReloadOnExit {
    ReloadOnExit() = default;
    ReloadOnExit(ReloadOnExit const&) = delete;
    ReloadOnExit& operator=(ReloadOnExit const&) = delete;
    ~ReloadOnExit() { tzset(); }
  };
  ReloadOnExit reload_;
  ScopedEnv env_;
};

/// A time-zone watcher that counts the events about one file, then reloads as any would.
class CountingTZWatcher final : public TZWatcher {
public:
  explicit CountingTZWatcher(std::string name) : name_(std::move(name)) {}

  void inotify_event(struct inotify_event* event) override {
    if (event->len != 0 && name_ == event->name) {
      ++count;
      masks.push_back(event->mask);
    }
    TZWatcher::inotify_event(event);
  }

  int count = 0;
  std::vector<std::uint32_t> masks;

private:
  std::string name_;
};

/// Calls watch on the watcher until it counted an event (up to 5 s).
bool watch_until_counted(CountingTZWatcher& watcher) {
  return wlccw::test::poll_until([&] { return watcher.count > 0; }, [&] { watcher.watch(); });
}

} // namespace

// ---------------------------------------------------------------------------------------------
// The local offset.

TEST(GetWlcTz, UtcIsZero) {
  ScopedZone const zone("UTC");
  std::optional<std::int64_t> const offset = get_wlc_tz();
  ASSERT_TRUE(offset.has_value());
  EXPECT_EQ(*offset, 0);
}

TEST(GetWlcTz, TwoHoursEastIs7200) {
  ScopedZone const zone("<+02>-2");
  std::optional<std::int64_t> const offset = get_wlc_tz();
  ASSERT_TRUE(offset.has_value());
  EXPECT_EQ(*offset, 7200);
}

TEST(GetWlcTz, WestIsNegative) {
  ScopedZone const zone("<-0530>5:30");
  EXPECT_EQ(get_wlc_tz(), std::optional<std::int64_t>(-19800));
}

TEST(GetWlcTz, DaylightSavingIsIncluded) {
  // Summer time all year: five hours west in winter, four in summer.
  ScopedZone const zone("EST5EDT,0/0,J365/25");
  EXPECT_EQ(get_wlc_tz(), std::optional<std::int64_t>(-4 * 3600));
}

// ---------------------------------------------------------------------------------------------
// The watcher.

TEST(TZWatcher, WatchesEtcFromConstruction) {
  TZWatcher const watcher;
  EXPECT_EQ(watcher.watcher.directory, "/etc");
  ASSERT_GE(watcher.watcher.fd, 0);
  EXPECT_GE(watcher.watcher.wd, 0);
  std::vector<std::string> const lines = wlccw::test::watch_lines(watcher.watcher.fd);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_NE(lines[0].find(" mask:ec8 "), std::string::npos) << lines[0];
}

TEST(TZWatcher, AnyEventReloadsTheTimeZoneWithoutLookingAtIt) {
  ScopedZone const zone("UTC");
  ASSERT_EQ(get_wlc_tz(), std::optional<std::int64_t>(0));
  ScopedEnv const east("TZ", std::string("<+02>-2"));
  TZWatcher watcher;
  InotifyObserver& observer = watcher;
  observer.inotify_event(nullptr); // the event is not read
  EXPECT_EQ(get_wlc_tz(), std::optional<std::int64_t>(7200));
}

TEST(TZWatcher, FileWrittenAndClosedInEtcReloadsTheTimeZone) {
  ScopedZone const zone("UTC");
  std::string path = "/etc/wlccw-tz-test-XXXXXX";
  int const fd = mkstemp(path.data());
  if (fd < 0) {
    GTEST_SKIP() << "/etc is not writable here";
  }
  close(fd); // closing a file opened for writing is itself an event: start over after it
  std::string const name = path.substr(5);
  CountingTZWatcher watcher(name);

  // Change TZ without loading it: local time keeps the loaded zone until something calls tzset.
  ScopedEnv const east("TZ", std::string("<+02>-2"));
  bool const reloads_by_itself = get_wlc_tz() == std::optional<std::int64_t>(7200);

  bool const written = wlccw::test::write_file(path, "x");
  bool const seen = written && watch_until_counted(watcher);
  std::optional<std::int64_t> const offset = get_wlc_tz();
  std::remove(path.c_str());
  ASSERT_TRUE(written);
  ASSERT_TRUE(seen);
  EXPECT_EQ(watcher.masks.front(), static_cast<std::uint32_t>(IN_CLOSE_WRITE));
  if (reloads_by_itself) {
    GTEST_SKIP() << "the C library reloads TZ on every conversion; the reload is not visible";
  }
  EXPECT_EQ(offset, std::optional<std::int64_t>(7200));
}

TEST(TZWatcher, FileMovedIntoEtcReloadsTheTimeZone) {
  ScopedZone const zone("UTC");
  TempDir const staging("/etc", "wlccw-tz-test-");
  if (staging.path().empty()) {
    GTEST_SKIP() << "/etc is not writable here";
  }
  ASSERT_TRUE(wlccw::test::write_file(staging.file("zone"), "x"));
  std::string const name = staging.path().substr(5) + "-moved";
  std::string const target = "/etc/" + name;
  CountingTZWatcher watcher(name);
  ScopedEnv const east("TZ", std::string("<+02>-2"));
  bool const reloads_by_itself = get_wlc_tz() == std::optional<std::int64_t>(7200);

  bool const moved = std::rename(staging.file("zone").c_str(), target.c_str()) == 0;
  bool const seen = moved && watch_until_counted(watcher);
  std::optional<std::int64_t> const offset = get_wlc_tz();
  std::remove(target.c_str());
  ASSERT_TRUE(moved);
  ASSERT_TRUE(seen);
  EXPECT_EQ(watcher.masks.front(), static_cast<std::uint32_t>(IN_MOVED_TO));
  if (reloads_by_itself) {
    GTEST_SKIP() << "the C library reloads TZ on every conversion; the reload is not visible";
  }
  EXPECT_EQ(offset, std::optional<std::int64_t>(7200));
}
