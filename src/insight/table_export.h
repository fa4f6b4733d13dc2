// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QVector>

class QAbstractItemModel;
class QIODevice;
class QMimeData;

/// Exports tables to the clipboard and to files.
namespace insight {

/// As displayed.
struct TextTable {
    QStringList header;
    QVector<QStringList> rows;
};

/// Rows of a model, in the given order, with all columns of the model.
TextTable textTable(const QAbstractItemModel& model, const QVector<int>& rows);

/// One line per row, without the header, cells separated by tabs. A tab or a newline in a cell
/// becomes a space. Formulas are defused as in `csvLine`, for a spreadsheet that it is pasted into.
QString tabbedText(const TextTable& table);

/// Likewise, with the header.
QString htmlTable(const TextTable& table);

/// Both formats, for the clipboard; the caller owns the result.
QMimeData* clipboardData(const TextTable& table);

/// What spreadsheets of this locale expect between two cells: a semicolon where a comma is part of
/// numbers.
QChar csvSeparator(const QLocale& locale);

/// One line of CSV as in RFC 4180 but for the separator, with its line end. A text that a
/// spreadsheet would interpret as a formula is prefixed with an apostrophe; a number isn't a
/// formula.
QByteArray csvLine(const QStringList& cells, QChar separator);

/// A time in seconds since 1970 UTC in ISO 8601 format, local, with its offset from UTC.
QString isoTime(qint64 seconds);

/// The start of a CSV file: the UTF-8 byte order mark.
QByteArray csvMark();

} // namespace insight
