// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWizard>
#include <QtTest>

#include "ui/screen_fit.h"

namespace {

/// A page with a content of this minimum size.
QWizardPage* newPage(int width, int height) {
    auto* page = new QWizardPage;
    page->setTitle(QStringLiteral("Page"));
    page->setSubTitle(QStringLiteral("What the page is about"));
    auto* layout = new QVBoxLayout(page);
    auto* content = new QLabel(QStringLiteral("content"));
    content->setMinimumSize(width, height);
    layout->addWidget(content);
    return page;
}

QRect placeOf(QWizard& wizard, QWizard::WizardButton which) {
    const QWidget& button = *wizard.button(which);
    return {button.mapTo(&wizard, {0, 0}), button.size()};
}

} // namespace

class ScreenFitTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { ui::keepWindowsOnScreen(*qApp); }

    void aWindowLeavesRoomForItsFrame() {
        const QSize room = ui::largestWindow({0, 0, 910, 480});
        QVERIFY(room.width() < 910 && room.width() > 880);
        QVERIFY(room.height() < 450 && room.height() > 420);
    }

    void aDialogOpensNoLargerThanTheScreen() {
        QDialog dialog;
        dialog.resize(5000, 5000);
        dialog.show();
        const QRect screen = dialog.screen()->availableGeometry();
        QCOMPARE(dialog.size(), ui::largestWindow(screen));
    }

    void aWindowOpensWithinTheScreen() {
        QWidget window;
        window.setGeometry(100, 100, 5000, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QRect room = window.screen()->availableGeometry();
        QCOMPARE(window.size(), QSize(ui::largestWindow(room).width(), 300));
        QVERIFY(room.contains(window.frameGeometry()));
    }

    void aWindowPlacedBesideTheScreenAfterItsFirstPaintReturns() {
        QWidget window;
        window.setGeometry(100, 100, 300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.move(100, -50);
        QTRY_VERIFY(window.screen()->availableGeometry().contains(window.frameGeometry()));
        QCOMPARE(window.size(), QSize(300, 300));
    }

    void aWindowThatFitsStaysInItsPlace() {
        QWidget window;
        window.setGeometry(100, 100, 300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.geometry(), QRect(100, 100, 300, 300));
    }

    void aWindowThatComesBackKeepsItsSize() {
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QSize chosen = window.screen()->availableSize();
        window.resize(chosen);
        window.hide();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.size(), chosen);
    }

    void aWindowWhoseScreenIsGoneComesBackOnAnother() {
        QWidget window;
        window.setGeometry(100, 100, 300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.hide();
        window.move(9000, 9000);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(window.screen()->availableGeometry().contains(window.frameGeometry()));
        QCOMPARE(window.size(), QSize(300, 300));
    }

    void aWindowThatComesBackPartlyOffTheScreenStaysThere() {
        QWidget window;
        window.setGeometry(100, 100, 300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // Only at its first opening it is moved for a while.
        QTRY_VERIFY(window.children().isEmpty());
        window.hide();
        window.move(-100, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.x(), -100);
    }

    void aWindowGrowsNoFurtherThanItsScreen() {
        QDialog window;
        window.setGeometry(10, 300, 300, 400);
        window.show();
        const QRect room = window.screen()->availableGeometry();
        QCOMPARE(ui::growOnScreen(window, 30), 30);
        QCOMPARE(window.height(), 430);
        QCOMPARE(ui::growOnScreen(window, 5000), ui::largestWindow(room).height() - 430);
        QCOMPARE(window.height(), ui::largestWindow(room).height());
        QVERIFY(room.contains(window.frameGeometry()));
    }

    void aDialogThatFitsKeepsItsSize() {
        QDialog dialog;
        dialog.resize(300, 200);
        dialog.show();
        QCOMPARE(dialog.size(), QSize(300, 200));
    }

    void contentScrollsAndTheButtonsStay() {
        QDialog dialog;
        auto* layout = new QVBoxLayout(&dialog);
        auto* content = new QLabel(QStringLiteral("content"));
        content->setMinimumSize(700, 2000);
        layout->addWidget(content);
        auto* buttons = new QHBoxLayout;
        auto* button = new QPushButton(QStringLiteral("Close"));
        buttons->addWidget(button);
        layout->addLayout(buttons);
        const QSize wanted = dialog.sizeHint();
        ui::letContentScroll(dialog, buttons);
        // The size hint is unchanged except for the style's margins; the minimum is smaller.
        QVERIFY((dialog.sizeHint() - wanted).width() < 10);
        QVERIFY(qAbs((dialog.sizeHint() - wanted).height()) < 10);
        QVERIFY(dialog.minimumSizeHint().height() < 400);
        dialog.show();
        QVERIFY(dialog.rect().contains({button->mapTo(&dialog, {0, 0}), button->size()}));
        QVERIFY(content->height() >= 2000);
    }

    void aWizardHasOneSizeAndItsButtonsStay() {
        QWizard wizard;
        wizard.setWizardStyle(QWizard::ModernStyle);
        wizard.setPixmap(QWizard::WatermarkPixmap, QPixmap(164, 314));
        wizard.addPage(newPage(300, 100));
        wizard.addPage(newPage(600, 400));
        wizard.addPage(newPage(300, 50));
        ui::giveOneSize(wizard);
        wizard.show();
        const QSize size = wizard.size();
        QVERIFY2(size.width() >= 600 && size.height() >= 400, "not all pages have room");
        const QRect next = placeOf(wizard, QWizard::NextButton);
        wizard.next();
        QCoreApplication::processEvents();
        QCOMPARE(wizard.size(), size);
        QCOMPARE(placeOf(wizard, QWizard::NextButton), next);
        wizard.next();
        QCoreApplication::processEvents();
        QCOMPARE(wizard.size(), size);
        QCOMPARE(placeOf(wizard, QWizard::CancelButton).bottom(), next.bottom());
    }

    void contentScrollsToAMnemonic() {
        QDialog dialog;
        auto* layout = new QVBoxLayout(&dialog);
        auto* first = new QLineEdit;
        auto* space = new QWidget;
        space->setFixedHeight(2000);
        auto* label = new QLabel(QStringLiteral("&Industry"));
        auto* last = new QLineEdit;
        label->setBuddy(last);
        for (QWidget* widget : std::initializer_list<QWidget*>{first, space, label, last})
            layout->addWidget(widget);
        ui::letContentScroll(dialog);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(last->visibleRegion().isEmpty());
        QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
        QVERIFY(last->hasFocus());
        QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
    }

    void aWizardFitsAScreenThatIsLowerThanItsPicture() {
        QWizard wizard;
        wizard.setPixmap(QWizard::WatermarkPixmap, QPixmap(164, 2000));
        wizard.addPage(newPage(300, 100));
        ui::giveOneSize(wizard);
        wizard.show();
        QVERIFY(wizard.height() <=
                ui::largestWindow(wizard.screen()->availableGeometry()).height());
    }

    void aPageThatScrollsDownDoesNotScrollSideways() {
        QWizard wizard;
        wizard.addPage(newPage(300, 2000));
        ui::giveOneSize(wizard);
        wizard.show();
        QVERIFY(QTest::qWaitForWindowExposed(&wizard));
        const auto* area = wizard.currentPage()->findChild<QScrollArea*>();
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
    }

    void aWizardFitsASmallScreen() {
        QWizard wizard;
        wizard.setPixmap(QWizard::WatermarkPixmap, QPixmap(164, 314));
        wizard.addPage(newPage(300, 100));
        wizard.addPage(newPage(600, 2000));
        ui::giveOneSize(wizard);
        wizard.show();
        QVERIFY(wizard.height() <=
                ui::largestWindow(wizard.screen()->availableGeometry()).height());
        wizard.next();
        QVERIFY2(wizard.minimumHeight() < 420, qPrintable(QString::number(wizard.minimumHeight())));
        wizard.resize(700, 430);
        QCoreApplication::processEvents();
        QCOMPARE(wizard.height(), 430);
        QVERIFY(wizard.rect().contains(placeOf(wizard, QWizard::FinishButton)));
    }
};

QTEST_MAIN(ScreenFitTest)
#include "screen_fit_test.moc"
