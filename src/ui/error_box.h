// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>

#include <QString>

class QWidget;

namespace ui {

/// The unmodified text of an exception, for the screen.
QString errorText(const std::exception& error);

/// A critical box with an Ok button; returns when the user closes it. `parent` may be null.
void showError(QWidget* parent, const QString& title, const QString& text);

} // namespace ui
