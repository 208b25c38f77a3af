// The worker behind the exec_cmd family: splitting a command line into an argument list without a
// shell, and starting the program with fork and execvp. Internal to the library; inline so that
// the tests and the fuzz targets can call the splitters, which execute nothing, although the
// library's internal symbols are hidden.
//
// The argument list is a C array of pointers into the (duplicated) command text, grown one pointer
// at a time with realloc, because the child hands it to execvp as it is. ArgumentList owns that
// array and CommandText owns the duplicated text, so no path leaks either of them.
#pragma once

#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <string.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wlccw::detail {

/// A realloc-compatible allocation function: what it returns is released with std::free.
using Reallocate = void* (*)(void* block, std::size_t size);

/// The C library's realloc, the allocation function of every argument list outside the tests.
inline void* system_realloc(void* block, std::size_t size) {
  return std::realloc(block, size);
}

/// Reallocates list to count + 1 pointers and stores token as the last one. Returns the new list,
/// or null when the reallocation fails (or count is negative); list is then left as it was, and
/// releasing it stays the caller's business.
inline char** put_token(char** list, char* token, int count,
                        Reallocate reallocate = &system_realloc) {
  if (count < 0) {
    return nullptr;
  }
  auto const slots = static_cast<std::size_t>(count) + 1U;
  void* const grown = reallocate(list, slots * sizeof(char*));
  if (grown == nullptr) {
    return nullptr;
  }
  auto* const result = static_cast<char**>(grown);
  result[slots - 1U] = token;
  return result;
}

/// An argument list grown one token at a time through put_token, released on destruction.
///
/// When a token cannot be appended, the list built so far is released and lost: data() becomes
/// null, size() keeps the count of tokens appended before, failed() turns true, and every later
/// append fails too, so a list with a hole is never handed on.
class ArgumentList {
public:
  ArgumentList() noexcept = default;
  explicit ArgumentList(Reallocate reallocate) noexcept : reallocate_(reallocate) {}
  ~ArgumentList() { std::free(list_); }

  ArgumentList(ArgumentList const&) = delete;
  ArgumentList& operator=(ArgumentList const&) = delete;
  ArgumentList(ArgumentList&&) = delete;
  ArgumentList& operator=(ArgumentList&&) = delete;

  /// Appends token (a null token terminates the list for execvp). False when memory ran out now
  /// or before.
  bool append(char* token) noexcept {
    if (failed_ || count_ == INT_MAX) {
      return lose();
    }
    char** const grown = put_token(list_, token, count_, reallocate_);
    if (grown == nullptr) {
      return lose();
    }
    list_ = grown;
    ++count_;
    return true;
  }

  /// The tokens appended so far; null before the first one and after a failure.
  [[nodiscard]] char** data() const noexcept { return list_; }
  /// How many tokens were appended (a terminating null counts as one).
  [[nodiscard]] int size() const noexcept { return count_; }
  /// Whether an append failed, which lost the list.
  [[nodiscard]] bool failed() const noexcept { return failed_; }

private:
  bool lose() noexcept {
    std::free(list_);
    list_ = nullptr;
    failed_ = true;
    return false;
  }

  Reallocate reallocate_ = &system_realloc;
  char** list_ = nullptr;
  int count_ = 0;
  bool failed_ = false;
};

/// Splits text in place at runs of spaces (only ' ', 0x20): leading and trailing spaces are
/// ignored; tabs and double quotes are ordinary characters. The tokens point into text.
/// True when at least one token was found and every one was appended.
inline bool split_plain(char* text, ArgumentList& args) {
  char* save = nullptr;
  for (char* token = strtok_r(text, " ", &save); token != nullptr;
       token = strtok_r(nullptr, " ", &save)) {
    if (!args.append(token)) {
      return false;
    }
  }
  return args.size() > 0;
}

/// Splits text in place where double quotes group words into one argument. The tokens point into
/// text; the quotes that open and close a group are cut out.
///
/// The scan always looks at the character after the current one. Outside a group, a space there
/// ends the token; after the run of spaces, an empty pair of quotes is dropped (no empty argument
/// is ever passed), a single quote opens a group and anything else starts a plain token. Inside a
/// group, a quote there ends the token; the next token starts after the spaces that follow and is
/// plain even when it begins with a quote: a group that follows a group directly is split at its
/// spaces and keeps its quotes. The program name cannot be quoted, a quote anywhere else is an
/// ordinary character, and an unterminated group runs to the end of the text.
/// True when at least one token was found and every one was appended.
inline bool split_quoted(char* text, ArgumentList& args) {
  auto skip_spaces = [](char* p) {
    while (*p == ' ') {
      ++p;
    }
    return p;
  };
  auto append_if_not_empty = [&args](char* token) { return *token == '\0' || args.append(token); };

  char* token = skip_spaces(text);
  char* current = token;
  bool in_quotes = false;
  while (*current != '\0') {
    char const next = current[1];
    if (!in_quotes && next == ' ') {
      current[1] = '\0';
      if (!append_if_not_empty(token)) {
        return false;
      }
      char* const after = skip_spaces(current + 2);
      if (after[0] == '"' && after[1] == '"') {
        token = skip_spaces(after + 2);
      } else if (after[0] == '"') {
        token = after + 1;
        in_quotes = true;
      } else {
        token = after;
      }
      current = token;
    } else if (in_quotes && next == '"') {
      current[1] = '\0';
      if (!append_if_not_empty(token)) {
        return false;
      }
      token = skip_spaces(current + 2);
      in_quotes = false;
      current = token;
    } else {
      ++current;
    }
  }
  if (!append_if_not_empty(token)) {
    return false;
  }
  return args.size() > 0;
}

/// Splits text in place with the quoting rules (quoted) or at plain runs of spaces.
inline bool split_command(char* text, bool quoted, ArgumentList& args) {
  return quoted ? split_quoted(text, args) : split_plain(text, args);
}

/// A private copy of a command line, released on destruction; null when the copy failed.
class CommandText {
public:
  explicit CommandText(char const* text) noexcept
      : text_(text == nullptr ? nullptr : strdup(text)) {}
  ~CommandText() { std::free(text_); }

  CommandText(CommandText const&) = delete;
  CommandText& operator=(CommandText const&) = delete;
  CommandText(CommandText&&) = delete;
  CommandText& operator=(CommandText&&) = delete;

  [[nodiscard]] char* get() const noexcept { return text_; }

private:
  char* text_;
};

/// The child's side of a start: its own process group, the delay of a run the caller does not
/// wait for, then the program. Never returns.
[[noreturn]] inline void run_child(ArgumentList& args, bool caller_waits, unsigned int delay_us) {
  pid_t const self = getpid();
  setpgid(self, self);
  if (delay_us != 0 && !caller_waits) {
    usleep(delay_us);
  }
  if (!args.append(nullptr)) {
    std::abort();
  }
  char** const argv = args.data();
  execvp(argv[0], argv);
  std::perror("execvp");
  std::abort();
}

/// Runs command: splits a private copy of it (quoted or plain), forks, and in the child starts the
/// first token as the program with the whole list as its arguments. Fills pid with the child's
/// process id, or -1 when fork fails. When wait is nonzero, waits for the child and returns bits 8
/// to 15 of its status (the exit code; a child ended by a signal gives 0); otherwise returns 0 at
/// once and leaves the child to the host. -1 when the copy fails, no argument was found, memory
/// for the list ran out or fork failed.
inline int _exec_cmd(char const* command, int wait, int& pid, unsigned int delay_us, bool quoted) {
  CommandText const text(command);
  if (text.get() == nullptr) {
    return -1;
  }
  ArgumentList args;
  if (!split_command(text.get(), quoted, args)) {
    return -1;
  }
  pid_t const child = fork();
  if (child < 0) {
    pid = -1;
    return -1;
  }
  if (child == 0) {
    run_child(args, wait != 0, delay_us);
  }
  pid = child;
  if (wait == 0) {
    return 0;
  }
  int status = 0;
  waitpid(child, &status, 0);
  return (status >> 8) & 0xFF;
}

} // namespace wlccw::detail
