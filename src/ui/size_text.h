// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace ui {

/// A human-readable number of bytes, with 1024 as the unit; below that without decimals.
QString sizeToString(double bytes);

} // namespace ui
