// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QPalette>

/// Colours with a meaning, readable on the palette of any desktop.
namespace ui {

/// The minimum contrast of readable text (WCAG 2.1, 1.4.3).
constexpr double readableContrast = 4.5;

/// The contrast ratio of two opaque colours, from 1 to 21 (WCAG 2.1).
double contrast(const QColor& one, const QColor& other);

/// Whether the palette has light text on a dark background.
bool isDark(const QPalette& palette);

/// A text colour for a background of the palette: `wanted` itself on a light palette, and on a dark
/// one mixed with as much white or black as readability requires. `Base` includes `AlternateBase`,
/// the other colour of a table's rows.
QColor readable(const QColor& wanted, const QPalette& palette,
                QPalette::ColorRole background = QPalette::Base);

} // namespace ui
