// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/system_question.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/scripted_hook.h"
#include "tests/support/signal.h"
#include "tests/support/system/no_more_threads.h"
#include "transport/invoke_exception.h"
#include "transport/pending_reply.h"

namespace {

using hessiancln::AwaitedCall;
using support::ScriptedHook;

/// A service that answers only when the test wants it to.
struct Service {
    support::Signal answer;
    support::Signal asked;
};

std::string ask(const std::shared_ptr<Service>& service) {
    return session::askSystem<std::string>([service] {
        EXPECT_TRUE(service->answer.wait());
        service->asked.raise();
        return std::string("anna");
    });
}

TEST(SystemQuestion, IsAskedOnItsOwnThreadWithoutAHook) {
    const auto here = std::this_thread::get_id();
    EXPECT_EQ(session::askSystem<std::thread::id>([] { return std::this_thread::get_id(); }), here);
}

TEST(SystemQuestion, IsWaitedForWithTheHook) {
    const auto service = std::make_shared<Service>();
    ScriptedHook hook([&](AwaitedCall& call) {
        EXPECT_EQ(call.awaited(), hessiancln::Awaited::logonService);
        service->answer.raise();
    });
    const hessiancln::WaitHookInstallation installed(hook);
    EXPECT_EQ(ask(service), "anna");
    EXPECT_EQ(hook.waits, 1);
}

TEST(SystemQuestion, IsLeftByAUserWhoGivesUp) {
    const auto service = std::make_shared<Service>();
    ScriptedHook hook([](AwaitedCall& call) { call.giveUp("Enough of this"); });
    const hessiancln::WaitHookInstallation installed(hook);
    EXPECT_THROW(ask(service), hessiancln::invoke_exception);
    EXPECT_FALSE(hessiancln::CallPassage::underWay());
    service->answer.raise();
    EXPECT_TRUE(service->asked.wait());
}

TEST(SystemQuestion, ThrowsWhatTheQuestionThrows) {
    ScriptedHook hook([](AwaitedCall&) {});
    const hessiancln::WaitHookInstallation installed(hook);
    EXPECT_THROW(session::askSystem<int>([]() -> int { throw std::runtime_error("no"); }),
                 std::runtime_error);
}

TEST(SystemQuestion, IsAskedOnItsOwnThreadIfThereIsNoOther) {
    if (!support::NoMoreThreads::isPossible())
        GTEST_SKIP() << "this system always starts threads";
    ScriptedHook hook([](AwaitedCall&) {});
    const hessiancln::WaitHookInstallation installed(hook);
    const support::NoMoreThreads none;
    const auto here = std::this_thread::get_id();
    EXPECT_EQ(session::askSystem<std::thread::id>([] { return std::this_thread::get_id(); }), here);
    EXPECT_THROW(session::askSystem<int>([]() -> int { throw std::runtime_error("no"); }),
                 std::runtime_error);
}

const char* const exitFunctionRan = "The exit function ran.";

void reportExitFunctions() {
    static_cast<void>(std::atexit([] { std::fputs(exitFunctionRan, stderr); }));
}

TEST(SystemQuestionDeathTest, LeftByTheUserKeepsExitFunctionsFromRunning) {
    const auto endAfterLeaving = [] {
        reportExitFunctions();
        ScriptedHook hook([](AwaitedCall& call) { call.giveUp("Enough of this"); });
        const hessiancln::WaitHookInstallation installed(hook);
        const auto service = std::make_shared<Service>();
        EXPECT_THROW(ask(service), hessiancln::invoke_exception);
        hessiancln::exitProcess(7);
    };
    EXPECT_EXIT(endAfterLeaving(), testing::ExitedWithCode(7),
                testing::Not(testing::HasSubstr(exitFunctionRan)));
}

TEST(SystemQuestionDeathTest, AnsweredLetsExitFunctionsRun) {
    const auto endAfterAnswer = [] {
        reportExitFunctions();
        EXPECT_EQ(session::askSystem<int>([] { return 1; }), 1);
        hessiancln::exitProcess(7);
    };
    EXPECT_EXIT(endAfterAnswer(), testing::ExitedWithCode(7), testing::HasSubstr(exitFunctionRan));
}

} // namespace
