// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "allocation_count.h"

#include <cstdlib>
#include <new>

std::size_t codec_test::allocations = 0;

void* operator new(std::size_t size) {
    ++codec_test::allocations;
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
