// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// What a refresh of the activity log costs under a window that shows it, sorted by its start,
// latest first. The reference is Qt's own model of items, filled with the same values and sorted
// by a proxy. Values are kept there as numbers, not as texts, which favours the reference.

#include <algorithm>
#include <chrono>
#include <memory>
#include <random>

#include <malloc.h>

#include <QApplication>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>

#include <benchmark/benchmark.h>

#include "activity_rows.h"
#include "app/activity_log_model.h"
#include "resources/pictures.h"
#include "session/text.h"
#include "ui/activity_type_text.h"

namespace {

constexpr std::size_t rowCount = 100'000;
constexpr int columnCount = 9;

const bench::Rows& rows() {
    static const bench::Rows rows = [] {
        bench::Rows made = bench::sampleRows(rowCount);
        std::shuffle(made.begin(), made.end(), std::mt19937(1));
        return made;
    }();
    return rows;
}

/// Bytes that are in use on the heap.
double heapInUse() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

std::unique_ptr<QTableView> shownView(QAbstractItemModel& model) {
    auto view = std::make_unique<QTableView>();
    view->setModel(&model);
    view->setSortingEnabled(true);
    view->sortByColumn(ActivityLogModel::start, Qt::DescendingOrder);
    view->resize(1000, 300);
    view->show();
    QCoreApplication::processEvents();
    return view;
}

/// The time until the window shows what `refresh` has brought.
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
    const auto view = shownView(model);
    measure(state, [&](bench::Rows& fetched) { model.setRecords(std::move(fetched)); });
    view->setModel(nullptr);
    const double full = heapInUse();
    model.clear();
    state.counters["bytes_per_row"] = (full - heapInUse()) / rowCount;
}

QStandardItem* numberItem(qint64 number) {
    auto item = std::make_unique<QStandardItem>();
    item->setData(number, Qt::DisplayRole);
    return item.release();
}

/// A row for a model of items, which takes them.
QList<QStandardItem*> itemsOf(const hessiancln::activity_log_info& row) {
    return {std::make_unique<QStandardItem>(ui::activityTypeIcon(row.type),
                                            ui::activityTypeLabel(row.type))
                .release(),
            std::make_unique<QStandardItem>(session::fromWire(row.description)).release(),
            numberItem(row.errors),
            numberItem(row.warnings),
            numberItem(row.start_time),
            numberItem(row.end_time),
            numberItem(row.end_time - row.start_time),
            numberItem(row.file_count),
            numberItem(row.data_size)};
}

std::unique_ptr<QStandardItemModel> itemModel(const bench::Rows& fetched) {
    auto model = std::make_unique<QStandardItemModel>(0, columnCount);
    for (const auto& row : fetched)
        model->appendRow(itemsOf(row));
    return model;
}

void itemModelRefresh(benchmark::State& state) {
    auto model = std::make_unique<QStandardItemModel>(0, columnCount);
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(model.get());
    const auto view = shownView(sorted);
    measure(state, [&](bench::Rows& fetched) {
        auto fresh = itemModel(fetched);
        sorted.setSourceModel(fresh.get());
        model = std::move(fresh);
    });
    view->setModel(nullptr);
    const double full = heapInUse();
    sorted.setSourceModel(nullptr);
    model.reset();
    state.counters["bytes_per_row"] = (full - heapInUse()) / rowCount;
}

BENCHMARK(itemModelRefresh)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(modelRefresh)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    resources::initPictures();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
