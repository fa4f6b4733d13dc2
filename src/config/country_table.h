// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace config {

struct Country {
    std::int32_t code; ///< ISO 3166-1 numeric
    const char* name;  ///< in English and UTF-8; a text of `InitClntCfgDlg` to be translated
};

inline constexpr std::size_t countryCount = 249;

/// All countries of ISO 3166-1, by their English names.
const std::array<Country, countryCount>& countries();

} // namespace config
