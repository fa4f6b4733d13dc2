// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QWidget;

namespace tour {

/// The texts on a screen that don't stand out from their background, as far as palettes say it.
/// Those of disabled widgets needn't.
QStringList contrastDefectsOf(const QWidget& shown);

} // namespace tour
