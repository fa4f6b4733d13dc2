// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/qt_single_application.h"

#include <memory>

#include <QDeadlineTimer>
#include <QEvent>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QtEndian>

#include "platform/event_log.h"
#include "platform/local_server.h"
#include "platform/session_folder.h"

namespace {

// A message is its UTF-8 length in 4 bytes, then the text; the answer is one byte.
constexpr int lengthSize = 4;
constexpr quint32 longestMessage = 64 * 1024;
constexpr char confirmation = '!';
constexpr int pauseBeforeNextTry = 20;

/// Whether this process is the first instance. If no lock can be created at all, it is.
bool takeLock(QLockFile& lock) {
    if (lock.tryLock())
        return true;
    // The file may be damaged, or name this machine by an old name. Only a file that isn't held by
    // a running process is removed.
    if (lock.error() == QLockFile::LockFailedError && lock.removeStaleLockFile() && lock.tryLock())
        return true;
    return lock.error() != QLockFile::LockFailedError;
}

QString inSession(const QString& name) {
    const QString prefix = QString::fromStdString(platform::sessionFilePrefix());
    if (!prefix.isEmpty())
        return prefix + name;
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QLatin1Char('/') +
           name;
}

QByteArray frame(const QString& message) {
    const QByteArray text = message.toUtf8();
    QByteArray bytes(lengthSize, '\0');
    qToBigEndian(static_cast<quint32>(text.size()), bytes.data());
    return bytes + text;
}

/// Retries, because the first instance may hold its lock before it listens, and because another
/// user may have taken the name: all users of Windows share the names of pipes, and a pipe may have
/// several servers.
bool connectUntil(QLocalSocket& socket, const QString& name, const QDeadlineTimer& deadline) {
    while (!deadline.hasExpired()) {
        socket.connectToServer(name);
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime())) &&
            platform::isServedByThisUser(socket.socketDescriptor()))
            return true;
        // A server can take on the identity of a client once it has read something.
        socket.abort();
        QThread::msleep(pauseBeforeNextTry);
    }
    return false;
}

/// Whether a complete message has arrived; if so, moves it from the socket to `message`.
bool takeMessage(QLocalSocket& socket, QString& message) {
    if (socket.bytesAvailable() < lengthSize)
        return false;
    const QByteArray head = socket.peek(lengthSize);
    const auto length = qFromBigEndian<quint32>(head.constData());
    if (length > longestMessage) {
        socket.abort();
        return false;
    }
    if (socket.bytesAvailable() < lengthSize + static_cast<qint64>(length))
        return false;
    socket.skip(lengthSize);
    message = QString::fromUtf8(socket.read(length));
    return true;
}

} // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv)
    : QApplication(argc, argv)
    , socketName_(inSession(QStringLiteral("tarn-mobile-user")))
    , lock_(socketName_ + QStringLiteral(".lock")) {
    // However old the lock is, the system doesn't release it while its process lives.
    first_ = takeLock(lock_);
    if (first_)
        listen();
}

bool QtSingleApplication::sendMessage(const QString& message, int timeout) {
    if (first_)
        return false;
    const QDeadlineTimer deadline(timeout);
    QLocalSocket socket;
    if (!connectUntil(socket, socketName_, deadline))
        return false;
    socket.write(frame(message));
    while (socket.bytesAvailable() == 0)
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return false;
    return socket.read(1) == QByteArray(1, confirmation);
}

bool QtSingleApplication::event(QEvent* event) {
    if (event->type() == QEvent::Quit) {
        // The desktop session ends. Qt would close all windows first, and keep running because of
        // one that only hides.
        quit();
        return true;
    }
    return QApplication::event(event);
}

void QtSingleApplication::listen() {
    connect(&server_, &QLocalServer::newConnection, this, &QtSingleApplication::receive);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    // This process holds the lock, so an existing socket was left by a crash.
    QLocalServer::removeServer(socketName_);
    if (!server_.listen(socketName_))
        platform::reportError("Tarn-Mobile User", "Later starts can't reach this one: " +
                                                      server_.errorString().toStdString());
}

void QtSingleApplication::receive() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        auto take = [this, socket] {
            QString message;
            if (!takeMessage(*socket, message))
                return;
            socket->write(&confirmation, 1);
            socket->flush();
            emit messageReceived(message);
        };
        connect(socket, &QLocalSocket::readyRead, this, take);
        take();
    }
}
