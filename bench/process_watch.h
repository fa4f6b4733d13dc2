// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

#include <sys/types.h>

namespace bench {

/// Memory that a process has filled itself, in KiB. Unchanged pages of a program's files don't
/// count: whether another process shares them depends on what else happens to run, and the system
/// can drop them.
double privateMemory(pid_t process);

/// How often an idle process wakes up.
struct Idleness {
    double wakeUps = 0; ///< of its threads, per second
    double moments = 0; ///< tenths of a second with a wake-up, per second
};

/// Watches a process for that long.
Idleness watchIdling(pid_t process, std::chrono::seconds time);

} // namespace bench
