# Installs the build tree `build` into `prefix`, by way of another directory: an installed tree can be
# moved. Then compares the installed headers with those in `source`/include. With `components`, only these
# are installed.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${prefix} ${prefix}-before-the-move)
function(install_parts)
    execute_process(COMMAND ${CMAKE_COMMAND} --install ${build} --prefix ${prefix}-before-the-move ${ARGN}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()
if(components)
    foreach(component IN LISTS components)
        install_parts(--component ${component})
    endforeach()
else()
    install_parts()
endif()
file(RENAME ${prefix}-before-the-move ${prefix})

file(GLOB_RECURSE headers RELATIVE ${source}/include ${source}/include/*)
file(GLOB_RECURSE installed RELATIVE ${prefix}/include ${prefix}/include/*)
if(NOT headers STREQUAL installed)
    message(FATAL_ERROR "Headers:\n${headers}\nInstalled:\n${installed}")
endif()
