/// \file
/// Following the system time zone while the process runs.
#pragma once

#include <wlccw/export.hpp>
#include <wlccw/system/InotifyWatcher.hpp>

#include <cstdint>
#include <optional>

/// Watches "/etc" and reloads the process's time-zone state with tzset whenever a file there is
/// written and closed, moved in or out, or deleted. Active from construction; the owner calls
/// watch() from its loop.
class WLCCW_EXPORT TZWatcher : public InotifyObserver {
public:
  /// Starts watching "/etc". When that fails, the watcher never reports anything (see
  /// InotifyWatcher::set_directory); nothing is thrown.
  TZWatcher();
  /// Virtual, so that an object of a class derived from it may be deleted through a pointer to it.
  virtual ~TZWatcher() = default;

  /// Not copyable: the watcher owns its descriptors.
  TZWatcher(TZWatcher const&) = delete;
  /// Not copyable: the watcher owns its descriptors.
  TZWatcher& operator=(TZWatcher const&) = delete;

  /// One short poll of "/etc" (at most 10 ms) with this watcher as the observer.
  void watch();

  /// Calls tzset, whatever the event is about; the event is not read (it may be null).
  void inotify_event(struct inotify_event* event) override;

  /// The watch on "/etc".
  InotifyWatcher watcher;
};

/// The current offset of local time from UTC in seconds, east positive, daylight saving
/// included. Always engaged. Follows the time zone the process last loaded (tzset). Never
/// throws.
WLCCW_EXPORT std::optional<std::int64_t> get_wlc_tz();
