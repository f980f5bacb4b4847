# Runs the portfile with stand-ins for vcpkg's functions, and looks at what it asks them for.
cmake_minimum_required(VERSION 3.25)

set(CURRENT_PORT_DIR ${root}/packaging/vcpkg)
set(CURRENT_PACKAGES_DIR ${output}/packages)
set(called "")

macro(note name)
    list(APPEND called ${name})
endmacro()
macro(vcpkg_check_linkage)
    note(vcpkg_check_linkage)
endmacro()
macro(vcpkg_cmake_configure)
    cmake_parse_arguments(configure "" "SOURCE_PATH" "OPTIONS" ${ARGN})
    note(vcpkg_cmake_configure)
endmacro()
macro(vcpkg_cmake_install)
    note(vcpkg_cmake_install)
endmacro()
macro(vcpkg_cmake_config_fixup)
    cmake_parse_arguments(fixup "" "CONFIG_PATH" "" ${ARGN})
    note(vcpkg_cmake_config_fixup)
endmacro()
macro(vcpkg_fixup_pkgconfig)
    note(vcpkg_fixup_pkgconfig)
endmacro()
macro(vcpkg_install_copyright)
    cmake_parse_arguments(copyright "" "" "FILE_LIST" ${ARGN})
    note(vcpkg_install_copyright)
endmacro()

include(${CURRENT_PORT_DIR}/portfile.cmake)

set(expected vcpkg_check_linkage vcpkg_cmake_configure vcpkg_cmake_install vcpkg_cmake_config_fixup
    vcpkg_fixup_pkgconfig vcpkg_install_copyright)
if(NOT called STREQUAL expected)
    message(FATAL_ERROR "The portfile calls: ${called}")
endif()
if(NOT configure_SOURCE_PATH STREQUAL root)
    message(FATAL_ERROR "The portfile builds ${configure_SOURCE_PATH}")
endif()
if(NOT EXISTS ${copyright_FILE_LIST})
    message(FATAL_ERROR "There is no ${copyright_FILE_LIST}")
endif()

# The project accepts the options, and installs its CMake package where the fix-up looks for it.
file(REMOVE_RECURSE ${output}/build)
execute_process(COMMAND ${CMAKE_COMMAND} -S ${root} -B ${output}/build -G Ninja -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_CXX_COMPILER=${compiler} -DCMAKE_INSTALL_LIBDIR=lib
    -DCMAKE_INSTALL_PREFIX=${CURRENT_PACKAGES_DIR} ${configure_OPTIONS}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${output}/build/cmake_install.cmake installed REGEX "${fixup_CONFIG_PATH}")
if(NOT installed)
    message(FATAL_ERROR "Nothing is installed to ${fixup_CONFIG_PATH}")
endif()
