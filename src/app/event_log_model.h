// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/event_records.h"
#include "models/record_table_model.h"

/// The agent's event log, for a time span or for one activity.
class EventLogModel : public models::RecordTableModel<hessiancln::event_log_info> {
    Q_OBJECT
public:
    enum Column { type, time, user, category, eventNumber, activity, detail, description, columns };

    explicit EventLogModel(QObject* parent = nullptr);

    /// Asks the agent. Either the times, in seconds since 1970 UTC, or the activity count; what
    /// doesn't is 0. Raises what the call raises, and then leaves the rows as they were.
    void refresh(std::int32_t from, std::int32_t to, std::int32_t activityId);
};
