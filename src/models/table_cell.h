// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

#include <QLocale>

namespace models {

/// The value of a cell before it is formatted for users: what searches and exports work on.
struct CellNumber {
    std::int64_t value;
};

struct CellTime {
    std::int64_t seconds; ///< since 1970 UTC
    QLocale::FormatType format;
};

/// The cell's text depends only on this number, and there are few different numbers.
struct CellLabel {
    std::int64_t number;
};

/// The first alternative is an empty cell; a text is UTF-8 and owned by the record.
using Cell = std::variant<std::monostate, std::string_view, CellNumber, CellTime, CellLabel>;

} // namespace models
