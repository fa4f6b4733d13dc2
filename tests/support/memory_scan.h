// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

/// Looks for a secret in the memory of another process, also where it was given back.
namespace memory_scan {

/// False where the system doesn't show the memory, and under a sanitizer, which keeps what was
/// given back.
bool isPossible();

/// Each place that holds the secret, as "UTF-16 at distance 16 in [heap]": as bytes, as UTF-16, or
/// with its characters at equal distances, forwards or backwards, as a list has them.
std::vector<std::string> findings(pid_t process, const std::string& secret);

} // namespace memory_scan
