# Removes the files that the last `cmake --install` put where `manifest` says, and the folders that only
# this library uses.
cmake_minimum_required(VERSION 3.25)

if(NOT EXISTS ${manifest})
    message(FATAL_ERROR "Nothing was installed from this build: there is no ${manifest}")
endif()
file(STRINGS ${manifest} files)

set(folders "")
foreach(file IN LISTS files)
    message(STATUS "Removing $ENV{DESTDIR}${file}")
    file(REMOVE $ENV{DESTDIR}${file})
    cmake_path(GET file PARENT_PATH folder)
    list(APPEND folders ${folder})
    while(folder MATCHES "/doc/tarv/")
        cmake_path(GET folder PARENT_PATH folder)
        list(APPEND folders ${folder})
    endwhile()
endforeach()

# Inner folders first.
list(REMOVE_DUPLICATES folders)
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
    file(GLOB left $ENV{DESTDIR}${folder}/*)
    if(NOT left AND folder MATCHES "/(include/(tarv_3_3|tarv_3_3/internal|dovel2|mero_2_16)|cmake/tarv|share/tarv(/cmake)?|doc/tarv(/.*)?)$")
        file(REMOVE_RECURSE $ENV{DESTDIR}${folder})
    endif()
endforeach()
