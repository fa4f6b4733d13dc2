// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "app/activity_log_model.h"
#include "app/log_span.h"
#include "app/running_activities_model.h"

class QDateTimeEdit;
class QTableView;

namespace app {

/// The two tables of activities: running ones, and those logged in a time span.
class ActivityTables {
public:
    struct Widgets {
        QTableView& running;
        QTableView& log;
        QDateTimeEdit& from;
        QDateTimeEdit& to;
    };
    using Today = std::function<QDate()>;
    /// The widgets must outlive this. The span is yesterday and today, and moves on with the day
    /// until the user selects another one.
    explicit ActivityTables(const Widgets& widgets, Today today = QDate::currentDate);

    RunningActivitiesModel& running() { return running_; }
    const RunningActivitiesModel& running() const { return running_; }
    ActivityLogModel& log() { return log_; }

    /// Queries the agent, for the log first. Throws what the calls throw.
    void refresh();
    void clear();
    /// Whether the log is what the agent last returned. Doesn't ask the session, whose lock is held
    /// while the window paints during a login.
    bool isLogKnown() const { return logKnown_; }

    bool anyRunningSelected() const;
    /// Ids of the selected running activities, in top to bottom order.
    std::vector<std::int32_t> selectedRunning() const;
    /// The topmost selected entry of the log.
    std::optional<hessiancln::activity_log_info> selectedLogEntry() const;

private:
    void showSpan();
    void followTheDay();
    void setUpLog();
    void setUpRunning();

    Widgets widgets_;
    Today today_;
    LogSpan span_; ///< last span not set by the user
    ActivityLogModel log_;
    bool logKnown_ = false;
    RunningActivitiesModel running_;
};

} // namespace app
