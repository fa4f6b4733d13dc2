// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <QString>

namespace insight {

/// The search line of a log: words that must all be found, ignoring case.
///
/// "name" searches all columns, "set:name" the name of the backup set, "type:name" the first
/// column; "errors" and "warnings" keep rows that have some. A text in double quotes is one word,
/// and no keyword.
struct LogQuery {
    std::vector<std::string> words; ///< case-folded, like the next members
    std::vector<std::string> sets;
    std::vector<std::string> types;
    bool withErrors = false;
    bool withWarnings = false;

    bool isEmpty() const;
    friend bool operator==(const LogQuery&, const LogQuery&) = default;
};

/// The keywords in the user's language, accepted in addition to the English ones.
struct LogKeywords {
    QString set;
    QString type;
    QString errors;
    QString warnings;

    static LogKeywords translated();
};

LogQuery parseLogQuery(const QString& text, const LogKeywords& keywords);

/// Case-folded, in UTF-8.
std::string folded(const QString& text);

} // namespace insight
