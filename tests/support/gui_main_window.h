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

/// A tray that keeps what it was asked to show.
class RecordingTray : public app::TrayIcon {
public:
    explicit RecordingTray(bool available)
        : available_(available) {}

    bool isAvailable() const override { return available_; }
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

/// The main window, shown, and what a test does to it and sees of it. Its heart beats only when
/// the test says so.
class MainWindowDriver {
public:
    explicit MainWindowDriver(bool trayAvailable = true);
    /// Ends the session too.
    ~MainWindowDriver();

    SimpleGUIMainWindow& window() { return *window_; }
    RecordingTray& tray() { return *tray_; }

    /// Logs in to the agent of this machine; the agent's log then begins anew.
    void logIn(GuiAgent& agent);
    /// A heartbeat, until all is done that it leads to.
    void beat();
    /// One that arrives from the event loop.
    void postBeat();

    QTableView& sets();
    BackupSetViewItem& card(int row);
    /// What each card says, name and further line.
    QStringList cards();
    /// The row of the selected card; -1 if none is selected.
    int selectedRow();
    /// The texts of the details, from top to bottom.
    QStringList details();
    /// The rows of one of the tables.
    int rows(const char* table);

    bool isEnabled(const char* action);
    void trigger(const char* action);
    QString status();

private:
    RecordingTray* tray_; ///< the window's
    std::unique_ptr<SimpleGUIMainWindow> window_;
};

/// What the cards say when they show all file sets of the agent.
QStringList cardsOf(GuiAgent& agent);

/// The methods called, in order, without `Release`.
std::vector<std::string> methodsOf(const simulator::Simulator& agent);

} // namespace support
