// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QPair>
#include <QStringList>
#include <QTest>

#include "app/simple_gui_main_window.h"
#include "tests/support/gui_agent.h"

class QLabel;
class QTableView;

namespace support {

/// A tray that records what it was asked to show.
class RecordingTray : public app::TrayIcon {
public:
    explicit RecordingTray(bool available)
        : available_(available) {}

    bool isAvailable() const override { return available_; }
    void setAvailable(bool available) { available_ = available; }
    void showBalloon(const QString& title, const QString& text) override {
        balloons.append({title, text});
    }
    void showWarning(const QString& title, const QString& text) override {
        warnings.append({title, text});
    }

    QList<QPair<QString, QString>> balloons; ///< title and text
    QList<QPair<QString, QString>> warnings;

private:
    bool available_;
};

/// The main window, shown, with what a test does to it and reads from it. Heartbeats come only from
/// the test.
class MainWindowDriver {
public:
    explicit MainWindowDriver(bool trayAvailable = true);
    /// Also ends the session.
    ~MainWindowDriver();

    SimpleGUIMainWindow& window() { return *window_; }
    RecordingTray& tray() { return *tray_; }

    /// Logs in to the local agent, then clears the agent's call log.
    void logIn(GuiAgent& agent);
    /// Delivers a heartbeat and returns when everything it triggers is done.
    void beat();
    /// Posts a heartbeat to the event loop.
    void postBeat();

    QTableView& sets();
    BackupSetViewItem& card(int row);
    /// The texts of each card: the name and the second line.
    QStringList cards();
    /// The row of the selected card; -1 if none is selected.
    int selectedRow();
    /// The texts of the details panel, from top to bottom.
    QStringList details();
    /// The row count of one of the tables.
    int rows(const char* table);

    bool isEnabled(const char* action);
    void trigger(const char* action);
    QString status();

private:
    RecordingTray* tray_; ///< owned by the window
    std::unique_ptr<SimpleGUIMainWindow> window_;
};

/// What the cards show when all file sets of the agent are listed.
QStringList cardsOf(GuiAgent& agent);

/// The methods called, in order, without `Release`.
std::vector<std::string> methodsOf(const simulator::Simulator& agent);

} // namespace support
