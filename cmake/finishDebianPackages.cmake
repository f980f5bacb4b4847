# Run by cpack behind the packages: makes of them what it has no settings for.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(tree ${CPACK_TEMPORARY_DIRECTORY}/finished)
    file(REMOVE_RECURSE ${tree})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${tree} COMMAND_ERROR_IS_FATAL ANY)

    # What differs between architectures lies in a directory of the architecture's. Of a program there can be only
    # one, and it serves the packages of every architecture.
    set(multi_arch same)
    if(IS_DIRECTORY ${tree}/usr/bin)
        set(multi_arch foreign)
    endif()
    file(READ ${tree}/DEBIAN/control control)
    string(STRIP "${control}" control)
    file(WRITE ${tree}/DEBIAN/control "${control}\nMulti-Arch: ${multi_arch}\n")

    if(EXISTS ${tree}/DEBIAN/shlibs)
        # Both only call ldconfig, and so does dpkg, since there is a trigger.
        file(REMOVE ${tree}/DEBIAN/postinst ${tree}/DEBIAN/postrm)
        # Fails when the library exports a name that is not in the list, or lacks one that is.
        execute_process(
            COMMAND dpkg-gensymbols -c4 -q -P${tree} -p${CPACK_TARV_RUNTIME_PACKAGE}
                -v${CPACK_PACKAGE_VERSION} -I${CPACK_TARV_SYMBOLS} -O${tree}/DEBIAN/symbols
            COMMAND_ERROR_IS_FATAL ANY)
    endif()

    execute_process(COMMAND dpkg-deb --root-owner-group --build ${tree} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
