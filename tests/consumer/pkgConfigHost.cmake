# Builds host.cpp in `work` with `compiler` and the flags that pkg-config gives for the library
# installed in `prefix`, and runs it.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/expectOutput.cmake)

file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work})
file(GLOB_RECURSE pc_file ${prefix}/*/tarv.pc)
cmake_path(GET pc_file PARENT_PATH pc_dir)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
execute_process(COMMAND ${pkg_config} --cflags --libs "tarv >= 3.3"
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${pkg_config} --variable=libdir tarv
    OUTPUT_VARIABLE libdir OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(
    COMMAND ${compiler} -std=c++17 -Wall -Wextra -Wpedantic -Werror
        ${CMAKE_CURRENT_LIST_DIR}/host.cpp ${flags} -Wl,-rpath,${libdir} -o ${work}/host
    COMMAND_ERROR_IS_FATAL ANY)
expect_host_output(${work}/host)
