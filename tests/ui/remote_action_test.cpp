// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>

#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include "resources/pictures.h"
#include "tests/support/gui_modal_driver.h"
#include "transport/call_passage.h"
#include "ui/error_box.h"
#include "ui/message_box.h"
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

    void leavesTheCursorAloneWhereNotAsked() {
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

    void duringACallItDoesNothing() {
        QWidget window;
        ModalDriver modals; // any box fails the test
        bool ran = false;
        {
            const hessiancln::CallPassage call;
            QVERIFY(!ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::wait, [&] {
                ran = true;
                throw std::runtime_error("x");
            }));
        }
        QVERIFY(modals.done());
        QVERIFY(!ran);
    }

    void saysThatThereWasNoReason_data() {
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("blank") << QByteArray(" \n");
    }

    void saysThatThereWasNoReason() {
        QFETCH(QByteArray, reason);
        QWidget window;
        window.show();
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("The agent gave no reason."));
        QVERIFY(!ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::wait,
                                  [&] { throw std::runtime_error(reason.constData()); }));
        QVERIFY(modals.done());
    }

    void theReturnKeySaysNoToWhatNothingBringsBack_data() {
        QTest::addColumn<bool>("yes");
        QTest::newRow("Return") << false;
        QTest::newRow("Yes") << true;
    }

    void theReturnKeySaysNoToWhatNothingBringsBack() {
        QFETCH(bool, yes);
        QWidget window;
        ModalDriver modals;
        modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& widget) {
            auto& box = static_cast<QMessageBox&>(widget);
            QCOMPARE(box.icon(), QMessageBox::Question);
            QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
            if (yes)
                box.button(QMessageBox::Yes)->click();
            else
                QTest::keyClick(&box, Qt::Key_Return);
        });
        QCOMPARE(ui::confirms(&window, QStringLiteral("Really?"), QStringLiteral("All?")), yes);
        QVERIFY(modals.done());
    }

    void theButtonsOfABoxLookLikeThoseOfADialog() {
        resources::initPictures();
        const QSize size(16, 16);
        const auto look = [&](QMessageBox& box, QMessageBox::StandardButton button) {
            return box.button(button)->icon().pixmap(size).toImage();
        };
        const auto picture = [&](const char* name) {
            return QIcon(QLatin1String(name)).pixmap(size).toImage();
        };
        QVERIFY(!picture(":/button/ok").isNull());
        ModalDriver modals;
        modals.expect(QStringLiteral("information"), isDialog<QMessageBox>, [&](QWidget& widget) {
            auto& box = static_cast<QMessageBox&>(widget);
            QCOMPARE(box.icon(), QMessageBox::Information);
            QCOMPARE(box.standardButtons(), QMessageBox::Ok);
            QCOMPARE(look(box, QMessageBox::Ok), picture(":/button/ok"));
            box.close();
        });
        ui::showInformation(nullptr, QStringLiteral("Done"), QStringLiteral("It is done."));
        modals.expect(QStringLiteral("question"), isDialog<QMessageBox>, [&](QWidget& widget) {
            auto& box = static_cast<QMessageBox&>(widget);
            QCOMPARE(look(box, QMessageBox::Yes), picture(":/button/ok"));
            QCOMPARE(look(box, QMessageBox::No), picture(":/button/cancel"));
            box.close();
        });
        QVERIFY(!ui::confirms(nullptr, QStringLiteral("Really?"), QStringLiteral("All?")));
        QVERIFY(modals.done());
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

    void theWaitIsOverWhenTheBoxShows() {
        QWidget window;
        Qt::CursorShape shape = Qt::WaitCursor;
        ModalDriver modals;
        modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& box) {
            shape = window.cursor().shape();
            static_cast<QMessageBox&>(box).button(QMessageBox::Ok)->click();
        });
        ui::remoteAction(window, QStringLiteral("Error"), ui::Cursor::wait,
                         [] { throw std::runtime_error("x"); });
        QVERIFY(modals.done());
        QCOMPARE(shape, Qt::ArrowCursor);
    }

    void aLongTextFitsTheScreen_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("wide letters") << QStringLiteral("WWWWWWWWW ").repeated(190);
        QTest::newRow("one line") << QString(65536, QLatin1Char('W'));
        QTest::newRow("words") << QStringLiteral("word ").repeated(13000);
        QTest::newRow("lines") << QStringLiteral("at line\n").repeated(6000);
    }
    void aLongTextFitsTheScreen() {
        QFETCH(QString, text);
        QWidget window;
        QSize size;
        QString shown;
        ModalDriver modals;
        modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& widget) {
            auto& box = static_cast<QMessageBox&>(widget);
            size = box.size();
            shown = box.text();
            QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        });
        ui::showError(&window, QStringLiteral("Error"), text);
        QVERIFY(modals.done());
        const QSize screen = window.screen()->availableSize();
        QVERIFY(size.width() <= screen.width() && size.height() <= screen.height());
        QCOMPARE(shown, text);
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
