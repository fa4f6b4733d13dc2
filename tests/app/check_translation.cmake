# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# Fails if a text of the sources isn't in the translation file TS, or isn't finished there.
# LUPDATE, SOURCES and a scratch folder OUT are given.
file(MAKE_DIRECTORY ${OUT})
set(copy ${OUT}/sg_i18n_de.ts)
file(COPY_FILE ${TS} ${copy})
execute_process(
    COMMAND ${LUPDATE} -silent -locations none -no-obsolete ${SOURCES} -extensions cpp,h,ui
        -ts ${copy}
    COMMAND_ERROR_IS_FATAL ANY)
file(READ ${copy} text)
string(REGEX MATCHALL "<source>[^<]*</source>[^<]*<translation[^>]*unfinished[^>]*>" open "${text}")
string(REGEX MATCHALL "<source>" all "${text}")
list(LENGTH all count)
if(count EQUAL 0)
    message(FATAL_ERROR "No texts were found in ${SOURCES}")
endif()
if(open)
    string(REGEX REPLACE "<source>([^<]*)</source>[^;]*" "\n    \\1" names "${open}")
    message(FATAL_ERROR "Texts without a finished translation:${names}")
endif()
message(STATUS "All ${count} texts are translated")
