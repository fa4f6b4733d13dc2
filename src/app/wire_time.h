// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <QDateTime>

namespace app {

/// Seconds since 1970 UTC as the agent takes them. A time that they can't say becomes the nearest
/// one that they can.
std::int32_t wireTime(const QDateTime& time);

} // namespace app
