// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace support {

/// Makes the n-th allocation (from 1) that the current thread makes during the lifetime of this
/// object fail, and with a `count` those that follow it. The program then uses the `operator new`
/// of failing_allocation.cpp.
class FailingAllocation {
public:
    explicit FailingAllocation(std::size_t nth, std::size_t count = 1);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// Whether the thread reached the failing allocation.
    bool hasFailed() const;
};

} // namespace support
