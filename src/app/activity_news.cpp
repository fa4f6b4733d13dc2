// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_news.h"

#include <utility>

#include <QApplication>
#include <QDateTime>

#include "app/event_log_viewer.h"
#include "app/log_span.h"
#include "app/status_link.h"
#include "session/connection.h"

namespace app {

namespace {

void filter(EventLogViewer& viewer, const std::optional<hessiancln::activity_log_info>& activity) {
    if (activity) {
        viewer.showFor(QDateTime::fromSecsSinceEpoch(activity->start_time),
                       QDateTime::fromSecsSinceEpoch(activity->end_time), activity->id);
    } else {
        const LogSpan span = yesterdayAndToday(QDate::currentDate());
        viewer.showFor(span.from, span.to, 0);
    }
}

} // namespace

ActivityNews::ActivityNews(QWidget& window, QStatusBar& bar, Names names)
    : window_(window)
    , names_(std::move(names))
    , link_(*new StatusLink(bar)) {}

void ActivityNews::announceEnd(const hessiancln::activity_log_info& ended, const QString& text) {
    if (ended.type != hessiancln::ActivityType::Restore)
        return;
    emit statusChanged(text);
    link_.offer(text, [this, ended] { showEventsOf(ended); });
}

void ActivityNews::showEventsOf(const std::optional<hessiancln::activity_log_info>& activity) {
    EventLogViewer viewer(&window_);
    viewer.setNamesByActivity(names_());
    filter(viewer, activity);
    viewer.exec();
}

void ActivityNews::follow(const std::optional<hessiancln::activity_log_info>& ended) {
    // Over a dialog there is no room for another one.
    if (!ended || QApplication::activeModalWidget() || !session::connectedToAgent())
        return;
    emit windowWanted();
    showEventsOf(ended);
}

} // namespace app
