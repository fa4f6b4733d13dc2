// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QTest>
#include <QTimer>

#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

using simulator::World;
using support::child;
using support::GuiAgent;
using support::MainWindowDriver;

namespace {

const QString activityTitle = QStringLiteral("Ostrand Backup Activity");
const QString runningTitle = QStringLiteral("Tarn-Mobile User is still running!");
const QString reminderText = QStringLiteral("You can click the icon to show the window.\n\n"
                                            "Click here to not show this reminder again.");

void startBackup(World& world) {
    world.start(world.backupOf(world.sets().front(), "anna"));
}

void stopAll(World& world) {
    for (const auto& activity : world.running())
        world.stop(activity.activity_id);
}

/// An agent whose clock is an hour behind: whatever starts there is already old.
simulator::Options anHourAgo() {
    simulator::Options options;
    options.clock = [] { return simulator::systemClock()() - 3'600'000; };
    return options;
}

} // namespace

/// The window in the tray, and the texts of its balloons.
class MainWindowTrayTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { driver_ = std::make_unique<MainWindowDriver>(); }
    void cleanup() {
        driver_.reset();
        agent_.reset();
    }

    void theTrayIsSetUp();
    void closingHidesTheWindowAndReminds();
    void withoutATrayClosingOnlyReminds();
    void theMenuHidesAndShows();
    void aClickOnTheIconShowsTheWindow();
    void aBalloonThatIsClickedEndsTheReminder();
    void aDialogOverTheHiddenWindowEndsNothing();
    void aLogOutOfTheDesktopIsNotHeldUp();
    void comesBackFromBeingMinimized();
    void staysMaximizedWhenItIsRaised();
    void announcesWhatBeginsAndEnds();
    void theVisibleActiveWindowAnnouncesNothingButKeepsTrack();
    void aVisibleWindowBehindAnotherOneAnnounces();
    void whatCameAndWentBetweenHeartbeatsIsNeverReported();
    void oldWorkIsAnnouncedOnlyAtItsEnd();
    void aLoginAnnouncesTheYoungOnly();
    void aLostSessionLeavesNothingToAnnounce();
    void aLookUpThatFailsReportsTheDescription();

private:
    SimpleGUIMainWindow& window() { return driver_->window(); }
    support::RecordingTray& tray() { return driver_->tray(); }
    /// Logs in to an agent, hides the window, and lets a heartbeat pass.
    void watch(simulator::Options options = {}) {
        agent_ = std::make_unique<GuiAgent>(std::move(options));
        driver_->logIn(*agent_);
        window().hide();
        driver_->beat();
        tray().balloons.clear();
    }
    QStringList linesOfBalloons() {
        QStringList lines;
        for (const auto& [title, text] : tray().balloons) {
            if (title != activityTitle)
                QTest::qFail("A balloon has another title", __FILE__, __LINE__);
            lines << text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        }
        return lines;
    }

    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<MainWindowDriver> driver_;
};

void MainWindowTrayTest::theTrayIsSetUp() {
    QCOMPARE(tray().toolTip(), QStringLiteral("Tarn-Mobile User"));
    const QIcon icon(QStringLiteral(":/icons/tarn_mobile_icon"));
    QVERIFY(!icon.pixmap(64).isNull());
    QCOMPARE(tray().icon().pixmap(64).toImage(), icon.pixmap(64).toImage());
    QVERIFY(tray().isVisible());
    const QList<QAction*> entries = tray().contextMenu()->actions();
    QCOMPARE(entries.size(), 4);
    QCOMPARE(entries.at(0)->text(), QStringLiteral("Show"));
    QVERIFY(!entries.at(0)->isEnabled());
    QCOMPARE(entries.at(1)->text(), QStringLiteral("Hide"));
    QVERIFY(entries.at(1)->isEnabled());
    QVERIFY(entries.at(2)->isSeparator());
    QCOMPARE(entries.at(3), &child<QAction>(window(), "actionQuit"));
}

void MainWindowTrayTest::closingHidesTheWindowAndReminds() {
    QVERIFY(!window().close());
    QVERIFY(!window().isVisible());
    QVERIFY(driver_->isEnabled("actionShow"));
    QVERIFY(!driver_->isEnabled("actionHide"));
    QCOMPARE(tray().balloons, (QList<QPair<QString, QString>>{{runningTitle, reminderText}}));
}

void MainWindowTrayTest::withoutATrayClosingOnlyReminds() {
    driver_ = std::make_unique<MainWindowDriver>(false);
    QVERIFY(!window().close());
    QVERIFY(window().isVisible());
    QVERIFY(!driver_->isEnabled("actionShow"));
    QCOMPARE(tray().balloons, (QList<QPair<QString, QString>>{{runningTitle, reminderText}}));
}

void MainWindowTrayTest::theMenuHidesAndShows() {
    driver_->trigger("actionHide");
    QVERIFY(!window().isVisible());
    QVERIFY(tray().balloons.isEmpty());
    driver_->trigger("actionShow");
    QVERIFY(window().isVisible());
    QVERIFY(!driver_->isEnabled("actionShow"));
    QVERIFY(driver_->isEnabled("actionHide"));
}

void MainWindowTrayTest::aClickOnTheIconShowsTheWindow() {
    driver_->trigger("actionHide");
    for (const auto reason : {QSystemTrayIcon::Unknown, QSystemTrayIcon::Context,
                              QSystemTrayIcon::DoubleClick, QSystemTrayIcon::MiddleClick}) {
        emit tray().activated(reason);
        QVERIFY(!window().isVisible());
    }
    emit tray().activated(QSystemTrayIcon::Trigger);
    QVERIFY(window().isVisible());
}

void MainWindowTrayTest::aBalloonThatIsClickedEndsTheReminder() {
    watch();
    agent_->withWorld(startBackup);
    driver_->beat();
    QCOMPARE(tray().balloons.size(), 1);
    emit tray().messageClicked();
    window().showMainWindow();
    window().close();
    QVERIFY(!window().isVisible());
    QCOMPARE(tray().balloons.size(), 1);
}

void MainWindowTrayTest::aDialogOverTheHiddenWindowEndsNothing() {
    QTimer::singleShot(0, &window(), [this] {
        window().close();
        QDialog dialog(&window());
        QTimer::singleShot(0, &dialog, &QDialog::accept);
        dialog.exec();
        QTimer::singleShot(50, &window(), [] { QCoreApplication::exit(7); });
    });
    QCOMPARE(QCoreApplication::exec(), 7);
}

void MainWindowTrayTest::aLogOutOfTheDesktopIsNotHeldUp() {
    // Qt's fallback would refuse the log-out, as the window refuses to close.
    QVERIFY(!QGuiApplication::isFallbackSessionManagementEnabled());
}

void MainWindowTrayTest::comesBackFromBeingMinimized() {
    window().showMinimized();
    QVERIFY(window().isMinimized());
    window().showMainWindow();
    QVERIFY(!window().isMinimized());
    QVERIFY(window().isVisible());
}

void MainWindowTrayTest::staysMaximizedWhenItIsRaised() {
    window().showMaximized();
    window().showMainWindow();
    QVERIFY(window().isMaximized());
}

void MainWindowTrayTest::announcesWhatBeginsAndEnds() {
    watch();
    agent_->withWorld(startBackup);
    driver_->beat();
    agent_->withWorld(stopAll);
    driver_->beat();
    // The table shows the newest first, so the order depends on the second in which each started.
    QStringList lines = linesOfBalloons();
    QVERIFY(!lines.isEmpty());
    QCOMPARE(lines.takeFirst(), QStringLiteral("Started - Backup - Documents"));
    lines.sort();
    QCOMPARE(lines, (QStringList{QStringLiteral("Completed - Backup - Documents"),
                                 QStringLiteral("Completed - Backup - Pictures and Videos")}));
    QCOMPARE(tray().balloons.size(), 2);
    QCOMPARE(agent_->liveObjects().size(), std::size_t(1));
}

void MainWindowTrayTest::theVisibleActiveWindowAnnouncesNothingButKeepsTrack() {
    agent_ = std::make_unique<GuiAgent>();
    driver_->logIn(*agent_);
    agent_->withWorld(startBackup);
    QVERIFY(window().isActiveWindow());
    driver_->beat();
    QCOMPARE(linesOfBalloons(), QStringList());
    window().hide();
    driver_->beat();
    QCOMPARE(linesOfBalloons(), QStringList());
    agent_->withWorld(stopAll);
    driver_->beat();
    QCOMPARE(linesOfBalloons().size(), 2);
}

void MainWindowTrayTest::aVisibleWindowBehindAnotherOneAnnounces() {
    agent_ = std::make_unique<GuiAgent>();
    driver_->logIn(*agent_);
    driver_->beat();
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(window().isVisible());
    agent_->withWorld(startBackup);
    driver_->beat();
    QCOMPARE(linesOfBalloons(), QStringList{QStringLiteral("Started - Backup - Documents")});
    window().showMainWindow();
    QTRY_VERIFY(window().isActiveWindow());
}

void MainWindowTrayTest::whatCameAndWentBetweenHeartbeatsIsNeverReported() {
    watch();
    agent_->withWorld([](World& world) {
        const auto id = world.start(world.backupOf(world.sets().front(), "anna"));
        world.stop(id);
    });
    driver_->beat();
    QVERIFY(tray().balloons.isEmpty());
}

void MainWindowTrayTest::oldWorkIsAnnouncedOnlyAtItsEnd() {
    watch(anHourAgo());
    agent_->withWorld(startBackup);
    driver_->beat();
    QVERIFY(tray().balloons.isEmpty());
    agent_->withWorld(stopAll);
    driver_->beat();
    QVERIFY(linesOfBalloons().contains(QStringLiteral("Completed - Backup - Documents")));
}

void MainWindowTrayTest::aLoginAnnouncesTheYoungOnly() {
    agent_ = std::make_unique<GuiAgent>();
    window().hide();
    driver_->logIn(*agent_);
    QVERIFY(tray().balloons.isEmpty());
    driver_->beat();
    QCOMPARE(linesOfBalloons(),
             QStringList{QStringLiteral("Started - Backup - Pictures and Videos")});

    driver_ = std::make_unique<MainWindowDriver>();
    agent_.reset();
    agent_ = std::make_unique<GuiAgent>(anHourAgo());
    window().hide();
    driver_->logIn(*agent_);
    driver_->beat();
    QVERIFY(tray().balloons.isEmpty());
}

void MainWindowTrayTest::aLostSessionLeavesNothingToAnnounce() {
    watch();
    window().OnDisconnect();
    agent_->withWorld(stopAll);
    driver_->logIn(*agent_);
    driver_->beat();
    driver_->beat();
    QVERIFY(tray().balloons.isEmpty());
}

void MainWindowTrayTest::aLookUpThatFailsReportsTheDescription() {
    watch();
    agent_->withWorld([](World& world) {
        auto plan = world.backupOf(world.sets().front(), "anna");
        plan.description = "By hand";
        world.start(std::move(plan));
    });
    agent_->inject("getName", simulator::Fault{"Out of order."});
    driver_->beat();
    QCOMPARE(linesOfBalloons(), QStringList{QStringLiteral("Started - Backup - By hand")});
    QVERIFY(session::connectedToAgent());
}

QTEST_MAIN(MainWindowTrayTest)
#include "main_window_tray_test.moc"
