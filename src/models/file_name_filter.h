// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegExp>
#include <QString>

namespace models {

/// Matches names that contain a text, case-sensitively. "*" matches any characters, "?" a single
/// one, and "[...]" one of the listed characters. A backslash is literal, and so is the character
/// after it. An empty text matches every name, an unclosed bracket matches none.
class FileNameFilter {
public:
    explicit FileNameFilter(const QString& pattern = {});

    bool matches(const QString& name) const;

private:
    QString text_;       ///< substring to find if it has no wildcards
    QRegExp expression_; ///< otherwise
    bool isText_;
};

} // namespace models
