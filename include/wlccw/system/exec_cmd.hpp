/// \file
/// Running external programs without a shell.
///
/// Every function formats its command line printf-style, splits it into arguments at spaces (or
/// with double quotes grouping words, in the quoted forms) and starts the first argument as the
/// program with fork and execvp. No shell is involved: pipes, redirections, variables, command
/// substitution and globbing characters reach the program as they are. Each child leads a process
/// group of its own, so a signal sent to the caller's group does not reach it.
///
/// Splitting: the plain forms split at runs of spaces (only the space character; tabs and quotes
/// are ordinary characters). The quoted forms let a double quote that follows a space (but not one
/// that directly follows a group) open a group of words that runs to the next double quote (or the
/// end of the text) and becomes one argument without its quotes; an empty pair of quotes gives no
/// argument; the program name cannot be quoted.
///
/// The waiting forms return the child's exit code (0 for a child ended by a signal, including a
/// program that could not be started: the child then prints "execvp" with the system error and
/// aborts). The background forms return the child's process id at once and leave reaping it to the
/// host. All of them return -1, without starting anything, when the command line cannot be
/// formatted or holds no argument, when memory for the argument list runs out, or when fork fails.
/// None of them throws.
#pragma once

#include <wlccw/export.hpp>

#include <cstdint>

/// How exec_cmd_parametrized and exec_cmd_bg_parametrized start their program.
struct ExecCmdParams {
  /// Microseconds the child sleeps before it starts the program; honoured only by the background
  /// form (a waited run starts at once).
  std::uint32_t delay_us = 0;
  /// Split with the quoting rules instead of at plain runs of spaces.
  bool quoted = false;
};

/// Runs the command, split at spaces, and waits for it; returns its exit code, or -1 when
/// nothing was started.
WLCCW_EXPORT int exec_cmd(char const* format, ...) __attribute__((format(printf, 1, 2)));

/// Runs the command, split with the quoting rules, and waits for it; returns its exit code, or -1
/// when nothing was started.
WLCCW_EXPORT int exec_cmd_quoted(char const* format, ...) __attribute__((format(printf, 1, 2)));

/// Runs the command, split as params say, and waits for it; returns its exit code, or -1 when
/// nothing was started. The delay of params has no effect here, since the caller waits.
WLCCW_EXPORT int exec_cmd_parametrized(ExecCmdParams const& params, char const* format, ...)
    __attribute__((format(printf, 2, 3)));

/// Starts the command, split at spaces, in the background; returns the child's process id, or -1
/// when nothing was started.
WLCCW_EXPORT int exec_cmd_bg(char const* format, ...) __attribute__((format(printf, 1, 2)));

/// Starts the command, split with the quoting rules, in the background; returns the child's
/// process id, or -1 when nothing was started.
WLCCW_EXPORT int exec_cmd_bg_quoted(char const* format, ...) __attribute__((format(printf, 1, 2)));

/// Starts the command in the background after the delay of params, split as params say; returns
/// the child's process id at once, or -1 when nothing was started.
WLCCW_EXPORT int exec_cmd_bg_parametrized(ExecCmdParams const& params, char const* format, ...)
    __attribute__((format(printf, 2, 3)));

/// Starts the command, split at spaces, in the background after delay_us microseconds (the child
/// sleeps, the caller does not); returns the child's process id at once, or -1 when nothing was
/// started.
WLCCW_EXPORT int exec_cmd_delayed(unsigned int delay_us, char const* format, ...)
    __attribute__((format(printf, 2, 3)));

/// Starts the command, split with the quoting rules, in the background after delay_us
/// microseconds; returns the child's process id at once, or -1 when nothing was started.
WLCCW_EXPORT int exec_cmd_delayed_quoted(unsigned int delay_us, char const* format, ...)
    __attribute__((format(printf, 2, 3)));
