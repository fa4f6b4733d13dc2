// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The window while its heartbeat waits for an agent: one that is silent for 20 seconds, a reply
// that drips, a reply that is announced and never comes, and an agent that is suspended. Measures
// the longest time without painting, although updates are requested continuously.

#include <chrono>
#include <csignal>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <thread>

#include <QApplication>
#include <QProcess>

#include <benchmark/benchmark.h>

#include "app/call_gate.h"
#include "paint_watch.h"
#include "refreshed_window.h"
#include "simulator/simulator.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr auto silence = 20s;
constexpr auto shortWait = 6s;
constexpr std::uint64_t longestMessage = 0xfffffffe;

SimpleGUIMainWindow& mainWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<SimpleGUIMainWindow*>(widget))
            return *window;
    throw std::runtime_error("There is no main window");
}

/// One heartbeat, which has to wait for that long. `refresh` runs it.
void measure(benchmark::State& state, Seconds wait, const std::function<void()>& refresh) {
    for (auto round : state) {
        bench::PaintWatch watch(mainWindow());
        const auto begin = Clock::now();
        refresh();
        const Seconds whole = Clock::now() - begin;
        state.counters["longest_gap"] = watch.longestGap();
        if (whole < wait)
            throw std::runtime_error("The agent answered too soon");
        state.SetIterationTime(whole.count());
    }
}

void silentAgent(benchmark::State& state) {
    simulator::Simulator agent;
    bench::RefreshedWindow window(agent.port());
    const app::CallGate gate;
    agent.inject("getTarnClientInfo", simulator::Delay{std::chrono::milliseconds(silence)});
    measure(state, silence, [&] { window.refresh(); });
}

/// A reply that doesn't arrive, until the agent cuts the connection.
void unfinishedReply(benchmark::State& state, const simulator::Injection& injection) {
    simulator::Simulator agent;
    bench::RefreshedWindow window(agent.port());
    const app::CallGate gate;
    agent.inject("getTarnClientInfo", injection);
    measure(state, shortWait, [&] {
        const std::jthread end([&agent] {
            std::this_thread::sleep_for(shortWait);
            agent.cutConnections();
        });
        mainWindow().refreshAll();
    });
}

void drippingReply(benchmark::State& state) {
    unfinishedReply(state, simulator::Drip{1s});
}

void announcedReply(benchmark::State& state) {
    unfinishedReply(state, simulator::Announcement{longestMessage});
}

void suspendedAgent(benchmark::State& state) {
    QProcess agent;
    agent.start(QStringLiteral(TARN_SIMULATOR), QStringList());
    if (!agent.waitForReadyRead())
        throw std::runtime_error("The agent didn't start");
    const QString url = QString::fromLatin1(agent.readLine()).trimmed();
    const auto id = static_cast<pid_t>(agent.processId());
    {
        bench::RefreshedWindow window(url.section(QLatin1Char(':'), -1).toUShort());
        const app::CallGate gate;
        measure(state, shortWait, [&] {
            ::kill(id, SIGSTOP);
            const std::jthread end([id] {
                std::this_thread::sleep_for(shortWait);
                ::kill(id, SIGCONT);
            });
            window.refresh();
        });
    }
    agent.terminate();
    agent.waitForFinished();
}

BENCHMARK(silentAgent)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(drippingReply)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(announcedReply)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(suspendedAgent)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
