// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The windows that call the agent in slices, while it is slow, silent or gone.

#include <memory>

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "api/client_connection.h"
#include "app/call_gate.h"
#include "app/session_ended_line.h"
#include "insight/backup_health_window.h"
#include "insight/find_file_window.h"
#include "insight/health_reader.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/health_scenarios.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_timers.h"
#include "tests/support/gui_wait.h"

using namespace std::chrono_literals;
using support::child;
using support::clickDisconnect;
using support::GuiAgent;
using support::InTheWait;
using support::MainWindowDriver;
using support::methodsOf;
using support::waitingPanel;
using Calls = std::vector<std::string>;

namespace {

constexpr int patience = 60'000;

} // namespace

class InsightSessionTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        // One for all: it takes a while to fill its folders.
        agent_ = std::make_unique<GuiAgent>(
            simulator::Options{.scenario = simulator::Scenario::ManyFolders});
    }
    void init() {
        gate_ = std::make_unique<app::CallGate>(app::CallGate::Times{20ms, 60ms});
        driver_ = std::make_unique<MainWindowDriver>();
        driver_->window().keepAliveBy(*gate_);
        driver_->logIn(*agent_);
    }
    void cleanup() {
        driver_.reset();
        gate_.reset();
        QCOMPARE(agent_->violations(), Calls{});
    }
    void cleanupTestCase() { agent_.reset(); }

    void aSlowAgentIsSearchedToTheEnd();
    void aSilentAgentIsLeftInTheSearch();
    void aSilentAgentIsLeftWhileSchedulesAreRead();
    void aReplyThatComesTooLateIsNotUsed_data();
    void aReplyThatComesTooLateIsNotUsed();
    void disconnectEndsTheSearch();
    void aLostSessionEmptiesTheWindows();
    void aNewSessionTakesTheWindowsOver();
    void closingReleasesTheViews();
    void escapeCancelsAndThenCloses();
    void nothingIsGoneWhileTheEndReleasesAView();
    void nothingIsGoneWhileTheEndReleasesASet();

private:
    FindFileWindow& search(const char* name) {
        driver_->trigger("actionFind_File");
        auto& find = *driver_->window().findChild<FindFileWindow*>();
        child<QLineEdit>(find, "editName").setText(QString::fromUtf8(name));
        child<QPushButton>(find, "buttonFind").click();
        return find;
    }
    static int found(const FindFileWindow& find) {
        return child<QTableView>(const_cast<FindFileWindow&>(find), "tableFound")
            .model()
            ->rowCount();
    }
    /// References to views that the agent has handed out, including those of lost sessions.
    int views() const {
        const auto held = agent_->liveObjects();
        return static_cast<int>(std::count_if(held.begin(), held.end(), [](const auto& object) {
            return object.rfind("BackupSetRestoreView ", 0) == 0;
        }));
    }

    /// Destroys the window with a slow release. Returns whether `part` was there all that time.
    bool outlivesTheRelease(const QPointer<QObject>& part) {
        constexpr auto release = 500ms;
        agent_->inject("Release", simulator::Delay{release});
        const QDeadlineTimer end(release);
        int rounds = 0;
        bool isThere = true;
        const InTheWait loop([&] {
            // On a busy machine, the logout may have to be waited for, too.
            if (end.hasExpired())
                return;
            ++rounds;
            isThere = isThere && part;
        });
        driver_.reset();
        return rounds > 0 && isThere;
    }

    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<app::CallGate> gate_;
    std::unique_ptr<MainWindowDriver> driver_;
};

void InsightSessionTest::aSlowAgentIsSearchedToTheEnd() {
    // Some of the calls take long enough for the window to paint, and one for the panel.
    for (int i = 0; i < 5; ++i)
        agent_->inject("getSubItems", simulator::Delay{50ms});
    agent_->inject("getSubItems", simulator::Delay{300ms});
    const int before = views();
    int waits = 0;
    bool hadPanel = false;
    const InTheWait user([&] {
        ++waits;
        hadPanel = hadPanel || waitingPanel();
        // Both have to wait for the end of the call, as they call the agent themselves.
        driver_->postBeat();
        QTest::keyClick(driver_->window().windowHandle(), Qt::Key_H, Qt::ControlModifier);
    });
    FindFileWindow& find = search("needle");
    QTRY_VERIFY_WITH_TIMEOUT(!find.isSearching(), patience);
    QVERIFY(waits > 0);
    QVERIFY(hadPanel);
    QCOMPARE(found(find), 1);
    QCOMPARE(views(), before);
    const auto methods = methodsOf(*agent_);
    QVERIFY(std::count(methods.begin(), methods.end(), "backup_sets_info") > 0);
}

void InsightSessionTest::aSilentAgentIsLeftInTheSearch() {
    agent_->inject("getSubItems", simulator::Silence{});
    const InTheWait user([] {
        if (waitingPanel())
            clickDisconnect();
    });
    FindFileWindow& find = search("needle");
    QTRY_VERIFY_WITH_TIMEOUT(!find.isSearching(), patience);
    driver_->beat();
    QVERIFY(!session::connectedToAgent());
    QVERIFY(find.isVisible());
    QVERIFY(!child<QPushButton>(find, "buttonFind").isEnabled());
}

void InsightSessionTest::aSilentAgentIsLeftWhileSchedulesAreRead() {
    agent_->inject("getOverview", simulator::Silence{});
    const InTheWait user([] {
        if (waitingPanel())
            clickDisconnect();
    });
    driver_->trigger("actionBackup_Health");
    auto& health = *driver_->window().findChild<BackupHealthWindow*>();
    QTRY_VERIFY(child<QLabel>(health, "labelFailure")
                    .text()
                    .startsWith(QStringLiteral("Disconnected, as the agent had")));
    driver_->beat();
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(child<QTableView>(health, "tableSets").model()->rowCount(), 0);
    QVERIFY(!child<QPushButton>(health, "buttonBackup").isEnabled());
}

void InsightSessionTest::aReplyThatComesTooLateIsNotUsed_data() {
    QTest::addColumn<QString>("method");
    for (const char* method : {"getConfigurationManager", "getAdvancedConfigNumber", "backup_set",
                               "getLastActivityOfType", "getOverview"})
        QTest::newRow(method) << QString::fromLatin1(method);
}

void InsightSessionTest::aReplyThatComesTooLateIsNotUsed() {
    QFETCH(QString, method);
    insight::HealthReader reader(session::getConnection);
    const auto set = session::getConnection()->backup_sets_info().front();
    reader.add(set);
    agent_->clearCallLog();
    agent_->inject(method.toStdString(), simulator::Delay{200ms});
    const auto isCalled = [&] {
        const auto methods = methodsOf(*agent_);
        return std::find(methods.begin(), methods.end(), method.toStdString()) != methods.end();
    };
    bool isForgotten = false;
    const InTheWait user([&] {
        if (!isCalled())
            return;
        reader.forgetAll();
        isForgotten = true;
    });
    while (reader.left() > 0) {
        // Each slice runs in a turn of its own.
        QCoreApplication::sendPostedEvents(gate_.get());
        QVERIFY(!reader.step());
    }
    QVERIFY(isForgotten);
    QVERIFY(!reader.detailsOf(set.id));
    QCOMPARE(reader.missedHours(), 0);
    QVERIFY(!reader.step());
}

void InsightSessionTest::disconnectEndsTheSearch() {
    const int before = views();
    FindFileWindow& find = search("letter");
    QTRY_VERIFY(found(find) > 0);
    QVERIFY(find.isSearching());
    QVERIFY(views() > before);
    driver_->trigger("actionLogout");
    QVERIFY(!session::connectedToAgent());
    QVERIFY(!find.isSearching());
    QVERIFY(child<QLabel>(find, "labelProgress").text().startsWith(QStringLiteral("Cancelled")));
    QTRY_COMPARE(views(), before);
    agent_->clearCallLog();
    // A slice that was due would make a call.
    support::letTimersFire();
    QCOMPARE(methodsOf(*agent_), Calls{});
}

void InsightSessionTest::aLostSessionEmptiesTheWindows() {
    driver_->trigger("actionBackup_Health");
    auto& health = *driver_->window().findChild<BackupHealthWindow*>();
    FindFileWindow& find = search("letter");
    QTRY_VERIFY(found(find) > 0);
    agent_->cutConnections();
    driver_->beat();
    QVERIFY(!session::connectedToAgent());
    QVERIFY(!find.isSearching());
    QCOMPARE(child<QTableView>(health, "tableSets").model()->rowCount(), 0);
    for (QWidget* window : {static_cast<QWidget*>(&health), static_cast<QWidget*>(&find)})
        QVERIFY(child<QWidget>(*window, "sessionEndedLine").isVisible());
}

void InsightSessionTest::aNewSessionTakesTheWindowsOver() {
    driver_->trigger("actionBackup_Health");
    auto& health = *driver_->window().findChild<BackupHealthWindow*>();
    FindFileWindow& find = search("letter");
    QTRY_VERIFY(found(find) > 0);
    const int height = find.height();
    driver_->trigger("actionLogout");
    QVERIFY(find.height() > height);
    // What was found stays to be read, but there is no session to restore it in.
    QVERIFY(found(find) > 0);
    QVERIFY(!child<QPushButton>(find, "buttonRestore").isEnabled());
    QVERIFY(!child<QPushButton>(find, "buttonGenerations").isEnabled());
    driver_->logIn(*agent_);
    // The next agent may have another set under the same id.
    QCOMPARE(found(find), 0);
    // The notes about the last session are gone.
    QTRY_VERIFY(!health.findChild<QWidget*>(QStringLiteral("sessionEndedLine")));
    QVERIFY(!find.findChild<QWidget*>(QStringLiteral("sessionEndedLine")));
    QCOMPARE(find.height(), height);
    QCOMPARE(child<QTableView>(health, "tableSets").model()->rowCount(), 1);
    child<QLineEdit>(find, "editName").setText(QStringLiteral("needle"));
    child<QPushButton>(find, "buttonFind").click();
    QTRY_VERIFY_WITH_TIMEOUT(!find.isSearching(), patience);
    QCOMPARE(found(find), 1);
}

void InsightSessionTest::closingReleasesTheViews() {
    const int before = views();
    FindFileWindow& find = search("letter");
    QTRY_VERIFY(views() > before);
    find.close();
    QVERIFY(!find.isSearching());
    QTRY_COMPARE(views(), before);
}

void InsightSessionTest::escapeCancelsAndThenCloses() {
    FindFileWindow& find = search("letter");
    QTRY_VERIFY(found(find) > 0);
    QTest::keyClick(&find, Qt::Key_Escape);
    QVERIFY(!find.isSearching());
    QVERIFY(find.isVisible());
    QTest::keyClick(&find, Qt::Key_Escape);
    QVERIFY(!find.isVisible());
}

void InsightSessionTest::nothingIsGoneWhileTheEndReleasesAView() {
    FindFileWindow& find = search("letter");
    QTRY_VERIFY(found(find) > 0);
    QVERIFY(find.isSearching());
    QVERIFY(outlivesTheRelease(child<QTableView>(find, "tableFound").model()));
}

void InsightSessionTest::nothingIsGoneWhileTheEndReleasesASet() {
    agent_->inject("getLastActivityOfType", simulator::Delay{100ms});
    QEventLoop loop;
    bool isHalfRead = false;
    {
        // That step ends its slice; the set stays open for the next.
        const InTheWait user([&] {
            isHalfRead = methodsOf(*agent_).back() == "getLastActivityOfType";
            if (isHalfRead)
                loop.quit();
        });
        QTimer::singleShot(patience, &loop, &QEventLoop::quit);
        driver_->trigger("actionBackup_Health");
        loop.exec();
    }
    QVERIFY(isHalfRead);
    QVERIFY(outlivesTheRelease(driver_->window().findChild<BackupHealthWindow*>()));
}

QTEST_MAIN(InsightSessionTest)
#include "insight_session_test.moc"
