// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace bench {

/// Bytes in use on the heap, over all threads.
double heapInUse();

/// Bytes of memory that the system reports for this process under a name such as "VmRSS:". Throws
/// `std::runtime_error` if it doesn't.
double memory(std::string_view field);

} // namespace bench
