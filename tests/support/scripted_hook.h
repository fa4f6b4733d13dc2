// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/signal.h"
#include "transport/call_passage.h"

namespace support {

/// Runs `work` in each wait, then sleeps until the call has finished.
class ScriptedHook final : public hessiancln::WaitHook {
public:
    using Work = std::function<void(hessiancln::AwaitedCall&)>;
    explicit ScriptedHook(Work work,
                          std::chrono::milliseconds patience = std::chrono::milliseconds(30))
        : work_(std::move(work))
        , patience_(patience) {}

    std::chrono::milliseconds begin(hessiancln::AwaitedCall&) override { return patience_; }

    void wait(hessiancln::AwaitedCall& call) noexcept override {
        ++waits;
        Signal finished;
        call.onFinish([&] { finished.raise(); });
        work_(call);
        EXPECT_TRUE(finished.wait());
        EXPECT_TRUE(call.finished());
        call.onFinish({});
    }

    int waits = 0;

private:
    Work work_;
    std::chrono::milliseconds patience_;
};

} // namespace support
