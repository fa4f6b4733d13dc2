// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The messages by which Windows and installers judge a program: whether it responds, and whether it
// lets a session end.
#include <atomic>
#include <memory>
#include <thread>

#include <QTest>

#include <windows.h>

#include "app/call_gate.h"
#include "app/start_up.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_wait.h"

using namespace std::chrono_literals;

namespace {

/// The time after which Windows considers a thread hung, in milliseconds.
constexpr UINT patience = 5000;

/// An application is asked to close for its update.
constexpr LPARAM endOfSession = 1; // ENDSESSION_CLOSEAPP

/// A message-only window of this thread, which needs no display.
class MessageWindow {
public:
    MessageWindow()
        : handle_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                                  nullptr)) {}
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;
    ~MessageWindow() { DestroyWindow(handle_); }

    HWND handle() const { return handle_; }

private:
    HWND handle_;
};

/// Sends messages to a window, waiting for each answer.
class Sender {
public:
    Sender(HWND window, int count)
        : thread_([this, window, count] {
            for (int message = 0; message < count; ++message) {
                DWORD_PTR result = 0;
                if (SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, patience, &result))
                    ++answered;
            }
            finished = true;
        }) {}
    Sender(const Sender&) = delete;
    Sender& operator=(const Sender&) = delete;
    ~Sender() { thread_.join(); }

    std::atomic<int> answered = 0;
    std::atomic<bool> finished = false;

private:
    std::thread thread_;
};

} // namespace

class WindowMessagesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void areAnsweredWhileTheAgentIsSilent() {
        support::GuiAgent agent;
        app::CallGate gate({20ms, 60ms});
        support::MainWindowDriver driver;
        driver.window().keepAliveBy(gate);
        driver.logIn(agent);
        agent.inject("getTarnClientInfo", simulator::Silence{});
        const MessageWindow window;
        QVERIFY(window.handle());
        std::unique_ptr<Sender> sender;
        const support::InTheWait user([&] {
            if (!sender)
                sender = std::make_unique<Sender>(window.handle(), 20);
            if (sender->finished && support::waitingPanel())
                support::clickDisconnect();
        });
        driver.beat();
        QVERIFY(sender);
        QCOMPARE(int(sender->answered), 20);
        QVERIFY(!session::connectedToAgent());
    }

    /// Windows may kill the process once its windows have answered.
    void theEndOfTheSessionLogsOutBeforeItsMessageIsAnswered() {
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        app::CallGate gate;
        app::logOutAtQuit(*qApp, gate);
        driver.logIn(agent);
        SendMessageW(reinterpret_cast<HWND>(driver.window().winId()), WM_ENDSESSION, TRUE, 0);
        QCOMPARE(support::methodsOf(agent), std::vector<std::string>{"logout"});
        QVERIFY(!session::connectedToAgent());
    }

    void theEndOfTheSessionIsAllowedAndEndsTheProgram() {
        support::MainWindowDriver driver;
        driver.window().show();
        const auto handle = reinterpret_cast<HWND>(driver.window().winId());
        std::atomic<LRESULT> allowed = -1;
        std::thread system;
        QTimer::singleShot(0, &driver.window(), [&] {
            system = std::thread([&] {
                allowed = SendMessageW(handle, WM_QUERYENDSESSION, 0, endOfSession);
                PostMessageW(handle, WM_ENDSESSION, TRUE, endOfSession);
            });
        });
        QTimer tooLate;
        tooLate.start(10s);
        connect(&tooLate, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
        const int status = QApplication::exec();
        system.join();
        QCOMPARE(status, 0);
        QCOMPARE(LRESULT(allowed), LRESULT(TRUE));
        QVERIFY(driver.window().isVisible());
    }
};

int main(int argc, char** argv) {
    // The offscreen platform doesn't handle the messages of a session's end.
    qputenv("QT_QPA_PLATFORM", "windows");
    app::prepareToolkit();
    QApplication application(argc, argv);
    WindowMessagesTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "window_messages_test.moc"
