#include <wlccw/system/exec_cmd.hpp>

#include "detail/exec.hpp"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

/// Releases what the C library allocated.
struct FreeDeleter {
  void operator()(char* p) const noexcept { std::free(p); }
};

/// Whether the caller waits for the child.
enum class Wait { NO = 0, YES = 1 };

/// Formats the command line and hands it to the worker; -1 when formatting fails or yields no
/// text. The formatted line lives only for the call.
__attribute__((format(printf, 5, 0))) int run_formatted(Wait wait, int& pid, unsigned int delay_us,
                                                        bool quoted, char const* format,
                                                        std::va_list args) {
  char* line = nullptr;
  int const length = vasprintf(&line, format, args);
  if (length < 0) {
    return -1; // the line is undefined then; nothing was allocated
  }
  std::unique_ptr<char, FreeDeleter> const owner(line);
  if (length == 0 || line == nullptr) {
    return -1;
  }
  return wlccw::detail::_exec_cmd(line, static_cast<int>(wait), pid, delay_us, quoted);
}

} // namespace

int exec_cmd(char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  int const result = run_formatted(Wait::YES, pid, 0, false, format, args);
  va_end(args);
  return result;
}

int exec_cmd_quoted(char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  int const result = run_formatted(Wait::YES, pid, 0, true, format, args);
  va_end(args);
  return result;
}

int exec_cmd_parametrized(ExecCmdParams const& params, char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  int const result = run_formatted(Wait::YES, pid, params.delay_us, params.quoted, format, args);
  va_end(args);
  return result;
}

int exec_cmd_bg(char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  run_formatted(Wait::NO, pid, 0, false, format, args);
  va_end(args);
  return pid;
}

int exec_cmd_bg_quoted(char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  run_formatted(Wait::NO, pid, 0, true, format, args);
  va_end(args);
  return pid;
}

int exec_cmd_bg_parametrized(ExecCmdParams const& params, char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  run_formatted(Wait::NO, pid, params.delay_us, params.quoted, format, args);
  va_end(args);
  return pid;
}

int exec_cmd_delayed(unsigned int delay_us, char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  run_formatted(Wait::NO, pid, delay_us, false, format, args);
  va_end(args);
  return pid;
}

int exec_cmd_delayed_quoted(unsigned int delay_us, char const* format, ...) {
  std::va_list args;
  va_start(args, format);
  int pid = -1;
  run_formatted(Wait::NO, pid, delay_us, true, format, args);
  va_end(args);
  return pid;
}
