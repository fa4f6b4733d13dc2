// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "insight/health_monitor.h"
#include "models/record_table_model.h"

/// The sets with their health, one row each, in the given order.
class BackupHealthModel : public models::RecordTableModel<insight::HealthRow> {
    Q_OBJECT
public:
    enum Column {
        name,
        state,
        lastGood,
        lastAttempt,
        nextRun,
        storedSize,
        generations,
        owner,
        columns
    };

    explicit BackupHealthModel(QObject* parent = nullptr);

protected:
    QVariant rowData(const insight::HealthRow& row, int role) const override;
};

/// The upcoming runs, soonest first.
class NextRunsModel : public models::RecordTableModel<insight::PlannedRun> {
    Q_OBJECT
public:
    enum Column { start, set, end, overlap, columns };

    explicit NextRunsModel(QObject* parent = nullptr);
};
