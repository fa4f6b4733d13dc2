# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# Fails if a source text is missing from the translation file TS, is unfinished there, or loses one
# of its placeholders.
# Takes LUPDATE, SOURCES and a scratch folder OUT.
file(MAKE_DIRECTORY ${OUT})
set(copy ${OUT}/texts.ts)
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

# The placeholders of a text have to appear in its translation too.
string(REGEX REPLACE "[][;]" " " plain "${text}")
string(REGEX MATCHALL
    "<source>[^<]*</source>([^<]*<[a-z]*comment>[^<]*</[a-z]*comment>)*[^<]*<translation>[^<]*</translation>"
    pairs "${plain}")
list(LENGTH pairs compared)
if(NOT compared EQUAL count)
    message(FATAL_ERROR "Only ${compared} of ${count} texts were compared")
endif()
foreach(pair IN LISTS pairs)
    string(REGEX REPLACE "</source>.*" "" source "${pair}")
    string(REGEX REPLACE ".*</source>" "" translation "${pair}")
    foreach(side source translation)
        string(REGEX MATCHALL "%L?[0-9]" places "${${side}}")
        string(REPLACE "L" "" places "${places}")
        list(SORT places)
        set(places_of_${side} "${places}")
    endforeach()
    if(NOT places_of_source STREQUAL places_of_translation)
        message(FATAL_ERROR "Places differ: ${source} and ${translation}")
    endif()
endforeach()
message(STATUS "All ${count} texts are translated")
