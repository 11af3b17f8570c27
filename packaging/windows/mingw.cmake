# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# 64-bit Windows from Debian: -DCMAKE_TOOLCHAIN_FILE=packaging/windows/mingw.cmake -DKORVANE_WINDOWS=CACHE, the
# folder that toolchain.sh has filled. Without it that of the environment, or build/windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(cache "$ENV{KORVANE_WINDOWS}")
if(NOT cache)
    get_filename_component(cache "${CMAKE_CURRENT_LIST_DIR}/../../build/windows" ABSOLUTE)
endif()
set(KORVANE_WINDOWS "${cache}" CACHE PATH "The folder that toolchain.sh has filled")
# CMake tries compilers in projects of their own.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KORVANE_WINDOWS)

set(triple x86_64-w64-mingw32)
# Those with the C++ threads of the standard.
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)
# The same sources make the same files.
set(CMAKE_EXE_LINKER_FLAGS_INIT -Wl,--no-insert-timestamp)

set(CMAKE_FIND_ROOT_PATH ${KORVANE_WINDOWS}/root /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The translations are made by the host's tools.
file(GLOB linguist_tools /usr/lib/*/cmake/Qt5LinguistTools)
set(Qt5LinguistTools_DIR "${linguist_tools}" CACHE PATH "The host's tools for translations")
