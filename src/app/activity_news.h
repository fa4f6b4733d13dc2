// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>

#include <QObject>

#include "api/activity_records.h"
#include "insight/row_index.h"

class QStatusBar;
class QWidget;

namespace app {

class StatusLink;

/// News about ended activities, and the events behind it: the end of a restore is shown in the
/// status bar, where a link leads to its events. Also opens the event viewer for everything else
/// that leads there.
class ActivityNews : public QObject {
    Q_OBJECT
public:
    /// Returns the names of the activities' backup sets, by activity id.
    using Names = std::function<insight::SetNames()>;

    /// `window` is the parent of the event viewer. It and its status bar must outlive this.
    ActivityNews(QWidget& window, QStatusBar& bar, Names names);

    /// An activity has ended; the text describes the result.
    void announceEnd(const hessiancln::activity_log_info& ended, const QString& text);

    /// Opens the event viewer: with the events of the activity, or without one, those of yesterday
    /// and today.
    void showEventsOf(const std::optional<hessiancln::activity_log_info>& activity);

    /// Brings up the window and the events of an ended activity, if there is one. Does nothing
    /// without a session, or over a dialog.
    void follow(const std::optional<hessiancln::activity_log_info>& ended);

signals:
    /// Requests that the status bar show this text.
    void statusChanged(const QString& text);
    /// Requests that the window be shown.
    void windowWanted();

private:
    QWidget& window_;
    Names names_;
    StatusLink& link_; ///< owned by the status bar
};

} // namespace app
