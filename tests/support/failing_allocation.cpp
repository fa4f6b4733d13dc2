// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/failing_allocation.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t allocationsLeft = 0; // before the first that fails
thread_local std::size_t failuresLeft = 0;
thread_local bool failed = false;

} // namespace

support::FailingAllocation::FailingAllocation(std::size_t nth, std::size_t count) {
    failed = false;
    allocationsLeft = nth - 1;
    failuresLeft = count;
}

support::FailingAllocation::~FailingAllocation() {
    failuresLeft = 0;
}

bool support::FailingAllocation::hasFailed() const {
    return failed;
}

void* operator new(std::size_t size) {
    if (allocationsLeft > 0) {
        --allocationsLeft;
    } else if (failuresLeft > 0) {
        --failuresLeft;
        failed = true;
        throw std::bad_alloc();
    }
    if (void* block = std::malloc(size))
        return block;
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
