// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The line that a lost session puts into an open dialog, where the screen has little room for it.
#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

#include "app/session_ended_line.h"
#include "resources/pictures.h"
#include "ui/screen_fit.h"

namespace {

QSize room(const QDialog& dialog) {
    return ui::largestWindow(dialog.screen()->availableGeometry());
}

/// A dialog with one field of this height.
struct Dialog : QDialog {
    explicit Dialog(int least, int wanted) {
        auto* layout = new QVBoxLayout(this);
        auto* content = new QWidget(this);
        content->setMinimumHeight(least);
        layout->addWidget(content);
        resize(300, wanted);
        show();
    }

    app::SessionEndedLine& loseSession() {
        app::SessionEndedLine::showInOpenDialogs(QStringLiteral("The session has ended."));
        QCoreApplication::processEvents();
        return *findChild<app::SessionEndedLine*>();
    }
};

} // namespace

class SessionEndedLineTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void aDialogGrowsAndShrinksByIt() {
        Dialog dialog(100, 200);
        const app::SessionEndedLine& line = dialog.loseSession();
        QCOMPARE(dialog.height(), 200 + line.height());
        QVERIFY(dialog.layout()->geometry().top() >= line.geometry().bottom());
        app::SessionEndedLine::removeFromOpenWindows();
        QCOMPARE(dialog.height(), 200);
        QCOMPARE(dialog.contentsMargins().top(), 0);
    }

    void aDialogOfAFixedHeightGrowsToo() {
        Dialog dialog(100, 200);
        dialog.setFixedHeight(200);
        const int height = dialog.loseSession().height();
        QCOMPARE(dialog.height(), 200 + height);
        QCOMPARE(dialog.maximumHeight(), 200 + height);
        app::SessionEndedLine::removeFromOpenWindows();
        QCOMPARE(dialog.maximumHeight(), 200);
    }

    void aDialogAsLargeAsTheScreenGivesUpContent() {
        Dialog dialog(100, 200);
        dialog.resize(300, room(dialog).height());
        const app::SessionEndedLine& line = dialog.loseSession();
        QCOMPARE(dialog.height(), room(dialog).height());
        QVERIFY(dialog.layout()->geometry().top() >= line.geometry().bottom());
        app::SessionEndedLine::removeFromOpenWindows();
        QCOMPARE(dialog.height(), room(dialog).height());
    }

    void aDialogWithoutContentToGiveUpIsCovered() {
        Dialog dialog(100, 200);
        const int frame = dialog.layout()->totalMinimumSize().height() - 100;
        dialog.findChild<QWidget*>()->setMinimumHeight(room(dialog).height() - frame - 5);
        dialog.resize(300, room(dialog).height());
        const app::SessionEndedLine& line = dialog.loseSession();
        QVERIFY(line.height() > 5);
        QCOMPARE(line.geometry().topLeft(), QPoint());
        QCOMPARE(dialog.height(), room(dialog).height());
        QVERIFY(dialog.minimumHeight() <= room(dialog).height());
    }

    void aDialogAtTheBottomMovesUp() {
        Dialog dialog(100, 200);
        const QRect screen = dialog.screen()->availableGeometry();
        dialog.move(0, screen.bottom() - 205);
        QCoreApplication::processEvents();
        dialog.loseSession();
        QVERIFY(dialog.frameGeometry().bottom() <= screen.bottom());
        QVERIFY(dialog.frameGeometry().top() >= screen.top());
    }
};

QTEST_MAIN(SessionEndedLineTest)
#include "session_ended_line_test.moc"
