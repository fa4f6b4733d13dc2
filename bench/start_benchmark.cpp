// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The client beside a program with a bare Qt window, a menu and a line of text: the time from its
// start to its first paint, its private memory, and how often it wakes up while idle.
// Needs a display. The client finds no agent, and waits with its login dialog open.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include <benchmark/benchmark.h>

#include "child_program.h"

namespace {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

constexpr auto settleTime = 1s;
constexpr auto idleTime = 5s;

std::filesystem::path programs;

double now() {
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void watchStart(int output) {
    ::setenv("QT_PLUGIN_PATH", (programs.parent_path() / "watch").c_str(), 1);
    ::setenv("QT_QPA_GENERIC_PLUGINS", ("startwatch:" + std::to_string(output)).c_str(), 1);
    // The reference does without OpenGL, too.
    ::setenv("QT_XCB_GL_INTEGRATION", "none", 1);
}

/// A running program that loads the watch over its start.
class Started {
public:
    explicit Started(const char* program)
        : begin_(now())
        , program_({programs / program}, watchStart)
        , firstPaint_(std::stod(program_.readLine()) - begin_)
        , processorTime_(std::stod(program_.readLine())) {}

    /// Seconds from the start.
    double firstPaint() const { return firstPaint_; }
    /// Seconds of processor time until then.
    double processorTime() const { return processorTime_; }

    /// Memory that it has filled itself, in KiB. Unchanged pages of a program's files don't count:
    /// whether another process shares them depends on what else happens to run, and the system can
    /// drop them.
    double privateMemory() const {
        std::ifstream map(folder() / "smaps_rollup");
        double sum = 0;
        for (std::string line; std::getline(map, line);)
            if (line.starts_with("Anonymous:"))
                sum += std::stod(line.substr(line.find(':') + 1));
        return sum;
    }

    /// How often its threads have stopped waiting so far.
    double wakeUps() const {
        double sum = 0;
        for (const auto& thread : std::filesystem::directory_iterator(folder() / "task")) {
            std::ifstream status(thread.path() / "status");
            for (std::string line; std::getline(status, line);)
                if (line.starts_with("voluntary_ctxt_switches:"))
                    sum += std::stod(line.substr(line.find(':') + 1));
        }
        return sum;
    }

private:
    std::filesystem::path folder() const { return "/proc/" + std::to_string(program_.id()); }

    double begin_;
    bench::ChildProgram program_;
    double firstPaint_;
    double processorTime_;
};

void measure(benchmark::State& state, const char* program) {
    double memory = 0;
    double busy = 0;
    double wakeUps = 0;
    for (auto round : state) {
        const Started started(program);
        state.SetIterationTime(started.firstPaint());
        busy = started.processorTime();
        std::this_thread::sleep_for(settleTime);
        memory = started.privateMemory();
        const double before = started.wakeUps();
        std::this_thread::sleep_for(idleTime);
        wakeUps = started.wakeUps() - before;
    }
    state.counters["busy"] = busy * 1e3;
    state.counters["private_kib"] = memory;
    state.counters["wake_ups"] = wakeUps / Seconds(idleTime).count();
}

void startClient(benchmark::State& state) {
    measure(state, "tarn-mobile-user");
}

void startBareWindow(benchmark::State& state) {
    measure(state, "bare_window");
}

BENCHMARK(startClient)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(startBareWindow)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    programs = std::filesystem::canonical(std::filesystem::path(argv[0]).parent_path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
