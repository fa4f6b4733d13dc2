// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <thread>

#include <gtest/gtest.h>

#include "platform/process_id.h"
#include "platform/security_context.h"

namespace {

TEST(ProcessId, ThreadsHaveNumbersOfTheirOwn) {
    const long here = platform::threadId();
    long there = here;
    std::thread([&] { there = platform::threadId(); }).join();
    EXPECT_NE(here, there);
    EXPECT_EQ(platform::threadId(), here);
}

TEST(SecurityHandle, HoldsNothingWhileBothWordsAreZero) {
    EXPECT_FALSE(platform::SecurityHandle{}.held());
    EXPECT_TRUE((platform::SecurityHandle{1, 0}.held()));
    EXPECT_TRUE((platform::SecurityHandle{0, 1}.held()));
}

TEST(SecurityOperations, AreThereOnEverySystem) {
    EXPECT_NE(platform::securityOperations(), nullptr);
}

} // namespace
