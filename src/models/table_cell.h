// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

#include <QLocale>

namespace models {

/// What a cell holds before it becomes a text for people: what a search and an export work on.
struct CellNumber {
    std::int64_t value;
};

struct CellTime {
    std::int64_t seconds; ///< since 1970 UTC
    QLocale::FormatType format;
};

/// The cell's text depends on this number alone, and the same numbers come again and again.
struct CellLabel {
    std::int64_t number;
};

/// The first alternative is an empty cell; a text is UTF-8 and lives in the record.
using Cell = std::variant<std::monostate, std::string_view, CellNumber, CellTime, CellLabel>;

} // namespace models
