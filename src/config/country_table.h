// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <QLocale>
#include <QString>

namespace config {

struct Country {
    std::int32_t code; ///< ISO 3166-1 numeric
    const char* name;  ///< in English and UTF-8; a text of `InitClntCfgDlg` to translate
};

inline constexpr std::size_t countryCount = 249;

/// All countries of ISO 3166-1, by their English names.
const std::array<Country, countryCount>& countries();

struct NamedCountry {
    std::int32_t code;
    QString name; ///< in the language of the user interface
};

/// The countries sorted for readers of that language. English names keep their order in
/// `countries`, even for a language without a translation.
std::vector<NamedCountry> countriesFor(const QLocale& language);

/// Likewise for the given names.
void sortFor(const QLocale& language, std::vector<NamedCountry>& countries);

} // namespace config
