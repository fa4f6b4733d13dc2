// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_wizard.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTest>

#include "config/tfa_code_dlg.h"
#include "session/connection.h"
#include "session/text.h"
#include "simulator/world/world.h"

namespace support {

namespace {

/// A field may ask the agent when it loses the focus, even if nothing was typed. How soon after the
/// start of a wizard it has the focus depends on the system.
void leaveUntouchedField() {
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (!field || field->isModified())
        return;
    const QSignalBlocker silently(field);
    field->clearFocus();
}

/// False if the button can't be pressed, or if the wizard stays on the page.
bool press(QWizard& wizard, QWizard::WizardButton which) {
    const int before = wizard.currentId();
    QAbstractButton* button = wizard.button(which);
    if (!button->isVisible() || !button->isEnabled())
        return false;
    leaveUntouchedField();
    QTest::mouseClick(button, Qt::LeftButton);
    // An error on a page ends the wizard a moment later.
    QCoreApplication::processEvents();
    return !wizard.isVisible() || wizard.currentId() != before;
}

bool isLastPage(const QWizard& wizard) {
    return wizard.currentPage()->isFinalPage();
}

void leaveBehind(QWizard& wizard, const AtPage& atPage) {
    if (atPage)
        atPage(*wizard.currentPage());
}

} // namespace

bool finishWizard(QWidget& widget, const AtPage& atPage) {
    auto& wizard = dynamic_cast<QWizard&>(widget);
    while (wizard.isVisible()) {
        leaveBehind(wizard, atPage);
        const auto button = isLastPage(wizard) ? QWizard::FinishButton : QWizard::NextButton;
        if (!press(wizard, button)) {
            wizard.reject();
            return false;
        }
    }
    return wizard.result() == QDialog::Accepted;
}

void cancelWizard(QWidget& widget, int page, const AtPage& atPage) {
    auto& wizard = dynamic_cast<QWizard&>(widget);
    for (int i = 0; i < page; ++i) {
        leaveBehind(wizard, atPage);
        if (!press(wizard, QWizard::NextButton))
            qFatal("The wizard doesn't let the user leave page %d", i);
    }
    if (!press(wizard, QWizard::CancelButton))
        qFatal("The wizard can't be cancelled on page %d", page);
}

void nameNewSet(QWizardPage& page) {
    if (auto* name = page.findChild<QLineEdit*>(QStringLiteral("editSetName")))
        name->setText(QStringLiteral("  New one "));
}

void addWaysToLeave() {
    QTest::addColumn<Leave>("leave");
    QTest::newRow("Escape") << Leave(
        [](QWizard& wizard) { QTest::keyClick(wizard.focusWidget(), Qt::Key_Escape); });
    QTest::newRow("Cancel") << Leave([](QWizard& wizard) {
        QTest::mouseClick(wizard.button(QWizard::CancelButton), Qt::LeftButton);
    });
    QTest::newRow("the title bar's cross") << Leave([](QWizard& wizard) { wizard.close(); });
}

void WizardTest::start(simulator::Scenario scenario,
                       const std::function<void(simulator::World&)>& change) {
    agent = std::make_unique<GuiAgent>(simulator::Options{.scenario = scenario});
    if (change)
        agent->withWorld(change);
    driver = std::make_unique<MainWindowDriver>();
    if (!modals)
        modals = std::make_unique<ModalDriver>();
    driver->logIn(*agent);
}

void WizardTest::end() {
    QVERIFY(modals->done());
    modals.reset();
    QCOMPARE(agent->violations(), std::vector<std::string>{});
    driver.reset();
    QCOMPARE(agent->liveObjects(), std::vector<std::string>{});
    agent.reset();
}

void WizardTest::run(const char* slot) {
    const auto held = agent->liveObjects();
    agent->clearCallLog();
    QVERIFY(QMetaObject::invokeMethod(&driver->window(), slot));
    QVERIFY(modals->done());
    QCOMPARE(driver->window().cursor().shape(), Qt::ArrowCursor);
    if (session::connectedToAgent())
        QCOMPARE(agent->liveObjects(), held);
}

void WizardTest::expectWizard(const AtPage& atPage) {
    modals->expect(QStringLiteral("wizard"), isDialog<QWizard>,
                   [atPage](QWidget& wizard) { QVERIFY(finishWizard(wizard, atPage)); });
}

void WizardTest::expectHalfTyped(const char* field, const QString& text, const Leave& leave,
                                 const AtPage& atPage) {
    modals->expect(QStringLiteral("wizard"), isDialog<QWizard>, [=, this](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        wizard.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &widget);
        leaveBehind(wizard, atPage);
        auto& typed = child<QWidget>(wizard, field);
        typed.setFocus();
        QVERIFY(typed.hasFocus());
        agent->clearCallLog();
        QTest::keyClicks(&typed, text);
        leave(wizard);
        QVERIFY(!wizard.isVisible());
        QCOMPARE(difference(callsOf(*agent), {}), QString());
    });
}

void WizardTest::expectCode(bool given) {
    modals->expect(QStringLiteral("code"), isDialog<TFACodeDlg>, [this, given](QWidget& dialog) {
        QCOMPARE(dialog.parentWidget(), &driver->window());
        child<QLineEdit>(dialog, "editCode").setText(QStringLiteral("314159"));
        QTest::mouseClick(&child<QPushButton>(dialog, given ? "btnValidate" : "btnCancel"),
                          Qt::LeftButton);
    });
}

QStringList WizardTest::setNames() {
    QStringList names;
    agent->withWorld([&](simulator::World& world) {
        for (const auto& set : world.sets())
            names << session::fromWire(set->info.name);
    });
    return names;
}

std::vector<std::string> callsOf(const simulator::Simulator& agent) {
    std::vector<std::string> texts;
    for (const auto& call : agent.callLog())
        if (call.method != "Release")
            texts.push_back(call.text());
    return texts;
}

std::vector<std::string> steadyCallsOf(const simulator::Simulator& agent) {
    std::vector<std::string> calls;
    for (std::string& call : callsOf(agent)) {
        if (call.starts_with("ClientConnection.activity_log("))
            call.erase(call.find('('));
        // The set with that name was requested just before.
        if (call == "BackupSet.getName()")
            calls.pop_back();
        else
            calls.push_back(std::move(call));
    }
    return calls;
}

simulator::RawReply emptyList() {
    return {std::string("r\x01\0Vzz", 6)};
}

int liveObjectsOf(const simulator::Simulator& agent, const std::string& family) {
    const auto held = agent.liveObjects();
    return static_cast<int>(std::count_if(held.begin(), held.end(), [&](const std::string& object) {
        return object.rfind(family + ' ', 0) == 0;
    }));
}

QString difference(const std::vector<std::string>& actual,
                   const std::vector<std::string>& expected) {
    const auto at = [](const std::vector<std::string>& calls, std::size_t i) {
        return i < calls.size() ? session::fromWire(calls[i]) : QStringLiteral("nothing");
    };
    for (std::size_t i = 0; i < std::max(actual.size(), expected.size()); ++i)
        if (at(actual, i) != at(expected, i))
            return QStringLiteral("call %1 is %2, expected %3")
                .arg(QString::number(i), at(actual, i), at(expected, i));
    return {};
}

std::vector<std::string> callsOfRefresh(std::int32_t selectedSet) {
    return {"ClientConnection.getTarnClientInfo()",
            "ClientConnection.getTFAManager()",
            "TFAManager.is2FAEnabled()",
            "ClientConnection.activity_log",
            "ClientConnection.running_activities()",
            "ClientConnection.backup_sets_info()",
            "ClientConnection.backup_set(" + std::to_string(selectedSet) + ")",
            "BackupSet.getLastActivityOfType(0)",
            "BackupSet.getOverview()"};
}

std::vector<std::string> callsForCode() {
    return {"ClientConnection.getTFAManager()", "TFAManager.requestCode(2)",
            "ClientConnection.getTFAManager()", "TFAManager.validateCode(\"314159\", 2)"};
}

} // namespace support
