// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include <pthread.h>

namespace support {

/// As long as this object lives, the system starts no thread: it would need a larger stack than
/// there are addresses.
class NoMoreThreads {
public:
    NoMoreThreads() {
        pthread_attr_init(&usual_);
        pthread_getattr_default_np(&usual_);
        pthread_attr_t huge;
        pthread_attr_init(&huge);
        pthread_attr_setstacksize(&huge, std::size_t(1) << 60);
        pthread_setattr_default_np(&huge);
        pthread_attr_destroy(&huge);
    }
    NoMoreThreads(const NoMoreThreads&) = delete;
    NoMoreThreads& operator=(const NoMoreThreads&) = delete;
    ~NoMoreThreads() {
        pthread_setattr_default_np(&usual_);
        pthread_attr_destroy(&usual_);
    }

private:
    pthread_attr_t usual_{};
};

} // namespace support
