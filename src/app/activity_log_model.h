// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/activity_records.h"
#include "models/record_table_model.h"

/// The activities of a time span that the agent keeps in its log.
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

    /// Asks the agent; both times are seconds since 1970 UTC. Raises what the call raises, and
    /// then leaves the rows as they were.
    void refresh(std::int32_t from, std::int32_t to);

protected:
    QVariant rowData(const hessiancln::activity_log_info& record, int role) const override;
};
