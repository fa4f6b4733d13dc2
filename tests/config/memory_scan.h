// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

/// Looks for texts of Qt in the memory of this process, also where it was given back.
namespace memory_scan {

/// False where the system doesn't show the memory, and under a sanitizer, which keeps what was
/// given back.
bool isPossible();

/// Different each time, in plain characters that are never the same next to each other.
std::string randomSecret();

/// Whether its characters, as UTF-16, stand somewhere at equal distances, forwards or backwards: as
/// a text, or one by one in a list.
bool holds(const std::string& secret);

} // namespace memory_scan
