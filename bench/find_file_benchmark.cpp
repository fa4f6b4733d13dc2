// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The search for a file among 100,000 files in 1,000 folders, with an agent in a separate process
// on loopback: the time until the window shows its first result, the longest time without painting,
// and the memory used by the results. The reference requests the same folders one after the other
// and shows nothing.

#include <chrono>
#include <deque>
#include <stdexcept>

#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include <benchmark/benchmark.h>

#include "api/backup_set.h"
#include "api/client_connection.h"
#include "insight/find_file_window.h"
#include "memory.h"
#include "paint_watch.h"
#include "resources/pictures.h"
#include "server_process.h"
#include "session/connection.h"
#include "simulator/simulator.h"
#include "simulator/world/health_scenarios.h"

namespace {

using Clock = std::chrono::steady_clock;

const bench::ServerProcess* agent = nullptr;

double since(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

void serveAgent(const bench::ServerProcess::Listening& listening) {
    simulator::Options options;
    options.scenario = simulator::Scenario::ManyFolders;
    options.recordCalls = false;
    simulator::Simulator served(std::move(options));
    listening(served.port());
    while (true)
        ::pause();
}

class Session {
public:
    Session() {
        session::connectToAgent("127.0.0.1:" + std::to_string(agent->port()), "demo", "demo", 1);
    }
    ~Session() { session::disconnectFromAgent(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
};

/// What a window shows of its search; times in milliseconds.
struct Shown {
    double first = 0;
    double longestGap = 0;
    double bytesPerFile = 0;
};

/// A table of results has the same columns in all rows.
void report(benchmark::State& state, const Shown& shown) {
    state.counters["first"] = shown.first;
    state.counters["longest_gap"] = shown.longestGap;
    state.counters["bytes_per_file"] = shown.bytesPerFile;
}

void askOnly(benchmark::State& state) {
    const Session session;
    std::size_t files = 0;
    for (auto round : state) {
        const auto begin = Clock::now();
        const auto view = session::getConnection()->backup_set(1)->prepare_restore(0, 0, 0);
        std::deque<std::int64_t> folders{-1};
        for (files = 0; !folders.empty(); folders.pop_front())
            for (const auto& item : view->getSubItems(folders.front()))
                if (item.is_file)
                    ++files;
                else
                    folders.push_back(item.id);
        state.SetIterationTime(since(begin));
    }
    report(state, {});
    if (files != simulator::health::files)
        throw std::runtime_error("The agent doesn't hold what is looked for");
}

/// Searches for a name until the end, which finds `expected` files.
void find(benchmark::State& state, const QString& name, int expected) {
    const Session session;
    FindFileWindow window(session::getConnection);
    window.setSetNames({{1, "Archive"}});
    window.show();
    QCoreApplication::processEvents();
    window.findChild<QLineEdit*>(QStringLiteral("editName"))->setText(name);
    auto& find = *window.findChild<QPushButton*>(QStringLiteral("buttonFind"));
    const auto& rows = *window.findChild<QTableView*>(QStringLiteral("tableFound"))->model();
    for (auto round : state) {
        const double heap = bench::heapInUse();
        bench::PaintWatch watch(window);
        const auto begin = Clock::now();
        double first = 0;
        find.click();
        while (window.isSearching()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            if (first == 0 && rows.rowCount() > 0)
                first = since(begin);
        }
        state.SetIterationTime(since(begin));
        report(state, {first * 1e3, watch.longestGap(), (bench::heapInUse() - heap) / expected});
    }
    if (rows.rowCount() != expected)
        throw std::runtime_error("The search hasn't found what is there");
}

void findAll(benchmark::State& state) {
    find(state, QStringLiteral("*"), static_cast<int>(simulator::health::files));
}

void findOne(benchmark::State& state) {
    find(state, QStringLiteral("needle"), 1);
}

BENCHMARK(askOnly)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(findOne)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(findAll)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const bench::ServerProcess served(serveAgent);
    agent = &served;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    resources::initPictures();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
