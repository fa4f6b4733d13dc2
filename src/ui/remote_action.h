// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QString>

class QWidget;

namespace ui {

enum class Cursor { arrow, wait };

/// Runs an action on the agent that a click started, under the wait cursor of `widget` if
/// requested. An exception derived from `std::exception` ends it and is shown under `title`, with
/// `widget` as the box's parent. Returns whether `work` succeeded.
///
/// During another call it does nothing and returns false: the user couldn't answer a box.
bool remoteAction(QWidget& widget, const QString& title, Cursor cursor,
                  const std::function<void()>& work);

} // namespace ui
