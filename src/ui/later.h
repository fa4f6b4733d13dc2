// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QEvent>

class QObject;

namespace ui {

/// Makes the event loop run `work`, unless `context` is destroyed first. Use it for everything that
/// may call the agent: a queued call of Qt can't be deferred while another call is pending.
void later(QObject& context, std::function<void()> work);

/// Whether a call to the agent is under way; if so, `again` runs after it, as above. For handlers
/// of what a wait lets through, like a lost focus:
///
///     if (ui::waitsForCall(*this, [this] { nameEdited(); }))
///         return;
bool waitsForCall(QObject& context, std::function<void()> again);

/// The type of the event that runs such work. Posting it again postpones the work.
QEvent::Type laterEventType();

} // namespace ui
