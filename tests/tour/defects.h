// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QWidget;

namespace tour {

/// The visual defects of a widget and its children: cut texts, widgets that stick out of their
/// parents, and mnemonics used twice.
QStringList defectsOf(const QWidget& shown);

} // namespace tour
