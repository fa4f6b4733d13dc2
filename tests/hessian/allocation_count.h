// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace codec_test {

/// The number of allocations of the program so far, counted by its own `operator new`.
extern std::size_t allocations;

} // namespace codec_test
