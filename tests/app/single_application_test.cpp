// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/qt_single_application.h"

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QSemaphore>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include "platform/event_log.h"
#include "platform/local_server.h"
#include "platform/session_folder.h"

namespace {

bool serverIsOurs = true;
std::string prefix;
std::vector<std::string> errors;

} // namespace

/// Instead of the system's.
bool platform::isServedByThisUser(std::intptr_t) {
    return serverIsOurs;
}
std::string platform::sessionFilePrefix() {
    return prefix;
}
void platform::reportError(const std::string&, const std::string& text) {
    errors.push_back(text);
}

namespace {

QString fileName() {
    return QString::fromStdString(prefix) + QStringLiteral("tarn-mobile-user");
}

/// A server at the place of the first instance. It confirms whatever it receives.
class Server : public QThread {
public:
    Server() {
        start();
        listening_.acquire();
    }
    ~Server() override {
        requestInterruption();
        wait();
    }

    int connections() const { return connections_; }
    /// All that was received until now.
    QByteArray end() {
        requestInterruption();
        wait();
        return received_;
    }

private:
    void run() override {
        QLocalServer server;
        const bool listens = server.listen(fileName());
        listening_.release();
        while (listens && !isInterruptionRequested())
            if (server.waitForNewConnection(20))
                answer(*std::unique_ptr<QLocalSocket>(server.nextPendingConnection()));
    }

    void answer(QLocalSocket& client) {
        ++connections_;
        if (!client.waitForReadyRead(5000))
            return;
        received_ += client.readAll();
        client.write("!");
        client.flush();
        client.waitForDisconnected(5000);
    }

    QSemaphore listening_;
    std::atomic<int> connections_ = 0;
    QByteArray received_;
};

/// The application object of a start.
struct Start {
    int count = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QtSingleApplication application{count, arguments};
};

} // namespace

class SingleApplicationTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        prefix = folder_->path().toStdString() + '/';
        serverIsOurs = true;
        errors.clear();
    }

    void aLaterStartReachesTheFirst() {
        const Lock lock;
        Server first;
        QVERIFY(Start().application.sendMessage(QStringLiteral("a"), 5000));
        QCOMPARE(first.connections(), 1);
        QCOMPARE(first.end(), QByteArray("\0\0\0\1a", 5));
    }

    void theServerOfAnotherUserGetsNothing() {
        const Lock lock;
        Server stranger;
        serverIsOurs = false;
        QVERIFY(!Start().application.sendMessage(QStringLiteral("a"), 200));
        QVERIFY(stranger.connections() > 0);
        QCOMPARE(stranger.end(), QByteArray());
    }

    void aFirstStartListens() {
        const Start start;
        QLocalSocket peer;
        peer.connectToServer(fileName());
        QVERIFY(peer.waitForConnected(5000));
        QCOMPARE(errors.size(), std::size_t(0));
    }

    void aFirstStartThatCantListenSaysSo() {
        if (QSysInfo::kernelType() == QLatin1String("winnt"))
            QSKIP("The name of a pipe may be longer than that of a socket.");
        prefix += std::string(108, 'a'); // too long for a socket
        const Start start;
        QCOMPARE(errors.size(), std::size_t(1));
        QVERIFY(errors.front().find("can't reach this one: ") != std::string::npos);
    }

private:
    /// That of a first instance that runs.
    struct Lock : QLockFile {
        Lock()
            : QLockFile(fileName() + QStringLiteral(".lock")) {
            if (!tryLock())
                qFatal("The lock is held");
        }
    };

    std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_APPLESS_MAIN(SingleApplicationTest)
#include "single_application_test.moc"
