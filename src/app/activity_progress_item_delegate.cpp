// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_progress_item_delegate.h"

#include <algorithm>

#include <QApplication>
#include <QPainter>

#include "app/running_activities_model.h"
#include "app/running_activity_progress.h"

namespace {

constexpr int barLength = 1000;
constexpr int widestMargin = 5;

/// The margin around the bar, which leaves room for the text first.
int marginOf(const QStyleOptionViewItem& option, const QString& text) {
    const QRect textRect = option.fontMetrics.boundingRect(text);
    const int freeHeight = option.rect.height() - textRect.height();
    const int freeWidth = option.rect.width() - textRect.width();
    return std::min({widestMargin, freeHeight / 2, freeWidth / 2});
}

QStyleOptionProgressBar barOption(const QStyleOptionViewItem& option, const QString& text,
                                  double progress) {
    QStyleOptionProgressBar bar;
    bar.rect = option.rect;
    if (const int margin = marginOf(option, text); margin > 0)
        bar.rect.adjust(margin, margin, -margin, -margin);
    bar.state = option.state | QStyle::State_Horizontal;
    bar.direction = option.direction;
    bar.fontMetrics = option.fontMetrics;
    bar.palette = option.palette;
    bar.minimum = 0;
    bar.maximum = barLength;
    bar.progress = static_cast<int>(progress * barLength);
    bar.text = text;
    bar.textAlignment = Qt::AlignCenter;
    bar.textVisible = true;
    return bar;
}

} // namespace

CActivityProgressItemDelegate::CActivityProgressItemDelegate(const RunningActivitiesModel& model,
                                                             QObject* parent)
    : QStyledItemDelegate(parent)
    , model_(model) {}

void CActivityProgressItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const {
    const auto progress = app::progressOf(model_.at(index.row()));
    if (!progress) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QPalette& palette = option.palette;
    const auto group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected)) {
        painter->fillRect(option.rect, palette.brush(group, QPalette::Highlight));
        painter->setPen(palette.color(group, QPalette::HighlightedText));
    } else {
        painter->setPen(palette.color(group, QPalette::Text));
    }
    auto bar = barOption(option, index.data().toString(), *progress);
    // The style of Windows moves a glow across the bar of each object. It would stay where the last
    // painting has put it, so each painting has an object of its own.
    QObject painted;
    bar.styleObject = &painted;
    QApplication::style()->drawControl(QStyle::CE_ProgressBar, &bar, painter);
    painter->restore();
}
