#include <wlccw/system/InotifyWatcher.hpp>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <utility>

#include <poll.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

/// The fixed part of every event; its name (len bytes, padded with NULs) follows it.
constexpr std::size_t event_header_size = sizeof(struct inotify_event);
static_assert(event_header_size == 16, "an inotify event header is 16 bytes");

/// Waits up to the watcher's timeout for input on fd, polling again when interrupted. True when
/// input is ready.
bool input_ready(int fd) {
  pollfd request{fd, POLLIN, 0};
  int ready = 0;
  do {
    ready = poll(&request, 1, InotifyWatcher::poll_timeout_ms);
  } while (ready < 0 && (errno == EINTR || errno == EAGAIN));
  return ready > 0 && (request.revents & POLLIN) != 0;
}

} // namespace

InotifyWatcher::InotifyWatcher(std::string_view directory_to_watch) {
  set_directory(directory_to_watch);
}

InotifyWatcher::~InotifyWatcher() {
  deinit();
}

InotifyWatcher::InotifyWatcher(InotifyWatcher&& other) noexcept
    : directory(std::move(other.directory)), fd(std::exchange(other.fd, -1)),
      wd(std::exchange(other.wd, -1)) {
  other.directory.clear();
}

InotifyWatcher& InotifyWatcher::operator=(InotifyWatcher&& other) noexcept {
  if (this != &other) {
    deinit();
    directory = std::move(other.directory);
    other.directory.clear();
    fd = std::exchange(other.fd, -1);
    wd = std::exchange(other.wd, -1);
  }
  return *this;
}

void InotifyWatcher::set_directory(std::string_view directory_to_watch) {
  deinit();
  directory.assign(directory_to_watch);
  fd = inotify_init();
  if (fd < 0) {
    std::perror("inotify_init");
    fd = -1;
    return;
  }
  wd = inotify_add_watch(fd, directory.c_str(), event_mask);
}

void InotifyWatcher::watch(InotifyObserver& observer) {
  if (fd == -1 || !input_ready(fd)) {
    return;
  }
  alignas(struct inotify_event) unsigned char buffer[read_buffer_size];
  ssize_t const received = read(fd, buffer, sizeof buffer);
  if (received <= 0) {
    return;
  }
  auto const end = static_cast<std::size_t>(received);
  std::size_t offset = 0;
  // The kernel pads every name so that each event starts aligned; anything else is not a stream
  // of events and ends the walk.
  while (end - offset >= event_header_size && offset % alignof(struct inotify_event) == 0) {
    auto* const event = reinterpret_cast<struct inotify_event*>(buffer + offset);
    std::size_t const size = event_header_size + event->len;
    if (size > end - offset) {
      break; // a truncated event: nothing of it is handed on
    }
    if (event->len != 0) {
      observer.inotify_event(event);
    }
    offset += size;
  }
}

void InotifyWatcher::deinit() noexcept {
  if (wd != -1) {
    inotify_rm_watch(fd, wd);
    wd = -1;
  }
  if (fd != -1) {
    close(fd);
    fd = -1;
  }
}
