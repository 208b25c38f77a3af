/// \file
/// Watching one directory with inotify, polled from the owner's own loop.
#pragma once

#include <wlccw/export.hpp>

#include <string>
#include <string_view>

#include <sys/inotify.h>

/// Receives the events of an InotifyWatcher. Not owned through this interface: the destructor is
/// protected and not virtual, so nobody deletes an observer through it.
class WLCCW_EXPORT InotifyObserver {
public:
  /// Called once for each named event read from the watch (a file in the watched directory); the
  /// event and its name live only for the call.
  virtual void inotify_event(struct inotify_event* event) = 0;

protected:
  /// For derived classes only.
  InotifyObserver() = default;
  /// Copies nothing: the interface has no state.
  InotifyObserver(InotifyObserver const&) = default;
  /// Copies nothing: the interface has no state.
  InotifyObserver& operator=(InotifyObserver const&) = default;
  /// Moves nothing: the interface has no state.
  InotifyObserver(InotifyObserver&&) = default;
  /// Moves nothing: the interface has no state.
  InotifyObserver& operator=(InotifyObserver&&) = default;
  /// Protected and not virtual: an observer is never deleted through this interface.
  ~InotifyObserver() = default;
};

/// Watches one directory for files written and closed, moved in or out, and deleted, and for the
/// deletion or move of the directory itself (creation alone is not watched). Owns its inotify
/// instance and watch: not copyable; a move hands both over and leaves the source inactive, as a
/// default-built watcher. Inactive (fd -1) until set_directory succeeds.
class WLCCW_EXPORT InotifyWatcher {
public:
  /// The events watched: IN_CLOSE_WRITE, IN_MOVED_FROM, IN_MOVED_TO, IN_DELETE, IN_DELETE_SELF and
  /// IN_MOVE_SELF.
  static constexpr unsigned int event_mask = 0xEC8U;
  /// How long one watch() call waits for events, in milliseconds.
  static constexpr int poll_timeout_ms = 10;
  /// How many bytes of events one watch() call reads at most.
  static constexpr unsigned int read_buffer_size = 32768U;

  /// An inactive watcher: empty directory, no descriptors.
  InotifyWatcher() noexcept = default;
  /// Starts watching directory at once (see set_directory); failures leave it as set_directory
  /// does, without throwing.
  explicit InotifyWatcher(std::string_view directory_to_watch);
  /// Removes the watch and closes the instance (deinit).
  ~InotifyWatcher();

  /// Not copyable: the watcher owns its descriptors.
  InotifyWatcher(InotifyWatcher const&) = delete;
  /// Not copyable: the watcher owns its descriptors.
  InotifyWatcher& operator=(InotifyWatcher const&) = delete;
  /// Takes over the directory, the instance and the watch of other, which is left inactive with
  /// an empty directory.
  InotifyWatcher(InotifyWatcher&& other) noexcept;
  /// Drops this watcher's own watch (deinit), then takes over those of other as the move
  /// constructor does; moving a watcher into itself changes nothing.
  InotifyWatcher& operator=(InotifyWatcher&& other) noexcept;

  /// Drops any previous watch and starts watching directory_to_watch. When no inotify instance
  /// can be made, prints "inotify_init" with the system error on stderr and stays inactive; when
  /// the directory cannot be watched (missing, not a directory, no permission), the instance
  /// exists but never reports anything (wd is -1). Never throws for any of these.
  void set_directory(std::string_view directory_to_watch);

  /// Waits at most 10 ms for events, reads at most one buffer of them and hands each named event
  /// to observer, in order; events about the directory itself (which carry no name) are skipped.
  /// Returns at once when inactive; failures end the call silently. Events beyond the buffer wait
  /// for the next call. An exception from the observer propagates; the events after it in the
  /// buffer are lost.
  void watch(InotifyObserver& observer);

  /// Removes the watch and closes the instance. Safe to call repeatedly.
  void deinit() noexcept;

  /// The watched directory, as last given to set_directory.
  std::string directory;
  /// The inotify instance, -1 when none.
  int fd = -1;
  /// The watch descriptor, -1 when none.
  int wd = -1;
};
