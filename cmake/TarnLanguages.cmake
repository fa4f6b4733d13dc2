# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# The languages of the program, besides the English of its sources, by the code that follows
# "--lang". A new one is a word here and its texts, made by the target update_translations, in
# src/resources/translations/sg_i18n_<code>.ts.

include_guard()

set(TARN_LANGUAGES de)

# Beside the program, under the name by which it looks for them: one without a suffix.
set(TARN_TRANSLATION_PREFIX ${PROJECT_BINARY_DIR}/bin/sg_i18n_)

# tarn_translation_source(<variable> <code>): the file with the texts of a language.
function(tarn_translation_source variable language)
    set(${variable} ${PROJECT_SOURCE_DIR}/src/resources/translations/sg_i18n_${language}.ts
        PARENT_SCOPE)
endfunction()
