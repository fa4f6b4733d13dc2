// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace support {

/// As long as this object lives, the system starts no thread of this process.
class NoMoreThreads {
public:
    /// False on systems that can't be kept from it.
    static bool isPossible();

    NoMoreThreads();
    NoMoreThreads(const NoMoreThreads&) = delete;
    NoMoreThreads& operator=(const NoMoreThreads&) = delete;
    ~NoMoreThreads();

private:
    struct Usual;
    std::unique_ptr<Usual> usual_;
};

} // namespace support
