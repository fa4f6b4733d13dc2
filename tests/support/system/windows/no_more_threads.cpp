// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/no_more_threads.h"

namespace support {

struct NoMoreThreads::Usual {};

bool NoMoreThreads::isPossible() {
    return false;
}

NoMoreThreads::NoMoreThreads() = default;

NoMoreThreads::~NoMoreThreads() = default;

} // namespace support
