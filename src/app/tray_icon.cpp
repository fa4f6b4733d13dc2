// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/tray_icon.h"

namespace app {

namespace {

constexpr int balloonTime = 10000;

} // namespace

bool TrayIcon::isAvailable() const {
    return isSystemTrayAvailable();
}

void TrayIcon::showBalloon(const QString& title, const QString& text) {
    showMessage(title, text, QSystemTrayIcon::Information, balloonTime);
}

void TrayIcon::showWarning(const QString& title, const QString& text) {
    showMessage(title, text, QSystemTrayIcon::Warning, balloonTime);
}

} // namespace app
