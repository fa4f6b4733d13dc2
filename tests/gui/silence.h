// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QMetaType>
#include <QStringList>

#include "app/call_gate.h"
#include "simulator/options.h"
#include "tests/support/gui_main_window.h"

/// An agent that falls silent at each call in turn, and a user who then disconnects: the outcome is
/// the same as when the agent cuts the connection at that call.
namespace gui {

/// What the user does, and where.
struct Flow {
    std::function<void(support::MainWindowDriver&, app::CallGate&)> act;
    bool loggedIn = true;
    simulator::Scenario scenario = simulator::Scenario::Default;
    std::function<void(support::MainWindowDriver&)> prepare = {};
    QStringList pageButtons = {}; ///< pressed in a wizard
    bool integratedLogon = false;
};

/// A slot of the window.
Flow slot(const char* name);

/// Fails the running test at the first call whose outcomes differ.
void disconnectAtEachCall(const Flow& flow);

} // namespace gui

Q_DECLARE_METATYPE(gui::Flow)
