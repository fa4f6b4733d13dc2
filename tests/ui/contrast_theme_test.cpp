// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/contrast_theme.h"

#include <QApplication>
#include <QTest>

#include "tests/support/gui_palettes.h"
#include "ui/readable_colour.h"

namespace {

/// As Qt reads it from a dark contrast theme.
QPalette paletteOfTheme() {
    QPalette palette = support::highContrastPalette();
    palette.setColor(QPalette::AlternateBase, "#e9e7e3");
    palette.setColor(QPalette::Link, Qt::blue);
    palette.setColor(QPalette::LinkVisited, Qt::magenta);
    return palette;
}

} // namespace

class ContrastThemeTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        QApplication::setStyle(QStringLiteral("windows"));
        QApplication::setPalette(paletteOfTheme());
    }
    void cleanup() { QApplication::setPalette(QPalette()); }

    void hasReadableRowsAndLinks() {
        ui::completeContrastTheme(*qApp);
        QPalette palette = paletteOfTheme();
        qApp->style()->polish(palette);
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            for (const auto background :
                 {QPalette::Base, QPalette::AlternateBase, QPalette::Window})
                for (const auto text : {QPalette::Text, QPalette::Link, QPalette::LinkVisited})
                    QVERIFY(ui::contrast(palette.color(group, text),
                                         palette.color(group, background)) >= ui::readableContrast);
        // Readable colours stay.
        QCOMPARE(palette.color(QPalette::LinkVisited), QColor(Qt::magenta));
    }

    void disabledTextsHaveNoShadow() {
        QCOMPARE(qApp->style()->styleHint(QStyle::SH_EtchDisabledText), 1);
        ui::completeContrastTheme(*qApp);
        QCOMPARE(qApp->style()->styleHint(QStyle::SH_EtchDisabledText), 0);
        QCOMPARE(qApp->style()->objectName(), QStringLiteral("windows"));
    }

    void aLightThemeThatFollowsLooksAsBefore() {
        ui::completeContrastTheme(*qApp);
        QApplication::setPalette({Qt::black, Qt::white});
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::AlternateBase, "#e9e7e3");
        const QPalette before = palette;
        qApp->style()->polish(palette);
        QCOMPARE(palette, before);
        QCOMPARE(qApp->style()->styleHint(QStyle::SH_EtchDisabledText), 1);
    }

    void otherThemesAndStylesKeepTheirStyle_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("a light theme")
            << QStringLiteral("windows")
            << QPalette(Qt::black, Qt::white, Qt::white, Qt::gray, Qt::gray, Qt::black, Qt::white);
        QTest::newRow("another style") << QStringLiteral("fusion") << paletteOfTheme();
    }
    void otherThemesAndStylesKeepTheirStyle() {
        QFETCH(QString, style);
        QFETCH(QPalette, palette);
        QApplication::setStyle(style);
        QApplication::setPalette(palette);
        const QStyle* before = qApp->style();
        ui::completeContrastTheme(*qApp);
        QCOMPARE(qApp->style(), before);
    }
};

QTEST_MAIN(ContrastThemeTest)
#include "contrast_theme_test.moc"
