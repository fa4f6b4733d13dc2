# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# Cross-compiles for Windows on x86_64 with Debian's mingw-w64. TARN_WINDOWS_PREFIX is the folder of
# libraries that tools/windows/dependencies prints.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(host x86_64-w64-mingw32)
# Of the two thread models of Debian's compiler, only this one has the threads of the standard
# library.
set(CMAKE_C_COMPILER ${host}-gcc-posix)
set(CMAKE_CXX_COMPILER ${host}-g++-posix)
set(CMAKE_RC_COMPILER ${host}-windres)

# CMake's try_compile checks need the folder too.
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
# The translation compiler runs on the build machine.
set(Qt5LinguistTools_DIR /usr/lib/x86_64-linux-gnu/cmake/Qt5LinguistTools)

# Hardening usual on Windows: a random base address at each start, no code on the stack. Big
# objects, since templates and tests have more sections than the old format allows.
set(CMAKE_CXX_FLAGS_INIT "-fstack-protector-strong -Wa,-mbig-obj")
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-fstack-protector-strong -Wl,--dynamicbase,--nxcompat,--high-entropy-va")
set(CMAKE_MODULE_LINKER_FLAGS_INIT ${CMAKE_EXE_LINKER_FLAGS_INIT})
