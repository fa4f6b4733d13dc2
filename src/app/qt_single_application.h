// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QLocalServer>
#include <QLockFile>
#include <QString>

/// The application object of a program that runs once per user and session. The first process
/// listens for messages of later ones; a lock file of the session determines which is first, so
/// that the leftovers of a crash can't block the next start.
class QtSingleApplication : public QApplication {
    Q_OBJECT
public:
    QtSingleApplication(int& argc, char** argv);

    /// Sends the message to the first instance. True if it confirms within the time-out, in
    /// milliseconds; immediately false if this process is the first. A server of another user gets
    /// nothing.
    bool sendMessage(const QString& message, int timeout = 5000);

    bool event(QEvent* event) override;

signals:
    /// Another process was started and sent this. The text may be empty.
    void messageReceived(const QString& message);

private:
    void listen();
    void receive();

    QString socketName_;
    QLockFile lock_;
    QLocalServer server_;
    bool first_ = false;
};
