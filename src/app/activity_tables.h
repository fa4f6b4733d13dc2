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

/// The two tables of activities: those that run, and those that the log keeps of a time span.
class ActivityTables {
public:
    struct Widgets {
        QTableView& running;
        QTableView& log;
        QDateTimeEdit& from;
        QDateTimeEdit& to;
    };
    using Today = std::function<QDate()>;
    /// The widgets have to outlive this. The span is yesterday and today, and moves on with the
    /// day for as long as the user hasn't chosen another one.
    explicit ActivityTables(const Widgets& widgets, Today today = QDate::currentDate);

    RunningActivitiesModel& running() { return running_; }
    const RunningActivitiesModel& running() const { return running_; }
    ActivityLogModel& log() { return log_; }

    /// Asks the agent, for the log first. Raises what the calls raise.
    void refresh();
    void clear();

    bool anyRunningSelected() const;
    /// Ids of the selected running activities, from top to bottom.
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
    LogSpan span_; ///< that was shown last without the user
    ActivityLogModel log_;
    RunningActivitiesModel running_;
};

} // namespace app
