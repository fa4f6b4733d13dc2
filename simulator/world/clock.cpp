// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/clock.h"

#include <chrono>

namespace simulator {

Clock systemClock() {
    return [] {
        const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
        return Milliseconds{
            std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count()};
    };
}

} // namespace simulator
