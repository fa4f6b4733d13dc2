// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The icon in the tray of Windows, which sends a message for each click to a hidden window of Qt's.
#include <memory>
#include <string>
#include <vector>

#include <QTest>

#include <windows.h>

#include <shellapi.h>

#include "app/simple_gui_main_window.h"
#include "resources/pictures.h"

namespace {

struct Balloon {
    QString title;
    QString text;
    QSystemTrayIcon::MessageIcon icon = QSystemTrayIcon::NoIcon;
};

/// Remembers the balloons that it hands to Windows.
class RecordingTray : public app::TrayIcon {
public:
    std::vector<Balloon> balloons;

protected:
    void showNative(const QString& title, const QString& text, MessageIcon icon) override {
        balloons.push_back({title, text, icon});
        app::TrayIcon::showNative(title, text, icon);
    }
};

BOOL CALLBACK takeWindowOfIcon(HWND window, LPARAM found) {
    wchar_t name[256];
    if (!GetClassNameW(window, name, 256) ||
        !std::wstring(name).ends_with(L"TrayIconMessageWindowClass"))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND windowOfIcon() {
    HWND window = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), takeWindowOfIcon, reinterpret_cast<LPARAM>(&window));
    return window;
}

/// As the shell does, in its version 4.
void notify(UINT event) {
    constexpr UINT ofTheIcon = WM_APP + 101;
    SendMessageW(windowOfIcon(), ofTheIcon, 0, MAKELPARAM(event, 0));
}

} // namespace

class WindowsTrayTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void init() {
        QVERIFY(QSystemTrayIcon::isSystemTrayAvailable());
        auto tray = std::make_unique<RecordingTray>();
        tray_ = tray.get();
        window_ = std::make_unique<SimpleGUIMainWindow>(nullptr, std::move(tray));
        window_->show();
        QVERIFY(windowOfIcon());
    }

    void cleanup() {
        window_.reset();
        QVERIFY(!windowOfIcon());
    }

    void aClickBringsTheWindowBack_data() {
        QTest::addColumn<unsigned>("event");
        QTest::newRow("mouse") << unsigned(NIN_SELECT);
        QTest::newRow("keyboard") << unsigned(NIN_KEYSELECT);
    }

    void aClickBringsTheWindowBack() {
        QFETCH(unsigned, event);
        QVERIFY(!window_->close());
        QVERIFY(!window_->isVisible());
        notify(event);
        QVERIFY(window_->isVisible());
        QTRY_VERIFY(window_->isActiveWindow());
        QCOMPARE(GetForegroundWindow(), reinterpret_cast<HWND>(window_->winId()));
    }

    void aBalloonRemindsUntilItIsClicked() {
        window_->close();
        window_->showMainWindow();
        window_->close();
        QCOMPARE(tray_->balloons.size(), std::size_t{2});
        notify(NIN_BALLOONUSERCLICK);
        window_->showMainWindow();
        window_->close();
        QVERIFY(!window_->isVisible());
        QCOMPARE(tray_->balloons.size(), std::size_t{2});
    }

    void aBalloonHasItsTextAndKind() {
        tray_->showBalloon(QStringLiteral("Title"), QStringLiteral("Text"));
        tray_->showWarning(QStringLiteral("Warning"), QString(200, QLatin1Char('a')) +
                                                          QLatin1Char('\n') +
                                                          QString(100, QLatin1Char('b')));
        QCOMPARE(tray_->balloons.size(), std::size_t{2});
        const Balloon& plain = tray_->balloons[0];
        QCOMPARE(plain.title, QStringLiteral("Title"));
        QCOMPARE(plain.text, QStringLiteral("Text"));
        QCOMPARE(plain.icon, QSystemTrayIcon::Information);
        const Balloon& warning = tray_->balloons[1];
        QCOMPARE(warning.title, QStringLiteral("Warning"));
        // Windows takes 255 characters.
        QCOMPARE(warning.text, QString(200, QLatin1Char('a')) + QStringLiteral("\n\u2026"));
        QCOMPARE(warning.icon, QSystemTrayIcon::Warning);
    }

    void theIconComesBackAfterARestartOfTheShell() {
        NOTIFYICONDATAW icon{};
        icon.cbSize = sizeof icon;
        icon.hWnd = windowOfIcon();
        QVERIFY(Shell_NotifyIconW(NIM_DELETE, &icon));
        QVERIFY(!Shell_NotifyIconW(NIM_MODIFY, &icon));
        SendMessageW(icon.hWnd, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
        QVERIFY(Shell_NotifyIconW(NIM_MODIFY, &icon));
    }

private:
    RecordingTray* tray_ = nullptr; ///< owned by the window
    std::unique_ptr<SimpleGUIMainWindow> window_;
};

QTEST_MAIN(WindowsTrayTest)
#include "windows_tray_test.moc"
