# Fails when the hash of a text can be known outside the process: two processes must differ in it.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${program} OUTPUT_VARIABLE one COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${program} OUTPUT_VARIABLE other COMMAND_ERROR_IS_FATAL ANY)
if(NOT one MATCHES "^[0-9a-f]+\n$" OR one STREQUAL other)
    message(FATAL_ERROR "The hash of a text was first ${one}and then ${other}")
endif()
