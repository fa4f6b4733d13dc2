// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The thread that resolves a name, without memory for its result.
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/failing_allocation.h"
#include "tests/support/held_names.h"
#include "tests/support/system/failures.h"
#include "transport/http_call_dispatcher.h"
#include "transport/invoke_exception.h"
#include "transport/raw_stream_dispatcher.h"

namespace {

using namespace hessiancln;

std::string failureOf(ICallDispatcher& dispatcher) {
    try {
        dispatcher.sendRequest("http://agent.held:4411/api", "ping");
        return {};
    } catch (const invoke_exception& failure) {
        return failure.what();
    }
}

/// The failure of a call whose name is resolved by a thread that then gets no memory four times in
/// a row: for the result, and to report that.
std::string failureWithoutMemory(ICallDispatcher& dispatcher) {
    std::unique_ptr<support::FailingAllocation> failing;
    support::HeldNames names(
        [&failing] { failing = std::make_unique<support::FailingAllocation>(1, 4); });
    names.letGo();
    const std::string failure = failureOf(dispatcher);
    EXPECT_TRUE(failing);
    return failure;
}

const std::string noMemory = "Failed to connect to 'agent.held' on port 4411. O/S error " +
                             support::failures::outOfMemory().reported();

TEST(NameShortage, FailsAnHttpCall) {
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(failureWithoutMemory(dispatcher), noMemory);
}

TEST(NameShortage, FailsACallByStream) {
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(failureWithoutMemory(dispatcher), noMemory);
}

} // namespace
