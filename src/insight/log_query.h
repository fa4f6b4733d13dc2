// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <QString>

namespace insight {

/// What is typed into the search line of a log: words that all have to be found, in any case.
///
/// "name" looks in all columns, "set:name" in the name of the backup set, "type:name" in the first
/// column; "errors" and "warnings" keep rows that have some. A text in double quotes is one word.
struct LogQuery {
    std::vector<std::string> words; ///< folded, as are the next
    std::vector<std::string> sets;
    std::vector<std::string> types;
    bool withErrors = false;
    bool withWarnings = false;

    bool isEmpty() const;
    friend bool operator==(const LogQuery&, const LogQuery&) = default;
};

/// The words that stand for something, beside the English ones; as the user's language has them.
struct LogKeywords {
    QString set;
    QString type;
    QString errors;
    QString warnings;

    static LogKeywords translated();
};

LogQuery parseLogQuery(const QString& text, const LogKeywords& keywords);

/// Without regard to case, in UTF-8.
std::string folded(const QString& text);

} // namespace insight
