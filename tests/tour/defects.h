// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QWidget;

namespace tour {

/// What is wrong with the looks of a widget and all that it holds: texts that are cut, widgets that
/// stick out, and letters that stand for two things.
QStringList defectsOf(const QWidget& shown);

} // namespace tour
