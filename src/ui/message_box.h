// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QString>

class QWidget;

namespace ui {

/// Reports a success in a box; returns when the user closes it.
void showInformation(QWidget* parent, const QString& title, const QString& text);

/// Asks before an irreversible action. The Return key answers No. Returns no value if the user
/// doesn't answer: by the Escape key, the title bar's close button, or quitting the program.
std::optional<bool> asks(QWidget* parent, const QString& title, const QString& text);

/// Likewise, but no answer means No.
bool confirms(QWidget* parent, const QString& title, const QString& text);

} // namespace ui
