// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace support {

/// The bytes that all threads of this process have allocated and not freed. Always 0 under a
/// sanitizer, which uses its own allocator and finds leaks itself.
std::size_t heapInUse();

} // namespace support
