# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT

# Fuzzing needs the coverage marks of libFuzzer in every room.
if(KORVANE_FUZZ)
    set(KORVANE_SANITIZE "fuzzer-no-link,address,undefined")
endif()

# What a distribution hardens its programs by. Names of folders are left out, so that they are the same from any.
if(KORVANE_PACKAGE AND NOT WIN32)
    include(CheckPIESupported)
    check_pie_supported()
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    add_compile_options(-fstack-protector-strong -fstack-clash-protection -fcf-protection
                        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
    add_compile_definitions(_FORTIFY_SOURCE=3 _GLIBCXX_ASSERTIONS)
    add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,--build-id=sha1)
endif()
# The times of resources are nobody's concern, and would be another in each clone.
set(CMAKE_AUTORCC_OPTIONS --format-version 1)

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

# One room: korvane_library(<name> [PLAIN] SOURCES ... LINK ... [LINK_PRIVATE ...]).
# A room's own folder is its only include directory, so headers are found of the rooms that it links and of those
# below them; lint sees to it that a room includes only what its own line names.
# A PLAIN one has neither a QObject nor a form, so the toolkit's generators are not asked.
function(korvane_library name)
    cmake_parse_arguments(ARG "PLAIN" "" "SOURCES;LINK;LINK_PRIVATE" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_LINK_PRIVATE})
    korvane_target_options(${name})
    if(ARG_PLAIN)
        korvane_plain(${name})
    endif()
endfunction()

# What differs by system: of the sources of each of these headers, NAME_posix.cpp and NAME_windows.cpp, the one for the
# system that is built for.
if(WIN32)
    set(KORVANE_SYSTEM windows)
else()
    set(KORVANE_SYSTEM posix)
endif()
function(korvane_system_sources target)
    foreach(name IN LISTS ARGN)
        target_sources(${target} PRIVATE ${name}.h ${name}_${KORVANE_SYSTEM}.cpp)
    endforeach()
endfunction()

function(korvane_plain target)
    set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# The toolkit's headers take most of a compiler's time, so they are read once for all rooms that have widgets and
# once for those that have none. A file still includes what it uses: the package and the benchmarks are compiled
# without this. A set has a target of its own, whose command line has no more than every room's.
function(korvane_header_set name)
    cmake_parse_arguments(ARG "" "" "LINK;HEADERS" ${ARGN})
    if(NOT KORVANE_PCH)
        return()
    endif()
    file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/headers/${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${PROJECT_BINARY_DIR}/headers/${name}.cpp)
    korvane_plain(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LINK})
    korvane_target_options(${name})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    korvane_keep_times_out(${name})
endfunction()

# ccache compares contents, not times.
function(korvane_keep_times_out target)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        target_compile_options(${target} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
    endif()
endfunction()

# Lets a target have the headers of a set.
function(korvane_precompile target set)
    if(KORVANE_PCH)
        target_precompile_headers(${target} REUSE_FROM ${set})
        korvane_keep_times_out(${target})
    endif()
endfunction()

# The same set as a library that `target` links has.
function(korvane_precompile_as target library)
    get_target_property(set ${library} PRECOMPILE_HEADERS_REUSE_FROM)
    if(set)
        korvane_precompile(${target} ${set})
        # Nothing is in it: a test includes what moc makes of it.
        set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/mocs_compilation.cpp
                                    PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    endif()
endfunction()

# What Windows shows of a program, and what it may expect of it: icon, version, manifest. Nothing elsewhere.
function(korvane_windows_resource target description)
    if(NOT WIN32)
        return()
    endif()
    set(icon ${PROJECT_BINARY_DIR}/korvane.ico)
    set(manifest ${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest)
    file(GLOB pictures ${PROJECT_SOURCE_DIR}/packaging/icons/hicolor/*/apps/korvane.png)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${pictures})
    set(is_old FALSE)
    foreach(picture ${pictures})
        if(${picture} IS_NEWER_THAN ${icon})
            set(is_old TRUE)
        endif()
    endforeach()
    if(is_old)
        find_program(ICOTOOL icotool REQUIRED)
        # The largest stays compressed.
        set(largest ${PROJECT_SOURCE_DIR}/packaging/icons/hicolor/256x256/apps/korvane.png)
        list(REMOVE_ITEM pictures ${largest})
        execute_process(COMMAND ${ICOTOOL} --create --output=${icon} ${pictures} --raw=${largest}
                        COMMAND_ERROR_IS_FATAL ANY)
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${target}.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES OBJECT_DEPENDS "${manifest};${icon}")
endfunction()
