// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <memory>

#include <QDialog>

#include "app/event_log_model.h"
#include "insight/row_index.h"

class QAbstractSpinBox;
class QDateTime;

namespace Ui {
class EventLogViewer;
}

/// The agent's event log, filtered by time or by activity. Each change of the filter queries the
/// agent again; a failure is shown, and the table keeps its rows.
class EventLogViewer : public QDialog {
    Q_OBJECT
public:
    explicit EventLogViewer(QWidget* parent = nullptr);
    ~EventLogViewer() override;

    /// Sets the filter: the activity, or for id 0 the times. Queries the agent once.
    void showFor(const QDateTime& from, const QDateTime& to, std::int32_t activityId);

    /// Sets the names of the activities' backup sets, by activity id, for the search.
    void setNamesByActivity(insight::SetNames names);

    EventLogModel& model() { return model_; }

    void done(int result) override;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void refreshData();
    void updateEnabling();

private:
    void setUpTable();
    std::array<QAbstractSpinBox*, 3> fieldsOfFilter() const;
    void makeRoom();

    std::unique_ptr<Ui::EventLogViewer> ui_;
    EventLogModel model_;
};
