// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

class RunningActivitiesModel;

/// Paints the progress of a running activity, as a bar if it is known, else as text. For a column
/// of a view that shows the model itself; the model must outlive the delegate.
class CActivityProgressItemDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit CActivityProgressItemDelegate(const RunningActivitiesModel& model,
                                           QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const RunningActivitiesModel& model_;
};
