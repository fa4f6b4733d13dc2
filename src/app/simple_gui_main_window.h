// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <memory>

#include <QMainWindow>

#include <boost/thread/thread.hpp>

#include "app/backup_sets_model.h"

class QItemSelection;

namespace Ui {
class SimpleGUIMainWindow;
}

/// The program's one top-level window: the backup sets of the agent that the session is with, and
/// the commands on them. It stores no state of the connection; each look at it asks the session.
///
/// A thread of its own posts a heartbeat to it every 5 seconds, upon which it asks the agent for
/// everything anew. That is the only way in which it learns anything.
class SimpleGUIMainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit SimpleGUIMainWindow(QWidget* parent = nullptr);
    /// Ends the heartbeat thread. Events that are still in the queue die with the window.
    ~SimpleGUIMainWindow() override;

    /// Logs in: at start-up to the agent on this machine, without asking; otherwise by the login
    /// dialog. False if that failed or was cancelled. True doesn't say that there is a session;
    /// `session::connectedToAgent` does.
    bool doLogin(bool automatic);

    /// The type of the event that makes the window refresh itself.
    int heartbeatEventType() const { return heartbeatEventType_; }

    bool event(QEvent* event) override;

public slots:
    void OnQuit();
    void OnConnect();
    void OnDisconnect();
    void OnBackupSetSelectionChanged(const QItemSelection& selected,
                                     const QItemSelection& deselected);
    void RefreshTarnClientInfo();
    void showMainWindow();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setUpBranding();
    void setUpToolBars();
    void setUpDateRange();
    void setUpBackupSetsView();
    void setUpGeometry();
    void activityWatcherLoop();

    void showSession(const QString& server, const QString& user);
    void showStatus(const QString& text);
    void updateEnabling();
    void refreshAll();
    void refreshBackupSets();
    void readClientInfo();
    const hessiancln::backup_set_info* selectedSet() const;

    std::unique_ptr<Ui::SimpleGUIMainWindow> ui_;
    BackupSetsModel backupSets_;
    const int heartbeatEventType_;
    std::atomic<bool> stopWatcher_ = false;
    boost::thread watcher_;
};
