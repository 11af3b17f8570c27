# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT

# Fuzzing needs the coverage marks of libFuzzer in every room.
if(KORVANE_FUZZ)
    set(KORVANE_SANITIZE "fuzzer-no-link,address,undefined")
endif()

# Warnings, sanitizers and coverage for one of our own targets.
function(korvane_target_options target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
    if(KORVANE_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(KORVANE_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${KORVANE_SANITIZE} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${KORVANE_SANITIZE})
    endif()
    if(KORVANE_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} PRIVATE --coverage)
    endif()
endfunction()

# One room: korvane_library(<name> SOURCES ... LINK ... [LINK_PRIVATE ...]).
# A room's own folder is its only include directory, so a header of a room that is not linked cannot be found.
function(korvane_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;LINK_PRIVATE" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_LINK_PRIVATE})
    korvane_target_options(${name})
endfunction()

# The toolkit's headers take most of a compiler's time, so the rooms with the most files read them once. A file
# still includes what it uses: the package and the benchmarks are compiled without this.
function(korvane_precompile target)
    if(NOT KORVANE_PCH)
        return()
    endif()
    target_precompile_headers(${target} PRIVATE ${ARGN})
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # ccache compares contents, not times.
        target_compile_options(${target} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
    endif()
endfunction()

# Takes over the headers of a library that `target` links, where that library has them and nothing else on the
# command line differs.
function(korvane_precompile_as target library)
    get_target_property(headers ${library} PRECOMPILE_HEADERS)
    if(headers)
        target_precompile_headers(${target} REUSE_FROM ${library})
        # Nothing is in it: a test includes what moc makes of it.
        set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/mocs_compilation.cpp
                                    PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
        if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
            target_compile_options(${target} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
        endif()
    endif()
endfunction()
