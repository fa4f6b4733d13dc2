// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace ui {

/// A duration, 0 or more seconds, as in "1:02:03".
QString formatDuration(qint64 seconds);

} // namespace ui
