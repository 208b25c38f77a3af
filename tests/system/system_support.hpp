// Helpers of the process and file-system tests: temporary directories, environment and resource
// limits set for one test, the standard error stream caught in a file, bounded waits.
#pragma once

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wlccw::test {

/// The whole content of a file; empty when it cannot be opened (check with `exists` where that
/// matters).
inline std::string read_file(std::string const& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream whole;
  whole << in.rdbuf();
  return whole.str();
}

/// The inotify lines of the kernel's description of descriptor fd of this process.
inline std::vector<std::string> watch_lines(int fd) {
  std::string const text = read_file("/proc/self/fdinfo/" + std::to_string(fd));
  std::vector<std::string> lines;
  for (std::size_t from = 0; from < text.size();) {
    std::size_t end = text.find('\n', from);
    if (end == std::string::npos) {
      end = text.size();
    }
    std::string line = text.substr(from, end - from);
    if (line.rfind("inotify ", 0) == 0) {
      lines.push_back(std::move(line));
    }
    from = end + 1;
  }
  return lines;
}

/// Nanoseconds on the monotonic clock, which every process of the machine shares.
inline std::int64_t monotonic_ns() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return std::int64_t{now.tv_sec} * 1'000'000'000 + std::int64_t{now.tv_nsec};
}

/// A directory of a unique name made with mkdtemp, removed with its content at the end.
class TempDir {
public:
  explicit TempDir(std::string const& parent = std::filesystem::temp_directory_path().string(),
                   std::string const& prefix = "wlccw-system-") {
    std::string pattern = parent + "/" + prefix + "XXXXXX";
    if (mkdtemp(pattern.data()) != nullptr) {
      path_ = pattern;
    }
  }
  ~TempDir() {
    if (!path_.empty()) {
      std::error_code ignored;
      std::filesystem::remove_all(path_, ignored);
    }
  }
  TempDir(TempDir const&) = delete;
  TempDir& operator=(TempDir const&) = delete;

  /// Empty when mkdtemp failed.
  [[nodiscard]] std::string const& path() const { return path_; }
  [[nodiscard]] std::string file(std::string const& name) const { return path_ + "/" + name; }

private:
  std::string path_;
};

/// Sets (or, with no value, unsets) an environment variable for the scope and restores it after.
class ScopedEnv {
public:
  ScopedEnv(char const* name, std::optional<std::string> const& value) : name_(name) {
    if (char const* old = std::getenv(name); old != nullptr) {
      old_ = old;
    }
    if (value) {
      setenv(name, value->c_str(), 1);
    } else {
      unsetenv(name);
    }
  }
  ~ScopedEnv() {
    if (old_) {
      setenv(name_.c_str(), old_->c_str(), 1);
    } else {
      unsetenv(name_.c_str());
    }
  }
  ScopedEnv(ScopedEnv const&) = delete;
  ScopedEnv& operator=(ScopedEnv const&) = delete;

private:
  std::string name_;
  std::optional<std::string> old_;
};

/// Lowers the soft limit of a resource for the scope.
class ScopedSoftLimit {
public:
  ScopedSoftLimit(int resource, rlim_t soft) : resource_(resource) {
    saved_ = getrlimit(resource_, &old_) == 0;
    if (saved_) {
      rlimit lowered = old_;
      lowered.rlim_cur = soft;
      applied_ = setrlimit(resource_, &lowered) == 0;
    }
  }
  ~ScopedSoftLimit() {
    if (saved_) {
      setrlimit(resource_, &old_);
    }
  }
  ScopedSoftLimit(ScopedSoftLimit const&) = delete;
  ScopedSoftLimit& operator=(ScopedSoftLimit const&) = delete;

  [[nodiscard]] bool applied() const { return applied_; }

private:
  int resource_;
  rlimit old_{};
  bool saved_ = false;
  bool applied_ = false;
};

/// Sends the standard error stream (descriptor 2, inherited by children) to a file for the scope.
class StderrCapture {
public:
  explicit StderrCapture(std::string path) : path_(std::move(path)) {
    std::fflush(stderr);
    saved_ = dup(STDERR_FILENO);
    int const file = open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (saved_ >= 0 && file >= 0) {
      active_ = dup2(file, STDERR_FILENO) >= 0;
    }
    if (file >= 0) {
      close(file);
    }
  }
  ~StderrCapture() { restore(); }
  StderrCapture(StderrCapture const&) = delete;
  StderrCapture& operator=(StderrCapture const&) = delete;

  [[nodiscard]] bool active() const { return active_; }

  /// Puts the stream back and returns what was written to it meanwhile.
  std::string finish() {
    restore();
    return read_file(path_);
  }

private:
  void restore() {
    std::fflush(stderr);
    if (saved_ >= 0) {
      dup2(saved_, STDERR_FILENO);
      close(saved_);
      saved_ = -1;
    }
    active_ = false;
  }

  std::string path_;
  int saved_ = -1;
  bool active_ = false;
};

/// Whether a path exists (as anything).
inline bool exists(std::string const& path) {
  struct stat info {};
  return lstat(path.c_str(), &info) == 0;
}

/// Calls step until done() holds or the timeout passes; returns done() at the end.
inline bool poll_until(std::function<bool()> const& done, std::function<void()> const& step,
                       std::chrono::milliseconds timeout = std::chrono::seconds(5)) {
  auto const deadline = std::chrono::steady_clock::now() + timeout;
  while (!done()) {
    if (std::chrono::steady_clock::now() >= deadline) {
      return done();
    }
    step();
  }
  return true;
}

/// Waits up to timeout for a file to appear.
inline bool wait_for_file(std::string const& path,
                          std::chrono::milliseconds timeout = std::chrono::seconds(20)) {
  return poll_until([&path] { return exists(path); },
                    [] { std::this_thread::sleep_for(std::chrono::milliseconds(5)); }, timeout);
}

/// Writes text to a new file (or over an old one) and closes it.
inline bool write_file(std::string const& path, std::string const& text) {
  int const fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (fd < 0) {
    return false;
  }
  bool const written = ::write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  return close(fd) == 0 && written;
}

/// Whether this process has no child left, reaped or not.
inline bool no_child_left() {
  errno = 0;
  return waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

} // namespace wlccw::test
