// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QDialog>
#include <QMainWindow>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolButton>
#include <QtTest>

#include "app/activity_news.h"
#include "app/event_log_viewer.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/simulator.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"

using hessiancln::activity_log_info;
using hessiancln::ActivityType;
using support::child;
using support::isDialog;
using support::ModalDriver;

namespace {

constexpr std::int32_t endedId = 7;
const QString text = QStringLiteral("Restore of 'Documents' ended");

activity_log_info endOf(ActivityType type) {
    activity_log_info ended;
    ended.id = endedId;
    ended.type = type;
    return ended;
}

/// A visible window in a session, with the news in its status bar.
struct ShownWindow {
    ShownWindow() {
        session::connectToAgent(agent.address(), "demo", "demo", 1);
        QObject::connect(
            &news, &app::ActivityNews::statusChanged, window.statusBar(),
            [this](const QString& status) { window.statusBar()->showMessage(status); });
        window.show();
    }
    ~ShownWindow() { support::resetSession(); }

    QToolButton& link() { return child<QToolButton>(window, "buttonStatusEvents"); }

    simulator::Simulator agent;
    QMainWindow window;
    app::ActivityNews news{window, *window.statusBar(), [] {
                               return insight::SetNames{{endedId, "Documents"}};
                           }};
    QSignalSpy wanted{&news, &app::ActivityNews::windowWanted};
};

} // namespace

class ActivityNewsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { QVERIFY(modals_.done()); }

    void theEndOfARestoreLeadsToItsEvents();
    void anotherEndIsNotInTheStatusBar();
    void withoutAnActivityTheEventsOfTwoDaysAreShown();
    void newsBringUpTheWindowAndTheEvents();
    void withoutNewsNothingHappens();
    void withoutASessionNothingHappens();
    void overADialogNothingHappens();

private:
    void expectEvents(bool ofActivity) {
        modals_.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [=](QWidget& viewer) {
            QCOMPARE(child<QCheckBox>(viewer, "checkActivityID").isChecked(), ofActivity);
            if (ofActivity)
                QCOMPARE(child<QSpinBox>(viewer, "spinActivityID").value(), endedId);
            child<QPushButton>(viewer, "buttonClose").click();
        });
    }

    ModalDriver modals_;
};

void ActivityNewsTest::theEndOfARestoreLeadsToItsEvents() {
    ShownWindow shown;
    shown.news.announceEnd(endOf(ActivityType::Restore), text);
    QCOMPARE(shown.window.statusBar()->currentMessage(), text);
    QVERIFY(shown.link().isVisible());
    expectEvents(true);
    shown.link().click();
    QVERIFY(modals_.done());
}

void ActivityNewsTest::anotherEndIsNotInTheStatusBar() {
    ShownWindow shown;
    shown.news.announceEnd(endOf(ActivityType::Backup), text);
    QCOMPARE(shown.window.statusBar()->currentMessage(), QString());
    QVERIFY(!shown.link().isVisible());
}

void ActivityNewsTest::withoutAnActivityTheEventsOfTwoDaysAreShown() {
    ShownWindow shown;
    shown.agent.clearCallLog();
    const QDateTime today = QDate::currentDate().startOfDay();
    expectEvents(false);
    shown.news.showEventsOf(std::nullopt);
    QVERIFY(modals_.done());
    const auto call = QStringLiteral("ClientConnection.event_log(%1, %2, 0)")
                          .arg(today.addDays(-1).toSecsSinceEpoch())
                          .arg(today.addDays(1).toSecsSinceEpoch() - 1);
    QCOMPARE(shown.agent.callTexts(), std::vector{call.toStdString()});
}

void ActivityNewsTest::newsBringUpTheWindowAndTheEvents() {
    ShownWindow shown;
    expectEvents(true);
    shown.news.follow(endOf(ActivityType::Backup));
    QCOMPARE(shown.wanted.size(), 1);
}

void ActivityNewsTest::withoutNewsNothingHappens() {
    ShownWindow shown;
    shown.news.follow(std::nullopt);
    QCOMPARE(shown.wanted.size(), 0);
}

void ActivityNewsTest::withoutASessionNothingHappens() {
    ShownWindow shown;
    session::disconnectFromAgent();
    shown.news.follow(endOf(ActivityType::Backup));
    QCOMPARE(shown.wanted.size(), 0);
}

void ActivityNewsTest::overADialogNothingHappens() {
    ShownWindow shown;
    QDialog dialog(&shown.window);
    dialog.setModal(true);
    dialog.setObjectName(QStringLiteral("openDialog"));
    dialog.show();
    shown.news.follow(endOf(ActivityType::Backup));
    QCOMPARE(shown.wanted.size(), 0);
    dialog.close();
}

QTEST_MAIN(ActivityNewsTest)
#include "activity_news_test.moc"
