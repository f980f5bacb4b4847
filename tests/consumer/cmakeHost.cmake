# Configures and builds the project `project` in `work`, with the CMake arguments `arguments`, and
# runs its program `host`.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/expectOutput.cmake)

file(REMOVE_RECURSE ${work})
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/${project} -B ${work} -G Ninja ${arguments}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${work} COMMAND_ERROR_IS_FATAL ANY)

if(project STREQUAL plugin)
    expect_output(COMMAND ${work}/host
        EXIT_CODE 0
        OUTPUT [[
host: plugin's type is known
host: --plugin-level=7 gives 0
plugin: level 7
plugin: host's name base
host: --plugin-level=-1 gives 1
host: --plugin-level=10 gives 4
]]
        ERROR "")
else()
    expect_host_output(${work}/host)
endif()
