// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace support {

/// Lets the n-th allocation from now on fail, counted from 1, that the current thread makes while
/// this object lives. The program has the `operator new` of failing_allocation.cpp then.
class FailingAllocation {
public:
    explicit FailingAllocation(std::size_t nth);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// Whether the thread has come so far.
    bool hasFailed() const;
};

} // namespace support
