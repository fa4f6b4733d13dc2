// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QString>

class QWidget;

namespace ui {

enum class Cursor { arrow, wait };

/// Runs what a click has started at the agent, under the wait cursor of `widget` if told so. An
/// exception derived from `std::exception` ends it and is shown under `title`, with `widget` as
/// the box's parent. Returns whether `work` came through.
bool remoteAction(QWidget& widget, const QString& title, Cursor cursor,
                  const std::function<void()>& work);

} // namespace ui
