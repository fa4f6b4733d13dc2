// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>

namespace simulator {

/// Milliseconds since 1970 UTC.
using Milliseconds = std::int64_t;
using Clock = std::function<Milliseconds()>;

/// The system time.
Clock systemClock();

/// The format of times on the wire.
inline std::int32_t seconds(Milliseconds time) {
    return static_cast<std::int32_t>(time / 1000);
}

} // namespace simulator
