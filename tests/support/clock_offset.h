// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

namespace support {

/// In a program that links this, the clock of this thread is wrong by that much for as long as the
/// object lives, as Kerberos reads it (`time` and `gettimeofday`). Other threads, a simulated
/// agent's among them, see the right time. One at a time.
class ClockOffset {
public:
    explicit ClockOffset(std::chrono::seconds offset);
    ClockOffset(const ClockOffset&) = delete;
    ClockOffset& operator=(const ClockOffset&) = delete;
    ~ClockOffset();
};

} // namespace support
