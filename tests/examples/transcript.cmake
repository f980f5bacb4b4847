# Runs the command line of a transcript and compares what happens with it:
#   $ COMMAND LINE
#   what goes to standard output
#   stderr: what goes to standard error
#   [exit code N]
cmake_minimum_required(VERSION 3.25)

file(READ "${transcript}" expected)
if(NOT expected MATCHES "^[$] ([^\n]+)\n")
    message(FATAL_ERROR "${transcript}: the first line must be a command line")
endif()
set(command_line "${CMAKE_MATCH_1}")

file(REMOVE_RECURSE "${scratch}")
file(COPY "${files}/" DESTINATION "${scratch}")
set(ENV{PATH} "${programs}:$ENV{PATH}")
set(ENV{LC_ALL} C)
unset(ENV{NO_COLOR})
execute_process(COMMAND "${bash}" -c "${command_line}"
    WORKING_DIRECTORY "${scratch}"
    INPUT_FILE /dev/null
    OUTPUT_VARIABLE output
    ERROR_VARIABLE errors
    RESULT_VARIABLE exit_code
    TIMEOUT 60)

string(REGEX REPLACE "([^\n]*\n)" "stderr: \\1" errors "${errors}")
set(actual "$ ${command_line}\n${output}${errors}[exit code ${exit_code}]\n")
if(DEFINED ENV{TARV_UPDATE_TRANSCRIPTS})
    file(WRITE "${transcript}" "${actual}")
elseif(NOT actual STREQUAL expected)
    message(FATAL_ERROR "${transcript} says\n${expected}but this happens\n${actual}")
endif()
