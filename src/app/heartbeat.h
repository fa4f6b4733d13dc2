// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <functional>

#include <boost/thread/thread.hpp>

class QObject;

namespace app {

/// Posts an event every 5 seconds from a thread of its own, the first one after 4 seconds.
class Heartbeat {
public:
    /// Waits for one second; the only point where the thread may be interrupted.
    using Sleep = std::function<void()>;
    static void sleepOneSecond();

    /// `receiver` gets the events, and must outlive the thread.
    explicit Heartbeat(QObject& receiver, Sleep sleep = sleepOneSecond);
    ~Heartbeat();
    Heartbeat(const Heartbeat&) = delete;
    Heartbeat& operator=(const Heartbeat&) = delete;

    /// The unique type of the events.
    int eventType() const { return eventType_; }

    /// Does nothing after `stop`.
    void start();
    /// Ends the thread. Posted events stay in the receiver's queue.
    void stop();

private:
    void run();

    QObject& receiver_;
    const Sleep sleep_;
    const int eventType_;
    std::atomic<bool> stop_ = false;
    boost::thread thread_;
};

} // namespace app
