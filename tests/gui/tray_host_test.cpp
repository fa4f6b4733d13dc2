// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QProcess>
#include <QTest>

#include "app/simple_gui_main_window.h"
#include "resources/pictures.h"

namespace {

/// A process that ends with this object.
class Helper : public QProcess {
public:
    ~Helper() override {
        terminate();
        if (!waitForFinished(2000))
            kill();
        waitForFinished();
    }

    bool launch(const QString& program, const QStringList& arguments) {
        start(program, arguments);
        return waitForStarted();
    }
};

/// A virtual display. It becomes the display of this process and its children.
class Display : public Helper {
public:
    bool begin() {
        if (!launch(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1280x800x24"),
                     QStringLiteral("-nolisten"), QStringLiteral("tcp")}))
            return false;
        QByteArray number;
        while (!number.endsWith('\n') && waitForReadyRead(10'000))
            number += readAllStandardOutput();
        return number.endsWith('\n') && qputenv("DISPLAY", ":" + number.trimmed());
    }
};

} // namespace

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
        const QPoint icon = tray.geometry().center();
        Helper mouse;
        QVERIFY(mouse.launch(QStringLiteral("xdotool"),
                             {QStringLiteral("mousemove"), QString::number(icon.x()),
                              QString::number(icon.y()), QStringLiteral("click"),
                              QStringLiteral("1")}));
        QTRY_VERIFY_WITH_TIMEOUT(window.isVisible(), 10'000);
    }

private:
    /// The host is at the lower edge; an icon that isn't embedded is elsewhere.
    static bool isInTheHost(const app::TrayIcon& tray) {
        return tray.geometry().width() > 1 && tray.geometry().top() >= 800 - 32;
    }
};

int main(int argc, char** argv) {
    Display display;
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
