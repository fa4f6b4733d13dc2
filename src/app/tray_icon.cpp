// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/tray_icon.h"

#include <QGuiApplication>

#include "app/notifications.h"
#include "ui/later.h"

namespace app {

namespace {

constexpr int balloonTime = 10000;

// Windows would cut a longer text anywhere: NOTIFYICONDATA::szInfo, without its final zero.
constexpr int mostOnWindows = 255;

} // namespace

QString fittingBalloonText(const QString& text, int most) {
    if (text.size() <= most)
        return text;
    const QChar ellipsis(0x2026);
    const QString start = text.left(most - 1);
    if (const int lines = start.lastIndexOf(QLatin1Char('\n')) + 1; lines > 0)
        return start.left(lines) + ellipsis;
    return start.left(start.size() - (start.back().isHighSurrogate() ? 1 : 0)) + ellipsis;
}

TrayIcon::TrayIcon(QObject* parent)
    : QSystemTrayIcon(parent) {
    connect(this, &QSystemTrayIcon::messageClicked, this, [this] {
        // On D-Bus Qt reports the clicks on the notifications of all programs.
        if (!notifications_)
            emit balloonClicked();
    });
}

TrayIcon::~TrayIcon() = default;

bool TrayIcon::isAvailable() const {
    return isSystemTrayAvailable();
}

void TrayIcon::showBalloon(const QString& title, const QString& text) {
    announce(title, text, Information, "dialog-information");
}

void TrayIcon::showWarning(const QString& title, const QString& text) {
    announce(title, text, Warning, "dialog-warning");
}

void TrayIcon::announce(const QString& title, const QString& text, MessageIcon icon,
                        const char* iconName) {
    if (Notifications* service = notifications())
        service->show(title, text, QLatin1String(iconName), balloonTime);
    else if (QGuiApplication::platformName() == QLatin1String("windows"))
        showNative(title, fittingBalloonText(text, mostOnWindows), icon);
    else
        showNative(title, text, icon);
}

void TrayIcon::showNative(const QString& title, const QString& text, MessageIcon icon) {
    showMessage(title, text, icon, balloonTime);
}

Notifications* TrayIcon::notifications() {
    if (notifications_)
        return notifications_.get();
    notifications_ = Notifications::ofDesktop();
    // What follows a click may call the agent.
    if (notifications_)
        connect(notifications_.get(), &Notifications::clicked, this,
                [this] { ui::later(*this, [this] { emit balloonClicked(); }); });
    return notifications_.get();
}

} // namespace app
