// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QObject>
#include <QSet>
#include <QString>

namespace app {

/// The notification service of a desktop whose tray is on D-Bus, `org.freedesktop.Notifications` as
/// defined by freedesktop.org.
///
/// Qt shows the messages of its tray icon there too, but without a default action, so that most
/// services report no click, and without escaping, so that names with `<` or `&` are read as
/// mark-up.
class Notifications : public QObject {
    Q_OBJECT
public:
    /// Null if the desktop has no tray on D-Bus.
    static std::unique_ptr<Notifications> ofDesktop();

    /// Shows plain text. `icon` is a name from the desktop's icon theme. A service that doesn't
    /// answer shows nothing.
    void show(const QString& title, const QString& text, const QString& icon, int milliseconds);

signals:
    /// A notification of this object was clicked.
    void clicked();

private slots:
    void followAction(uint id, const QString& action);
    void forget(uint id, uint reason);

private:
    Notifications();
    void send(const QString& title, const QString& text, const QString& icon, int milliseconds,
              const QStringList& capabilities);

    /// Counts clicks on this notification from now on.
    void follow(uint id);

    QSet<uint> shown_; ///< ids; the service may reuse them once the notification is closed
    // The last ids clicked and closed, since the latest notification was sent, that aren't among
    // them; 0 if there is none.
    uint clickedUnknown_ = 0;
    uint closedUnknown_ = 0;
};

} // namespace app
