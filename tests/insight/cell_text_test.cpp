// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <limits>

#include <QDateTime>

#include "insight/cell_text.h"
#include "insight/log_query.h"
#include "tests/support/time_zone.h"

using insight::CellText;

namespace {

const std::vector<QLocale> locales{QLocale(QStringLiteral("en_US")),
                                   QLocale(QStringLiteral("de_DE")),
                                   QLocale(QStringLiteral("fr_FR")), QLocale::c()};

TEST(CellText, NumbersAreThoseOfTheLocale) {
    for (const QLocale& locale : locales) {
        const CellText text(locale);
        for (const qint64 number :
             {qint64{0}, qint64{7}, qint64{999}, qint64{1'000}, qint64{-12'345}, qint64{1'234'567},
              std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()}) {
            std::string out;
            text.addNumber(number, out);
            EXPECT_EQ(out, insight::folded(locale.toString(number))) << locale.name().toStdString();
        }
    }
}

TEST(CellText, TimesAreThoseOfTheLocale) {
    const support::TimeZone zone("EST5EDT,M3.2.0,M11.1.0");
    for (const QLocale& locale : locales)
        for (const auto format : {QLocale::ShortFormat, QLocale::LongFormat}) {
            CellText text(locale);
            // Across both clock changes, before 1970, and at odd seconds.
            for (const qint64 begin : {1'772'947'000LL, 1'793'506'000LL, -90'000LL, 0LL})
                for (qint64 time = begin; time < begin + 20'000; time += 1'234) {
                    std::string out;
                    text.addTime(time, format, out);
                    if (format == QLocale::LongFormat)
                        continue; // includes the zone name, which isn't searched
                    EXPECT_EQ(out, insight::folded(locale.toString(
                                       QDateTime::fromSecsSinceEpoch(time), format)))
                        << locale.name().toStdString() << " at " << time;
                }
        }
}

TEST(CellText, FoldingKeepsWhatIsNoLetter) {
    std::string out = "x";
    insight::addFolded("ABC[yz] 1{", out);
    EXPECT_EQ(out, "xabc[yz] 1{");
    out.clear();
    insight::addFolded("ÄÖ", out);
    EXPECT_EQ(out, "äö");
}

} // namespace
