// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegExp>
#include <QString>

namespace models {

/// Names that hold a text somewhere, in the same case. In it "*" stands for any characters, "?" for
/// one, and "[...]" for one of those in it. A backslash is a letter, and so is the sign behind it.
/// An empty text stands in every name, one with a bracket that isn't closed in none.
class FileNameFilter {
public:
    explicit FileNameFilter(const QString& pattern = {});

    bool matches(const QString& name) const;

private:
    QString text_;       ///< what has to stand in the name, if there is no wildcard in it
    QRegExp expression_; ///< else
    bool isText_;
};

} // namespace models
