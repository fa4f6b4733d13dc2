// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "app/simple_gui_main_window.h"
#include "app/start_up.h"
#include "tests/support/gui_display.h"
#include "tests/tour/album.h"
#include "tests/tour/display_test.h"
#include "tests/tour/stories.h"

namespace {

/// A Wayland compositor without a screen. It becomes the display of this process.
class Compositor : public support::Helper {
public:
    bool begin(const QString& runtimeFolder) {
        const QString socket = QStringLiteral("wayland-test");
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder));
        setProcessChannelMode(QProcess::MergedChannels);
        if (!launch(QStringLiteral("weston"),
                    {QStringLiteral("--backend=headless-backend.so"), QStringLiteral("--no-config"),
                     QStringLiteral("--idle-time=0"), QStringLiteral("--width=1600"),
                     QStringLiteral("--height=1000"), QStringLiteral("--socket=") + socket}))
            return false;
        const QDeadlineTimer deadline(10'000);
        const QString path = runtimeFolder + QLatin1Char('/') + socket;
        while (!QFile::exists(path) && !deadline.hasExpired())
            waitForReadyRead(100);
        return QFile::exists(path) && qputenv("WAYLAND_DISPLAY", socket.toLatin1());
    }
};

} // namespace

/// The program on Wayland.
class WaylandTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QCOMPARE(QGuiApplication::platformName(), QStringLiteral("wayland")); }

    void everyScreenOpens() {
        tour::Album album(QStringLiteral("Out of order."));
        tour::takeAll(album);
        QCOMPARE(album.missing(), QStringList());
        // Those of the content don't depend on the display.
        QCOMPARE(album.defects().filter(QStringLiteral("isn't on the screen")), QStringList());
    }

    void withoutATrayTheWindowStays() {
        QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
        SimpleGUIMainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(!window.close());
        QVERIFY(window.isVisible());
        window.hideMainWindow();
        QVERIFY(window.isVisible());
        window.showMainWindow();
        QVERIFY(window.isVisible());
        QVERIFY(!app::startsInTray({QStringLiteral("--tray")}));
    }
};

int main(int argc, char** argv) {
    const QTemporaryDir runtimeFolder;
    Compositor compositor;
    if (!compositor.begin(runtimeFolder.path()))
        qFatal("weston doesn't start:\n%s", compositor.readAll().constData());
    return tour::runTest<WaylandTest>("wayland", argc, argv);
}

#include "wayland_test.moc"
