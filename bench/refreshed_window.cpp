// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "refreshed_window.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QEvent>
#include <QLabel>
#include <QTableView>

#include "api/client_connection.h"
#include "app/backup_set_view_item.h"
#include "session/connection.h"

namespace bench {
namespace {

double seconds(Clock::duration time) {
    return std::chrono::duration<double>(time).count();
}

using Calls = std::vector<TimedCall>;

Calls::const_iterator findCall(const Calls& calls, std::string_view method) {
    const auto found = std::find_if(calls.begin(), calls.end(),
                                    [&](const TimedCall& call) { return call.method == method; });
    if (found == calls.end())
        throw std::runtime_error("A refresh without " + std::string(method));
    return found;
}

RefreshTimes timesOf(const Calls& calls, Clock::time_point begin, Clock::time_point refreshed,
                     Clock::time_point shown) {
    const auto log = findCall(calls, "activity_log");
    const auto running = findCall(calls, "running_activities");
    const auto sets = findCall(calls, "backup_sets_info");
    const auto details = sets + 1;
    if (details == calls.end())
        throw std::runtime_error("A refresh without details");
    RefreshTimes times;
    times.clientInfo = seconds(log->begin - begin);
    times.logFetch = seconds(log->end - log->begin);
    times.logShow = seconds(running->begin - log->end);
    times.running = seconds(sets->begin - running->begin);
    times.setsFetch = seconds(sets->end - sets->begin);
    times.cards = seconds(details->begin - sets->end);
    times.details = seconds(refreshed - details->begin);
    times.paint = seconds(shown - refreshed);
    times.whole = seconds(shown - begin);
    return times;
}

} // namespace

void RefreshedWindow::showDates(int from, int to) {
    child<QDateTimeEdit>("dateTimeFrom").setDateTime(QDate(from, 1, 1).startOfDay());
    child<QDateTimeEdit>("dateTimeTo").setDateTime(QDate(to, 1, 1).startOfDay());
}

RefreshedWindow::RefreshedWindow(std::uint16_t port) {
    window_.installEventFilter(this);
    showDates(2000, 2038);
    window_.show();
    QCoreApplication::processEvents();
    session::connectToAgent("127.0.0.1:" + std::to_string(port), "demo", "demo", 1);
    const auto root = session::getConnection();
    timer_ = boost::make_shared<CallTimer>(root->getDispatcher());
    root->setDispatcher(timer_);
    firstRefresh_ = refreshUntilShown();
    firstOwn_ = firstRefresh_;
    for (const TimedCall& call : timer_->take())
        firstOwn_ -= seconds(call.end - call.begin);
    child<QTableView>("backupSetsView").selectRow(0);
    // The first refresh also paints the changes due to the selection.
    refreshUntilShown();
    timer_->take();
}

RefreshedWindow::~RefreshedWindow() {
    window_.hide();
    session::disconnectFromAgent();
}

double RefreshedWindow::refreshUntilShown() {
    const auto begin = Clock::now();
    window_.refreshAll();
    QCoreApplication::processEvents();
    return seconds(Clock::now() - begin);
}

RefreshTimes RefreshedWindow::refresh() {
    const auto begin = Clock::now();
    window_.refreshAll();
    const auto refreshed = Clock::now();
    QCoreApplication::processEvents();
    const auto shown = Clock::now();
    return timesOf(timer_->take(), begin, refreshed, shown);
}

double RefreshedWindow::decodeLog() {
    const auto connection = session::getConnection();
    connection->activity_log(0, std::numeric_limits<std::int32_t>::max());
    const auto end = Clock::now();
    return seconds(end - findCall(timer_->take(), "activity_log")->end);
}

std::size_t RefreshedWindow::logRows() const {
    return static_cast<std::size_t>(child<QTableView>("tableActivityLog").model()->rowCount());
}

std::size_t RefreshedWindow::setRows() const {
    return static_cast<std::size_t>(child<QTableView>("backupSetsView").model()->rowCount());
}

std::vector<BackupSetViewItem*> RefreshedWindow::cards() const {
    const auto found = window_.findChildren<BackupSetViewItem*>();
    return {found.begin(), found.end()};
}

void RefreshedWindow::spoilCards() {
    for (BackupSetViewItem* card : cards()) {
        auto record = card->record();
        record.in_sync = !record.in_sync;
        card->setRecord(record);
    }
    QCoreApplication::processEvents();
}

std::vector<std::int64_t> RefreshedWindow::pictureKeys() const {
    std::vector<std::int64_t> keys;
    for (const BackupSetViewItem* card : cards())
        keys.push_back(card->findChild<QLabel*>(QStringLiteral("labelImageDisplay"))
                           ->pixmap(Qt::ReturnByValue)
                           .cacheKey());
    return keys;
}

CardWork RefreshedWindow::workOfRefresh() {
    const auto before = pictureKeys();
    cardEvents_ = 0;
    QCoreApplication::instance()->installEventFilter(this);
    refreshUntilShown();
    QCoreApplication::instance()->removeEventFilter(this);
    timer_->take();
    const auto after = pictureKeys();
    CardWork work{cardEvents_, 0};
    for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i)
        work.pictures += before[i] != after[i];
    return work;
}

bool RefreshedWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (watched == &window_)
        return type == window_.heartbeatEventType();
    const bool dear = type == QEvent::StyleChange || type == QEvent::LayoutRequest;
    if (dear && (qobject_cast<BackupSetViewItem*>(watched) ||
                 qobject_cast<BackupSetViewItem*>(watched->parent())))
        ++cardEvents_;
    return false;
}

} // namespace bench
