// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/i_call_dispatcher.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/signal.h"
#include "transport/invoke_exception.h"

namespace {

using hessiancln::ICallDispatcher;
using support::Signal;
using namespace std::chrono_literals;

/// Replies with the request itself, once the gate is open. The request "fail" throws.
class EchoDispatcher final : public ICallDispatcher {
public:
    EchoDispatcher()
        : ICallDispatcher(0, "") {}
    ~EchoDispatcher() override { stopWorkers(); }

    std::string sendRequest(const std::string& url, const std::string& request) override {
        {
            const std::lock_guard lock(mutex_);
            threads_.insert(std::this_thread::get_id());
            if (++taken_ == 4)
                allBusy.raise();
        }
        if (!gate.wait())
            throw std::runtime_error("the gate stayed closed");
        if (request == "fail")
            throw hessiancln::invoke_exception() << "no answer from " << url;
        return request;
    }

    std::size_t threads() {
        const std::lock_guard lock(mutex_);
        return threads_.size();
    }

    Signal gate;
    Signal allBusy;

private:
    std::mutex mutex_;
    std::set<std::thread::id> threads_;
    int taken_ = 0;
};

/// Collects the arguments of the handlers in call order.
class Outcomes {
public:
    ICallDispatcher::Handler note(const std::string& kind) {
        return [this, kind](const std::string& text) {
            const std::lock_guard lock(mutex_);
            outcomes_.push_back(kind + text);
            if (outcomes_.size() >= awaited_)
                reached_.raise();
        };
    }

    explicit Outcomes(std::size_t awaited)
        : awaited_(awaited) {}

    bool wait() { return reached_.wait(); }

    std::vector<std::string> list() {
        const std::lock_guard lock(mutex_);
        return outcomes_;
    }

private:
    std::size_t awaited_;
    std::mutex mutex_;
    std::vector<std::string> outcomes_;
    Signal reached_;
};

void callAsync(ICallDispatcher& dispatcher, const std::string& request, Outcomes& outcomes) {
    dispatcher.asyncSendRequest("url", request, outcomes.note("success: "),
                                outcomes.note("failure: "));
}

TEST(ICallDispatcher, ReportsTheReplyOfAnAsynchronousCall) {
    Outcomes outcomes(1);
    EchoDispatcher dispatcher;
    dispatcher.gate.raise();
    callAsync(dispatcher, "request", outcomes);
    ASSERT_TRUE(outcomes.wait());
    EXPECT_EQ(outcomes.list(), std::vector<std::string>{"success: request"});
}

TEST(ICallDispatcher, ReportsTheFailureOfAnAsynchronousCall) {
    Outcomes outcomes(1);
    EchoDispatcher dispatcher;
    dispatcher.gate.raise();
    callAsync(dispatcher, "fail", outcomes);
    ASSERT_TRUE(outcomes.wait());
    EXPECT_EQ(outcomes.list(), std::vector<std::string>{"failure: no answer from url"});
}

TEST(ICallDispatcher, HasFourWorkers) {
    Outcomes outcomes(8);
    EchoDispatcher dispatcher;
    for (int i = 0; i < 8; ++i)
        callAsync(dispatcher, "x", outcomes);
    ASSERT_TRUE(dispatcher.allBusy.wait());
    EXPECT_EQ(dispatcher.threads(), 4u);
    dispatcher.gate.raise();
    ASSERT_TRUE(outcomes.wait());
    EXPECT_EQ(dispatcher.threads(), 4u);
}

TEST(ICallDispatcher, ASuccessHandlerThatRaisesEndsInTheFailureHandlerOnTheSameWorker) {
    Signal failed;
    std::string text;
    std::thread::id inSuccess;
    std::thread::id inFailure;
    EchoDispatcher dispatcher;
    dispatcher.gate.raise();
    dispatcher.asyncSendRequest(
        "url", "request",
        [&](const std::string&) {
            inSuccess = std::this_thread::get_id();
            throw std::runtime_error("handler failed");
        },
        [&](const std::string& failure) {
            inFailure = std::this_thread::get_id();
            text = failure;
            failed.raise();
        });
    ASSERT_TRUE(failed.wait());
    EXPECT_EQ(text, "handler failed");
    EXPECT_EQ(inSuccess, inFailure);
    EXPECT_NE(inSuccess, std::this_thread::get_id());
}

TEST(ICallDispatcher, The17thPendingCallBlocksUntilAWorkerTakesOne) {
    Outcomes outcomes(4 + 17);
    EchoDispatcher dispatcher;
    for (int i = 0; i < 4; ++i)
        callAsync(dispatcher, "taken", outcomes);
    ASSERT_TRUE(dispatcher.allBusy.wait());
    for (int i = 0; i < 16; ++i)
        callAsync(dispatcher, "queued", outcomes);

    Signal queued;
    std::thread caller([&] {
        callAsync(dispatcher, "one too many", outcomes);
        queued.raise();
    });
    EXPECT_FALSE(queued.wait(100ms));
    dispatcher.gate.raise();
    EXPECT_TRUE(queued.wait());
    caller.join();
    EXPECT_TRUE(outcomes.wait());
}

TEST(ICallDispatcher, DestructionFinishesTakenCallsAndThenFailsTheQueuedOnesInOrder) {
    Outcomes outcomes(7);
    auto dispatcher = std::make_unique<EchoDispatcher>();
    EchoDispatcher& used = *dispatcher;
    for (int i = 0; i < 4; ++i)
        callAsync(used, "taken", outcomes);
    ASSERT_TRUE(used.allBusy.wait());
    for (const std::string name : {"fifth", "sixth", "seventh"}) {
        used.asyncSendRequest("url", name, outcomes.note("success: "),
                              [name, note = outcomes.note(name + " failed: ")](
                                  const std::string& text) { note(text); });
    }

    Signal destroyed;
    std::thread destroyer([&] {
        dispatcher.reset();
        destroyed.raise();
    });
    EXPECT_FALSE(destroyed.wait(100ms)); // the calls taken are still in progress
    EXPECT_TRUE(outcomes.list().empty());
    used.gate.raise();
    EXPECT_TRUE(destroyed.wait());
    destroyer.join();

    EXPECT_EQ(outcomes.list(),
              (std::vector<std::string>{"success: taken", "success: taken", "success: taken",
                                        "success: taken", "fifth failed: Call dispatcher destroyed",
                                        "sixth failed: Call dispatcher destroyed",
                                        "seventh failed: Call dispatcher destroyed"}));
}

TEST(ICallDispatcher, ACallAfterTheStopFailsAtOnce) {
    Outcomes whileStopping(1);
    Outcomes others(4 + 16);
    auto dispatcher = std::make_unique<EchoDispatcher>();
    EchoDispatcher& used = *dispatcher;
    for (int i = 0; i < 4; ++i)
        callAsync(used, "taken", others);
    ASSERT_TRUE(used.allBusy.wait());
    for (int i = 0; i < 16; ++i)
        callAsync(used, "queued", others);

    // The queue is full, so this call is affected by the stop whether it comes before or after it.
    std::thread caller([&] { callAsync(used, "late", whileStopping); });
    std::thread destroyer([&] { dispatcher.reset(); });
    EXPECT_TRUE(whileStopping.wait());
    caller.join();
    used.gate.raise();
    destroyer.join();
    EXPECT_EQ(whileStopping.list(), std::vector<std::string>{"failure: Call dispatcher stopped"});
    EXPECT_EQ(others.list().size(), 20u);
}

TEST(ICallDispatcher, ThatOnlySentRequestsHasNoThreadToJoin) {
    EchoDispatcher dispatcher;
    dispatcher.gate.raise();
    EXPECT_EQ(dispatcher.sendRequest("url", "request"), "request");
    dispatcher.stopConnections(); // without connections, nothing happens
    EXPECT_EQ(dispatcher.sendRequest("url", "request"), "request");
    EXPECT_EQ(dispatcher.threads(), 1u);
}

TEST(ICallDispatcher, LosesNoCallUnderLoad) {
    constexpr int callers = 8;
    constexpr int callsEach = 500;
    std::atomic<int> succeeded = 0;
    Signal all;
    EchoDispatcher dispatcher;
    dispatcher.gate.raise();
    std::vector<std::thread> threads;
    for (int i = 0; i < callers; ++i) {
        threads.emplace_back([&] {
            for (int call = 0; call < callsEach; ++call)
                dispatcher.asyncSendRequest(
                    "url", "x",
                    [&](const std::string&) {
                        if (++succeeded == callers * callsEach)
                            all.raise();
                    },
                    [](const std::string& text) { ADD_FAILURE() << text; });
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_TRUE(all.wait());
}

} // namespace
