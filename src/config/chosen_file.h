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
inline constexpr qint64 longestLine = qint64(64) * 1024; ///< including its end

/// Counts of the lines of a file, without blank ones.
struct LinesRead {
    int taken = 0;
    int skipped = 0;
};

/// The first name with this ending, ignoring case; empty if there is no such name.
QString firstFileEndingIn(QLatin1String ending, const QStringList& names);

/// Opens a file for reading; false if that fails. Throws `std::runtime_error`, with a text for the
/// user, unless it is a regular file of at most `largestChosenFile` bytes whose lines have at most
/// `longestLine` bytes. Wipes what it reads for these checks.
bool openChosen(QFile& file, QIODevice::OpenMode mode);

/// Decodes UTF-8, or Latin-1 if the bytes aren't valid UTF-8.
QString textOfLine(std::string_view bytes);
bool isUtf8(std::string_view bytes);

} // namespace config
