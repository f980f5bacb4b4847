# Makes pages and completion scripts of a program when it is built, and installs them where they are looked
# for:
#
#     tarv_generate(TARGET man completion)
#
#   man         the manual page
#   completion  the scripts for bash, zsh and fish
#   json        the description, installed as share/TARGET/TARGET.json
#
# It needs the program tarv, which is a Debian package of its own. TARGET is run for it, so it must have been
# built for this machine, and answer tarvoption=describe: it calls tarv_3_3::answerCompletion, or is a program of
# the typed face. The name of the program is that of its file.
#
#   PURPOSE text    what the program is for, where it does not say it itself
#   DATE date       the date of the page; otherwise SOURCE_DATE_EPOCH counts, or the day of the build
#   COMPONENT name  of what is installed
#   ZSH_FOLDER path where the script for zsh belongs; otherwise share/zsh/site-functions
#   COMPRESSED      manual pages are installed as .gz
#   NOT_INSTALLED   only made, in the current build folder
function(tarv_generate target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "man;completion;json;COMPRESSED;NOT_INSTALLED" "PURPOSE;DATE;COMPONENT;ZSH_FOLDER"
        "")
    if(arg_UNPARSED_ARGUMENTS OR NOT (arg_man OR arg_completion OR arg_json))
        message(FATAL_ERROR "tarv_generate(${target}): wants man, completion or json, not '${arg_UNPARSED_ARGUMENTS}'")
    endif()
    if(NOT TARGET ${target})
        message(FATAL_ERROR "tarv_generate: there is no target ${target}")
    endif()
    if(NOT TARGET tarv::program)
        message(FATAL_ERROR "tarv_generate(${target}): the program tarv is not installed. It is in the Debian package tarv, "
            "and built where nlohmann-json is found.")
    endif()
    get_target_property(name ${target} OUTPUT_NAME)
    if(NOT name)
        set(name ${target})
    endif()
    include(GNUInstallDirs)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_generated)
    file(MAKE_DIRECTORY ${folder})
    set(made "")

    # _tarv_make(FILE FOLDER ARGUMENT...): what tarv prints for the arguments, installed in FOLDER.
    macro(_tarv_make file destination)
        add_custom_command(OUTPUT ${folder}/${file}
            COMMAND tarv::program ${ARGN} > ${folder}/${file}
            DEPENDS ${target} tarv::program
            VERBATIM)
        list(APPEND made ${folder}/${file})
        _tarv_install(${file} ${destination})
    endmacro()
    macro(_tarv_install file destination)
        if(NOT arg_NOT_INSTALLED)
            set(component "")
            if(arg_COMPONENT)
                set(component COMPONENT ${arg_COMPONENT})
            endif()
            install(FILES ${folder}/${file} DESTINATION ${destination} ${component})
        endif()
    endmacro()

    if(arg_man)
        set(arguments man $<TARGET_FILE:${target}>)
        if(arg_PURPOSE)
            list(APPEND arguments --purpose=${arg_PURPOSE})
        endif()
        if(arg_DATE)
            list(APPEND arguments --date=${arg_DATE})
        endif()
        if(arg_COMPRESSED)
            add_custom_command(OUTPUT ${folder}/${name}.1.gz
                COMMAND tarv::program ${arguments} > ${folder}/${name}.1
                COMMAND gzip --best --no-name --force ${folder}/${name}.1
                DEPENDS ${target} tarv::program
                VERBATIM)
            list(APPEND made ${folder}/${name}.1.gz)
            _tarv_install(${name}.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
        else()
            _tarv_make(${name}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${arguments})
        endif()
    endif()
    if(arg_completion)
        set(completion completion $<TARGET_FILE:${target}>)
        # The names are those that the shells look for.
        _tarv_make(${name} ${CMAKE_INSTALL_DATADIR}/bash-completion/completions ${completion} --shell=bash)
        if(NOT arg_ZSH_FOLDER)
            set(arg_ZSH_FOLDER ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
        endif()
        _tarv_make(_${name} ${arg_ZSH_FOLDER} ${completion} --shell=zsh)
        _tarv_make(${name}.fish ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d ${completion} --shell=fish)
    endif()
    if(arg_json)
        _tarv_make(${name}.json ${CMAKE_INSTALL_DATADIR}/${name} json $<TARGET_FILE:${target}>)
    endif()
    add_custom_target(${target}_generated ALL DEPENDS ${made})
endfunction()
