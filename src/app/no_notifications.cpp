// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// For a Qt without D-Bus.
#include "app/notifications.h"

namespace app {

Notifications::Notifications() = default;

std::unique_ptr<Notifications> Notifications::ofDesktop() {
    return nullptr;
}

void Notifications::show(const QString&, const QString&, const QString&, int) {}

void Notifications::followAction(uint, const QString&) {}

void Notifications::forget(uint, uint) {}

} // namespace app
