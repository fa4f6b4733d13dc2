// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QGroupBox>
#include <QScrollBar>
#include <QTableView>
#include <QtTest>

#include "api/client_connection.h"
#include "app/about_dlg.h"
#include "app/activity_log_model.h"
#include "app/backup_set_view_item.h"
#include "app/event_log_viewer.h"
#include "app/open_backup_set.h"
#include "app/running_activities_model.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/simulator.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"
#include "ui/error_box.h"

namespace {

using support::child;
using Calls = std::vector<std::string>;

template <class Action>
QString errorOf(Action action) {
    try {
        action();
    } catch (const std::exception& error) {
        return ui::errorText(error);
    }
    return QStringLiteral("(no error)");
}

} // namespace

/// What the views request from an agent, and how they show its replies.
class ViewsWithAgentTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        agent_ = std::make_unique<simulator::Simulator>();
        session::connectToAgent(agent_->address(), "demo", "demo", 1);
        agent_->clearCallLog();
    }
    void cleanup() {
        support::resetSession();
        QCOMPARE(agent_->violations(), Calls{});
        QCOMPARE(agent_->liveObjects(), Calls{});
        agent_.reset();
    }

    void theActivityLogAsksForItsTimes();
    void aFaultLeavesTheActivityLog();
    void anUnknownTypeShowsItsFallback();
    void runningActivitiesAreOneCall();
    void theViewerAsksForAnActivityOrForTimes();
    void theViewerSaysThatNothingMatches();
    void aFaultLeavesTheEvents();
    void theAboutBoxShowsTheAgent();
    void aRenameReachesTheSet();
    void aSetThatIsNoneIsAnError();

private:
    std::unique_ptr<simulator::Simulator> agent_;
};

void ViewsWithAgentTest::theActivityLogAsksForItsTimes() {
    ActivityLogModel model;
    model.refresh(5, INT32_MAX);
    QVERIFY(model.rowCount() > 0);
    QCOMPARE(agent_->callTexts(), Calls{"ClientConnection.activity_log(5, 2147483647)"});
}

void ViewsWithAgentTest::aFaultLeavesTheActivityLog() {
    ActivityLogModel model;
    model.refresh(0, INT32_MAX);
    const int rows = model.rowCount();
    agent_->inject("activity_log", simulator::Fault{"The database is locked."});
    QCOMPARE(errorOf([&] { model.refresh(0, INT32_MAX); }),
             QStringLiteral("The database is locked."));
    QCOMPARE(model.rowCount(), rows);
}

void ViewsWithAgentTest::anUnknownTypeShowsItsFallback() {
    ActivityLogModel model;
    agent_->inject("activity_log", simulator::UnknownEnumValue{"type"});
    model.refresh(0, INT32_MAX);
    QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("Unknown activity type"));
}

void ViewsWithAgentTest::runningActivitiesAreOneCall() {
    RunningActivitiesModel model;
    model.refresh();
    QCOMPARE(agent_->callTexts(), Calls{"ClientConnection.running_activities()"});
    QCOMPARE(model.rowCount(),
             static_cast<int>(session::getConnection()->running_activities().size()));
}

void ViewsWithAgentTest::theViewerAsksForAnActivityOrForTimes() {
    EventLogViewer viewer;
    const QDateTime from = QDateTime::fromSecsSinceEpoch(0);
    const QDateTime to = QDateTime::fromSecsSinceEpoch(2'000'000'000);
    viewer.showFor(from, to, 0);
    QVERIFY(viewer.model().rowCount() > 0);
    viewer.showFor(from, to, 1);
    child<QCheckBox>(viewer, "checkActivityID").click();
    QCOMPARE(agent_->callTexts(), (Calls{"ClientConnection.event_log(0, 2000000000, 0)",
                                         "ClientConnection.event_log(0, 0, 1)",
                                         "ClientConnection.event_log(0, 2000000000, 0)"}));
}

void ViewsWithAgentTest::theViewerSaysThatNothingMatches() {
    EventLogViewer viewer;
    viewer.show();
    viewer.showFor(QDateTime::fromSecsSinceEpoch(1), QDateTime::fromSecsSinceEpoch(60), 0);
    QCOMPARE(viewer.model().rowCount(), 0);
    const auto& note = child<QLabel>(viewer, "emptyNote");
    QTRY_COMPARE(note.text(), QStringLiteral("No events match the viewing filter."));
    QVERIFY(note.isVisible());
    viewer.showFor(QDateTime::fromSecsSinceEpoch(0), QDateTime::fromSecsSinceEpoch(2'000'000'000),
                   0);
    QTRY_VERIFY(!note.isVisible());
}

void ViewsWithAgentTest::aFaultLeavesTheEvents() {
    EventLogViewer viewer;
    const QDateTime from = QDateTime::fromSecsSinceEpoch(0);
    const QDateTime to = QDateTime::fromSecsSinceEpoch(2'000'000'000);
    viewer.showFor(from, to, 0);
    const int rows = viewer.model().rowCount();
    agent_->inject("event_log", simulator::Fault{"No events today."});
    support::ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("No events today."));
    viewer.showFor(from, to, 0);
    QVERIFY(modals.done());
    QCOMPARE(viewer.model().rowCount(), rows);
}

void ViewsWithAgentTest::theAboutBoxShowsTheAgent() {
    AboutDlg about;
    about.show();
    QVERIFY(child<QGroupBox>(about, "groupInfo").isVisible());
    QCOMPARE(agent_->callTexts(), Calls{"ClientConnection.getTarnClientInfo()"});
    const auto& model = *child<QTableView>(about, "tableInfo").model();
    QVERIFY(model.rowCount() > 0);
    for (int row = 0; row < model.rowCount(); ++row)
        QVERIFY(model.index(row, 0).data().toString() != QLatin1String("InitialClient"));
    QVERIFY(!child<QTableView>(about, "tableInfo").horizontalScrollBar()->isVisible());
}

void ViewsWithAgentTest::aRenameReachesTheSet() {
    const auto set = session::getConnection()->backup_sets_info().at(0);
    BackupSetViewItem::renameOnAgent(set.id, QString::fromUtf8("B\xC3\xBCro"));
    QCOMPARE(session::getConnection()->backup_sets_info().at(0).name, std::string("B\xC3\xBCro"));
}

void ViewsWithAgentTest::aSetThatIsNoneIsAnError() {
    agent_->inject("backup_set", simulator::NullResult{});
    QCOMPARE(errorOf([] { app::openBackupSet(1); }),
             QStringLiteral("The agent doesn't know this backup set."));
}

QTEST_MAIN(ViewsWithAgentTest)
#include "views_with_agent_test.moc"
