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

    /// Queries the agent, either by the times, in seconds since 1970 UTC, or by the activity; the
    /// unused values are 0. Throws what the call throws, leaving the rows unchanged.
    void refresh(std::int32_t from, std::int32_t to, std::int32_t activityId);

    /// All texts of the columns `type` and `category`.
    static QStringList typeLabels();
    static QStringList categoryLabels();
};
