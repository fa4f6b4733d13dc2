// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QItemSelection>
#include <QMainWindow>

#include <boost/shared_ptr.hpp>

#include "app/heartbeat.h"
#include "app/tray_icon.h"
#include "ui/remote_action.h"

class BackupSetViewItem;
class QContextMenuEvent;
class QMenu;

namespace Ui {
class SimpleGUIMainWindow;
}

namespace app {
class ActivityNews;
class ActivityTables;
class BackupSetList;
class CallGate;
class ConnectionDisplay;
class InsightWindows;
class SetDetailsPanel;
class TrayPresence;
struct EnableInputs;
} // namespace app

namespace hessiancln {
class BackupSet;
class GenericActivity;
struct backup_set_info;
struct running_activity_info;
} // namespace hessiancln

namespace wizards {
struct RestoreFile;
}

/// The program's one top-level window: the backup sets of the connected agent, its activities, and
/// the commands on them. It stores no connection state; it always asks the session.
///
/// Everything with its own state is a class beside it: the list of cards, the details of the
/// selected set, the tables of activities, the news about them, the presence in the tray, the
/// health of sets and the heartbeat. They don't know each other; the window connects them.
///
/// On each heartbeat it queries the agent for everything again. There are no other updates.
/// Heartbeats also arrive in the event loop of an open dialog, so no code here may hold on to a
/// card or a row across one.
///
/// Closing the window only hides it in the tray.
class SimpleGUIMainWindow : public QMainWindow {
    Q_OBJECT
public:
    /// `sleep` is how a second passes between heartbeats.
    explicit SimpleGUIMainWindow(
        QWidget* parent = nullptr,
        std::unique_ptr<app::TrayIcon> tray = std::make_unique<app::TrayIcon>(),
        app::Heartbeat::Sleep sleep = app::Heartbeat::sleepOneSecond);
    /// Ends the heartbeat thread. Events still in the queue are discarded with the window.
    ~SimpleGUIMainWindow() override;

    /// Logs in: at start-up to the agent on this machine, without asking; otherwise through the
    /// login dialog. False if that failed or was cancelled. True doesn't imply that there is a
    /// session; check `session::connectedToAgent`.
    bool doLogin(bool automatic);

    /// Enables and disables each command according to the current state.
    void updateEnabling();
    /// Shows the agent's current data, or nothing without a session. A failure is shown in the
    /// status bar; nothing is thrown.
    void refreshAll();

    /// The start of a session: requests missing configuration from the user, and offers to create
    /// the first backup set.
    void checkInitialConfiguration();
    void offerNewBackupSet();
    void startDailyAdmin();

    /// The card of the first selected set, or null. The next heartbeat may delete it.
    BackupSetViewItem* selectedSetItem() const;
    /// Selects the set with this id as soon as the agent lists it.
    void selectSetOnceListed(std::int32_t setId);

    /// Registers which of the window's events and actions are allowed during a call.
    void keepAliveBy(app::CallGate& gate);

    /// The type of the event that makes the window refresh.
    int heartbeatEventType() const { return heartbeat_.eventType(); }

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

private slots:
    // Requests of other windows.
    void backUpSet(std::int32_t setId);
    void syncSet(std::int32_t setId);
    void restoreFile(std::int32_t setId, const wizards::RestoreFile& file);

private:
    void setUpBranding();
    void setUpActivities();
    void setUpBackupSets();
    void setUpInsight();
    void setUpNews();
    void setUpGeometry();
    QList<int> sizesOfSplitter() const;
    void setUpConnection();
    void setUpTray(std::unique_ptr<app::TrayIcon> icon);

    app::EnableInputs enableInputs() const;
    void showSession(const QString& server, const QString& user);
    void showNoSession();
    void showStatus(const QString& text);
    /// Shows that an activity was started, unless the session has ended in the refresh after it,
    /// whose text stays.
    void showStarted(const QString& text);
    /// Shows the window if it is hidden. Without it, a dialog may be behind others and has no entry
    /// in the task bar.
    void comeOut();
    void openInitialConfiguration();

    /// Reads something in the session, or ends the session if that fails.
    void refresh(const std::function<void()>& read);
    void refreshBackupSets();
    void showSetDetails();

    /// Runs a command on the selected set, or reports that there is no selection.
    using SetCommand = std::function<void(const hessiancln::backup_set_info& set)>;
    void commandSelectedSet(const QString& errorTitle, ui::Cursor cursor,
                            const SetCommand& command);
    /// Starts an activity on the selected set; `status` gets the time and the name of the set.
    using StartOnSet = boost::shared_ptr<hessiancln::GenericActivity>(std::int32_t setId);
    void startOnSelectedSet(StartOnSet* begin, ui::Cursor cursor, const QString& status);
    /// Runs a wizard on a set. If it was finished, shows what the agent has now; if it started an
    /// activity, also shows `status`.
    using Started = std::optional<boost::shared_ptr<hessiancln::GenericActivity>>;
    using Wizard = std::function<Started(QWidget& parent,
                                         const boost::shared_ptr<hessiancln::BackupSet>& set)>;
    void runOnSet(const Wizard& wizard, const hessiancln::backup_set_info& set,
                  const QString& status);
    void runOnSelectedSet(const Wizard& wizard, const QString& status);
    /// Edits the selected set, and shows its details again if the edit was finished. The set's id;
    /// -1 without a set.
    using EditSet = bool(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set);
    std::int32_t editSelectedSet(EditSet* edit);
    void createBackupSet();
    void stopSelectedActivities();

    std::unique_ptr<Ui::SimpleGUIMainWindow> ui_;
    std::unique_ptr<app::ActivityTables> activities_;
    std::unique_ptr<app::BackupSetList> sets_;
    std::unique_ptr<app::SetDetailsPanel> details_;
    std::unique_ptr<app::TrayPresence> tray_;
    QMenu* setMenu_ = nullptr;                     ///< a child of the window
    app::ConnectionDisplay* connection_ = nullptr; ///< belongs to the status bar
    std::unique_ptr<app::InsightWindows> insight_;
    std::unique_ptr<app::ActivityNews> news_;
    app::Heartbeat heartbeat_;
    QString status_;         ///< text of the status bar, which menu tips temporarily replace
    QString refreshFailure_; ///< failure of the last refresh; empty if it succeeded
};
