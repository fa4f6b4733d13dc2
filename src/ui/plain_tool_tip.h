// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace ui {

/// A tool tip that shows a text of somebody else's as it is, also where it looks like HTML.
QString plainToolTip(const QString& text);

} // namespace ui
