# Three Debian packages, made by cpack: the library, what is needed to build hosts, and the companion program.
set(runtime_package libtarv${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(development_package libtarv-dev)
set(program_package tarv)
set(CPACK_COMPONENTS_ALL runtime development)
if(TARV_BUILD_PROGRAM)
    list(APPEND CPACK_COMPONENTS_ALL program)
endif()

file(READ LICENSE TARV_LICENSE)
configure_file(packaging/copyright.in ${PROJECT_BINARY_DIR}/packaging/copyright @ONLY)
execute_process(COMMAND gzip --best --no-name --stdout ${PROJECT_SOURCE_DIR}/packaging/changelog
    OUTPUT_FILE ${PROJECT_BINARY_DIR}/packaging/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
foreach(part IN LISTS CPACK_COMPONENTS_ALL)
    install(FILES ${PROJECT_BINARY_DIR}/packaging/copyright ${PROJECT_BINARY_DIR}/packaging/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${part}_package}
        COMPONENT ${part})
endforeach()

# As Debian's own tools strip a library.
find_program(TARV_STRIP strip REQUIRED)
install(CODE "execute_process(COMMAND ${TARV_STRIP} --strip-unneeded --remove-section=.comment
    \$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/$<TARGET_FILE_NAME:tarv>
    COMMAND_ERROR_IS_FATAL ANY)"
    COMPONENT runtime)
if(TARV_BUILD_PROGRAM)
    install(CODE "execute_process(COMMAND ${TARV_STRIP} --remove-section=.comment
        \$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/$<TARGET_FILE_NAME:tarv_program>
        COMMAND_ERROR_IS_FATAL ANY)"
        COMPONENT program)
    # The program needs the library of the other package, which lies here.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarv)
# The parts have summaries of their own: the first lines of their descriptions.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "The tarv authors <authors@tarv.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SOURCE tarv)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/finishDebianPackages.cmake)
set(CPACK_TARV_RUNTIME_PACKAGE ${runtime_package})
set(CPACK_TARV_SYMBOLS ${PROJECT_SOURCE_DIR}/abi/debian.symbols)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "command-line parsing library
The shared library that programs made with tarv need.
It reads command lines with abbreviated options, actions with modifiers and
lists of values, and writes the help text.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
# Pages and completion scripts of hosts are made by it.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS ${program_package})
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "command-line parsing library, development files
Headers, CMake package and pkg-config file for programs that use tarv.
It reads command lines with abbreviated options, actions with modifiers and
lists of values, and writes the help text.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME ${program_package})
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION devel)
# The tools that find dependencies know installed libraries only.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${runtime_package} (>= ${PROJECT_VERSION})")
# It reads the scripts that the program looks at.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS shfmt)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "compare, explain and document command lines
A program for authors of programs that use the command-line parsing library
tarv. It tells which command lines a new version would break and what scripts
lean on, explains how arguments are understood, and writes manual pages and
completion scripts.")

include(CPack)
