// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QEvent>

class QObject;

namespace ui {

/// Has the event loop run `work`, unless `context` has gone by then. For all that may call the
/// agent: a queued call of Qt's can't be held back while another call is waited for.
void later(QObject& context, std::function<void()> work);

/// The type of the event that runs such work. Posted again, it does so later.
QEvent::Type laterEventType();

} // namespace ui
