// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>

#include <QString>

class QWidget;

namespace ui {

/// The text of an exception as it came, for the screen.
QString errorText(const std::exception& error);

/// A critical box with an Ok button; returns when the user has closed it. `parent` may be null.
void showError(QWidget* parent, const QString& title, const QString& text);

} // namespace ui
