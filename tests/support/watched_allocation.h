// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// Called by the `operator new` and `operator delete` of watched_allocation.cpp for each block of
/// the program, on the thread that allocates or frees it. The test that links that file defines
/// them.
namespace support {

void allocated(std::size_t size) noexcept;

/// Before the block is freed.
void freed(const char* block, std::size_t size) noexcept;

} // namespace support
