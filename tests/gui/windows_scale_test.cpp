// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The scale that the user has set in Windows. Each is looked at in a process of its own, since it
// is read once.
#include <cstdio>

#include <QProcess>
#include <QTest>

#include <windows.h>

#include "app/simple_gui_main_window.h"
#include "app/start_up.h"
#include "resources/pictures.h"

namespace {

constexpr char reportArgument[] = "--report-scale";

/// By the pixels of the system.
bool fitsOnScreen(const QWidget& window) {
    RECT frame{};
    RECT room{};
    return GetWindowRect(reinterpret_cast<HWND>(window.winId()), &frame) &&
           SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0) && frame.left >= room.left &&
           frame.top >= room.top && frame.right <= room.right && frame.bottom <= room.bottom;
}

/// Prints the scale, and whether the main window opens on the screen as a whole.
int reportScale(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "windows");
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    resources::initPictures();
    SimpleGUIMainWindow window;
    app::showAtOnce(window);
    const bool fits = QTest::qWaitFor([&] { return fitsOnScreen(window); });
    std::printf("%.4f %s", application.devicePixelRatio(), fits ? "fits" : "cut");
    return 0;
}

/// The user's choice of dots per inch, for as long as it lives.
class ChosenDots {
public:
    explicit ChosenDots(DWORD dots) {
        DWORD size = sizeof before_;
        hadOne_ = RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_DWORD, nullptr, &before_,
                               &size) == ERROR_SUCCESS;
        set(dots);
    }
    ChosenDots(const ChosenDots&) = delete;
    ChosenDots& operator=(const ChosenDots&) = delete;
    ~ChosenDots() {
        if (hadOne_)
            set(before_);
        else
            RegDeleteKeyValueW(HKEY_CURRENT_USER, key, name);
    }

private:
    static constexpr const wchar_t* key = L"Control Panel\\Desktop";
    static constexpr const wchar_t* name = L"LogPixels";

    static void set(DWORD dots) {
        if (RegSetKeyValueW(HKEY_CURRENT_USER, key, name, REG_DWORD, &dots, sizeof dots) !=
            ERROR_SUCCESS)
            qFatal("the dots per inch can't be chosen");
    }

    DWORD before_ = 0;
    bool hadOne_ = false;
};

/// What a new process reports.
QList<QByteArray> reportAt(unsigned dots) {
    const ChosenDots chosen(dots);
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(reportArgument)});
    return program.waitForFinished() ? program.readAllStandardOutput().split(' ')
                                     : QList<QByteArray>();
}

} // namespace

class WindowsScaleTest : public QObject {
    Q_OBJECT
private slots:
    void isTheUsers_data() {
        QTest::addColumn<unsigned>("dots");
        QTest::addColumn<QByteArray>("scale");
        QTest::newRow("100 %") << 96u << QByteArray("1.0000");
        QTest::newRow("125 %") << 120u << QByteArray("1.2500");
        QTest::newRow("150 %") << 144u << QByteArray("1.5000");
        QTest::newRow("200 %") << 192u << QByteArray("2.0000");
    }
    void isTheUsers() {
        QFETCH(unsigned, dots);
        QFETCH(QByteArray, scale);
        QCOMPARE(reportAt(dots).value(0), scale);
    }

    /// Not of 200 %: the screen of a test would have 800 x 500 logical pixels.
    void leavesTheMainWindowOnTheScreen_data() {
        QTest::addColumn<unsigned>("dots");
        QTest::newRow("100 %") << 96u;
        QTest::newRow("150 %") << 144u;
    }
    void leavesTheMainWindowOnTheScreen() {
        QFETCH(unsigned, dots);
        QCOMPARE(reportAt(dots).value(1), QByteArray("fits"));
    }
};

int main(int argc, char** argv) {
    if (argc > 1 && qstrcmp(argv[1], reportArgument) == 0)
        return reportScale(argc, argv);
    const QCoreApplication application(argc, argv);
    WindowsScaleTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "windows_scale_test.moc"
