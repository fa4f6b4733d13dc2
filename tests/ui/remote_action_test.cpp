// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWidget>

#include "tests/support/gui_modal_driver.h"
#include "ui/remote_action.h"

using support::isDialog;
using support::ModalDriver;

class RemoteActionTest : public QObject {
    Q_OBJECT
private slots:
    void showsTheWaitCursorForTheLengthOfTheWork() {
        QWidget window;
        Qt::CursorShape during = Qt::ArrowCursor;
        QVERIFY(ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::wait,
                                 [&] { during = window.cursor().shape(); }));
        QCOMPARE(during, Qt::WaitCursor);
        QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    }

    void leavesTheCursorAloneWhereNotTold() {
        QWidget window;
        window.setCursor(Qt::CrossCursor);
        Qt::CursorShape during = Qt::ArrowCursor;
        QVERIFY(ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::arrow,
                                 [&] { during = window.cursor().shape(); }));
        QCOMPARE(during, Qt::CrossCursor);
        QCOMPARE(window.cursor().shape(), Qt::CrossCursor);
    }

    void showsWhatWentWrongAsItCame() {
        QWidget window;
        window.show();
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Error"), QString::fromUtf8("<i>Größe</i> & more"));
        QVERIFY(!ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::wait, [] {
            throw std::runtime_error("<i>Gr\xC3\xB6\xC3\x9F"
                                     "e</i> & more");
        }));
        QVERIFY(modals.done());
        QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    }

    void aTextOfAnAgentIsNeverTakenForHtml() {
        QWidget window;
        Qt::TextFormat format = Qt::AutoText;
        QWidget* parent = nullptr;
        ModalDriver modals;
        modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& box) {
            format = static_cast<QMessageBox&>(box).textFormat();
            parent = box.parentWidget();
            static_cast<QMessageBox&>(box).button(QMessageBox::Ok)->click();
        });
        ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::arrow,
                         [] { throw std::runtime_error("<img src='x'>"); });
        QVERIFY(modals.done());
        QCOMPARE(format, Qt::PlainText);
        QCOMPARE(parent, &window);
    }

    void anotherKindOfExceptionPassesThroughAndLeavesTheArrow() {
        QWidget window;
        bool caught = false;
        try {
            ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::wait, [] { throw 42; });
        } catch (int) {
            caught = true;
        }
        QVERIFY(caught);
        QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    }

    void theWidgetMayGoFirst() {
        auto* window = new QWidget;
        QVERIFY(ui::remoteAction(*window, QStringLiteral("Error"), ui::Cursor::wait,
                                 [&] { delete window; }));
    }
};

QTEST_MAIN(RemoteActionTest)
#include "remote_action_test.moc"
