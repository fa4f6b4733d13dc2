// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/gui/silence.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <set>
#include <vector>

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QWizard>

#include "app/call_gate.h"
#include "app/login_check.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_wait.h"
#include "tests/support/gui_wizard.h"
#include "tests/support/scripted_security_operations.h"
#include "tests/support/security_operations_override.h"

using namespace std::chrono_literals;
using support::child;
using support::GuiAgent;
using support::leftAgent;
using support::MainWindowDriver;

namespace gui {

namespace {

const app::CallGate::Times quickTimes{5ms, 10ms};

/// Placeholder for the text of any failure.
const QString cause = QStringLiteral("<cause>");
const QString faultText = QStringLiteral("Out of order.");

/// The text with the cause of the failure, and the numbers, replaced.
QString withoutCause(QString text) {
    // A disconnect by the user, a fault of the agent, and a dropped connection of either transport.
    for (const QString& failure :
         {leftAgent + QStringLiteral("[0-9]+ s\\."),
          QStringLiteral("Disconnected, as the agent had answered slowly for [0-9]+ s\\."),
          QRegularExpression::escape(faultText),
          QStringLiteral("Receive failed \\(header\\): stream truncated \\([0-9]+\\)"),
          QStringLiteral("Failed to receive the HTTP response. Error [0-9]+ "
                         "\\(stream truncated\\)")})
        text.replace(QRegularExpression(failure), cause);
    return text.replace(QRegularExpression(QStringLiteral("[0-9]+")), QStringLiteral("N"));
}

/// The outcome of a flow as seen by the user and by the agent.
struct Outcome {
    QStringList boxes;   ///< titles and texts of the boxes, in order
    QStringList dialogs; ///< classes of the dialogs, in order
    bool connected = false;
    QString title;
    QString status;
    std::vector<std::string> calls;
    int left = 0; ///< how often the user disconnected

    bool operator==(const Outcome& other) const {
        return boxes == other.boxes && dialogs == other.dialogs && connected == other.connected &&
               title == other.title && status == other.status && calls == other.calls;
    }

    QString describe() const {
        QString text = QStringLiteral("boxes %1; dialogs %2; connected %3; title %4; status %5; "
                                      "calls")
                           .arg(boxes.join(QLatin1Char('|')), dialogs.join(QLatin1Char(',')))
                           .arg(connected)
                           .arg(title, status);
        for (const std::string& call : calls)
            text += QLatin1Char(' ') + QString::fromStdString(call);
        return text;
    }
};

/// A text that a fault showed in place of this one; null if it showed the same, or none.
QString differingText(const Outcome& outcome, const Outcome& faulted) {
    for (int i = 0; i < faulted.boxes.size(); ++i)
        if (faulted.boxes[i].contains(cause) && outcome.boxes.value(i) != faulted.boxes[i])
            return faulted.boxes[i];
    // A session that survives a fault makes more calls, which change the status.
    if (faulted.status.contains(cause) && outcome.calls == faulted.calls &&
        outcome.status != faulted.status)
        return faulted.status;
    return {};
}

/// Whether a login follows that call, so that there is another session.
bool logsInAfter(const std::vector<std::string>& calls, std::size_t at) {
    return std::any_of(
        calls.begin() + static_cast<std::ptrdiff_t>(std::min(at + 1, calls.size())), calls.end(),
        [](const std::string& method) { return method == "login" || method == "sspi_login"; });
}

/// The system's side of a logon in two rounds, as often as it is tried.
struct Logon : support::ScriptedSecurityOperations {
    platform::SecurityStatus acquireCredentials(platform::SecurityHandle& handle) override {
        rounds = {{platform::securityContinueNeeded, {'a'}}, {platform::securityOk, {'b'}}};
        return ScriptedSecurityOperations::acquireCredentials(handle);
    }
};

simulator::LogonStep acceptLogon(const std::string& token) {
    return {"x", token == "b", "anna", "OFFICE"};
}

/// Continues wherever possible, and closes dialogs that stay open.
class User : public QObject {
public:
    User(Outcome& outcome, const GuiAgent& agent, QStringList pageButtons, bool leavesSilentAgent)
        : outcome_(outcome)
        , agent_(agent)
        , pageButtons_(std::move(pageButtons))
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
        // At the first look, a wizard whose first call has failed may not have closed yet.
        if (seen_ != dialog) {
            seen_ = dialog;
            return;
        }
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
            outcome_.boxes << box->windowTitle() + QStringLiteral(": ") + withoutCause(box->text());
            auto* yes = box->button(QMessageBox::Yes);
            QTest::mouseClick(yes ? yes : box->buttons().first(), Qt::LeftButton);
            return;
        }
        outcome_.dialogs << QString::fromLatin1(dialog.metaObject()->className());
        if (qobject_cast<QWizard*>(&dialog)) {
            support::finishWizard(dialog, [this](QWizardPage& page) { fillIn(page); });
        } else if (auto* login = qobject_cast<LoginCheck*>(&dialog)) {
            child<QLineEdit>(*login, "lineEditUserName").setText(QStringLiteral("demo"));
            child<QLineEdit>(*login, "lineEditPassword").setText(QStringLiteral("demo"));
            QTest::mouseClick(&child<QPushButton>(*login, "buttonLogin"), Qt::LeftButton);
        } else {
            QCoreApplication::processEvents();
            if (auto* table = dialog.findChild<QTableView*>(QStringLiteral("listGenerations")))
                table->selectRow(0);
            for (const char* field : {"editUserName", "editPassword"})
                if (auto* edit = dialog.findChild<QLineEdit*>(QString::fromLatin1(field)))
                    edit->setText(QStringLiteral("demo"));
            pressAll(dialog);
        }
    }

    /// Also presses the buttons of a page, each once.
    void fillIn(QWizardPage& page) {
        support::nameNewSet(page);
        if (auto* reason = page.findChild<QComboBox*>(QStringLiteral("cmbRestoreReason")))
            reason->setCurrentIndex(1);
        while (!pageButtons_.isEmpty() && page.isVisible()) {
            auto* button = page.findChild<QPushButton*>(pageButtons_.takeFirst());
            if (button && button->isVisible() && button->isEnabled())
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    /// Presses each button that doesn't end the dialog, then the one that saves.
    static void pressAll(QDialog& dialog) {
        const QPointer<QDialog> open = &dialog;
        for (const char* name :
             {"btnResend", "btnRefresh", "btnValidate", "btnOK", "btnOk", "buttonOk", "btnSave",
              "btnRegister", "btnApply", "buttonSelect"}) {
            if (!open || !open->isVisible())
                return;
            auto* button = dialog.findChild<QPushButton*>(QString::fromLatin1(name));
            if (button && button->isVisible() && button->isEnabled())
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    Outcome& outcome_;
    const GuiAgent& agent_;
    QPointer<QDialog> seen_;
    QStringList pageButtons_;
    bool leaves_;
    std::set<QDialog*> busy_;
    support::InTheWait wait_;
};

Outcome run(const Flow& flow, const simulator::Injection* injection, std::size_t at) {
    Outcome outcome;
    Logon logon;
    const support::SecurityOperationsOverride system(flow.integratedLogon ? &logon : nullptr);
    simulator::Options options;
    options.scenario = flow.scenario;
    if (flow.integratedLogon)
        options.integratedLogon = acceptLogon;
    GuiAgent agent(options);
    if (flow.scenario == simulator::Scenario::Unix)
        agent.withWorld([](simulator::World& world) {
            world.network.local()->kind = simulator::LoginKind::Ssh;
        });
    app::CallGate gate(quickTimes);
    MainWindowDriver driver;
    driver.window().keepAliveBy(gate);
    if (flow.loggedIn) {
        driver.logIn(agent);
        driver.sets().selectRow(3);
        child<QTableView>(driver.window(), "tableCurrentActivities").selectRow(0);
    }
    if (flow.prepare)
        flow.prepare(driver);
    agent.clearCallLog();
    if (injection)
        agent.inject("*", *injection, simulator::Times::Once, at);
    {
        const bool silent = injection && std::holds_alternative<simulator::Silence>(*injection);
        const User user(outcome, agent, flow.pageButtons, silent);
        flow.act(driver, gate);
        outcome.connected = session::connectedToAgent();
        outcome.title = driver.window().windowTitle();
        outcome.status = withoutCause(driver.status());
        for (const auto& call : agent.callLog())
            outcome.calls.push_back(call.method);
        // A session with a dead stream ends with the next refresh.
        if (injection && outcome.connected)
            driver.window().refreshAll();
    }
    if (QApplication::activeModalWidget() || !agent.violations().empty())
        outcome.boxes << QStringLiteral("something is left");
    const bool dead = injection && !std::holds_alternative<simulator::Fault>(*injection);
    const auto after = agent.callLog().size() - outcome.calls.size();
    if (dead && after != 0 && !logsInAfter(outcome.calls, at))
        outcome.boxes << QStringLiteral("%1 calls came after the end").arg(after);
    return outcome;
}

void check(const Flow& flow, const Outcome& usual, std::size_t at) {
    const simulator::Injection silence = simulator::Silence{};
    const simulator::Injection cut = simulator::CutBefore{};
    const simulator::Injection fault = simulator::Fault{faultText.toStdString()};
    const Outcome left = run(flow, &silence, at);
    const Outcome failed = run(flow, &cut, at);
    const Outcome faulted = run(flow, &fault, at);
    const QString where =
        QStringLiteral("call %1, %2: ").arg(at).arg(QString::fromStdString(usual.calls[at]));
    QVERIFY2(left.left == 1, qPrintable(where + QString::number(left.left)));
    QVERIFY2(left == failed, qPrintable(where + QStringLiteral("\n  left   ") + left.describe() +
                                        QStringLiteral("\n  failed ") + failed.describe()));
    const QString missing = differingText(left, faulted);
    QVERIFY2(missing.isNull(), qPrintable(where + QStringLiteral("\n  left    ") + left.describe() +
                                          QStringLiteral("\n  faulted ") + faulted.describe()));
}

} // namespace

Flow slot(const char* name) {
    return {[name](MainWindowDriver& driver, app::CallGate&) {
        QVERIFY(QMetaObject::invokeMethod(&driver.window(), name));
    }};
}

void disconnectAtEachCall(const Flow& flow) {
    const Outcome usual = run(flow, nullptr, 0);
    const std::size_t count = usual.calls.size();
    QVERIFY2(count > 0, qPrintable(usual.describe()));
    for (std::size_t at = 0; at < count; ++at) {
        check(flow, usual, at);
        if (QTest::currentTestFailed())
            return;
    }
}

} // namespace gui
