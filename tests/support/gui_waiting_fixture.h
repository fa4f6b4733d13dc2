// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QObject>

#include "app/call_gate.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"

namespace support {

using Calls = std::vector<std::string>;

/// The base of a test of a main window that is logged in, and whose waits soon show. Each test
/// function gets an agent and a window of its own.
class WaitingFixture : public QObject {
    Q_OBJECT
protected:
    /// Replaces the gate by one with other times, under a window that is logged in.
    void startWith(const app::CallGate::Times& times);
    void beSilent(const char* method = "getTarnClientInfo");
    /// What comes next isn't part of the calls so far, as after a turn of the event loop.
    void endChain();

    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<app::CallGate> gate_;
    std::unique_ptr<MainWindowDriver> driver_;

private slots:
    void initTestCase();
    void init();
    void cleanup();
};

} // namespace support
