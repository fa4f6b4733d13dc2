// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/status_bar.h"

#include <memory>

#include <QLabel>
#include <QTest>

#include "tests/support/gui_tool_tip.h"

namespace {

const QString message =
    QStringLiteral("Logged in to 'backup.example.org' as 'anna' <b>not bold</b>");

/// A bar, 1000 pixels wide, with a permanent field of that width.
template <class Bar>
std::unique_ptr<Bar> barWithField(int width) {
    auto bar = std::make_unique<Bar>();
    auto* field = new QLabel(QStringLiteral("field"));
    field->setFixedWidth(width);
    bar->addPermanentWidget(field);
    bar->resize(1000, 30);
    bar->show();
    if (!QTest::qWaitForWindowExposed(bar.get()))
        qFatal("The bar isn't shown");
    return bar;
}

} // namespace

class StatusBarTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { QToolTip::hideText(); }

    void aMessageThatFitsIsThatOfAnyBar() {
        const auto bar = barWithField<ui::StatusBar>(50);
        const auto any = barWithField<QStatusBar>(50);
        bar->showMessage(message);
        any->showMessage(message);
        QVERIFY(!bar->isCut());
        QCOMPARE(bar->grab().toImage(), any->grab().toImage());
        QCOMPARE(support::tipOf(*bar, {10, 10}), QString());
    }

    void aMessageThatDoesNotFitEndsInAnEllipsisAndHasAToolTip() {
        const auto bar = barWithField<ui::StatusBar>(850);
        bar->showMessage(message);
        QVERIFY(bar->isCut());
        QCOMPARE(bar->currentMessage(), message);
        QCOMPARE(support::tipOf(*bar, {10, 10}), message);
        QCOMPARE(support::tipOf(*bar, {990, 10}), QString());
        // The same as a shorter message that ends in an ellipsis.
        const auto any = barWithField<QStatusBar>(850);
        QString shown = message;
        do {
            shown.chop(1);
            any->showMessage(shown + QChar(0x2026));
        } while (shown.size() > 1 && any->grab().toImage() != bar->grab().toImage());
        QVERIFY2(shown.size() > 5, qPrintable(shown));
    }

    void fromRightToLeftTheFieldIsOnTheOtherSide() {
        const auto bar = barWithField<ui::StatusBar>(850);
        bar->setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        bar->showMessage(message);
        QVERIFY(bar->isCut());
        QCOMPARE(support::tipOf(*bar, {990, 10}), message);
        QCOMPARE(support::tipOf(*bar, {10, 10}), QString());
    }
};

QTEST_MAIN(StatusBarTest)
#include "status_bar_test.moc"
