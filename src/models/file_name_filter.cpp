// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/file_name_filter.h"

#include <algorithm>

namespace models {

namespace {

/// Removes leading and trailing asterisks, which don't change the result but are slow to match. An
/// asterisk in brackets or after a backslash isn't a wildcard.
QString withoutOuterAsterisks(const QString& pattern) {
    if (pattern.contains(QLatin1Char('[')) || pattern.contains(QLatin1Char('\\')))
        return pattern;
    const auto isAsterisk = [](QChar c) { return c == QLatin1Char('*'); };
    const auto begin = std::find_if_not(pattern.begin(), pattern.end(), isAsterisk);
    const auto end = std::find_if_not(pattern.rbegin(), pattern.rend(), isAsterisk).base();
    return begin < end ? QString(begin, static_cast<int>(end - begin)) : QString();
}

bool hasWildcard(const QString& pattern) {
    return std::any_of(pattern.begin(), pattern.end(),
                       [](QChar c) { return QStringLiteral("*?[]\\").contains(c); });
}

} // namespace

FileNameFilter::FileNameFilter(const QString& pattern)
    : text_(withoutOuterAsterisks(pattern))
    , isText_(!hasWildcard(text_)) {
    if (!isText_)
        expression_ = QRegExp(text_, Qt::CaseSensitive, QRegExp::Wildcard);
}

bool FileNameFilter::matches(const QString& name) const {
    return isText_ ? name.contains(text_) : name.contains(expression_);
}

} // namespace models
