// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The cost of refreshing the activity log under a window that shows it, sorted by start time,
// latest first. The reference is Qt's own item model, filled with the same values and sorted by a
// proxy.

#include <algorithm>
#include <chrono>
#include <random>

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include "activity_rows.h"
#include "app/activity_log_model.h"
#include "item_model.h"
#include "memory.h"

namespace {

constexpr std::size_t rowCount = 100'000;

const bench::Rows& rows() {
    static const bench::Rows rows = [] {
        bench::Rows made = bench::sampleRows(rowCount);
        std::shuffle(made.begin(), made.end(), std::mt19937(1));
        return made;
    }();
    return rows;
}

/// The time until the window shows the rows from `refresh`.
template <class Refresh>
void measure(benchmark::State& state, Refresh refresh) {
    for (auto round : state) {
        bench::Rows fetched = rows();
        const auto begin = std::chrono::steady_clock::now();
        refresh(fetched);
        QCoreApplication::processEvents();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(time.count());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(rowCount));
}

void modelRefresh(benchmark::State& state) {
    ActivityLogModel model;
    const auto view = bench::shownView(model);
    measure(state, [&](bench::Rows& fetched) { model.setRecords(std::move(fetched)); });
    view->setModel(nullptr);
    const double full = bench::heapInUse();
    model.clear();
    state.counters["bytes_per_row"] = (full - bench::heapInUse()) / rowCount;
}

void itemModelRefresh(benchmark::State& state) {
    bench::ItemModel model;
    measure(state, [&](const bench::Rows& fetched) { model.refresh(fetched); });
    state.counters["bytes_per_row"] = model.clear() / rowCount;
}

BENCHMARK(itemModelRefresh)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(modelRefresh)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
