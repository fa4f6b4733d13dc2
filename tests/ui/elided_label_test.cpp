// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/elided_label.h"

#include <QPixmap>
#include <QTest>

#include "tests/support/gui_tool_tip.h"

namespace {

const QString wholeText = QStringLiteral("Everything that the accounts need");

/// Sizes a label to the given fraction of the width that its text needs.
void place(QLabel& label, const QString& text, double part) {
    label.setText(text);
    label.resize(qRound(label.sizeHint().width() * part), label.sizeHint().height());
}

} // namespace

class ElidedLabelTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { QToolTip::hideText(); }

    void aTextThatFitsIsThatOfAnyLabel() {
        ui::ElidedLabel label;
        QLabel any;
        place(label, wholeText, 1);
        place(any, wholeText, 1);
        QVERIFY(!label.isCut());
        QCOMPARE(label.grab().toImage(), any.grab().toImage());
    }

    void aTextThatDoesNotFitEndsInAnEllipsis() {
        ui::ElidedLabel label;
        place(label, wholeText, 0.5);
        QVERIFY(label.isCut());
        QLabel shorter;
        shorter.setText(label.fontMetrics().elidedText(wholeText, Qt::ElideRight, label.width()));
        QVERIFY(shorter.text().endsWith(QChar(0x2026)));
        shorter.resize(label.size());
        QCOMPARE(label.grab().toImage(), shorter.grab().toImage());
        QCOMPARE(label.text(), wholeText);
    }

    void itKeepsTheColourOfAStyleSheet() {
        QWidget card;
        card.setStyleSheet(QStringLiteral("QLabel#name { color: red; }"));
        auto& label = *new ui::ElidedLabel(&card);
        label.setObjectName(QStringLiteral("name"));
        place(label, wholeText, 0.5);
        label.ensurePolished();
        const QImage image = label.grab().toImage();
        bool red = false;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y) {
                const QColor pixel = image.pixelColor(x, y);
                red = red || (pixel.red() > 200 && pixel.green() < 80 && pixel.blue() < 80);
            }
        QVERIFY(red);
    }

    void itIsNotWidenedByItsText() {
        ui::ElidedLabel label;
        label.setText(wholeText.repeated(1000));
        QVERIFY(label.minimumSizeHint().width() < 50);
        QCOMPARE(label.minimumSizeHint().height(), QLabel(wholeText).minimumSizeHint().height());
    }

    void onlyACutTextIsItsOwnToolTip() {
        ui::ElidedLabel label;
        place(label, wholeText, 0.5);
        label.show();
        QCOMPARE(support::tipOf(label, {3, 3}), wholeText);
        place(label, wholeText, 1);
        QCOMPARE(support::tipOf(label, {3, 3}), QString());
    }

    void markupIsText() {
        ui::ElidedLabel label;
        QCOMPARE(label.textFormat(), Qt::PlainText);
        const QString text = QStringLiteral("<b>Everything that the accounts need</b>");
        place(label, text, 0.5);
        label.show();
        QCOMPARE(support::tipOf(label, {3, 3}), text);
    }

    void aToolTipOfItsOwnComesFirst() {
        ui::ElidedLabel label;
        place(label, wholeText, 0.5);
        label.setToolTip(QStringLiteral("Own"));
        label.show();
        QCOMPARE(support::tipOf(label, {3, 3}), QStringLiteral("Own"));
    }
};

QTEST_MAIN(ElidedLabelTest)
#include "elided_label_test.moc"
