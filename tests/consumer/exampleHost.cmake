# Builds and installs the example that the package brings along, with the CMake arguments `arguments`, in `work`,
# and looks at what was installed.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${work})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${example} -B ${work} -G Ninja -DCMAKE_INSTALL_PREFIX=${work}/prefix
    ${arguments} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${work} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${work} COMMAND_ERROR_IS_FATAL ANY)

file(WRITE ${work}/text "one\ntwo\n")
execute_process(COMMAND ${work}/prefix/bin/seek --search --pattern=two ${work}/text
    OUTPUT_VARIABLE found COMMAND_ERROR_IS_FATAL ANY)
if(NOT found MATCHES "two")
    message(FATAL_ERROR "seek found:\n${found}")
endif()
file(READ ${work}/prefix/share/man/man1/seek.1 manual)
if(NOT manual MATCHES "\nseek \\\\- Searches text files, or standard input\\.\n")
    message(FATAL_ERROR "The manual page:\n${manual}")
endif()
foreach(script IN ITEMS bash-completion/completions/seek zsh/site-functions/_seek fish/vendor_completions.d/seek.fish)
    file(SIZE ${work}/prefix/share/${script} size)
endforeach()
