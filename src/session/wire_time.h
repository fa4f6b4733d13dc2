// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <QDateTime>

#include "api/time_in_day.h"

/// Times in the agent's format.
namespace session {

/// Seconds since 1970 UTC, clamped to the representable range.
std::int32_t wireTime(const QDateTime& time);

/// A time of day, to the minute.
hessiancln::time_in_day wireTime(const QTime& time);

} // namespace session
