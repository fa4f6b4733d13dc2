// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QWidget;

namespace tour {

/// What of a window on the screen can't be reached: its frame is outside of the screen's available
/// area, a button is cut, or a tab stop is neither visible nor in an area that scrolls to it. The
/// desktop may still be moving the window; waits for that.
QStringList fitDefectsOf(const QWidget& shown);

} // namespace tour
