# Runs floors.cmake on two small trees and compares its whole answer.
cmake_minimum_required(VERSION 3.25)

function(expect tree expected_success expected_text)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -D root=${CMAKE_CURRENT_LIST_DIR}/${tree}
            -P ${CMAKE_CURRENT_LIST_DIR}/../floors.cmake
        RESULT_VARIABLE exit_code
        ERROR_VARIABLE text)
    if(exit_code EQUAL 0)
        set(success TRUE)
    else()
        set(success FALSE)
    endif()
    string(REGEX REPLACE "CMake Error.*" "" text "${text}")
    if(NOT success STREQUAL expected_success OR NOT text STREQUAL expected_text)
        message(FATAL_ERROR "${tree}: success ${success}, expected ${expected_success}; said\n${text}\n"
            "expected\n${expected_text}")
    endif()
endfunction()

expect(orderly TRUE "3 includes, none points up.\n")
expect(upward FALSE [[
What does not point down, or is not allowed:
  include/tarv_3_3/ground.h (floor 0) includes platform/below.h (floor 1)
  src/options/above.h includes ground.h, which is not written from include/ or src/
  src/options/beside.h hashes texts without a key; see platform/hashOf.h
  src/platform/below.h includes <memory_resource>; see platform/Arena.h
  src/platform/below.h (floor 1) includes options/above.h (floor 2)

]])
