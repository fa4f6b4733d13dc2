// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QDateTime>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "app/call_gate.h"
#include "app/qt_single_application.h"
#include "app/simple_gui_main_window.h"
#include "platform/session_folder.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_wait.h"

using support::GuiAgent;
using namespace std::chrono_literals;

namespace {

/// The folder of the user's session.
constexpr char runtimeVariable[] = "XDG_RUNTIME_DIR";

/// The session file of a client.
QString sessionFile(const QString& runtimeDirectory, const QString& name) {
    const QString prefix = QString::fromStdString(platform::sessionFilePrefix());
    return runtimeDirectory + QLatin1Char('/') +
           prefix.mid(prefix.lastIndexOf(QLatin1Char('/')) + 1) + name;
}

/// The real program in its own process, which ends with this object. Its local agent is the one at
/// `agentPort`, and its runtime directory has no other clients than those started by the test.
class Client : public QProcess {
public:
    Client(const QString& runtimeDirectory, quint16 agentPort) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QLatin1String(runtimeVariable), runtimeDirectory);
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(TARN_PORT_REDIRECT));
        environment.insert(QStringLiteral("TARN_TEST_AGENT_PORT"), QString::number(agentPort));
        // The redirect is loaded before the sanitizer's own library, which is fine here.
        environment.insert(QStringLiteral("ASAN_OPTIONS"),
                           QStringLiteral("verify_asan_link_order=0:") +
                               environment.value(QStringLiteral("ASAN_OPTIONS")));
        setProcessEnvironment(environment);
        setWorkingDirectory(runtimeDirectory);
        setProcessChannelMode(QProcess::ForwardedChannels);
    }
    ~Client() override {
        kill();
        waitForFinished();
    }

    bool launch(const QStringList& arguments = {}) {
        start(QStringLiteral(TARN_PROGRAM), arguments);
        return waitForStarted();
    }
};

QtSingleApplication& application() {
    return *qobject_cast<QtSingleApplication*>(qApp);
}

} // namespace

/// Starts of the real program: alone, and while this process is the first instance.
class ProgramTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void listsTheSetsOfTheAgentAndAsksAgainWithEachHeartbeat() {
        const GuiAgent agent;
        const QTemporaryDir elsewhere;
        Client client(elsewhere.path(), agent.port());
        QVERIFY(client.launch());
        QVERIFY(agent.waitForCall("backup_sets_info", 1, 20s));
        QVERIFY(agent.waitForCall("backup_sets_info", 2, 20s));
        QCOMPARE(client.state(), QProcess::Running);
        QCOMPARE(agent.violations(), std::vector<std::string>{});
    }

    void runsOnWithoutAnAgentBehindTheLoginDialog() {
        // The dialog requests the domains before it opens, so that call shows how far the start
        // got.
        simulator::Options options;
        options.guest = false;
        const GuiAgent agent(options);
        const QTemporaryDir elsewhere;
        Client client(elsewhere.path(), agent.port());
        QVERIFY(client.launch());
        QVERIFY(agent.waitForCall("getAvailableDomains", 1, 20s));
        // Only a program whose event loop runs, here behind the dialog, answers a second start.
        Client second(elsewhere.path(), agent.port());
        QVERIFY(second.launch());
        QVERIFY(second.waitForFinished(20'000));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(!client.waitForFinished(0));
    }

    void aSecondStartRaisesTheFirstAndEnds_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("plain") << QStringList();
        // A missing translation would only be noticed later.
        QTest::newRow("with a language")
            << QStringList{QStringLiteral("--lang"), QStringLiteral("xx")};
    }
    void aSecondStartRaisesTheFirstAndEnds() {
        QFETCH(QStringList, arguments);
        const GuiAgent agent;
        SimpleGUIMainWindow window;
        window.showMinimized();
        QSignalSpy messages(&application(), &QtSingleApplication::messageReceived);
        connect(&application(), &QtSingleApplication::messageReceived, &window,
                &SimpleGUIMainWindow::showMainWindow);
        Client second(qEnvironmentVariable("XDG_RUNTIME_DIR"), agent.port());
        QVERIFY(second.launch(arguments));
        QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, 20'000);
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages[0][0].toString(), QString());
        QVERIFY(!window.isMinimized());
        QVERIFY(window.isVisible());
        QCOMPARE(agent.callLog().size(), std::size_t(0));
    }

    void aSecondStartCarriesOnWhenTheFirstDoesntAnswer() {
        const GuiAgent agent;
        QSignalSpy messages(&application(), &QtSingleApplication::messageReceived);
        Client second(qEnvironmentVariable("XDG_RUNTIME_DIR"), agent.port());
        QVERIFY(second.launch());
        // This waits without an event loop, so the second instance gets no answer from here.
        QVERIFY(agent.waitForCall("backup_sets_info", 1, 30s));
        // Receive the pending message now, so that it isn't taken for one of a later test. A named
        // pipe loses it with the connection.
        if (QSysInfo::kernelType() != QLatin1String("winnt"))
            QTRY_COMPARE(messages.size(), 1);
    }

    void aCrashOfTheFirstDoesntHoldUpTheNextStart() {
        const GuiAgent agent;
        const QTemporaryDir elsewhere;
        {
            Client crashed(elsewhere.path(), agent.port());
            QVERIFY(crashed.launch());
            QVERIFY(agent.waitForCall("backup_sets_info", 1, 20s));
        }
        const std::size_t logins = 2;
        Client next(elsewhere.path(), agent.port());
        QVERIFY(next.launch());
        QVERIFY(agent.waitForCall("login", logins, 20s));
        expectFirst(elsewhere.path(), agent.port());
    }

    void aLockThatNobodyHoldsDoesntHoldUpTheStart_data() {
        QTest::addColumn<QByteArray>("lock");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("damaged") << QByteArray("\xFF\n\n\0no lock at all", 18);
        QTest::newRow("of a machine that had another name")
            << QByteArray::number(QCoreApplication::applicationPid()) +
                   "\ntarn-mobile-user\nits-old-name\n";
    }
    void aLockThatNobodyHoldsDoesntHoldUpTheStart() {
        QFETCH(QByteArray, lock);
        const GuiAgent agent;
        const QTemporaryDir elsewhere;
        QFile file(sessionFile(elsewhere.path(), QStringLiteral("tarn-mobile-user.lock")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(lock), qint64(lock.size()));
        file.close();
        Client client(elsewhere.path(), agent.port());
        QVERIFY(client.launch());
        QVERIFY(agent.waitForCall("backup_sets_info", 1, 20s));
        expectFirst(elsewhere.path(), agent.port());
    }

    void aLockOfALongTimeAgoIsStillHeld() {
        const GuiAgent agent;
        QSignalSpy messages(&application(), &QtSingleApplication::messageReceived);
        QFile lock(socketPath() + QStringLiteral(".lock"));
        QVERIFY(lock.open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-2),
                                 QFileDevice::FileModificationTime));
        Client second(qEnvironmentVariable("XDG_RUNTIME_DIR"), agent.port());
        QVERIFY(second.launch());
        QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, 20'000);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(messages.size(), 1);
        QCOMPARE(agent.callLog().size(), std::size_t(0));
    }

    void onlyItsUserReachesTheFirstInstance() {
        const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                          QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        if (QSysInfo::kernelType() == QLatin1String("winnt"))
            QSKIP("A named pipe isn't a file with permissions.");
        QVERIFY(QFile::exists(socketPath()));
        QCOMPARE(QFile::permissions(socketPath()) & others, QFile::Permissions());
    }

    void theEndOfTheDesktopsSessionEndsTheProgram() {
        SimpleGUIMainWindow window;
        window.show();
        QTimer::singleShot(0, &window, [] {
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(&application(), &quit);
        });
        QTimer::singleShot(2000, &window, [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    void theEndOfTheDesktopsSessionIsFollowedDuringAWait() {
        GuiAgent agent;
        app::CallGate gate({20ms, 60ms});
        support::MainWindowDriver driver;
        driver.window().keepAliveBy(gate);
        driver.logIn(agent);
        agent.inject("getTarnClientInfo", simulator::Silence{});
        bool ended = false;
        const support::InTheWait desktop([&ended] {
            if (std::exchange(ended, true))
                return;
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(&application(), &quit);
        });
        driver.postBeat();
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(ended);
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(support::methodsOf(agent), std::vector<std::string>{"getTarnClientInfo"});
    }

    void theFirstInstanceSendsNothing() {
        QVERIFY(!application().sendMessage(QStringLiteral("to myself"), 5000));
    }

    void messagesThatComeInPiecesAreWhole() {
        QSignalSpy messages(&application(), &QtSingleApplication::messageReceived);
        QLocalSocket peer;
        connectTo(peer);
        for (const char byte : QByteArray("\0\0\0\3a\xC3\xA4", 7)) {
            QCOMPARE(messages.size(), 0);
            QCOMPARE(peer.write(&byte, 1), qint64(1));
            peer.flush();
            QTRY_COMPARE(peer.bytesToWrite(), qint64(0));
            QTest::qWait(1);
        }
        QTRY_COMPARE(messages.size(), 1);
        QCOMPARE(messages[0][0].toString(), QString::fromUtf8("aä"));
        QTRY_COMPARE(peer.bytesAvailable(), qint64(1));
    }

    void aPeerThatAnnouncesTooMuchIsDropped() {
        QSignalSpy messages(&application(), &QtSingleApplication::messageReceived);
        QLocalSocket peer;
        connectTo(peer);
        peer.write(QByteArray("\xFF\xFF\xFF\xFF", 4));
        QTRY_COMPARE(peer.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(messages.size(), 0);
    }

private:
    static QString socketPath() {
        return sessionFile(qEnvironmentVariable("XDG_RUNTIME_DIR"),
                           QStringLiteral("tarn-mobile-user"));
    }

    static void connectTo(QLocalSocket& peer) {
        peer.connectToServer(socketPath());
        QVERIFY(peer.waitForConnected(5000));
    }

    /// The client there is the first instance: it waited for no other, and answers the next one.
    static void expectFirst(const QString& runtimeDirectory, quint16 agentPort) {
        Client second(runtimeDirectory, agentPort);
        QVERIFY(second.launch());
        QVERIFY(second.waitForFinished(20'000));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
    }
};

int main(int argc, char** argv) {
    const QTemporaryDir runtimeDirectory;
    qputenv(runtimeVariable, runtimeDirectory.path().toLocal8Bit());
    QtSingleApplication application(argc, argv);
    ProgramTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "program_test.moc"
