# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# Windows on x86_64, from Debian with its mingw-w64. TARN_WINDOWS_PREFIX is the folder of libraries
# that tools/windows/dependencies prints.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(host x86_64-w64-mingw32)
# Of the two thread models of Debian's compiler only this one has the standard library's threads.
set(CMAKE_C_COMPILER ${host}-gcc-posix)
set(CMAKE_CXX_COMPILER ${host}-g++-posix)
set(CMAKE_RC_COMPILER ${host}-windres)

# What CMake tries out has to know the folder too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARN_WINDOWS_PREFIX)
set(CMAKE_FIND_ROOT_PATH ${TARN_WINDOWS_PREFIX})
set(CMAKE_PREFIX_PATH ${TARN_WINDOWS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${TARN_WINDOWS_PREFIX}/lib/pkgconfig)
set(PKG_CONFIG_ARGN --define-prefix)
set(OPENSSL_USE_STATIC_LIBS ON)
# The compiler of translations runs here.
set(Qt5LinguistTools_DIR /usr/lib/x86_64-linux-gnu/cmake/Qt5LinguistTools)

# What Windows asks of a program: an address of its own at each start, no code on the stack. Big
# objects, since templates and tests have more sections than the old format holds.
set(CMAKE_CXX_FLAGS_INIT "-fstack-protector-strong -Wa,-mbig-obj")
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-fstack-protector-strong -Wl,--dynamicbase,--nxcompat,--high-entropy-va")
set(CMAKE_MODULE_LINKER_FLAGS_INIT ${CMAKE_EXE_LINKER_FLAGS_INIT})
