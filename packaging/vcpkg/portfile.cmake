# An overlay port that builds the tree it lies in:
#
#     vcpkg install tarv --overlay-ports=packaging/vcpkg
get_filename_component(SOURCE_PATH "${CURRENT_PORT_DIR}/../.." ABSOLUTE)

# The promise of a binary interface is the shared library's.
vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        -DTARV_BUILD_TESTS=OFF
        -DTARV_BUILD_EXAMPLES=OFF
        -DTARV_BUILD_PROGRAM=OFF
        -DTARV_BUILD_BENCHMARKS=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/tarv)
vcpkg_fixup_pkgconfig()

file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
