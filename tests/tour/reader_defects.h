// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QWidget;

namespace tour {

/// What a user of a screen reader would miss in a widget and all that it holds: widgets of another
/// role than they have on the screen, without a name where the Tab key leads, and labels that don't
/// belong to their field.
QStringList readerDefectsOf(const QWidget& shown);

} // namespace tour
