// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The client beside a program with a bare Qt window, a menu and a line of text: the time from its
// start to its first paint, its private memory, and how often it wakes up while idle.
// Needs a display. The client finds no agent, and waits with its login dialog open, in which a
// cursor blinks. With a session only the heartbeat is left.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>

#include <time.h>

#include <benchmark/benchmark.h>

#include "child_program.h"
#include "process_watch.h"
#include "screen_watch.h"

namespace {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

constexpr auto settleTime = 1s;
constexpr auto idleTime = 5s;

std::filesystem::path programs;

double now() {
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// The processor time that a process has taken so far, in seconds.
double processorTimeOf(pid_t process) {
    clockid_t clock{};
    timespec time{};
    if (::clock_getcpuclockid(process, &clock) || ::clock_gettime(clock, &time))
        throw std::runtime_error("The processor time of a program can't be read");
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// A running program whose window has been drawn.
class Started {
public:
    explicit Started(const char* program)
        : begin_(now())
        , program_({programs / program}, [] { ::unsetenv("QT_XCB_GL_INTEGRATION"); }) {
        screen_.waitForWindow();
        firstPaint_ = now() - begin_;
        processorTime_ = processorTimeOf(program_.id());
    }

    /// Seconds from the start.
    double firstPaint() const { return firstPaint_; }
    /// Seconds of processor time until then.
    double processorTime() const { return processorTime_; }

    pid_t id() const { return program_.id(); }

private:
    bench::ScreenWatch screen_;
    double begin_;
    bench::ChildProgram program_;
    double firstPaint_ = 0;
    double processorTime_ = 0;
};

void idle(benchmark::State& state, pid_t process) {
    std::this_thread::sleep_for(settleTime);
    state.counters["private_kib"] = bench::privateMemory(process);
    const bench::Idleness idleness = bench::watchIdling(process, idleTime);
    state.counters["wake_ups"] = idleness.wakeUps;
    state.counters["moments"] = idleness.moments;
}

void measure(benchmark::State& state, const char* program) {
    for (auto round : state) {
        const Started started(program);
        state.SetIterationTime(started.firstPaint());
        state.counters["busy"] = started.processorTime() * 1e3;
        idle(state, started.id());
    }
}

void startClient(benchmark::State& state) {
    measure(state, "tarn-mobile-user");
}

void startBareWindow(benchmark::State& state) {
    measure(state, "bare_window");
}

/// Not the start, but the main window with a session, while idle.
void connectedWindow(benchmark::State& state) {
    for (auto round : state) {
        const bench::ChildProgram agent({programs / "tarn-agent-simulator"});
        const std::string url = agent.readLine();
        const bench::ChildProgram window(
            {programs / "connected_window", url.substr(url.rfind(':') + 1)});
        window.readLine();
        idle(state, window.id());
        state.SetIterationTime(Seconds(idleTime).count());
        state.counters["busy"] = 0; // each benchmark has the same columns
    }
}

BENCHMARK(startClient)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(startBareWindow)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(connectedWindow)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    programs = std::filesystem::canonical(std::filesystem::path(argv[0]).parent_path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
