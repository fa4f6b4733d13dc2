// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>
#include <QStyleFactory>
#include <QTest>

#include "tests/support/gui_palettes.h"
#include "ui/dark_palette.h"
#include "ui/outlined_indicators.h"
#include "ui/readable_colour.h"

namespace {

/// Of what a user must recognise (WCAG 2.1, 1.4.11).
constexpr double contrastOfSymbols = 3;

/// The largest contrast to `behind` in the first columns of a box that is painted there, halfway
/// down: of its left edge.
double contrastOfEdge(const QImage& picture, const QRect& box, const QColor& behind) {
    double largest = 0;
    for (int x = box.left(); x < box.left() + 3; ++x)
        largest = std::max(largest, ui::contrast(picture.pixelColor(x, box.center().y()), behind));
    return largest;
}

} // namespace

/// The frames of check boxes and radio buttons that aren't checked, in dark palettes.
class OutlinedIndicatorsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
        ui::outlineIndicators(*qApp);
    }
    void cleanup() { QApplication::setPalette(QPalette()); }

    void theFrameIsSeen_data() {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("dark") << ui::darkPalette();
        QTest::newRow("high contrast") << support::highContrastPalette();
    }
    void theFrameIsSeen() {
        QFETCH(QPalette, palette);
        QApplication::setPalette(palette);
        QCheckBox box(QStringLiteral("box"));
        QRadioButton radio(QStringLiteral("radio"));
        for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{&box, &radio}) {
            button->resize(button->sizeHint());
            QStyleOptionButton option;
            option.initFrom(button);
            const auto element =
                button == &box ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator;
            const QRect place = button->style()->subElementRect(element, &option, button);
            const QImage picture = button->grab().toImage();
            for (const auto role : {QPalette::Window, QPalette::Base})
                QVERIFY(contrastOfEdge(picture, place, palette.color(role)) >= contrastOfSymbols);
        }
    }

    void theFrameInAListIsSeen_data() { theFrameIsSeen_data(); }
    void theFrameInAListIsSeen() {
        QFETCH(QPalette, palette);
        QApplication::setPalette(palette);
        QListWidget list;
        auto item = std::make_unique<QListWidgetItem>(QStringLiteral("item"));
        item->setCheckState(Qt::Unchecked);
        list.addItem(item.release());
        QStyleOptionViewItem option;
        option.initFrom(&list);
        option.rect = list.visualRect(list.model()->index(0, 0));
        option.features =
            QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        const QRect place =
            list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
        QVERIFY(contrastOfEdge(list.viewport()->grab().toImage(), place,
                               palette.color(QPalette::Base)) >= contrastOfSymbols);
    }

    void aLightPaletteLooksAsBefore() {
        QApplication::setPalette(QPalette(QColor(0xef, 0xf0, 0xf1)));
        QCheckBox box(QStringLiteral("box"));
        const std::unique_ptr<QStyle> plain(QStyleFactory::create(QStringLiteral("fusion")));
        const QImage ours = box.grab().toImage();
        box.setStyle(plain.get());
        QCOMPARE(ours, box.grab().toImage());
    }
};

QTEST_MAIN(OutlinedIndicatorsTest)
#include "outlined_indicators_test.moc"
