// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QTest>

#include "app/simple_gui_main_window.h"
#include "resources/pictures.h"
#include "tests/support/gui_display.h"

using support::Helper;

/// The icon in a real tray: embedded by a tray host, and clicked with the mouse.
class TrayHostTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void theIconStandsInTheTrayAndAClickBringsTheWindowBack() {
        Helper host;
        QVERIFY(host.launch(QStringLiteral("trayer"),
                            {QStringLiteral("--edge"), QStringLiteral("bottom"),
                             QStringLiteral("--widthtype"), QStringLiteral("pixel"),
                             QStringLiteral("--width"), QStringLiteral("200"),
                             QStringLiteral("--height"), QStringLiteral("32")}));
        QTRY_VERIFY_WITH_TIMEOUT(QSystemTrayIcon::isSystemTrayAvailable(), 10'000);

        auto owned = std::make_unique<app::TrayIcon>();
        const app::TrayIcon& tray = *owned;
        SimpleGUIMainWindow window(nullptr, std::move(owned));
        window.show();
        QTRY_VERIFY_WITH_TIMEOUT(isInTheHost(tray), 10'000);

        QVERIFY(!window.close());
        QVERIFY(!window.isVisible());
        QVERIFY(support::clickAt(tray.geometry().center()));
        QTRY_VERIFY_WITH_TIMEOUT(window.isVisible(), 10'000);
    }

private:
    /// The host is at the lower edge; an icon that isn't embedded is elsewhere.
    static bool isInTheHost(const app::TrayIcon& tray) {
        return tray.geometry().width() > 1 && tray.geometry().top() >= 800 - 32;
    }
};

int main(int argc, char** argv) {
    support::Display display;
    if (!display.begin())
        qFatal("Xvfb doesn't start");
    qputenv("QT_QPA_PLATFORM", "xcb");
    // The desktop's own tray must not be found instead of the test's.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QApplication application(argc, argv);
    TrayHostTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tray_host_test.moc"
