// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>

#include <QMimeData>
#include <QStandardItemModel>

#include "insight/table_export.h"
#include "tests/support/time_zone.h"

namespace {

std::string line(const QStringList& cells) {
    return insight::csvLine(cells, QLatin1Char(',')).toStdString();
}

TEST(Csv, CellsAreSeparatedByCommas) {
    EXPECT_EQ(line({QStringLiteral("a"), QString(), QStringLiteral("1")}), "a,,1\r\n");
    EXPECT_EQ(line({QStringLiteral("Größe")}), "Gr\xC3\xB6\xC3\x9F"
                                               "e\r\n");
}

TEST(Csv, TheLocaleChoosesTheSeparator) {
    EXPECT_EQ(insight::csvSeparator(QLocale(QLocale::English, QLocale::UnitedStates)),
              QLatin1Char(','));
    EXPECT_EQ(insight::csvSeparator(QLocale(QLocale::German, QLocale::Germany)), QLatin1Char(';'));
    EXPECT_EQ(insight::csvSeparator(QLocale(QLocale::German, QLocale::Switzerland)),
              QLatin1Char(','));
    EXPECT_EQ(insight::csvLine({QStringLiteral("a;b"), QStringLiteral("1")}, QLatin1Char(';'))
                  .toStdString(),
              "\"a;b\";1\r\n");
}

TEST(Csv, WhatSeparatesStandsInQuotes) {
    EXPECT_EQ(line({QStringLiteral("a,b")}), "\"a,b\"\r\n");
    EXPECT_EQ(line({QStringLiteral("a;b")}), "\"a;b\"\r\n");
    EXPECT_EQ(line({QStringLiteral("say \"no\"")}), "\"say \"\"no\"\"\"\r\n");
    EXPECT_EQ(line({QStringLiteral("a\nb")}), "\"a\nb\"\r\n");
}

TEST(Csv, FormulasAreText) {
    EXPECT_EQ(line({QStringLiteral("=1+2")}), "'=1+2\r\n");
    EXPECT_EQ(line({QStringLiteral("+x")}), "'+x\r\n");
    EXPECT_EQ(line({QStringLiteral("-x")}), "'-x\r\n");
    EXPECT_EQ(line({QStringLiteral("@SUM(A1)")}), "'@SUM(A1)\r\n");
    EXPECT_EQ(line({QStringLiteral("\t=1")}), "\"'\t=1\"\r\n");
    EXPECT_EQ(line({QStringLiteral("\uFF1D1")}), "'\xEF\xBC\x9D"
                                                 "1\r\n");
    // Numbers keep their sign.
    EXPECT_EQ(line({QStringLiteral("-12"), QStringLiteral("+1.5")}), "-12,+1.5\r\n");
}

TEST(Csv, BeginsWithTheMarkOfUtf8) {
    EXPECT_EQ(insight::csvMark().toStdString(), "\xEF\xBB\xBF");
}

TEST(Csv, TimesAreLocalWithTheirOffset) {
    const support::TimeZone zone("EST5EDT,M3.2.0,M11.1.0");
    EXPECT_EQ(insight::isoTime(1'772'953'199).toStdString(), "2026-03-08T01:59:59-05:00");
    EXPECT_EQ(insight::isoTime(1'772'953'200).toStdString(), "2026-03-08T03:00:00-04:00");
}

std::unique_ptr<QMimeData> copied() {
    QStandardItemModel model(3, 2);
    model.setHorizontalHeaderLabels({QStringLiteral("A & B"), QStringLiteral("C")});
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 2; ++column)
            model.setItem(row, column,
                          new QStandardItem(QStringLiteral("%1%2").arg(row).arg(column)));
    model.item(2, 0)->setText(QStringLiteral("<b>\ttab\nline"));
    return std::unique_ptr<QMimeData>(insight::clipboardData(insight::textTable(model, {0, 2})));
}

TEST(Clipboard, TextHasTabsBetweenItsCells) {
    EXPECT_EQ(copied()->text().toStdString(), "00\t01\n<b> tab line\t21");
}

TEST(Clipboard, FormulasAreText) {
    const insight::TextTable table{
        {QStringLiteral("=H()")},
        {{QStringLiteral("=HYPERLINK(1)"), QStringLiteral("-12"), QStringLiteral("\t@a")}}};
    EXPECT_EQ(insight::tabbedText(table).toStdString(), "'=HYPERLINK(1)\t-12\t' @a");
    EXPECT_EQ(insight::htmlTable(table).toStdString(),
              "<table>\n<tr><th>'=H()</th></tr>\n"
              "<tr><td>'=HYPERLINK(1)</td><td>-12</td><td>'\t@a</td></tr>\n</table>\n");
}

TEST(Clipboard, HtmlIsATableWithAHeader) {
    EXPECT_EQ(copied()->html().toStdString(),
              "<table>\n<tr><th>A &amp; B</th><th>C</th></tr>\n"
              "<tr><td>00</td><td>01</td></tr>\n"
              "<tr><td>&lt;b&gt;\ttab\nline</td><td>21</td></tr>\n</table>\n");
}

} // namespace
