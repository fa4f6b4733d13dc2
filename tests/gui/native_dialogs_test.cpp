// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The file dialogs of Windows, and what the program gets from them.
#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

#include "app/start_up.h"
#include "config/tfa_users_viewer.h"
#include "resources/pictures.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 20s;
constexpr auto timeBetweenLooks = 20ms;
constexpr UINT timeToAnswer = 5000;

bool waitFor(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(timeBetweenLooks);
    }
    return true;
}

std::wstring classOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

QString textOf(HWND window) {
    wchar_t text[1024] = {};
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text), SMTO_NORMAL,
                        timeToAnswer, &length);
    return QString::fromWCharArray(text);
}

/// The system's dialog of this process; null without one.
HWND openDialog() {
    HWND found = nullptr;
    EnumWindows(
        [](HWND window, LPARAM result) -> BOOL {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process != GetCurrentProcessId() || !IsWindowVisible(window) ||
                classOf(window) != L"#32770")
                return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// Where the name of the file is typed.
HWND nameFieldOf(HWND dialog) {
    HWND found = nullptr;
    EnumChildWindows(
        dialog,
        [](HWND window, LPARAM result) -> BOOL {
            if (classOf(window) != L"Edit" || !IsWindowVisible(window))
                return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// Answers the next dialog of the system from a thread of its own, as the dialog blocks the
/// program's. If none opens, closes the dialog that opened instead.
class DialogUser {
public:
    /// Enters `name` and presses the button with that id.
    DialogUser(const QString& name, WORD button)
        : thread_([this, name = QDir::toNativeSeparators(name), button] {
            answered_ = answer(name, button);
            if (!answered_)
                giveUp();
        }) {}
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;
    ~DialogUser() {
        if (thread_.joinable())
            thread_.join();
    }

    /// Whether a dialog was answered and has closed.
    bool done() {
        thread_.join();
        return answered_;
    }
    const QString& title() const { return title_; }
    const QString& proposedName() const { return proposedName_; }

private:
    bool answer(const QString& name, WORD button) {
        HWND field = nullptr;
        if (!waitFor([&] { return (dialog_ = openDialog()) && (field = nameFieldOf(dialog_)); }))
            return false;
        title_ = textOf(dialog_);
        proposedName_ = textOf(field);
        const std::wstring wide = name.toStdWString();
        DWORD_PTR result = 0;
        SendMessageTimeoutW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide.c_str()),
                            SMTO_NORMAL, timeToAnswer, &result);
        if (textOf(field) != name)
            return false;
        PostMessageW(dialog_, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                     reinterpret_cast<LPARAM>(GetDlgItem(dialog_, button)));
        return waitFor([&] { return !IsWindow(dialog_); });
    }

    void giveUp() {
        PostMessageW(dialog_, WM_CLOSE, 0, 0);
        QMetaObject::invokeMethod(qApp, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
    }

    HWND dialog_ = nullptr;
    QString title_;
    QString proposedName_;
    bool answered_ = false;
    std::thread thread_;
};

/// A folder whose name no ANSI code page holds.
class Folder {
public:
    QString pathOf(const QString& name) const { return folder_.filePath(name); }
    QStringList names() const { return QDir(folder_.path()).entryList(QDir::Files); }

private:
    QTemporaryDir folder_{QDir::temp().filePath(QStringLiteral("Jürgen Ωmega XXXXXX"))};
};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class NativeDialogsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void theLogIsExportedToTheChosenFile_data() {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("written");
        QTest::newRow("with the suffix")
            << QStringLiteral("Ωlog ü.csv") << QStringLiteral("Ωlog ü.csv");
        QTest::newRow("without the suffix")
            << QStringLiteral("Журнал") << QStringLiteral("Журнал.csv");
    }
    void theLogIsExportedToTheChosenFile() {
        QFETCH(QString, entered);
        QFETCH(QString, written);
        const Folder folder;
        DialogUser user(folder.pathOf(entered), IDOK);
        exportLog();
        QVERIFY(user.done());
        QCOMPARE(user.title(), QStringLiteral("Export Log"));
        // Windows may hide the suffix.
        QVERIFY2(user.proposedName().startsWith(QLatin1String("log")),
                 qPrintable(user.proposedName()));
        QCOMPARE(folder.names(), QStringList{written});
        QVERIFY(contentOf(folder.pathOf(written))
                    .startsWith("\xEF\xBB\xBF"
                                "Type,Description,Errors,"));
    }

    void aCancelledExportWritesNothing() {
        const Folder folder;
        DialogUser user(folder.pathOf(QStringLiteral("log.csv")), IDCANCEL);
        exportLog();
        QVERIFY(user.done());
        QCOMPARE(folder.names(), QStringList());
    }

    void usersAreImportedFromTheChosenFile() {
        const Folder folder;
        const QString path = folder.pathOf(QStringLiteral("Пользователи ü.csv"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("dan,home,dan@example.org\n");
        file.close();
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        driver.logIn(agent);
        TFAUsersViewer viewer(&driver.window());
        viewer.show();
        const auto& users = *support::child<QTableView>(viewer, "tableUsers").model();
        QTRY_COMPARE(users.rowCount(), 2);
        DialogUser user(path, IDOK);
        support::child<QPushButton>(viewer, "btnImport").click();
        QVERIFY(user.done());
        QCOMPARE(user.title(), QStringLiteral("Please choose a .CSV file"));
        QCOMPARE(users.rowCount(), 3);
        QCOMPARE(users.index(2, 0).data().toString(), QStringLiteral("dan"));
    }

    void quittingClosesTheDialog() {
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        driver.logIn(agent);
        bool closed = false;
        std::thread user([&] {
            HWND dialog = nullptr;
            const bool opened = waitFor([&] { return (dialog = openDialog()) != nullptr; });
            QMetaObject::invokeMethod(&driver.window(), "OnQuit", Qt::QueuedConnection);
            closed = opened && waitFor([&] { return !IsWindow(dialog); });
            if (opened && !closed)
                PostMessageW(dialog, WM_CLOSE, 0, 0);
        });
        exportLog(driver);
        user.join();
        QVERIFY(closed);
    }

private:
    static void exportLog(support::MainWindowDriver& driver) {
        support::child<QTabWidget>(driver.window(), "tabWidget").setCurrentIndex(1);
        support::child<QPushButton>(driver.window(), "buttonExport").click();
    }

    static void exportLog() {
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        driver.logIn(agent);
        exportLog(driver);
    }
};

int main(int argc, char** argv) {
    // The offscreen platform has no dialogs.
    qputenv("QT_QPA_PLATFORM", "windows");
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    NativeDialogsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "native_dialogs_test.moc"
