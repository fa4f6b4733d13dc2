// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace support {

/// A one-time event on one thread that another thread waits for with a limit.
class Signal {
public:
    void raise() {
        const std::lock_guard lock(mutex_);
        raised_ = true;
        condition_.notify_all();
    }

    /// Whether it has happened within the limit.
    bool wait(std::chrono::milliseconds limit = std::chrono::seconds(20)) {
        std::unique_lock lock(mutex_);
        return condition_.wait_for(lock, limit, [this] { return raised_; });
    }

private:
    std::mutex mutex_;
    std::condition_variable condition_;
    bool raised_ = false;
};

} // namespace support
