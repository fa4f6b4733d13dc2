// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QApplication>
#include <QStyle>

namespace ui {

/// Puts a `Proxy`, a QProxyStyle, in front of the application's style. The name of the style stays.
template <class Proxy>
void putInFrontOfStyle(QApplication& application) {
    const QString name = application.style()->objectName();
    auto proxy = std::make_unique<Proxy>(name);
    proxy->setObjectName(name);
    application.setStyle(proxy.release());
}

} // namespace ui
