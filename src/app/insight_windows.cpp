// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/insight_windows.h"

#include <utility>

#include <QDateTime>
#include <QStatusBar>

#include "app/health_field.h"
#include "insight/insight_texts.h"
#include "session/connection.h"
#include "session/text.h"

namespace app {

namespace {

void present(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

InsightWindows::InsightWindows(QWidget& window, QStatusBar& statusBar, LogSearchBar& logSearch,
                               BackupHealthWindow::AllowedOf allowedOf)
    : window_(window)
    , logSearch_(logSearch)
    , allowedOf_(std::move(allowedOf))
    , field_(*new HealthField(&statusBar))
    , monitor_(session::getConnection, [] { return QDateTime::currentSecsSinceEpoch(); }) {
    statusBar.addPermanentWidget(&field_);
    connect(&field_, &HealthField::clicked, this, &InsightWindows::openHealth);
    connect(&monitor_, &insight::HealthMonitor::changed, this, &InsightWindows::showCount);
}

InsightWindows::~InsightWindows() = default;

void InsightWindows::showCount() {
    if (isConnected_)
        field_.showCount(monitor_.count());
    else
        field_.showNothing();
}

void InsightWindows::takeActivities(const std::vector<hessiancln::activity_log_info>& log,
                                    const std::vector<hessiancln::running_activity_info>& running) {
    monitor_.takeActivities(log, running);
    for (const auto& ended : ends_.take(log))
        if (insight::isNews(ended))
            emit activityEnded(ended, insight::endedText(ended, nameOf(ended)));
}

void InsightWindows::takeSets(std::vector<hessiancln::backup_set_info> sets) {
    isConnected_ = true;
    monitor_.takeSets(std::move(sets));
    const insight::SetNames names = monitor_.names();
    logSearch_.setSetNames(names);
    if (findFile_)
        findFile_->setSetNames(names);
}

void InsightWindows::clear() {
    isConnected_ = false;
    monitor_.clear();
    ends_.clear();
    if (findFile_)
        findFile_->setSetNames({});
}

void InsightWindows::watchEnds(const QList<hessiancln::running_activity_info>& disappeared) {
    for (const auto& activity : disappeared)
        ends_.gone(activity.activity_id);
}

insight::SetNames InsightWindows::namesByActivity(
    const std::vector<hessiancln::activity_log_info>& log,
    const std::vector<hessiancln::running_activity_info>& running) const {
    const insight::SetNames sets = monitor_.names();
    insight::SetNames names;
    const auto add = [&](std::int32_t activityId, std::int32_t setId) {
        if (const auto found = sets.find(setId); found != sets.end())
            names.emplace(activityId, found->second);
    };
    for (const auto& activity : log)
        add(activity.id, activity.set_id);
    for (const auto& activity : running)
        add(activity.activity_id, activity.set_id);
    return names;
}

QString InsightWindows::nameOf(const hessiancln::activity_log_info& ended) const {
    const insight::SetNames names = monitor_.names();
    const auto found = names.find(ended.set_id);
    return session::fromWire(found == names.end() ? ended.description : found->second);
}

void InsightWindows::openHealth() {
    if (!health_)
        makeHealthWindow();
    present(*health_);
}

void InsightWindows::makeHealthWindow() {
    health_ = std::make_unique<BackupHealthWindow>(monitor_, allowedOf_, &window_);
    connect(health_.get(), &BackupHealthWindow::backupRequested, this,
            &InsightWindows::backupRequested);
    connect(health_.get(), &BackupHealthWindow::syncRequested, this,
            &InsightWindows::syncRequested);
    connect(health_.get(), &BackupHealthWindow::eventsRequested, this,
            [this](const insight::BackupAttempt& attempt) {
                if (attempt.activityId == 0) {
                    emit eventsRequested(std::nullopt);
                    return;
                }
                hessiancln::activity_log_info activity;
                activity.id = attempt.activityId;
                activity.start_time = static_cast<std::int32_t>(attempt.start);
                activity.end_time = static_cast<std::int32_t>(attempt.end);
                emit eventsRequested(activity);
            });
}

void InsightWindows::openFindFile(std::int32_t setId) {
    if (!findFile_)
        makeFindFileWindow();
    if (!findFile_->isVisible())
        findFile_->chooseSet(setId);
    present(*findFile_);
}

void InsightWindows::makeFindFileWindow() {
    findFile_ = std::make_unique<FindFileWindow>(session::getConnection, &window_);
    findFile_->setSetNames(monitor_.names());
    connect(findFile_.get(), &FindFileWindow::restoreRequested, this,
            &InsightWindows::restoreRequested);
}

void InsightWindows::setTexts() {
    showCount();
}

} // namespace app
