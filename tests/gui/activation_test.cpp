// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QFile>
#include <QTest>
#include <QWindow>

#include <qpa/qplatformwindow.h>

#include "app/simple_gui_main_window.h"
#include "resources/pictures.h"
#include "tests/support/gui_display.h"

namespace {

constexpr int limit = 10'000;              ///< milliseconds
constexpr QRect place(900, 500, 200, 200); ///< of the other program's window

/// Another program with a window; see `main`.
class OtherProgram : public support::Helper {
public:
    bool begin() {
        return launch(QCoreApplication::applicationFilePath(), {QStringLiteral("--other")}) &&
               line() == "active";
    }
};

bool asksForAttention(const QWidget& window) {
    return window.windowHandle()->handle()->isAlertState();
}

} // namespace

/// The window comes to the front of a desktop on which another program is in use.
class ActivationTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        window_ = std::make_unique<SimpleGUIMainWindow>();
        window_->setGeometry(50, 50, 700, 500);
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get(), limit));
    }
    void cleanup() { window_.reset(); }

    void isActivatedAfterItWasHidden() {
        OtherProgram other;
        QVERIFY(other.begin());
        for (int round = 0; round < 5; ++round) {
            window_->hide();
            // On a busy machine the events of hiding and showing arrive together: this doesn't
            // process any.
            QVERIFY(support::clickAt(place.center()));
            QVERIFY(!window_->isActiveWindow());
            window_->showMainWindow();
            QTRY_VERIFY_WITH_TIMEOUT(window_->isActiveWindow(), limit);
            QVERIFY(!asksForAttention(*window_));
        }
    }

    void isActivatedBehindAnotherWindow() {
        OtherProgram other;
        QVERIFY(other.begin());
        QTRY_VERIFY(!window_->isActiveWindow());
        QVERIFY(support::clickAt(place.center()));
        window_->showMainWindow();
        QTRY_VERIFY_WITH_TIMEOUT(window_->isActiveWindow(), limit);
    }

    void asksForAttentionWhereItIsRefused() {
        OtherProgram other;
        QVERIFY(other.begin());
        QTRY_VERIFY(!QGuiApplication::focusWindow());
        window_->hide();
        // The window manager takes this for a reason to refuse.
        window_->setWindowFlag(Qt::WindowDoesNotAcceptFocus);
        window_->showMainWindow();
        QTRY_VERIFY_WITH_TIMEOUT(asksForAttention(*window_), limit);
        QVERIFY(!window_->isActiveWindow());
    }

private:
    std::unique_ptr<SimpleGUIMainWindow> window_;
};

namespace {

int runOther(QApplication& application) {
    QWidget window;
    window.setGeometry(place);
    window.show();
    if (!QTest::qWaitForWindowActive(&window, limit))
        return 1;
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly))
        return 1;
    out.write("active\n");
    out.flush();
    return application.exec();
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && QLatin1String(argv[1]) == QLatin1String("--other")) {
        QApplication other(argc, argv);
        return runOther(other);
    }
    support::Display display;
    support::WindowManager manager;
    if (!display.begin() || !manager.begin())
        qFatal("The display or the window manager doesn't start");
    qputenv("QT_QPA_PLATFORM", "xcb");
    // The desktop's own tray must not be found.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QApplication application(argc, argv);
    ActivationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "activation_test.moc"
