// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QString>

class QWidget;

namespace ui {

/// A box that tells of something that went well; returns when the user has closed it.
void showInformation(QWidget* parent, const QString& title, const QString& text);

/// Asks before something that can't be undone. The Return key answers No. Nothing if the user
/// gives no answer: by the Escape key, by the title bar's cross, or by quitting the program.
std::optional<bool> asks(QWidget* parent, const QString& title, const QString& text);

/// The same where no answer means No.
bool confirms(QWidget* parent, const QString& title, const QString& text);

} // namespace ui
