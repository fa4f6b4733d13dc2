// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Numbers and times on a system with German formats. On Windows they are the user's own settings.
#include <gtest/gtest.h>

#include <QLocale>

#include "insight/cell_text.h"
#include "insight/table_export.h"
#include "tests/support/time_zone.h"
#include "ui/locale_text.h"

namespace {

constexpr qint64 inTheAfternoon = 1'767'537'000; // 2026-01-04 14:30 UTC

TEST(GermanFormats, AreThoseOfNumbers) {
    EXPECT_EQ(ui::numberText(1'234'567).toStdString(), "1.234.567");
    EXPECT_EQ(QLocale::system().toString(1.5, 'f', 1).toStdString(), "1,5");
}

TEST(GermanFormats, AreThoseOfTimes) {
    const support::TimeZone zone("UTC");
    EXPECT_EQ(ui::timeText(inTheAfternoon, QLocale::ShortFormat).toStdString(), "04.01.26 14:30");
}

/// The lists are searched for what they show.
TEST(GermanFormats, AreFoundInTheCellsOfATable) {
    const support::TimeZone zone("UTC");
    insight::CellText text;
    std::string out;
    text.addTime(inTheAfternoon, QLocale::ShortFormat, out);
    EXPECT_EQ(out, "04.01.26 14:30");
    out.clear();
    text.addNumber(-1'234'567, out);
    EXPECT_EQ(out, "-1.234.567");
}

/// A comma would separate the decimals.
TEST(GermanFormats, SeparateTheColumnsOfAFileBySemicolons) {
    EXPECT_EQ(insight::csvSeparator(QLocale::system()), QLatin1Char(';'));
}

} // namespace
