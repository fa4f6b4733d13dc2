// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

class QAbstractItemModel;
class QIODevice;
class QMimeData;

/// Tables that leave the program: to the clipboard, and to a file.
namespace insight {

/// As people see it.
struct TextTable {
    QStringList header;
    QVector<QStringList> rows;
};

/// Rows of a model, in the order in which they are given. Columns are all of the model's.
TextTable textTable(const QAbstractItemModel& model, const QVector<int>& rows);

/// A line for each row, without the header, cells separated by tabs. A tab or a new line in a cell
/// becomes a space.
QString tabbedText(const TextTable& table);

/// A table with a header.
QString htmlTable(const TextTable& table);

/// Both, for the clipboard; the caller owns it.
QMimeData* clipboardData(const TextTable& table);

/// One line of CSV as RFC 4180 has it, with its end. A text that a spreadsheet would take for a
/// formula gets an apostrophe in front; a number isn't one.
QByteArray csvLine(const QStringList& cells);

/// A time in seconds since 1970 UTC as ISO 8601 has it, local, with its offset from UTC.
QString isoTime(qint64 seconds);

/// What a file in CSV begins with: the mark of UTF-8.
QByteArray csvMark();

} // namespace insight
