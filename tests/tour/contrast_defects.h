// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QWidget;

namespace tour {

/// The texts on a screen with too little contrast to their background, according to the palettes.
/// Excludes disabled widgets.
QStringList contrastDefectsOf(const QWidget& shown);

} // namespace tour
