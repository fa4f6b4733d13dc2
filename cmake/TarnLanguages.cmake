# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0

# The languages of the program other than the English of its sources, by the code given to "--lang".
# To add one, add its code here and run the target update_translations, which creates
# src/resources/translations/sg_i18n_<code>.ts.

include_guard()

set(TARN_LANGUAGES de)

# Next to the program, under the name it looks for, which has no suffix.
set(TARN_TRANSLATION_PREFIX ${PROJECT_BINARY_DIR}/bin/sg_i18n_)

# tarn_translation_source(<variable> <code>): the translation file of a language.
function(tarn_translation_source variable language)
    set(${variable} ${PROJECT_SOURCE_DIR}/src/resources/translations/sg_i18n_${language}.ts
        PARENT_SCOPE)
endfunction()
