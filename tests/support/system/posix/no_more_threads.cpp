// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/no_more_threads.h"

#include <cstddef>

#include <pthread.h>

namespace support {

struct NoMoreThreads::Usual {
    pthread_attr_t attributes{};
};

bool NoMoreThreads::isPossible() {
    return true;
}

// A thread would need a larger stack than there are addresses.
NoMoreThreads::NoMoreThreads()
    : usual_(std::make_unique<Usual>()) {
    pthread_attr_init(&usual_->attributes);
    pthread_getattr_default_np(&usual_->attributes);
    pthread_attr_t huge;
    pthread_attr_init(&huge);
    pthread_attr_setstacksize(&huge, std::size_t(1) << 60);
    pthread_setattr_default_np(&huge);
    pthread_attr_destroy(&huge);
}

NoMoreThreads::~NoMoreThreads() {
    pthread_setattr_default_np(&usual_->attributes);
    pthread_attr_destroy(&usual_->attributes);
}

} // namespace support
