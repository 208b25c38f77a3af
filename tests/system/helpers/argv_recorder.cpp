// A program for the command-execution tests: records how it was started, then exits.
//
// Environment:
//   WLCCW_ARGV_RECORD  file to write the record to: the start time on the monotonic clock in
//                      nanoseconds, the process id and the process group id as decimal texts,
//                      then every argument (argv[0] first), each followed by a NUL byte. The file
//                      appears complete at once (written beside it, then renamed), so a test may
//                      wait for it to exist.
//   WLCCW_ARGV_EXIT    exit code (decimal), 0 when unset.
//   WLCCW_ARGV_HOLD    when set, stays alive for up to a minute after recording, until a signal
//                      ends it.
#include <cstdlib>
#include <ctime>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace {

bool write_all(int fd, std::string const& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    ssize_t const n = write(fd, bytes.data() + done, bytes.size() - done);
    if (n <= 0) {
      return false;
    }
    done += static_cast<std::size_t>(n);
  }
  return true;
}

bool record(char const* path, std::string const& bytes) {
  std::string const part = std::string(path) + ".part";
  int const fd = open(part.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (fd < 0) {
    return false;
  }
  bool const written = write_all(fd, bytes);
  bool const closed = close(fd) == 0;
  return written && closed && rename(part.c_str(), path) == 0;
}

} // namespace

int main(int argc, char** argv) {
  timespec started{};
  clock_gettime(CLOCK_MONOTONIC, &started);

  if (char const* path = std::getenv("WLCCW_ARGV_RECORD"); path != nullptr) {
    std::string bytes = std::to_string(static_cast<long long>(started.tv_sec) * 1'000'000'000LL +
                                       static_cast<long long>(started.tv_nsec));
    bytes.push_back('\0');
    bytes.append(std::to_string(static_cast<long>(getpid())));
    bytes.push_back('\0');
    bytes.append(std::to_string(static_cast<long>(getpgid(0))));
    bytes.push_back('\0');
    for (int i = 0; i < argc; ++i) {
      bytes.append(argv[i]);
      bytes.push_back('\0');
    }
    if (!record(path, bytes)) {
      return 125;
    }
  }

  if (std::getenv("WLCCW_ARGV_HOLD") != nullptr) {
    for (int second = 0; second < 60; ++second) {
      sleep(1);
    }
  }

  char const* code = std::getenv("WLCCW_ARGV_EXIT");
  return code == nullptr ? 0 : std::atoi(code);
}
