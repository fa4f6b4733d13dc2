// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// Searches the memory of another process for a secret, including freed memory.
namespace memory_scan {

/// False where the system doesn't expose the memory, and under a sanitizer, which retains freed
/// memory.
bool isPossible();

/// Each place that holds the secret, as in "UTF-16 at distance 16 in [heap]": as bytes, as UTF-16,
/// or with its characters at equal distances, forwards or backwards, as in a list.
std::vector<std::string> findings(long process, const std::string& secret);

} // namespace memory_scan
