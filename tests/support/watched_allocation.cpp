// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/watched_allocation.h"

#include <cstdlib>
#include <new>

// Each block is preceded by its size. It begins empty, without what another thread has left in it.
static constexpr std::size_t headSize = alignof(std::max_align_t);

void* operator new(std::size_t size) {
    auto* const block = static_cast<char*>(std::calloc(1, headSize + size));
    if (!block)
        throw std::bad_alloc();
    new (block) std::size_t(size);
    support::allocated(size);
    return block + headSize;
}

void operator delete(void* memory) noexcept {
    if (!memory)
        return;
    char* const block = static_cast<char*>(memory) - headSize;
    support::freed(static_cast<char*>(memory), *reinterpret_cast<std::size_t*>(block));
    std::free(block);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}
