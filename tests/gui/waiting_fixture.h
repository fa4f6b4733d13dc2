// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QTest>

#include "app/call_gate.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_wait.h"

namespace gui_tests {

using Calls = std::vector<std::string>;

/// A test of a main window that is logged in, and whose waits soon show.
class WaitingFixture {
protected:
    void setUp() {
        agent_ = std::make_unique<support::GuiAgent>();
        gate_ = std::make_unique<app::CallGate>(support::quickTimes);
        driver_ = std::make_unique<support::MainWindowDriver>();
        driver_->window().keepAliveBy(*gate_);
        driver_->logIn(*agent_);
    }
    void tearDown() {
        QVERIFY(!support::waitingPanel());
        driver_.reset();
        gate_.reset();
        QCOMPARE(agent_->violations(), Calls{});
        agent_.reset();
    }

    void beSilent(const char* method = "getTarnClientInfo") {
        agent_->inject(method, simulator::Silence{});
    }

    std::unique_ptr<support::GuiAgent> agent_;
    std::unique_ptr<app::CallGate> gate_;
    std::unique_ptr<support::MainWindowDriver> driver_;
};

} // namespace gui_tests
