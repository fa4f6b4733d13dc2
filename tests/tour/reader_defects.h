// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QWidget;

namespace tour {

/// The accessibility defects of a widget and its children: roles that differ from the visible ones,
/// tab stops without a name, and labels that don't belong to their field.
QStringList readerDefectsOf(const QWidget& shown);

} // namespace tour
