# Installs the run-time part (component "runtime"), the development part ("development") and the companion program
# ("program").
include(CMakePackageConfigHelpers)

set(tarv_config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tarv)

install(TARGETS tarv
    EXPORT tarvTargets
    LIBRARY
        DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT runtime
        NAMELINK_COMPONENT development
    FILE_SET HEADERS
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        COMPONENT development)
install(EXPORT tarvTargets NAMESPACE tarv:: DESTINATION ${tarv_config_dir} COMPONENT development)
if(TARV_STATIC)
    install(TARGETS tarv_static
        EXPORT tarvStaticTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    install(EXPORT tarvStaticTargets
        NAMESPACE tarv:: DESTINATION ${tarv_config_dir} COMPONENT development)
endif()

# The same file for the development files of every architecture: one program serves them all.
set(tarv_program_dir ${CMAKE_INSTALL_DATADIR}/tarv/cmake)
if(TARV_BUILD_PROGRAM)
    install(TARGETS tarv_program EXPORT tarvProgramTargets RUNTIME COMPONENT program)
    install(EXPORT tarvProgramTargets NAMESPACE tarv:: DESTINATION ${tarv_program_dir} COMPONENT program)
endif()

configure_package_config_file(cmake/tarvConfig.cmake.in ${PROJECT_BINARY_DIR}/tarvConfig.cmake
    INSTALL_DESTINATION ${tarv_config_dir}
    PATH_VARS tarv_program_dir
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tarvConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tarvConfig.cmake ${PROJECT_BINARY_DIR}/tarvConfigVersion.cmake
    cmake/tarvGenerate.cmake
    DESTINATION ${tarv_config_dir}
    COMPONENT development)

# The prefix is found from where the file lies, so that an installed tree can be moved. Only what belongs
# to the system stays: there pkg-config is to recognise the directories, which compilers search anyway,
# and leave them out.
set(tarv_pc_dir ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
foreach(directory IN ITEMS PREFIX FULL_LIBDIR FULL_INCLUDEDIR)
    if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        set(TARV_PC_${directory} ${CMAKE_INSTALL_${directory}})
    else()
        cmake_path(RELATIVE_PATH CMAKE_INSTALL_${directory}
            BASE_DIRECTORY ${tarv_pc_dir} OUTPUT_VARIABLE TARV_PC_${directory})
        string(PREPEND TARV_PC_${directory} "\${pcfiledir}/")
    endif()
endforeach()
configure_file(cmake/tarv.pc.in ${PROJECT_BINARY_DIR}/tarv.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tarv.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)

install(FILES share/tarv/description.schema.json
    DESTINATION ${CMAKE_INSTALL_DATADIR}/tarv
    COMPONENT development)

# No example is installed as a program. The sources of the largest one are, with what it takes to build it: its
# manual page and its completion come with it then.
set(tarv_examples_dir ${CMAKE_INSTALL_DATADIR}/doc/tarv/examples/seek)
if(TARV_DEBIAN)
    set(tarv_examples_dir ${CMAKE_INSTALL_DATADIR}/doc/libtarv-dev/examples/seek)
endif()
file(GLOB tarv_example_files CONFIGURE_DEPENDS
    examples/seek.* examples/searching.* examples/replacing.* examples/escaping.* examples/OpenFile.*)
install(FILES ${tarv_example_files} examples/installed/CMakeLists.txt
    DESTINATION ${tarv_examples_dir}
    COMPONENT development)

# A project that contains this one may have an `uninstall` of its own.
if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(uninstall COMMAND ${CMAKE_COMMAND}
        -D manifest=${PROJECT_BINARY_DIR}/install_manifest.txt -P ${PROJECT_SOURCE_DIR}/cmake/uninstall.cmake
        VERBATIM)
endif()
