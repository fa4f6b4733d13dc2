// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/activity_records.h"
#include "models/record_table_model.h"

/// The activities in the agent's log for a time span.
class ActivityLogModel : public models::RecordTableModel<hessiancln::activity_log_info> {
    Q_OBJECT
public:
    enum Column {
        type,
        description,
        errors,
        warnings,
        start,
        end,
        duration,
        files,
        dataSize,
        columns
    };

    explicit ActivityLogModel(QObject* parent = nullptr);

    /// Queries the agent; both times are seconds since 1970 UTC. Throws what the call throws,
    /// leaving the rows unchanged.
    void refresh(std::int32_t from, std::int32_t to);

protected:
    QVariant rowData(const hessiancln::activity_log_info& record, int role) const override;
};
