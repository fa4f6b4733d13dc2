// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/table_export.h"

#include <memory>

#include <QAbstractItemModel>
#include <QDateTime>
#include <QMimeData>

namespace insight {

namespace {

QString plainCell(QString text) {
    for (const char c : {'\t', '\r', '\n'})
        text.replace(QLatin1Char(c), QLatin1Char(' '));
    return text;
}

bool isNumber(const QString& text) {
    bool ok = false;
    text.toDouble(&ok);
    return ok;
}

/// Spreadsheets execute texts with such a start, even if they are quoted in a file.
bool looksLikeFormula(const QString& text) {
    if (text.isEmpty() || isNumber(text))
        return false;
    return QStringLiteral("=+-@\t\r\n").contains(text.front()) ||
           QStringLiteral("\uFF1D\uFF0B\uFF0D\uFF20").contains(text.front());
}

QString withoutFormula(const QString& text) {
    return looksLikeFormula(text) ? QLatin1Char('\'') + text : text;
}

QString csvCell(const QString& cell) {
    QString text = withoutFormula(cell);
    const bool needsQuotes = text.contains(QLatin1Char('"')) || text.contains(QLatin1Char(',')) ||
                             text.contains(QLatin1Char(';')) || text.contains(QLatin1Char('\t')) ||
                             text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r'));
    if (!needsQuotes)
        return text;
    text.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString htmlRow(const QStringList& cells, const QString& tag) {
    QString row = QStringLiteral("<tr>");
    for (const QString& cell : cells)
        row += QStringLiteral("<%1>%2</%1>").arg(tag, withoutFormula(cell).toHtmlEscaped());
    return row + QStringLiteral("</tr>\n");
}

} // namespace

TextTable textTable(const QAbstractItemModel& model, const QVector<int>& rows) {
    TextTable table;
    const int columns = model.columnCount();
    for (int column = 0; column < columns; ++column)
        table.header.append(model.headerData(column, Qt::Horizontal).toString());
    for (const int row : rows) {
        QStringList cells;
        for (int column = 0; column < columns; ++column)
            cells.append(model.index(row, column).data().toString());
        table.rows.append(cells);
    }
    return table;
}

QString tabbedText(const TextTable& table) {
    QStringList lines;
    for (const QStringList& row : table.rows) {
        QStringList cells;
        for (const QString& cell : row)
            cells.append(plainCell(withoutFormula(cell)));
        lines.append(cells.join(QLatin1Char('\t')));
    }
    return lines.join(QLatin1Char('\n'));
}

QString htmlTable(const TextTable& table) {
    QString html = QStringLiteral("<table>\n") + htmlRow(table.header, QStringLiteral("th"));
    for (const QStringList& row : table.rows)
        html += htmlRow(row, QStringLiteral("td"));
    return html + QStringLiteral("</table>\n");
}

QMimeData* clipboardData(const TextTable& table) {
    auto data = std::make_unique<QMimeData>();
    data->setText(tabbedText(table));
    data->setHtml(htmlTable(table));
    return data.release();
}

QChar csvSeparator(const QLocale& locale) {
    return QLatin1Char(locale.decimalPoint() == QLatin1Char(',') ? ';' : ',');
}

QByteArray csvLine(const QStringList& cells, QChar separator) {
    QStringList written;
    for (const QString& cell : cells)
        written.append(csvCell(cell));
    return written.join(separator).toUtf8() + "\r\n";
}

QString isoTime(qint64 seconds) {
    const QDateTime local = QDateTime::fromSecsSinceEpoch(seconds);
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODate);
}

QByteArray csvMark() {
    return QByteArray("\xEF\xBB\xBF");
}

} // namespace insight
