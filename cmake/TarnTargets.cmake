# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# The three kinds of target of this project. Thus a folder's CMakeLists.txt only lists its files and
# libraries; warnings, sanitizers, labels and time limits are here.

include_guard()

# The compile options of all project targets.
add_library(tarn_options INTERFACE)
target_compile_features(tarn_options INTERFACE cxx_std_20)
target_include_directories(tarn_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tarn_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast)
if(TARN_WERROR)
    target_compile_options(tarn_options INTERFACE -Werror)
endif()
target_compile_definitions(tarn_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
# GCC 12 warns of an overlap in "text" + std::string, and loses the length of constant text behind a
# precompiled header. The sanitizers cover both.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(tarn_options INTERFACE -Wno-restrict -Wno-stringop-overread)
endif()
# Clang doesn't see a capture's use in a discarded template branch, and warns of shadowing for a
# member with the name of a C function.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(tarn_options INTERFACE -Wno-unused-lambda-capture -Wno-shadow)
endif()
find_program(TARN_MOLD mold)
if(WIN32)
    # Windows 10, the first version with UTF-8 in the narrow interfaces.
    target_compile_definitions(tarn_options INTERFACE
        _WIN32_WINNT=0x0A00 NOMINMAX WIN32_LEAN_AND_MEAN _POSIX_THREAD_SAFE_FUNCTIONS)
    target_link_libraries(tarn_options INTERFACE ws2_32 mswsock)
elseif(TARN_MOLD)
    target_link_options(tarn_options INTERFACE -fuse-ld=mold)
endif()
if(TARN_SANITIZE)
    target_compile_options(tarn_options INTERFACE
        -fsanitize=${TARN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(tarn_options INTERFACE -fsanitize=${TARN_SANITIZE})
    # For tests that examine memory, of which a sanitizer keeps copies and records.
    target_compile_definitions(tarn_options INTERFACE TARN_SANITIZED)
endif()

function(_tarn_prepare target)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    if(NOT BUILD_SHARED_LIBS)
        set_target_properties(${target} PROPERTIES
            CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    endif()
endfunction()

# tarn_library(<name> SOURCES <files> [LINK <public>] [LINK_PRIVATE <private>]
#              [PRECOMPILE <headers> | PRECOMPILED_BY <library>])
#
# A static library, or with BUILD_SHARED_LIBS a shared one: each test program with all sanitized
# libraries inside would have 150 MB.
# PRECOMPILE lists the headers, spelled as after #include, that most of the sources include; it pays
# off from about eight sources on. PRECOMPILED_BY reuses those of another library.
function(tarn_library name)
    cmake_parse_arguments(arg "" "PRECOMPILED_BY" "SOURCES;LINK;LINK_PRIVATE;PRECOMPILE" ${ARGN})
    add_library(${name} ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC tarn_options ${arg_LINK} PRIVATE ${arg_LINK_PRIVATE})
    _tarn_prepare(${name})
    if(arg_PRECOMPILE)
        target_precompile_headers(${name} PRIVATE ${arg_PRECOMPILE})
    elseif(arg_PRECOMPILED_BY)
        target_precompile_headers(${name} REUSE_FROM ${arg_PRECOMPILED_BY})
    endif()
endfunction()

# tarn_program(<name> SOURCES <files> [LINK <libraries>])
function(tarn_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE tarn_options ${arg_LINK})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
    _tarn_prepare(${name})
endfunction()

# Adds the labels to all tests of a GoogleTest program. Only ctest knows these tests, and a list
# doesn't survive being passed along with the other properties.
function(_tarn_label name labels)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${name}_labels.cmake)
    file(WRITE ${script}
        "foreach(test IN LISTS ${name}_TESTS)\n"
        "    set_tests_properties(\"\${test}\" PROPERTIES LABELS \"${labels}\")\n"
        "endforeach()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${script})
endfunction()

# Runs moc on the <topic>_test.cpp of a QTest program, giving <topic>_test.moc. AUTOMOC would first
# read all the headers of each program.
function(_tarn_moc name)
    foreach(source IN LISTS ARGN)
        if(source MATCHES "^(.*_test)[.]cpp$")
            qt5_generate_moc(${source} ${CMAKE_CURRENT_BINARY_DIR}/${CMAKE_MATCH_1}.moc TARGET ${name})
            target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${CMAKE_MATCH_1}.moc)
        endif()
    endforeach()
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()

# tarn_left_out(<name> <source>): a test, or a file of a test as in test_simulator.program_test, that
# isn't built for this system. The run under Wine requires a reason for each of them.
function(tarn_left_out name source)
    if(NOT EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${source})
        message(FATAL_ERROR "${name} is excluded, but ${source} doesn't exist")
    endif()
    add_test(NAME ${name} COMMAND ${name}.exe)
    set_tests_properties(${name} PROPERTIES DISABLED TRUE)
endfunction()

# tarn_test(<name> LABELS <labels> TIMEOUT <seconds> SOURCES <files> [LINK <libraries>]
#           [ENVIRONMENT <variables>])
#
# LABELS are of unit, wire, gui, slow. With the word QTEST the program is one QTest class and a
# single ctest test; otherwise it uses GoogleTest, and each TEST is a ctest test. Under a sanitizer,
# on Windows, where processes start slowly, and with ENVIRONMENT, the whole program is a single ctest
# test too.
# The headers that all tests of a kind include are precompiled once: see tarn_qt_test and
# tarn_google_test.
function(tarn_test name)
    cmake_parse_arguments(arg "QTEST" "TIMEOUT" "LABELS;SOURCES;LINK;ENVIRONMENT" ${ARGN})
    tarn_program(${name} SOURCES ${arg_SOURCES} LINK ${arg_LINK})
    # Tests may include the doubles in tests/support and the simulator next to the product.
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    # Hides any Kerberos ticket of the developer from the tests.
    set(environment KRB5CCNAME=FILE:${PROJECT_BINARY_DIR}/no-ticket ${arg_ENVIRONMENT})
    if(TARN_SANITIZE MATCHES "thread")
        list(APPEND environment
            TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/races_of_openssl.txt)
    endif()
    if(arg_QTEST)
        target_link_libraries(${name} PRIVATE tarn_qt_test)
        target_precompile_headers(${name} REUSE_FROM tarn_qt_test)
        _tarn_moc(${name} ${arg_SOURCES})
        # With -silent only failures are printed: warnings about what the offscreen platform can't
        # do would drown them.
        add_test(NAME ${name} COMMAND ${name} -silent)
        # A hanging test is aborted before its time limit, and shows where it hangs.
        math(EXPR patience "${arg_TIMEOUT} * 1000 * 2 / 3")
        list(APPEND environment QT_QPA_PLATFORM=offscreen QTEST_FUNCTION_TIMEOUT=${patience})
        if(TARN_SANITIZE MATCHES "address")
            # Qt has no frame pointers. To see the callers beyond it too, run the program with
            # ASAN_OPTIONS=fast_unwind_on_malloc=0, which takes eight times as long.
            list(APPEND environment
                LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks_of_qt.txt:print_suppressions=0)
        endif()
        set_tests_properties(${name} PROPERTIES
            LABELS "${arg_LABELS}" TIMEOUT ${arg_TIMEOUT} ENVIRONMENT "${environment}")
        return()
    endif()

    target_link_libraries(${name} PRIVATE tarn_google_test)
    target_precompile_headers(${name} REUSE_FROM tarn_google_test)
    if(TARN_SANITIZE OR WIN32 OR arg_ENVIRONMENT)
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES
            LABELS "${arg_LABELS}" TIMEOUT 300 ENVIRONMENT "${environment}")
    else()
        gtest_discover_tests(${name}
            TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60
            PROPERTIES TIMEOUT ${arg_TIMEOUT} ENVIRONMENT "${environment}")
        _tarn_label(${name} "${arg_LABELS}")
    endif()
endfunction()
