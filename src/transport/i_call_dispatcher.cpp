// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/i_call_dispatcher.h"

#include <condition_variable>
#include <list>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "base/secret.h"
#include "transport/call_failure.h"
#include "transport/tls_thread.h"

namespace hessiancln {

namespace {

constexpr std::size_t workerCount = 4;
constexpr std::size_t pendingLimit = 16;

} // namespace

struct PendingCall {
    std::string url;
    base::Secret request;
    ICallDispatcher::Handler onSuccess;
    ICallDispatcher::Handler onFailure;
};

struct ICallDispatcher::WorkerPool {
    explicit WorkerPool(ICallDispatcher& dispatcher)
        : dispatcher_(dispatcher) {}

    void queue(PendingCall call);
    void stop();

private:
    void startWorkers();
    void work();
    std::optional<PendingCall> take();
    void carryOut(const PendingCall& call);

    ICallDispatcher& dispatcher_;
    std::mutex mutex_;
    // Two conditions, so that a wake-up for a worker never goes to a caller that waits for room,
    // and vice versa.
    std::condition_variable workOrStop_;
    std::condition_variable roomOrStop_;
    std::list<PendingCall> pending_;
    bool stopped_ = false;
    std::vector<std::thread> workers_;
};

void ICallDispatcher::WorkerPool::queue(PendingCall call) {
    std::unique_lock lock(mutex_);
    if (!stopped_)
        startWorkers();
    // A handler on a worker may wait here too, and stopping waits for that worker.
    roomOrStop_.wait(lock, [this] { return stopped_ || pending_.size() < pendingLimit; });
    if (stopped_) {
        call.onFailure("Call dispatcher stopped");
        return;
    }
    pending_.push_back(std::move(call));
    workOrStop_.notify_one();
}

/// Starts the missing workers. One is enough to continue.
void ICallDispatcher::WorkerPool::startWorkers() {
    workers_.reserve(workerCount);
    try {
        while (workers_.size() < workerCount)
            workers_.emplace_back(tlsThread([this] { work(); }));
    } catch (const std::system_error& failure) {
        if (workers_.empty())
            throw invoke_exception() << "Failed to start a worker thread: " << failure.what();
    }
}

void ICallDispatcher::WorkerPool::work() {
    while (std::optional<PendingCall> call = take())
        carryOut(*call);
}

std::optional<PendingCall> ICallDispatcher::WorkerPool::take() {
    std::unique_lock lock(mutex_);
    workOrStop_.wait(lock, [this] { return stopped_ || !pending_.empty(); });
    if (stopped_)
        return std::nullopt;
    PendingCall call = std::move(pending_.front());
    pending_.pop_front();
    roomOrStop_.notify_one();
    return call;
}

void ICallDispatcher::WorkerPool::carryOut(const PendingCall& call) {
    try {
        const base::Secret reply(dispatcher_.sendRequest(call.url, call.request.text()));
        call.onSuccess(reply.text());
    } catch (const std::exception& failure) {
        call.onFailure(failure.what());
    }
}

void ICallDispatcher::WorkerPool::stop() {
    std::vector<std::thread> ending;
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
        ending.swap(workers_);
    }
    workOrStop_.notify_all();
    roomOrStop_.notify_all();
    for (std::thread& worker : ending)
        worker.join();
    for (const PendingCall& call : std::exchange(pending_, {}))
        call.onFailure("Call dispatcher destroyed");
}

ICallDispatcher::ICallDispatcher(std::uint32_t traceLevel, std::string traceFile)
    : traceLevel_(traceLevel)
    , traceFile_(std::move(traceFile))
    , pool_(std::make_unique<WorkerPool>(*this)) {}

ICallDispatcher::~ICallDispatcher() {
    stopWorkers();
}

void ICallDispatcher::stopWorkers() {
    pool_->stop();
}

void ICallDispatcher::asyncSendRequest(const std::string& url, const std::string& request,
                                       Handler onSuccess, Handler onFailure) {
    asCall([&] {
        pool_->queue({url, base::Secret(request), std::move(onSuccess), std::move(onFailure)});
    });
}

void ICallDispatcher::stopConnections() {}

} // namespace hessiancln
