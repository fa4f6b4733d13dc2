// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include "api/activity_records.h"
#include "app/running_activity_changes.h"
#include "insight/activity_pace.h"
#include "models/record_table_model.h"

Q_DECLARE_METATYPE(hessiancln::running_activity_info)

/// The agent's running activities. Reports what has started and ended between two refreshes.
class RunningActivitiesModel : public models::RecordTableModel<hessiancln::running_activity_info> {
    Q_OBJECT
public:
    enum Column { type, startTime, userName, progress, description, columns };

    /// Returns seconds since 1970 UTC.
    using Clock = std::function<std::int64_t()>;
    static std::int64_t systemClock();

    explicit RunningActivitiesModel(QObject* parent = nullptr, Clock clock = systemClock);

    /// Queries the agent. Throws what the call throws, leaving everything unchanged.
    void refresh();

    /// Compares a list from the agent with the previous one, then replaces the rows. The first list
    /// after a `clear` isn't compared.
    void setActivities(std::vector<hessiancln::running_activity_info> activities);

    /// Also forgets what was running, so that a lost session isn't reported as finished activities.
    void clear() override;

    bool hasActivityOnSet(std::int32_t setId) const;

    /// The progress text includes the speed.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

signals:
    /// At least one of the lists has an entry. Emitted before the rows are replaced.
    void activityChangeDetected(QList<hessiancln::running_activity_info> appeared,
                                QList<hessiancln::running_activity_info> disappeared);

protected:
    QVariant rowData(const hessiancln::running_activity_info& record, int role) const override;

private:
    void reportChanges(const std::vector<hessiancln::running_activity_info>& activities);

    Clock clock_;
    insight::ActivityPace pace_;
    app::ActivityIds knownIds_;
    bool skipComparison_ = true;
};
