# Configures, builds and installs the project `generate` in `work`, with the CMake arguments `arguments`, and looks
# at what was made of its program. With `program` set to "missing", tarv was installed without its program: then
# the configuration is to say so.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${work})
set(configure ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/generate -B ${work} -G Ninja
    -DCMAKE_INSTALL_PREFIX=${work}/prefix ${arguments})
if(program STREQUAL "missing")
    execute_process(COMMAND ${configure} RESULT_VARIABLE exit_code OUTPUT_QUIET ERROR_VARIABLE message)
    if(exit_code EQUAL 0 OR NOT message MATCHES "tarv_generate\\(greet\\): the program tarv is not installed\\.")
        message(FATAL_ERROR "Without the program, the configuration ends with ${exit_code}:\n${message}")
    endif()
    return()
endif()
execute_process(COMMAND ${configure} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${work} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${work} COMMAND_ERROR_IS_FATAL ANY)

# expect(FILE TEXT): the installed file begins so.
function(expect file text)
    file(READ ${work}/prefix/${file} contents)
    string(LENGTH "${text}" length)
    string(SUBSTRING "${contents}" 0 ${length} begin)
    if(NOT begin STREQUAL text)
        message(FATAL_ERROR "${file}:\n${contents}\nshould begin with:\n${text}")
    endif()
endfunction()

expect(share/man/man1/greet.1 [[
.TH "GREET" "1" "2026-11-22" "greet"
.SH NAME
greet \- Greets people.
.SH SYNOPSIS
\fBgreet\fR [\fIOPTION\fR]...
.SH "OPTIONS"
.TP
\fB\-n=\fR\fITEXT\fR, \fB\-\-name=\fR\fITEXT\fR
Whom to greet.
Several values are separated by \(aq,\(aq.
Default: World.
]])
expect(share/greet/greet.json [[{"format": "tarv-description"]])
foreach(shell IN ITEMS bash zsh fish)
    execute_process(COMMAND ${work}/prefix/bin/greet tarvoption=completion=${shell}
        OUTPUT_VARIABLE script_of_${shell} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
expect(share/bash-completion/completions/greet "${script_of_bash}")
expect(share/zsh/site-functions/_greet "${script_of_zsh}")
expect(share/fish/vendor_completions.d/greet.fish "${script_of_fish}")
