// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <memory>

#include <QItemSelection>
#include <QMainWindow>
#include <QStringListModel>

#include <boost/shared_ptr.hpp>

#include "app/activity_log_model.h"
#include "app/running_activities_model.h"
#include "app/tray_icon.h"

class BackupSetViewItem;
class QContextMenuEvent;

namespace Ui {
class SimpleGUIMainWindow;
}

namespace app {
struct SetDetails;
}

namespace boost {
class thread;
}

namespace hessiancln {
class BackupSet;
}

/// The program's one top-level window: the backup sets of the agent that the session is with, its
/// activities, and the commands on them. It stores no state of the connection; each look at it
/// asks the session.
///
/// A thread of its own posts a heartbeat to it every 5 seconds, upon which it asks the agent for
/// everything anew. That is the only way in which it learns anything. Heartbeats arrive in the
/// event loop of an open dialog too, so nothing here may hold on to a card or a row over one.
///
/// Closing the window only hides it in the tray.
class SimpleGUIMainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit SimpleGUIMainWindow(QWidget* parent = nullptr, std::unique_ptr<app::TrayIcon> tray =
                                                                std::make_unique<app::TrayIcon>());
    /// Ends the heartbeat thread. Events that are still in the queue die with the window.
    ~SimpleGUIMainWindow() override;

    /// Logs in: at start-up to the agent on this machine, without asking; otherwise by the login
    /// dialog. False if that failed or was cancelled. True doesn't say that there is a session;
    /// `session::connectedToAgent` does.
    bool doLogin(bool automatic);

    /// Allows and forbids each command by what is known now.
    void updateEnabling();
    /// Shows what the agent has now, or nothing without a session. A failure stands in the status
    /// bar; nothing leaves this.
    void refreshAll();

    /// What a session begins with: asks for what the agent still has to be told, and offers a
    /// first backup set.
    void checkInitialConfiguration();
    void offerNewBackupSet();
    void startDailyAdmin();

    /// The card of the first selected set, or null. It may go with the next heartbeat.
    BackupSetViewItem* selectedSetItem() const;
    /// Selects the set with this id as soon as the agent lists it.
    void selectSetOnceListed(std::int32_t setId) { pendingSelectSetId_ = setId; }

    /// The type of the event that makes the window refresh itself.
    int heartbeatEventType() const { return heartbeatEventType_; }

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void on_actionLogo_triggered();
    void on_actionRegister_triggered();
    void on_actionHelp_triggered();
    void on_action_About_triggered();
    void on_action_Recovery_triggered();
    void on_actionRegistration_Info_triggered();
    void on_actionLDAP_Account_triggered();
    void on_actionAdmin_triggered();
    void on_actionTFASettings_triggered();
    void on_btnItems_clicked();
    void on_btnRetention_clicked();
    void on_btnSchedule_clicked();
    void OnQuit();
    void OnConnect();
    void OnDisconnect();
    void OnRunningActivitySelectionChanged(const QItemSelection& selected,
                                           const QItemSelection& deselected);
    void OnBackupSetSelectionChanged(const QItemSelection& selected,
                                     const QItemSelection& deselected);
    void OnStopActivity();
    void ShowEventLog();
    void RefreshTarnClientInfo();
    void RefreshActivityLogs();
    void OnBackupNow();
    void OnSync();
    void OnRestore();
    void OnDelete();
    void OnNewBackupSet();
    void backupSetContextMenu(BackupSetViewItem* source, QContextMenuEvent* event);
    void activityChangeDetected(const QList<hessiancln::running_activity_info>& appeared,
                                const QList<hessiancln::running_activity_info>& disappeared);
    void showMainWindow();
    void hideMainWindow();
    void sysTrayActivated(QSystemTrayIcon::ActivationReason reason);
    void sysTrayMessageClicked();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void setUpBranding();
    void setUpToolBars();
    void setUpDateRange();
    void setUpActivityLog();
    void setUpRunningActivities();
    void setUpBackupSetsView();
    void setUpGeometry();
    void setUpTray();
    void setTrayTexts();
    void activityWatcherLoop();

    void showSession(const QString& server, const QString& user);
    void showStatus(const QString& text);
    void openInitialConfiguration();

    void readClientInfo();
    void readActivities();
    void clearActivities();
    void endSession(const std::exception& error);

    void refreshBackupSets();
    void clearSets();
    void setCardCount(int count);
    BackupSetViewItem* cardAt(int row) const;
    BackupSetViewItem* requireSetItem();
    void selectCard(int row);
    void abandonEditing();
    void showSetDetails();
    void editSelectedSet(bool (*edit)(QWidget& parent,
                                      const boost::shared_ptr<hessiancln::BackupSet>& set));
    void fillDetails(const app::SetDetails& details);

    std::unique_ptr<Ui::SimpleGUIMainWindow> ui_;
    ActivityLogModel activityLog_;
    RunningActivitiesModel running_;
    QStringListModel setRows_; ///< a row for each card, which shows everything itself
    const int heartbeatEventType_;
    bool hasBackedUpData_ = false; ///< of the selected set
    std::int32_t pendingSelectSetId_ = -1;
    bool rebuildingSets_ = false;
    bool readingDetails_ = false;

    std::unique_ptr<app::TrayIcon> tray_;
    QAction* actionShow_; ///< owned by the window, like the next two
    QAction* actionHide_;
    QMenu* trayMenu_;
    bool showTrayReminder_ = true;

    std::atomic<bool> stopWatcher_ = false;
    std::unique_ptr<boost::thread> watcher_;
};
