// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The cost of a key in the search line of the activity log under a window that shows 100,000 rows.
// The reference is Qt's proxy, filtering the same model by the texts of all its columns.

#include <chrono>

#include <QCoreApplication>
#include <QSortFilterProxyModel>

#include <benchmark/benchmark.h>

#include "activity_rows.h"
#include "app/activity_log_model.h"
#include "insight/searched_log.h"
#include "item_model.h"

namespace {

constexpr std::size_t rowCount = 100'000;

/// The texts in the search line while the user types "backup 12".
const QStringList& typed() {
    static const QStringList texts = [] {
        const QString whole = QStringLiteral("backup 12");
        QStringList list;
        for (int length = 1; length <= whole.size(); ++length)
            list.append(whole.left(length));
        return list;
    }();
    return texts;
}

/// The time of the slowest key. `start` runs before each round.
template <class Start, class Key>
void measure(benchmark::State& state, Start start, Key key) {
    for (auto round : state) {
        start();
        QCoreApplication::processEvents();
        double slowest = 0;
        for (const QString& text : typed()) {
            const auto begin = std::chrono::steady_clock::now();
            key(text);
            QCoreApplication::processEvents();
            const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
            slowest = std::max(slowest, time.count());
        }
        state.SetIterationTime(slowest);
    }
}

void searchLine(benchmark::State& state) {
    ActivityLogModel model;
    insight::SearchedRecords<hessiancln::activity_log_info> log(model);
    const auto view = bench::shownView(model);
    const auto keywords = insight::LogKeywords::translated();
    // The search line prepares the texts when it gets the focus, and after each refresh.
    measure(
        state,
        [&] {
            log.setFilter({}, {});
            model.setRecords(bench::sampleRows(rowCount));
            log.prepare();
        },
        [&](const QString& text) {
            log.setFilter({insight::parseLogQuery(text, keywords), insight::Severity::info}, {});
        });
    view->setModel(nullptr);
}

void filterProxy(benchmark::State& state) {
    ActivityLogModel model;
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setFilterKeyColumn(-1);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    const auto view = bench::shownView(proxy);
    measure(
        state,
        [&] {
            proxy.setFilterFixedString({});
            model.setRecords(bench::sampleRows(rowCount));
        },
        [&](const QString& text) { proxy.setFilterFixedString(text); });
    view->setModel(nullptr);
}

BENCHMARK(filterProxy)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(searchLine)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
