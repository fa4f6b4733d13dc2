// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The window while the agent is silent for 20 seconds in the middle of a heartbeat: the longest
// time without painting, though updates are requested all the time.

#include <chrono>
#include <stdexcept>

#include <QApplication>

#include <benchmark/benchmark.h>

#include "app/call_gate.h"
#include "paint_watch.h"
#include "refreshed_window.h"
#include "simulator/simulator.h"

namespace {

using namespace std::chrono_literals;

constexpr auto silence = 20s;

QWidget& mainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<SimpleGUIMainWindow*>(window))
            return *window;
    throw std::runtime_error("There is no main window");
}

void silentAgent(benchmark::State& state) {
    simulator::Simulator agent;
    bench::RefreshedWindow window(agent.port());
    const app::CallGate gate;
    double longest = 0;
    for (auto round : state) {
        agent.inject("getTarnClientInfo", simulator::Delay{std::chrono::milliseconds(silence)});
        bench::PaintWatch watch(mainWindow());
        const double whole = window.refresh().whole;
        longest = watch.longestGap();
        if (whole < std::chrono::duration<double>(silence).count())
            throw std::runtime_error("The agent wasn't silent");
        state.SetIterationTime(whole);
    }
    state.counters["longest_gap"] = longest;
}

BENCHMARK(silentAgent)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
