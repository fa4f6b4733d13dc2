# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# Copies the pictures shown by the page HTML, in this LANGUAGE, from the folder PICTURES to the same
# paths next to the page, and removes all others.
file(READ ${HTML} page)
cmake_path(GET HTML PARENT_PATH folder)
string(REGEX MATCHALL "src=\"[^\"]+[.]png\"" sources "${page}")
list(REMOVE_DUPLICATES sources)
file(REMOVE_RECURSE ${folder}/tour/${LANGUAGE})
foreach(source IN LISTS sources)
    string(REGEX REPLACE "src=\"(.+)\"" "\\1" picture "${source}")
    configure_file(${PICTURES}/${picture} ${folder}/${picture} COPYONLY)
endforeach()
