// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace support {

/// Counts the blocks containing a secret that the current thread frees during the lifetime of this
/// object. Link `watched_allocation.cpp`, too.
class FreedMemory {
public:
    explicit FreedMemory(std::string_view secret);
    FreedMemory(const FreedMemory&) = delete;
    FreedMemory& operator=(const FreedMemory&) = delete;
    ~FreedMemory();

    int blocksWithSecret() const;
};

} // namespace support
