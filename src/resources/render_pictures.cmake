# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# Draws every picture of TABLE at its size and at twice its size into OUT, and writes
# OUT/pictures.qrc with the resource names. Qt finds the larger one by its "@2x".

file(REMOVE_RECURSE ${OUT})
file(STRINGS ${TABLE} rows REGEX "^[a-z]")
set(entries "")

function(draw source width height file)
    execute_process(
        COMMAND ${RSVG_CONVERT} --stylesheet ${TINT} -w ${width} -h ${height} ${source} -o ${file}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(row IN LISTS rows)
    if(NOT row MATCHES "^([a-z]+)/([a-z_]+)(\\.png)? +([^ ]+) +([0-9]+)(x([0-9]+))?$")
        message(FATAL_ERROR "Not a row of the table of pictures: ${row}")
    endif()
    set(folder ${CMAKE_MATCH_1})
    set(name ${CMAKE_MATCH_2})
    set(suffix "${CMAKE_MATCH_3}")
    set(source ${CMAKE_MATCH_4})
    set(width ${CMAKE_MATCH_5})
    set(height "${CMAKE_MATCH_7}")
    if("${height}" STREQUAL "")
        set(height ${width})
    endif()
    if(source MATCHES "^brand/")
        set(source ${BRAND}/${source})
    else()
        set(source ${THEME}/${source})
    endif()
    math(EXPR width2 "2 * ${width}")
    math(EXPR height2 "2 * ${height}")
    file(MAKE_DIRECTORY ${OUT}/${folder})
    draw(${source} ${width} ${height} ${OUT}/${folder}/${name}.png)
    draw(${source} ${width2} ${height2} ${OUT}/${folder}/${name}@2x.png)
    foreach(scale "" "@2x")
        string(APPEND entries
            "  <file alias=\"${folder}/${name}${scale}${suffix}\">${folder}/${name}${scale}.png</file>\n")
    endforeach()
endforeach()

file(WRITE ${OUT}/pictures.qrc
    "<RCC>\n <qresource prefix=\"/\">\n${entries} </qresource>\n</RCC>\n")
