// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The cost of a folder of 100,000 entries in a tree with check boxes: opening it, from the call to
// the first painting, and checking and unchecking it while it is open. The reference is Qt's own
// item tree with the same names, pictures, check boxes and uniform row heights, which makes no
// calls.

#include <algorithm>
#include <chrono>
#include <memory>
#include <numeric>

#include <QCoreApplication>
#include <QIcon>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

#include "models/data_source_dir_only_model.h"
#include "models/data_source_model.h"
#include "models/name_order.h"
#include "models/select_display_delegate.h"
#include "models/small_tree_view.h"
#include "prepared_browser.h"
#include "session/text.h"

namespace {

constexpr std::size_t entryCount = 100'000;

const std::vector<std::string>& names() {
    static const std::vector<std::string> names = bench::folderNames(entryCount);
    return names;
}

const std::vector<QString>& texts() {
    static const std::vector<QString> texts = [] {
        std::vector<QString> made;
        for (const std::string& name : names())
            made.push_back(session::fromWire(name));
        return made;
    }();
    return texts;
}

std::vector<std::size_t> orderByKeys() {
    std::vector<models::RankedName> ranked;
    ranked.reserve(names().size());
    for (const std::string& name : names())
        ranked.push_back({1, name});
    return models::shownOrder(ranked);
}

std::vector<std::size_t> orderByComparing() {
    std::vector<std::size_t> order(texts().size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [](std::size_t a, std::size_t b) {
        return QString::compare(texts()[a], texts()[b], Qt::CaseInsensitive) < 0;
    });
    return order;
}

template <class Act>
double secondsOf(Act act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

/// The time of `act` and of the repainting that it causes.
template <class Act>
double secondsUntilShown(Act act) {
    return secondsOf([&] {
        act();
        QCoreApplication::processEvents();
    });
}

void show(QTreeView& view) {
    view.setUniformRowHeights(true);
    view.resize(400, 600);
    view.show();
    QCoreApplication::processEvents();
}

/// The tree as the pages show it, with or without files.
class SourceTree {
public:
    SourceTree(const bench::PreparedBrowser& agent, bool withFiles)
        : source_("pc", agent.browser())
        , directories_(source_)
        , shown_(withFiles ? static_cast<QAbstractItemModel&>(source_) : directories_) {
        view_.setItemDelegate(&delegate_);
        view_.setModel(&shown_);
        show(view_);
    }

    void open() { view_.expand(shown_.index(0, 0)); }
    void check(bool value) {
        shown_.setData(shown_.index(0, 0), value ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }
    int rows() const { return shown_.rowCount(shown_.index(0, 0)); }

private:
    CDataSourceModel source_;
    CDataSourceDirOnlyModel directories_;
    QAbstractItemModel& shown_;
    CSelectDisplayDelegate delegate_;
    CSmallTreeView view_;
};

class ItemTree {
public:
    ItemTree() {
        drive_ = itemNamed(QStringLiteral("C:"), drivePicture_);
        drive_->setFlags(drive_->flags() | Qt::ItemIsAutoTristate);
        tree_.addTopLevelItem(drive_);
        show(tree_);
    }

    void open() {
        QList<QTreeWidgetItem*> items;
        items.reserve(static_cast<int>(texts().size()));
        for (const QString& text : texts())
            items.append(itemNamed(text, filePicture_));
        drive_->addChildren(items);
        drive_->sortChildren(0, Qt::AscendingOrder);
        drive_->setExpanded(true);
    }
    void check(bool value) { drive_->setCheckState(0, value ? Qt::Checked : Qt::Unchecked); }

private:
    /// For a tree, which takes ownership.
    static QTreeWidgetItem* itemNamed(const QString& text, const QIcon& picture) {
        auto item = std::make_unique<QTreeWidgetItem>(QStringList(text));
        item->setIcon(0, picture);
        item->setCheckState(0, Qt::Unchecked);
        return item.release();
    }

    QIcon drivePicture_{QStringLiteral(":/tree/hdd")};
    QIcon filePicture_{QStringLiteral(":/tree/file")};
    QTreeWidget tree_;
    QTreeWidgetItem* drive_;
};

/// The reporter expects the same counters from each benchmark.
void countCalls(benchmark::State& state, std::size_t calls) {
    state.counters["calls"] = static_cast<double>(calls);
}

void sortByKeys(benchmark::State& state) {
    if (orderByKeys() != orderByComparing()) {
        state.SkipWithError("the two orders differ");
        return;
    }
    for (auto round : state)
        state.SetIterationTime(secondsOf([] { benchmark::DoNotOptimize(orderByKeys()); }));
    countCalls(state, 0);
}

void sortByComparing(benchmark::State& state) {
    texts();
    for (auto round : state)
        state.SetIterationTime(secondsOf([] { benchmark::DoNotOptimize(orderByComparing()); }));
    countCalls(state, 0);
}

void openTree(benchmark::State& state) {
    const bench::PreparedBrowser agent(names(), false);
    for (auto round : state) {
        SourceTree tree(agent, true);
        state.SetIterationTime(secondsUntilShown([&] { tree.open(); }));
    }
    countCalls(state, agent.calls() / static_cast<std::size_t>(state.iterations()));
}

void openItems(benchmark::State& state) {
    texts();
    for (auto round : state) {
        ItemTree tree;
        state.SetIterationTime(secondsUntilShown([&] { tree.open(); }));
    }
    countCalls(state, 0);
}

/// Checks and unchecks alternately.
template <class Tree>
void measureChecks(benchmark::State& state, Tree& tree) {
    secondsUntilShown([&] { tree.open(); });
    bool value = false;
    for (auto round : state) {
        value = !value;
        state.SetIterationTime(secondsUntilShown([&] { tree.check(value); }));
    }
}

void measureSourceTree(benchmark::State& state, bool withFiles) {
    const bench::PreparedBrowser agent(names(), !withFiles);
    SourceTree tree(agent, withFiles);
    tree.open();
    const std::size_t calls = agent.calls();
    measureChecks(state, tree);
    countCalls(state, agent.calls() - calls);
    if (tree.rows() != static_cast<int>(entryCount))
        state.SkipWithError("not all rows are shown");
}

void checkTree(benchmark::State& state) {
    measureSourceTree(state, true);
}

void checkFolders(benchmark::State& state) {
    measureSourceTree(state, false);
}

void checkItems(benchmark::State& state) {
    ItemTree tree;
    measureChecks(state, tree);
    countCalls(state, 0);
}

BENCHMARK(sortByKeys)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sortByComparing)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openTree)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openItems)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(checkTree)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(checkFolders)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(checkItems)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
