// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The cost of a heartbeat: the main window requests everything from an agent on loopback and shows
// it. The agent is a separate process and has 2,000 sets and 100,000 rows in its log. The reference
// is Qt's own item model, which shows the same rows and makes no calls.

#include <algorithm>
#include <memory>
#include <stdexcept>

#include <malloc.h>
#include <unistd.h>

#include <QApplication>

#include <benchmark/benchmark.h>

#include "api/client_connection.h"
#include "item_model.h"
#include "memory.h"
#include "refreshed_window.h"
#include "resources/pictures.h"
#include "server_process.h"
#include "session/connection.h"
#include "simulator/simulator.h"
#include "simulator/world/world.h"

namespace {

using bench::RefreshedWindow;
using bench::RefreshTimes;

constexpr std::size_t rowCount = 100'000;
constexpr std::size_t setCount = 2'000;

const bench::ServerProcess* largeAgent = nullptr;
const bench::ServerProcess* smallAgent = nullptr;

/// Every second set has some problem, since a plain card has little to draw.
void addWarnings(simulator::World& world) {
    const auto& sets = world.sets();
    for (std::size_t i = 0; i < sets.size(); i += 4) {
        sets[i]->info.in_sync = false;
        if (i + 2 < sets.size())
            sets[i + 2]->info.has_items = false;
    }
}

/// The agent's clock is stopped, so that all replies have the same length.
void serveAgent(simulator::Scenario scenario, const bench::ServerProcess::Listening& listening) {
    simulator::Options options;
    options.scenario = scenario;
    options.recordCalls = false;
    options.clock = [now = simulator::systemClock()()] { return now; };
    simulator::Simulator agent(std::move(options));
    agent.withWorld(addWarnings);
    listening(agent.port());
    while (true)
        ::pause();
}

std::unique_ptr<RefreshedWindow> largeWindow() {
    auto window = std::make_unique<RefreshedWindow>(largeAgent->port());
    if (window->logRows() != rowCount || window->setRows() != setCount)
        throw std::runtime_error("The window doesn't show all that the agent has");
    return window;
}

/// The rows of the large agent's log.
const bench::Rows& rows() {
    static const bench::Rows rows = [] {
        session::connectToAgent("127.0.0.1:" + std::to_string(largeAgent->port()), "demo", "demo",
                                1);
        auto fetched = session::getConnection()->activity_log(0, 0x7fffffff);
        session::disconnectFromAgent();
        return fetched;
    }();
    return rows;
}

/// In seconds. A table of results has the same columns for all benchmarks; `own` is 0 where it
/// isn't measured.
void setCounters(benchmark::State& state, double longest, double own) {
    state.counters["longest"] = longest * 1e3;
    state.counters["own"] = own * 1e3;
}

void itemModelRefresh(benchmark::State& state) {
    bench::ItemModel model;
    double longest = 0;
    for (auto round : state) {
        const auto begin = bench::Clock::now();
        model.refresh(rows());
        QCoreApplication::processEvents();
        const std::chrono::duration<double> time = bench::Clock::now() - begin;
        longest = std::max(longest, time.count());
        state.SetIterationTime(time.count());
    }
    model.clear();
    setCounters(state, longest, 0);
}

void windowRefresh(benchmark::State& state) {
    const auto window = largeWindow();
    double longest = 0;
    for (auto round : state) {
        const double time = window->refresh().whole;
        longest = std::max(longest, time);
        state.SetIterationTime(time);
    }
    setCounters(state, longest, 0);
}

/// The first refresh after a login, which creates the cards.
void windowFirstRefresh(benchmark::State& state) {
    double own = 0;
    double longest = 0;
    for (auto round : state) {
        const auto window = largeWindow();
        own = window->firstOwnTime();
        longest = window->firstRefresh();
        state.SetIterationTime(longest);
    }
    setCounters(state, longest, own);
}

/// Milliseconds of each part, and of the agent's own work, which most of the fetching waits for.
void parts(benchmark::State& state) {
    const auto window = largeWindow();
    const auto add = [&](const char* part, double time) {
        auto& counter = state.counters[part];
        counter.flags = benchmark::Counter::kAvgIterations;
        counter.value += time * 1e3;
    };
    for (auto round : state) {
        const double decode = window->decodeLog();
        const double agentBefore = largeAgent->processorTime();
        const RefreshTimes times = window->refresh();
        add("agent", largeAgent->processorTime() - agentBefore);
        add("client_info", times.clientInfo);
        add("log_fetch", times.logFetch);
        add("log_decode", decode);
        add("log_sort", times.logShow - decode);
        add("running", times.running);
        add("sets_fetch", times.setsFetch);
        add("cards", times.cards);
        add("details", times.details);
        add("paint", times.paint);
        state.SetIterationTime(times.whole);
    }
}

/// The work of the cards in a refresh that changes all of them, and in one that changes none.
void cards(benchmark::State& state) {
    const auto window = largeWindow();
    bench::CardWork changed;
    bench::CardWork unchanged;
    for (auto round : state) {
        window->spoilCards();
        changed = window->workOfRefresh();
        unchanged = window->workOfRefresh();
    }
    state.counters["events_changed"] = static_cast<double>(changed.events);
    state.counters["pictures_changed"] = static_cast<double>(changed.pictures);
    state.counters["events_unchanged"] = static_cast<double>(unchanged.events);
    state.counters["pictures_unchanged"] = static_cast<double>(unchanged.pictures);
}

double residentMemory() {
    ::malloc_trim(0);
    return bench::memory("VmRSS:");
}

/// Memory growth of the program in KiB over all iterations, after `warmUp` refreshes.
void measureGrowth(benchmark::State& state, RefreshedWindow& window, int warmUp) {
    for (int i = 0; i < warmUp; ++i)
        window.refresh();
    const double resident = residentMemory();
    const double heap = bench::heapInUse();
    for (auto round : state)
        state.SetIterationTime(window.refresh().whole);
    state.counters["heap_kib"] = (bench::heapInUse() - heap) / 1024;
    state.counters["resident_kib"] = (residentMemory() - resident) / 1024;
}

void growth(benchmark::State& state) {
    RefreshedWindow window(smallAgent->port());
    measureGrowth(state, window, 200);
}

void growthLarge(benchmark::State& state) {
    measureGrowth(state, *largeWindow(), 5);
}

BENCHMARK(itemModelRefresh)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(windowRefresh)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(windowFirstRefresh)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(parts)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(cards)->Iterations(1)->Repetitions(2)->Unit(benchmark::kMillisecond);
BENCHMARK(growth)->UseManualTime()->Iterations(1000)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(growthLarge)
    ->UseManualTime()
    ->Iterations(20)
    ->Repetitions(3)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    using simulator::Scenario;
    const bench::ServerProcess large(
        [](const auto& listening) { serveAgent(Scenario::Large, listening); });
    const bench::ServerProcess small(
        [](const auto& listening) { serveAgent(Scenario::Default, listening); });
    largeAgent = &large;
    smallAgent = &small;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    resources::initPictures();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
