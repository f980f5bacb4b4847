# Builds and installs the project `package` for the program `sample`, in `work`. The scripts must be where
# the shells look for them, each as the program prints it.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${work})
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/package -B ${work}/build -G Ninja
        -D SAMPLE=${sample} -D CMAKE_INSTALL_PREFIX=${work}/installed
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
foreach(step IN ITEMS --build --install)
    execute_process(COMMAND ${CMAKE_COMMAND} ${step} ${work}/build OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(GLOB_RECURSE installed RELATIVE ${work}/installed ${work}/installed/*)
set(shells bash fish zsh)
set(expected
    share/bash-completion/completions/sample
    share/fish/vendor_completions.d/sample.fish
    share/zsh/site-functions/_sample)
if(NOT installed STREQUAL expected)
    message(FATAL_ERROR "Installed:\n${installed}\nexpected:\n${expected}")
endif()

foreach(shell script IN ZIP_LISTS shells expected)
    execute_process(COMMAND ${sample} tarvoption=completion=${shell}
        OUTPUT_FILE ${work}/${shell} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${work}/${shell} ${work}/installed/${script}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
