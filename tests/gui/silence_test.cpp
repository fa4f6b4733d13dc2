// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// An agent that falls silent at each call in turn, and a user who then disconnects: the outcome is
// the same as when the agent cuts the connection at that call.
#include <memory>
#include <vector>

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWizard>

#include "app/call_gate.h"
#include "app/login_check.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_wait.h"
#include "tests/support/gui_wizard.h"

using namespace std::chrono_literals;
using support::child;
using support::GuiAgent;
using support::leftAgent;
using support::MainWindowDriver;

namespace {

const app::CallGate::Times quickTimes{5ms, 10ms};

/// The outcome of a flow as seen by the user and by the agent.
struct Outcome {
    QStringList boxes;   ///< titles of the boxes, in order
    QStringList dialogs; ///< classes of the dialogs, in order
    bool connected = false;
    QString title;
    std::vector<std::string> calls;
    int left = 0; ///< how often the user disconnected

    bool operator==(const Outcome& other) const {
        return boxes == other.boxes && dialogs == other.dialogs && connected == other.connected &&
               title == other.title && calls == other.calls;
    }

    QString describe() const {
        QString text = QStringLiteral("boxes %1; dialogs %2; connected %3; title %4; calls")
                           .arg(boxes.join(QLatin1Char(',')), dialogs.join(QLatin1Char(',')))
                           .arg(connected)
                           .arg(title);
        for (const std::string& call : calls)
            text += QLatin1Char(' ') + QString::fromStdString(call);
        return text;
    }
};

/// Continues wherever possible, and closes dialogs that stay open.
class User : public QObject {
public:
    User(Outcome& outcome, const GuiAgent& agent, bool leavesSilentAgent)
        : outcome_(outcome)
        , agent_(agent)
        , leaves_(leavesSilentAgent)
        , wait_([this] { leave(); }) {
        lookSoon();
    }

private:
    void leave() {
        // On a busy machine any call may take long enough to show the panel.
        if (!leaves_ || agent_.waitingInjections() != 0 || !support::waitingPanel())
            return;
        leaves_ = false;
        ++outcome_.left;
        support::clickDisconnect();
    }

    void lookSoon() {
        QTimer::singleShot(1, this, [this] { look(); });
    }

    void look() {
        lookSoon();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || busy_.count(dialog) != 0)
            return;
        busy_.insert(dialog);
        const QPointer<QDialog> met = dialog;
        answer(*dialog);
        busy_.erase(dialog);
        if (met && met->isVisible() && QApplication::activeModalWidget() == met)
            met->done(1);
    }

    void answer(QDialog& dialog) {
        if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
            outcome_.boxes << box->windowTitle();
            auto* yes = box->button(QMessageBox::Yes);
            QTest::mouseClick(yes ? yes : box->buttons().first(), Qt::LeftButton);
            return;
        }
        outcome_.dialogs << QString::fromLatin1(dialog.metaObject()->className());
        if (qobject_cast<QWizard*>(&dialog)) {
            support::finishWizard(dialog, support::nameNewSet);
        } else if (auto* login = qobject_cast<LoginCheck*>(&dialog)) {
            child<QLineEdit>(*login, "lineEditUserName").setText(QStringLiteral("demo"));
            child<QLineEdit>(*login, "lineEditPassword").setText(QStringLiteral("demo"));
            QTest::mouseClick(&child<QPushButton>(*login, "buttonLogin"), Qt::LeftButton);
        } else {
            QCoreApplication::processEvents();
            pressAll(dialog);
        }
    }

    /// Presses each button that doesn't end the dialog, then the one that saves.
    static void pressAll(QDialog& dialog) {
        const QPointer<QDialog> open = &dialog;
        for (const char* name : {"btnResend", "btnRefresh", "btnValidate", "btnOK", "btnOk",
                                 "buttonOk", "btnSave", "btnRegister", "btnApply"}) {
            if (!open || !open->isVisible())
                return;
            auto* button = dialog.findChild<QPushButton*>(QString::fromLatin1(name));
            if (button && button->isVisible() && button->isEnabled())
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    Outcome& outcome_;
    const GuiAgent& agent_;
    bool leaves_;
    std::set<QDialog*> busy_;
    support::InTheWait wait_;
};

} // namespace

class SilenceTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void atEachCall_data();
    void atEachCall();

private:
    Outcome run(const QString& slot, const simulator::Injection* injection, std::size_t at);
};

void SilenceTest::atEachCall_data() {
    QTest::addColumn<QString>("slot");
    for (const char* slot : {"login",
                             "refreshAll",
                             "OnDisconnect",
                             "OnBackupNow",
                             "OnSync",
                             "OnStopActivity",
                             "ShowEventLog",
                             "OnNewBackupSet",
                             "on_btnItems_clicked",
                             "on_btnSchedule_clicked",
                             "on_btnRetention_clicked",
                             "OnRestore",
                             "OnDelete",
                             "on_actionAdmin_triggered",
                             "on_actionRegister_triggered",
                             "on_actionRegistration_Info_triggered",
                             "on_actionLDAP_Account_triggered",
                             "on_actionTFASettings_triggered",
                             "on_action_About_triggered",
                             "on_action_Recovery_triggered"})
        QTest::newRow(slot) << QString::fromLatin1(slot);
}

Outcome SilenceTest::run(const QString& slot, const simulator::Injection* injection,
                         std::size_t at) {
    Outcome outcome;
    GuiAgent agent;
    app::CallGate gate(quickTimes);
    MainWindowDriver driver;
    driver.window().keepAliveBy(gate);
    if (slot != QLatin1String("login")) {
        driver.logIn(agent);
        driver.sets().selectRow(3);
        child<QTableView>(driver.window(), "tableCurrentActivities").selectRow(0);
    }
    agent.clearCallLog();
    if (injection)
        agent.inject("*", *injection, simulator::Times::Once, at);
    {
        const bool silent = injection && std::holds_alternative<simulator::Silence>(*injection);
        const User user(outcome, agent, silent);
        if (slot == QLatin1String("login"))
            driver.window().OnConnect();
        else if (slot == QLatin1String("refreshAll"))
            driver.window().refreshAll();
        else
            QMetaObject::invokeMethod(&driver.window(), qPrintable(slot));
        outcome.connected = session::connectedToAgent();
        outcome.title = driver.window().windowTitle();
        for (const auto& call : agent.callLog())
            outcome.calls.push_back(call.method);
        // A session with a dead stream ends with the next refresh.
        if (injection && outcome.connected)
            driver.window().refreshAll();
    }
    if (QApplication::activeModalWidget() || !agent.violations().empty())
        outcome.boxes << QStringLiteral("something is left");
    if (injection) {
        const auto after = agent.callLog().size() - outcome.calls.size();
        if (after != 0 && slot != QLatin1String("login"))
            outcome.boxes << QStringLiteral("%1 calls came after the end").arg(after);
    }
    return outcome;
}

void SilenceTest::atEachCall() {
    QFETCH(QString, slot);
    const Outcome usual = run(slot, nullptr, 0);
    const std::size_t count = usual.calls.size();
    QVERIFY2(count > 0, qPrintable(usual.describe()));
    for (std::size_t at = 0; at < count; ++at) {
        const simulator::Injection silence = simulator::Silence{};
        const simulator::Injection cut = simulator::CutBefore{};
        const Outcome left = run(slot, &silence, at);
        const Outcome failed = run(slot, &cut, at);
        const QString where =
            QStringLiteral("call %1, %2: ").arg(at).arg(QString::fromStdString(usual.calls[at]));
        QVERIFY2(left.left == 1, qPrintable(where + QString::number(left.left)));
        if (left == failed)
            continue;
        QFAIL(qPrintable(where + QStringLiteral("\n  left   ") + left.describe() +
                         QStringLiteral("\n  failed ") + failed.describe()));
    }
}

QTEST_MAIN(SilenceTest)
#include "silence_test.moc"
