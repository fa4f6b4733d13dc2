// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include <QIODevice>
#include <QStringList>

class QFile;

/// Files of lines that a user chooses to be read into a dialog.
namespace config {

inline constexpr qint64 largestChosenFile = qint64(1024) * 1024;
inline constexpr qint64 longestLine = qint64(64) * 1024; ///< with its end

/// What became of the lines of a file; those without a letter aren't counted.
struct LinesRead {
    int taken = 0;
    int skipped = 0;
};

/// The first of the names that ends so, in whatever case; empty if none does.
QString firstFileEndingIn(QLatin1String ending, const QStringList& names);

/// Opens a file for reading; false if that fails. Raises `std::runtime_error`, in words for the
/// user, on what isn't a regular file, which might never end, on a file that is larger than
/// `largestChosenFile`, and on a line that is longer than `longestLine`. What was read to find out
/// has been wiped.
bool openChosen(QFile& file, QIODevice::OpenMode mode);

/// In UTF-8, or in Latin-1 if the bytes aren't UTF-8.
QString textOfLine(std::string_view bytes);
bool isUtf8(std::string_view bytes);

} // namespace config
