// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// What the user sees of a lost session, and the ways back.
#include <algorithm>
#include <memory>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QWizard>

#include "app/connection_field.h"
#include "app/login_check.h"
#include "app/session_ended_line.h"
#include "insight/find_file_window.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_translation.h"
#include "ui/screen_fit.h"
#include "wizards/select_generation_dlg.h"

using support::child;
using support::GuiAgent;
using support::isDialog;
using support::MainWindowDriver;
using support::ModalDriver;

namespace {

const QString faultText = QStringLiteral("Out of order.");

QString q(const char* text) {
    return QString::fromUtf8(text);
}

} // namespace

class LostSessionTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        agent_ = std::make_unique<GuiAgent>();
        driver_ = std::make_unique<MainWindowDriver>();
    }
    void cleanup() {
        driver_.reset();
        agent_.reset();
    }

    void theFieldSaysWhomTheWindowIsConnectedTo();
    void theFirstErrorStaysInTheField();
    void aLongErrorIsCutInTheField();
    void theUsersOwnDisconnectIsNoLoss();
    void aFailedConfigurationIsACauseToo();
    void theNextLoginClearsTheCause();
    void theFieldOpensConnect_data();
    void theFieldOpensConnect();
    void aConnectedFieldOpensNothing();
    void theEmptyListSaysWhyAndConnects();
    void aListThatWasAlwaysEmptySaysNothing();
    void anOpenDialogSaysSoAtItsTop_data();
    void anOpenDialogSaysSoAtItsTop();
    void theGenerationsOfAFoundFileSaySo();
    void allOfItSpeaksGerman();

private:
    app::ConnectionField& field() {
        return child<app::ConnectionField>(driver_->window(), "connectionField");
    }
    QWidget& notice() { return child<QWidget>(driver_->window(), "sessionEndedNotice"); }
    void lose() {
        agent_->inject("getTarnClientInfo", simulator::Fault{faultText.toStdString()});
        driver_->beat();
        QVERIFY(!session::connectedToAgent());
    }
    void loseUnder(QDialog& dialog);
    void expectLogin() {
        modals_.expect(q("login"), isDialog<LoginCheck>, [this](QWidget& dialog) {
            ++logins_;
            QTest::mouseClick(&child<QPushButton>(dialog, "buttonQuit"), Qt::LeftButton);
        });
    }

    ModalDriver modals_;
    int logins_ = 0;
    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<MainWindowDriver> driver_;
};

void LostSessionTest::theFieldSaysWhomTheWindowIsConnectedTo() {
    QCOMPARE(field().text(), q("Not connected"));
    support::compareIcon(driver_->window(), "connectionField", ":/icons/disconnect");
    driver_->logIn(*agent_);
    QCOMPARE(field().text(), q("Connected to 127.0.0.1"));
    QVERIFY(field().accessibleName().startsWith(q("Connected to 127.0.0.1 as ")));
    QVERIFY(field().toolTip().contains(field().accessibleName()));
    support::compareIcon(driver_->window(), "connectionField", ":/icons/connect");
    // At the right end.
    const QStatusBar& bar = *driver_->window().statusBar();
    QVERIFY(field().geometry().right() > bar.width() - 40);
}

void LostSessionTest::theFirstErrorStaysInTheField() {
    driver_->logIn(*agent_);
    const QString before = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
    lose();
    const QString after = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
    QCOMPARE(driver_->status(), q("No API connection exists"));
    const QString text = q("Lost at %1: Out of order.");
    QVERIFY2(field().text() == text.arg(before) || field().text() == text.arg(after),
             qPrintable(field().text()));
    QVERIFY(field().accessibleName().startsWith(q("The connection to 127.0.0.1 was lost at ")));
    QVERIFY(field().accessibleName().endsWith(faultText));
    support::compareIcon(driver_->window(), "connectionField", ":/icons/event_warning.png");
    driver_->beat();
    driver_->beat();
    QVERIFY(field().text().endsWith(faultText));
}

void LostSessionTest::aLongErrorIsCutInTheField() {
    driver_->logIn(*agent_);
    const QString longText = q("Out & of\n<b>order</b> ").repeated(40);
    agent_->inject("getTarnClientInfo", simulator::Fault{longText.toStdString()});
    const int width = driver_->window().width();
    driver_->beat();
    QVERIFY(field().width() < 420);
    QCOMPARE(driver_->window().width(), width);
    QVERIFY(!field().text().contains(QLatin1Char('\n')));
    QVERIFY(field().accessibleName().endsWith(longText));
    QVERIFY(!Qt::mightBeRichText(field().toolTip()) || !field().toolTip().contains(q("<b>")));
}

void LostSessionTest::theUsersOwnDisconnectIsNoLoss() {
    driver_->logIn(*agent_);
    driver_->window().OnDisconnect();
    QCOMPARE(field().text(), q("Not connected"));
    QVERIFY(notice().isVisible());
    QCOMPARE(child<QLabel>(notice(), "labelSessionEnded").text(), q("The session has ended."));
}

void LostSessionTest::aFailedConfigurationIsACauseToo() {
    agent_->inject("getUserInfo", simulator::Fault{faultText.toStdString()});
    QString during;
    modals_.expect(q("box"), isDialog<QMessageBox>, [&](QWidget& widget) {
        auto& box = static_cast<QMessageBox&>(widget);
        QCOMPARE(box.windowTitle(), q("Configuration Error"));
        QCOMPARE(box.text(), faultText);
        during = field().text();
        QVERIFY(!notice().isVisible());
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
    driver_->window().doLogin(true);
    QVERIFY(modals_.done());
    // The session lasts until the box is closed.
    QCOMPARE(during, q("Connected to 127.0.0.1"));
    QVERIFY(field().text().endsWith(faultText));
    QCOMPARE(driver_->status(), q("Current connection terminated"));
}

void LostSessionTest::theNextLoginClearsTheCause() {
    driver_->logIn(*agent_);
    lose();
    QVERIFY(notice().isVisible());
    driver_->logIn(*agent_);
    QCOMPARE(field().text(), q("Connected to 127.0.0.1"));
    QVERIFY(!notice().isVisible());
}

void LostSessionTest::theFieldOpensConnect_data() {
    QTest::addColumn<bool>("byKey");
    QTest::newRow("click") << false;
    QTest::newRow("Return") << true;
}

void LostSessionTest::theFieldOpensConnect() {
    QFETCH(bool, byKey);
    driver_->logIn(*agent_);
    lose();
    expectLogin();
    const int before = logins_;
    field().setFocus();
    QCOMPARE(QApplication::focusWidget(), &field());
    if (byKey)
        QTest::keyClick(&field(), Qt::Key_Return);
    else
        QTest::mouseClick(&field(), Qt::LeftButton);
    QVERIFY(modals_.done());
    QCOMPARE(logins_, before + 1);
    QVERIFY2(field().text().endsWith(faultText), "a cancelled login isn't a new session");
}

void LostSessionTest::aConnectedFieldOpensNothing() {
    driver_->logIn(*agent_);
    QTest::mouseClick(&field(), Qt::LeftButton);
    QVERIFY(modals_.done());
    QVERIFY(session::connectedToAgent());
}

void LostSessionTest::theEmptyListSaysWhyAndConnects() {
    driver_->logIn(*agent_);
    QVERIFY(!notice().isVisible());
    lose();
    QCOMPARE(driver_->cards(), QStringList());
    QVERIFY(notice().isVisible());
    QCOMPARE(child<QLabel>(notice(), "labelSessionEnded").text(),
             q("The session has ended: Out of order."));
    const QPoint off = notice().geometry().center() - driver_->sets().rect().center();
    QVERIFY(off.manhattanLength() <= 2);
    expectLogin();
    QTest::mouseClick(&child<QPushButton>(notice(), "buttonConnect"), Qt::LeftButton);
    QVERIFY(modals_.done());
}

void LostSessionTest::aListThatWasAlwaysEmptySaysNothing() {
    agent_->inject("getTarnClientInfo", simulator::Fault{faultText.toStdString()});
    driver_->window().doLogin(true);
    QVERIFY(!session::connectedToAgent());
    QVERIFY(!notice().isVisible());
    QVERIFY(field().text().endsWith(faultText));
}

void LostSessionTest::anOpenDialogSaysSoAtItsTop_data() {
    QTest::addColumn<QString>("slot");
    for (const char* slot : {"on_btnSchedule_clicked", "on_btnRetention_clicked", "ShowEventLog",
                             "on_actionAdmin_triggered", "on_actionLDAP_Account_triggered",
                             "on_action_Recovery_triggered", "on_actionRegister_triggered",
                             "on_actionRegistration_Info_triggered", "OnNewBackupSet",
                             "on_btnItems_clicked", "OnRestore", "OnDelete"})
        QTest::newRow(slot) << q(slot);
}

void LostSessionTest::anOpenDialogSaysSoAtItsTop() {
    QFETCH(QString, slot);
    driver_->logIn(*agent_);
    driver_->sets().selectRow(0);
    bool open = false;
    modals_.expect(slot, isDialog<QDialog>, [&](QWidget& dialog) {
        open = true;
        loseUnder(static_cast<QDialog&>(dialog));
    });
    QVERIFY(QMetaObject::invokeMethod(&driver_->window(), qPrintable(slot)));
    QVERIFY(modals_.done());
    QVERIFY(open);
}

void LostSessionTest::theGenerationsOfAFoundFileSaySo() {
    agent_.reset();
    agent_ = std::make_unique<GuiAgent>(
        simulator::Options{.scenario = simulator::Scenario::Generations});
    driver_->logIn(*agent_);
    driver_->trigger("actionFind_File");
    auto& find = child<FindFileWindow>(driver_->window(), "FindFileWindow");
    child<QLineEdit>(find, "editName").setText(q("diary"));
    child<QPushButton>(find, "buttonFind").click();
    QTRY_VERIFY(!find.isSearching());
    bool open = false;
    modals_.expect(q("generations"), isDialog<SelectGenerationDlg>, [&](QWidget& dialog) {
        open = true;
        QVERIFY(child<QTableView>(dialog, "listGenerations").model()->rowCount() > 1);
        loseUnder(static_cast<QDialog&>(dialog));
    });
    child<QPushButton>(find, "buttonGenerations").click();
    QVERIFY(modals_.done());
    QVERIFY(open);
}

/// Loses the session and checks the dialog's line; closes the dialog.
void LostSessionTest::loseUnder(QDialog& dialog) {
    QCoreApplication::processEvents();
    const int height = dialog.height();
    const auto* wizard = qobject_cast<QWizard*>(&dialog);
    const bool couldGoOn = wizard && wizard->button(QWizard::NextButton)->isEnabled();
    lose();
    auto* line = dialog.findChild<app::SessionEndedLine*>();
    QVERIFY(line);
    QVERIFY(line->isVisible());
    QCOMPARE(child<QLabel>(*line, "labelSessionEnded").text(),
             q("The session has ended: Out of order."));
    QCOMPARE(line->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(line->width(), dialog.width());
    QCoreApplication::processEvents();
    // The wizards for sets may fill the screen of a test.
    const int largest = ui::largestWindow(dialog.screen()->availableGeometry()).height();
    QVERIFY(dialog.height() > height || height >= largest);
    QVERIFY(dialog.height() <= std::max(height, largest));
    // No other widget is under it.
    for (const QWidget* other : dialog.findChildren<QWidget*>())
        if (other->isVisible() && !line->isAncestorOf(other) && other != line &&
            other->children().isEmpty())
            QVERIFY2(
                !QRect(other->mapTo(&dialog, QPoint()), other->size()).intersects(line->geometry()),
                qPrintable(other->objectName()));
    if (wizard)
        QCOMPARE(wizard->button(QWizard::NextButton)->isEnabled(), couldGoOn);
    dialog.reject();
}

void LostSessionTest::allOfItSpeaksGerman() {
    driver_->logIn(*agent_);
    lose();
    const support::Translation german(q("de"));
    QCoreApplication::processEvents();
    QVERIFY2(field().text().startsWith(q("Verloren um ")), qPrintable(field().text()));
    QCOMPARE(child<QLabel>(notice(), "labelSessionEnded").text(),
             q("Die Sitzung ist beendet: Out of order."));
    QCOMPARE(child<QPushButton>(notice(), "buttonConnect").text(), q("Verbinden"));
}

QTEST_MAIN(LostSessionTest)
#include "lost_session_test.moc"
