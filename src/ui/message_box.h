// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QString>

class QWidget;

namespace ui {

/// A box that tells of something that went well; returns when the user has closed it.
void showInformation(QWidget* parent, const QString& title, const QString& text);

/// Asks about what nothing brings back. No is what the Return key says. Nothing if the box goes
/// without an answer, as it does when the program is quit meanwhile.
std::optional<bool> asks(QWidget* parent, const QString& title, const QString& text);

/// The same where no answer is a no.
bool confirms(QWidget* parent, const QString& title, const QString& text);

} // namespace ui
