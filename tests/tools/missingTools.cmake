# A tool that a test needs and the system lacks must not leave the test out. Configures this project with
# all programs of the system, then without one of them at a time.
cmake_minimum_required(VERSION 3.25)

set(programs ${work}/programs)
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${programs})
foreach(folder IN ITEMS /usr/local/bin /usr/bin /bin)
    # Not the one that is called "[", which no list of CMake can hold.
    file(GLOB all ${folder}/[0-9A-Za-z]*)
    foreach(program IN LISTS all)
        cmake_path(GET program FILENAME name)
        if(NOT EXISTS ${programs}/${name} AND NOT IS_DIRECTORY ${program})
            file(CREATE_LINK ${program} ${programs}/${name} SYMBOLIC)
        endif()
    endforeach()
endforeach()

# Sets `status` and `output` to what a fresh configuration ends with.
function(configure)
    file(REMOVE_RECURSE ${work}/build)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env PATH=${programs} ${CMAKE_COMMAND} -S ${source} -B ${work}/build -G Ninja
            -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_BUILD_TYPE=Release -D GTest_DIR=${gtest}
            -D CMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF -D TARV_BUILD_EXAMPLES=OFF -D TARV_TEST_CONSUMERS=ON
            -D TARV_TEST_SHELLS=ON
        OUTPUT_QUIET ERROR_VARIABLE output RESULT_VARIABLE status)
    set(output "${output}" PARENT_SCOPE)
    set(status "${status}" PARENT_SCOPE)
endfunction()

configure()
if(NOT status EQUAL 0)
    message(FATAL_ERROR "Does not configure with every tool:\n${output}")
endif()
foreach(tool IN ITEMS abidiff doxygen fish mandoc nm pkg-config zsh clang++)
    file(RENAME ${programs}/${tool} ${work}/hidden)
    configure()
    string(REPLACE "+" "[+]" name ${tool})
    file(RENAME ${work}/hidden ${programs}/${tool})
    if(status EQUAL 0)
        message(SEND_ERROR "Nobody missed ${tool}.")
    elseif(NOT output MATCHES "Could not find [A-Z_]+ using the following names: ${name}")
        message(SEND_ERROR "Failed without ${tool}, for another reason:\n${output}")
    endif()
endforeach()
