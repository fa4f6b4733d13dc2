// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QWidget>

#include "insight/planned_runs.h"

/// Seven days side by side, midnight at the top, with a bar for each run; bars for the same time
/// are side by side, and overlapping ones are hatched in another colour. Tool tips describe the
/// bars; the list of runs has the same information as text.
class WeekPicture : public QWidget {
    Q_OBJECT
public:
    explicit WeekPicture(QWidget* parent = nullptr);

    /// Shows the runs of seven days, starting with the local day of `from` (seconds since 1970
    /// UTC).
    void showRuns(std::vector<insight::PlannedRun> runs, std::int64_t from);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString spokenText() const;
    QRectF bodyOfDay(int day) const;
    QRectF barOf(const insight::DayPart& part) const;
    void paintDays(QPainter& painter) const;
    void paintBars(QPainter& painter) const;

    std::vector<insight::PlannedRun> runs_;
    std::int64_t from_ = 0;
    std::vector<insight::DayPart> parts_;
    std::vector<int> lanes_;
};
