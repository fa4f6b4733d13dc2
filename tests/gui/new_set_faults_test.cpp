// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QTest>

#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/gui/new_set_calls.h"
#include "tests/support/default_start.h"
#include "tests/support/gui_wizard.h"

using gui::newSetTable;
using gui::OnFault;
using simulator::Fault;
using simulator::Times;
using simulator::World;
using support::callsOf;
using support::GuiAgent;
using support::isDialog;
using support::MainWindowDriver;
using support::ModalDriver;
using Calls = std::vector<std::string>;

namespace {

const QString flowTitle = QStringLiteral("New Backup Set Error");
const QString faultText = QStringLiteral("Außer Betrieb.");

/// "BackupSet.setName" of "BackupSet.setName("Documents")".
std::string methodOf(const std::string& call) {
    return call.substr(0, call.find('('));
}

Calls methods(const Calls& calls) {
    Calls names;
    for (const std::string& call : calls)
        names.push_back(methodOf(call));
    return names;
}

} // namespace

/// The new set flow, failing at each of its calls in turn.
class NewSetFaultsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();

    void aFaultIsReportedAndStopsTheFlow_data();
    void aFaultIsReportedAndStopsTheFlow();
    void aCutConnectionIsReported();
    void referencesThatCantBeReleasedStopNothing();

private:
    void failCall(std::size_t number);
    void expectWizard();
    void expectAfterFault(OnFault onFault);
    std::size_t setCount() {
        std::size_t count = 0;
        agent_->withWorld([&](World& world) { count = world.sets().size(); });
        return count;
    }
    void forgetNewSet();

    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<MainWindowDriver> driver_;
    std::unique_ptr<ModalDriver> modals_;
    std::size_t setsBefore_ = 0;
    Calls heldBefore_;
    std::string nameOfNewSet_;
};

void NewSetFaultsTest::initTestCase() {
    resources::initPictures();
    agent_ = std::make_unique<GuiAgent>();
    agent_->withWorld(support::beginSchedulesAtHalfPastEight);
    driver_ = std::make_unique<MainWindowDriver>();
    driver_->logIn(*agent_);
    modals_ = std::make_unique<ModalDriver>();
    setsBefore_ = setCount();
    heldBefore_ = agent_->liveObjects();
}

void NewSetFaultsTest::cleanupTestCase() {
    driver_.reset();
    agent_.reset();
}

void NewSetFaultsTest::cleanup() {
    QVERIFY(modals_->done());
    QCOMPARE(agent_->waitingInjections(), std::size_t{0});
    QCOMPARE(agent_->violations(), Calls{});
    QVERIFY(session::connectedToAgent());
    forgetNewSet();
    agent_->clearCallLog();
}

/// Restores the agent's state, except for the ids it hands out.
void NewSetFaultsTest::forgetNewSet() {
    agent_->withWorld([this](World& world) {
        while (world.sets().size() > setsBefore_)
            world.removeSet(world.sets().back()->info.id);
        while (world.schedules.all().size() > 3)
            world.schedules.remove(world.schedules.all().back());
        while (world.retentionRules.all().size() > 2)
            world.retentionRules.remove(world.retentionRules.all().back());
    });
}

/// Makes the call with that index fail; earlier calls of the same method succeed.
void NewSetFaultsTest::failCall(std::size_t number) {
    const std::string method = methodOf(newSetTable[number].text);
    for (std::size_t i = 0; i < number; ++i)
        if (methodOf(newSetTable[i].text) == method)
            agent_->inject(method, simulator::Delay{std::chrono::milliseconds(0)});
    agent_->inject(method, Fault{faultText.toStdString()});
}

void NewSetFaultsTest::expectWizard() {
    modals_->expect(QStringLiteral("wizard"), isDialog<QWizard>,
                    [](QWidget& wizard) { support::finishWizard(wizard, support::nameNewSet); });
}

void NewSetFaultsTest::expectAfterFault(OnFault onFault) {
    const auto expectCancelled = [this] {
        modals_->expect(QStringLiteral("wizard"), isDialog<QWizard>,
                        [](QWidget& wizard) { support::cancelWizard(wizard, 0); });
    };
    switch (onFault) {
    case OnFault::NoWizard:
        modals_->expectErrorBox(flowTitle, faultText);
        break;
    case OnFault::ErrorR1:
        modals_->expectErrorBox(QStringLiteral("Error R1"), faultText);
        expectCancelled();
        break;
    case OnFault::ErrorR2:
        modals_->expectErrorBox(QStringLiteral("Error R2"), faultText);
        expectCancelled();
        break;
    case OnFault::Nothing:
        expectWizard();
        break;
    case OnFault::SourceStays:
        expectWizard();
        modals_->expectErrorBox(QStringLiteral("Credential check failed"), faultText);
        break;
    case OnFault::WizardGone:
    case OnFault::NoSet:
    case OnFault::SetStays:
        expectWizard();
        modals_->expectErrorBox(flowTitle, faultText);
        break;
    }
}

void NewSetFaultsTest::aFaultIsReportedAndStopsTheFlow_data() {
    QTest::addColumn<int>("number");
    for (std::size_t i = 0; i < newSetTable.size(); ++i)
        QTest::addRow("%zu %s", i, methodOf(newSetTable[i].text).c_str()) << static_cast<int>(i);
}

void NewSetFaultsTest::aFaultIsReportedAndStopsTheFlow() {
    QFETCH(int, number);
    const auto index = static_cast<std::size_t>(number);
    const OnFault onFault = newSetTable[index].onFault;
    failCall(index);
    expectAfterFault(onFault);
    driver_->trigger("actionNew_Backup_Set");
    QVERIFY(modals_->done());

    QCOMPARE(driver_->window().cursor().shape(), Qt::ArrowCursor);
    const bool setExists = onFault == OnFault::SetStays || onFault == OnFault::Nothing;
    QCOMPARE(setCount(), setsBefore_ + (setExists ? 1 : 0));
    QCOMPARE(agent_->liveObjects(), heldBefore_);
    if (onFault == OnFault::ErrorR1 || onFault == OnFault::ErrorR2)
        return;
    // Only the calls up to the failed one.
    Calls expected = methods(gui::newSetCalls());
    if (onFault != OnFault::Nothing)
        expected.resize(index + 1);
    QCOMPARE(support::difference(methods(callsOf(*agent_)), expected), QString());
}

void NewSetFaultsTest::aCutConnectionIsReported() {
    agent_->inject("createBackupSet", simulator::CutBefore{});
    expectWizard();
    modals_->expect(
        QStringLiteral("box"), [](QWidget& box) { return box.windowTitle() == flowTitle; },
        [](QWidget& box) { box.close(); });
    driver_->trigger("actionNew_Backup_Set");
    QVERIFY(modals_->done());
    QCOMPARE(setCount(), setsBefore_);
    // The references of a connection end with it.
    driver_->window().OnDisconnect();
    driver_->logIn(*agent_);
    heldBefore_ = agent_->liveObjects();
}

void NewSetFaultsTest::referencesThatCantBeReleasedStopNothing() {
    agent_->inject("Release", Fault{faultText.toStdString()}, Times::UntilCleared);
    expectWizard();
    driver_->trigger("actionNew_Backup_Set");
    agent_->clearInjections();
    QVERIFY(modals_->done());
    QCOMPARE(setCount(), setsBefore_ + 1);
    QCOMPARE(support::difference(methods(callsOf(*agent_)), methods(gui::newSetCalls())),
             QString());
}

QTEST_MAIN(NewSetFaultsTest)
#include "new_set_faults_test.moc"
