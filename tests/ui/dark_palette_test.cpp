// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/dark_palette.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QToolTip>

#include "ui/readable_colour.h"

namespace {

/// Of the text of disabled controls: no standard asks for any.
constexpr double disabledContrast = 3;

QPalette bluePalette() {
    return {Qt::blue, Qt::white};
}

} // namespace

class DarkPaletteTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup() {
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(QPalette());
        QToolTip::setPalette(QPalette());
    }

    void itsTextsAreReadable_data() {
        QTest::addColumn<QPalette::ColorRole>("text");
        QTest::addColumn<QPalette::ColorRole>("background");
        QTest::newRow("window") << QPalette::WindowText << QPalette::Window;
        QTest::newRow("bright text") << QPalette::BrightText << QPalette::Window;
        QTest::newRow("button") << QPalette::ButtonText << QPalette::Button;
        QTest::newRow("selection") << QPalette::HighlightedText << QPalette::Highlight;
        QTest::newRow("tool tip") << QPalette::ToolTipText << QPalette::ToolTipBase;
        QTest::newRow("field") << QPalette::Text << QPalette::Base;
        QTest::newRow("placeholder") << QPalette::PlaceholderText << QPalette::Base;
        QTest::newRow("every other row") << QPalette::Text << QPalette::AlternateBase;
        for (const auto background :
             {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase}) {
            QTest::addRow("link on %d", background) << QPalette::Link << background;
            QTest::addRow("visited link on %d", background) << QPalette::LinkVisited << background;
        }
    }
    void itsTextsAreReadable() {
        QFETCH(QPalette::ColorRole, text);
        QFETCH(QPalette::ColorRole, background);
        const QPalette palette = ui::darkPalette();
        QVERIFY(ui::isDark(palette));
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            QVERIFY(ui::contrast(palette.color(group, text), palette.color(group, background)) >=
                    ui::readableContrast);
        // A disabled text is seen, and differs from an enabled one.
        const QColor behind = palette.color(QPalette::Disabled, background);
        const double disabled = ui::contrast(palette.color(QPalette::Disabled, text), behind);
        QVERIFY(disabled >= disabledContrast);
        QVERIFY(text == QPalette::PlaceholderText ||
                disabled < ui::contrast(palette.color(QPalette::Active, text), behind));
    }

    void itsLinksDifferFromItsTexts() {
        const QPalette palette = ui::darkPalette();
        QVERIFY(palette.color(QPalette::Link) != palette.color(QPalette::WindowText));
        QVERIFY(palette.color(QPalette::Link) != palette.color(QPalette::LinkVisited));
    }

    void everyWindowMenuAndToolTipHasIt() {
        QApplication::setStyle(QStringLiteral("fusion"));
        // As the system's theme sets them for some classes.
        QApplication::setPalette(bluePalette(), "QMenu");
        QToolTip::setPalette(bluePalette());
        ui::useDarkPalette(*qApp);
        const QPalette expected = ui::darkPalette();
        const QMenu menu;
        for (const QPalette& palette :
             {QApplication::palette(), QWidget().palette(), menu.palette(), QToolTip::palette()})
            for (int group = 0; group < QPalette::NColorGroups; ++group)
                for (int role = 0; role < QPalette::NColorRoles; ++role) {
                    const auto inGroup = static_cast<QPalette::ColorGroup>(group);
                    const auto ofRole = static_cast<QPalette::ColorRole>(role);
                    if (ofRole != QPalette::NoRole)
                        QCOMPARE(palette.color(inGroup, ofRole), expected.color(inGroup, ofRole));
                }
    }

    void itStaysWhenTheStyleIsReplaced() {
        QApplication::setStyle(QStringLiteral("fusion"));
        ui::useDarkPalette(*qApp);
        QApplication::setStyle(QStringLiteral("fusion"));
        QCOMPARE(QApplication::palette().color(QPalette::Window),
                 ui::darkPalette().color(QPalette::Window));
    }

    void anotherStyleKeepsItsColours() {
        QApplication::setStyle(QStringLiteral("windows"));
        const QPalette before = QApplication::palette();
        const QPalette ofToolTips = QToolTip::palette();
        ui::useDarkPalette(*qApp);
        QCOMPARE(QApplication::palette(), before);
        QCOMPARE(QToolTip::palette(), ofToolTips);
    }
};

QTEST_MAIN(DarkPaletteTest)
#include "dark_palette_test.moc"
