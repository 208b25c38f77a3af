# Runs the wlccw tool once and checks what it did.
#
#   cmake -DTOOL=<path> [-DARG0=... -DARG1=... (up to ARG9)] [-DSTDIN=<file>] [-DWORKDIR=<dir>]
#         -DEXPECT_RC=<n> [-DEXPECT_STDOUT=<file>] [-DEXPECT_STDOUT_REGEX=<regex>]
#         [-DEXPECT_STDERR=<file>] [-DEXPECT_STDERR_REGEX=<regex>] -P run_tool.cmake
#
# EXPECT_STDOUT and EXPECT_STDERR compare the whole stream with a file. Unless EXPECT_STDERR says
# otherwise, a run that fails must write exactly one line on stderr, and a run that exits 0 nothing
# (or what EXPECT_STDERR_REGEX allows).
cmake_minimum_required(VERSION 3.25)

foreach(required TOOL EXPECT_RC)
  if(NOT DEFINED ${required})
    message(FATAL_ERROR "run_tool.cmake: ${required} is not set")
  endif()
endforeach()

set(command "${TOOL}")
set(shown "wlccw")
foreach(i RANGE 0 9)
  if(DEFINED ARG${i})
    list(APPEND command "${ARG${i}}")
    string(APPEND shown " '${ARG${i}}'")
  endif()
endforeach()
if(DEFINED STDIN)
  string(APPEND shown " < ${STDIN}")
endif()

set(extra)
if(DEFINED STDIN)
  list(APPEND extra INPUT_FILE "${STDIN}")
endif()
if(DEFINED WORKDIR)
  list(APPEND extra WORKING_DIRECTORY "${WORKDIR}")
endif()
execute_process(COMMAND ${command} ${extra}
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)

set(failures)
if(NOT rc STREQUAL EXPECT_RC)
  list(APPEND failures "exit status ${rc}, expected ${EXPECT_RC}")
endif()

if(DEFINED EXPECT_STDOUT)
  file(READ "${EXPECT_STDOUT}" expected)
  if(NOT out STREQUAL expected)
    list(APPEND failures "stdout differs from ${EXPECT_STDOUT}:\n--- expected\n${expected}--- got\n${out}---")
  endif()
endif()
if(DEFINED EXPECT_STDOUT_REGEX AND NOT out MATCHES "${EXPECT_STDOUT_REGEX}")
  list(APPEND failures "stdout does not match ${EXPECT_STDOUT_REGEX}:\n${out}")
endif()

if(DEFINED EXPECT_STDERR)
  file(READ "${EXPECT_STDERR}" expected)
  if(NOT err STREQUAL expected)
    list(APPEND failures "stderr differs from ${EXPECT_STDERR}:\n--- expected\n${expected}--- got\n${err}---")
  endif()
elseif(EXPECT_RC STREQUAL "0" AND NOT DEFINED EXPECT_STDERR_REGEX)
  if(NOT err STREQUAL "")
    list(APPEND failures "unexpected stderr:\n${err}")
  endif()
elseif(NOT EXPECT_RC STREQUAL "0" AND NOT err MATCHES "^wlccw: [^\n]+\n$")
  list(APPEND failures "stderr is not one line starting with 'wlccw: ':\n${err}")
endif()
if(DEFINED EXPECT_STDERR_REGEX AND NOT err MATCHES "${EXPECT_STDERR_REGEX}")
  list(APPEND failures "stderr does not match ${EXPECT_STDERR_REGEX}:\n${err}")
endif()

if(failures)
  list(JOIN failures "\n" text)
  message(FATAL_ERROR "${shown}\n${text}")
endif()
