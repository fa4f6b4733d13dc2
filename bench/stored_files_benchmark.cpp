// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The cost of a large backup set in the restore and delete wizards: a key typed into the filter
// over a folder of 100,000 files, until the list shows the result; the ids of a half-checked tree
// of 100,000 nodes; and a new view of 1,000 folders that stay expanded. The reference for the first
// is the filter of Qt's own proxy over the same files; for the others it is a Qt item tree with the
// same content.

#include <chrono>
#include <map>
#include <memory>

#include <QCoreApplication>
#include <QListView>
#include <QStandardItemModel>
#include <QTreeView>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include "api/backup_set_data_view.h"
#include "hessian/value.h"
#include "models/backed_up_data_model.h"
#include "models/backedup_data_dir_only_model.h"
#include "models/backedup_data_file_filter_model.h"
#include "models/small_list_view.h"
#include "models/small_tree_view.h"
#include "models/tree_state_memo.h"
#include "prepared_browser.h"
#include "transport/i_call_dispatcher.h"

namespace {

using Items = std::vector<hessiancln::SelectableItem>;
using Type = hessiancln::SelectableItemType;

constexpr std::size_t entryCount = 100'000;

/// An in-process agent whose replies are encoded once.
class Agent final : public hessiancln::ICallDispatcher {
public:
    Agent()
        : ICallDispatcher(0, "") {}

    void hold(std::int64_t id, const Items& items) {
        std::string reply("r\x01\0", 3);
        hessianser::writeValue(items, reply);
        hessianser::writeEnd(reply);
        replies_[id] = std::move(reply);
    }

    std::string sendRequest(const std::string&, const std::string& request) override {
        constexpr std::size_t headSize = 17; // of a call of "getSubItems"
        hessianser::Cursor in(request);
        in.skip(headSize);
        ++calls;
        return replies_.at(hessianser::readValue<std::int64_t>(in));
    }

    std::size_t calls = 0;

private:
    std::map<std::int64_t, std::string> replies_;
};

std::unique_ptr<CBackedUpDataModel> modelOf(const boost::shared_ptr<Agent>& agent) {
    return std::make_unique<CBackedUpDataModel>(
        boost::make_shared<hessiancln::BackupSetDataView>(agent, "view", false, 0u, std::string()));
}

/// A drive with `count` files.
boost::shared_ptr<Agent> filledDrive(std::size_t count) {
    auto agent = boost::make_shared<Agent>();
    agent->hold(-1, {{1, "C:", Type::Drive, false, true}});
    Items files;
    std::int64_t id = 1;
    for (const std::string& name : bench::folderNames(count))
        files.push_back({++id, name, Type::File, true, true});
    agent->hold(1, files);
    return agent;
}

/// Reported next to the time, so that omitted work can't pass as speed. All benchmarks report all
/// columns, as a table needs them.
struct Reported {
    std::size_t calls = 0;   ///< to the agent in the last round
    std::size_t missing = 0; ///< ids that were not found
    int closed = 0;          ///< folders that did not stay open
};

void report(benchmark::State& state, const Reported& reported) {
    state.counters["calls"] = static_cast<double>(reported.calls);
    state.counters["missing"] = static_cast<double>(reported.missing);
    state.counters["closed"] = reported.closed;
}

template <class Act>
double secondsOf(Act act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    QCoreApplication::processEvents();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

/// Qt's own filter, which lets the drives pass.
class ProxyOfQt : public QSortFilterProxyModel {
public:
    explicit ProxyOfQt(CBackedUpDataModel& source) { setSourceModel(&source); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        return !parent.isValid() || QSortFilterProxyModel::filterAcceptsRow(row, parent);
    }
};

/// Types a series of patterns into a list of the drive's files.
template <class Proxy>
void type(benchmark::State& state, CBackedUpDataModel& model, Proxy& files) {
    CSmallListView list;
    list.setModel(&files);
    list.setRootIndex(files.mapFromSource(model.index(0, 0)));
    list.resize(400, 600);
    list.show();
    QCoreApplication::processEvents();
    const char* const keys[]{"1", "12", "*12", "*1?2", "*1*2", "*", ""};
    std::size_t next = 0;
    for (auto round : state) {
        const QString pattern = QString::fromLatin1(keys[next++ % std::size(keys)]);
        state.SetIterationTime(secondsOf([&] { files.setFilterWildcard(pattern); }));
    }
    report(state, {});
    list.setModel(nullptr);
}

void typeFilter(benchmark::State& state) {
    const auto model = modelOf(filledDrive(entryCount));
    auto* files = new CBackedupDataFileFilterModel(*model);
    files->setSourceRoot(model->index(0, 0));
    type(state, *model, *files);
}

void typeFilterOfQt(benchmark::State& state) {
    const auto model = modelOf(filledDrive(entryCount));
    ProxyOfQt files(*model);
    type(state, *model, files);
}

void walkSelection(benchmark::State& state) {
    const auto model = modelOf(filledDrive(entryCount));
    const QModelIndex drive = model->index(0, 0);
    for (int row = 0; row < model->rowCount(drive); row += 2)
        model->setData(model->index(row, 0, drive), Qt::Checked, Qt::CheckStateRole);
    std::vector<std::int64_t> ids;
    for (auto round : state)
        state.SetIterationTime(secondsOf([&] { ids = model->selectedIds(); }));
    report(state, {.missing = entryCount / 2 - ids.size()});
}

void walkItems(benchmark::State& state) {
    QStandardItemModel model;
    auto* drive = new QStandardItem(QStringLiteral("C:"));
    model.appendRow(drive);
    qint64 id = 0;
    for (const std::string& name : bench::folderNames(entryCount)) {
        auto* file = new QStandardItem(QString::fromStdString(name));
        file->setData(++id);
        file->setCheckState(id % 2 == 1 ? Qt::Checked : Qt::Unchecked);
        drive->appendRow(file);
    }
    std::vector<std::int64_t> ids;
    for (auto round : state)
        state.SetIterationTime(secondsOf([&] {
            ids.clear();
            for (int row = 0; row < drive->rowCount(); ++row)
                if (drive->child(row)->checkState() == Qt::Checked)
                    ids.push_back(drive->child(row)->data().toLongLong());
        }));
    report(state, {.missing = entryCount / 2 - ids.size()});
}

constexpr int folderCount = 1'000;

QString folderName(int number) {
    return QStringLiteral("Folder %1").arg(number);
}

void expandAll(QTreeView& tree) {
    tree.resize(400, 600);
    tree.show();
    for (int row = 0; row < folderCount; ++row)
        tree.expand(tree.model()->index(row, 0));
    QCoreApplication::processEvents();
}

int closedIn(const QTreeView& tree) {
    int closed = folderCount;
    for (int row = 0; row < folderCount; ++row)
        closed -= tree.isExpanded(tree.model()->index(row, 0)) ? 1 : 0;
    return closed;
}

void keepExpansion(benchmark::State& state) {
    const auto agent = boost::make_shared<Agent>();
    Items folders;
    for (int id = 1; id <= folderCount; ++id) {
        folders.push_back({id, folderName(id).toStdString(), Type::Folder, false, true});
        agent->hold(id, {{10'000 + id, "Inner", Type::Folder, false, true}});
    }
    agent->hold(-1, folders);
    auto model = modelOf(agent);
    CSmallTreeView tree;
    tree.setModel(new CBackedupDataDirOnlyModel(*model));
    expandAll(tree);
    for (auto round : state) {
        agent->calls = 0;
        state.SetIterationTime(secondsOf([&] {
            const TreeStateMemo memo(tree, 0);
            auto other = modelOf(agent);
            tree.setModel(new CBackedupDataDirOnlyModel(*other));
            model = std::move(other);
            memo.restore();
        }));
    }
    report(state, {.calls = agent->calls, .closed = closedIn(tree)});
    tree.setModel(nullptr);
}

std::unique_ptr<QStandardItemModel> modelOfItems() {
    auto model = std::make_unique<QStandardItemModel>();
    for (int number = 1; number <= folderCount; ++number) {
        auto* folder = new QStandardItem(folderName(number));
        folder->appendRow(new QStandardItem(QStringLiteral("Inner")));
        model->appendRow(folder);
    }
    return model;
}

/// Without an agent; names are looked up the way item models do it.
void keepExpansionOfItems(benchmark::State& state) {
    auto model = modelOfItems();
    QTreeView tree;
    tree.setModel(model.get());
    expandAll(tree);
    for (auto round : state)
        state.SetIterationTime(secondsOf([&] {
            QStringList open;
            for (int row = 0; row < model->rowCount(); ++row)
                if (tree.isExpanded(model->index(row, 0)))
                    open << model->item(row)->text();
            auto other = modelOfItems();
            tree.setModel(other.get());
            model = std::move(other);
            for (const QString& name : open)
                for (const QStandardItem* const item : model->findItems(name))
                    tree.expand(item->index());
        }));
    report(state, {.closed = closedIn(tree)});
    tree.setModel(nullptr);
}

BENCHMARK(typeFilter)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(typeFilterOfQt)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(walkSelection)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(walkItems)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(keepExpansion)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(keepExpansionOfItems)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
