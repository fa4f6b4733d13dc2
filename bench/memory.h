// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace bench {

/// Bytes that are in use on the heap, of all threads.
double heapInUse();

/// Bytes of memory as the system tells them for this process under a name, as "VmRSS:". Raises
/// `std::runtime_error` if it doesn't.
double memory(std::string_view field);

} // namespace bench
