// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QMutex>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include "app/call_gate.h"
#include "app/simple_gui_main_window.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_display.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_timers.h"
#include "tests/support/gui_wait.h"

using namespace std::chrono_literals;

namespace {

QString q(const char* text) {
    return QString::fromUtf8(text);
}

const QStringList wholeService{q("actions"), q("body"), q("body-markup")};
constexpr uint ofAnotherProgram = 1000; ///< id of a notification

struct Notification {
    uint id;
    QString icon, title, text;
    QStringList actions;
    int milliseconds;
};

/// A desktop's tray on D-Bus.
class Watcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHost)
public:
    bool isHost() const { return true; }
    int icons() const { return icons_.loadRelaxed(); }
public slots:
    void RegisterStatusNotifierItem(const QString&) { icons_.fetchAndAddRelaxed(1); }

private:
    QAtomicInt icons_;
};

/// A desktop's notification service. It remembers what it was asked to show.
class Service : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    void begin(const QStringList& capabilities) {
        const QMutexLocker lock(&mutex_);
        capabilities_ = capabilities;
        shown_.clear();
    }
    QList<Notification> shown() {
        const QMutexLocker lock(&mutex_);
        return shown_;
    }
    /// A click of the user, reported to all programs, as most desktops do: by the thread that
    /// answers them, so after the answer.
    void click(uint id) { report("ActionInvoked", {id, q("default")}); }
    /// The user closes a notification, reported likewise.
    void close(uint id) { report("NotificationClosed", {id, closedByUser}); }

public slots:
    QStringList GetCapabilities() {
        const QMutexLocker lock(&mutex_);
        return capabilities_;
    }
    uint Notify(const QString&, uint, const QString& icon, const QString& title,
                const QString& text, const QStringList& actions, const QVariantMap&,
                int milliseconds) {
        const QMutexLocker lock(&mutex_);
        const uint id = ++lastId_;
        shown_.append({id, icon, title, text, actions, milliseconds});
        return id;
    }

private:
    static constexpr uint closedByUser = 2;

    void report(const char* signal, const QVariantList& arguments) {
        QMetaObject::invokeMethod(this, [signal, arguments] {
            auto message = QDBusMessage::createSignal(
                q("/org/freedesktop/Notifications"), q("org.freedesktop.Notifications"), q(signal));
            message.setArguments(arguments);
            QDBusConnection(q("desktop")).send(message);
        });
    }

    QMutex mutex_;
    QStringList capabilities_;
    QList<Notification> shown_;
    uint lastId_ = 0;
};

/// Both services, in a thread of their own: Qt waits for the tray's answers.
class Desktop {
public:
    bool begin() {
        thread_.start();
        for (QObject* object : {static_cast<QObject*>(&watcher), static_cast<QObject*>(&service)})
            object->moveToThread(&thread_);
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, q("desktop"));
        const auto all = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties;
        return bus.registerObject(q("/StatusNotifierWatcher"), &watcher, all) &&
               bus.registerObject(q("/org/freedesktop/Notifications"), &service, all) &&
               bus.registerService(q("org.kde.StatusNotifierWatcher")) &&
               bus.registerService(q("org.freedesktop.Notifications"));
    }
    ~Desktop() {
        QDBusConnection::disconnectFromBus(q("desktop"));
        thread_.quit();
        thread_.wait();
    }

    Watcher watcher;
    Service service;

private:
    QThread thread_;
};

Desktop* desktop;

/// Returns once the program has received what the service has reported so far: an answer comes
/// after that. It isn't delivered yet.
bool receiveReports() {
    const auto question = QDBusMessage::createMethodCall(
        q("org.freedesktop.Notifications"), q("/org/freedesktop/Notifications"),
        q("org.freedesktop.Notifications"), q("GetCapabilities"));
    return QDBusConnection::sessionBus().call(question).type() == QDBusMessage::ReplyMessage;
}

/// The main window with its icon in that desktop's tray.
struct Shown {
    Shown()
        : icon(new app::TrayIcon)
        , window(nullptr, std::unique_ptr<app::TrayIcon>(icon))
        , clicks(icon, &app::TrayIcon::balloonClicked) {
        window.show();
    }

    /// Closes the window, and returns the notification about that.
    Notification close() {
        const int before = desktop->service.shown().size();
        window.close();
        // Once the second one has come, the program knows the id of the first.
        icon->showBalloon(q("A further balloon"), QString());
        if (!QTest::qWaitFor([before] { return desktop->service.shown().size() == before + 2; }))
            qFatal("Not both notifications come");
        return desktop->service.shown().at(before);
    }

    app::TrayIcon* icon; ///< owned by the window
    SimpleGUIMainWindow window;
    QSignalSpy clicks;
};

} // namespace

/// The icon and the balloons on a desktop whose tray is on D-Bus.
class DBusTrayTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { desktop->service.begin(wholeService); }

    void theIconIsInTheTray() {
        app::TrayIcon icon;
        QVERIFY(icon.isAvailable());
        const int before = desktop->watcher.icons();
        icon.show();
        QTRY_COMPARE(desktop->watcher.icons(), before + 1);
    }

    void balloonsShowPlainText_data() {
        QTest::addColumn<QStringList>("capabilities");
        QTest::addColumn<QString>("text");
        QTest::newRow("as it is") << QStringList{q("body")} << q("Started - Backup - <b>A & B</b>");
        QTest::newRow("escaped") << wholeService
                                 << q("Started - Backup - &lt;b&gt;A &amp; B&lt;/b&gt;");
    }
    void balloonsShowPlainText() {
        QFETCH(QStringList, capabilities);
        QFETCH(QString, text);
        desktop->service.begin(capabilities);
        app::TrayIcon icon;
        icon.show();
        icon.showBalloon(q("A < B"), q("Started - Backup - <b>A & B</b>"));
        icon.showWarning(q("A < B"), q("Started - Backup - <b>A & B</b>"));
        QTRY_COMPARE(desktop->service.shown().size(), 2);
        const auto shown = desktop->service.shown();
        for (const Notification& notification : shown) {
            QCOMPARE(notification.title, q("A < B"));
            QCOMPARE(notification.text, text);
            QCOMPARE(notification.milliseconds, 10'000);
            // Only a service that knows actions gets one.
            QCOMPARE(notification.actions, capabilities.contains(q("actions"))
                                               ? QStringList({q("default"), q("OK")})
                                               : QStringList());
        }
        QCOMPARE(shown.at(0).icon, q("dialog-information"));
        QCOMPARE(shown.at(1).icon, q("dialog-warning"));
    }

    void aClickOnTheReminderEndsIt() {
        Shown shown;
        const Notification reminder = shown.close();
        QCOMPARE(reminder.title, q("Tarn-Mobile User is still running!"));
        QVERIFY(!shown.window.isVisible());

        desktop->service.click(reminder.id);
        QTRY_COMPARE(shown.clicks.size(), 1);
        shown.window.showMainWindow();
        QVERIFY(!shown.window.close());
        QVERIFY(!shown.window.isVisible());
        // By the time this one has come, the reminder would have.
        shown.icon->showBalloon(q("A later balloon"), QString());
        QTRY_COMPARE(desktop->service.shown().size(), 3);
        QCOMPARE(desktop->service.shown().last().title, q("A later balloon"));
        // Qt's own icon receives the click too.
        QCOMPARE(shown.clicks.size(), 1);
    }

    void aClickOnANotificationOfAnotherProgramIsIgnored() {
        Shown shown;
        const Notification first = shown.close();
        desktop->service.click(first.id + ofAnotherProgram);
        shown.window.showMainWindow();
        const Notification second = shown.close();
        QCOMPARE(second.title, first.title);
        QCOMPARE(shown.clicks.size(), 0);
        desktop->service.click(second.id);
        QTRY_COMPARE(shown.clicks.size(), 1);
    }

    void aClickOnAnOlderBalloonCounts() {
        Shown shown;
        const Notification first = shown.close();
        shown.window.showMainWindow();
        shown.close();
        desktop->service.click(first.id);
        QTRY_COMPARE(shown.clicks.size(), 1);
    }

    void theIdOfAClosedBalloonIsThatOfAnotherProgram() {
        Shown shown;
        const Notification closed = shown.close();
        desktop->service.close(closed.id);
        desktop->service.click(closed.id);
        QVERIFY(receiveReports());
        shown.window.showMainWindow();
        const Notification open = shown.close();
        QCOMPARE(shown.clicks.size(), 0);
        desktop->service.click(open.id);
        QTRY_COMPARE(shown.clicks.size(), 1);
    }

    /// A service that starts again counts from 1 again, so another program may have had an id
    /// first.
    void anIdThatAnotherProgramHadBeforeIsOurs_data() {
        QTest::addColumn<bool>("wasClicked");
        QTest::newRow("closed") << false;
        QTest::newRow("clicked") << true;
    }
    void anIdThatAnotherProgramHadBeforeIsOurs() {
        QFETCH(bool, wasClicked);
        Shown shown;
        const uint next = shown.close().id + 2;
        if (wasClicked)
            desktop->service.click(next);
        else
            desktop->service.close(next);
        QVERIFY(receiveReports());
        QCoreApplication::processEvents();
        shown.window.showMainWindow();
        const Notification reminder = shown.close();
        QCOMPARE(reminder.id, next);
        QVERIFY(receiveReports());
        support::letTimersFire();
        QCOMPARE(shown.clicks.size(), 0);
        desktop->service.click(reminder.id);
        QTRY_COMPARE(shown.clicks.size(), 1);
    }

    void aClickDuringAWaitCountsAfterwards() {
        support::GuiAgent agent;
        app::CallGate gate({20ms, 60ms});
        Shown shown;
        shown.window.keepAliveBy(gate);
        shown.window.doLogin(true);
        QVERIFY(session::connectedToAgent());
        const Notification reminder = shown.close();
        shown.window.showMainWindow();
        agent.inject("getTarnClientInfo", simulator::Silence{});
        bool received = false;
        int clicksInTheWait = 0;
        const support::InTheWait user([&] {
            if (!support::waitingPanel())
                return;
            if (!received) {
                desktop->service.click(reminder.id);
                received = receiveReports();
                return;
            }
            // The loop has delivered all that it delivers in a wait.
            clicksInTheWait = shown.clicks.size();
            support::clickDisconnect();
        });
        shown.window.refreshAll();
        QVERIFY(received);
        QCOMPARE(clicksInTheWait, 0);
        QTRY_COMPARE(shown.clicks.size(), 1);
    }
};

int main(int argc, char** argv) {
    support::Display display;
    support::Bus bus;
    if (!display.begin() || !bus.begin())
        qFatal("The display or the D-Bus session doesn't start");
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    // Before anything asks for a tray.
    Desktop services;
    desktop = &services;
    if (!services.begin())
        qFatal("The desktop's services can't be registered");
    DBusTrayTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "dbus_tray_test.moc"
