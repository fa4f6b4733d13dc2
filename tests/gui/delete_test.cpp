// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <functional>

#include <QAbstractButton>
#include <QDateTimeEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "config/tfa_code_dlg.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/gui/delete_wizard_steps.h"

using simulator::Fault;
using simulator::Scenario;
using simulator::World;
using support::difference;
using support::isDialog;
using Calls = std::vector<std::string>;
using Leave = std::function<void(QWidget&)>; ///< how the user closes a box

Q_DECLARE_METATYPE(Leave)

namespace {

constexpr int emptySet = 6; // row of a set without files
constexpr std::int32_t emptyId = 8;

QString q(const char* text) {
    return QString::fromUtf8(text);
}

Calls operator+(Calls calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

const Calls askedFirst{"ClientConnection.backup_set(8)", "BackupSet.getCurrentStatus()"};
const Calls scheduleGone{"BackupSet.getSchedule()", "BackupSet.setSchedule(null)",
                         "ClientConnection.getScheduleManager()",
                         "ScheduleManager.removeSchedule(Schedule(schedule_for_set_8))"};
const Calls ruleGone{"BackupSet.getRetentionRule()", "BackupSet.setRetentionRule(null)",
                     "ClientConnection.getRetentionRuleManager()",
                     "RetentionRuleManager.removeRule(RetentionRule(retention_for_set_8))"};
const Calls setGone{"ClientConnection.removeBackupSet(BackupSet(8))"};
const Calls refreshed = support::callsOfRefresh(8);

/// Gives the empty set its own schedule and retention rule.
void giveOwnPlans(World& world) {
    simulator::ScheduleState schedule;
    schedule.name = "schedule_for_set_8";
    simulator::RetentionRuleState rule;
    rule.name = "retention_for_set_8";
    auto& info = world.set(emptyId)->info;
    info.schedule_id = world.schedules.add(schedule)->id;
    info.retention_rule_id = world.retentionRules.add(rule)->id;
}

void takePlans(World& world) {
    auto& info = world.set(emptyId)->info;
    info.schedule_id = simulator::noSchedule;
    info.retention_rule_id = simulator::noRule;
}

} // namespace

/// Deletion from a set and of a whole set, clicked through against an agent.
class DeleteTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { test_.end(); }

    void aSetWithoutFilesIsRemoved_data();
    void aSetWithoutFilesIsRemoved();
    void theDeleteKeyRemovesToo();
    void theRemovalIsShownAtOnce();
    void answeringNoRemovesNothing();
    void cancellingTheCodeRemovesNothing();
    void aSetOfThePolicyIsLeftAlone();
    void anOwnSetIsRemovedUnderCentralManagement();
    void aSharedScheduleStaysAndSoDoesTheRest();
    void aFaultOfTheRemoval_data();
    void aFaultOfTheRemoval();
    void leavingAQuestionDeletesNothing_data();
    void leavingAQuestionDeletesNothing();
    void aFieldThatIsHalfTypedGoesWithTheWizard_data();
    void aFieldThatIsHalfTypedGoesWithTheWizard();
    void aFilterThatCantBeSwitchedOnStaysDisabled();
    void eachValueOfTheFilterAsksAgain();
    void aSetThatGoesUnderTheWizard();

private:
    void start(const std::function<void(World&)>& change, Scenario scenario = Scenario::Default) {
        test_.start(scenario, change);
        test_.driver->sets().selectRow(emptySet);
    }
    /// A question with the buttons Yes and No, with No as the default.
    void expectQuestion(const char* title, const char* text, QMessageBox::StandardButton answer);
    void expectRemovalQuestion(QMessageBox::StandardButton answer);
    /// The calls without the span of the log, which depends on the clock, and without the names for
    /// balloons, which only a background window requests.
    Calls calls() const;

    support::WizardTest test_;
};

void DeleteTest::expectQuestion(const char* title, const char* text,
                                QMessageBox::StandardButton answer) {
    test_.modals->expect(q(title), isDialog<QMessageBox>, [=, this](QWidget& widget) {
        auto& box = static_cast<QMessageBox&>(widget);
        QCOMPARE(box.windowTitle(), q(title));
        QCOMPARE(box.text(), q(text));
        QCOMPARE(box.icon(), QMessageBox::Question);
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.defaultButton(), static_cast<QPushButton*>(box.button(QMessageBox::No)));
        QCOMPARE(box.parentWidget(), &test_.driver->window());
        QTest::mouseClick(box.button(answer), Qt::LeftButton);
    });
}

void DeleteTest::expectRemovalQuestion(QMessageBox::StandardButton answer) {
    expectQuestion("Delete Backup Set?",
                   "The selected backup set has no files. Would you like to remove the backup set?",
                   answer);
}

Calls DeleteTest::calls() const {
    return support::steadyCallsOf(*test_.agent);
}

void DeleteTest::aSetWithoutFilesIsRemoved_data() {
    QTest::addColumn<bool>("plans");
    QTest::addColumn<bool>("twoFactor");
    QTest::newRow("with schedule and rule") << true << false;
    QTest::newRow("with schedule, rule and code") << true << true;
    QTest::newRow("bare") << false << false;
    QTest::newRow("bare, with code") << false << true;
}

void DeleteTest::aSetWithoutFilesIsRemoved() {
    QFETCH(bool, plans);
    QFETCH(bool, twoFactor);
    start([=](World& world) {
        world.twoFactor = twoFactor;
        plans ? giveOwnPlans(world) : takePlans(world);
    });
    expectRemovalQuestion(QMessageBox::Yes);
    if (twoFactor)
        test_.expectCode(true);
    test_.run("OnDelete");
    const Calls bare{"BackupSet.getSchedule()", "BackupSet.getRetentionRule()"};
    QCOMPARE(difference(calls(), askedFirst + (twoFactor ? support::callsForCode() : Calls{}) +
                                     (plans ? scheduleGone + ruleGone : bare) + setGone +
                                     refreshed),
             QString());
    QVERIFY2(test_.driver->status().contains(q(": Deletion started for '")),
             qPrintable(test_.driver->status()));
    test_.agent->withWorld([](World& world) {
        for (const auto& schedule : world.schedules.all())
            QVERIFY(schedule->name != "schedule_for_set_8");
        for (const auto& rule : world.retentionRules.all())
            QVERIFY(rule->name != "retention_for_set_8");
    });
}

void DeleteTest::theDeleteKeyRemovesToo() {
    start(takePlans);
    expectRemovalQuestion(QMessageBox::Yes);
    QTest::keyClick(&test_.driver->sets(), Qt::Key_Delete);
    QVERIFY(test_.modals->done());
    QVERIFY(test_.agent->waitForCall("removeBackupSet"));
}

void DeleteTest::theRemovalIsShownAtOnce() {
    start(takePlans);
    const int before = test_.driver->rows("tableCurrentActivities");
    expectRemovalQuestion(QMessageBox::Yes);
    test_.run("OnDelete");
    QCOMPARE(test_.driver->rows("tableCurrentActivities"), before + 1);
    // A set with an activity doesn't allow another deletion.
    QVERIFY(!test_.driver->isEnabled("actionDeleteFromOnline"));
}

void DeleteTest::answeringNoRemovesNothing() {
    start([](World& world) {
        world.twoFactor = true;
        giveOwnPlans(world);
    });
    expectRemovalQuestion(QMessageBox::No);
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), askedFirst), QString());
}

void DeleteTest::cancellingTheCodeRemovesNothing() {
    start([](World& world) {
        world.twoFactor = true;
        giveOwnPlans(world);
    });
    const QString statusBefore = test_.driver->status();
    expectRemovalQuestion(QMessageBox::Yes);
    test_.expectCode(false);
    test_.run("OnDelete");
    const Calls requested{"ClientConnection.getTFAManager()", "TFAManager.requestCode(2)"};
    QCOMPARE(difference(calls(), askedFirst + requested), QString());
    QCOMPARE(test_.driver->status(), statusBefore);
}

void DeleteTest::aSetOfThePolicyIsLeftAlone() {
    start([](World& world) { world.set(emptyId)->info.is_created_by_policy = true; },
          Scenario::Central);
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), {}), QString());
}

void DeleteTest::anOwnSetIsRemovedUnderCentralManagement() {
    start(takePlans, Scenario::Central);
    expectRemovalQuestion(QMessageBox::Yes);
    test_.run("OnDelete");
    const Calls bare{"BackupSet.getSchedule()", "BackupSet.getRetentionRule()"};
    QCOMPARE(difference(calls(), askedFirst + bare + setGone + refreshed), QString());
}

void DeleteTest::aSharedScheduleStaysAndSoDoesTheRest() {
    start([](World& world) {
        giveOwnPlans(world);
        world.set(emptyId)->info.schedule_id = 1;
    });
    expectRemovalQuestion(QMessageBox::Yes);
    test_.modals->expectErrorBox(
        q("Error"), q("The backup set 'Documents' still uses the schedule 'Every evening'."));
    test_.run("OnDelete");
    QCOMPARE(calls().back(),
             std::string("ScheduleManager.removeSchedule(Schedule(Every evening))"));
    // Earlier changes are kept.
    test_.agent->withWorld([](World& world) {
        QCOMPARE(world.set(emptyId)->info.schedule_id, simulator::noSchedule);
        QVERIFY(world.set(emptyId)->info.retention_rule_id != simulator::noRule);
    });
}

void DeleteTest::aFaultOfTheRemoval_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<bool>("asks");
    for (const char* method : {"backup_set", "getCurrentStatus"})
        QTest::newRow(method) << q(method) << false;
    for (const char* method :
         {"getSchedule", "setSchedule", "getScheduleManager", "removeSchedule", "getRetentionRule",
          "setRetentionRule", "getRetentionRuleManager", "removeRule", "removeBackupSet"})
        QTest::newRow(method) << q(method) << true;
}

void DeleteTest::aFaultOfTheRemoval() {
    QFETCH(QString, method);
    QFETCH(bool, asks);
    start(giveOwnPlans);
    test_.agent->inject(method.toStdString(), Fault{"Außer Betrieb."});
    if (asks)
        expectRemovalQuestion(QMessageBox::Yes);
    test_.modals->expectErrorBox(q("Error"), q("Außer Betrieb."));
    test_.run("OnDelete");
    // No call follows the failed one.
    QCOMPARE(support::methodsOf(*test_.agent).back(), method.toStdString());
    QVERIFY(session::connectedToAgent());
}

void DeleteTest::leavingAQuestionDeletesNothing_data() {
    QTest::addColumn<bool>("hasFiles");
    QTest::addColumn<Leave>("leave");
    const Leave quit = [this](QWidget&) { test_.driver->window().OnQuit(); };
    const Leave escape = [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    const Leave cross = [](QWidget& box) { box.close(); };
    QTest::newRow("quit, of a set without files") << false << quit;
    QTest::newRow("quit, after the wizard") << true << quit;
    QTest::newRow("Escape, of a set without files") << false << escape;
    QTest::newRow("Escape, after the wizard") << true << escape;
    QTest::newRow("cross, of a set without files") << false << cross;
    QTest::newRow("cross, after the wizard") << true << cross;
}

/// Closing a question is no answer, not even a no.
void DeleteTest::leavingAQuestionDeletesNothing() {
    QFETCH(bool, hasFiles);
    QFETCH(Leave, leave);
    start([](World& world) { gui::store(world); });
    if (hasFiles) {
        test_.driver->sets().selectRow(gui::setRow);
        test_.expectWizard(gui::checkAll);
    }
    const QString statusBefore = test_.driver->status();
    test_.modals->expect(q("question"), isDialog<QMessageBox>, leave);
    // Inside the event loop that ends here, as in the program.
    QTimer::singleShot(0, &test_.driver->window(), [this] {
        test_.run("OnDelete");
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    QCOMPARE(difference(calls(), hasFiles ? gui::wizardOpened + gui::refreshed : askedFirst),
             QString());
    QCOMPARE(test_.driver->status(), statusBefore);
}

void DeleteTest::aFieldThatIsHalfTypedGoesWithTheWizard_data() {
    support::addWaysToLeave();
}

void DeleteTest::aFieldThatIsHalfTypedGoesWithTheWizard() {
    QFETCH(support::Leave, leave);
    start([](World& world) { gui::store(world); });
    test_.driver->sets().selectRow(gui::setRow);
    for (const auto& [box, field] :
         {std::pair("checkTo", "dateTo"), std::pair("checkKeep", "spinKeep")}) {
        test_.expectHalfTyped(field, q("5"), leave, [box = box](QWizardPage& page) {
            gui::switchOn(*page.window(), box);
        });
        test_.run("OnDelete");
    }
}

void DeleteTest::aFilterThatCantBeSwitchedOnStaysDisabled() {
    start([](World& world) { gui::store(world); });
    test_.driver->sets().selectRow(gui::setRow);
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        gui::switchOn(widget, "checkFrom");
        gui::switchOn(widget, "checkKeep");
        auto& group = support::child<QGroupBox>(widget, "groupFilter");
        group.setChecked(false);
        test_.agent->inject("prepare_delete", Fault{"Außer Betrieb."});
        test_.modals->expectErrorBox(q("Error"), q("Außer Betrieb."));
        group.setChecked(true);
        QVERIFY(!group.isChecked());
        for (const char* name : {"checkFrom", "dateFrom", "checkKeep", "spinKeep", "dateTo"})
            QVERIFY2(!support::child<QWidget>(widget, name).isEnabled(), name);
        group.setChecked(true);
        for (const char* name : {"checkFrom", "dateFrom", "checkKeep", "spinKeep"})
            QVERIFY2(support::child<QWidget>(widget, name).isEnabled(), name);
        QVERIFY(!support::child<QWidget>(widget, "dateTo").isEnabled());
        widget.close();
    });
    test_.run("OnDelete");
}

void DeleteTest::eachValueOfTheFilterAsksAgain() {
    start([](World& world) { gui::store(world); });
    test_.driver->sets().selectRow(gui::setRow);
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        for (const char* box : {"checkFrom", "checkTo", "checkRemoved", "checkKeep"})
            gui::switchOn(widget, box);
        test_.agent->clearCallLog();
        for (const auto& [name, seconds] :
             {std::pair("dateFrom", 7), std::pair("dateTo", -20), std::pair("dateRemoved", -30)}) {
            auto& date = support::child<QDateTimeEdit>(widget, name);
            date.setDateTime(date.dateTime().addSecs(seconds));
        }
        support::child<QSpinBox>(widget, "spinKeep").setValue(99);
        Calls views;
        for (const std::string& call : calls())
            if (call.starts_with("BackupSet."))
                views.push_back(call);
        QCOMPARE(
            difference(views,
                       {"BackupSet.prepare_delete(1700000007, 1760000000, 1760000000, 1, 0)",
                        "BackupSet.prepare_delete(1700000007, 1759999980, 1760000000, 1, 0)",
                        "BackupSet.prepare_delete(1700000007, 1759999980, 1759999970, 1, 0)",
                        "BackupSet.prepare_delete(1700000007, 1759999980, 1759999970, 99, 0)"}),
            QString());
        widget.close();
    });
    test_.run("OnDelete");
}

/// Heartbeats continue behind the wizard, and the card it was opened for disappears with its set.
void DeleteTest::aSetThatGoesUnderTheWizard() {
    start([](World& world) { gui::store(world); });
    test_.driver->sets().selectRow(gui::setRow);
    const int rows = test_.driver->cards().size();
    test_.expectWizard([&](QWizardPage& page) {
        test_.agent->withWorld([](World& world) { world.removeSet(gui::setId); });
        test_.driver->beat();
        QCOMPARE(test_.driver->cards().size(), rows - 1);
        gui::check(page, "D:");
    });
    test_.modals->expectErrorBox(q("Error"),
                                 q("The backup set 'Kundenprojekte Müller & Söhne' has gone."));
    test_.run("OnDelete");
    QCOMPARE(calls().back(), std::string("DeleteActivityInitiator.start()"));
}

QTEST_MAIN(DeleteTest)
#include "delete_test.moc"
