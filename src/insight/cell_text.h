// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include <QLocale>

namespace insight {

/// Quickly formats many numbers and times as in the columns of a log: case-folded, in UTF-8,
/// appended to a string. The expensive parts are computed once per distinct day or minute.
class CellText {
public:
    explicit CellText(const QLocale& locale = QLocale::system());

    void addNumber(std::int64_t number, std::string& out) const;
    /// Seconds since 1970 UTC, as local time.
    void addTime(std::int64_t seconds, QLocale::FormatType format, std::string& out);

private:
    using Texts = std::unordered_map<std::int64_t, std::string>;

    std::int64_t localTime(std::int64_t seconds);
    const std::string& dateText(std::int64_t day, QLocale::FormatType format);
    const std::string& clockText(std::int64_t second, QLocale::FormatType format);

    QLocale locale_;
    std::string separator_; ///< between groups of three digits
    std::string minus_;
    std::unordered_map<std::int64_t, std::int64_t> offsets_;
    std::unordered_map<int, Texts> dates_; ///< by format
    std::unordered_map<int, Texts> clocks_;
};

/// Appends UTF-8 in case-folded form.
void addFolded(std::string_view text, std::string& out);

} // namespace insight
