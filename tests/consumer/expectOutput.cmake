# Runs a program and compares its exit code, output and error output, each as a whole.
function(expect_output)
    cmake_parse_arguments(PARSE_ARGV 0 expected "" "EXIT_CODE;OUTPUT;ERROR" "COMMAND")
    execute_process(COMMAND ${expected_COMMAND}
        RESULT_VARIABLE exit_code OUTPUT_VARIABLE output ERROR_VARIABLE error)
    foreach(what IN ITEMS EXIT_CODE OUTPUT ERROR)
        string(TOLOWER ${what} actual)
        if(NOT "${${actual}}" STREQUAL "${expected_${what}}")
            message(FATAL_ERROR "${expected_COMMAND}\n${what}:\n${${actual}}\nexpected:\n${expected_${what}}")
        endif()
    endforeach()
endfunction()

# What host.cpp is to say.
function(expect_host_output program)
    expect_output(COMMAND ${program} --name=World,You --ti 2
        EXIT_CODE 0
        OUTPUT "Hello, World!\nHello, You!\nHello, World!\nHello, You!\n3 values\n"
        ERROR "")
    expect_output(COMMAND ${program} --times=x
        EXIT_CODE 2
        OUTPUT ""
        ERROR "host: Value validation problem in argument '--times=x': Option 'times' can not parse\
 'x' value, requires a type 'integer' here.\n")
endfunction()
