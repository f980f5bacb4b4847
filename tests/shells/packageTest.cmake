# Installs the build tree `build`, then builds and installs the project `package` against that with
# `compiler`, all in `work`. The scripts must be where the shells look for them, each as the program of this
# build, `sample`, prints it.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGV} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${work})
run(${CMAKE_COMMAND} --install ${build} --prefix ${work}/tarv)
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/package -B ${work}/build -G Ninja
    -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_PREFIX_PATH=${work}/tarv
    -D CMAKE_INSTALL_PREFIX=${work}/installed)
run(${CMAKE_COMMAND} --build ${work}/build)
run(${CMAKE_COMMAND} --install ${work}/build)

file(GLOB_RECURSE installed RELATIVE ${work}/installed ${work}/installed/*)
set(shells bash fish zsh)
set(scripts
    share/bash-completion/completions/sample
    share/fish/vendor_completions.d/sample.fish
    share/zsh/site-functions/_sample)
set(expected bin/sample ${scripts})
if(NOT installed STREQUAL expected)
    message(FATAL_ERROR "Installed:\n${installed}\nexpected:\n${expected}")
endif()

foreach(shell script IN ZIP_LISTS shells scripts)
    execute_process(COMMAND ${sample} tarvoption=completion=${shell}
        OUTPUT_FILE ${work}/${shell} COMMAND_ERROR_IS_FATAL ANY)
    run(${CMAKE_COMMAND} -E compare_files ${work}/${shell} ${work}/installed/${script})
endforeach()
