// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSystemTrayIcon>

namespace app {

/// The program's icon in the system tray. Desktop-dependent parts can be overridden.
class TrayIcon : public QSystemTrayIcon {
    Q_OBJECT
public:
    using QSystemTrayIcon::QSystemTrayIcon;

    /// Whether the desktop has a tray to show the icon in.
    virtual bool isAvailable() const;
    /// Shows a message beside the icon for 10 seconds.
    virtual void showBalloon(const QString& title, const QString& text);
    /// Likewise, as a warning.
    virtual void showWarning(const QString& title, const QString& text);
};

} // namespace app
