// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

namespace support {

/// In a program that links this, shifts the clock of this thread as Kerberos reads it (`time` and
/// `gettimeofday`) for the lifetime of the object. Other threads, including those of a simulated
/// agent, see the correct time. Only one may exist at a time.
class ClockOffset {
public:
    explicit ClockOffset(std::chrono::seconds offset);
    ClockOffset(const ClockOffset&) = delete;
    ClockOffset& operator=(const ClockOffset&) = delete;
    ~ClockOffset();
};

} // namespace support
