// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <QTableView>
#include <QtTest>

#include "session/connection.h"
#include "tests/support/gui_agent.h"

/// What the tests of windows that call a simulated agent share.
namespace insight_windows {

inline constexpr int patience = 60'000;

/// An agent with a session of the client.
struct Session {
    explicit Session(simulator::Scenario scenario)
        : agent({.scenario = scenario}) {
        session::connectToAgent("127.0.0.1:4411", "", "", 0);
        agent.clearCallLog();
    }
    ~Session() { support::resetSession(); }

    std::vector<std::string> methods() const {
        std::vector<std::string> list;
        for (const auto& call : agent.callLog())
            if (call.method != "Release")
                list.push_back(call.method);
        return list;
    }

    /// References to views that the client holds.
    int views() const {
        const auto held = agent.liveObjects();
        return static_cast<int>(std::count_if(held.begin(), held.end(), [](const auto& object) {
            return object.rfind("BackupSetRestoreView ", 0) == 0;
        }));
    }

    support::GuiAgent agent;
};

inline QString cell(const QTableView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
}

inline QStringList column(const QTableView& table, int number) {
    QStringList texts;
    for (int row = 0; row < table.model()->rowCount(); ++row)
        texts.append(cell(table, row, number));
    return texts;
}

inline QString name(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace insight_windows
