# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# Draws every picture of TABLE at its size and at twice its size into OUT, and writes
# OUT/pictures.qrc with the resource names. Qt finds the larger one by its "@2x". A picture that is
# tinted is drawn once more for dark palettes, below "dark". A name without a suffix also exists with
# ".png": for an icon without one Qt looks into the files of the MIME database.

file(REMOVE_RECURSE ${OUT})
file(STRINGS ${TABLE} rows REGEX "^[a-z]")
set(entries "")

function(draw tint width height file)
    execute_process(
        COMMAND ${RSVG_CONVERT} --stylesheet ${tint} -w ${width} -h ${height} ${source} -o ${file}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Draws a row's picture in both sizes; `top` is empty or "dark/".
function(draw_both tint top)
    file(MAKE_DIRECTORY ${OUT}/${top}${folder})
    math(EXPR width2 "2 * ${width}")
    math(EXPR height2 "2 * ${height}")
    draw(${tint} ${width} ${height} ${OUT}/${top}${folder}/${name}.png)
    draw(${tint} ${width2} ${height2} ${OUT}/${top}${folder}/${name}@2x.png)
    foreach(scale "" "@2x")
        set(path ${top}${folder}/${name}${scale})
        foreach(suffix IN LISTS suffixes)
            string(APPEND entries "  <file alias=\"${path}${suffix}\">${path}.png</file>\n")
        endforeach()
    endforeach()
    set(entries "${entries}" PARENT_SCOPE)
endfunction()

foreach(row IN LISTS rows)
    if(NOT row MATCHES "^([a-z]+)/([a-z_]+)(\\.png)? +([^ ]+) +([0-9]+)(x([0-9]+))?$")
        message(FATAL_ERROR "Not a row of the table of pictures: ${row}")
    endif()
    set(folder ${CMAKE_MATCH_1})
    set(name ${CMAKE_MATCH_2})
    set(suffixes "${CMAKE_MATCH_3}")
    if("${suffixes}" STREQUAL "")
        set(suffixes "" .png)
    endif()
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
    draw_both(${TINT} "")
    file(STRINGS ${source} tinted REGEX "ColorScheme-Text" LIMIT_COUNT 1)
    if(tinted)
        draw_both(${TINT_ON_DARK} "dark/")
    endif()
endforeach()

file(WRITE ${OUT}/pictures.qrc
    "<RCC>\n <qresource prefix=\"/\">\n${entries} </qresource>\n</RCC>\n")
