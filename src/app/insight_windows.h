// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <QList>
#include <QObject>

#include "api/activity_records.h"
#include "insight/backup_health_window.h"
#include "insight/end_watch.h"
#include "insight/find_file_window.h"
#include "insight/health_monitor.h"
#include "insight/log_search_bar.h"

class QStatusBar;

namespace app {

class HealthField;

/// Insight into the user's data: the field in the status bar, the windows for the health of sets
/// and for the file search, and notifications about how activities ended. The windows are created
/// when they are first opened.
class InsightWindows : public QObject {
    Q_OBJECT
public:
    /// The window, its status bar and the search in its log must outlive this.
    InsightWindows(QWidget& window, QStatusBar& statusBar, LogSearchBar& logSearch,
                   BackupHealthWindow::AllowedOf allowedOf);
    ~InsightWindows() override;

    /// The data read on each heartbeat; pass the activities first.
    void takeActivities(const std::vector<hessiancln::activity_log_info>& log,
                        const std::vector<hessiancln::running_activity_info>& running);
    void takeSets(std::vector<hessiancln::backup_set_info> sets);
    /// Call when the session has ended.
    void clear();
    void scheduleChanged(std::int32_t setId) { monitor_.scheduleChanged(setId); }
    /// These activities are no longer running; waits for their rows in the log.
    void watchEnds(const QList<hessiancln::running_activity_info>& disappeared);

    /// The names of the activities' backup sets, by activity id.
    insight::SetNames
    namesByActivity(const std::vector<hessiancln::activity_log_info>& log,
                    const std::vector<hessiancln::running_activity_info>& running) const;

    void openHealth();
    /// Opens the window with this set selected; -1 for all sets.
    void openFindFile(std::int32_t setId);

    /// Sets all texts in the current language.
    void setTexts();

signals:
    void backupRequested(std::int32_t setId);
    void syncRequested(std::int32_t setId);
    /// Requests the events of the activity, or of the last days without one.
    void eventsRequested(const std::optional<hessiancln::activity_log_info>& activity);
    void restoreRequested(std::int32_t setId, const wizards::RestoreFile& file);
    /// An activity worth reporting has ended; the text describes the result.
    void activityEnded(const hessiancln::activity_log_info& ended, const QString& text);

private:
    void showCount();
    void makeHealthWindow();
    void makeFindFileWindow();
    QString nameOf(const hessiancln::activity_log_info& ended) const;

    QWidget& window_;
    LogSearchBar& logSearch_;
    BackupHealthWindow::AllowedOf allowedOf_;
    HealthField& field_; ///< owned by the status bar
    insight::HealthMonitor monitor_;
    insight::EndWatch ends_;
    bool isConnected_ = false;
    std::unique_ptr<BackupHealthWindow> health_;
    std::unique_ptr<FindFileWindow> findFile_;
};

} // namespace app
