// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QSystemTrayIcon>

namespace app {

class Notifications;

/// The text if it has at most `most` UTF-16 units; otherwise its first lines that fit, or the start
/// of its only line, and an ellipsis.
QString fittingBalloonText(const QString& text, int most);

/// The program's icon in the system tray. Desktop-dependent parts can be overridden.
class TrayIcon : public QSystemTrayIcon {
    Q_OBJECT
public:
    explicit TrayIcon(QObject* parent = nullptr);
    ~TrayIcon() override;

    /// Whether the desktop has a tray to show the icon in.
    virtual bool isAvailable() const;
    /// Shows a plain text beside the icon for 10 seconds.
    virtual void showBalloon(const QString& title, const QString& text);
    /// Likewise, as a warning.
    virtual void showWarning(const QString& title, const QString& text);

signals:
    /// A balloon was clicked. Unlike `messageClicked`, it works on desktops with a tray on D-Bus.
    void balloonClicked();

protected:
    /// Shows a balloon with exactly this text on a desktop without a notification service.
    virtual void showNative(const QString& title, const QString& text, MessageIcon icon);

private:
    void announce(const QString& title, const QString& text, MessageIcon icon,
                  const char* iconName);
    Notifications* notifications();

    std::unique_ptr<Notifications> notifications_;
};

} // namespace app
