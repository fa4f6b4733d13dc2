// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The main window with 2,000 sets and 100,000 rows of the activity log, with and without a client
// of the accessibility bus: scrolling through both, and sorting the log by each column. Needs a
// display and a session bus. Each round is a process of its own, in which Qt connects to the bus.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include <unistd.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>

#include <benchmark/benchmark.h>

#include "app/start_up.h"
#include "child_program.h"
#include "refreshed_window.h"
#include "resources/pictures.h"
#include "server_process.h"
#include "simulator/simulator.h"

namespace {

using Clock = bench::Clock;

constexpr char workArgument[] = "--work";
constexpr int steps = 200;

std::string self;
std::string reader;
const bench::ServerProcess* agent = nullptr;

double seconds(Clock::duration time) {
    return std::chrono::duration<double>(time).count();
}

void serveAgent(const bench::ServerProcess::Listening& listening) {
    simulator::Simulator large({.scenario = simulator::Scenario::Large, .recordCalls = false});
    listening(large.port());
    while (true)
        ::pause();
}

/// From the first row to the last one; seconds.
double scroll(QTableView& table) {
    QScrollBar& bar = *table.verticalScrollBar();
    const auto begin = Clock::now();
    for (int step = 0; step <= steps; ++step) {
        bar.setValue(bar.maximum() * step / steps);
        QCoreApplication::processEvents();
    }
    return seconds(Clock::now() - begin);
}

/// By each column, in both orders; seconds.
double sort(QTableView& table) {
    const auto begin = Clock::now();
    for (int column = 0; column < table.model()->columnCount(); ++column)
        for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            table.sortByColumn(column, order);
            QCoreApplication::processEvents();
        }
    return seconds(Clock::now() - begin);
}

/// Does what is measured, and writes the times for scrolling and for sorting.
int work(int argc, char** argv) {
    app::prepareToolkit();
    const QApplication application(argc, argv);
    resources::initPictures();
    const bench::RefreshedWindow window(static_cast<std::uint16_t>(std::atoi(argv[2])));
    window.child<QTabWidget>("tabWidget").setCurrentIndex(1);
    QCoreApplication::processEvents();
    auto& log = window.child<QTableView>("tableActivityLog");
    const double sets = scroll(window.child<QTableView>("backupSetsView"));
    const double rows = scroll(log);
    std::printf("%f\n%f\n%f\n", sets, rows, sort(log));
    return 0;
}

void measure(benchmark::State& state, bool withReader) {
    double sets = 0;
    double rows = 0;
    double sorting = 0;
    double events = 0;
    for (auto round : state) {
        std::unique_ptr<bench::ChildProgram> listening;
        if (withReader) {
            listening = std::make_unique<bench::ChildProgram>(std::vector<std::string>{reader});
            listening->readLine();
        }
        const bench::ChildProgram working(
            {self, workArgument, std::to_string(agent->port())}, [withReader](int) {
                ::setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", withReader ? "1" : "0", 1);
            });
        sets = std::stod(working.readLine());
        rows = std::stod(working.readLine());
        sorting = std::stod(working.readLine());
        state.SetIterationTime(sets + rows + sorting);
        if (listening) {
            listening->closeInput();
            events = std::stod(listening->readLine());
        }
    }
    state.counters["sets"] = sets * 1e3;
    state.counters["rows"] = rows * 1e3;
    state.counters["sorting"] = sorting * 1e3;
    state.counters["events"] = events;
}

void alone(benchmark::State& state) {
    measure(state, false);
}

void withReader(benchmark::State& state) {
    measure(state, true);
}

BENCHMARK(alone)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(withReader)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string(argv[1]) == workArgument)
        return work(argc, argv);
    const char* script = std::getenv("TARN_LISTENING_READER");
    if (!script) {
        std::fputs("TARN_LISTENING_READER doesn't name the client of the bus\n", stderr);
        return 2;
    }
    reader = script;
    self = std::filesystem::canonical(argv[0]);
    const bench::ServerProcess large(serveAgent);
    agent = &large;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
