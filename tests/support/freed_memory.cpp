// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/freed_memory.h"

#include <cstddef>

#include "tests/support/watched_allocation.h"

namespace {

thread_local std::string_view sought;
thread_local int findings = 0;

} // namespace

namespace support {

void allocated(std::size_t) noexcept {}

void freed(const char* block, std::size_t size) noexcept {
    if (!sought.empty() && std::string_view(block, size).find(sought) != std::string_view::npos)
        ++findings;
}

FreedMemory::FreedMemory(std::string_view secret) {
    findings = 0;
    sought = secret;
}

FreedMemory::~FreedMemory() {
    sought = {};
}

int FreedMemory::blocksWithSecret() const {
    return findings;
}

} // namespace support
