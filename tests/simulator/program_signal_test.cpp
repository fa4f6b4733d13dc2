// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <csignal>

#include <gtest/gtest.h>

#include "tests/support/child_process.h"

namespace {

TEST(ProgramSignal, OfTerminationEndsTheProgram) {
    support::ChildProcess program(SIMULATOR_PROGRAM, {"--port", "0"});
    EXPECT_TRUE(program.line().starts_with("https://127.0.0.1:"));
    program.signal(SIGTERM);
    EXPECT_EQ(program.status(), 0);
}

} // namespace
