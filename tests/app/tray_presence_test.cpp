// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QMenu>
#include <QtTest>

#include "app/tray_presence.h"
#include "resources/pictures.h"
#include "tests/support/gui_main_window.h"

using hessiancln::running_activity_info;

namespace {

using Balloons = QList<QPair<QString, QString>>;

const Balloons reminder{{QStringLiteral("Tarn-Mobile User is still running!"),
                         QStringLiteral("You can click the icon to show the window.\n\nClick "
                                        "here to not show this reminder again.")}};

/// A visible window, with its presence in a tray that records what it shows.
struct ShownWindow {
    explicit ShownWindow(bool trayAvailable = true)
        : icon(new support::RecordingTray(trayAvailable))
        , presence(window, quit, std::unique_ptr<app::TrayIcon>(icon),
                   [](std::int32_t id) -> std::optional<QString> {
                       if (id == 1)
                           return QStringLiteral("Documents");
                       return std::nullopt;
                   }) {
        presence.showWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("The window doesn't become active");
    }

    QWidget window;
    QAction quit;
    support::RecordingTray* icon; ///< owned by the presence
    app::TrayPresence presence;
};

hessiancln::activity_log_info endOf(std::int32_t id, std::int32_t errors = 0) {
    hessiancln::activity_log_info ended;
    ended.id = id;
    ended.errors = errors;
    return ended;
}

Balloons activityBalloon(const QString& text) {
    return {{QStringLiteral("Ostrand Backup Activity"), text}};
}

running_activity_info backupOf(std::int32_t setId) {
    running_activity_info activity;
    activity.type = hessiancln::ActivityType::Backup;
    activity.set_id = setId;
    return activity;
}

} // namespace

class TrayPresenceTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void theIconHasAMenu() {
        ShownWindow shown;
        QVERIFY(shown.icon->isVisible());
        QCOMPARE(shown.icon->toolTip(), QStringLiteral("Tarn-Mobile User"));
        const QList<QAction*> entries = shown.icon->contextMenu()->actions();
        QCOMPARE(entries.size(), 4);
        QCOMPARE(entries.at(0), &shown.presence.actionShow());
        QCOMPARE(entries.at(0)->text(), QStringLiteral("Show"));
        QCOMPARE(entries.at(1), &shown.presence.actionHide());
        QCOMPARE(entries.at(1)->text(), QStringLiteral("Hide"));
        QVERIFY(entries.at(2)->isSeparator());
        QCOMPARE(entries.at(3), &shown.quit);
    }

    void hidesAndShows() {
        ShownWindow shown;
        QVERIFY(!shown.presence.actionShow().isEnabled());
        QVERIFY(shown.presence.actionHide().isEnabled());
        shown.presence.hideWindow();
        QVERIFY(!shown.window.isVisible());
        QVERIFY(shown.presence.actionShow().isEnabled());
        QVERIFY(!shown.presence.actionHide().isEnabled());
        shown.presence.showWindow();
        QVERIFY(shown.window.isVisible());
        QVERIFY(!shown.presence.actionShow().isEnabled());
        QVERIFY(shown.presence.actionHide().isEnabled());
    }

    void withoutATrayNothingHides() {
        ShownWindow shown(false);
        shown.presence.hideWindow();
        QVERIFY(shown.window.isVisible());
        QVERIFY(!shown.presence.actionShow().isEnabled());
    }

    void aHiddenWindowComesBackWhenTheTrayGoes() {
        ShownWindow shown;
        shown.presence.keepReachable();
        shown.presence.hideWindow();
        shown.presence.keepReachable();
        shown.presence.keepReachable();
        QVERIFY(!shown.window.isVisible());
        // A panel that restarts is back at the next look.
        shown.icon->setAvailable(false);
        shown.presence.keepReachable();
        QVERIFY(!shown.window.isVisible());
        shown.icon->setAvailable(true);
        shown.presence.keepReachable();
        shown.icon->setAvailable(false);
        shown.presence.keepReachable();
        QVERIFY(!shown.window.isVisible());
        shown.presence.keepReachable();
        QVERIFY(shown.window.isVisible());
        QVERIFY(!shown.presence.actionShow().isEnabled());
    }

    void anActivationThatComesLateIsCorrected() {
        ShownWindow shown;
        shown.presence.showWindow();
        // Later than the first look at it.
        QTest::qWait(600);
        QApplication::setActiveWindow(nullptr);
        QCOMPARE(QGuiApplication::focusWindow(), shown.window.windowHandle());
        QTRY_COMPARE(QApplication::activeWindow(), &shown.window);
    }

    void remindsUntilDismissed() {
        ShownWindow shown;
        shown.presence.remind();
        QCOMPARE(shown.icon->balloons, reminder);
        shown.presence.remind();
        QCOMPARE(shown.icon->balloons, reminder + reminder);
        shown.presence.endReminder();
        shown.presence.remind();
        QCOMPARE(shown.icon->balloons.size(), 2);
    }

    void announcesWhatTheUserDoesNotSee() {
        ShownWindow shown;
        shown.presence.announce({backupOf(1)}, {});
        QCOMPARE(shown.icon->balloons, Balloons());
        shown.presence.hideWindow();
        shown.presence.announce({backupOf(1)}, {backupOf(2)});
        QCOMPARE(shown.icon->balloons, activityBalloon(QStringLiteral(
                                           "Started - Backup - Documents\nCompleted - Backup\n")));
    }

    void aVisibleWindowBehindAnotherOneAnnounces() {
        ShownWindow shown;
        QWidget other;
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        shown.presence.announce({}, {backupOf(1)});
        QCOMPARE(shown.icon->balloons.size(), 1);
        QCOMPARE(shown.icon->balloons.first().second,
                 QStringLiteral("Completed - Backup - Documents\n"));
    }

    void announcesAnEndWithErrorsAsAWarning() {
        ShownWindow shown;
        shown.presence.hideWindow();
        const QString done = QStringLiteral("Restored without errors");
        shown.presence.announceEnd(endOf(1), done);
        QCOMPARE(shown.icon->balloons, activityBalloon(done));
        QCOMPARE(shown.icon->warnings, Balloons());
        const QString failed = QStringLiteral("One error");
        shown.presence.announceEnd(endOf(2, 1), failed);
        QCOMPARE(shown.icon->balloons, activityBalloon(done));
        QCOMPARE(shown.icon->warnings, activityBalloon(failed));
    }

    void theLastEndIsTheNews() {
        ShownWindow shown;
        QVERIFY(!shown.presence.lastNews());
        shown.presence.hideWindow();
        shown.presence.announceEnd(endOf(1), QStringLiteral("Ended"));
        shown.presence.announceEnd(endOf(2), QStringLiteral("Ended"));
        QVERIFY(shown.presence.lastNews());
        QCOMPARE(shown.presence.lastNews()->id, 2);
    }

    void anEndThatTheUserSeesIsNoNews() {
        ShownWindow shown;
        shown.presence.announceEnd(endOf(1), QStringLiteral("Ended"));
        QCOMPARE(shown.icon->balloons, Balloons());
        QVERIFY(!shown.presence.lastNews());
    }

    void anotherBalloonReplacesTheNews_data() {
        QTest::addColumn<bool>("isReminder");
        QTest::newRow("reminder") << true;
        QTest::newRow("started activity") << false;
    }

    void anotherBalloonReplacesTheNews() {
        QFETCH(bool, isReminder);
        ShownWindow shown;
        shown.presence.hideWindow();
        shown.presence.announceEnd(endOf(1), QStringLiteral("Ended"));
        if (isReminder)
            shown.presence.remind();
        else
            shown.presence.announce({backupOf(1)}, {});
        QCOMPARE(shown.icon->balloons.size(), 2);
        QVERIFY(!shown.presence.lastNews());
    }

    void theEndOfTheSessionLeavesNoNews() {
        ShownWindow shown;
        shown.presence.hideWindow();
        shown.presence.announceEnd(endOf(1), QStringLiteral("Ended"));
        shown.presence.forgetNews();
        QVERIFY(!shown.presence.lastNews());
    }

    void aDismissedReminderLeavesTheNews() {
        ShownWindow shown;
        shown.presence.hideWindow();
        shown.presence.endReminder();
        shown.presence.announceEnd(endOf(1), QStringLiteral("Ended"));
        shown.presence.remind();
        QVERIFY(shown.presence.lastNews());
    }
};

QTEST_MAIN(TrayPresenceTest)
#include "tray_presence_test.moc"
