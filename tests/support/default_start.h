// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/world/world.h"

namespace support {

/// Gives the client a number for which a new schedule begins at 20:30, whichever generator Qt uses:
/// see tests/wizards/schedule_times_test.cpp.
inline void beginSchedulesAtHalfPastEight(simulator::World& world) {
    world.registration.client_num = "A4C100931792";
}

} // namespace support
