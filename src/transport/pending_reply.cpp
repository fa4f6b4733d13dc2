// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/pending_reply.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <thread>
#include <utility>

#include "base/secret.h"
#include "transport/call_failure.h"
#include "transport/tls_thread.h"

namespace hessiancln {

namespace {

std::atomic<int> runningThreads = 0;

/// Counts a thread while it exists.
class RunningThread {
public:
    RunningThread() { ++runningThreads; }
    RunningThread(RunningThread&&) noexcept { ++runningThreads; }
    RunningThread& operator=(RunningThread&&) = delete;
    ~RunningThread() { --runningThreads; }
};

} // namespace

PendingReply::PendingReply(GiveUp giveUp, Awaited awaited)
    : giveUp_(std::move(giveUp))
    , awaited_(awaited) {
    if (WaitHook* const hook = CallPassage::hook()) {
        const std::chrono::milliseconds patience = hook->begin(*this);
        hookRuns_ = std::chrono::steady_clock::now() + patience;
    }
}

PendingReply::~PendingReply() {
    base::wipe(reply_);
}

/// Does nothing and returns false if the call has already finished.
template <class Result>
bool PendingReply::finish(Result setResult) {
    {
        const std::lock_guard lock(mutex_);
        if (finished_)
            return false;
        setResult();
        finished_ = true;
        wake();
    }
    condition_.notify_one();
    return true;
}

/// With the mutex locked.
void PendingReply::wake() {
    try {
        if (wake_)
            wake_();
    } catch (const std::bad_alloc&) {
        // Without memory to be woken, the hook notices when it looks again.
    }
}

void PendingReply::succeed(std::string& reply) {
    finish([&] { reply_.swap(reply); });
}

bool PendingReply::fail(const std::string& text) {
    return finish([&] {
        try {
            failureText_ = text;
        } catch (const std::bad_alloc&) {
            failureText_ = outOfMemory;
        }
    });
}

bool PendingReply::fail(std::exception_ptr failure) {
    return finish([&] { failure_ = std::move(failure); });
}

std::chrono::milliseconds PendingReply::patience() const {
    const auto left = hookRuns_ - std::chrono::steady_clock::now();
    return std::max(std::chrono::ceil<std::chrono::milliseconds>(left),
                    std::chrono::milliseconds(0));
}

std::string PendingReply::wait() {
    std::unique_lock lock(mutex_);
    const auto done = [this] { return finished_; };
    if (WaitHook* const hook = CallPassage::hook()) {
        if (!condition_.wait_until(lock, hookRuns_, done)) {
            lock.unlock();
            hook->wait(*this);
            lock.lock();
        }
    }
    condition_.wait(lock, done);
    if (failure_)
        std::rethrow_exception(std::exchange(failure_, nullptr));
    if (failureText_)
        throw invoke_exception(*failureText_);
    return std::move(reply_);
}

bool PendingReply::finished() const {
    const std::lock_guard lock(mutex_);
    return finished_;
}

void PendingReply::onFinish(std::function<void()> wake) {
    const std::lock_guard lock(mutex_);
    wake_ = std::move(wake);
    if (finished_)
        this->wake();
}

bool PendingReply::waitFor(std::chrono::milliseconds time) {
    std::unique_lock lock(mutex_);
    return condition_.wait_for(lock, time, [this] { return finished_; });
}

bool PendingReply::giveUp(const std::string& text) {
    if (!fail(text))
        return false;
    try {
        giveUp_(text);
    } catch (const std::bad_alloc&) {
        // The caller returns anyway, and the connection stays as silent as it was.
    }
    return true;
}

void answerBeside(const std::shared_ptr<PendingReply>& reply, std::function<std::string()> work) {
    auto run = tlsThread([reply, work = std::move(work)] {
        try {
            std::string result = work();
            const base::WipedAtEnd guard(result); // unless the caller has taken it
            reply->succeed(result);
        } catch (...) {
            reply->fail(std::current_exception());
        }
    });
    // It counts until OpenSSL's memory is freed, too: the exit functions would free it as well.
    std::thread([run = std::move(run), running = RunningThread()]() mutable { run(); }).detach();
}

void exitProcess(int status) {
    if (runningThreads > 0)
        std::_Exit(status);
    std::exit(status);
}

} // namespace hessiancln
