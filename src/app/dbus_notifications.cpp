// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/notifications.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QVariantMap>

namespace app {

namespace {

const QString& service() {
    static const QString name = QStringLiteral("org.freedesktop.Notifications");
    return name;
}

const QString& path() {
    static const QString path = QStringLiteral("/org/freedesktop/Notifications");
    return path;
}

constexpr char defaultAction[] = "default"; ///< of a click on the notification itself

/// Calls a method and passes its reply to `then`, unless `context` is destroyed first.
template <class Reply, class Then>
void call(QObject& context, const char* method, const QVariantList& arguments, Then then) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(service(), path(), service(), QLatin1String(method));
    message.setArguments(arguments);
    auto* pending =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), &context);
    QObject::connect(pending, &QDBusPendingCallWatcher::finished, &context, [pending, then] {
        pending->deleteLater();
        const QDBusPendingReply<Reply> reply = *pending;
        if (reply.isValid())
            then(reply.value());
    });
}

} // namespace

std::unique_ptr<Notifications> Notifications::ofDesktop() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const QString tray = QStringLiteral("org.kde.StatusNotifierWatcher");
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(tray))
        return nullptr;
    return std::unique_ptr<Notifications>(new Notifications);
}

Notifications::Notifications() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service(), path(), service(), QStringLiteral("ActionInvoked"), this,
                SLOT(followAction(uint, QString)));
    bus.connect(service(), path(), service(), QStringLiteral("NotificationClosed"), this,
                SLOT(forget(uint, uint)));
}

void Notifications::show(const QString& title, const QString& text, const QString& icon,
                         int milliseconds) {
    // The service may have been replaced since the last time.
    call<QStringList>(*this, "GetCapabilities", {}, [=, this](const QStringList& capabilities) {
        send(title, text, icon, milliseconds, capabilities);
    });
}

void Notifications::send(const QString& title, const QString& text, const QString& icon,
                         int milliseconds, const QStringList& capabilities) {
    const bool readsMarkup = capabilities.contains(QLatin1String("body-markup"));
    QStringList actions;
    // A service without actions may open a dialog for them.
    if (capabilities.contains(QLatin1String("actions")))
        actions << QLatin1String(defaultAction) << tr("OK");
    // A service that was replaced may use earlier ids again.
    clickedUnknown_ = closedUnknown_ = 0;
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    call<uint>(*this, "Notify",
               {QCoreApplication::applicationName(), uint{0}, icon, title,
                readsMarkup ? text.toHtmlEscaped() : text, actions, hints, milliseconds},
               [this](uint id) { follow(id); });
}

void Notifications::follow(uint id) {
    if (id != closedUnknown_)
        shown_.insert(id);
    if (id == clickedUnknown_)
        emit clicked();
}

void Notifications::followAction(uint id, const QString& action) {
    if (action != QLatin1String(defaultAction))
        return;
    // The service reports the clicks on the notifications of all programs, and Qt may deliver a
    // click before the reply with the notification's id.
    if (shown_.contains(id))
        emit clicked();
    else if (id != closedUnknown_)
        clickedUnknown_ = id;
}

void Notifications::forget(uint id, uint) {
    // As above, it may come before the reply.
    if (!shown_.remove(id))
        closedUnknown_ = id;
}

} // namespace app
