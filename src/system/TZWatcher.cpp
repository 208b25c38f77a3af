#include <wlccw/system/TZWatcher.hpp>

#include <ctime>

TZWatcher::TZWatcher() : watcher("/etc") {}

void TZWatcher::watch() {
  watcher.watch(*this);
}

void TZWatcher::inotify_event(struct inotify_event* /*event*/) {
  tzset();
}

std::optional<std::int64_t> get_wlc_tz() {
  std::time_t const now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return static_cast<std::int64_t>(local.tm_gmtoff);
}
